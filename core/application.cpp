#include "core/application.h"

#include "core/failure.h"
#include "platform/dialogs.h"

namespace tarvelon {

Application::Application(Platform& onPlatform)
    : platform(onPlatform) {
    globals.cases = CaseRules(platform.codePage);
    tellFailures();
    bindHooks();
}

void Application::start() {
    mForm1.load();
    if (!mForm1.hiddenWhileLoading()) {
        mForm1.show();
    }
}

/// A failure that no handler dealt with ends that handler only.
void Application::tellFailures() {
    for (Screen* screen : screens()) {
        screen->dispatcher = [this](const Screen::Handler& handler) {
            try {
                handler();
            } catch (const Failure& failure) {
                platform.dialogs.message({.text = failure.what(), .icon = Icon::Warning});
            }
        };
    }
}

void Application::bindHooks() {
    const auto showScan = [this] { intCheck.show(); };
    const auto loadUp = [this] { scan.LoadUp(); };

    mForm1.onLoad = [this] { startUp.run(); };
    startUp.hooks = {
        .checkIntFile = [this] { baseline.checkIntFile(); },
        .checkRegFile = [this] { snapshotFile.checkRegFile(); },
        .loadSettings = [this] { settingsPages.loadSettings(); },
        .setDatName = [this] { checksum.setDatName(); },
        .loadIntFile = [this] { dataFile.loadIntFile(globals.app.intFile); },
        .hideMainWindow = [this] { mForm1.hide(); },
        .showScan = showScan,
        .loadUp = loadUp,
        .minimizeScan = [this] { intCheck.Minimized = true; },
        .showLogoff = [this] { frmLogoff.show(); },
        .preShut0 =
            [this] {
                frmLogoff.load();
                shutDownSequence.preShut0();
            },
    };
    dataFile.buildCustomDat = [this](const std::string& folder, const std::string& file,
                                     const std::string& number) {
        return baseline.buildCustomDat(folder, file, number);
    };
    const auto leaveScan = [this] { scan.Command1_Click(); };
    baseline.hooks = {.showScan = showScan, .leaveScan = leaveScan, .loadUp = loadUp};
    folderScanPage.hooks = {
        .norms2 = [this] { mainForm.norms2(); }, .leaveScan = leaveScan, .loadUp = loadUp};
    resultAction.leaveScan = leaveScan;
    customFolders.loadf = [this] { folderScanPage.loadf(); };
    mainForm.hooks = {.loadSettings = [this] { settingsPages.loadSettings(); },
                      .showCustomFolders = [this] { iCust.show(); },
                      .showScanners = [this] { s_avir.show(); },
                      .regPageOpened = [this] { regPage.Image7_Opened(); },
                      .advancedPageOpened = [this] { advancedPage.opened(); }};
    mForm1.cCreateSS.onClick = [this] { ownShortcuts.cCreateSS_Click(); };
    scannerChoice.hooks.showHelp = [this](bool forSecond) { scannerCatalogue.show(forSecond); };
    logBrowser.norms2 = [this] { mainForm.norms2(); };
    snapshotFile.setReg = [this] { detection.setReg(); };
    scan.hooks.resultAction = [this] { resultAction.Label12_Click(); };
    logoff.preShut0 = [this] { shutDownSequence.preShut0(); };
    shutDownSequence.hooks = {.loadUp = loadUp,
                              .setReg = [this] { detection.setReg(); },
                              .cScnUpd = [this] { regPage.cScnUpd_Click(); }};
    scan.hooks.preShut2 = [this] { shutDownSequence.PreShut2(); };
    scan.hooks.showMainWindow = [this] { mForm1.show(); };
}

} // namespace tarvelon
