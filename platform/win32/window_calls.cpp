#include "platform/win32/window_calls.h"

#include "platform/win32/wide.h"

#include <commctrl.h>

#include <algorithm>

namespace tarvelon {

namespace {

bool isPair(wchar_t first, wchar_t second) {
    return IS_SURROGATE_PAIR(first, second);
}

template<class Font, class Text>
Font fontOf(const Text& face, int height = 0, int weight = FW_DONTCARE, bool underlined = false) {
    Font font{};
    face.copy(font.lfFaceName, LF_FACESIZE - 1);
    font.lfHeight = -height;
    font.lfWeight = weight;
    font.lfUnderline = underlined ? TRUE : FALSE;
    font.lfCharSet = DEFAULT_CHARSET;
    return font;
}

template<class Font, class Metrics>
int CALLBACK noteFont(const Font*, const Metrics*, DWORD, LPARAM found) {
    *reinterpret_cast<bool*>(found) = true;
    return 0;
}

template<class Class, class Name>
Class classOf(Name name, WNDPROC procedure, HICON icon, HICON smallIcon) {
    Class description{};
    description.cbSize = sizeof description;
    description.lpfnWndProc = procedure;
    description.hInstance = GetModuleHandleA(nullptr);
    description.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    description.lpszClassName = name;
    description.hIcon = icon;
    description.hIconSm = smallIcon;
    return description;
}

} // namespace

const WindowCalls& windowCalls() {
    static const WindowCalls calls =
        hasWideCalls() ? WindowCalls{SendMessageW,      DefWindowProcW,   CallWindowProcW,  PeekMessageW,
                                     GetMessageW,       DispatchMessageW, IsDialogMessageW, GetWindowLongPtrW,
                                     SetWindowLongPtrW, TVM_INSERTITEMW,  TTM_ADDTOOLW}
                       : WindowCalls{SendMessageA,      DefWindowProcA,   CallWindowProcA,  PeekMessageA,
                                     GetMessageA,       DispatchMessageA, IsDialogMessageA, GetWindowLongPtrA,
                                     SetWindowLongPtrA, TVM_INSERTITEMA,  TTM_ADDTOOLA};
    return calls;
}

WindowText::WindowText(const std::string& text)
    : wide_(hasWideCalls() ? wideText(text) : std::wstring())
    , narrow_(hasWideCalls() ? std::string() : text) {}

const void* WindowText::start() const {
    return hasWideCalls() ? static_cast<const void*>(wide_.c_str()) : narrow_.c_str();
}

std::size_t WindowText::size() const {
    return hasWideCalls() ? wide_.size() : narrow_.size();
}

LRESULT WindowText::copyTo(LPARAM buffer, std::size_t size) const {
    if (!hasWideCalls()) {
        return static_cast<LRESULT>(fillBuffer(reinterpret_cast<char*>(buffer), size, narrow_));
    }
    if (size == 0) {
        return 0;
    }
    std::size_t length = std::min(wide_.size(), size - 1);
    if (length > 0 && length < wide_.size() && isPair(wide_[length - 1], wide_[length])) {
        --length;
    }
    auto* text = reinterpret_cast<wchar_t*>(buffer);
    wide_.copy(text, length);
    text[length] = L'\0';
    return static_cast<LRESULT>(length);
}

SIZE WindowText::extent(HDC dc) const {
    SIZE size{};
    const int length = static_cast<int>(this->size());
    hasWideCalls() ? GetTextExtentPoint32W(dc, wide_.c_str(), length, &size)
                   : GetTextExtentPoint32A(dc, narrow_.c_str(), length, &size);
    return size;
}

void WindowText::draw(HDC dc, RECT& place, UINT flags) const {
    const int length = static_cast<int>(size());
    hasWideCalls() ? DrawTextW(dc, wide_.c_str(), length, &place, flags)
                   : DrawTextA(dc, narrow_.c_str(), length, &place, flags);
}

void WindowText::drawShortened(HDC dc, RECT place, UINT flags) const {
    if (std::ranges::none_of(wide_, [](wchar_t unit) { return IS_HIGH_SURROGATE(unit); })) {
        draw(dc, place, flags);
        return;
    }
    // The system would cut between any two units. Either the end goes, or what a path's last name follows.
    const bool oneLine = (flags & DT_SINGLELINE) != 0;
    const UINT plainFlags = flags & ~UINT{DT_END_ELLIPSIS | DT_PATH_ELLIPSIS};
    const auto fits = [&](const std::wstring& text) {
        RECT taken{0, 0, place.right - place.left, 0};
        DrawTextW(dc, text.c_str(), static_cast<int>(text.size()), &taken, plainFlags | DT_CALCRECT);
        return taken.right <= place.right - place.left &&
               (oneLine || taken.bottom <= place.bottom - place.top);
    };
    std::wstring head = wide_;
    std::wstring tail = L"...";
    const std::size_t lastName = wide_.rfind(L'\\');
    if (fits(head)) {
        tail.clear();
    } else if ((flags & DT_PATH_ELLIPSIS) != 0 && lastName != std::wstring::npos &&
               fits(tail + wide_.substr(lastName))) {
        head.resize(lastName);
        tail += wide_.substr(lastName);
    }
    while (!head.empty() && !fits(head + tail)) {
        const bool two = head.size() > 1 && isPair(head[head.size() - 2], head.back());
        head.resize(head.size() - (two ? 2 : 1));
    }
    head += tail;
    DrawTextW(dc, head.c_str(), static_cast<int>(head.size()), &place, plainFlags);
}

std::string askedText(const std::function<LRESULT(UINT, WPARAM, LPARAM)>& ask) {
    const auto length = static_cast<std::size_t>(ask(WM_GETTEXTLENGTH, 0, 0));
    const auto fill = [&](auto text) {
        const LRESULT copied = ask(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
        text.resize(static_cast<std::size_t>(copied));
        return text;
    };
    return hasWideCalls() ? narrowText(fill(std::wstring(length + 1, L'\0')))
                          : fill(std::string(length + 1, '\0'));
}

void registerWindowClass(const char* name, HICON icon, HICON smallIcon) {
    const WNDPROC procedure = windowCalls().defWindowProc;
    if (hasWideCalls()) {
        const std::wstring wideName = wideText(name);
        const auto wide = classOf<WNDCLASSEXW>(wideName.c_str(), procedure, icon, smallIcon);
        RegisterClassExW(&wide);
    } else {
        const auto narrow = classOf<WNDCLASSEXA>(name, procedure, icon, smallIcon);
        RegisterClassExA(&narrow);
    }
}

HWND makeWindow(DWORD extendedStyle, const char* windowClass, const std::string& text, DWORD style,
                const RECT& place, HWND parent, int id) {
    auto* const menu = reinterpret_cast<HMENU>(static_cast<INT_PTR>(id));
    const HMODULE program = GetModuleHandleA(nullptr);
    const int width = place.right - place.left;
    const int height = place.bottom - place.top;
    return hasWideCalls()
               ? CreateWindowExW(extendedStyle, wideText(windowClass).c_str(), wideText(text).c_str(), style,
                                 place.left, place.top, width, height, parent, menu, program, nullptr)
               : CreateWindowExA(extendedStyle, windowClass, text.c_str(), style, place.left, place.top,
                                 width, height, parent, menu, program, nullptr);
}

bool isFontInstalled(HDC dc, const std::string& face) {
    bool found = false;
    if (hasWideCalls()) {
        LOGFONTW wide = fontOf<LOGFONTW>(wideText(face));
        EnumFontFamiliesExW(dc, &wide, noteFont<LOGFONTW, TEXTMETRICW>, reinterpret_cast<LPARAM>(&found), 0);
    } else {
        LOGFONTA narrow = fontOf<LOGFONTA>(face);
        EnumFontFamiliesExA(dc, &narrow, noteFont<LOGFONTA, TEXTMETRICA>, reinterpret_cast<LPARAM>(&found),
                            0);
    }
    return found;
}

std::string messageFontFace() {
    if (hasWideCalls()) {
        NONCLIENTMETRICSW wide{};
        wide.cbSize = sizeof wide;
        SystemParametersInfoW(SPI_GETNONCLIENTMETRICS, sizeof wide, &wide, 0);
        return narrowText(wide.lfMessageFont.lfFaceName);
    }
    NONCLIENTMETRICSA narrow{};
    narrow.cbSize = sizeof narrow;
    SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof narrow, &narrow, 0);
    return narrow.lfMessageFont.lfFaceName;
}

HFONT makeFont(const std::string& face, int height, int weight, bool underlined) {
    if (hasWideCalls()) {
        const LOGFONTW wide = fontOf<LOGFONTW>(wideText(face), height, weight, underlined);
        return CreateFontIndirectW(&wide);
    }
    const LOGFONTA narrow = fontOf<LOGFONTA>(face, height, weight, underlined);
    return CreateFontIndirectA(&narrow);
}

} // namespace tarvelon
