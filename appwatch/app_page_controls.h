#pragma once

#include "ui/controls/lists.h"

namespace tarvelon {

/// The controls of the page of open windows.
struct AppPageControls {
    explicit AppPageControls(Screen& screen)
        : appF(screen, at(160, 0, 600, 488), false) {
        txtTitle.Caption = "No Window Selected";
        txtTitle.name = "Title of the window";
        lstOpenWindows.name = "Open windows";
        act.ToolTip = "Brings the selected window to the front";
        cl.ToolTip = "Asks the selected window to close";
        ref.ToolTip = "Lists the windows that are open now, hidden ones too";
    }

    Frame appF;
    Icon appIcon{appF, at(24, 20, 24, 24), "appwatch"};
    Label appTitle{appF, "AppWatch", at(56, 16, 520, 32), TextStyle::Title};
    ListBox lstOpenWindows{appF, at(24, 56, 552, 222), true, "Press Refresh to list the open windows"};
    Label lblCount{appF, "Please Click On Refresh", at(24, 284, 552, 20), TextStyle::Hint};
    Label titleLabel{appF, "Window:", at(24, 316, 72, 24)};
    TextBox txtTitle{appF, at(96, 316, 480, 24)};
    Label lblProcessID{appF, "Process ID: Please select an Entry first", at(24, 350, 552, 20)};
    Label lblClassName{appF, "Click on an Entry in the list to retrieve additional Information",
                       at(24, 374, 552, 56)};
    cButton act{appF, "Activate Window", at(24, 440, 152, 32)};
    cButton cl{appF, "Close Window", at(184, 440, 152, 32)};
    cButton ref{appF, "Refresh", at(464, 440, 112, 32), Rank::Primary};
};

} // namespace tarvelon
