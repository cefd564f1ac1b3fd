#pragma once

#include "ui/controls/bar_chart.h"
#include "ui/controls/controls.h"
#include "ui/controls/tree.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

namespace tarvelon {

/// The main window: a navigation column, and pages of which one is visible at a time. Its controls hold the
/// settings while the program runs, visible or not.
struct MForm1Screen : Screen {
    MForm1Screen()
        : Screen("Welcome to Tarvelon", 760, 488) {
        Label1.Visible = false;
        Label1.ForeColor = colors::warningRed;
        Label19.Visible = false;
        Label26.Visible = false;
        txtTitle.Caption = "No Window Selected";
        for (std::size_t i = 0; i < check.size(); ++i) {
            check[i].name =
                std::array{"Select DLL files", "Select DRV files",         "Select SYS and 386 files",
                           "Select OCX files", "Select EXE and COM files", "Select PIF and SCR files"}[i];
        }
        List5.name = "Registry warnings";
        TreeView1.name = "Watched registry entries";
        List6.name = "Files pending for the next restart";
        lstOpenWindows.name = "Open windows";
        TreeView2.name = "Logs";
        List4.name = "Report";
        List1.name = "Speed report";
    }

    // Navigation column.
    Frame navigation{*this, at(0, 0, 160, 488)};
    NavButton Image5{navigation, "Integrity Scan", at(0, 8, 160, 72), "integrity"};
    NavButton Image7{navigation, "RegWatch", at(0, 80, 160, 72), "regwatch"};
    NavButton Image9{navigation, "AppWatch", at(0, 152, 160, 72), "appwatch"};
    NavButton Image11{navigation, "Options", at(0, 224, 160, 72), "options"};
    FlatButton cButton6{navigation, "Help", at(16, 360, 128, 32)};
    FlatButton cButton7{navigation, "About", at(16, 400, 128, 32)};
    FlatButton cButton9{navigation, "Exit", at(16, 440, 128, 32)};

    // Integrity scan.
    Frame intF{*this, at(160, 0, 600, 488), false};
    Label folderHeading{intF, "Folder:", at(32, 24, 536, 20)};
    ComboBox Combo1{intF, at(32, 48, 400, 24)};
    FlatButton addRem{intF, "Add/Remove Custom Folders...", at(32, 80, 232, 32)};
    std::array<FlatCheck, 6> check{
        {FlatCheck{intF, "", at(32, 136, 24, 32)}, FlatCheck{intF, "", at(32, 176, 24, 32)},
         FlatCheck{intF, "", at(32, 216, 24, 32)}, FlatCheck{intF, "", at(32, 256, 24, 32)},
         FlatCheck{intF, "", at(32, 296, 24, 32)}, FlatCheck{intF, "", at(32, 336, 24, 32)}}};
    FlatButton bDLL{intF, "Dynamic Linked Library (DLL)", at(64, 136, 264, 32)};
    FlatButton bDRV{intF, "Driver Files (DRV)", at(64, 176, 264, 32)};
    FlatButton bSYS{intF, "System Files (SYS, 386)", at(64, 216, 264, 32)};
    FlatButton bOCX{intF, "ActiveX Files (OCX)", at(64, 256, 264, 32)};
    FlatButton bEXE{intF, "Executable Files (EXE, COM)", at(64, 296, 264, 32)};
    FlatButton bEXE2{intF, "Exploited File Types (PIF, SCR)", at(64, 336, 264, 32)};
    FlatButton bFULL{intF, "Select All", at(352, 136, 152, 32)};
    FlatButton bCLEAR{intF, "Clear Selections", at(352, 176, 152, 32)};
    FlatButton bSCAN{intF, "Scan Folder Now", at(32, 400, 296, 40)};

