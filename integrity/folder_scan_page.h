#pragma once

#include "core/services.h"

#include <functional>

namespace tarvelon {

struct FolderScanControls;
class BaselineBuilder;
class Checksum;
class DataFile;
class NavButton;

/// What the page calls beside itself.
struct FolderScanHooks {
    std::function<void()> norms2;    ///< Hides all pages of the main window.
    std::function<void()> leaveScan; ///< The scan window's leave action, which cancels what runs.
    std::function<void()> loadUp;    ///< Plans a scan and starts it.
};

/// The page where the user picks a folder and file types and starts a scan by hand. The position of a folder
/// in the drop-down list is taken for its slot, which holds as long as no slot in front of it is free.
class FolderScanPage : Services {
public:
    FolderScanPage(FolderScanControls& screen, NavButton& entry, const Services& services, Checksum& checksum,
                   DataFile& dataFile, BaselineBuilder& baselineBuilder);

    FolderScanHooks hooks;

    /// Fills the list of folders: the system directory, then the custom folders.
    void loadf();

    /// Opens the page; without a baseline it offers to start over with the first full scan.
    void open();

private:
    void bind();
    void tickAll(bool ticked);
    void takeFolder();
    void startScan();

    FolderScanControls& screen_;
    NavButton& entry_; ///< Opens the page.
    Checksum& checksum_;
    DataFile& dataFile_;
    BaselineBuilder& baselineBuilder_;
};

} // namespace tarvelon
