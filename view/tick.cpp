#include "view/form.h"
#include "view/press.h"

#include <algorithm>
#include <vector>

namespace tarvelon {

namespace {

/// A square or round mark with its text behind it: check boxes and option buttons.
class TickWindow : public PressWindow {
public:
    TickWindow(FormWindow& form, Control& control, DWORD style)
        : PressWindow(form, control, style | WS_TABSTOP)
        , isRound_(style == BS_AUTORADIOBUTTON) {}

protected:
    bool takesEnter() const override { return false; }

    void paint(Canvas& canvas) override { paintOn(canvas, surface(), surface().ground); }

    void paintOn(Canvas& canvas, const Surface& under, Color ground) {
        const Scale& scaled = canvas.scale();
        const std::string& caption = control().Caption();
        paintMark(
            canvas, scaled(1),
            {.round = isRound_, .ticked = isTicked(), .usable = control().isUsable(), .hovered = isHovered()},
            under.mark);
        TextLook look{
            .color = textColor(under), .underlined = isLink(), .mnemonics = true, .accessKey = shownKey()};
        if (!control().isUsable()) {
            look.color = under.disabledText;
        } else if (isLink()) {
            look.color = theme().highContrast ? theme().link : colors::hoverBlue;
        }
        RECT text = canvas.area();
        text.left = textLeft();
        text.right -= scaled(2);
        canvas.text(caption, text, look);
        if (caption.empty()) {
            paintFocus(canvas, canvas.area(), ground);
            return;
        }
        const LONG textEnd = text.left + canvas.textWidth(caption, look) + scaled(6) - scaled(2);
        const int middle = heightOf(text) / 2;
        const int half = std::min(scaled(11), middle);
        paintFocus(
            canvas,
            {text.left - scaled(4), middle - half, std::min(textEnd, canvas.area().right), middle + half},
            ground);
    }

    virtual bool isLink() const { return false; }
    virtual Color textColor(const Surface& under) const { return under.text; }
    /// Where the text begins, in pixels.
    int textLeft() const { return scale()(24); }

private:
    bool isRound_;
};

class FlatCheckWindow : public WindowOf<check, TickWindow> {
public:
    using WindowOf::WindowOf;

    void leave() override { control().mouseMoveBox(); }
    bool isTicked() const override { return control().value() != 0; }
    bool isLink() const override { return control().hovered(); }

    void paint(Canvas& canvas) override {
        if (!theme().captions || control().Caption().empty()) {
            TickWindow::paint(canvas);
            return;
        }
        const Surface& under = *theme().captions;
        canvas.roundedBox(canvas.area(), canvas.scale()(4), under.ground);
        paintOn(canvas, under, under.ground);
    }

    void hover(POINT where) override {
        if (isHovered() && where.x >= textLeft()) {
            control().mouseMoveLabel();
        } else {
            control().mouseMoveBox();
        }
    }
};

class CheckBoxWindow : public WindowOf<CheckBox, TickWindow> {
public:
    using WindowOf::WindowOf;

    bool isTicked() const override { return control().value() != 0; }

    Color textColor(const Surface& under) const override {
        const bool plain = control().ForeColor() == colors::black && !control().BackColor();
        return plain || theme().highContrast ? under.text : control().ForeColor();
    }

    void paint(Canvas& canvas) override {
        const auto& own = control().BackColor();
        if (!own || theme().highContrast) {
            TickWindow::paint(canvas);
            return;
        }
        canvas.roundedBox(canvas.area(), canvas.scale()(4), *own);
        paintOn(canvas, surface(), *own);
    }
};

class OptionButtonWindow : public WindowOf<OptionButton, TickWindow> {
public:
    using WindowOf::WindowOf;

    UINT dialogCode() const override { return DLGC_BUTTON | DLGC_RADIOBUTTON; }
    bool isTicked() const override { return control().value(); }

    void applyValue() override {
        // Tab goes to the choice that is made, the arrow keys go to the others.
        std::vector<const OptionButton*> neighbours;
        for (const Control* other : control().screen().controls()) {
            if (other->kind() == ControlKind::OptionButton && other->frame() == control().frame()) {
                neighbours.push_back(static_cast<const OptionButton*>(other));
            }
        }
        const bool someChosen = std::ranges::any_of(neighbours, &OptionButton::value);
        for (const OptionButton* option : neighbours) {
            if (const ControlWindow* made = form().windowOf(*option)) {
                made->setStyle(WS_TABSTOP, option->value() || !someChosen);
            }
        }
    }
};

} // namespace

MadeWindow makeFlatCheck(FormWindow& form, Control& control) {
    return std::make_unique<FlatCheckWindow>(form, control, BS_AUTOCHECKBOX);
}

MadeWindow makeCheckBox(FormWindow& form, Control& control) {
    return std::make_unique<CheckBoxWindow>(form, control, BS_AUTOCHECKBOX);
}

MadeWindow makeOptionButton(FormWindow& form, Control& control) {
    return std::make_unique<OptionButtonWindow>(form, control, BS_AUTORADIOBUTTON);
}

} // namespace tarvelon
