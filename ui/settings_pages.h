#pragma once

#include <string>

namespace tarvelon {

struct AdvancedControls;
struct Globals;
struct Platform;
struct SAvirScreen;
struct SettingsControls;
class OwnShortcuts;
class SettingsFile;
class Utilities;

/// The settings page and the advanced page of the main window.
class SettingsPages {
public:
    SettingsPages(SettingsControls& screen, AdvancedControls& advanced, SAvirScreen& scanners,
                  Globals& globals, Platform& platform, SettingsFile& settings, const Utilities& utilities,
                  OwnShortcuts& shortcuts);

    /// Fills both pages, the scanner fields and every global that depends on the settings from the settings
    /// file. A list with fewer positions leaves the rest as it is. A value that cannot be taken ends the
    /// routine, and what stands behind it keeps its state.
    void loadSettings();

private:
    void cSave_Click();
    bool loadAutoLoad();
    bool loadAdvanced();
    bool loadShellOptions();

    SettingsControls& screen_;
    AdvancedControls& advanced_;
    SAvirScreen& scanners_;
    Globals& globals_;
    Platform& platform_;
    SettingsFile& settings_;
    const Utilities& utilities_;
    OwnShortcuts& shortcuts_;
};

} // namespace tarvelon
