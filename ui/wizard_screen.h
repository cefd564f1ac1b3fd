#pragma once

#include "avshell/scanner_command.h"
#include "ui/controls/controls.h"

#include <array>

namespace tarvelon {

/// The setup wizard: nine pages that share one title and one description.
struct WizardScreen : Screen {
    WizardScreen()
        : Screen("Tarvelon - Setup Wizard", 640, 376) {
        vpath.Caption = "Anti-Virus Path";
        Label3.isCancel = true;
        Command1.ToolTip = "Has the program look at two harmless files";
    }

    Icon picture{*this, at(24, 20, 40, 40), ""};
    Label title{*this, "%Title%", at(80, 20, 528, 40), TextStyle::Title};

    // Anti-virus.
    Label pathLabel{*this, "Anti-Virus Path", at(80, 136, 136, 24)};
    TextBox vpath{*this, at(216, 136, 264, 24)};
    cButton locate{*this, "Locate...", at(488, 132, 120, 32)};
    Label Label4{*this, "Extra Arguments", at(80, 176, 136, 24)};
    TextBox varg{*this, at(216, 176, 264, 24)};
    const ScannerFields scanner{vpath, varg};
    cButton helpme{*this, "Help Me!", at(488, 172, 120, 32)};
    cButton Command1{*this, "Test It!", at(80, 136, 136, 32)};

    // Main settings.
    check aload{*this, "Enable Auto-Load (Highly Recommended)", at(80, 176, 528, 24)};
    check Check1{*this, "Check DLL (Dynamic Linked Libraries)", at(80, 152, 240, 24)};
    check Check2{*this, "Check DRV (Drivers)", at(80, 180, 240, 24)};
    check Check3{*this, "Check SYS (System files)", at(80, 208, 240, 24)};
    check Check4{*this, "Check OCX (ActiveX)", at(328, 152, 296, 24)};
    check Check5{*this, "Check EXE (Executables)", at(328, 180, 296, 24)};
    check Check8{*this, "Check SCR,PIF (Commonly Exploited File Types)", at(328, 208, 296, 24)};
    check Check6{*this, "Enable Auto-Scan", at(80, 176, 528, 24)};

    // Other settings.
    check Check7{*this, "Enable Logging Feature", at(80, 168, 528, 24)};
    cButton cButton1{*this, "Create Shutdown/Scan shortcut", at(80, 176, 248, 32)};
    cButton Command2{*this, "Save", at(80, 136, 136, 32), Rank::Primary};

    // Behind what stands right below its few lines.
    Label desc{*this, "%Description", at(80, 64, 544, 104)};

    Frame line{*this, "", at(16, 312, 608, 1)};
    StepDots dots{*this, at(24, 324, 176, 40), 9};
    Label Label2{*this, "<<< Back", at(312, 328, 88, 32), TextStyle::Step};
    Label Label1{*this, "Next >>>", at(408, 328, 88, 32), Rank::Primary, true, TextStyle::Step};
    Label Label3{*this, "Cancel", at(520, 328, 88, 32), TextStyle::Step};

    /// The boxes behind the positions of the stored list.
    std::array<check*, 8> settingChecks{&Check1, &Check2, &Check3, &Check4,
                                        &Check5, &Check8, &Check6, &Check7};
};

} // namespace tarvelon
