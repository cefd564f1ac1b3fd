#pragma once

#include "platform/win32/component.h"

#include <oleauto.h>

#include <cstdint>
#include <string>

namespace tarvelon {

/// A value that goes to a script object or comes from one.
class ScriptValue {
public:
    ScriptValue() { VariantInit(&value_); }
    explicit ScriptValue(const std::string& text);
    explicit ScriptValue(std::int32_t number);
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
    explicit ScriptObject(const wchar_t* className);
    /// The object that a call gave; the value may hold anything.
    explicit ScriptObject(ScriptValue& value);

    /// False when the system has no such object.
    explicit operator bool() const { return object_ != nullptr; }

    bool call(const wchar_t* method) const;
    bool call(const wchar_t* method, const std::string& argument, ScriptValue& result) const;

    bool set(const wchar_t* property, const std::string& text) const;
    bool set(const wchar_t* property, std::int32_t number) const;

private:
    bool invoke(const wchar_t* member, WORD kind, DISPPARAMS parameters, VARIANT* result) const;
    bool put(const wchar_t* property, ScriptValue& value) const;

    Component<IDispatch> object_;
};

} // namespace tarvelon
