#include "avshell/s_avir.h"

#include "avshell/known_scanners.h"
#include "avshell/s_avir_screen.h"
#include "core/failure.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/settings_file.h"
#include "platform/dialogs.h"
#include "platform/platform.h"

namespace tarvelon {

SAvir::SAvir(SAvirScreen& screen, const Services& services)
    : Services(services)
    , screen_(screen) {
    bind();
}

void SAvir::bind() {
    screen_.onLoad = [this] { fillBoth(settings, screen_.first, screen_.second); };
    screen_.cChoose.onClick = [this] { takeFirst(choose()); };
    screen_.cButton10.onClick = [this] { takeSecond(choose()); };
    screen_.chlpFind.onClick = [this] { hooks.showHelp(false); };
    screen_.cButton1.onClick = [this] { hooks.showHelp(true); };
    screen_.cButton2.onClick = [this] { screen_.hide(); };
    screen_.cButton3.onClick = [this] { save(); };
}

/// The file that the user picks, or empty.
std::string SAvir::choose() const {
    const std::string file = funcMod.openFileBox(scannerBoxTitle, scannerBoxFilter());
    return file.substr(0, file.find('\0'));
}

void SAvir::takeFirst(const std::string& file) {
    if (file.empty()) {
        return;
    }
    screen_.Text5.Caption = file;
    screen_.Text6.Caption = argumentsForFirst();
    platform.dialogs.message({.text = "Don't forget to Save!"});
}

void SAvir::takeSecond(const std::string& file) {
    if (file.empty()) {
        return;
    }
    screen_.Text1.Caption = file;
    // The second scanner gets what the first one's name calls for.
    screen_.Text2.Caption = argumentsForFirst();
    platform.dialogs.message({.text = "Don't forget to Save!"});
}

const char* SAvir::argumentsForFirst() {
    const ScannerFamily family = scannerFamily(globals.texts, screen_.Text5.Caption());
    const char* arguments = defaultArguments(family);
    if (family != ScannerFamily::Pavcl) {
        hooks.setWizardArgs(arguments);
    }
    return arguments;
}

void SAvir::save() {
    if (!funcMod.fileThere(screen_.Text5.Caption())) {
        platform.dialogs.message(
            {.text = "You didn't choose an anti-virus software exe.  We recommend that you get "
                     "one to take full advantage of Tarvelon"});
        screen_.Text5.Caption = SAvirScreen::noScanner;
        screen_.Text6.Caption = " ";
    }
    if (!funcMod.fileThere(screen_.Text1.Caption())) {
        screen_.Text1.Caption = "";
        screen_.Text2.Caption = "";
    }
    settings.saveSetting("antivirus", screen_.first.command().setting());
    settings.saveSetting("av2", screen_.second.command().setting());
    platform.dialogs.message({.text = "Save Success!"});
    hooks.saved();
    screen_.hide();
}

} // namespace tarvelon
