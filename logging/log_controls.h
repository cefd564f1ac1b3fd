#pragma once

#include "ui/controls/controls.h"
#include "ui/controls/tree.h"

namespace tarvelon {

/// The tree of reports on the page of options, and the page of one report.
struct LogControls {
    LogControls(Screen& screen, Frame& aroundTree)
        : optionsPage(aroundTree)
        , repF(screen, at(160, 0, 600, 488), false) {
        Label26.Visible = false;
        TreeView2.name = "Logs";
        List4.name = "Report";
    }

    Frame& optionsPage;
    cButton cReports{optionsPage, "Load Logs", at(32, 200, 200, 32)};
    cButton cViewReport{optionsPage, "View Log", at(32, 240, 200, 32)};
    cButton cButton3{optionsPage, "Delete All Logs", at(32, 280, 200, 32)};
    Tree TreeView2{optionsPage, at(248, 200, 336, 200)}; ///< dates, and times of reports below them
    Label Label27{optionsPage,
                  "Tip: Use the Delete key to delete log entries, or log groupings directly from the list",
                  at(248, 404, 336, 36), TextStyle::Hint};
    Label Label26{optionsPage, "L o a d i n g  R e p o r t  . . .  P l e a s e  W a i t",
                  at(248, 444, 336, 24)};

    Frame repF;
    Label Label25{
        repF, "The following files either failed an Integrity Check, or were New/Modified Registry Entries:",
        at(16, 16, 568, 36)};
    ListBox List4{repF, at(16, 56, 568, 368)}; ///< the names in one report
    cButton cScnLog{repF, "Scan Files For Viruses", at(16, 440, 176, 32)};
    cButton cDelLog{repF, "Delete this Report", at(200, 440, 160, 32)};
    cButton cX{repF, "Close", at(464, 440, 120, 32)};
};

} // namespace tarvelon
