#include "integrity/folder_scan_page.h"

#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "hash/checksum.h"
#include "integrity/baseline_builder.h"
#include "integrity/data_file.h"
#include "integrity/folder_scan_controls.h"
#include "integrity/restart.h"
#include "platform/dialogs.h"
#include "platform/messages.h"
#include "platform/platform.h"

#include <cstdint>
#include <string>
#include <vector>

namespace tarvelon {

FolderScanPage::FolderScanPage(FolderScanControls& screen, NavButton& entry, const Services& services,
                               Checksum& checksum, DataFile& dataFile, BaselineBuilder& baselineBuilder)
    : Services(services)
    , screen_(screen)
    , entry_(entry)
    , checksum_(checksum)
    , dataFile_(dataFile)
    , baselineBuilder_(baselineBuilder) {
    bind();
}

void FolderScanPage::bind() {
    entry_.onClick = [this] { open(); };
    screen_.Combo1.onClick = [this] { takeFolder(); };
    for (std::size_t i = 0; i < screen_.check.size(); ++i) {
        screen_.typeButtons[i]->onClick = [this, i] {
            screen_.check[i]->setValue(screen_.check[i]->value() == 0);
        };
    }
    screen_.bFULL.onClick = [this] { tickAll(true); };
    screen_.bCLEAR.onClick = [this] { tickAll(false); };
    screen_.bSCAN.onClick = [this] { startScan(); };
}

void FolderScanPage::tickAll(bool ticked) {
    for (check* box : screen_.check) {
        box->setValue(ticked);
    }
}

void FolderScanPage::loadf() {
    settings.checkSettFile();
    screen_.Combo1.clear();
    screen_.Combo1.add(funcMod.getSysDir());
    for (int slot = 1; slot <= folderSlots; ++slot) {
        const std::string path = trim(settings.ofSlot(slot, "path"));
        if (path != "NULL") {
            screen_.Combo1.add(path);
        }
    }
    screen_.Combo1.setListIndex(0);
}

void FolderScanPage::open() {
    loadf();
    hooks.norms2();
    if (funcMod.fileThere(globals.app.intFile)) {
        entry_.Current = true;
        screen_.intF.Visible = true;
        return;
    }
    const Answer answer = platform.dialogs.message(
        {.text = "You have not yet completed the full system scan.  This is required before using the "
                 "Integrity Checker.  Perform scan now?",
         .title = "Missing File",
         .buttons = Buttons::YesNo});
    if (answer == Answer::Yes) {
        restartWithoutBackup(globals, platform, backupOf(globals.app.intFile));
    }
}

void FolderScanPage::takeFolder() {
    const int index = screen_.Combo1.listIndex();
    if (index <= 0) {
        return;
    }
    const std::string file = checksum_.getCustomDat(index);
    if (!funcMod.fileThere(file) &&
        !baselineBuilder_.buildCustomDat(screen_.Combo1.text(), file, std::to_string(index))) {
        screen_.Combo1.setListIndex(0);
        return;
    }
    const std::vector<std::string> types = split(settings.ofSlot(index, "args"), ',');
    for (std::size_t i = 0; i < screen_.check.size() && i < types.size(); ++i) {
        screen_.check[i]->setValue(types[i] == "1");
    }
}

void FolderScanPage::startScan() {
    baselineBuilder_.checkIntFile();
    ScanRun& scan = globals.scan;
    const auto wanted = scan.wanted();
    bool any = false;
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        *wanted[i] = screen_.check[i]->value() != 0;
        any = any || *wanted[i];
    }
    if (!any) {
        platform.dialogs.message({.text = "Please select the files to scan."});
        return;
    }
    scan.customFolder.clear();
    scan.noAutoAction = true;
    scan.pageScan = true;
    scan.customFirstScan = false;
    hooks.leaveScan();
    platform.messages.pump();
    const int index = screen_.Combo1.listIndex();
    const std::string folder = screen_.Combo1.text();
    if (index > 0 && !dataFile_.loadCustomDat(checksum_.getCustomDat(index))) {
        return; // Its first scan was refused.
    }
    platform.messages.pump();
    if (index > 0) { // Set where no input comes between this and the plan.
        scan.customFolder = folder;
        scan.customIndex = static_cast<std::int16_t>(index);
    }
    hooks.loadUp();
}

} // namespace tarvelon
