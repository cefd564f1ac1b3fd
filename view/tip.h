#pragma once

#include "platform/win32/owned.h"
#include "platform/win32/window_calls.h"

#include <commctrl.h>

#include <string>

namespace tarvelon {

/// A text that shows while the mouse rests on a window. Its own window lives only while the mouse is there:
/// hidden, it would stand in every list of open windows under the text shown last.
class ToolTip {
public:
    /// An empty text shows nothing. `widestLine` is in pixels.
    void set(const std::string& text, int widestLine) {
        text_ = text;
        widestLine_ = widestLine;
        window_.reset(); // The next movement of the mouse opens it with the new text.
    }

    /// Has to see all mouse messages of the window, that of leaving included.
    void see(HWND owner, UINT message, WPARAM wide, LPARAM low) {
        if (message == WM_MOUSELEAVE) {
            window_.reset();
        } else if (!text_.empty() && message >= WM_MOUSEFIRST && message <= WM_MOUSELAST) {
            if (!window_) {
                open(owner);
            }
            MSG seen{.hwnd = owner, .message = message, .wParam = wide, .lParam = low, .time = 0, .pt = {}};
            tell(TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&seen));
        }
    }

private:
    void tell(UINT message, WPARAM wide, LPARAM low) {
        windowCalls().sendMessage(window_.get(), message, wide, low);
    }

    void open(HWND owner) {
        window_.reset(makeWindow(WS_EX_TOPMOST, TOOLTIPS_CLASSA, "", WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                                 RECT{}, owner));
        constexpr LPARAM longest = 0x7fff; // Milliseconds: long texts take their time to read.
        tell(TTM_SETDELAYTIME, TTDT_AUTOPOP, longest);
        tell(TTM_SETMAXTIPWIDTH, 0, widestLine_);
        const WindowText text(text_);
        TOOLINFOW tool{};
        tool.cbSize = TTTOOLINFOW_V1_SIZE; // The form that every version of the library takes.
        tool.uFlags = TTF_IDISHWND | TTF_TRANSPARENT;
        tool.hwnd = owner;
        tool.uId = reinterpret_cast<UINT_PTR>(owner);
        tool.lpszText = text.inRecord();
        tell(windowCalls().addTool, 0, reinterpret_cast<LPARAM>(&tool));
        TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, owner, 0};
        TrackMouseEvent(&leaving);
    }

    std::string text_;
    int widestLine_ = 0;
    OwnedWindow window_;
};

} // namespace tarvelon
