#include "view/form.h"

#include "platform/win32/foremost.h"
#include "platform/win32/shell_items.h"
#include "view/row_menu.h"

#include <cctype>

// What reaches a form from outside: messages, keys, the focus.

namespace tarvelon {

namespace {

constexpr UINT dotsPerInchChanged = 0x02E0; ///< WM_DPICHANGED, of newer systems.

bool isPrimary(const Control& control) {
    return (control.kind() == ControlKind::FlatButton &&
            static_cast<const cButton&>(control).rank() == Rank::Primary) ||
           (control.kind() == ControlKind::Label &&
            static_cast<const Label&>(control).rank() == Rank::Primary);
}

bool isHeld(int key) {
    return GetKeyState(key) < 0;
}

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
        if (LOWORD(wide) == IDOK) {
            pressFirst(isPrimary);
        } else if (LOWORD(wide) == IDCANCEL && !pressFirst(&Control::isCancel) &&
                   (screen_.closesByEsc || !screen_.canMinimize)) {
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
        if (wide != SIZE_MINIMIZED) {
            sized({LOWORD(low), HIWORD(low)});
        }
        return 0;
    case WM_GETMINMAXINFO:
        if (screen_.canGrow) {
            const SIZE least = outerSize(screen_.width(), screen_.height());
            reinterpret_cast<MINMAXINFO*>(low)->ptMinTrackSize = {least.cx, least.cy};
        }
        return 0;
    case WM_DROPFILES:
        dropped(reinterpret_cast<HDROP>(wide));
        return 0;
    case WM_ENTERSIZEMOVE:
        GetWindowRect(window(), &placeBefore_);
        return 0;
    case WM_EXITSIZEMOVE:
        placed();
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
    if (isKey && (!canUseKeys(message.hwnd) || isOwnKey(message))) {
        return true;
    }
    const bool isArrow = key >= VK_LEFT && key <= VK_DOWN;
    if (down && isArrow && message.hwnd == window()) {
        return true; // No control has the keyboard: there is no group to go round in.
    }
    return windowCalls().isDialogMessage(window(), &message) != FALSE;
}

/// Keys that mean the same wherever the keyboard is on the form.
bool FormWindow::isOwnKey(const MSG& message) {
    const int key = static_cast<int>(message.wParam);
    if (message.message == WM_SYSCHAR) {
        const auto letter = static_cast<char>(std::toupper(key));
        return pressFirst([letter](const Control& control) { return control.accessKey == letter; }, true);
    }
    const bool down = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    constexpr LPARAM wasDownBefore = 1 << 30;
    if (down && (message.lParam & wasDownBefore) != 0) {
        // Held a little long, these are not meant for what comes to light by them.
        return key == VK_RETURN || key == VK_ESCAPE || (key >= VK_F1 && key <= VK_F12);
    }
    if (message.message == WM_SYSKEYDOWN && key == VK_MENU) {
        showAccessKeys(true);
    }
    ControlWindow* focused = ControlWindow::from(message.hwnd);
    if (message.message == WM_SYSKEYDOWN && key == VK_F10 && isHeld(VK_SHIFT)) {
        return focused && showRowMenu(focused->window(), focused->control(), -1);
    }
    if (message.message != WM_KEYDOWN) {
        return false;
    }
    if (key == VK_F1) {
        screen_.dispatch(screen_.onHelp);
        return true;
    }
    if (key == 'C' && isHeld(VK_CONTROL) && !isHeld(VK_MENU)) {
        return focused && copyRows(message.hwnd, focused->control(), Rows::Selected);
    }
    return pressFirst([key](const Control& control) { return control.shortcutKey == key; });
}

void FormWindow::dropped(HDROP drop) {
    POINT spot{};
    DragQueryPoint(drop, &spot);
    const Control* target = blocked_ ? nullptr : dropTargetAt(spot);
    const std::vector<std::string> paths = droppedPaths(drop);
    DragFinish(drop);
    for (const std::string& path : paths) {
        if (target) {
            screen_.dispatch([&] { target->onDrop(path); });
        }
    }
}

/// What is under the mouse, or wherever that is the only one on the form that takes files; null for none.
const Control* FormWindow::dropTargetAt(POINT inside) const {
    std::vector<const Control*> takers;
    for (const Control* control : screen_.controls()) {
        const ControlWindow* window = control->onDrop && control->isShown() ? windowOf(*control) : nullptr;
        if (!window) {
            continue;
        }
        takers.push_back(control);
        RECT place;
        GetWindowRect(window->window(), &place);
        POINT spot = inside;
        ClientToScreen(this->window(), &spot);
        if (PtInRect(&place, spot)) {
            return control;
        }
    }
    return takers.size() == 1 ? takers.front() : nullptr;
}

/// Presses the first of the controls that can be used now; one that is not pressed gets the keyboard, and any
/// one if it `takesFocus`. False when there is none.
bool FormWindow::pressFirst(const std::function<bool(const Control&)>& isWanted, bool takesFocus) {
    for (const Control* control : screen_.controls()) {
        ControlWindow* window = windowOf(*control);
        if (window && isWanted(*control) && control->isShown() && control->isUsable()) {
            if (takesFocus && window->takesKeys()) {
                SetFocus(window->window());
            }
            window->use();
            return true;
        }
    }
    return false;
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
        showAccessKeys(false);
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
