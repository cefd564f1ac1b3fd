#pragma once

#include "platform/win32/windows_api.h"

#include <functional>
#include <string>

namespace tarvelon {

// Windows, their messages and the drawing of text: by the system's wide calls, since drawing does not follow
// the process's code page. Windows 98 and ME, which have the narrow ones alone, are told from others here and
// nowhere among those who use this.

/// The calls and messages whose two forms differ in nothing but the texts that they carry.
struct WindowCalls {
    decltype(&SendMessageW) sendMessage;
    decltype(&DefWindowProcW) defWindowProc;
    decltype(&CallWindowProcW) callWindowProc;
    decltype(&PeekMessageW) peekMessage;
    decltype(&GetMessageW) getMessage;
    decltype(&DispatchMessageW) dispatchMessage;
    decltype(&IsDialogMessageW) isDialogMessage;
    decltype(&GetWindowLongPtrW) getWindowLongPtr;
    decltype(&SetWindowLongPtrW) setWindowLongPtr;
    UINT insertTreeItem;
    UINT addTool;
};
const WindowCalls& windowCalls();

/// A text as these calls and messages take it.
class WindowText {
public:
    explicit WindowText(const std::string& text);

    /// For a message such as WM_SETTEXT, and for the records of others.
    LPARAM parameter() const { return reinterpret_cast<LPARAM>(start()); }
    wchar_t* inRecord() const { return static_cast<wchar_t*>(const_cast<void*>(start())); }
    /// In what messages count a text by: UTF-16 units, or bytes.
    std::size_t size() const;
    /// The answer to WM_GETTEXT: fills a buffer that holds `size` of these with the text, cut off at the end
    /// of a character where it has no room, and a final zero. Gives how many stand in front of the zero.
    LRESULT copyTo(LPARAM buffer, std::size_t size) const;

    SIZE extent(HDC dc) const;
    /// DrawText with the flags, measuring included.
    void draw(HDC dc, RECT& place, UINT flags) const;
    /// The same with DT_END_ELLIPSIS or DT_PATH_ELLIPSIS, leaving no half of a character beside the dots.
    void drawShortened(HDC dc, RECT place, UINT flags) const;

private:
    const void* start() const;

    std::wstring wide_;  ///< Empty where there are no wide calls.
    std::string narrow_; ///< Empty where there are.
};

/// What a window's class answers to WM_GETTEXT, `ask` being the way to it.
std::string askedText(const std::function<LRESULT(UINT message, WPARAM wide, LPARAM low)>& ask);

/// With an arrow as its cursor; windows of it do what all windows do until they get a procedure of their own.
void registerWindowClass(const char* name, HICON icon = nullptr, HICON smallIcon = nullptr);

/// What CreateWindowEx does.
HWND makeWindow(DWORD extendedStyle, const char* windowClass, const std::string& text, DWORD style,
                const RECT& place, HWND parent, int id = 0);

bool isFontInstalled(HDC dc, const std::string& face);
/// That of the system's boxes; empty when it does not tell.
std::string messageFontFace();
/// `height` is that of a letter in pixels.
HFONT makeFont(const std::string& face, int height, int weight, bool underlined);

} // namespace tarvelon