    // RegWatch.
    Frame regF{*this, at(160, 0, 600, 488), false};
    ListBox List5{regF, at(16, 16, 568, 112)};
    Tree TreeView1{regF, at(16, 136, 568, 224)};
    ListBox List6{regF, at(16, 136, 568, 224), false};
    TextBox Text4{regF, at(16, 368, 568, 24)};
    FlatButton Command1{regF, "Refresh", at(16, 400, 96, 32)};
    FlatButton Command3{regF, "Delete Key", at(120, 400, 112, 32)};
    FlatButton Command11{regF, "Scan File for Viruses", at(240, 400, 168, 32)};
    FlatButton cScnUpd{regF, "Scan && Update Warnings", at(416, 400, 168, 32)};
    FlatButton cMod{regF, "Check for modifications/deletions on reboot", at(16, 440, 312, 32)};
    // A copy of the selected entry, and two lists that nothing fills; never shown.
    Label Label19{regF, "", at(0, 0, 8, 8)};
    ListBox List2{regF, at(0, 0, 8, 8), false};
    ListBox List3{regF, at(0, 0, 8, 8), false};

    // AppWatch.
    Frame appF{*this, at(160, 0, 600, 488), false};
    ListBox lstOpenWindows{appF, at(32, 24, 536, 256)};
    Label lblCount{appF, "Please Click On Refresh", at(32, 288, 536, 20), TextStyle::Hint};
    TextBox txtTitle{appF, at(32, 320, 536, 24)};
    Label lblProcessID{appF, "Process ID: Please select an Entry first", at(32, 352, 536, 20)};
    Label lblClassName{appF, "Click on an Entry in the list to retrieve additional Information",
                       at(32, 376, 536, 56)};
    FlatButton act{appF, "Activate Window", at(32, 440, 168, 32)};
    FlatButton cl{appF, "Close Window", at(208, 440, 168, 32)};
    FlatButton ref{appF, "Refresh", at(400, 440, 168, 32)};

    // Options and one report.
    Frame setFq{*this, at(160, 0, 600, 488), false};
    FlatButton cSettings{setFq, "Edit Settings", at(32, 24, 200, 32)};
    Label Label6{setFq, "Please Remember to Save these Settings", at(248, 24, 336, 32), TextStyle::Hint};
    FlatButton cButton2{setFq, "Advanced Settings", at(32, 64, 200, 32)};
    Label Label16{setFq, "Only Intended for Advanced Users", at(248, 64, 336, 32), TextStyle::Hint};
    FlatButton cSetW{setFq, "Settings Wizard", at(32, 104, 200, 32)};
    Label Label15{setFq, "First-time Tarvelon Users are Recommended to use the Settings Wizard",
                  at(248, 104, 312, 32), TextStyle::Hint}; // Two lines: one would have to be set very small.
    FlatButton cCreateSS{setFq, "Shutdown/Scan Shortcut", at(32, 144, 200, 32)};
    Label Label23{setFq,
                  "Click to Create a Shutdown/Scan shortcut. For more information about this feature, please "
                  "look at the Help Files.",
                  at(248, 144, 336, 32), TextStyle::Hint};
    FlatButton cReports{setFq, "Load Logs", at(32, 200, 200, 32)};
    FlatButton cViewReport{setFq, "View Log", at(32, 240, 200, 32)};
    FlatButton cButton3{setFq, "Delete All Logs", at(32, 280, 200, 32)};
    Tree TreeView2{setFq, at(248, 200, 336, 200)};
    Label Label27{setFq,
                  "Tip: Use the Delete key to delete log entries, or log groupings directly from the list",
                  at(248, 404, 336, 36), TextStyle::Hint};
    Label Label26{setFq, "L o a d i n g  R e p o r t  . . .  P l e a s e  W a i t", at(248, 444, 336, 24)};
    FlatButton cUpdates{setFq, "Check for Updates", at(32, 400, 200, 32)};
    FlatButton cAbout{setFq, "About", at(32, 440, 200, 32)};
    Frame repF{*this, at(160, 0, 600, 488), false};
    Label Label25{
        repF, "The following files either failed an Integrity Check, or were New/Modified Registry Entries:",
        at(16, 16, 568, 36)};
    ListBox List4{repF, at(16, 56, 568, 368)};
    FlatButton cScnLog{repF, "Scan Files For Viruses", at(16, 440, 176, 32)};
    FlatButton cDelLog{repF, "Delete this Report", at(200, 440, 160, 32)};
    FlatButton cX{repF, "Close", at(464, 440, 120, 32)};

