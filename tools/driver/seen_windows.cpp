#include "seen_windows.h"

#include "driver.h"

#include <algorithm>

namespace e2e {

namespace {

/// No part of the window waits to be painted.
bool isPainted(HWND window) {
    std::vector<HWND> parts = visibleChildren(window);
    parts.push_back(window);
    return std::ranges::all_of(parts, [](HWND part) { return GetUpdateRect(part, nullptr, FALSE) == FALSE; });
}

} // namespace

std::string narrow(const wchar_t* wide) {
    char text[4096] = {};
    WideCharToMultiByte(CP_UTF8, 0, wide, -1, text, sizeof text, nullptr, nullptr);
    return text;
}

std::wstring wide(const std::string& narrow) {
    wchar_t text[4096] = {};
    MultiByteToWideChar(CP_UTF8, 0, narrow.c_str(), -1, text, 4096);
    return text;
}

std::string classOf(HWND window) {
    char name[64] = {};
    GetClassNameA(window, name, sizeof name);
    return name;
}

bool isOfClass(HWND window, const char* name) {
    return lstrcmpiA(classOf(window).c_str(), name) == 0;
}

LRESULT send(HWND window, UINT message, WPARAM first, LPARAM second) {
    DWORD_PTR result = 0;
    SendMessageTimeoutW(window, message, first, second, SMTO_NORMAL, answerTime, &result);
    return static_cast<LRESULT>(result);
}

std::string textOf(HWND window) {
    wchar_t text[1024] = {};
    send(window, WM_GETTEXT, 1024, reinterpret_cast<LPARAM>(text));
    return narrow(text);
}

std::string shownText(HWND window) {
    wchar_t text[1024] = {};
    InternalGetWindowText(window, text, 1024);
    return narrow(text);
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
        [](HWND child, LPARAM list) WINAPI -> BOOL {
            if (IsWindowVisible(child) != 0) {
                reinterpret_cast<std::vector<HWND>*>(list)->push_back(child);
            }
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&children));
    return children;
}

std::vector<HWND> childrenOfClass(HWND parent, const char* name) {
    std::vector<HWND> all = visibleChildren(parent);
    std::erase_if(all, [&](HWND child) { return !isOfClass(child, name); });
    return all;
}

RECT placeOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

void awaitStillness() {
    int still = 0;
    comesTrue([&] {
        still = isPainted(GetForegroundWindow()) ? still + 1 : 0;
        Sleep(100); // The last paint reaches the screen.
        return still == 5;
    });
}

std::vector<std::string> rowsOf(HWND list) {
    std::vector<std::string> rows;
    const LRESULT count = send(list, LB_GETCOUNT, 0, 0);
    for (WPARAM row = 0; static_cast<LRESULT>(row) < count; ++row) {
        wchar_t text[1024] = {};
        send(list, LB_GETTEXT, row, reinterpret_cast<LPARAM>(text));
        rows.push_back(narrow(text));
    }
    return rows;
}

RECT placeOfRow(HWND list, std::ptrdiff_t row) {
    RECT area{};
    RECT place{};
    GetClientRect(list, &area);
    const auto ask = [&] {
        send(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&place));
    };
    ask();
    if (place.top < area.top || place.bottom > area.bottom) {
        send(list, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
        ask();
    }
    MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

} // namespace e2e
