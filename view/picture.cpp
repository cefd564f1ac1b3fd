#include "view/picture.h"

#include "view/form.h"

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

} // namespace

PictureWindow::PictureWindow(FormWindow& form, Picture& picture)
    : PressWindow(form, picture)
    , picture_(picture)
    , lit_(picture.image().ends_with(litEnding))
    , drawing_(drawingNamed(plainName(picture.image()))) {}

ControlWindow::Kind PictureWindow::kind() const {
    return {"BUTTON", BS_OWNERDRAW | (lit_ ? 0UL : WS_TABSTOP)};
}

const Face& PictureWindow::face() const {
    const std::string name = plainName(picture_.image());
    if (name == "standby") {
        return theme().standby;
    }
    if (name == "turnoff") {
        return theme().turnOff;
    }
    return name == "restart" ? theme().restart : theme().button;
}

LRESULT PictureWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    if (message == WM_NCHITTEST) {
        // The corners around the disc belong to what lies under the window.
        return isOnDisc({GET_X_LPARAM(low), GET_Y_LPARAM(low)}) ? HTCLIENT : HTTRANSPARENT;
    }
    const LRESULT result = PressWindow::handle(message, wide, low);
    if (message == WM_KILLFOCUS) {
        focusMoved();
        if (!isSamePlace(reinterpret_cast<HWND>(wide))) {
            picture_.loseFocus();
        }
    } else if (message == WM_SETFOCUS) {
        const HWND plain = lit_ ? plainBelow() : nullptr;
        if (plain) {
            SetFocus(plain);
            return result;
        }
        focusMoved();
        picture_.focus();
    }
    return result;
}

bool PictureWindow::isOnDisc(POINT onDesktop) const {
    RECT area;
    GetWindowRect(window(), &area);
    const Spot middle = middleOf(area);
    const int radius = std::min(widthOf(area), heightOf(area)) / 2 - scale()(haloWidth);
    return std::hypot(static_cast<float>(onDesktop.x) - middle.x,
                      static_cast<float>(onDesktop.y) - middle.y) <= static_cast<float>(radius);
}

bool PictureWindow::isSamePlace(HWND other) const {
    const ControlWindow* found = ControlWindow::from(other);
    return found && found->control().kind() == ControlKind::Picture &&
           found->control().frame() == picture_.frame() && found->control().place() == picture_.place();
}

HWND PictureWindow::plainBelow() const {
    HWND below = GetWindow(window(), GW_HWNDNEXT);
    while (below && !(isSamePlace(below) && IsWindowVisible(below) && IsWindowEnabled(below))) {
        below = GetWindow(below, GW_HWNDNEXT);
    }
    return below;
}

void PictureWindow::focusMoved() const {
    // The ring shows on whichever of the windows in this place lies on top.
    const RECT place = scale()(picture_.place());
    RedrawWindow(GetParent(window()), &place, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

void PictureWindow::paint(Canvas& canvas) {
    const Scale& scaled = canvas.scale();
    const bool contrast = theme().highContrast;
    const int halo = scaled(haloWidth);
    const RECT disc = inset(squareIn(canvas.area()), halo, halo);
    const int radius = widthOf(disc) / 2;
    const Spot middle = middleOf(disc);
    const auto edge = static_cast<float>(radius);
    if (lit_ && !contrast) {
        canvas.glow(middle, edge, static_cast<float>(halo), face().hovered);
    }
    Color ground = lit_ ? face().hovered : face().normal;
    Color lines = contrast ? face().border : colors::white;
    if (!picture_.isUsable()) {
        ground = face().disabled;
    } else if (isHeld()) {
        ground = face().pressed;
    }
    if (contrast && lit_) {
        ground = theme().selected;
        lines = theme().selectedText;
    }
    canvas.roundedBox(disc, radius, ground, contrast ? face().border : ground, scaled(2));
    const int margin = widthOf(disc) * 2 / 9;
    canvas.drawing(drawing_, inset(disc, margin, margin), lines);
    if (isSamePlace(GetFocus())) {
        const auto thickness = static_cast<float>(scaled(4)) / 2;
        canvas.ring(middle, edge + static_cast<float>(halo) / 2, thickness, theme().focus);
    }
}

NavButtonWindow::NavButtonWindow(FormWindow& form, NavButton& button)
    : PressWindow(form, button)
    , button_(button)
    , drawing_(drawingNamed(button.icon())) {}

void NavButtonWindow::paint(Canvas& canvas) {
    const Scale& scaled = canvas.scale();
    const RECT area = canvas.area();
    Color ground = isHovered() ? theme().navigationHover : theme().navigation.ground;
    Color text = theme().navigation.text;
    if (button_.Current()) {
        ground = theme().navigationCurrent;
        text = theme().navigationCurrentText;
    }
    if (!button_.isUsable()) {
        text = theme().disabledText;
    }
    canvas.fill(area, ground);
    if (button_.Current()) {
        canvas.fill({0, 0, scaled(4), area.bottom}, text);
    }
    const int size = scaled(32);
    const int line = scaled(20);
    const int gap = scaled(4);
    const int left = (widthOf(area) - size) / 2;
    const int top = (heightOf(area) - size - gap - line) / 2;
    canvas.drawing(drawing_, {left, top, left + size, top + size}, text);
    const RECT caption{scaled(8), top + size + gap, area.right - scaled(8), top + size + gap + line};
    canvas.text(button_.Caption(), caption, {.color = text, .align = Align::Center, .mnemonics = true});
    if (isFocused()) {
        paintFocus(canvas, inset(area, scaled(2), scaled(2)), theme().navigation.quietText);
    }
}

} // namespace tarvelon
