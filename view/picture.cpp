#include "view/press.h"

#include <windowsx.h>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tarvelon {

namespace {

constexpr std::string_view litEnding = "-lit";
constexpr int haloWidth = 12; ///< Around the disc, for light and focus.

std::string plainName(const std::string& name) {
    return name.ends_with(litEnding) ? name.substr(0, name.size() - litEnding.size()) : name;
}

/// The largest square in the middle of the area.
RECT squareIn(const RECT& area) {
    const int side = std::min(widthOf(area), heightOf(area));
    const int left = (widthOf(area) - side) / 2;
    const int top = (heightOf(area) - side) / 2;
    return {left, top, left + side, top + side};
}

Spot middleOf(const RECT& rect) {
    return {static_cast<float>(rect.left + rect.right) / 2, static_cast<float>(rect.top + rect.bottom) / 2};
}

/// A large round button with a drawing on it. "-lit" behind the picture's name stands for the same button
/// with light around it: it lies over the plain one and leaves the keyboard to that.
class PictureWindow : public WindowOf<Picture, PressWindow> {
public:
    using WindowOf::WindowOf;

    void keyPress() override { control().keyPress(); }
    void keyClick() override { control().keyClick(); }

    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        if (message == WM_NCHITTEST) {
            // The corners around the disc belong to what lies under the window.
            return isOnDisc({GET_X_LPARAM(low), GET_Y_LPARAM(low)}) ? HTCLIENT : HTTRANSPARENT;
        }
        const LRESULT result = PressWindow::handle(message, wide, low);
        if (message == WM_KILLFOCUS) {
            focusMoved();
            if (!isSamePlace(reinterpret_cast<HWND>(wide))) {
                control().loseFocus();
            }
        } else if (message == WM_SETFOCUS) {
            if (const HWND plain = isLit() ? plainBelow() : nullptr) {
                SetFocus(plain);
                return result;
            }
            focusMoved();
            control().focus();
        }
        return result;
    }

    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const bool contrast = theme().highContrast;
        const int halo = scaled(haloWidth);
        const RECT disc = inset(squareIn(canvas.area()), halo, halo);
        const int radius = widthOf(disc) / 2;
        const Spot middle = middleOf(disc);
        const auto edge = static_cast<float>(radius);
        if (isLit() && !contrast) {
            canvas.glow(middle, edge, static_cast<float>(halo), face().hovered);
        }
        Color ground = isLit() ? face().hovered : face().normal;
        Color lines = contrast ? face().edge : colors::white;
        if (!control().isUsable()) {
            ground = face().disabled;
        } else if (isHeld()) {
            ground = face().pressed;
        }
        if (contrast && isLit()) {
            ground = theme().selected;
            lines = theme().selectedText;
        }
        canvas.roundedBox(disc, radius, ground, contrast ? face().edge : ground, scaled(2));
        const int margin = widthOf(disc) * 2 / 9;
        canvas.drawing(drawing_, inset(disc, margin, margin), lines, ground);
        if (isSamePlace(GetFocus())) {
            const auto thickness = static_cast<float>(scaled(4)) / 2;
            canvas.ring(middle, edge + static_cast<float>(halo) / 2, thickness, theme().focus);
        }
    }

private:
    bool isLit() const { return !takesKeys(); }

    const Face& face() const {
        return name_ == "standby"   ? theme().standby
               : name_ == "turnoff" ? theme().turnOff
               : name_ == "restart" ? theme().restart
                                    : theme().page.button(Rank::Primary);
    }

    bool isOnDisc(POINT onDesktop) const {
        RECT area;
        GetWindowRect(window(), &area);
        const Spot middle = middleOf(area);
        const int radius = std::min(widthOf(area), heightOf(area)) / 2 - scale()(haloWidth);
        return std::hypot(static_cast<float>(onDesktop.x) - middle.x,
                          static_cast<float>(onDesktop.y) - middle.y) <= static_cast<float>(radius);
    }

    bool isSamePlace(HWND other) const {
        const ControlWindow* found = ControlWindow::from(other);
        return found && found->control().kind() == ControlKind::Picture &&
               found->control().frame() == control().frame() && found->control().place() == control().place();
    }

    HWND plainBelow() const {
        HWND below = GetWindow(window(), GW_HWNDNEXT);
        while (below && !(isSamePlace(below) && IsWindowVisible(below) && IsWindowEnabled(below))) {
            below = GetWindow(below, GW_HWNDNEXT);
        }
        return below;
    }

    void focusMoved() const {
        // The ring shows on whichever of the windows in this place lies on top.
        const RECT place = scale()(control().place());
        RedrawWindow(GetParent(window()), &place, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    }

    std::string name_ = plainName(control().image());
    const LineDrawing& drawing_ = drawingNamed(name_);
};

} // namespace

MadeWindow makePicture(FormWindow& form, Control& control) {
    const bool lit = static_cast<const Picture&>(control).image().ends_with(litEnding);
    const DWORD style = BS_OWNERDRAW | (lit ? 0 : WS_TABSTOP);
    return std::make_unique<PictureWindow>(form, control, style);
}

} // namespace tarvelon
