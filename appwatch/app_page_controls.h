#pragma once

#include "ui/controls/controls.h"

namespace tarvelon {

/// The controls of the page of open windows.
struct AppPageControls {
    explicit AppPageControls(Screen& screen)
        : appF(screen, at(160, 0, 600, 488), false) {
        txtTitle.Caption = "No Window Selected";
        lstOpenWindows.name = "Open windows";
    }

    Frame appF;
    ListBox lstOpenWindows{appF, at(32, 24, 536, 256)};
    Label lblCount{appF, "Please Click On Refresh", at(32, 288, 536, 20), TextStyle::Hint};
    TextBox txtTitle{appF, at(32, 320, 536, 24)};
    Label lblProcessID{appF, "Process ID: Please select an Entry first", at(32, 352, 536, 20)};
    Label lblClassName{appF, "Click on an Entry in the list to retrieve additional Information",
                       at(32, 376, 536, 56)};
    cButton act{appF, "Activate Window", at(32, 440, 168, 32)};
    cButton cl{appF, "Close Window", at(208, 440, 168, 32)};
    cButton ref{appF, "Refresh", at(400, 440, 168, 32)};
};

} // namespace tarvelon
