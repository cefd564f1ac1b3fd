#pragma once

#include "view/canvas.h"

namespace tarvelon {

/// The square of a check box or the circle of an option button.
struct Mark {
    bool round = false;
    bool ticked = false;
    bool usable = true;
    bool hovered = false;

    /// Width and height at 96 dots an inch.
    static constexpr int size = 16;
};

/// Draws the mark with its left edge at `left` pixels, in the middle of the canvas's height.
void paintMark(Canvas& canvas, const Theme& theme, int left, const Mark& mark);

} // namespace tarvelon
