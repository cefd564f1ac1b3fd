#pragma once

#include "avshell/scanner_command.h"
#include "ui/controls/controls.h"

#include <array>

namespace tarvelon {

/// The setup wizard: nine pages that share one title and one description.
struct WizardScreen : Screen {
    WizardScreen()
        : Screen("Tarvelon - Setup Wizard", 640, 416) {
        vpath.Caption = "Anti-Virus Path";
    }

    Label title{*this, "%Title%", at(32, 24, 576, 28), TextStyle::Heading};
    Label desc{*this, "%Description", at(32, 64, 576, 136)};

    // Anti-virus.
    TextBox vpath{*this, at(32, 216, 432, 24)};
    cButton locate{*this, "Locate...", at(472, 212, 136, 32)};
    Label Label4{*this, "Extra Arguments", at(32, 256, 144, 24)};
    TextBox varg{*this, at(184, 256, 280, 24)};
    const ScannerFields scanner{vpath, varg};
    cButton helpme{*this, "Help Me!", at(472, 252, 136, 32)};
    cButton Command1{*this, "Test It!", at(32, 216, 136, 32)};

    // Main settings.
    check aload{*this, "Enable Auto-Load (Highly Recommended)", at(32, 216, 576, 24)};
    check Check1{*this, "Check DLL (Dynamic Linked Libraries)", at(32, 216, 264, 24)};
    check Check2{*this, "Check DRV (Drivers)", at(32, 248, 264, 24)};
    check Check3{*this, "Check SYS (System files)", at(32, 280, 264, 24)};
    check Check4{*this, "Check OCX (ActiveX)", at(304, 216, 304, 24)};
    check Check5{*this, "Check EXE (Executables)", at(304, 248, 304, 24)};
    check Check8{*this, "Check SCR,PIF (Commonly Exploited File Types)", at(304, 280, 304, 24)};
    check Check6{*this, "Enable Auto-Scan", at(32, 216, 576, 24)};

    // Other settings.
    check Check7{*this, "Enable Logging Feature", at(32, 216, 576, 24)};
    cButton cButton1{*this, "Create Shutdown/Scan shortcut", at(32, 216, 264, 32)};
    cButton Command2{*this, "Save", at(32, 216, 136, 32)};

    Label Label2{*this, "<<< Back", at(32, 368, 96, 24), TextStyle::Step};
    Label Label1{*this, "Next >>>", at(144, 368, 96, 24), TextStyle::Step};
    Label Label3{*this, "Cancel", at(560, 368, 48, 24), TextStyle::Step};

    /// The boxes behind the positions of the stored list.
    std::array<check*, 8> settingChecks{&Check1, &Check2, &Check3, &Check4,
                                        &Check5, &Check8, &Check6, &Check7};
};

} // namespace tarvelon
