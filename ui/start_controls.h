#pragma once

#include "ui/controls/controls.h"

#include <array>

namespace tarvelon {

/// The controls of the page that shows when the window opens: what the program is, and how its parts stand.
struct StartControls {
    explicit StartControls(Screen& screen)
        : Frame2(screen, at(160, 0, 600, 488))
        , readTimer(screen, 50) {
        for (Line& line : lines) {
            line.go.ToolTip = "Opens the place where this is set";
        }
    }

    /// How one part stands, and the way to where it is set.
    struct Line {
        Line(Frame& page, int y, const char* name, const char* way)
            : status(page, name, at(32, y, 376, 48))
            , go(page, way, at(424, y + 6, 152, 32)) {}

        StatusLine status;
        cButton go;
    };

    Frame Frame2;
    Icon shield{Frame2, at(24, 16, 56, 56), "shield-good", Tone::Good};
    Label Label32{Frame2, "Tarvelon", at(96, 16, 336, 32), TextStyle::Title};
    Label Label33{Frame2, "Version: 2.0", at(96, 52, 112, 20), TextStyle::Hint};
    Label Label36{Frame2, "Programmer:", at(216, 52, 88, 20), TextStyle::Hint};
    Label Label37{Frame2, "Quillfen Support", at(304, 52, 200, 20), TextStyle::Link};
    Verdict standing{Frame2, "Looking at what is set up...", at(24, 88, 552, 48)};
    std::array<Line, 5> lines{{{Frame2, 152, "System files", "Check Files"},
                               {Frame2, 208, "Folders", "Manage Folders"},
                               {Frame2, 264, "Scanner", "Choose Scanner"},
                               {Frame2, 320, "Auto-Load", "Set Auto-Load"},
                               {Frame2, 376, "Reports", "Read Reports"}}};
    cButton cButton4{Frame2, "View Help Files", at(24, 440, 152, 32)};
    cButton cButton5{Frame2, "Visit Quillfen Online", at(424, 440, 152, 32)};

    Timer readTimer; ///< The lines are read once the page has been drawn.
};

} // namespace tarvelon
