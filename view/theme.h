#pragma once

#include "platform/win32/owned.h"
#include "view/palette.h"

#include <map>

namespace tarvelon {

enum class ThemeKind { Light, Dark, HighContrast };

/// What the user has chosen for programs.
ThemeKind wantedTheme();
/// That of high contrast is made of the system's colours.
Theme themeFor(ThemeKind kind);

/// Has the window's title bar, or the scroll bars of a list, follow a dark theme where the system can.
void darkenTitleBar(HWND window, const Theme& theme);
void darkenScrollBars(HWND window, const Theme& theme);

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
