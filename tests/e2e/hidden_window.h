#pragma once

#include <windows.h>

namespace e2e {

/// Hears what the system tells every program. The window is this thread's, which must fetch its messages.
inline HWND makeHiddenWindow(WNDPROC onMessage) {
    WNDCLASSA kind{};
    kind.lpfnWndProc = onMessage;
    kind.lpszClassName = "Hidden";
    RegisterClassA(&kind);
    return CreateWindowA(kind.lpszClassName, "", WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
}

} // namespace e2e
