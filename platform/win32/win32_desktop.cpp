#include "platform/win32/parts.h"

#include "platform/win32/wide.h"
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
        *buffer = '\0';
        if (!IsWindow(hwndOf(window))) {
            return; // Some systems give what happens to lie in memory.
        }
        if (!hasWideCalls()) {
            GetWindowTextA(hwndOf(window), buffer, size);
            return;
        }
        std::wstring title(static_cast<std::size_t>(size), L'\0');
        GetWindowTextW(hwndOf(window), title.data(), size);
        fillBuffer(buffer, title.size(), narrowText(title.c_str()));
    }

    void className(Window window, char* buffer, int size) override {
        constexpr int longest = 256;
        wchar_t name[longest + 1];
        if (!hasWideCalls()) {
            GetClassNameA(hwndOf(window), buffer, size);
        } else if (GetClassNameW(hwndOf(window), name, longest + 1) > 0) {
            fillBuffer(buffer, static_cast<std::size_t>(size), narrowText(name));
        }
    }

    std::uint32_t processOf(Window window) override {
        DWORD process = 0;
        GetWindowThreadProcessId(hwndOf(window), &process);
        return process;
    }

    Window find(const std::optional<std::string>& className, const std::string& title) override {
        if (!hasWideCalls()) {
            return windowOf(FindWindowA(className ? className->c_str() : nullptr, title.c_str()));
        }
        const std::wstring wideClass = wideText(className.value_or(""));
        return windowOf(FindWindowW(className ? wideClass.c_str() : nullptr, wideText(title).c_str()));
    }

    void bringToTop(Window window) override { BringWindowToTop(hwndOf(window)); }
    void send(Window window, std::uint32_t message) override { SendMessageA(hwndOf(window), message, 0, 0); }
};

} // namespace

std::unique_ptr<Desktop> makeDesktop() {
    return std::make_unique<Win32Desktop>();
}

} // namespace tarvelon
