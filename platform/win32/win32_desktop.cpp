#include "platform/win32/parts.h"

#include "platform/win32/windows_api.h"

namespace tarvelon {

namespace {

HWND hwndOf(Desktop::Window window) {
    return reinterpret_cast<HWND>(window);
}

Desktop::Window windowOf(HWND handle) {
    return reinterpret_cast<Desktop::Window>(handle);
}

class Win32Desktop : public Desktop {
public:
    Window firstWindow() override { return windowOf(GetWindow(GetDesktopWindow(), GW_CHILD)); }
    Window nextWindow(Window window) override { return windowOf(GetWindow(hwndOf(window), GW_HWNDNEXT)); }

    void windowText(Window window, char* buffer, int size) override {
        // For a window that has gone, some systems give what happens to lie in memory.
        if (!IsWindow(hwndOf(window)) || GetWindowTextA(hwndOf(window), buffer, size) == 0) {
            *buffer = '\0';
        }
    }

    void className(Window window, char* buffer, int size) override {
        GetClassNameA(hwndOf(window), buffer, size);
    }

    std::uint32_t processOf(Window window) override {
        DWORD process = 0;
        GetWindowThreadProcessId(hwndOf(window), &process);
        return process;
    }

    Window find(const std::optional<std::string>& className, const std::string& title) override {
        return windowOf(FindWindowA(className ? className->c_str() : nullptr, title.c_str()));
    }

    void bringToTop(Window window) override { BringWindowToTop(hwndOf(window)); }
    void send(Window window, std::uint32_t message) override { SendMessageA(hwndOf(window), message, 0, 0); }
};

} // namespace

std::unique_ptr<Desktop> makeDesktop() {
    return std::make_unique<Win32Desktop>();
}

} // namespace tarvelon
