#include "app/start_up.h"

#include "app/application.h"
#include "core/failure.h"
#include "core/unscanned.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/processes.h"

namespace tarvelon {

void StartUp::run() {
    fixPaths();
    AppState& state = app_.globals.app;
    state.shutAction = -1;

    // From here on a step that fails is passed over: the program opens whatever state it finds.
    ensureFolder(state.dataFolder());
    ensureFolder(state.logFolder());
    passOver([this] { app_.settingsFile.checkSettFile(); });
    tellUnwritableData();
    passOver([this] {
        app_.baselineBuilder.checkIntFile();
    }); // Still under the plain name, before any setting is read.
    passOver([this] { app_.snapshotFile.checkRegFile(); });
    passOver([this] { app_.settingsPages.loadSettings(); });
    app_.checksum.setDatName();
    passOver(
        [this] { app_.baselineBuilder.checkIntFile(); }); // And under the name of the algorithm in force.
    if (app_.funcMod.fileThere(state.intFile)) {
        passOver([&] { app_.dataFile.loadIntFile(state.intFile); });
    }
    state.cmdLine = trim(app_.platform.processes.commandLine());
    actOnCommandLine();
}

void StartUp::fixPaths() {
    const std::string file = app_.platform.processes.programFile();
    AppState& state = app_.globals.app;
    const TextRules& texts = app_.globals.texts;
    state.appPath = texts.withBackslash(file.substr(0, file.size() - texts.bareName(file).size()));
    state.settFile = state.dataFolder() + "Tarvelon.dat";
    state.intFile = state.dataFolder() + "Integrity.dat";
    state.regFile = state.dataFolder() + "Registry.dat";
}

void StartUp::ensureFolder(const std::string& folder) {
    if (app_.platform.files.firstName(folder).empty()) {
        app_.platform.files.createFolder(folder);
    }
}

/// Before anything is asked whose answer could not be kept. A settings file that another program holds for
/// the moment is no reason, so the folder is tried too.
void StartUp::tellUnwritableData() {
    const AppState& state = app_.globals.app;
    Files& files = app_.platform.files;
    if (app_.funcMod.fileThere(state.settFile) && files.open(state.settFile, OpenMode::ReadOrCreate)) {
        return;
    }
    const std::string attempt = state.dataFolder() + "Tarvelon.new";
    if (files.open(attempt, OpenMode::Create)) {
        files.remove(attempt);
        return;
    }
    app_.platform.dialogs.message(
        {.text =
             "Tarvelon cannot write to its data folder:\r\n" + state.dataFolder() +
             "\r\n\r\nNo settings, checksums or reports can be kept there. Move the Tarvelon folder to a "
             "place where you may write, such as your documents, or ask an administrator for the right to "
             "change the files in this folder.",
         .icon = BoxIcon::Warning});
}

void StartUp::actOnCommandLine() {
    AppState& state = app_.globals.app;
    if (state.cmdLine == "/r") {
        demandBaseline("Cannot start Auto-Load.  Primary Full Scan has not yet been completed.\r\nClosing");
        checkAtLogOn();
    } else if (state.cmdLine == "/s") {
        demandBaseline(
            "Cannot start Secure Shut Down.  Primary Full Scan has not yet been completed.\r\nClosing.");
        app_.mForm1.hide();
        passOver([this] { app_.frmLogoff.show(); });
    } else if (state.cmdLine == "/a") {
        demandBaseline(
            "Cannot run Scheduled Scan.  Primary Full Scan has not yet been completed.\r\nClosing.");
        app_.mForm1.hide();
        state.schedRun = true;
        passOver([this] {
            app_.frmLogoff.load();
            app_.shutDownSequence.preShut0();
        });
    }
}

void StartUp::checkAtLogOn() {
    app_.globals.app.autoLoadRun = true;
    app_.mForm1.hide();
    // As an icon from the first moment, so that nothing is made of a window that a clean run never shows.
    passOver([this] { app_.intCheck.showMinimized(); });
    try {
        app_.scan.LoadUp();
    } catch (const Failure& failure) {
        tellUnscanned(app_.platform, failure);
        app_.platform.processes.end();
    }
    app_.intCheck.Minimized = true; // Also where planning had something to ask and brought it to light.
}

/// That the data file can be opened is all there is to a completed primary full scan.
void StartUp::demandBaseline(const char* message) {
    if (!app_.funcMod.fileThere(app_.globals.app.intFile)) {
        app_.platform.dialogs.message({.text = message});
        app_.platform.processes.end();
    }
}

} // namespace tarvelon
