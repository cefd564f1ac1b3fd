#include "integrity/result_action.h"

#include "avshell/scanner.h"
#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/search_index.h"
#include "core/settings_file.h"
#include "hash/checksum.h"
#include "hash/do_events.h"
#include "integrity/data_file.h"
#include "integrity/intcheck_screen.h"
#include "logging/log_files.h"
#include "platform/dialogs.h"
#include "platform/messages.h"
#include "platform/platform.h"
#include "platform/processes.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace tarvelon {

namespace {

constexpr const char* closeWindowCaption = "Close Integrity Window";

std::string withoutNewMark(const std::string& item) {
    return replaceExact(item, IntCheckScreen::newMark, "");
}

/// What stands behind the last backslash. Input is let in at each one.
std::string nameOf(const TextRules& texts, const std::string& path, clsDoEvents& pump) {
    std::size_t name = 0;
    for (std::size_t slash = texts.first(path, '\\'); slash != std::string::npos;
         slash = texts.first(path, '\\', name)) {
        name = slash + 1;
        pump.GetInputState();
    }
    return path.substr(name);
}

class Accepting {
public:
    explicit Accepting(bool& flag)
        : flag_(flag) {
        flag_ = true;
    }
    Accepting(const Accepting&) = delete;
    ~Accepting() { flag_ = false; }

private:
    bool& flag_;
};

/// Where to go on behind a text, counted from 1: one past its position, and 1 when it is not there.
std::size_t startBehind(const SearchIndex& text, const std::string& searched) {
    const std::size_t hit = text.find(searched);
    return hit == std::string::npos ? 1 : hit + 2;
}

} // namespace

ResultAction::ResultAction(IntCheckScreen& screen, const Services& services, Checksum& checksum,
                           DataFile& dataFile, const Scanner& scanner, LogFiles& logFiles)
    : Services(services)
    , screen_(screen)
    , checksum_(checksum)
    , dataFile_(dataFile)
    , scanner_(scanner)
    , logFiles_(logFiles) {}

void ResultAction::act() {
    if (globals.scan.accepting) {
        return;
    }
    if (!globals.scan.customFirstScan && screen_.Label12.Caption() == closeWindowCaption) {
        hooks.leaveScan();
        return;
    }
    hooks.undisturbed([this] {
        const Accepting accepting(globals.scan.accepting);
        handOverAndAccept();
    });
}

void ResultAction::handOverAndAccept() {
    try {
        // The first scan of a custom folder passes nothing to a scanner and logs nothing.
        if (!globals.scan.customFirstScan && !handOver()) {
            return;
        }
        acceptFindings();
    } catch (const Failure&) {
        platform.dialogs.message({.text = couldNotBeExecuted(screen_.Text1.Caption())});
    }
}

/// Scanners and report. False when nothing is left to do.
bool ResultAction::handOver() {
    const bool noScanner = !funcMod.fileThere(screen_.Text1.Caption());
    if (noScanner) {
        platform.dialogs.message(
            {.text =
                 "You do not have any Anti-Virus program setup with Tarvelon.  For your conveniance, these "
                 "files will be added to the log, and will be updated in your Integrity File (so that you "
                 "can scan them for viruses later)."});
    }
    std::string all;
    if (startScanners(noScanner, all) == Handed::All && !globals.app.inShutDown()) {
        if (globals.baselines.primaryBuild) {
            return false;
        }
        if (all.empty()) {
            platform.processes.end();
        }
    }
    screen_.Label13.Caption = "Logging Action...";
    if (noScanner) {
        logFiles_.writeLog(
            "Integrity Checker - These files were logged because you didn't setup an Anti-Virus Scanner," +
                all,
            true);
    } else {
        logFiles_.writeLog("Integrity Checker - These files were either New or Failed the Integrity Check," +
                           all);
    }
    return true;
}

/// Hands the list over in batches and collects them in `all`. Without a scanner the walk ends at the first
/// batch, so that only this one reaches the report.
ResultAction::Handed ResultAction::startScanners(bool noScanner, std::string& all) {
    const ScannerPair scanners{screen_.first.command(), screen_.second.command()};
    // One row past the end, which reads as empty and only hands over the last batch.
    const int lastRow = screen_.List1.count();
    const bool ended = scanner_.batch(
        0, lastRow, [this](int row) { return withoutNewMark(screen_.List1.item(row)); },
        [&](const std::vector<std::string>& batch) {
            all += joined(batch);
            if (!noScanner) {
                scanner_.startBoth(scanners, batch);
            }
            return !noScanner;
        });
    return ended ? Handed::All : Handed::FirstBatchOnly;
}

void ResultAction::acceptFindings() {
    screen_.Label13.Caption = "Updating Integrity File...";
    if (!UpdateDatFile()) {
        return;
    }
    if (globals.scan.customFirstScan) {
        screen_.hide();
        globals.scan.customFirstScan = false;
        screen_.List1.clear();
        platform.dialogs.message({.text = "Initial Custom Folder Scan Completed Successfully!"});
        return;
    }
    const bool runWithSwitch = !globals.app.cmdLine.empty() && !globals.app.inShutDown();
    if (runWithSwitch && globals.settings.autoScanFailed) {
        platform.processes.end();
    }
    screen_.List1.clear();
}

