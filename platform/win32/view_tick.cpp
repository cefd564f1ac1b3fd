#include "platform/win32/view_tick.h"

#include "platform/win32/view_form.h"

#include <algorithm>

namespace tarvelon {

void TickWindow::paintMark(Canvas& canvas) {
    const Scale& scaled = canvas.scale();
    const int size = scaled(16);
    const int top = (heightOf(canvas.area()) - size) / 2;
    const RECT mark{scaled(1), top, scaled(1) + size, top + size};
    const int radius = isRound() ? size / 2 : scaled(3);
    const bool usable = control().isUsable();
    const Color strong = usable ? theme().selected : theme().disabledText;
    const Color edge = isHovered() || isTicked() ? strong : theme().disabledText;
    const Color inside = isTicked() ? strong : theme().field;
    canvas.roundedBox(mark, radius, inside, edge, scaled(1));
    if (!isTicked()) {
        return;
    }
    if (isRound()) {
        const int dot = scaled(5);
        canvas.roundedBox(inset(mark, dot, dot), (size - 2 * dot) / 2, theme().selectedText);
        return;
    }
    const auto unit = static_cast<float>(size) / 16;
    const auto at = [&](float x, float y) {
        return Spot{static_cast<float>(mark.left) + x * unit, static_cast<float>(mark.top) + y * unit};
    };
    canvas.stroke({at(3.8F, 8.3F), at(6.8F, 11.2F), at(12.2F, 5.0F)}, 1.9F * unit, theme().selectedText);
}

void TickWindow::paint(Canvas& canvas) {
    paintMark(canvas);
    const Scale& scaled = canvas.scale();
    TextLook look{.color = surface().text, .underlined = isLink(), .mnemonics = true};
    if (!control().isUsable()) {
        look.color = theme().disabledText;
    } else if (isLink()) {
        look.color = theme().link;
    }
    RECT text = canvas.area();
    text.left = textLeft();
    text.right -= scaled(2);
    canvas.text(control().Caption(), text, look);
    if (isFocused()) {
        const int width = canvas.textWidth(control().Caption(), look) + scaled(6);
        const int middle = heightOf(text) / 2;
        const int half = std::min(scaled(11), middle);
        const RECT around{text.left - scaled(4), middle - half,
                          std::min<LONG>(text.left + width - scaled(2), canvas.area().right), middle + half};
        paintFocus(canvas, around, theme().focus);
    }
}

void FlatCheckWindow::hover(POINT where) {
    if (isHovered() && where.x >= textLeft()) {
        check_.mouseMoveLabel();
    } else {
        check_.mouseMoveBox();
    }
}

void OptionButtonWindow::applyValue() {
    if (!option_.value()) {
        return;
    }
    // Tab goes to the choice that is made, the arrow keys go to the others.
    for (const Control* other : option_.screen().controls()) {
        const ControlWindow* window = form().windowOf(*other);
        if (window && other->kind() == ControlKind::OptionButton && other->frame() == option_.frame()) {
            const LONG style = GetWindowLongA(window->window(), GWL_STYLE);
            SetWindowLongA(window->window(), GWL_STYLE,
                           other == &option_ ? style | WS_TABSTOP : style & ~WS_TABSTOP);
        }
    }
}

} // namespace tarvelon
