#pragma once

#include <array>
#include <string>

namespace tarvelon {

class TextRules;

/// A product of the catalogue, and which of its files takes a command line.
struct KnownScanner {
    const char* product;
    const char* file;
};

inline constexpr std::array<KnownScanner, 16> knownScanners{
    {{"AVAST 4 (All Operating Systems)", "ashQuick.exe"},
     {"AVAST32 (All Operating Systems)", "quick32.exe"},
     {"AVG (All Operating Systems)", "avgse.exe"},
     {"EZ Anti-Virus (All Operating Systems)", "vet98.exe"},
     {"Fix-It Utilities (All OS)", "AVCmd.exe"},
     {"F-Prot (All Operating Systems)", "fpcmd.exe"},
     {"H+BDEV AntiVir (Personal Edition - All OS)", "avwin.exe"},
     {"Kaspersky 3.0 (All Operating Systems)", "avp32.exe"},
     {"McAfee 5.0 and earlier (All Operating Systems)", "scan32.exe"},
     {"McAfee 6.0 (All Operating Systems)", "scanpm.exe"},
     {"McAfee 6.02 and later (All Operating Systems)", "scan.exe"},
     {"NOD32 (All Operating Systems)", "nod32.exe"},
     {"Norton (2000/NT)", "navwnt.exe"},
     {"Norton (Win95/98/ME/XP)", "navw32.exe"},
     {"Panda 7.0 Platinum (All-OS)", "Pavcl.com"},
     {"Sophos Anti Virus (All-OS)", "sweep.exe"}}};

/// The file box in which the user picks a scanner.
inline constexpr const char* scannerBoxTitle = "Choose Anti-Virus Executable File";
std::string scannerBoxFilter();

enum class ScannerFamily { Navw, Pavcl, Other };

/// By a part of the program's path, whatever its case; a folder's name counts as well.
ScannerFamily scannerFamily(const TextRules& texts, const std::string& path);

/// The arguments that a scanner needs in front of the files: one blank for most.
const char* defaultArguments(ScannerFamily family);

} // namespace tarvelon
