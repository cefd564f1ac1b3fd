#pragma once

#include "avshell/scanner_command.h"
#include "ui/controls/controls.h"

#include <array>

namespace tarvelon {

/// The three labels of one pass on the progress view: its title, the file in hand, and how far it is.
struct PassLabels {
    Label& title;
    Label& file;
    Label& percent;
};

/// The scan window: progress, results and failed files, three views laid over each other.
struct IntCheckScreen : Screen {
    IntCheckScreen()
        : Screen("AutoCheck", 600, 452) {
        for (Label* hidden : {&pb1max, &pb2max, &pbm}) {
            hidden->Visible = false;
        }
        Command1.Visible = false;
        List1.name = "New and failed files";
    }

    Label Label13{*this, "Scanning...Please Wait", at(16, 14, 568, 26), TextStyle::Heading};

    // Progress.
    Frame Frame1{*this, at(0, 48, 600, 352)};

    Label l_dll2{Frame1, "DLL Scan", at(16, 8, 340, 18)};
    Label l_dll{Frame1, "", at(32, 26, 552, 18), TextStyle::Hint};
    Label l_sdll{Frame1, "0%", at(384, 8, 200, 18), TextStyle::Gauge};

    Label l_drv2{Frame1, "Driver Scan", at(16, 52, 340, 18)};
    Label l_drv{Frame1, "", at(32, 70, 552, 18), TextStyle::Hint};
    Label l_sdrv{Frame1, "0%", at(384, 52, 200, 18), TextStyle::Gauge};

    Label l_sys2{Frame1, "System Files", at(16, 96, 340, 18)};
    Label l_sys{Frame1, "", at(32, 114, 552, 18), TextStyle::Hint};
    Label l_ssys{Frame1, "0%", at(384, 96, 200, 18), TextStyle::Gauge};

    Label l_ocx2{Frame1, "OCX Scan", at(16, 140, 340, 18)};
    Label l_ocx{Frame1, "", at(32, 158, 552, 18), TextStyle::Hint};
    Label l_socx{Frame1, "0%", at(384, 140, 200, 18), TextStyle::Gauge};

    Label l_exe2{Frame1, "Executable Scan", at(16, 184, 340, 18)};
    Label l_exe{Frame1, "", at(32, 202, 552, 18), TextStyle::Hint};
    Label l_sexe{Frame1, "0%", at(384, 184, 200, 18), TextStyle::Gauge};

    Label l_2exe2{Frame1, "Commonly Exploited Executable Scan", at(16, 228, 340, 18)};
    Label l_2exe{Frame1, "", at(32, 246, 552, 18), TextStyle::Hint};
    Label l_2sexe{Frame1, "0%", at(384, 228, 200, 18), TextStyle::Gauge};

    Label l_cust2{Frame1, "Custom Folder", at(16, 272, 340, 18)};
    Label l_cust{Frame1, "", at(32, 290, 552, 18), TextStyle::Hint};
    Label l_scust{Frame1, "0%", at(384, 272, 200, 18), TextStyle::Gauge};

    cButton Image9{Frame1, "Pause", at(464, 316, 120, 32)};
    Label Label11{Frame1, "Resume", at(336, 316, 120, 32), TextStyle::Action, false};

    // Results.
    Frame Frame2{*this, at(0, 48, 600, 352), false};
    Label Label1{Frame2, "Total Files Scanned:", at(32, 24, 168, 32)};
    Label Label6{Frame2, "1000", at(208, 24, 104, 32), TextStyle::Value}; ///< files done
    Label Label3{Frame2, "New Files:", at(32, 72, 168, 32)};
    Label Label8{Frame2, "1000", at(208, 72, 104, 32), TextStyle::Value}; ///< new
    Label Label4{Frame2, "Failed Files:", at(32, 120, 168, 32)};
    Label Label9{Frame2, "1000", at(208, 120, 104, 32), TextStyle::Value}; ///< failed
    Label Label5{Frame2, "Passing Files:", at(32, 168, 168, 32)};
    Label Label7{Frame2, "1000", at(208, 168, 104, 32), TextStyle::Value}; ///< passing
    Label Label14{Frame2, "Scan Complete. No new or modified files were found.", at(32, 232, 536, 24),
                  TextStyle::Heading, false}; ///< shown for a clean result
    Label Label2{Frame2, "Repair and Update Failed Files...", at(32, 280, 280, 36), TextStyle::Action};

    // Failed files.
    Frame Frame3{*this, at(0, 48, 600, 352), false};
    Label Label10{Frame3, "New and Failed Files:", at(16, 8, 568, 20)};
    ListBox List1{Frame3, at(16, 32, 568, 262)}; ///< rows: path, and " *NEW*" behind a new one
    Label Label12{Frame3, "Scan Failing Files...", at(16, 312, 280, 36), TextStyle::Action};

    // Under every view, so that the results can be left as well.
    cButton Image11{*this, "Cancel", at(464, 404, 120, 32)};

    // The scanners' programs and arguments; never shown.
    TextBox Text1{*this, at(0, 0, 8, 8), false};
    TextBox Text2{*this, at(0, 0, 8, 8), false};
    TextBox textav1{*this, at(0, 0, 8, 8), false};
    TextBox textav2{*this, at(0, 0, 8, 8), false};
    const ScannerFields first{Text1, Text2};
    const ScannerFields second{textav1, textav2};
    cButton Command1{*this, "", at(0, 0, 8, 8)};

    // Progress figures, read back as texts.
    Label pb1max{*this, "0", at(0, 0, 8, 8)}; ///< Files planned for the pass about to run.
    Label pb2max{*this, "1", at(0, 0, 8, 8)}; ///< Files planned for the scan.
    Label pbm{*this, "0", at(0, 0, 8, 8)};    ///< Files done in the passes before.

    Timer Timer1{*this, 1};

    /// By the number of the pass from 1 to 6, and 7 for the custom folder's turn.
    std::array<PassLabels, 7> passes{{{l_dll2, l_dll, l_sdll},
                                      {l_drv2, l_drv, l_sdrv},
                                      {l_sys2, l_sys, l_ssys},
                                      {l_ocx2, l_ocx, l_socx},
                                      {l_exe2, l_exe, l_sexe},
                                      {l_2exe2, l_2exe, l_2sexe},
                                      {l_cust2, l_cust, l_scust}}};
};

} // namespace tarvelon
