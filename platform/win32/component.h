#pragma once

#include "platform/win32/windows_api.h"

#include <objbase.h>

#include <memory>

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

} // namespace tarvelon
