#pragma once

#include "app/start_up.h"
#include "appwatch/app_page.h"
#include "avshell/avirhelp.h"
#include "avshell/avirhelp_screen.h"
#include "avshell/s_avir.h"
#include "avshell/s_avir_screen.h"
#include "avshell/scanner.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "core/utilities.h"
#include "custom/icust.h"
#include "custom/icust_screen.h"
#include "hash/checksum.h"
#include "integrity/baseline.h"
#include "integrity/comparison.h"
#include "integrity/data_file.h"
#include "integrity/folder_scan_page.h"
#include "integrity/intcheck.h"
#include "integrity/intcheck_screen.h"
#include "integrity/result_action.h"
#include "logging/log_browser.h"
#include "logging/log_files.h"
#include "platform/platform.h"
#include "regwatch/detection.h"
#include "regwatch/reg_page.h"
#include "regwatch/snapshot_file.h"
#include "shutdown/logoff.h"
#include "shutdown/logoff_screen.h"
#include "shutdown/power_action.h"
#include "shutdown/sequence.h"
#include "shutdown/sprog_screen.h"
#include "ui/advanced_page.h"
#include "ui/mform1.h"
#include "ui/mform1_screen.h"
#include "ui/own_shortcuts.h"
#include "ui/settings_pages.h"
#include "ui/speed_comparison.h"
#include "ui/wizard.h"
#include "ui/wizard_screen.h"

#include <vector>

namespace tarvelon {

/// The whole program over one platform: its state, its screens, its parts, and the one place where what runs
/// upward or sideways between them is bound.
class Application {
public:
    explicit Application(Platform& platform);

    /// Every screen, for a view to attach to before the start.
    std::vector<Screen*> screens() {
        return {&mForm1, &intCheck, &frmLogoff, &sProg, &s_avir, &aVirHelp, &iCust, &vDct};
    }

    /// Loads the main window, which is the whole start-up, and shows it unless a switch or a scan hid it.
    void start();

    Platform& platform;
    Globals globals;

    MForm1Screen mForm1;
    IntCheckScreen intCheck;
    LogoffScreen frmLogoff;
    SProgScreen sProg;
    SAvirScreen s_avir;
    AVirHelpScreen aVirHelp;
    ICustScreen iCust;
    WizardScreen vDct;

    Utilities utilities{platform};
    SettingsFile settingsFile{globals, platform};
    Checksum checksum{globals.settings, globals, platform};
    Checksum scanChecksum{globals.scan.algorithm, globals, platform};
    SnapshotFile snapshotFile{globals, platform};
    DataFile dataFile{globals, platform, settingsFile, utilities};
    Baseline baseline{globals, platform, dataFile, utilities, mForm1, mForm1.Combo1};
    Comparison comparison{intCheck,     sProg,        globals,  platform,
                          settingsFile, scanChecksum, dataFile, utilities};
    IntCheck scan{intCheck,
                  {globals, platform, settingsFile, scanChecksum, dataFile, baseline, utilities, comparison}};
    Scanner scanner{mForm1.avfocus, globals, platform};
    LogFiles logFiles{mForm1.Check7, globals, platform};
    SAvir scannerChoice{s_avir, globals, platform, settingsFile, utilities};
    AVirHelp scannerCatalogue{aVirHelp, s_avir, globals.cases, platform, utilities, scanner};
    Wizard wizard{vDct, {globals, platform, settingsFile, utilities, scanner, s_avir}};
    LogBrowser logBrowser{mForm1, mForm1.Image11, {globals, platform, settingsFile, utilities, scanner}};
    Detection detection{mForm1, globals, platform, settingsFile};
    RegPage regPage{mForm1, {globals, platform, settingsFile, utilities, scanner, logFiles, detection}};
    AppPage appPage{mForm1, platform};
    PowerAction powerAction{platform};
    Logoff logoff{frmLogoff, globals.app, platform};
    Sequence shutDownSequence{frmLogoff,
                              sProg,
                              mForm1.List5,
                              s_avir,
                              {globals, platform, utilities, scanner, logFiles, powerAction}};
    ResultAction resultAction{
        intCheck, {globals, platform, settingsFile, scanChecksum, dataFile, utilities, scanner, logFiles}};
    FolderScanPage folderScanPage{
        mForm1, mForm1.Image5, {globals, platform, settingsFile, checksum, dataFile, baseline, utilities}};
    OwnShortcuts ownShortcuts{globals, platform, utilities};
    SettingsPages settingsPages{mForm1,   mForm1,       s_avir,    globals,
                                platform, settingsFile, utilities, ownShortcuts};
    AdvancedPage advancedPage{mForm1, globals, platform, settingsFile, checksum};
    SpeedComparison speedComparison{mForm1, globals, platform, checksum};
    MForm1 mainForm{mForm1, globals.app, platform};
    ICust customFolders{iCust, {globals, platform, settingsFile, checksum, utilities}};
    StartUp startUp{globals, platform, settingsFile, utilities};

private:
    void bindHooks();
    void bindStartUp();
    void bindScan();
    void bindPages();
    void bindScanners();
    void bindShutDown();
    void tellFailures();
};

} // namespace tarvelon
