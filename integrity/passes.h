#pragma once

#include <array>
#include <cstdint>

namespace tarvelon {

/// Files that a scan's plan has counted, over all its folders.
struct PlannedFiles {
    std::int32_t cntDLL = 0;
    std::int32_t cntDRV = 0;
    std::int32_t cntSYS = 0;
    std::int32_t cntOCX = 0;
    std::int32_t cntEXE = 0;
    std::int32_t cntPIF = 0; ///< Without ".SCR", which counts towards the total only. No pass asks for it.
};

/// One type of files, which one pass over a folder looks for.
struct PassKind {
    const char* ext1; ///< Upper-case, with its dot.
    const char* ext2; ///< Likewise; empty where the pass has one extension only.
    /// Of the last pass nothing: it runs without a count, and its percentage stands still until it ends.
    std::int32_t PlannedFiles::*count;
    const char* title;
    const char* notWanted; ///< The title of a pass that is left out.
};

/// In their fixed order; that of `ScanRun::wanted` and of the labels in the scan's window.
inline constexpr std::array<PassKind, 6> passKinds{
    {{".DLL", "", &PlannedFiles::cntDLL, "DLL Scan", "DLL Scan --- Not Scanning"},
     {".DRV", "", &PlannedFiles::cntDRV, "Driver Scan", "Driver Scan --- Not Scanning"},
     {".SYS", ".386", &PlannedFiles::cntSYS, "System Files Scan", "System Files --- Not Scanning"},
     {".OCX", "", &PlannedFiles::cntOCX, "OCX Scan", "OCX Scan --- Not Scanning"},
     {".EXE", ".COM", &PlannedFiles::cntEXE, "Executable Scan", "Executable Scan --- Not Scanning"},
     {".PIF", ".SCR", nullptr, "Commonly Exploited Executable Scan",
      "Commonly Exploited Executables --- Not Scanning"}}};

} // namespace tarvelon