bool ResultAction::UpdateDatFile() {
    if (screen_.List1.count() == 0) {
        return true;
    }
    const std::string caption = screen_.Caption();
    screen_.Caption = "Updating - Please Wait...";
    std::string failures;
    const auto save = [&failures](const auto& statement) {
        try {
            statement();
        } catch (const Failure& failure) {
            failures += failure.what() + std::string("\r\n\r\n");
        }
    };
    clsDoEvents pump(platform.messages);
    pump.QueueUsed(userInput);
    const std::string intFile = checksum_.getIntFile();
    const SearchIndex failList(globals.scan.failList);
    const SearchIndex customFailList(globals.scan.customFailList);

    // Both stay from one turn to the next: behind a system file, a custom folder's file also leaves a line in
    // the system baseline, with the system file's checksum.
    bool systemFileSeen = false;
    std::string value;
    const int count = screen_.List1.count();
    for (int row = 0; row < count; ++row) {
        const std::string item = withoutNewMark(screen_.List1.item(row));
        const std::string section = globals.texts.upper(lastCharacters(item, 3));
        if (failList.find(item) != std::string::npos) {
            value = systemValue(failList, item);
            systemFileSeen = true;
        } else {
            queueForCustom(customFailList, item);
        }
        if (row == count - 1) {
            for (int slot = 1; slot <= static_cast<int>(passFolderList.size()); ++slot) {
                if (!passFolderList[static_cast<std::size_t>(slot - 1)].empty()) {
                    save([&] { SpecialSave(slot); });
                }
            }
        }
        globals.scan.customFolder.clear();
        if (systemFileSeen) {
            const std::string name = nameOf(globals.texts, item, pump);
            passOver([&] { settings.writeEntry(intFile, name, value + "*E", section); });
        }
        pump.GetInputState();
    }
    save([this] { dataFile_.saveIntFile(); });
    passOver([&] { dataFile_.loadIntFile(intFile); });
    if (!failures.empty()) {
        screen_.Caption = caption;
        screen_.Label13.Caption = "Failed Files List";
        platform.dialogs.message({.text = failures + "The files stay listed and can be accepted again.",
                                  .icon = BoxIcon::Warning});
        return false;
    }
    screen_.Caption = "Integrity File(s) Updated";
    screen_.Label13.Caption = "Integrity File Updated";
    screen_.Label12.Caption = closeWindowCaption;
    screen_.Label12.ToolTip = "";
    return true;
}

/// The checksum that stands behind the item in the findings of the system directory.
std::string ResultAction::systemValue(const SearchIndex& copy, const std::string& item) const {
    const TextRules& texts = globals.texts;
    std::string value = getBetween(texts, copy.text(), startBehind(copy, "," + item + " "), " ", ",");
    if (value.empty()) {
        value = getBetween(texts, copy.text(), startBehind(copy, item + " "), " ", ",");
    }
    // A blank in the path makes the value begin inside it: "Files\X.DLL 3A2B44C1". The dot, three letters and
    // the blank are skipped.
    const std::size_t dot = value.find('.');
    if (dot != std::string::npos) {
        value = value.size() > dot + 5 ? value.substr(dot + 5) : std::string();
    }
    return value;
}

/// Puts the item and its checksum among the pending entries of its slot.
void ResultAction::queueForCustom(const SearchIndex& copy, const std::string& item) {
    const TextRules& texts = globals.texts;
    std::string found = getBetween(texts, copy.text(), startBehind(copy, "," + item + "("), "(", ",");
    if (found.empty()) {
        found = getBetween(texts, copy.text(), startBehind(copy, item + "("), "(", ",");
    }
    if (found.empty()) {
        return;
    }
    const std::string entry = "(" + found + ",";
    const auto slot = toNumber(getBetween(texts, entry, 1, "(", ")"));
    if (slot && *slot >= 1 && *slot <= static_cast<int>(passFolderList.size())) {
        passFolderList[static_cast<std::size_t>(*slot - 1)] += item + entry;
    }
}

void ResultAction::SpecialSave(int slot) {
    const std::string list = std::exchange(passFolderList[static_cast<std::size_t>(slot - 1)], {});
    if (settings.ofSlot(slot, "path") == "NULL") {
        return; // The folder was removed after its scan.
    }
    const std::string file = checksum_.getCustomDat(slot);
    dataFile_.loadCustomDat(file);
    globals.scan.customFolder = "!"; // Any text: entries now go to the custom baseline.
    for (std::string_view pending = list; !pending.empty();) {
        const std::string path(pending.substr(0, pending.find('(')));
        const std::string value = getBetween(globals.texts, pending, 1, ") ", ",");
        pending.remove_prefix(std::min(pending.find(','), pending.size() - 1) + 1);
        const std::string section = globals.texts.upper(lastCharacters(path, 3));
        passOver([&] { settings.writeEntry(file, globals.texts.bareName(path), value + "*E", section); });
        platform.messages.pump();
    }
    dataFile_.saveCustomDat(file);
}

} // namespace tarvelon
