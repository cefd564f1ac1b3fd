#pragma once

namespace tarvelon {

class Checksum;
class SettingsFile;
struct AdvancedControls;
struct Globals;
struct Platform;

/// The advanced page of the main window.
class AdvancedPage {
public:
    AdvancedPage(AdvancedControls& screen, Globals& globals, Platform& platform, SettingsFile& settings,
                 Checksum& checksum);

    /// Shows the settings in force on the page. A value that no option stands for leaves its group without a
    /// choice, and so lasts until the user picks one.
    void opened();

private:
    void cSave2_Click();

    AdvancedControls& screen_;
    Globals& globals_;
    Platform& platform_;
    SettingsFile& settings_;
    Checksum& checksum_;
};

} // namespace tarvelon
