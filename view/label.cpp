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
class LabelWindow : public ControlWindow {
public:
    LabelWindow(FormWindow& form, Label& label)
        : ControlWindow(form, label, {"STATIC"})
        , label_(label) {}

protected:
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        switch (message) {
        case WM_NCHITTEST:
            // A label that nothing is bound to lets the mouse through to what stands under it.
            return label_.onClick || label_.onMouseMove ? HTCLIENT : HTTRANSPARENT;
        case WM_LBUTTONUP:
            label_.click();
            return 0;
        default:
            return ControlWindow::handle(message, wide, low);
        }
    }

    void paint(Canvas& canvas) override {
        TextLook look{.color = textColor()};
        switch (label_.style()) {
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
        canvas.text(label_.Caption(), canvas.area(), look);
    }

private:
    Color textColor() const {
        if (!label_.isUsable()) {
            return theme().disabledText;
        }
        const bool plain = label_.ForeColor() == colors::black;
        if (theme().highContrast || plain) {
            return label_.style() == TextStyle::Hint ? surface().quietText : surface().text;
        }
        return label_.ForeColor();
    }

    void paintGauge(Canvas& canvas, const TextLook& look) const {
        const Scale& scaled = canvas.scale();
        const int percent = percentFrom(label_.Caption());
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

    Label& label_;
};

/// A label that is clicked: with a button's face, or as a link.
class ActionWindow : public PressWindow {
public:
    ActionWindow(FormWindow& form, Label& label)
        : PressWindow(form, label)
        , label_(label) {}

protected:
    void click() override { label_.click(); }
    void down() override { label_.mouseDown(); }
    void up() override { label_.mouseUp(); }

    void paint(Canvas& canvas) override {
        if (label_.style() != TextStyle::Action) {
            paintLink(canvas);
            return;
        }
        const Scale& scaled = canvas.scale();
        canvas.roundedBox(canvas.area(), scaled(4), faceColor(theme().action), theme().action.border,
                          scaled(1));
        const Color own = label_.isUsable() ? label_.ForeColor() : colors::white;
        canvas.text(label_.Caption(), inset(canvas.area(), scaled(8), scaled(1)),
                    {.color = textOn(theme().action, own), .align = DT_CENTER});
        paintFocusOnFace(canvas, 3);
    }

private:
    void paintLink(Canvas& canvas) const {
        const bool step = label_.style() == TextStyle::Step;
        TextLook look{.color = step ? surface().text : theme().link,
                      .underlined = !step || label_.Underlined()};
        if (!label_.isUsable()) {
            look.color = theme().disabledText;
        } else if (label_.ForeColor() != colors::black && !theme().highContrast) {
            look.color = label_.ForeColor();
        }
        RECT text = canvas.area();
        text.left = canvas.scale()(2);
        canvas.text(label_.Caption(), text, look);
        text.left = 0;
        text.right = std::min<LONG>(canvas.textWidth(label_.Caption(), look) + canvas.scale()(5), text.right);
        paintFocus(canvas, text, theme().focus);
    }

    Label& label_;
};

} // namespace

MadeWindow makeWindow(FormWindow& form, Label& label) {
    switch (label.style()) {
    case TextStyle::Action:
    case TextStyle::Link:
    case TextStyle::Step:
        return std::make_unique<ActionWindow>(form, label);
    default:
        return std::make_unique<LabelWindow>(form, label);
    }
}

} // namespace tarvelon
