#include "ui/wizard.h"

#include "avshell/known_scanners.h"
#include "avshell/s_avir_screen.h"
#include "avshell/scanner.h"
#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/platform.h"
#include "ui/join_values.h"
#include "ui/short_cut.h"
#include "ui/wizard_screen.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvelon {

namespace {

constexpr Color pressedColor = 0xff8080;
constexpr const char* noScannerNotice = "You didn't choose an anti-virus software exe.  We recommend that "
                                        "you get one to take full advantage of Tarvelon";

} // namespace

Wizard::Wizard(WizardScreen& screen, const Services& services, const Scanner& scanner, SAvirScreen& scanners)
    : Services(services)
    , screen_(screen)
    , scanner_(scanner)
    , scanners_(scanners) {
    bind();
}

void Wizard::bind() {
    bindStep(screen_.Label1, Next);
    bindStep(screen_.Label2, Back);
    bindStep(screen_.Label3, Cancel);
    screen_.Label1.onClick = [this] { next(); };
    screen_.Label2.onClick = [this] {
        --page_;
        NextFrame();
    };
    screen_.Label3.onClick = [this] { cancel(); };
    const auto plain = [this] {
        if (hover_ != None) {
            hover_ = None;
            light(nullptr);
        }
    };
    screen_.onMouseMove = plain;
    screen_.desc.onMouseMove = plain;
    screen_.locate.onClick = [this] { locate(); };
    screen_.helpme.onClick = [this] { hooks.showCatalogue(); };
    screen_.Command1.onClick = [this] { scanner_.test(screen_.vpath.Caption()); };
    screen_.cButton1.onClick = [this] { hooks.createShutDown(); };
    screen_.Command2.onClick = [this] { save(); };
}

void Wizard::bindStep(Label& label, Hover number) {
    label.onMouseMove = [this, &label, number] {
        if (hover_ != number) {
            hover_ = number;
            light(&label);
        }
    };
    label.onMouseDown = [&label] { label.ForeColor = pressedColor; };
    label.onMouseUp = [this, &label] {
        hover_ = Released;
        label.ForeColor = colors::black;
        label.Underlined = false;
    };
}

void Wizard::light(const Label* lit) {
    for (Label* label : {&screen_.Label1, &screen_.Label2, &screen_.Label3}) {
        label->Underlined = label == lit;
        label->ForeColor = label == lit ? colors::hoverBlue : colors::black;
    }
}

void Wizard::LoadUp() {
    screen_.show();
    page_ = 0;
    norms();
    screen_.Label1.Visible = true;
    screen_.aload.setValue(funcMod.fileThere(shortCut::autoLoadShortcut(platform, globals.texts)));
    const std::vector<std::string> values = split(settings.getSetting("GETSETT"), ',');
    for (std::size_t i = 0; i < screen_.settingChecks.size() && i < values.size(); ++i) {
        screen_.settingChecks[i]->setValue(toNumber(values[i]).value_or(0) != 0);
    }
    screen_.scanner.fill(settings, "ANTIVIRUS");
    NextFrame();
}

void Wizard::norms() {
    for (check* box : screen_.settingChecks) {
        box->Visible = false;
    }
    for (Control* control : std::initializer_list<Control*>{
             &screen_.pathLabel, &screen_.Label4, &screen_.helpme, &screen_.locate, &screen_.aload,
             &screen_.vpath, &screen_.varg, &screen_.Command1, &screen_.Command2, &screen_.cButton1}) {
        control->Visible = false;
    }
    screen_.Label1.Visible = true;
    screen_.Label2.Visible = true;
}

void Wizard::showPage(const char* title, const std::string& text, const std::vector<Control*>& controls) {
    screen_.title.Caption = title;
    screen_.desc.Caption = text;
    for (Control* control : controls) {
        control->Visible = true;
    }
}

