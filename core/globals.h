#pragma once

#include "core/entry_block.h"
#include "core/text.h"

#include <array>
#include <cstdint>
#include <string>

namespace tarvelon {

/// Below the program's folder.
inline constexpr const char* dataFolderName = "Data\\";

/// Fixed at start-up.
struct AppState {
    std::string appPath;  ///< The program's folder, with a backslash.
    std::string settFile; ///< The settings file.
    std::string intFile;  ///< The system baseline of the next scan; its name follows `algoName`.
    std::string regFile;  ///< The registry snapshot.
    std::string cmdLine;  ///< The switch as typed, trimmed.
    /// -1: no shut-down pending; 0 hibernate, 1 suspend, 2 restart, 8 turn off.
    std::int16_t shutAction = -1;
    bool autoLoadRun = false; ///< Run without questions.
    bool schedRun = false;    ///< A scheduled scan plans for all file types.

    bool inShutDown() const { return shutAction != -1; }
    std::string dataFolder() const { return appPath + dataFolderName; }
    std::string logFolder() const { return dataFolder() + "Log\\"; }
};

/// How files are checksummed. The baselines are named after it.
struct Algorithm {
    std::string algoName;
    std::int32_t readBuffer = 65536; ///< Bytes read at a time by every file checksum.
};

/// What the user chose, as `loadSettings` read it.
struct Settings : Algorithm {
    std::int32_t passCount = 500; ///< Files handed to a scanner at a time.
    std::int16_t useWsh = 0;      ///< 1: shortcuts are made by the scripting host.
    std::string quoteChar;        ///< One double quote, or empty.
    bool shortPaths = false;
    bool autoScanFailed = false;
};

constexpr std::size_t sectionCount = 9;

/// Section names of every baseline, in the order of the file.
constexpr std::array<const char*, sectionCount> sectionNames = {"DLL", "DRV", "386", "SYS", "OCX",
                                                                "EXE", "COM", "PIF", "SCR"};

/// The baselines in memory: that of the system directory, and that of the custom folder in hand.
struct Baselines {
    std::array<EntryBlock, sectionCount> sectionText;
    std::array<std::string, sectionCount> sectionName;
    std::array<EntryBlock, sectionCount> customText;
    std::array<std::string, sectionCount> customName;
    bool primaryBuild = false; ///< The user accepted the primary full scan; stays set.
    bool primaryScan = false;  ///< The primary full scan is filling the file in, entry by entry.
};

/// Custom folders are numbered from 1 to this.
constexpr int folderSlots = 20;

/// What a scan's starters, driver, engine and result action share.
struct ScanRun {
    /// In force since the plan, for the scan and for accepting what it found, whatever is chosen meanwhile.
    Algorithm algorithm;
    bool accepting = false;       ///< Findings are being accepted into the baselines.
    bool pageScan = false;        ///< The scan belongs to the main window.
    bool noAutoAction = false;    ///< The result action does not run by itself.
    bool customFirstScan = false; ///< First scan of a custom folder: its outcome is the new baseline.
    bool scanDLL = false;
    bool scanDRV = false;
    bool scanSYS = false;
    bool scanOCX = false;
    bool scanEXE = false;
    bool scanEXE2 = false;
    std::int16_t passType = 0;    ///< 1 to 6: the pass now running.
    std::string customFolder;     ///< Empty: the system directory.
    std::int16_t customIndex = 0; ///< The custom folder's slot, 1 to 20.
    std::string customQueue;      ///< Slots still to scan, each with a comma behind it.
    bool scanPaused = false;
    bool scanCancelled = false;
    std::int32_t passDone = 0;
    std::int32_t failCount = 0;
    std::int32_t newCount = 0;
    std::string failList;       ///< Findings in the system directory: path, blank, checksum, comma.
    std::string customFailList; ///< Findings elsewhere: path, "(slot)", blank, checksum, comma.

    /// The six pass flags, in the order of the passes.
    std::array<bool*, 6> wanted() { return {&scanDLL, &scanDRV, &scanSYS, &scanOCX, &scanEXE, &scanEXE2}; }
    void want(bool all) {
        for (bool* flag : wanted()) {
            *flag = all;
        }
    }
};

struct DigestState {
    /// The cryptographic service's provider, one for the process; 0 before its first use.
    std::uintptr_t provider = 0;
};

struct RegWatchState {
    bool regNew = false; ///< The next pass over the registry records instead of comparing.
};

struct ShutDownState {
    /// 1: some list of files was logged during the shut-down, or its scan could not be made.
    std::int16_t scanLogged = 0;
};

/// The state that all subsystems share; made once, in `Application`.
struct Globals {
    TextRules texts; ///< Of the process's code page.
    AppState app;
    Settings settings;
    Baselines baselines;
    ScanRun scan;
    DigestState digest;
    RegWatchState regWatch;
    ShutDownState shutDown;
};

} // namespace tarvelon
