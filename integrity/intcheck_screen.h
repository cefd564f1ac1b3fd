#pragma once

#include "avshell/scanner_command.h"
#include "ui/controls/lists.h"

#include <array>
#include <initializer_list>

namespace tarvelon {

/// One pass on the progress view: its title, the file in hand, and how far it is.
struct PassLabels {
    Frame& row; ///< Around all three.
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
        List1.rowMark = [](const std::string& row) {
            return row.ends_with(newMark) ? RowMark::New : RowMark::Changed;
        };
        allPasses.name = "Files done";
        Image11.isCancel = true;
        grow();
        Image9.ToolTip = "Holds the scan until you press Resume";
    }

    /// Stands behind the path of a new file.
    static constexpr const char* newMark = " *NEW*";

    Icon Image1{*this, at(16, 16, 24, 24), "integrity"};
    Label Label13{*this, "Scanning...Please Wait", at(48, 12, 536, 32), TextStyle::Title};

    // Progress.
    Frame Frame1{*this, at(0, 48, 600, 348), false};
    Label filesDone{Frame1, "", at(16, 2, 568, 20)};
    ProgressBar allPasses{Frame1, at(16, 24, 568, 12)};

    Frame dllRow{Frame1, at(8, 48, 584, 40)};
    Label l_dll2{dllRow, "DLL Scan", at(8, 2, 344, 18)};
    Label l_dll{dllRow, "", at(24, 20, 552, 18), TextStyle::Hint};
    Label l_sdll{dllRow, "0%", at(376, 2, 200, 18), TextStyle::Gauge};

    Frame drvRow{Frame1, at(8, 90, 584, 40)};
    Label l_drv2{drvRow, "Driver Scan", at(8, 2, 344, 18)};
    Label l_drv{drvRow, "", at(24, 20, 552, 18), TextStyle::Hint};
    Label l_sdrv{drvRow, "0%", at(376, 2, 200, 18), TextStyle::Gauge};

    Frame sysRow{Frame1, at(8, 132, 584, 40)};
    Label l_sys2{sysRow, "System Files", at(8, 2, 344, 18)};
    Label l_sys{sysRow, "", at(24, 20, 552, 18), TextStyle::Hint};
    Label l_ssys{sysRow, "0%", at(376, 2, 200, 18), TextStyle::Gauge};

    Frame ocxRow{Frame1, at(8, 174, 584, 40)};
    Label l_ocx2{ocxRow, "OCX Scan", at(8, 2, 344, 18)};
    Label l_ocx{ocxRow, "", at(24, 20, 552, 18), TextStyle::Hint};
    Label l_socx{ocxRow, "0%", at(376, 2, 200, 18), TextStyle::Gauge};

    Frame exeRow{Frame1, at(8, 216, 584, 40)};
    Label l_exe2{exeRow, "Executable Scan", at(8, 2, 344, 18)};
    Label l_exe{exeRow, "", at(24, 20, 552, 18), TextStyle::Hint};
    Label l_sexe{exeRow, "0%", at(376, 2, 200, 18), TextStyle::Gauge};

    Frame exe2Row{Frame1, at(8, 258, 584, 40)};
    Label l_2exe2{exe2Row, "Commonly Exploited Executable Scan", at(8, 2, 344, 18)};
    Label l_2exe{exe2Row, "", at(24, 20, 552, 18), TextStyle::Hint};
    Label l_2sexe{exe2Row, "0%", at(376, 2, 200, 18), TextStyle::Gauge};

    Frame custRow{Frame1, at(8, 300, 584, 40)};
    Label l_cust2{custRow, "Custom Folder", at(8, 2, 344, 18)};
    Label l_cust{custRow, "", at(24, 20, 552, 18), TextStyle::Hint};
    Label l_scust{custRow, "0%", at(376, 2, 200, 18), TextStyle::Gauge};

