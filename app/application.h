#pragma once

#include "app/start_up.h"
#include "appwatch/app_page.h"
#include "avshell/avirhelp.h"
#include "avshell/avirhelp_screen.h"
#include "avshell/s_avir.h"
#include "avshell/s_avir_screen.h"
#include "avshell/scanner.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/services.h"
#include "core/settings_file.h"
#include "custom/icust.h"
#include "custom/icust_screen.h"
#include "hash/checksum.h"
#include "integrity/baseline_builder.h"
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
#include "ui/overview.h"
#include "ui/own_shortcuts.h"
#include "ui/places.h"
#include "ui/settings_pages.h"
#include "ui/speed_comparison.h"
#include "ui/start_page.h"
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

    FuncMod funcMod{platform, globals.texts};
    SettingsFile settingsFile{globals, platform};
    const Services services{globals, platform, settingsFile, funcMod};
    Checksum checksum{globals.settings, globals, platform};
    Checksum scanChecksum{globals.scan.algorithm, globals, platform};
    SnapshotFile snapshotFile{services};
    DataFile dataFile{services};
    BaselineBuilder baselineBuilder{services, dataFile, mForm1, mForm1.Combo1};
    Comparison comparison{intCheck, sProg.ProgressBar1, services, scanChecksum, dataFile};
    IntCheck scan{intCheck, services, scanChecksum, dataFile, baselineBuilder, comparison};
    Scanner scanner{mForm1.avfocus, services};
    LogFiles logFiles{mForm1.Check7, services};
    SAvir scannerChoice{s_avir, services};
    AVirHelp scannerCatalogue{aVirHelp, s_avir, services, scanner};
    Wizard wizard{vDct, services, scanner, s_avir};
    LogBrowser logBrowser{mForm1, mForm1.Image11, services, scanner};
    Detection detection{mForm1, services};
    RegPage regPage{mForm1, services, scanner, logFiles, detection};
    AppPage appPage{mForm1, platform};
    PowerAction powerAction{platform};
    Logoff logoff{frmLogoff, globals.app, platform};
    Sequence shutDownSequence{frmLogoff, sProg,   mForm1.List5, s_avir,
                              services,  scanner, logFiles,     powerAction};
    ResultAction resultAction{intCheck, services, scanChecksum, dataFile, scanner, logFiles};
    FolderScanPage folderScanPage{mForm1, mForm1.Image5, services, checksum, dataFile, baselineBuilder};
    OwnShortcuts ownShortcuts{services};
    SettingsPages settingsPages{mForm1, mForm1, s_avir, services, ownShortcuts};
    AdvancedPage advancedPage{mForm1, services, checksum};
    SpeedComparison speedComparison{mForm1, services, checksum};
    Overview overview{services, checksum};
    StartPage startPage{mForm1, overview};
    MForm1 mainForm{mForm1, globals, platform};
    Places places{services};
    ICust customFolders{iCust, services, checksum};
    StartUp startUp{*this};

private:
    void bindHooks();
    void bindScan();
    void bindPages();
    void bindScanners();
    void bindShutDown();
    void bindKeys();
    void bindFiles();
    void bindPlaces();
    void tellFailures();
};

} // namespace tarvelon
