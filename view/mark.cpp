#include "view/mark.h"

namespace tarvelon {

void paintMark(Canvas& canvas, const Theme& theme, int left, const Mark& mark) {
    const Scale& scaled = canvas.scale();
    const int size = scaled(Mark::size);
    const int top = (heightOf(canvas.area()) - size) / 2;
    const RECT place{left, top, left + size, top + size};
    const int radius = mark.round ? size / 2 : scaled(3);
    const Color strong = mark.usable ? theme.selected : theme.disabledText;
    const Color edge = mark.hovered || mark.ticked ? strong : theme.disabledText;
    canvas.roundedBox(place, radius, mark.ticked ? strong : theme.field, edge, scaled(1));
    if (!mark.ticked) {
        return;
    }
    if (mark.round) {
        const int dot = scaled(5);
        canvas.roundedBox(inset(place, dot, dot), (size - 2 * dot) / 2, theme.selectedText);
        return;
    }
    const float unit = static_cast<float>(size) / Mark::size;
    const auto at = [&](float x, float y) {
        return Spot{static_cast<float>(place.left) + x * unit, static_cast<float>(place.top) + y * unit};
    };
    canvas.stroke({at(3.8F, 8.3F), at(6.8F, 11.2F), at(12.2F, 5.0F)}, 1.9F * unit, theme.selectedText);
}

} // namespace tarvelon
