#include "view/form.h"

#include "platform/win32/foremost.h"

// What reaches a form from outside: messages, keys, the focus.

namespace tarvelon {

namespace {

constexpr UINT dotsPerInchChanged = 0x02E0; ///< WM_DPICHANGED, of newer systems.

} // namespace

LRESULT CALLBACK FormWindow::procedure(HWND window, UINT message, WPARAM wide, LPARAM low) {
    auto* self = reinterpret_cast<FormWindow*>(windowCalls().getWindowLongPtr(window, GWLP_USERDATA));
    return self->handle(message, wide, low);
}

LRESULT FormWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    if (const auto answer = ControlWindow::reflect(message, wide, low)) {
        return *answer;
    }
    if (const auto answer = answerText(screen_.Caption(), message, wide, low)) {
        return *answer;
    }
    switch (message) {
    case WM_CLOSE:
        if (IsWindowEnabled(window())) {
            screen_.close();
        } else {
            SetForegroundWindow(foremostUsable());
        }
        return 0;
    case WM_COMMAND:
        if (LOWORD(wide) == IDCANCEL && !screen_.canMinimize) {
            screen_.close();
        }
        return 0;
    case WM_TIMER:
        timerFired(wide);
        return 0;
    case WM_MOUSEMOVE:
        screen_.dispatch(screen_.onMouseMove);
        return 0;
    case WM_SIZE:
        screen_.Minimized = wide == SIZE_MINIMIZED;
        if (screen_.Visible() && wide != SIZE_MINIMIZED && created_.empty()) {
            createControls(nullptr);
            focusLost_ = true; // It came to the front with nothing in it.
        }
        return 0;
    case WM_ACTIVATE:
        windowCalls().defWindowProc(window(), message, wide, low);
        activated(LOWORD(wide) != WA_INACTIVE);
        return 0;
    case WM_NEXTDLGCTL:
        moveFocus(wide, low);
        return 0;
    case WM_ERASEBKGND: {
        RECT area;
        GetClientRect(window(), &area);
        FillRect(reinterpret_cast<HDC>(wide), &area, tools_.brushes.get(tools_.theme.page.ground));
        return 1;
    }
    case WM_SETTINGCHANGE:
    case WM_SYSCOLORCHANGE:
        tools_.theme = themeFor(wantedTheme());
        themeChanged();
        break;
    case dotsPerInchChanged:
        scaleTo(HIWORD(wide), *reinterpret_cast<const RECT*>(low));
        return 0;
    default:
        break;
    }
    return windowCalls().defWindowProc(window(), message, wide, low);
}

bool FormWindow::takes(MSG& message) {
    const int key = static_cast<int>(message.wParam);
    const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    const bool up = message.message == WM_KEYUP || message.message == WM_SYSKEYUP;
    if (down && screen_.onKeyDown) {
        screen_.dispatch([&] { screen_.onKeyDown(key); });
    } else if (up && screen_.onKeyUp) {
        screen_.dispatch([&] { screen_.onKeyUp(key); });
    }
    const bool isKey = message.message >= WM_KEYFIRST && message.message <= WM_KEYLAST;
    if (isKey && !canUseKeys(message.hwnd)) {
        return true;
    }
    const bool isArrow = key >= VK_LEFT && key <= VK_DOWN;
    if (down && isArrow && message.hwnd == window()) {
        return true; // No control has the keyboard: there is no group to go round in.
    }
    return windowCalls().isDialogMessage(window(), &message) != FALSE;
}

/// What a key going down has hidden or disabled still gets the messages that belong to the same key. There is
/// no way on from such a window for the keyboard, and the system would look for one for ever.
bool FormWindow::canUseKeys(HWND window) const {
    if (!IsWindowVisible(window)) {
        return false;
    }
    while (window && window != window_.get() && IsWindowEnabled(window)) {
        window = GetParent(window);
    }
    return window == window_.get() && IsWindowEnabled(window_.get());
}

void FormWindow::activated(bool active) {
    if (!active) {
        focusKept_ = GetFocus();
    } else if (blocked_) {
        // Whatever brought it here, the user has the box in front of it to deal with.
        SetForegroundWindow(foremostUsable());
    } else if (!IsIconic(window())) {
        if (IsChild(window(), focusKept_) && canUseKeys(focusKept_)) {
            SetFocus(focusKept_);
        } else {
            giveFocus();
        }
    }
}

void FormWindow::followFocus(const ControlWindow& window) {
    const bool usable = window.control().Visible() && window.control().Enabled();
    const HWND focus = GetFocus();
    if (!usable && focus && (focus == window.window() || IsChild(window.window(), focus))) {
        SetFocus(window_.get());
        focusLost_ = true;
    } else if (usable && focus == window_.get()) {
        focusLost_ = true; // Nothing could take the keyboard so far.
    }
}

void FormWindow::giveFocus() {
    const HWND now = GetFocus();
    if (GetActiveWindow() != window() || (now && now != window())) {
        return;
    }
    HWND next = nullptr;
    const ControlWindow* page = pageShown_ ? windowOf(*pageShown_) : nullptr;
    if (page && IsWindowVisible(page->window())) {
        next = GetNextDlgTabItem(page->window(), nullptr, FALSE);
    }
    if (!next) {
        next = GetNextDlgTabItem(window(), nullptr, FALSE);
    }
    if (next && canUseKeys(next)) {
        SetFocus(next);
    }
}

void FormWindow::moveFocus(WPARAM wide, LPARAM low) {
    const bool isWindow = LOWORD(low) != 0;
    const HWND now = GetFocus();
    const HWND from = now != window() && canUseKeys(now) ? now : nullptr;
    const HWND next = isWindow ? reinterpret_cast<HWND>(wide) : GetNextDlgTabItem(window(), from, wide != 0);
    if (next && canUseKeys(next)) {
        SetFocus(next);
    }
}

} // namespace tarvelon
