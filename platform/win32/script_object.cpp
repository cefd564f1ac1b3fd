#include "platform/win32/script_object.h"

namespace tarvelon {

ScriptValue::ScriptValue(const std::string& text)
    : ScriptValue() {
    const std::wstring wide = wideText(text);
    value_.vt = VT_BSTR;
    value_.bstrVal = SysAllocStringLen(wide.data(), static_cast<UINT>(wide.size()));
}

ScriptValue::ScriptValue(std::int32_t number)
    : ScriptValue() {
    value_.vt = VT_I4;
    value_.lVal = number;
}

ScriptObject::ScriptObject(const wchar_t* className) {
    CLSID classId;
    if (SUCCEEDED(CLSIDFromProgID(className, &classId))) {
        object_ = makeComponent<IDispatch>(classId);
    }
}

ScriptObject::ScriptObject(ScriptValue& value) {
    const VARIANT& held = *value.get();
    if (held.vt == VT_DISPATCH && held.pdispVal) {
        object_ = queryComponent<IDispatch>(*held.pdispVal);
    }
}

bool ScriptObject::call(const wchar_t* method) const {
    return invoke(method, DISPATCH_METHOD, {}, nullptr);
}

bool ScriptObject::call(const wchar_t* method, const std::string& argument, ScriptValue& result) const {
    ScriptValue text(argument);
    return invoke(method, DISPATCH_METHOD,
                  {.rgvarg = text.get(), .rgdispidNamedArgs = nullptr, .cArgs = 1, .cNamedArgs = 0},
                  result.get());
}

bool ScriptObject::set(const wchar_t* property, const std::string& text) const {
    ScriptValue value(text);
    return put(property, value);
}

bool ScriptObject::set(const wchar_t* property, std::int32_t number) const {
    ScriptValue value(number);
    return put(property, value);
}

bool ScriptObject::put(const wchar_t* property, ScriptValue& value) const {
    DISPID newValue = DISPID_PROPERTYPUT;
    return invoke(property, DISPATCH_PROPERTYPUT,
                  {.rgvarg = value.get(), .rgdispidNamedArgs = &newValue, .cArgs = 1, .cNamedArgs = 1},
                  nullptr);
}

bool ScriptObject::invoke(const wchar_t* member, WORD kind, DISPPARAMS parameters, VARIANT* result) const {
    std::wstring name = member;
    LPOLESTR names = name.data();
    DISPID id = DISPID_UNKNOWN;
    return SUCCEEDED(object_->GetIDsOfNames(IID_NULL, &names, 1, LOCALE_USER_DEFAULT, &id)) &&
           SUCCEEDED(object_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, kind, &parameters, result, nullptr,
                                     nullptr));
}

} // namespace tarvelon
