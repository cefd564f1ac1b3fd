#include "view/tip.h"

#include <commctrl.h>

namespace tarvelon {

void ToolTip::set(const std::string& text, int widestLine) {
    text_ = text;
    widestLine_ = widestLine;
    window_.reset(); // The next movement of the mouse opens it with the new text.
}

void ToolTip::see(HWND owner, UINT message, WPARAM wide, LPARAM low) {
    if (message == WM_MOUSELEAVE) {
        window_.reset();
        return;
    }
    if (text_.empty() || message < WM_MOUSEFIRST || message > WM_MOUSELAST) {
        return;
    }
    if (!window_) {
        open(owner);
    }
    MSG relayed{.hwnd = owner, .message = message, .wParam = wide, .lParam = low, .time = 0, .pt = {}};
    SendMessageA(window_.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

void ToolTip::open(HWND owner) {
    window_.reset(CreateWindowExA(
        WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
        CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr, GetModuleHandleA(nullptr), nullptr));
    constexpr LPARAM longest = 0x7fff; // Milliseconds: long texts take their time to read.
    SendMessageA(window_.get(), TTM_SETDELAYTIME, TTDT_AUTOPOP, longest);
    SendMessageA(window_.get(), TTM_SETMAXTIPWIDTH, 0, widestLine_);
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE; // The form that every version of the library takes.
    tool.uFlags = TTF_IDISHWND | TTF_TRANSPARENT;
    tool.hwnd = owner;
    tool.uId = reinterpret_cast<UINT_PTR>(owner);
    tool.lpszText = text_.data();
    SendMessageA(window_.get(), TTM_ADDTOOLA, 0, reinterpret_cast<LPARAM>(&tool));
    TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, owner, 0};
    TrackMouseEvent(&leaving);
}

} // namespace tarvelon
