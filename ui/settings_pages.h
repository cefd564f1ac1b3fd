#pragma once

#include <string>

namespace tarvelon {

struct Globals;
struct MForm1Screen;
struct Platform;
struct SAvirScreen;
class OwnShortcuts;
class SettingsFile;
class Utilities;

/// The settings page and the advanced page of the main window.
class SettingsPages {
public:
    SettingsPages(MForm1Screen& screen, SAvirScreen& scanners, Globals& globals, Platform& platform,
                  SettingsFile& settings, const Utilities& utilities, OwnShortcuts& shortcuts);

    /// Fills both pages, the scanner fields and every global that depends on the settings from the settings
    /// file. A list with fewer positions leaves the rest as it is. A value that cannot be taken ends the
    /// routine, and what stands behind it keeps its state.
    void loadSettings();

private:
    void cSave_Click();
    bool loadAutoLoad();
    bool loadAdvanced();
    bool loadShellOptions();

    MForm1Screen& screen_;
    SAvirScreen& scanners_;
    Globals& globals_;
    Platform& platform_;
    SettingsFile& settings_;
    const Utilities& utilities_;
    OwnShortcuts& shortcuts_;
};

} // namespace tarvelon
