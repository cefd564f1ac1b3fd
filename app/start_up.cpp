#include "app/start_up.h"

#include "core/failure.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "core/unscanned.h"
#include "core/utilities.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "platform/processes.h"

namespace tarvelon {

void StartUp::run() {
    fixPaths();
    globals_.app.shutAction = -1;

    // From here on a step that fails is passed over: the program opens whatever state it finds.
    ensureFolder(globals_.app.appPath + "Data\\");
    ensureFolder(globals_.app.appPath + "Data\\Log\\");
    passOver([this] { settings_.checkSettFile(); });
    passOver(hooks.checkIntFile); // Still under the plain name, before any setting is read.
    passOver(hooks.checkRegFile);
    passOver(hooks.loadSettings);
    passOver(hooks.setDatName);
    passOver(hooks.checkIntFile); // And under the name of the algorithm in force.
    if (utilities_.fileThere(globals_.app.intFile)) {
        passOver(hooks.loadIntFile);
    }
    globals_.app.cmdLine = trim(platform_.processes.commandLine());
    actOnCommandLine();
}

void StartUp::fixPaths() {
    const std::string file = platform_.processes.programFile();
    AppState& app = globals_.app;
    app.appPath = withBackslash(file.substr(0, file.size() - bareName(file).size()));
    app.settFile = app.appPath + "Data\\Tarvelon.dat";
    app.intFile = app.appPath + "Data\\Integrity.dat";
    app.regFile = app.appPath + "Data\\Registry.dat";
}

void StartUp::ensureFolder(const std::string& folder) {
    if (platform_.files.firstName(folder).empty()) {
        platform_.files.createFolder(folder);
    }
}

void StartUp::actOnCommandLine() {
    AppState& app = globals_.app;
    if (app.cmdLine == "/r") {
        demandBaseline("Cannot start Auto-Load.  Primary Full Scan has not yet been completed.\r\nClosing");
        app.autoLoadRun = true;
        hooks.hideMainWindow();
        passOver(hooks.showScan);
        try {
            hooks.loadUp();
        } catch (const Failure& failure) {
            tellUnscanned(platform_, failure);
            platform_.processes.end();
        }
        hooks.minimizeScan();
    } else if (app.cmdLine == "/s") {
        demandBaseline(
            "Cannot start Secure Shut Down.  Primary Full Scan has not yet been completed.\r\nClosing.");
        hooks.hideMainWindow();
        passOver(hooks.showLogoff);
    } else if (app.cmdLine == "/a") {
        demandBaseline(
            "Cannot run Scheduled Scan.  Primary Full Scan has not yet been completed.\r\nClosing.");
        hooks.hideMainWindow();
        app.schedRun = true;
        passOver(hooks.preShut0);
    }
}

/// That the data file can be opened is all there is to a completed primary full scan.
void StartUp::demandBaseline(const char* message) {
    if (!utilities_.fileThere(globals_.app.intFile)) {
        platform_.dialogs.message({.text = message});
        platform_.processes.end();
    }
}

} // namespace tarvelon
