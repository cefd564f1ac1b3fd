#include "integrity/intcheck.h"

#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "hash/checksum.h"
#include "integrity/baseline_builder.h"
#include "integrity/data_file.h"
#include "integrity/intcheck_screen.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/messages.h"
#include "platform/platform.h"
#include "platform/processes.h"

namespace tarvelon {

namespace {

constexpr const char* closeCheckCaption = "Close Integrity Check Window";

/// What a scan has found.
std::string sentence(std::int32_t failed, std::int32_t added) {
    if (failed == 0 && added == 0) {
        return "No files were compared.";
    }
    const std::string areNew = added == 1 ? "1 file is new" : std::to_string(added) + " files are new";
    if (failed == 0) {
        return areNew + ".";
    }
    const std::string changed =
        failed == 1 ? "1 file has changed" : std::to_string(failed) + " files have changed";
    return changed + (added > 0 ? ", " + areNew : "") + ".";
}

} // namespace

IntCheck::IntCheck(IntCheckScreen& screen, const Services& services, Checksum& checksum, DataFile& dataFile,
                   BaselineBuilder& baselineBuilder, Comparison& comparison)
    : Services(services)
    , screen_(screen)
    , checksum_(checksum)
    , dataFile_(dataFile)
    , baselineBuilder_(baselineBuilder)
    , comparison_(comparison) {
    bind();
}

void IntCheck::bind() {
    screen_.onLoad = [this] { fillBoth(settings, screen_.first, screen_.second); };
    screen_.onQueryClose = [this] { return queryClose(); };
    screen_.Timer1.onTick = [this] { scanFolders(); };
    screen_.Image9.onClick = [this] { setPaused(!globals.scan.scanPaused); };
    screen_.Label11.onClick = screen_.Image9.onClick;
    screen_.Image11.onClick = [this] { Command1_Click(); };
    screen_.Command1.onClick = screen_.Image11.onClick;
    screen_.Label2.onClick = [this] { showFailedFiles(); };
    screen_.Label12.onClick = [this] { hooks.resultAction(); };
}

// ---- The passes

bool IntCheck::runs() const {
    return busy_ > 0 || screen_.Timer1.Enabled();
}

void IntCheck::scanFolders() {
    const Busy busy(busy_);
    screen_.Timer1.Enabled = false;
    globals.scan.scanCancelled = false;
    screen_.pb1max.Caption = "0";
    screen_.pbm.Caption = "0";
    // Behind a plan of its own the start-up loads the baseline of the settings, which it has read since.
    passOver([this] { dataFile_.needIntFile(checksum_.getIntFile()); });
    int turn = 0;
    std::size_t folders = 0;
    do {
        resetCaptions();
        runPasses();
    } while (takeNextCustomFolder(turn, folders));
    finish();
}

void IntCheck::runPasses() {
    screen_.custRow.Current = !globals.scan.customFolder.empty();
    for (std::size_t i = 0; i < passKinds.size(); ++i) {
        const PassKind& kind = passKinds[i];
        const PassLabels& labels = screen_.passes[i];
        if (!*globals.scan.wanted()[i]) {
            labels.title.Caption = kind.notWanted;
            continue;
        }
        globals.scan.passType = static_cast<std::int16_t>(i + 1);
        for (Label* label : {&labels.title, &labels.file, &labels.percent}) {
            label->ForeColor = colors::scanGrey;
        }
        labels.row.Current = true;
        screen_.pb1max.Caption = kind.count ? std::to_string(planned_.*kind.count) : std::string();
        // A pass with one extension gets a second one that no file has.
        IntegrityChecker2(kind.ext1, *kind.ext2 ? kind.ext2 : "...");
        labels.row.Current = false;
    }
}

void IntCheck::IntegrityChecker2(const std::string& ext1, const std::string& ext2,
                                 const std::string& dataFile) {
    comparison_.comparePass({ext1, ext2, dataFile});
}

/// Takes the first folder off the queue and makes it the current one; false when the queue is empty. `turn`
/// is its number in this scan, and `folders` how many there were at the first.
bool IntCheck::takeNextCustomFolder(int& turn, std::size_t& folders) {
    ScanRun& scan = globals.scan;
    if (scan.customQueue.empty()) {
        return false;
    }
    const std::vector<std::string> queue = split(scan.customQueue, ',');
    if (turn == 0) {
        folders = queue.size() - 1;
    }
    ++turn;
    const std::string& slot = queue.front();
    scan.customFolder = settings.ofSlot(slot, "path");
    screen_.l_cust2.Caption = "Custom Folder " + std::to_string(turn) + "/" + std::to_string(folders);
    platform.messages.pump();

    // The types are those of "args" in a shut-down as well, although "args2" chose the folder.
    const std::string types = settings.ofSlot(slot, "args");
    scan.want(false);
    wantFrom(types);
    scan.customIndex = static_cast<std::int16_t>(toNumber(slot).value_or(0));
    scan.customQueue.erase(0, slot.size() + 1);
    passOver([&] { dataFile_.loadCustomDat(checksum_.getCustomDat(scan.customIndex)); });
    platform.messages.pump();
    return true;
}

void IntCheck::finish() {
    Baselines& baselines = globals.baselines;
    const ScanRun& scan = globals.scan;
    if (baselines.primaryScan) {
        baselines.primaryScan = false;
        passOver([this] { dataFile_.loadIntFile(checksum_.getIntFile()); });
        screen_.hide();
        hooks.showMainWindow();
    }
    if (!scan.noAutoAction && (globals.app.inShutDown() || globals.settings.autoScanFailed)) {
        passOver(hooks.resultAction);
    }
    if (!scan.scanCancelled && screen_.Label6.Caption() == screen_.Label7.Caption()) {
        screen_.Label14.Visible = true;
        if (!globals.app.inShutDown() && globals.app.autoLoadRun) {
            platform.processes.end();
        }
    }
    if (screen_.Label14.Visible()) {
        screen_.Label2.Caption = closeCheckCaption;
        screen_.Label2.ToolTip = "";
    }
    if (scan.customFirstScan) {
        passOver(hooks.resultAction);
    }
    showOutcome();
    if (globals.app.inShutDown()) {
        passOver(hooks.preShut2);
    }
    platform.messages.pump();
}

void IntCheck::showOutcome() {
    screen_.custRow.Current = false;
    if (globals.scan.scanCancelled) {
        screen_.showView(screen_.progress);
        return;
    }
    showFindings();
    screen_.showView(screen_.results);
    screen_.Label13.Caption = "Results";
    // A run at log-on scans minimised; what it found is to be seen.
    screen_.Minimized = false;
}

/// In a sentence, and by the colours of the figures.
void IntCheck::showFindings() {
    const ScanRun& scan = globals.scan;
    screen_.found.Visible = !screen_.Label14.Visible();
    screen_.found.Caption = sentence(scan.failCount, scan.newCount);
    screen_.found.tone = scan.failCount > 0 ? Tone::Bad : scan.newCount > 0 ? Tone::Attention : Tone::Quiet;
    screen_.Label9.tone = scan.failCount > 0 ? Tone::Bad : Tone::Plain;
    screen_.Label8.tone = scan.newCount > 0 ? Tone::Attention : Tone::Plain;
    screen_.Label7.tone = Tone::Good;
}

// ---- The screen

void IntCheck::resetCaptions() {
    for (const PassLabels& labels : screen_.passes) {
        for (Label* label : {&labels.title, &labels.file, &labels.percent}) {
            label->ForeColor = colors::black;
        }
        labels.row.Current = false;
    }
    screen_.Label12.Caption = "Scan Failing Files...";
    screen_.Label12.ToolTip = "Has the scanner look at these files, then takes them as they are now";
    screen_.Label2.Caption = "Repair and Update Failed Files...";
    screen_.Label2.ToolTip = "Lists the files; nothing is done to them yet";
    screen_.Label13.Caption = "Scanning...Please Wait";
    platform.messages.pump();
}

void IntCheck::setPaused(bool paused) {
    globals.scan.scanPaused = paused;
    screen_.Label11.Visible = paused;
    screen_.Image9.Visible = !paused;
}

void IntCheck::showFailedFiles() {
    if (screen_.Label2.Caption() == closeCheckCaption) {
        Command1_Click();
        return;
    }
    screen_.showView(screen_.failedFiles);
    screen_.Label13.Caption = "Failed Files List";
}

void IntCheck::Command1_Click() {
    ScanRun& scan = globals.scan;
    screen_.load();
    scan.customQueue.clear();
    setPaused(false);
    const std::string intFile = checksum_.getIntFile();
    if (!funcMod.fileThere(intFile)) {
        baselineBuilder_.checkIntFile(); // An algorithm chosen meanwhile is no matter before the next plan.
    }
    if (!confirmLeave()) {
        return;
    }
    scan.scanCancelled = true;
    screen_.Timer1.Enabled = false;
    if (scan.customFolder.empty()) {
        dataFile_.loadIntFile(intFile);
    }
    screen_.hide();
}

/// The window's close box: the same leave, but the queue stays, nothing is checked, and the system baseline
/// is loaded anew whatever folder was in hand.
bool IntCheck::queryClose() {
    setPaused(false);
    if (!confirmLeave()) {
        return false;
    }
    globals.scan.scanCancelled = true;
    screen_.Timer1.Enabled = false;
    screen_.hide();
    dataFile_.loadIntFile(checksum_.getIntFile());
    return true;
}

/// True when a scan of the main window may be left. Any other scan ends the program instead.
bool IntCheck::confirmLeave() {
    if (screen_.List1.count() > 0) {
        const Answer answer = platform.dialogs.message(
            {.text = "Some files failed the integrity check!  Are you sure you want to exit?",
             .title = "Warning",
             .buttons = Buttons::YesNo});
        if (answer != Answer::Yes) {
            return false;
        }
        screen_.List1.clear();
    }
    if (globals.scan.pageScan) {
        return true;
    }
    if (globals.baselines.primaryScan) {
        const Answer answer = platform.dialogs.message(
            {.text = "If you stop the scan now, you will need to re-start it later\r\n"
                     "Are you sure you want to abandon the full system scan?",
             .buttons = Buttons::YesNo});
        if (answer != Answer::Yes) {
            return false;
        }
        platform.files.remove(checksum_.getIntFile());
    }
    platform.processes.end();
}

} // namespace tarvelon
