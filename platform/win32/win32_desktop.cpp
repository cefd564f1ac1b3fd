#include "platform/win32/win32_desktop.h"

#include "platform/win32/windows_api.h"

namespace tarvelon {

namespace {

HWND hwndOf(Desktop::Window window) {
    return reinterpret_cast<HWND>(window);
}

Desktop::Window windowOf(HWND handle) {
    return reinterpret_cast<Desktop::Window>(handle);
}

} // namespace

Desktop::Window Win32Desktop::firstWindow() {
    return windowOf(GetWindow(GetDesktopWindow(), GW_CHILD));
}

Desktop::Window Win32Desktop::nextWindow(Window window) {
    return windowOf(GetWindow(hwndOf(window), GW_HWNDNEXT));
}

void Win32Desktop::windowText(Window window, char* buffer, int size) {
    // For a window that has gone, some systems give what happens to lie in memory.
    if (!IsWindow(hwndOf(window)) || GetWindowTextA(hwndOf(window), buffer, size) == 0) {
        *buffer = '\0';
    }
}

void Win32Desktop::className(Window window, char* buffer, int size) {
    GetClassNameA(hwndOf(window), buffer, size);
}

std::uint32_t Win32Desktop::processOf(Window window) {
    DWORD process = 0;
    GetWindowThreadProcessId(hwndOf(window), &process);
    return process;
}

Desktop::Window Win32Desktop::find(const std::optional<std::string>& className, const std::string& title) {
    return windowOf(FindWindowA(className ? className->c_str() : nullptr, title.c_str()));
}

void Win32Desktop::bringToTop(Window window) {
    BringWindowToTop(hwndOf(window));
}

void Win32Desktop::send(Window window, std::uint32_t message) {
    SendMessageA(hwndOf(window), message, 0, 0);
}

} // namespace tarvelon
