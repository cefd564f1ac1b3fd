#pragma once

#include "platform/win32/owned.h"
#include "ui/controls/geometry.h"

#include <map>

namespace tarvelon {

/// What stands under a control decides its background and its quiet colours.
struct Surface {
    Color ground;
    Color text;
    Color quietText;
};

/// A face that is pressed: its colour as it lies, under the mouse, pressed, and when it cannot be used.
struct Face {
    Color normal;
    Color hovered;
    Color pressed;
    Color disabled;
    Color border;
};

/// All colours of the view. The user's own when the system is set to high contrast.
struct Theme {
    bool highContrast;
    Surface page;
    Surface card; ///< Inside a box with a title.
    Surface navigation;
    Color border;
    Color focus;
    Color field; ///< Behind typed text and rows.
    Color fieldText;
    Color selected;
    Color selectedText;
    Color disabledText;
    Color link; ///< A check's label under the mouse.
    Face button;
    Face action; ///< Labels that are clicked.
    Face standby;
    Face turnOff;
    Face restart;
    Color good; ///< Drawn signs and figures that say so.
    Color attention;
    Color bad;
    Color track; ///< The part of a bar that is still to come.
    Color bar;
    Color navigationHover;
    Color navigationCurrent;
    Color navigationCurrentText;
};

Theme currentTheme();

/// The brushes of the colours that were asked for so far.
class Brushes {
public:
    HBRUSH get(Color color) {
        OwnedBrush& brush = made_[color];
        if (!brush) {
            brush.reset(CreateSolidBrush(color));
        }
        return brush.get();
    }

private:
    std::map<Color, OwnedBrush> made_;
};

} // namespace tarvelon
