// The plan of a scan: which folders and file types it takes in, and how many files that is.

#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "hash/checksum.h"
#include "integrity/baseline_builder.h"
#include "integrity/data_file.h"
#include "integrity/intcheck.h"
#include "integrity/intcheck_screen.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/platform.h"

#include <vector>

namespace tarvelon {

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
    baselineBuilder_.checkIntFile();
    dataFile_.needIntFile(checksum_.getIntFile());
    resetCaptions();
    setPaused(false);
    screen_.showView(screen_.progress);
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
        const bool foldersJoin = globals.app.inShutDown() || !globals.app.cmdLine.empty();
        another = foldersJoin && joinNextFolder(plan);
        if (foldersJoin && !another) {
            // The joining folders have used the flags; they go back to what the system passes want.
            globals.scan.want(false);
            wantFromWithAutoScan(savedTypes());
        }
    }
    screen_.pb2max.Caption = std::to_string(plan.grandTotal == 0 ? 1 : plan.grandTotal);
    comparison_.showDone(0);
    screen_.Timer1.Enabled = true;
}

void IntCheck::resetRun() {
    ScanRun& scan = globals.scan;
    scan.failList.clear();
    scan.customFailList.clear();
    scan.customQueue.clear();
    extList.clear();
    planned_ = {};
    for (std::size_t i = 0; i < screen_.passes.size(); ++i) {
        screen_.passes[i].title.Caption = i < passKinds.size() ? passKinds[i].title : "Custom Folder";
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
        wantFromWithAutoScan(!globals.app.inShutDown() && globals.app.schedRun ? "1,1,1,1,1,1,1"
                                                                               : savedTypes());
    }
}

std::string IntCheck::savedTypes() const {
    return settings.getSetting(globals.app.inShutDown() ? "GETSETT2" : "GETSETT");
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
    for (std::size_t i = 0; i < passKinds.size(); ++i) {
        if (*globals.scan.wanted()[i]) {
            extList.append(passKinds[i].ext1).append(passKinds[i].ext2);
        }
    }
    // Scanners may have been chosen since the window was loaded.
    passOver([this] { screen_.first.fill(settings, "ANTIVIRUS"); });
    const std::string& custom = globals.scan.customFolder;
    const TextRules& texts = globals.texts;
    const std::string folder = texts.withBackslash(custom.empty() ? trim(funcMod.getSysDir()) : custom);
    Files& files = platform.files;
    for (std::string name = files.firstName(folder); !name.empty(); name = files.nextName()) {
        const std::string tail = texts.upper(lastCharacters(name, 4));
        if (name == "." || name == ".." || extList.find(tail) == std::string::npos) {
            continue;
        }
        for (const PassKind& kind : passKinds) {
            if (kind.count && (tail == kind.ext1 || tail == kind.ext2)) {
                ++(planned_.*kind.count);
            }
        }
        planned_.cntPIF += tail == ".PIF";
        ++plan.grandTotal;
    }
}

/// Makes the next custom folder that takes part the current one, with its own types. False when there is no
/// further one; the system directory is then current again.
bool IntCheck::joinNextFolder(Plan& plan) {
    ScanRun& scan = globals.scan;
    for (;;) {
        ++plan.slot;
        const std::string list = settings.ofSlot(plan.slot, globals.app.inShutDown() ? "args2" : "args");
        if (lastCharacters(list, 1) == "1") {
            scan.customQueue += std::to_string(plan.slot) + ",";
            scan.want(false);
            wantFrom(list);
            scan.customFolder = settings.ofSlot(plan.slot, "path");
            return true;
        }
        if (plan.slot > folderSlots) {
            scan.customFolder.clear();
            return false;
        }
    }
}

} // namespace tarvelon
