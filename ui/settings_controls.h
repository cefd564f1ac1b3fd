#pragma once

#include "ui/controls/controls.h"

#include <array>

namespace tarvelon {

/// The controls of the settings page. They hold the settings while the program runs, visible or not.
struct SettingsControls {
    explicit SettingsControls(Screen& screen)
        : settF(screen, at(160, 0, 600, 488), false) {
        Check1.ToolTip = "Checks the ticked types whenever you log on";
        Check8.ToolTip = "Hands new and changed files to the scanner without asking";
        Check7.ToolTip = "Writes a report of what was handed to the scanner";
        for (check* box : shutDownChecks) {
            box->ToolTip = "Checked on secure shut down";
        }
        cCancelSett.isCancel = true;
    }

    Frame settF; ///< Around this page and the advanced one.

    Frame qSett{settF, at(0, 0, 600, 488)};
    Icon settingsIcon{qSett, at(24, 20, 24, 24), "options"};
    Label Label21{qSett, "Main Tarvelon Settings:", at(56, 16, 520, 32), TextStyle::Title};
    check Check1{qSett, "Auto-Load at Startup", at(24, 56, 272, 24)};
    check Check8{qSett, "Auto-Scan Failed Files", at(24, 84, 272, 24)};
    check Check7{qSett, "Auto-Logging", at(376, 56, 200, 24)};
    Label Label20{qSett, "Scan these System files on Auto-Load:", at(24, 124, 344, 20), TextStyle::Heading};
    check Check2{qSett, "Check Dynamic Linked Libraries (DLL)", at(24, 152, 344, 24)};
    check Check3{qSett, "Check Drivers (DRV)", at(24, 180, 344, 24)};
    check Check4{qSett, "Check System Files (SYS,386)", at(24, 208, 344, 24)};
    check Check5{qSett, "Check ActiveX Files (OCX)", at(24, 236, 344, 24)};
    check Check6{qSett, "Check Executables (EXE,COM)", at(24, 264, 344, 24)};
    check Check9{qSett, "Check Commonly Exploited Files (SCR,PIF)", at(24, 292, 344, 24)};
    Label nothingTicked{qSett, "Nothing is ticked: nothing will be checked", at(24, 322, 344, 20),
                        TextStyle::Hint};
    Label Label2{qSett, "...On secure shut down:", at(376, 124, 200, 20), TextStyle::Heading};
    check Check15{qSett, "DLL", at(376, 152, 200, 24)};
    check Check14{qSett, "DRV", at(376, 180, 200, 24)};
    check Check13{qSett, "SYS,386", at(376, 208, 200, 24)};
    check Check12{qSett, "OCX", at(376, 236, 200, 24)};
    check Check16{qSett, "EXE,COM", at(376, 264, 200, 24)};
    check Check17{qSett, "SCR,PIF", at(376, 292, 200, 24)};
    cButton cButton10{qSett, "Click here to setup your anti-virus or anti-trojan application(s).",
                      at(24, 360, 440, 32)};
    cButton chlp{qSett, "Help", at(24, 440, 112, 32)};
    cButton cCancelSett{qSett, "Cancel", at(320, 440, 112, 32)};
    cButton cSave{qSett, "Save Settings", at(440, 440, 136, 32), Rank::Primary};

    /// The controls behind the positions of the stored lists.
    std::array<check*, 8> autoLoadChecks{&Check2, &Check3, &Check4, &Check5,
                                         &Check6, &Check9, &Check8, &Check7};
    std::array<check*, 6> shutDownChecks{&Check15, &Check14, &Check13, &Check12, &Check16, &Check17};
};

} // namespace tarvelon
