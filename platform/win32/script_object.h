#pragma once

#include "platform/win32/component.h"
#include "platform/win32/wide.h"

#include <oleauto.h>

#include <cstdint>
#include <string>

namespace tarvelon {

/// A value that goes to a script object or comes from one.
class ScriptValue {
public:
    ScriptValue() { VariantInit(&value_); }
    explicit ScriptValue(const std::string& text)
        : ScriptValue() {
        const std::wstring wide = wideText(text);
        value_.vt = VT_BSTR;
        value_.bstrVal = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
    }
    explicit ScriptValue(std::int32_t number)
        : ScriptValue() {
        value_.vt = VT_I4;
        value_.lVal = number;
    }
    ScriptValue(const ScriptValue&) = delete;
    ~ScriptValue() { VariantClear(&value_); }

    VARIANT* get() { return &value_; }

private:
    VARIANT value_;
};

/// An object of the scripting host, whose members are looked up by their names at run time.
class ScriptObject {
public:
    /// By the name that scripts use, such as "WScript.Shell".
    explicit ScriptObject(const wchar_t* className) {
        CLSID classId;
        if (SUCCEEDED(CLSIDFromProgID(className, &classId))) {
            object_ = makeComponent<IDispatch>(classId);
        }
    }
    /// The object that a call gave; the value may hold anything.
    explicit ScriptObject(ScriptValue& value) {
        const VARIANT& held = *value.get();
        if (held.vt == VT_DISPATCH && held.pdispVal) {
            object_ = queryComponent<IDispatch>(*held.pdispVal);
        }
    }

    /// False when the system has no such object.
    explicit operator bool() const { return object_ != nullptr; }

    bool call(const wchar_t* method) const { return invoke(method, DISPATCH_METHOD, {}, nullptr); }

    bool call(const wchar_t* method, const std::string& argument, ScriptValue& result) const {
        ScriptValue text(argument);
        return invoke(method, DISPATCH_METHOD,
                      {.rgvarg = text.get(), .rgdispidNamedArgs = nullptr, .cArgs = 1, .cNamedArgs = 0},
                      result.get());
    }

    /// To a text or a number.
    template<class Value>
    bool set(const wchar_t* property, const Value& to) const {
        ScriptValue value(to);
        DISPID newValue = DISPID_PROPERTYPUT;
        return invoke(property, DISPATCH_PROPERTYPUT,
                      {.rgvarg = value.get(), .rgdispidNamedArgs = &newValue, .cArgs = 1, .cNamedArgs = 1},
                      nullptr);
    }

private:
    bool invoke(const wchar_t* member, WORD kind, DISPPARAMS parameters, VARIANT* result) const {
        std::wstring name = member;
        LPOLESTR names = name.data();
        DISPID id = DISPID_UNKNOWN;
        return SUCCEEDED(object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id)) &&
               SUCCEEDED(object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, result,
                                         nullptr, nullptr));
    }

    Component<IDispatch> object_;
};

} // namespace tarvelon
