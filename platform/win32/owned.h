#pragma once

#include "platform/win32/windows_api.h"

#include <memory>
#include <type_traits>

namespace tarvelon {

/// Frees by one of the system's calls.
template<auto call>
struct FreedBy {
    template<class Handle>
    void operator()(Handle handle) const {
        call(handle);
    }
};

/// A handle of the system that is freed with its owner; null for none.
template<class Handle, auto call>
using Owned = std::unique_ptr<std::remove_pointer_t<Handle>, FreedBy<call>>;

using OwnedHandle = Owned<HANDLE, CloseHandle>;
using OwnedListing = Owned<HANDLE, FindClose>;
using OwnedChange = Owned<HANDLE, FindCloseChangeNotification>;
using OwnedLibrary = Owned<HMODULE, FreeLibrary>;
using OwnedWindow = Owned<HWND, DestroyWindow>;
using OwnedBrush = Owned<HBRUSH, DeleteObject>;
using OwnedFont = Owned<HFONT, DeleteObject>;
using OwnedBitmap = Owned<HBITMAP, DeleteObject>;
using OwnedMemoryDc = Owned<HDC, DeleteDC>;

struct ReleasedTo {
    HWND window;
    void operator()(HDC dc) const { ReleaseDC(window, dc); }
};
/// Draws on a window outside of its painting.
using OwnedWindowDc = std::unique_ptr<std::remove_pointer_t<HDC>, ReleasedTo>;

/// Calls that open files and listings give another value than null when they fail.
inline HANDLE validOrNull(HANDLE handle) {
    return handle == INVALID_HANDLE_VALUE ? nullptr : handle;
}

} // namespace tarvelon
