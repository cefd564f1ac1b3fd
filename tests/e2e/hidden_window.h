#pragma once

#include <windows.h>

namespace e2e {

/// Hears what the system tells every program. The window is this thread's, which must fetch its messages.
inline HWND makeHiddenWindow(WNDPROC onMessage) {
    HWND const window = CreateWindowA("Static", "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(onMessage));
    return window;
}

} // namespace e2e
