#pragma once

#include "platform/win32/windows_api.h"

#include <objbase.h>

#include <memory>
#include <string>

namespace tarvelon {

struct ReleaseComponent {
    void operator()(IUnknown* component) const { component->Release(); }
};

/// An interface of one of the system's objects, released at the end.
template<class Interface>
using Component = std::unique_ptr<Interface, ReleaseComponent>;

/// Null when this system does not have the class.
template<class Interface>
Component<Interface> makeComponent(const CLSID& classId) {
    void* made = nullptr;
    CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, __uuidof(Interface), &made);
    return Component<Interface>(static_cast<Interface*>(made));
}

/// Null when the object does not have the interface.
template<class Interface>
Component<Interface> queryComponent(IUnknown& object) {
    void* found = nullptr;
    object.QueryInterface(__uuidof(Interface), &found);
    return Component<Interface>(static_cast<Interface*>(found));
}

/// The system's objects take 16-bit characters.
inline std::wstring wideText(const std::string& text) {
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    const int count = MultiByteToWideChar(CP_ACP, 0, text.c_str(), length, wide.data(), length);
    wide.resize(static_cast<std::size_t>(count));
    return wide;
}

} // namespace tarvelon
