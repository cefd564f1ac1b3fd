#pragma once

#include "ui/controls/lists.h"
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
        cX.isCancel = true;
        cReports.ToolTip = "Lists the reports by date and time";
        cViewReport.ToolTip = "Opens the report whose time is selected";
        cScnLog.ToolTip = "Has the scanner look at these files once more";
    }

    Frame& optionsPage;
    Label reportsHeading{optionsPage, "Reports", at(24, 220, 552, 20), TextStyle::Heading};
    cButton cReports{optionsPage, "Load Logs", at(24, 248, 184, 32)};
    cButton cViewReport{optionsPage, "View Log", at(24, 288, 184, 32)};
    cButton cButton3{optionsPage, "Delete All Logs", at(24, 328, 184, 32), Rank::Destructive};
    Tree TreeView2{optionsPage, at(224, 248, 352, 122), true,
                   "Press Load Logs"}; ///< dates, and times of reports below them
    Label Label27{optionsPage,
                  "Tip: Use the Delete key to delete log entries, or log groupings directly from the list",
                  at(224, 374, 352, 32), TextStyle::Hint};
    Label Label26{optionsPage, "L o a d i n g  R e p o r t  . . .  P l e a s e  W a i t",
                  at(224, 410, 352, 20)};

    Frame repF;
    Icon reportIcon{repF, at(24, 20, 24, 24), "logging"};
    Label reportTitle{repF, "Report", at(56, 16, 520, 32), TextStyle::Title};
    Label Label25{
        repF, "The following files either failed an Integrity Check, or were New/Modified Registry Entries:",
        at(24, 52, 552, 20)};
    ListBox List4{repF, at(24, 80, 552, 344)}; ///< the names in one report
    cButton cDelLog{repF, "Delete this Report", at(24, 440, 152, 32), Rank::Destructive};
    cButton cX{repF, "Close", at(272, 440, 112, 32)};
    cButton cScnLog{repF, "Scan Files For Viruses", at(392, 440, 184, 32), Rank::Primary};
};

} // namespace tarvelon
