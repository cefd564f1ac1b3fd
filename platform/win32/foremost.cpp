#include "platform/win32/foremost.h"

namespace tarvelon {

HWND foremostUsable() {
    for (HWND window = GetTopWindow(nullptr); window; window = GetWindow(window, GW_HWNDNEXT)) {
        const bool hasTitle = (GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION;
        if (GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId() && hasTitle &&
            IsWindowVisible(window) && IsWindowEnabled(window) && !IsIconic(window)) {
            return window;
        }
    }
    return nullptr;
}

} // namespace tarvelon
