#include "view/form.h"
#include "view/mark.h"
#include "view/press.h"

#include <algorithm>
#include <vector>

namespace tarvelon {

namespace {

/// A square or round mark with its text behind it: check boxes and option buttons.
class TickWindow : public PressWindow {
public:
    TickWindow(FormWindow& form, Control& control, DWORD style = BS_AUTOCHECKBOX)
        : PressWindow(form, control, style | WS_TABSTOP)
        , isRound_(style == BS_AUTORADIOBUTTON) {}

protected:
    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const std::string& caption = control().Caption();
        paintMark(canvas, theme(), scaled(1),
                  {.round = isRound_,
                   .ticked = isTicked(),
                   .usable = control().isUsable(),
                   .hovered = isHovered()});
        TextLook look{.color = textColor(), .underlined = isLink(), .mnemonics = true};
        if (!control().isUsable()) {
            look.color = theme().disabledText;
        } else if (isLink()) {
            look.color = theme().link;
        }
        RECT text = canvas.area();
        text.left = textLeft();
        text.right -= scaled(2);
        canvas.text(caption, text, look);
        if (caption.empty()) {
            paintFocus(canvas, canvas.area(), theme().focus);
            return;
        }
        const LONG textEnd = text.left + canvas.textWidth(caption, look) + scaled(6) - scaled(2);
        const int middle = heightOf(text) / 2;
        const int half = std::min(scaled(11), middle);
        paintFocus(
            canvas,
            {text.left - scaled(4), middle - half, std::min(textEnd, canvas.area().right), middle + half},
            theme().focus);
    }

    virtual bool isLink() const { return false; }
    virtual Color textColor() const { return surface().text; }
    /// Where the text begins, in pixels.
    int textLeft() const { return scale()(24); }

private:
    bool isRound_;
};

class FlatCheckWindow : public TickWindow {
public:
    FlatCheckWindow(FormWindow& form, FlatCheck& check)
        : TickWindow(form, check)
        , check_(check) {}

protected:
    void click() override { check_.click(); }
    void leave() override { check_.mouseMoveBox(); }
    bool isTicked() const override { return check_.value() != 0; }
    bool isLink() const override { return check_.hovered(); }

    void hover(POINT where) override {
        if (isHovered() && where.x >= textLeft()) {
            check_.mouseMoveLabel();
        } else {
            check_.mouseMoveBox();
        }
    }

private:
    FlatCheck& check_;
};

class CheckBoxWindow : public TickWindow {
public:
    CheckBoxWindow(FormWindow& form, CheckBox& box)
        : TickWindow(form, box)
        , box_(box) {}

protected:
    void click() override { box_.click(); }
    bool isTicked() const override { return box_.value() != 0; }

    Color textColor() const override {
        const bool plain = box_.ForeColor() == colors::black && !box_.BackColor();
        return plain || theme().highContrast ? surface().text : box_.ForeColor();
    }

    void paint(Canvas& canvas) override {
        if (box_.BackColor() && !theme().highContrast) {
            canvas.roundedBox(canvas.area(), canvas.scale()(4), *box_.BackColor());
        }
        TickWindow::paint(canvas);
    }

private:
    CheckBox& box_;
};

class OptionButtonWindow : public TickWindow {
public:
    OptionButtonWindow(FormWindow& form, OptionButton& option)
        : TickWindow(form, option, BS_AUTORADIOBUTTON)
        , option_(option) {}

protected:
    void click() override { option_.click(); }
    UINT dialogCode() const override { return DLGC_BUTTON | DLGC_RADIOBUTTON; }
    bool isTicked() const override { return option_.value(); }

    void applyValue() override {
        // Tab goes to the choice that is made, the arrow keys go to the others.
        std::vector<const OptionButton*> neighbours;
        for (const Control* control : option_.screen().controls()) {
            if (control->kind() == ControlKind::OptionButton && control->frame() == option_.frame()) {
                neighbours.push_back(static_cast<const OptionButton*>(control));
            }
        }
        const bool someChosen = std::ranges::any_of(neighbours, &OptionButton::value);
        for (const OptionButton* option : neighbours) {
            if (const ControlWindow* made = form().windowOf(*option)) {
                made->setStyle(WS_TABSTOP, option->value() || !someChosen);
            }
        }
    }

private:
    OptionButton& option_;
};

} // namespace

MadeWindow makeWindow(FormWindow& form, FlatCheck& check) {
    return std::make_unique<FlatCheckWindow>(form, check);
}

MadeWindow makeWindow(FormWindow& form, CheckBox& box) {
    return std::make_unique<CheckBoxWindow>(form, box);
}

MadeWindow makeWindow(FormWindow& form, OptionButton& option) {
    return std::make_unique<OptionButtonWindow>(form, option);
}

} // namespace tarvelon
