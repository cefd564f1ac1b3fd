#include "platform/win32/view_tip.h"

#include <commctrl.h>

namespace tarvelon {

ToolTip::~ToolTip() {
    if (window_) {
        DestroyWindow(window_);
    }
}

void ToolTip::set(HWND owner, const std::string& text, int widestLine) {
    if (!window_ && text.empty()) {
        return;
    }
    TOOLINFOA tool{};
    tool.cbSize = TTTOOLINFOA_V1_SIZE; // The form that every version of the library takes.
    tool.uFlags = TTF_IDISHWND;
    tool.hwnd = owner;
    tool.uId = reinterpret_cast<UINT_PTR>(owner);
    std::string writable = text;
    tool.lpszText = writable.data();
    const auto record = reinterpret_cast<LPARAM>(&tool);
    if (!window_) {
        window_ = CreateWindowExA(
            WS_EX_TOPMOST, TOOLTIPS_CLASSA, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT,
            CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, owner, nullptr, GetModuleHandleA(nullptr), nullptr);
        constexpr LPARAM longest = 0x7fff; // Milliseconds: long texts take their time to read.
        SendMessageA(window_, TTM_SETDELAYTIME, TTDT_AUTOPOP, longest);
        SendMessageA(window_, TTM_ADDTOOLA, 0, record);
    }
    SendMessageA(window_, TTM_SETMAXTIPWIDTH, 0, widestLine);
    SendMessageA(window_, TTM_UPDATETIPTEXTA, 0, record);
    SendMessageA(window_, TTM_ACTIVATE, text.empty() ? FALSE : TRUE, 0);
}

void ToolTip::see(HWND owner, UINT message, WPARAM wide, LPARAM low) const {
    if (!window_ || message < WM_MOUSEFIRST || message > WM_MOUSELAST) {
        return;
    }
    MSG relayed{};
    relayed.hwnd = owner;
    relayed.message = message;
    relayed.wParam = wide;
    relayed.lParam = low;
    SendMessageA(window_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

} // namespace tarvelon
