#pragma once

#include "ui/controls/lists.h"

#include <array>
#include <cstddef>

namespace tarvelon {

/// The controls of the page where a scan of a folder is started by hand.
struct FolderScanControls {
    explicit FolderScanControls(Screen& screen)
        : intF(screen, at(160, 0, 600, 488), false) {
        Combo1.name = "Folder";
        addRem.ToolTip = "Chooses the folders that are watched beside the system folder";
        bSCAN.ToolTip = "Compares the folder's files of the ticked types with its baseline";
        for (std::size_t i = 0; i < check.size(); ++i) {
            check[i]->name =
                std::array{"Select DLL files", "Select DRV files",         "Select SYS and 386 files",
                           "Select OCX files", "Select EXE and COM files", "Select PIF and SCR files"}[i];
        }
    }

    Frame intF;
    Icon intIcon{intF, at(24, 20, 24, 24), "integrity"};
    Label intTitle{intF, "Integrity Scan", at(56, 16, 520, 32), TextStyle::Title};
    Label folderHeading{intF, "Folder:", at(24, 56, 552, 20)};
    ComboBox Combo1{intF, at(24, 80, 552, 24)};
    cButton addRem{intF, "Add/Remove Custom Folders...", at(24, 112, 232, 32)};
    Frame typeGroup{intF, "File types", at(24, 160, 552, 264)};
    tarvelon::check dllBox{typeGroup, "", at(16, 24, 24, 32)};
    cButton bDLL{typeGroup, "Dynamic Linked Library (DLL)", at(48, 24, 304, 32), Rank::Quiet};
    tarvelon::check drvBox{typeGroup, "", at(16, 64, 24, 32)};
    cButton bDRV{typeGroup, "Driver Files (DRV)", at(48, 64, 304, 32), Rank::Quiet};
    tarvelon::check sysBox{typeGroup, "", at(16, 104, 24, 32)};
    cButton bSYS{typeGroup, "System Files (SYS, 386)", at(48, 104, 304, 32), Rank::Quiet};
    tarvelon::check ocxBox{typeGroup, "", at(16, 144, 24, 32)};
    cButton bOCX{typeGroup, "ActiveX Files (OCX)", at(48, 144, 304, 32), Rank::Quiet};
    tarvelon::check exeBox{typeGroup, "", at(16, 184, 24, 32)};
    cButton bEXE{typeGroup, "Executable Files (EXE, COM)", at(48, 184, 304, 32), Rank::Quiet};
    tarvelon::check exe2Box{typeGroup, "", at(16, 224, 24, 32)};
    cButton bEXE2{typeGroup, "Exploited File Types (PIF, SCR)", at(48, 224, 304, 32), Rank::Quiet};
    cButton bFULL{typeGroup, "Select All", at(376, 24, 160, 32), Rank::Quiet};
    cButton bCLEAR{typeGroup, "Clear Selections", at(376, 64, 160, 32), Rank::Quiet};
    Label typeHint{typeGroup,
                   "The ticked types are compared with the baseline. What is new or has changed is listed.",
                   at(376, 104, 160, 96), TextStyle::Hint};
    cButton bSCAN{intF, "Scan Folder Now", at(408, 440, 168, 32), Rank::Primary};

    std::array<tarvelon::check*, 6> check{&dllBox, &drvBox, &sysBox, &ocxBox, &exeBox, &exe2Box};
    /// What flips the six type boxes, in their order.
    std::array<cButton*, 6> typeButtons{&bDLL, &bDRV, &bSYS, &bOCX, &bEXE, &bEXE2};
};

} // namespace tarvelon
