// The plan of a scan: which folders and file types it takes in, and how many files that is.

#include "core/failure.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "core/utilities.h"
#include "hash/checksum.h"
#include "integrity/baseline.h"
#include "integrity/data_file.h"
#include "integrity/intcheck.h"
#include "integrity/intcheck_screen.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/platform.h"

#include <array>
#include <vector>

namespace tarvelon {

namespace {

/// What each wanted pass adds to the list of extensions.
constexpr std::array<const char*, 6> passExtensions = {".dll", ".drv",     ".sys.386",
                                                       ".ocx", ".exe.com", ".pif.scr"};

constexpr std::array<const char*, 7> passTitles = {"DLL Scan",          "Driver Scan",
                                                   "System Files Scan", "OCX Scan",
                                                   "Executable Scan",   "Commonly Exploited Executable Scan",
                                                   "Custom Folder"};

} // namespace

/// How far the planning has come.
struct IntCheck::Plan {
    int slot = 0; ///< The custom folder slot looked at last.
    std::int32_t grandTotal = 0;
};

void IntCheck::LoadUp() {
    const Busy busy(busy_);
    screen_.load();
    globals.scan.algorithm = static_cast<const Algorithm&>(globals.settings);
    checksum_.setDatName();
    baseline_.checkIntFile();
    dataFile_.needIntFile(checksum_.getIntFile());
    resetCaptions();
    setPaused(false);
    screen_.Frame1.Visible = true;
    screen_.Frame2.Visible = false;
    screen_.Frame3.Visible = false;
    platform.messages.pump();
    screen_.Label14.Visible = false;
    resetRun();
    wantTypesOfRun();

    Plan plan;
    bool another = true;
    while (another) {
        countFolder(plan);
        if (globals.baselines.primaryBuild) {
            break;
        }
        const bool foldersJoin = inShutDown() || !globals.app.cmdLine.empty();
        another = foldersJoin && joinNextFolder(plan);
        if (foldersJoin && !another) {
            // The joining folders have used the flags; they go back to what the system passes want.
            globals.scan.want(false);
            wantFromWithAutoScan(savedTypes());
        }
    }
    screen_.pb2max.Caption = std::to_string(plan.grandTotal == 0 ? 1 : plan.grandTotal);
    screen_.Timer1.Enabled = true;
}

void IntCheck::resetRun() {
    ScanRun& scan = globals.scan;
    scan.failList.clear();
    scan.customFailList.clear();
    scan.customQueue.clear();
    extList.clear();
    cntDLL = cntDRV = cntSYS = cntOCX = cntEXE = cntPIF = 0;
    for (std::size_t i = 0; i < screen_.passes.size(); ++i) {
        screen_.passes[i].title.Caption = passTitles[i];
        screen_.passes[i].file.Caption = "";
        screen_.passes[i].percent.Caption = "0%";
    }
    scan.passDone = scan.failCount = scan.newCount = 0;
}

void IntCheck::wantTypesOfRun() {
    if (globals.scan.pageScan) {
        screen_.show();
    } else if (globals.baselines.primaryScan) {
        globals.scan.want(true);
    } else {
        // Flags that are already set stay set; a list only adds to them.
        wantFromWithAutoScan(!inShutDown() && globals.app.schedRun ? "1,1,1,1,1,1,1" : savedTypes());
    }
}

std::string IntCheck::savedTypes() const {
    return settings.getSetting(inShutDown() ? "GETSETT2" : "GETSETT");
}

/// Sets the flags of the passes whose position is "1".
void IntCheck::wantFrom(const std::string& list) {
    const std::vector<std::string> positions = split(list, ',');
    const auto flags = globals.scan.wanted();
    for (std::size_t i = 0; i < flags.size() && i < positions.size(); ++i) {
        *flags[i] = *flags[i] || positions[i] == "1";
    }
}

void IntCheck::wantFromWithAutoScan(const std::string& list) {
    wantFrom(list);
    const std::vector<std::string> positions = split(list, ',');
    if (positions.size() > 6 && positions[6] == "1") {
        globals.settings.autoScanFailed = true;
    }
}

/// Counts the current folder's files of the wanted types.
void IntCheck::countFolder(Plan& plan) {
    extList.clear();
    const auto flags = globals.scan.wanted();
    for (std::size_t i = 0; i < flags.size(); ++i) {
        extList += *flags[i] ? passExtensions[i] : "";
    }
    passOver([this] { readScanners(); });
    const std::string& custom = globals.scan.customFolder;
    const std::string folder = withBackslash(custom.empty() ? trim(utilities.getSysDir()) : custom);

    const CaseRules& cases = globals.cases;
    const std::string wanted = cases.upper(extList);
    Files& files = platform.files;
    for (std::string name = files.firstName(folder); !name.empty(); name = files.nextName()) {
        const std::string tail = cases.upper(lastCharacters(name, 4));
        if (name == "." || name == ".." || wanted.find(tail) == std::string::npos) {
            continue;
        }
        cntDLL += tail == ".DLL";
        cntDRV += tail == ".DRV";
        cntSYS += tail == ".SYS" || tail == ".386";
        cntOCX += tail == ".OCX";
        cntEXE += tail == ".EXE" || tail == ".COM";
        cntPIF += tail == ".PIF"; // ".SCR" counts towards the total only.
        ++plan.grandTotal;
    }
}

/// Makes the next custom folder that takes part the current one, with its own types. False when there is no
/// further one; the system directory is then current again.
bool IntCheck::joinNextFolder(Plan& plan) {
    ScanRun& scan = globals.scan;
    const std::string& file = globals.app.settFile;
    for (;;) {
        ++plan.slot;
        const std::string list = settings.readIni(file, inShutDown() ? "args2" : "args", plan.slot);
        if (lastCharacters(list, 1) == "1") {
            scan.customQueue += std::to_string(plan.slot) + ",";
            scan.want(false);
            wantFrom(list);
            scan.customFolder = settings.readIni(file, "path", plan.slot);
            return true;
        }
        if (plan.slot > folderSlots) {
            scan.customFolder.clear();
            return false;
        }
    }
}

} // namespace tarvelon