    // Results.
    Frame Frame2{*this, at(0, 48, 600, 348), false};
    Verdict Label14{Frame2, "Scan Complete. No new or modified files were found.", at(16, 8, 568, 48),
                    false};                               ///< shown for a clean result
    Verdict found{Frame2, "", at(16, 8, 568, 48), false}; ///< shown for any other
    Frame figures{Frame2, "Figures", at(16, 72, 568, 224)};
    Label Label1{figures, "Total Files Scanned:", at(24, 36, 160, 32)};
    Label Label6{figures, "1000", at(184, 32, 120, 40), TextStyle::Value}; ///< files done
    Label totalHint{figures, "looked at in this scan", at(328, 36, 224, 32), TextStyle::Hint};
    Label Label3{figures, "New Files:", at(24, 84, 160, 32)};
    Label Label8{figures, "1000", at(184, 80, 120, 40), TextStyle::Value}; ///< new
    Label newHint{figures, "not in the baseline yet", at(328, 84, 224, 32), TextStyle::Hint};
    Label Label4{figures, "Failed Files:", at(24, 132, 160, 32)};
    Label Label9{figures, "1000", at(184, 128, 120, 40), TextStyle::Value}; ///< failed
    Label failedHint{figures, "not as the baseline has them", at(328, 132, 224, 32), TextStyle::Hint};
    Label Label5{figures, "Passing Files:", at(24, 180, 160, 32)};
    Label Label7{figures, "1000", at(184, 176, 120, 40), TextStyle::Value}; ///< passing
    Label passingHint{figures, "as the baseline has them", at(328, 180, 224, 32), TextStyle::Hint};

    // Failed files.
    Frame Frame3{*this, at(0, 48, 600, 348), false};
    Label Label10{Frame3, "New and Failed Files:", at(16, 4, 568, 20)};
    ListBox List1{Frame3, at(16, 28, 568, 302), true,
                  "All files are as the baseline has them"}; ///< rows: path, and the mark behind a new one

    Frame progressFoot{*this, at(360, 404, 224, 32), false};
    cButton Image9{progressFoot, "Pause", at(0, 0, 224, 32)};
    Label Label11{progressFoot, "Resume", at(0, 0, 224, 32), Rank::Primary, false};
    Frame resultsFoot{*this, at(360, 404, 224, 32), false};
    Label Label2{resultsFoot, "Repair and Update Failed Files...", at(0, 0, 224, 32), Rank::Primary};
    Frame failedFoot{*this, at(360, 404, 224, 32), false};
    Label Label12{failedFoot, "Scan Failing Files...", at(0, 0, 224, 32), Rank::Primary};

    // Beside what each view goes on with; under every view, so that the results can be left as well. The
    // keyboard comes to it last: a key that is pressed too soon must not end a scan.
    cButton Image11{*this, "Cancel", at(240, 404, 112, 32)};

    struct View {
        Frame& page;
        Frame& foot;
    };
    const View progress{Frame1, progressFoot};
    const View results{Frame2, resultsFoot};
    const View failedFiles{Frame3, failedFoot};

    /// Shows one of the three, and what belongs to it at the foot.
    void showView(const View& shown) {
        for (const View* view : {&progress, &results, &failedFiles}) {
            if (view != &shown) {
                view->page.Visible = false;
                view->foot.Visible = false;
            }
        }
        shown.page.Visible = true;
        shown.foot.Visible = true;
    }

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
    std::array<PassLabels, 7> passes{{{dllRow, l_dll2, l_dll, l_sdll},
                                      {drvRow, l_drv2, l_drv, l_sdrv},
                                      {sysRow, l_sys2, l_sys, l_ssys},
                                      {ocxRow, l_ocx2, l_ocx, l_socx},
                                      {exeRow, l_exe2, l_exe, l_sexe},
                                      {exe2Row, l_2exe2, l_2exe, l_2sexe},
                                      {custRow, l_cust2, l_cust, l_scust}}};

private:
    /// Made larger, the window shows more of what is long; the foot stays at its corner.
    void grow() {
        canGrow = true;
        for (Control* filling : std::initializer_list<Control*>{&Frame1, &Frame2, &Frame3, &List1}) {
            filling->onGrowth = {.widens = true, .heightens = true};
        }
        for (Control* wide : std::initializer_list<Control*>{&Label13, &filesDone, &allPasses, &Label14,
                                                             &found, &figures, &Label10}) {
            wide->onGrowth = {.widens = true};
        }
        for (const PassLabels& pass : passes) {
            pass.row.onGrowth = {.widens = true};
            pass.file.onGrowth = {.widens = true};
            pass.percent.onGrowth = {.movesRight = true};
        }
        for (Control* cornered :
             std::initializer_list<Control*>{&Image11, &progressFoot, &resultsFoot, &failedFoot}) {
            cornered->onGrowth = {.movesRight = true, .movesDown = true};
        }
    }
};

} // namespace tarvelon