void Wizard::NextFrame() {
    norms();
    WizardScreen& s = screen_;
    constexpr std::array pictures{"welcome",  "scanner", "test",     "autoload", "filetypes",
                                  "autoscan", "logging", "shortcut", "save"};
    s.picture.image = pictures[static_cast<std::size_t>(std::clamp<int>(page_, 0, 8))];
    s.dots.current = page_;
    switch (page_) {
    case 0:
        s.Label2.Visible = false;
        startTime_ = static_cast<std::int32_t>(std::nearbyint(platform.clock.secondsSinceMidnight()));
        showPage("Welcome to the Setup Wizard",
                 "Just click the 'Next' button to continue.\r"
                 "-If you make any mistakes, just click on the back button.\r"
                 "-Hit Cancel if you want to quit the setup without changing any settings.",
                 {});
        break;
    case 1:
        showPage("Anti-Virus Setup (1/2)",
                 "Step 1: Locate your main anti-virus software program.\r\r"
                 "-If you aren't sure where to find it, click on the 'Help Me' button.",
                 {&s.pathLabel, &s.vpath, &s.varg, &s.Label4, &s.helpme, &s.locate});
        break;
    case 2:
        showPage("Anti-Virus Setup (2/2)",
                 "Step 2: Make sure it works!\r\r"
                 "-Click the 'Test It!' button to make sure you selected the correct program.",
                 {&s.Command1});
        break;
    case 3:
        showPage("Main Settings (1/3)",
                 "-The most powerful aspect of Tarvelon is the Integrity Checker and the auto-loading and "
                 "auto-scanning "
                 "features.\r\r"
                 "-This loads Tarvelon whenever a user logs into Windows, and performs a quick Integrity "
                 "Check of your "
                 "system files. This will provide an early warning of potential threats and will allow the "
                 "elimination "
                 "of malicious files before they cause serious damage.",
                 {&s.aload});
        break;
    case 4:
        showPage("Main Settings (2/3)",
                 "-Please choose the types of files you would like to scan at startup.\r\r"
                 "-We recommend scanning of at least these files types:\r"
                 "DRV,SYS,EXE,SCR and PIF files.",
                 {&s.Check1, &s.Check2, &s.Check3, &s.Check4, &s.Check5, &s.Check8});
        break;
    case 5:
        showPage(
            "Main Settings (3/3)",
            "Auto-Scan:\r"
            "-If this option is enabled, then if any files fail the Integrity Check, they will be scanned "
            "automatically (only applies if Tarvelon is loaded at Start Up of Windows).\r\n\r\n"
            "-If you enable this option, then it is very highly recommended that you also enable the "
            "'Logging' "
            "feature in Tarvelon (so that files can be re-scanned after your Anti-Virus definition files are "
            "updated).",
            {&s.Check6});
        break;
    case 6:
        showPage(
            "Other Settings (1/2)",
            "Tarvelon's Logging Feature\r"
            "-If this option is enabled, then if any files fail the Integrity Check or if any New or "
            "Modified "
            "Registry entries are scanned, they will be added to the log.  Users can pull up the logs later "
            "on to "
            "see what files were scanned, and have the option to scan them again.  This feature is useful to "
            "protect the user from not finding viruses or trojans due to older Virus Definition files.",
            {&s.Check7});
        break;
    case 7:
        showPage("Other Settings (2/2)",
                 "Tarvelon's 'Secure Shut Down' Feature\r\n"
                 "-This button will create a shortcut on your Desktop that will provide an alternative to "
                 "shutting down "
                 "your computer via the ShutDown button in Windows.\r\n"
                 "-Using the 'Secure Shut Down' method will perform the same actions as the Auto-Load "
                 "feature, as well "
                 "as scanning the registry and also your wininit.ini files for suspicious entries. Using "
                 "this method of "
                 "shutting down is HIGHLY recommended.",
                 {&s.cButton1});
        break;
    default:
        showLastPage();
        break;
    }
}

void Wizard::showLastPage() {
    const double seconds = platform.clock.secondsSinceMidnight() - startTime_;
    const auto minutes = static_cast<std::int32_t>(std::nearbyint(seconds / 60));
    std::string text =
        "Just click on the Save button to save the settings!\r\rThis setup took: " + std::to_string(minutes) +
        " minutes to complete.";
    if (seconds < 3.0) {
        text += "\r\rThat was quick! Go Speed Racer Go!";
    }
    screen_.Label1.Visible = false;
    showPage("You're done!", text, {&screen_.Command2});
}

void Wizard::next() {
    if (page_ == 2 && !funcMod.fileThere(screen_.vpath.Caption())) {
        platform.dialogs.message({.text = noScannerNotice});
    }
    ++page_;
    NextFrame();
}

void Wizard::cancel() {
    const Answer answer = platform.dialogs.message(
        {.text = "Are you sure you want to disregard all changes and exit the setup wizard?",
         .buttons = Buttons::YesNo});
    if (answer != Answer::No) {
        screen_.hide();
    }
}

void Wizard::locate() {
    const std::string file = funcMod.openFileBox(scannerBoxTitle, scannerBoxFilter());
    take(file.substr(0, file.find('\0')));
}

void Wizard::take(const std::string& file) {
    screen_.vpath.Caption = file;
    const char* arguments = defaultArguments(scannerFamily(globals.texts, screen_.vpath.Caption()));
    screen_.varg.Caption = arguments;
    scanners_.Text6.Caption = arguments;
}

void Wizard::save() {
    passOver([&] { settings.checkSettFile(); });
    if (screen_.aload.value() == 1) {
        hooks.createAutoLoad();
    } else {
        platform.files.remove(shortCut::autoLoadShortcut(platform, globals.texts));
    }
    settings.saveSetting("settings", joinValues(screen_.settingChecks));
    if (!funcMod.fileThere(screen_.vpath.Caption())) {
        platform.dialogs.message({.text = noScannerNotice});
        screen_.vpath.Caption = SAvirScreen::noScanner;
        screen_.varg.Caption = " ";
    }
    settings.saveSetting("antivirus", screen_.scanner.command().setting());
    globals.settings.autoScanFailed = screen_.Check6.value() == 1;
    platform.dialogs.message({.text = "Settings Saved Successfully!"});
    screen_.hide();
}

} // namespace tarvelon
