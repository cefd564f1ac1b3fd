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
            // A label that has nothing for the mouse lets the mouse through to what stands under it.
            return control().onClick || control().onMouseMove || !control().ToolTip().empty() ? HTCLIENT
                                                                                              : HTTRANSPARENT;
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
            return surface().disabledText;
        }
        const Color own = control().ForeColor();
        const bool isSeen = own != colors::black && contrast(own, surface().ground) >= 3;
        if (isSeen && !theme().highContrast) {
            return own;
        }
        if (control().tone() != Tone::Plain) {
            return theme().tone(control().tone()).sign;
        }
        return control().style() == TextStyle::Hint ? surface().quietText : surface().text;
    }

    void paintGauge(Canvas& canvas, const TextLook& look) const {
        const Scale& scaled = canvas.scale();
        const int percent = percentFrom(control().Caption());
        const int height = scaled(8);
        const int top = (heightOf(canvas.area()) - height) / 2;
        const int width = widthOf(canvas.area()) - canvas.textWidth("100%", look) - scaled(8);
        if (percent < 0 || width < scaled(16)) {
            return;
        }
        canvas.roundedBox({0, top, width, top + height}, height / 2, theme().track, theme().border,
                          scaled(1));
        if (percent > 0) {
            const int edge = scaled(1);
            const int thick = height - 2 * edge;
            const int done = std::max(MulDiv(width - 2 * edge, percent, 100), thick);
            canvas.roundedBox({edge, top + edge, edge + done, top + edge + thick}, thick / 2, theme().bar);
        }
    }
};

/// A label that is clicked: with a button's face, or as a link.
class ActionWindow : public WindowOf<Label, PressWindow> {
public:
    using WindowOf::WindowOf;

    void paint(Canvas& canvas) override {
        if (control().style() == TextStyle::Link) {
            paintLink(canvas);
            return;
        }
        if (control().style() == TextStyle::Step) {
            paintStep(canvas);
            return;
        }
        // A caption that is white while the mouse is over it needs a face that is dark.
        const Color own = control().isUsable() ? control().ForeColor() : colors::white;
        paintButton(canvas, control().rank(), isHeld() || own == colors::white, own);
    }

private:
    /// Plain text in the middle of an area that can be pressed.
    void paintStep(Canvas& canvas) const {
        const Scale& scaled = canvas.scale();
        const Surface& under = theme().captions ? *theme().captions : surface();
        const Face& face = under.button(control().rank() == Rank::Primary ? Rank::Primary : Rank::Ordinary);
        // What the caption turns while it is held is light, but never white.
        const Color held = under.button(Rank::Ordinary).normal;
        const Color ground = isHeld() ? held : isHovered() ? face.hovered : face.normal;
        canvas.roundedBox(canvas.area(), scaled(4), ground, face.edge, scaled(1));
        TextLook look{.color = textOn(face, control().ForeColor()),
                      .align = DT_CENTER,
                      .underlined = control().Underlined(),
                      .mnemonics = true,
                      .accessKey = shownKey()};
        if (!control().isUsable()) {
            look.color = under.disabledText;
        }
        canvas.text(control().Caption(), inset(canvas.area(), scaled(4), scaled(1)), look);
        const int margin = scaled(2);
        paintFocus(canvas, inset(canvas.area(), margin, margin), ground);
    }

    void paintLink(Canvas& canvas) const {
        TextLook look{.color = seenOn(surface().ground, theme().link), .underlined = true};
        if (!control().isUsable()) {
            look.color = surface().disabledText;
        } else if (control().ForeColor() != colors::black && !theme().highContrast) {
            look.color = control().ForeColor();
        }
        RECT text = canvas.area();
        text.left = canvas.scale()(2);
        canvas.text(control().Caption(), text, look);
        text.left = 0;
        text.right =
            std::min<LONG>(canvas.textWidth(control().Caption(), look) + canvas.scale()(5), text.right);
        paintFocus(canvas, text, surface().ground);
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
