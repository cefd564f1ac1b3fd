#include "view/press.h"

namespace tarvelon {

namespace {

class FlatButtonWindow : public PressWindow {
public:
    FlatButtonWindow(FormWindow& form, FlatButton& button)
        : PressWindow(form, button)
        , button_(button) {}

protected:
    void click() override { button_.click(); }
    void down() override { button_.mouseDown(); }
    void up() override { button_.mouseUp(); }

    void hover(POINT where) override {
        // The caption's line is the button's label; what lies above and below is the button's own ground.
        RECT area;
        GetClientRect(window(), &area);
        const int halfLine = scale()(10);
        const int middle = heightOf(area) / 2;
        if (where.y < middle - halfLine || where.y > middle + halfLine || !contains(where)) {
            button_.mouseMove();
        } else if (button_.onMouseMove) {
            button_.screen().dispatch(button_.onMouseMove);
        }
    }

    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const bool pressed = button_.Enabled() && button_.foreColor() == colors::white;
        const Color face = pressed ? theme().button.pressed : faceColor(theme().button);
        if (theme().highContrast) {
            canvas.roundedBox(canvas.area(), scaled(4), face, theme().button.border, scaled(pressed ? 2 : 1));
        } else {
            canvas.roundedBox(canvas.area(), scaled(4), face);
        }
        canvas.text(
            button_.Caption(), inset(canvas.area(), scaled(6), scaled(1)),
            {.color = textOn(theme().button, button_.foreColor()), .align = DT_CENTER, .mnemonics = true});
        paintFocusOnFace(canvas, 2);
    }

private:
    FlatButton& button_;
};

/// An entry of the navigation column.
class NavButtonWindow : public PressWindow {
public:
    NavButtonWindow(FormWindow& form, NavButton& button)
        : PressWindow(form, button)
        , button_(button)
        , drawing_(drawingNamed(button.icon())) {}

protected:
    void click() override { button_.click(); }

    void paint(Canvas& canvas) override {
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
        canvas.text(button_.Caption(), caption, {.color = text, .align = DT_CENTER, .mnemonics = true});
        paintFocus(canvas, inset(area, scaled(2), scaled(2)), theme().navigation.quietText);
    }

private:
    NavButton& button_;
    const LineDrawing& drawing_;
};

} // namespace

MadeWindow makeWindow(FormWindow& form, FlatButton& button) {
    return std::make_unique<FlatButtonWindow>(form, button);
}

MadeWindow makeWindow(FormWindow& form, NavButton& button) {
    return std::make_unique<NavButtonWindow>(form, button);
}

} // namespace tarvelon
