#pragma once

#include "ui/controls/controls.h"

#include <array>

namespace tarvelon {

/// The controls of the settings page. They hold the settings while the program runs, visible or not.
struct SettingsControls {
    explicit SettingsControls(Screen& screen)
        : settF(screen, at(160, 0, 600, 488), false) {}

    Frame settF; ///< Around this page and the advanced one.

    Frame qSett{settF, at(0, 0, 600, 488)};
    Label Label21{qSett, "Main Tarvelon Settings:", at(16, 14, 568, 26), TextStyle::Heading};
    check Check1{qSett, "Auto-Load at Startup", at(16, 48, 272, 24)};
    check Check8{qSett, "Auto-Scan Failed Files", at(16, 76, 272, 24)};
    check Check7{qSett, "Auto-Logging", at(304, 48, 272, 24)};
    Label Label20{qSett, "Scan these System files on Auto-Load:", at(16, 120, 352, 20)};
    check Check2{qSett, "Check Dynamic Linked Libraries (DLL)", at(16, 144, 352, 24)};
    check Check3{qSett, "Check Drivers (DRV)", at(16, 172, 352, 24)};
    check Check4{qSett, "Check System Files (SYS,386)", at(16, 200, 352, 24)};
    check Check5{qSett, "Check ActiveX Files (OCX)", at(16, 228, 352, 24)};
    check Check6{qSett, "Check Executables (EXE,COM)", at(16, 256, 352, 24)};
    check Check9{qSett, "Check Commonly Exploited Files (SCR,PIF)", at(16, 284, 352, 24)};
    Label Label2{qSett, "...On secure shut down:", at(384, 120, 200, 20)};
    check Check15{qSett, "DLL", at(384, 144, 200, 24)};
    check Check14{qSett, "DRV", at(384, 172, 200, 24)};
    check Check13{qSett, "SYS,386", at(384, 200, 200, 24)};
    check Check12{qSett, "OCX", at(384, 228, 200, 24)};
    check Check16{qSett, "EXE,COM", at(384, 256, 200, 24)};
    check Check17{qSett, "SCR,PIF", at(384, 284, 200, 24)};
    cButton cButton10{qSett, "Click here to setup your anti-virus or anti-trojan application(s).",
                      at(16, 328, 440, 32)};
    cButton cSave{qSett, "Save Settings", at(16, 440, 136, 32)};
    cButton cCancelSett{qSett, "Cancel", at(160, 440, 136, 32)};
    cButton chlp{qSett, "Help", at(448, 440, 136, 32)};

    /// The controls behind the positions of the stored lists.
    std::array<check*, 8> autoLoadChecks{&Check2, &Check3, &Check4, &Check5,
                                         &Check6, &Check9, &Check8, &Check7};
    std::array<check*, 6> shutDownChecks{&Check15, &Check14, &Check13, &Check12, &Check16, &Check17};
};

} // namespace tarvelon
