#pragma once

#include <functional>

namespace tarvelon {

struct FolderScanControls;
struct Globals;
struct Platform;
class Baseline;
class Checksum;
class DataFile;
class NavButton;
class SettingsFile;
class Utilities;

/// What the page calls beside itself.
struct FolderScanHooks {
    std::function<void()> norms2;    ///< Hides all pages of the main window.
    std::function<void()> leaveScan; ///< The scan window's leave action, which cancels what runs.
    std::function<void()> loadUp;    ///< Plans a scan and starts it.
};

/// What the page works with.
struct FolderScanParts {
    Globals& globals;
    Platform& platform;
    SettingsFile& settings;
    Checksum& checksum;
    DataFile& dataFile;
    Baseline& baseline;
    const Utilities& utilities;
};

/// The page where the user picks a folder and file types and starts a scan by hand. The position of a folder
/// in the drop-down list is taken for its slot, which holds as long as no slot in front of it is free.
class FolderScanPage {
public:
    FolderScanPage(FolderScanControls& screen, NavButton& entry, const FolderScanParts& parts);

    FolderScanHooks hooks;

    /// Fills the list of folders: the system directory, then the custom folders.
    void loadf();

    /// Opens the page; without a baseline it offers to start over with the first full scan.
    void Image5_Click();

private:
    void bind();
    void tickAll(bool ticked);
    void Combo1_Click();
    void bSCAN_Click();

    FolderScanControls& screen_;
    NavButton& entry_; ///< Opens the page.
    FolderScanParts parts_;
    Globals& globals_;
};

} // namespace tarvelon
