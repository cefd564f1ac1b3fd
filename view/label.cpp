#include "view/press.h"

#include <algorithm>
#include <cstdlib>

namespace tarvelon {

namespace {

/// 0 to 100 out of a text such as "57%", or -1 for any other text.
int percentFrom(const std::string& text) {
    if (text.size() < 2 || text.back() != '%' || text.front() < '0' || text.front() > '9') {
        return -1;
    }
    return std::min(static_cast<int>(std::strtol(text.c_str(), nullptr, 10)), 100);
}

/// Text, a figure, or a percentage drawn as a bar.
class LabelWindow : public WindowOf<Label> {
public:
    using WindowOf::WindowOf;

    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        switch (message) {
        case WM_NCHITTEST:
            // A label that nothing is bound to lets the mouse through to what stands under it.
            return control().onClick || control().onMouseMove ? HTCLIENT : HTTRANSPARENT;
        case WM_LBUTTONUP:
            control().click();
            return 0;
        default:
            return ControlWindow::handle(message, wide, low);
        }
    }

    void paint(Canvas& canvas) override {
        TextLook look{.color = textColor()};
        switch (control().style()) {
        case TextStyle::Title:
            look.tenthPoints = textSize::title;
            look.weight = FW_SEMIBOLD;
            break;
        case TextStyle::Heading:
            look.tenthPoints = textSize::heading;
            look.weight = FW_SEMIBOLD;
            break;
        case TextStyle::Caption:
            look.align = DT_CENTER;
            break;
        case TextStyle::Value:
            look.tenthPoints = textSize::value;
            look.weight = FW_BOLD;
            look.align = DT_RIGHT;
            break;
        case TextStyle::Gauge:
            look.align = DT_RIGHT;
            paintGauge(canvas, look);
            break;
        default:
            break;
        }
        canvas.text(control().Caption(), canvas.area(), look);
    }

private:
    Color textColor() const {
        if (!control().isUsable()) {
            return theme().disabledText;
        }
        const bool plain = control().ForeColor() == colors::black;
        if (theme().highContrast || plain) {
            return control().style() == TextStyle::Hint ? surface().quietText : surface().text;
        }
        return control().ForeColor();
    }

    void paintGauge(Canvas& canvas, const TextLook& look) const {
        const Scale& scaled = canvas.scale();
        const int percent = percentFrom(control().Caption());
        const int height = scaled(6);
        const int top = (heightOf(canvas.area()) - height) / 2;
        const int width = widthOf(canvas.area()) - canvas.textWidth("100%", look) - scaled(8);
        if (percent < 0 || width < scaled(16)) {
            return;
        }
        canvas.roundedBox({0, top, width, top + height}, height / 2, theme().track);
        if (percent > 0) {
            const int done = std::max(MulDiv(width, percent, 100), height);
            canvas.roundedBox({0, top, done, top + height}, height / 2, theme().bar);
        }
    }
};

/// A label that is clicked: with a button's face, or as a link.
class ActionWindow : public WindowOf<Label, PressWindow> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        if (control().style() != TextStyle::Action) {
            paintLink(canvas);
            return;
        }
        const Scale& scaled = canvas.scale();
        canvas.roundedBox(canvas.area(), scaled(4), faceColor(theme().action), theme().action.border,
                          scaled(1));
        const Color own = control().isUsable() ? control().ForeColor() : colors::white;
        canvas.text(control().Caption(), inset(canvas.area(), scaled(8), scaled(1)),
                    {.color = textOn(theme().action, own), .align = DT_CENTER});
        paintFocusOnFace(canvas, 3);
    }

private:
    void paintLink(Canvas& canvas) const {
        const bool step = control().style() == TextStyle::Step;
        TextLook look{.color = step ? surface().text : theme().link,
                      .underlined = !step || control().Underlined()};
        if (!control().isUsable()) {
            look.color = theme().disabledText;
        } else if (control().ForeColor() != colors::black && !theme().highContrast) {
            look.color = control().ForeColor();
        }
        RECT text = canvas.area();
        text.left = canvas.scale()(2);
        canvas.text(control().Caption(), text, look);
        text.left = 0;
        text.right =
            std::min<LONG>(canvas.textWidth(control().Caption(), look) + canvas.scale()(5), text.right);
        paintFocus(canvas, text, theme().focus);
    }
};

} // namespace

MadeWindow makeLabel(FormWindow& form, Control& control) {
    switch (static_cast<const Label&>(control).style()) {
    case TextStyle::Action:
    case TextStyle::Link:
    case TextStyle::Step:
        return std::make_unique<ActionWindow>(form, control);
    default:
        return std::make_unique<LabelWindow>(form, control, ControlWindow::Kind{"STATIC"});
    }
}

} // namespace tarvelon
