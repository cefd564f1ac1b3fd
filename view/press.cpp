#include "view/press.h"

#include <windowsx.h>

#include <utility>

namespace tarvelon {

LRESULT PressWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
        SetFocus(window());
        SetCapture(window());
        press(Held::ByMouse);
        return 0;
    case WM_LBUTTONUP:
        if (held_ == Held::ByMouse) {
            release(contains({GET_X_LPARAM(low), GET_Y_LPARAM(low)}));
        }
        return 0;
    case WM_CAPTURECHANGED:
    case WM_CANCELMODE:
        release(false);
        return 0;
    case WM_MOUSEMOVE:
        mouseMoved({GET_X_LPARAM(low), GET_Y_LPARAM(low)});
        return ControlWindow::handle(message, wide, low);
    case WM_MOUSELEAVE:
        hovered_ = false;
        leave();
        repaint();
        return ControlWindow::handle(message, wide, low);
    case WM_SETCURSOR:
        SetCursor(LoadCursorA(nullptr, control().isUsable() ? IDC_HAND : IDC_ARROW));
        return TRUE;
    case WM_KILLFOCUS:
        release(false);
        [[fallthrough]];
    case WM_SETFOCUS:
    case WM_ENABLE:
        repaint();
        return 0;
    case WM_GETDLGCODE:
    case WM_KEYDOWN:
    case WM_KEYUP:
        return keyboard(message, wide, low);
    case BM_CLICK:
        press(Held::ByMouse);
        release(true);
        return 0;
    case BM_GETCHECK:
        return isTicked() ? BST_CHECKED : BST_UNCHECKED;
    case BM_GETSTATE:
        return (isTicked() ? BST_CHECKED : BST_UNCHECKED) | (isHeld() ? BST_PUSHED : 0) |
               (isFocused() ? BST_FOCUS : 0);
    case BM_SETCHECK:
    case BM_SETSTATE:
    case BM_SETSTYLE:
        // The control alone decides; the class would draw its own look over ours.
        return 0;
    default:
        return ControlWindow::handle(message, wide, low);
    }
}

void PressWindow::press(Held by) {
    if (!control().isUsable() || held_ != Held::No) {
        return;
    }
    held_ = by;
    overWhileHeld_ = true;
    if (by == Held::ByKey) {
        keyPress();
    }
    control().mouseDown();
    repaint();
}

void PressWindow::release(bool counts) {
    const Held by = std::exchange(held_, Held::No);
    if (by == Held::No) {
        return;
    }
    if (GetCapture() == window()) {
        ReleaseCapture();
    }
    control().mouseUp();
    repaint();
    if (counts) {
        by == Held::ByKey ? keyClick() : control().click();
    }
}

bool PressWindow::contains(POINT where) const {
    RECT area;
    GetClientRect(window(), &area);
    return PtInRect(&area, where) != FALSE;
}

void PressWindow::mouseMoved(POINT where) {
    const bool inside = contains(where);
    if (inside != hovered_) {
        hovered_ = inside;
        TRACKMOUSEEVENT track{sizeof track, TME_LEAVE, window(), 0};
        TrackMouseEvent(&track);
        repaint();
    }
    if (held_ == Held::ByMouse && inside != overWhileHeld_) {
        overWhileHeld_ = inside;
        inside ? control().mouseDown() : control().mouseUp();
        repaint();
    }
    hover(where);
}

LRESULT PressWindow::keyboard(UINT message, WPARAM key, LPARAM low) {
    if (message == WM_GETDLGCODE) {
        const auto* asked = reinterpret_cast<const MSG*>(low);
        const bool isEnter =
            takesEnter() && asked && asked->message == WM_KEYDOWN && asked->wParam == VK_RETURN;
        return static_cast<LRESULT>(dialogCode() | (isEnter ? DLGC_WANTMESSAGE : 0U));
    }
    constexpr LPARAM wasDownBefore = 1 << 30;
    if (message == WM_KEYDOWN && key == VK_SPACE && (low & wasDownBefore) == 0) {
        press(Held::ByKey);
    } else if (message == WM_KEYUP && key == VK_SPACE && held_ == Held::ByKey) {
        release(true);
    } else if (message == WM_KEYDOWN && key == VK_RETURN && (low & wasDownBefore) == 0) {
        keyPress();
        keyClick();
    }
    return 0;
}

const Color& PressWindow::faceColor(const Face& face) const {
    if (!control().isUsable()) {
        return face.disabled;
    }
    if (isHeld()) {
        return face.pressed;
    }
    return isHovered() ? face.hovered : face.normal;
}

Color PressWindow::textOn(const Face& face, Color own) const {
    const Color system = control().isUsable() ? face.edge : surface().disabledText;
    return theme().highContrast ? system : own;
}

void PressWindow::paintButton(Canvas& canvas, Rank rank, bool pressed, Color caption) const {
    const Scale& scaled = canvas.scale();
    const Face& face = surface().button(rank);
    const Color ground = pressed ? face.pressed : faceColor(face);
    const bool hasEdge = theme().highContrast || (control().isUsable() && !pressed);
    canvas.roundedBox(canvas.area(), scaled(4), ground, hasEdge ? face.edge : ground,
                      scaled(theme().highContrast && pressed ? 2 : 1));
    const bool quiet = rank == Rank::Quiet;
    canvas.text(control().Caption(), inset(canvas.area(), scaled(quiet ? 12 : 6), scaled(1)),
                {.color = textOn(face, caption),
                 .weight = rank == Rank::Primary ? FW_SEMIBOLD : FW_NORMAL,
                 .align = static_cast<UINT>(quiet ? DT_LEFT : DT_CENTER),
                 .mnemonics = true,
                 .accessKey = shownKey()});
    const int margin = scaled(2);
    paintFocus(canvas, inset(canvas.area(), margin, margin), ground);
}

} // namespace tarvelon
