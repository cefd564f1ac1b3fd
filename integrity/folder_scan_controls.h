#pragma once

#include "ui/controls/controls.h"

#include <array>
#include <cstddef>

namespace tarvelon {

/// The controls of the page where a scan of a folder is started by hand.
struct FolderScanControls {
    explicit FolderScanControls(Screen& screen)
        : intF(screen, at(160, 0, 600, 488), false) {
        for (std::size_t i = 0; i < check.size(); ++i) {
            check[i].name =
                std::array{"Select DLL files", "Select DRV files",         "Select SYS and 386 files",
                           "Select OCX files", "Select EXE and COM files", "Select PIF and SCR files"}[i];
        }
    }

    Frame intF;
    Label folderHeading{intF, "Folder:", at(32, 24, 536, 20)};
    ComboBox Combo1{intF, at(32, 48, 400, 24)};
    cButton addRem{intF, "Add/Remove Custom Folders...", at(32, 80, 232, 32)};
    std::array<tarvelon::check, 6> check{
        {tarvelon::check{intF, "", at(32, 136, 24, 32)}, tarvelon::check{intF, "", at(32, 176, 24, 32)},
         tarvelon::check{intF, "", at(32, 216, 24, 32)}, tarvelon::check{intF, "", at(32, 256, 24, 32)},
         tarvelon::check{intF, "", at(32, 296, 24, 32)}, tarvelon::check{intF, "", at(32, 336, 24, 32)}}};
    cButton bDLL{intF, "Dynamic Linked Library (DLL)", at(64, 136, 264, 32)};
    cButton bDRV{intF, "Driver Files (DRV)", at(64, 176, 264, 32)};
    cButton bSYS{intF, "System Files (SYS, 386)", at(64, 216, 264, 32)};
    cButton bOCX{intF, "ActiveX Files (OCX)", at(64, 256, 264, 32)};
    cButton bEXE{intF, "Executable Files (EXE, COM)", at(64, 296, 264, 32)};
    cButton bEXE2{intF, "Exploited File Types (PIF, SCR)", at(64, 336, 264, 32)};
    cButton bFULL{intF, "Select All", at(352, 136, 152, 32)};
    cButton bCLEAR{intF, "Clear Selections", at(352, 176, 152, 32)};
    cButton bSCAN{intF, "Scan Folder Now", at(32, 400, 296, 40)};

    /// What flips the six type boxes, in their order.
    std::array<cButton*, 6> typeButtons{&bDLL, &bDRV, &bSYS, &bOCX, &bEXE, &bEXE2};
};

} // namespace tarvelon
