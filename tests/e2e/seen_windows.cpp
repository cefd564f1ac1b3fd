#include "seen_windows.h"

namespace e2e {

std::string narrow(const wchar_t* wide) {
    char text[4096] = {};
    WideCharToMultiByte(CP_ACP, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    return text;
}

std::string classOf(HWND window) {
    char name[64] = {};
    GetClassNameA(window, name, sizeof name);
    return name;
}

LRESULT send(HWND window, UINT message, WPARAM first, LPARAM second) {
    DWORD_PTR result = 0;
    SendMessageTimeoutA(window, message, first, second, SMTO_NORMAL, answerTime, &result);
    return static_cast<LRESULT>(result);
}

std::string textOf(HWND window) {
    char text[4096] = {};
    send(window, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
    return text;
}

std::string shownText(HWND window) {
    wchar_t wide[1024] = {};
    InternalGetWindowText(window, wide, 1024);
    return narrow(wide);
}

std::string withoutMarks(const std::string& text) {
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        i += text[i] == '&' ? 1 : 0;
        shown += i < text.size() ? text.substr(i, 1) : "";
    }
    return shown;
}

std::vector<HWND> visibleChildren(HWND parent) {
    std::vector<HWND> children;
    EnumChildWindows(
        parent,
        [](HWND child, LPARAM list) {
            if (IsWindowVisible(child) != 0) {
                reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&children));
    return children;
}

} // namespace e2e