    // Settings: the main page and the advanced page.
    Frame settF{*this, at(160, 0, 600, 488), false};

    Frame qSett{settF, at(0, 0, 600, 488)};
    Label Label21{qSett, "Main Tarvelon Settings:", at(16, 14, 568, 26), TextStyle::Heading};
    FlatCheck Check1{qSett, "Auto-Load at Startup", at(16, 48, 272, 24)};
    FlatCheck Check8{qSett, "Auto-Scan Failed Files", at(16, 76, 272, 24)};
    FlatCheck Check7{qSett, "Auto-Logging", at(304, 48, 272, 24)};
    Label Label20{qSett, "Scan these System files on Auto-Load:", at(16, 120, 352, 20)};
    FlatCheck Check2{qSett, "Check Dynamic Linked Libraries (DLL)", at(16, 144, 352, 24)};
    FlatCheck Check3{qSett, "Check Drivers (DRV)", at(16, 172, 352, 24)};
    FlatCheck Check4{qSett, "Check System Files (SYS,386)", at(16, 200, 352, 24)};
    FlatCheck Check5{qSett, "Check ActiveX Files (OCX)", at(16, 228, 352, 24)};
    FlatCheck Check6{qSett, "Check Executables (EXE,COM)", at(16, 256, 352, 24)};
    FlatCheck Check9{qSett, "Check Commonly Exploited Files (SCR,PIF)", at(16, 284, 352, 24)};
    Label Label2{qSett, "...On secure shut down:", at(384, 120, 200, 20)};
    FlatCheck Check15{qSett, "DLL", at(384, 144, 200, 24)};
    FlatCheck Check14{qSett, "DRV", at(384, 172, 200, 24)};
    FlatCheck Check13{qSett, "SYS,386", at(384, 200, 200, 24)};
    FlatCheck Check12{qSett, "OCX", at(384, 228, 200, 24)};
    FlatCheck Check16{qSett, "EXE,COM", at(384, 256, 200, 24)};
    FlatCheck Check17{qSett, "SCR,PIF", at(384, 284, 200, 24)};
    FlatButton cButton10{qSett, "Click here to setup your anti-virus or anti-trojan application(s).",
                         at(16, 328, 440, 32)};
    FlatButton cSave{qSett, "Save Settings", at(16, 440, 136, 32)};
    FlatButton cCancelSett{qSett, "Cancel", at(160, 440, 136, 32)};
    FlatButton chlp{qSett, "Help", at(448, 440, 136, 32)};

    Frame advF{settF, at(0, 0, 600, 488), false};
    Label Label22{advF, "Tarvelon Integrity Checker Read Buffer:", at(16, 16, 248, 24)};
    Frame bufferGroup{advF, at(264, 16, 320, 24)};
    OptionButton Option1{bufferGroup, "64 Kb", at(0, 0, 80, 24)};
    OptionButton Option2{bufferGroup, "128 Kb", at(80, 0, 80, 24)};
    OptionButton Option3{bufferGroup, "256 Kb", at(160, 0, 80, 24)};
    OptionButton Option4{bufferGroup, "512 Kb", at(240, 0, 80, 24)};
    Frame Frame1{advF, "Pass 'x' Files at a Time (500 is recommended)", at(16, 48, 320, 80)};
    OptionButton Option5{Frame1, "Pass All Files", at(16, 24, 136, 24)};
    OptionButton Option6{Frame1, "50", at(152, 24, 72, 24)};
    OptionButton Option7{Frame1, "100", at(232, 24, 72, 24)};
    OptionButton Option8{Frame1, "200", at(16, 50, 72, 24)};
    OptionButton Option9{Frame1, "350", at(152, 50, 72, 24)};
    OptionButton Option10{Frame1, "500", at(232, 50, 72, 24)};
    Frame Frame3{advF, "Integrity Checker Algorithm:", at(344, 48, 240, 80)};
    OptionButton Option11{Frame3, "CRC32", at(16, 24, 96, 24)};
    OptionButton Option12{Frame3, "MD5", at(128, 24, 96, 24)};
    OptionButton Option13{Frame3, "SHA-1", at(16, 50, 96, 24)};
    OptionButton Option14{Frame3, "MD4", at(128, 50, 96, 24)};
    Label Label28{advF, "Anti-Virus Shell Options:", at(16, 136, 568, 20)};
    CheckBox Check10{advF, "Enclose Files with Quotes", at(16, 156, 240, 24)};
    Label Label1{advF, "Warning! Current options may cause errors!", at(264, 156, 320, 24)};
    CheckBox Check11{
        advF, "Use ShortPath File Names (For DOS-Based On-Demand Anti-Virus scanners...Example: McAfee)",
        at(16, 180, 568, 24)};
    CheckBox avfocus{advF, "Give anti-virus program Focus (Fixes GUI Errors with AVAST 4)",
                     at(16, 204, 568, 24)};
    Label Label30{advF, "Micellaneous:", at(16, 232, 96, 24)};
    FlatCheck wsh{advF, "Use Windows Scripting Host (If Auto-Load won't create shortcut/save)",
                  at(112, 232, 472, 24)};

