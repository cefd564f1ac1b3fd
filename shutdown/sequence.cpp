#include "shutdown/sequence.h"

#include "avshell/s_avir_screen.h"
#include "avshell/scanner.h"
#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/unscanned.h"
#include "logging/log_files.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/processes.h"
#include "regwatch/pending_files.h"
#include "regwatch/reg_page_controls.h"
#include "shutdown/logoff_screen.h"
#include "shutdown/power_action.h"
#include "shutdown/sprog_screen.h"
#include "ui/controls/lists.h"

namespace tarvelon {

namespace {

constexpr int secondsToWait = 120;

} // namespace

Sequence::Sequence(LogoffScreen& logoff, SProgScreen& sProg, const ListBox& warnings,
                   const SAvirScreen& scanners, const Services& services, const Scanner& scanner,
                   LogFiles& logFiles, PowerAction& power)
    : Services(services)
    , logoff_(logoff)
    , sProg_(sProg)
    , warnings_(warnings)
    , scanners_(scanners)
    , scanner_(scanner)
    , logFiles_(logFiles)
    , power_(power) {
    logoff_.Timer1.onTick = [this] { countDown(); };
    sProg_.Command1.onClick = [this] { power_.ShutDown(globals.app.shutAction); };
    sProg_.onQueryClose = [this] { return queryClose(); };
}

void Sequence::preShut0() {
    CheckWinInit();
}

// ---- Files pending for the next boot

void Sequence::CheckWinInit() {
    sProg_.load();
    status("Checking Startup/Delete/Replace Entries...");
    sProg_.ProgressBar1.setValue(0);
    if (wininitThere(funcMod)) {
        scanWininit();
    }
    scanPendingRenames();
    PreShut1();
}

void Sequence::scanWininit() {
    std::vector<std::string> batch;
    for (const PendingFile& entry : wininitEntries(globals.texts, platform, funcMod)) {
        batch.push_back(item(entry.file));
    }
    runScanners(batch);
    const std::string all = joined(batch);
    if (!all.empty()) {
        passOver([&] {
            logFiles_.writeLog("The following Files were scanned as a precaution (being renamed or deleted "
                               "from Wininit)," +
                               all);
        });
    }
    sProg_.ProgressBar1.setValue(50);
}

void Sequence::scanPendingRenames() {
    const auto files = pendingRenames(globals.texts, platform);
    if (files.empty()) {
        return;
    }
    std::vector<std::string> batch;
    std::string collected;
    int taken = 0;
    for (std::size_t i = 0; i < files.size(); ++i) {
        // Twice in one batch is once too often; the batch before is forgotten.
        if (files[i] && joined(batch).find(*files[i]) == std::string::npos) {
            ++taken;
            batch.push_back(item(*files[i]));
        }
        if (i + 1 == files.size() || taken >= globals.settings.passCount) {
            runScanners(batch);
            collected += joined(batch);
            batch.clear();
            taken = 0;
        }
    }
    sProg_.ProgressBar1.setValue(100);
    if (!collected.empty()) {
        passOver([&] {
            logFiles_.writeLog("The following Files were scanned as a precaution (being renamed or deleted "
                               "from the Registry)," +
                               collected);
        });
    }
}

/// The file as it stands on a command line; empty when it is gone.
std::string Sequence::item(const std::string& file) const {
    const std::string name = scanner_.shortened(file);
    return funcMod.fileThere(name) ? scanner_.quoted(name) + " " : std::string();
}

/// The second scanner starts even when there is nothing to hand over. One that cannot be started goes
/// unnoticed.
void Sequence::runScanners(const std::vector<std::string>& batch) {
    const ScannerPair scanners{scanners_.first.command(), scanners_.second.command()};
    const auto run = [this](const ScannerCommand& scanner, const std::string& list) {
        passOver([&] { scanner_.runScanner(scanner.exe, scanner.arguments(list)); });
    };
    for (const std::string& list : scanner_.lists(scanners, batch)) {
        if (!list.empty()) {
            run(scanners.first, list);
        }
        if (scanners.second.isSet()) {
            run(scanners.second, list);
        }
    }
}

// ---- The scans

void Sequence::PreShut1() {
    globals.app.autoLoadRun = true;
    logoff_.hide();
    status("Scanning Files...");
    try {
        hooks.loadUp();
        sProg_.show();
    } catch (const Failure& failure) {
        sProg_.show();
        goOnWithoutScan(failure);
    }
}

/// No scan's end will bring what follows.
void Sequence::goOnWithoutScan(const Failure& failure) {
    tellUnscanned(platform, failure);
    if (!globals.app.inShutDown()) {
        platform.processes.end();
    }
    globals.shutDown.scanLogged = 1; // The machine must not go down as if all were well.
    passOver([this] { PreShut2(); });
}

void Sequence::PreShut2() {
    status("Scanning Registry...");
    hooks.setReg();
    if (warnings_.item(1) != RegPageControls::noWarnings) {
        status("Found Modified Registry Entries...");
        hooks.scanAndUpdate();
    }
    startCountDown();
}

// ---- The end

void Sequence::startCountDown() {
    if (globals.shutDown.scanLogged == 0) {
        status("All scans completed.  No suspicious files found!");
        power_.ShutDown(globals.app.shutAction);
        return;
    }
    status("Some files were scanned...Shutting Down in 2 minutes");
    sProg_.Command1.Visible = true;
    sProg_.timeLeft.Visible = true;
    sProg_.wayOut.Visible = true;
    showTimeLeft(secondsToWait);
    sProg_.ProgressBar1.setValue(0);
    sProg_.ProgressBar1.setMax(secondsToWait);
    logoff_.Timer1.Enabled = globals.shutDown.scanLogged == 1;
}

/// The clock goes on behind the second minute. The action comes once: refused, it is not tried again, and a
/// machine that has slept meanwhile is left awake.
void Sequence::countDown() {
    sProg_.ProgressBar1.setValue(sProg_.ProgressBar1.value() + 1);
    showTimeLeft(secondsToWait - sProg_.ProgressBar1.value());
    if (++secondsPast == 60) {
        secondsPast = 0;
        ++minutesPast;
    }
    if (minutesPast == 2 && secondsPast == 0) {
        power_.ShutDown(globals.app.shutAction);
    }
}

void Sequence::showTimeLeft(int seconds) {
    const std::string rest = std::to_string(seconds % 60);
    sProg_.timeLeft.Caption = std::to_string(seconds / 60) + (rest.size() == 1 ? ":0" : ":") + rest;
}

bool Sequence::queryClose() {
    const Answer answer = platform.dialogs.message({.text = "Cancel Shutdown?", .buttons = Buttons::YesNo});
    if (answer == Answer::Yes) {
        platform.processes.end();
    }
    return false;
}

void Sequence::status(const std::string& text) {
    sProg_.Label2.Caption = "Status: " + text;
}

} // namespace tarvelon
