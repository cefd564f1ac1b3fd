#include "view/tick.h"

#include "view/form.h"
#include "view/mark.h"

#include <algorithm>
#include <vector>

namespace tarvelon {

void TickWindow::paint(Canvas& canvas) {
    const Scale& scaled = canvas.scale();
    paintMark(
        canvas, theme(), scaled(1),
        {.round = isRound(), .ticked = isTicked(), .usable = control().isUsable(), .hovered = isHovered()});
    TextLook look{.color = textColor(), .underlined = isLink(), .mnemonics = true};
    if (!control().isUsable()) {
        look.color = theme().disabledText;
    } else if (isLink()) {
        look.color = theme().link;
    }
    RECT text = canvas.area();
    text.left = textLeft();
    text.right -= scaled(2);
    canvas.text(control().Caption(), text, look);
    if (isFocused() && control().Caption().empty()) {
        paintFocus(canvas, canvas.area(), theme().focus);
    } else if (isFocused()) {
        const int width = canvas.textWidth(control().Caption(), look) + scaled(6);
        const int middle = heightOf(text) / 2;
        const int half = std::min(scaled(11), middle);
        const RECT around{text.left - scaled(4), middle - half,
                          std::min<LONG>(text.left + width - scaled(2), canvas.area().right), middle + half};
        paintFocus(canvas, around, theme().focus);
    }
}

Color CheckBoxWindow::textColor() const {
    const bool plain = box_.ForeColor() == colors::black && !box_.BackColor();
    return plain || theme().highContrast ? surface().text : box_.ForeColor();
}

void CheckBoxWindow::paint(Canvas& canvas) {
    if (box_.BackColor() && !theme().highContrast) {
        canvas.roundedBox(canvas.area(), canvas.scale()(4), *box_.BackColor());
    }
    TickWindow::paint(canvas);
}

void FlatCheckWindow::hover(POINT where) {
    if (isHovered() && where.x >= textLeft()) {
        check_.mouseMoveLabel();
    } else {
        check_.mouseMoveBox();
    }
}

void OptionButtonWindow::applyValue() {
    std::vector<const OptionButton*> neighbours;
    for (const Control* control : option_.screen().controls()) {
        if (control->kind() == ControlKind::OptionButton && control->frame() == option_.frame()) {
            neighbours.push_back(static_cast<const OptionButton*>(control));
        }
    }
    const bool someChosen = std::any_of(neighbours.begin(), neighbours.end(),
                                        [](const OptionButton* option) { return option->value(); });
    // Tab goes to the choice that is made, the arrow keys go to the others.
    for (const OptionButton* option : neighbours) {
        if (const ControlWindow* made = form().windowOf(*option)) {
            const LONG style = GetWindowLongA(made->window(), GWL_STYLE);
            const bool stop = option->value() || !someChosen;
            SetWindowLongA(made->window(), GWL_STYLE, stop ? style | WS_TABSTOP : style & ~WS_TABSTOP);
        }
    }
}

} // namespace tarvelon
