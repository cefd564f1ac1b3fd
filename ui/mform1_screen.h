#pragma once

#include "appwatch/app_page_controls.h"
#include "integrity/folder_scan_controls.h"
#include "logging/log_controls.h"
#include "regwatch/reg_page_controls.h"
#include "ui/advanced_controls.h"
#include "ui/controls/controls.h"
#include "ui/settings_controls.h"
#include "ui/start_controls.h"

namespace tarvelon {

/// The column that opens the pages.
struct NavigationControls {
    explicit NavigationControls(Screen& screen)
        : navigation(screen, at(0, 0, 160, 488)) {}

    Frame navigation;
    NavButton Image5{navigation, "Integrity Scan", at(0, 8, 160, 72), "integrity"};
    NavButton Image7{navigation, "RegWatch", at(0, 80, 160, 72), "regwatch"};
    NavButton Image9{navigation, "AppWatch", at(0, 152, 160, 72), "appwatch"};
    NavButton Image11{navigation, "Options", at(0, 224, 160, 72), "options"};
    cButton cButton6{navigation, "Help", at(16, 360, 128, 32)};
    cButton cButton7{navigation, "About", at(16, 400, 128, 32)};
    cButton cButton9{navigation, "Exit", at(16, 440, 128, 32)};
};

/// The ways from the page of options to the others.
struct OptionControls {
    explicit OptionControls(Screen& screen)
        : setFq(screen, at(160, 0, 600, 488), false) {}

    Frame setFq; ///< Holds the tree of reports too.
    Icon optionsIcon{setFq, at(24, 20, 24, 24), "options"};
    Label optionsTitle{setFq, "Options", at(56, 16, 520, 32), TextStyle::Title};
    cButton cSettings{setFq, "Edit Settings", at(24, 56, 184, 32), Rank::Primary};
    Label Label6{setFq, "Please Remember to Save these Settings", at(224, 56, 352, 32), TextStyle::Hint};
    cButton cButton2{setFq, "Advanced Settings", at(24, 96, 184, 32)};
    Label Label16{setFq, "Only Intended for Advanced Users", at(224, 96, 352, 32), TextStyle::Hint};
    cButton cSetW{setFq, "Settings Wizard", at(24, 136, 184, 32)};
    Label Label15{setFq, "First-time Tarvelon Users are Recommended to use the Settings Wizard",
                  at(224, 136, 320, 32), TextStyle::Hint}; // Two lines: one would have to be set very small.
    cButton cCreateSS{setFq, "Shutdown/Scan Shortcut", at(24, 176, 184, 32)};
    Label Label23{setFq,
                  "Click to Create a Shutdown/Scan shortcut. For more information about this feature, please "
                  "look at the Help Files.",
                  at(224, 176, 352, 32), TextStyle::Hint};
};

/// The main window: a navigation column, and pages of which one is visible at a time. Each page's controls
/// belong to whom the page belongs to.
struct MForm1Screen : Screen,
                      NavigationControls,
                      StartControls,
                      FolderScanControls,
                      RegPageControls,
                      AppPageControls,
                      OptionControls,
                      LogControls,
                      SettingsControls,
                      AdvancedControls {
    // The screen itself for each: from *this they could be copied as well.
    MForm1Screen()
        : Screen("Welcome to Tarvelon", 760, 488)
        , NavigationControls(static_cast<Screen&>(*this))
        , StartControls(static_cast<Screen&>(*this))
        , FolderScanControls(static_cast<Screen&>(*this))
        , RegPageControls(static_cast<Screen&>(*this))
        , AppPageControls(static_cast<Screen&>(*this))
        , OptionControls(static_cast<Screen&>(*this))
        , LogControls(*this, setFq)
        , SettingsControls(static_cast<Screen&>(*this))
        , AdvancedControls(settF) {}

    cButton cAbout{setFq, "About", at(24, 440, 184, 32)};
    cButton cUpdates{setFq, "Check for Updates", at(392, 440, 184, 32)};
};

} // namespace tarvelon
