#include "app/application.h"

#include "core/failure.h"
#include "platform/dialogs.h"
#include "ui/controls/hold.h"

namespace tarvelon {

Application::Application(Platform& onPlatform)
    : platform(onPlatform) {
    globals.texts = TextRules(platform.codePage);
    tellFailures();
    bindHooks();
}

void Application::start() {
    mForm1.load();
    if (!mForm1.hiddenWhileLoading()) {
        mForm1.show();
        startPage.update();
    }
}

/// A failure that no handler dealt with ends that handler only.
void Application::tellFailures() {
    for (Screen* screen : screens()) {
        screen->dispatcher = [this](const Screen::Handler& handler) {
            try {
                handler();
            } catch (const Failure& failure) {
                platform.dialogs.message({.text = failure.what(), .icon = BoxIcon::Warning});
            }
        };
    }
}

void Application::bindHooks() {
    mForm1.onLoad = [this] { startUp.run(); };
    snapshotFile.setReg = [this] { detection.setReg(); };
    bindScan();
    bindPages();
    bindScanners();
    bindShutDown();
    bindKeys();
    bindFiles();
    bindPlaces();
}

void Application::bindScan() {
    const auto leaveScan = [this] { scan.Command1_Click(); };
    const auto loadUp = [this] { scan.LoadUp(); };
    dataFile.buildCustomDat = [this](const std::string& folder, const std::string& file,
                                     const std::string& number) {
        return baselineBuilder.buildCustomDat(folder, file, number);
    };
    baselineBuilder.hooks = {
        .showScan = [this] { intCheck.show(); }, .leaveScan = leaveScan, .loadUp = loadUp};
    folderScanPage.hooks = {
        .norms2 = [this] { mainForm.norms2(); }, .leaveScan = leaveScan, .loadUp = loadUp};
    resultAction.hooks = {.leaveScan = leaveScan, .undisturbed = [this](const std::function<void()>& action) {
                              const std::vector<Control*> controls{
                                  &mForm1.Image5,    &mForm1.Combo1,   &mForm1.addRem,   &mForm1.bSCAN,
                                  &mForm1.cSave2,    &iCust.cButton2,  &iCust.Command2,  &iCust.Command3,
                                  &intCheck.Image11, &intCheck.Label2, &intCheck.Label12};
                              runHolding(controls, screens(), action);
                          }};
    scan.hooks = {.resultAction = [this] { resultAction.act(); },
                  .preShut2 = [this] { shutDownSequence.PreShut2(); },
                  .showMainWindow =
                      [this] {
                          mForm1.show();
                          startPage.update();
                      }};
}

void Application::bindPages() {
    mainForm.hooks = {.loadSettings = [this] { settingsPages.loadSettings(); },
                      .showCustomFolders = [this] { customFolders.open(); },
                      .showScanners = [this] { s_avir.show(); },
                      .regPageOpened = [this] { regPage.opened(); },
                      .advancedPageOpened = [this] { advancedPage.opened(); },
                      .startPageOpened = [this] { startPage.update(); }};
    startPage.scanRuns = [this] { return scan.runs(); };
    mForm1.cCreateSS.onClick = [this] { ownShortcuts.createShutDown(); };
    mForm1.cSetW.onClick = [this] {
        if (vDct.Visible()) {
            vDct.show(); // At the page where the user left it.
            return;
        }
        settingsPages.loadSettings();
        wizard.LoadUp();
    };
    customFolders.loadf = [this] {
        startPage.update();
        folderScanPage.loadf();
    };
    customFolders.scanRuns = [this] { return scan.runs(); };
    logBrowser.norms2 = [this] { mainForm.norms2(); };
}

void Application::bindScanners() {
    const auto setWizardPath = [this](const std::string& path) { vDct.vpath.Caption = path; };
    const auto setWizardArgs = [this](const std::string& arguments) { vDct.varg.Caption = arguments; };
    scannerChoice.hooks = {.saved = [this] { startPage.update(); },
                           .setWizardArgs = setWizardArgs,
                           .showHelp = [this](bool forSecond) { scannerCatalogue.show(forSecond); }};
    scannerCatalogue.hooks = {.setWizardPath = setWizardPath, .setWizardArgs = setWizardArgs};
    wizard.hooks = {.showCatalogue = [this] { scannerCatalogue.showAsItStands(); },
                    .createAutoLoad = [this] { ownShortcuts.createAutoLoad(); },
                    .createShutDown = [this] { ownShortcuts.createShutDown(); }};
}

void Application::bindShutDown() {
    logoff.preShut0 = [this] { shutDownSequence.preShut0(); };
    shutDownSequence.hooks = {.loadUp = [this] { scan.LoadUp(); },
                              .setReg = [this] { detection.setReg(); },
                              .scanAndUpdate = [this] { regPage.scanAndUpdate(); }};
}

} // namespace tarvelon