    // Compare Speeds: the report, and one of its three tests as a chart.
    ListBox List1{advF, at(16, 264, 468, 162)};
    Label chartHeading{advF, "Time by buffer:", at(490, 262, 102, 18), TextStyle::Hint};
    BarChart speedChart{advF, "", 4, at(490, 280, 94, 146)};
    FlatButton cSave2{advF, "Save", at(16, 440, 136, 32)};
    FlatButton cButton1{advF, "Cancel", at(160, 440, 136, 32)};
    FlatButton cSpeeds{advF, "Compare Speeds", at(408, 440, 176, 32)};

    // About; the page that shows when the window opens.
    Frame Frame2{*this, at(160, 0, 600, 488)};
    Label Label32{Frame2, "Tarvelon", at(32, 32, 536, 32), TextStyle::Heading};
    Label Label33{Frame2, "Version: 2.0", at(32, 72, 536, 20)};
    Label Label36{Frame2, "Programmer:", at(32, 112, 96, 20)};
    Label Label37{Frame2, "Quillfen Support", at(136, 112, 200, 20), TextStyle::Link};
    FlatButton cButton4{Frame2, "View Help Files", at(32, 160, 200, 32)};
    FlatButton cButton5{Frame2, "Visit Quillfen Online", at(32, 200, 200, 32)};

    /// What flips the six type boxes, in their order.
    std::array<FlatButton*, 6> typeButtons{&bDLL, &bDRV, &bSYS, &bOCX, &bEXE, &bEXE2};

    /// The controls behind the positions of the stored lists.
    std::array<FlatCheck*, 8> autoLoadChecks{&Check2, &Check3, &Check4, &Check5,
                                             &Check6, &Check9, &Check8, &Check7};
    std::array<FlatCheck*, 6> shutDownChecks{&Check15, &Check14, &Check13, &Check12, &Check16, &Check17};
    std::array<CheckBox*, 3> shellChecks{&Check10, &Check11, &avfocus};

    /// The options of the advanced page, each with what it stands for.
    template<class Value, std::size_t count>
    using Choices = std::array<std::pair<OptionButton*, Value>, count>;
    Choices<std::int32_t, 4> bufferOptions{
        {{&Option1, 65536}, {&Option2, 131072}, {&Option3, 262144}, {&Option4, 524288}}};
    Choices<std::int32_t, 6> passOptions{{{&Option5, 99999},
                                          {&Option6, 50},
                                          {&Option7, 100},
                                          {&Option8, 200},
                                          {&Option9, 350},
                                          {&Option10, 500}}};
    Choices<std::string_view, 4> algorithmOptions{
        {{&Option11, "CRC32"}, {&Option12, "MD5"}, {&Option13, "SHA1"}, {&Option14, "MD4"}}};
};

} // namespace tarvelon
