#include "view/press.h"

namespace tarvelon {

namespace {

class FlatButtonWindow : public WindowOf<cButton, PressWindow> {
public:
    using WindowOf::WindowOf;

    void hover(POINT where) override {
        // The caption's line is the button's label; what lies above and below is the button's own ground.
        RECT area;
        GetClientRect(window(), &area);
        const int halfLine = scale()(10);
        const int middle = heightOf(area) / 2;
        if (where.y < middle - halfLine || where.y > middle + halfLine || !contains(where)) {
            control().mouseMove();
        } else if (control().onMouseMove) {
            control().screen().dispatch(control().onMouseMove);
        }
    }

    void paint(Canvas& canvas) override {
        const bool pressed = control().Enabled() && control().foreColor() == colors::white;
        paintButton(canvas, control().rank(), pressed, control().foreColor());
    }
};

/// An entry of the navigation column.
class NavButtonWindow : public WindowOf<NavButton, PressWindow> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const RECT area = canvas.area();
        Color ground = isHovered() ? theme().navigationHover : theme().navigation.ground;
        Color text = theme().navigation.text;
        if (control().Current()) {
            ground = theme().navigationCurrent;
            text = theme().navigationCurrentText;
        }
        if (!control().isUsable()) {
            text = theme().navigation.disabledText;
        }
        canvas.fill(area, ground);
        if (control().Current()) {
            canvas.fill({0, 0, scaled(4), area.bottom}, text);
        }
        const int size = scaled(32);
        const int line = scaled(20);
        const int gap = scaled(4);
        const int left = (widthOf(area) - size) / 2;
        const int top = (heightOf(area) - size - gap - line) / 2;
        canvas.drawing(drawing_, {left, top, left + size, top + size}, text, ground);
        const RECT caption{scaled(8), top + size + gap, area.right - scaled(8), top + size + gap + line};
        canvas.text(control().Caption(), caption,
                    {.color = text, .align = DT_CENTER, .mnemonics = true, .accessKey = shownKey()});
        paintFocus(canvas, inset(area, scaled(2), scaled(2)), ground);
    }
    const LineDrawing& drawing_ = drawingNamed(control().icon());
};

} // namespace

MadeWindow makeFlatButton(FormWindow& form, Control& control) {
    return std::make_unique<FlatButtonWindow>(form, control);
}

MadeWindow makeNavButton(FormWindow& form, Control& control) {
    return std::make_unique<NavButtonWindow>(form, control);
}

} // namespace tarvelon
