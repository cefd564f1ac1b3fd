#include "avshell/avirhelp.h"

#include "avshell/avirhelp_screen.h"
#include "avshell/s_avir_screen.h"
#include "avshell/scanner.h"
#include "core/func_mod.h"
#include "core/globals.h"
#include "core/maker.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/shell.h"

namespace tarvelon {

namespace {

std::string fileOf(const std::string& product) {
    for (const KnownScanner& known : knownScanners) {
        if (product == known.product) {
            return known.file;
        }
    }
    return {};
}

} // namespace

AVirHelp::AVirHelp(AVirHelpScreen& screen, SAvirScreen& scanners, const Services& services,
                   const Scanner& scanner)
    : Services(services)
    , screen_(screen)
    , scanners_(scanners)
    , scanner_(scanner) {
    bind();
}

void AVirHelp::bind() {
    screen_.onLoad = [this] {
        screen_.Command2.Enabled = false;
        screen_.Command3.Enabled = false;
    };
    screen_.onQueryClose = [this] {
        forSecond_ = false;
        return true;
    };
    screen_.Command1.onClick = [this] { showSupportPage(); };
    screen_.Command2.onClick = [this] { testFound(); };
    screen_.Command3.onClick = [this] { useFound(); };
    screen_.Command4.onClick = [this] { search(); };
}

void AVirHelp::show(bool forSecond) {
    forSecond_ = forSecond;
    screen_.show();
}

void AVirHelp::showAsItStands() {
    screen_.show();
}

void AVirHelp::search() {
    if (screen_.List1.listIndex() < 0) {
        return;
    }
    screen_.Text2.Enabled = false;
    platform.dialogs.message(
        {.text = "Tarvelon may become unresponsive during the file search. This is normal.\r\r"
                 "Click OK to continue."});
    const std::string file = fileOf(screen_.List1.text());
    screen_.Text2.Caption = "Searching...";
    std::string path = trim(funcMod.findInTree(funcMod.getSpecialFolder(), file));
    if (path.empty()) {
        path = trim(funcMod.findInTree("C:\\", file));
    }
    if (path.empty()) {
        platform.dialogs.message(
            {.text =
                 "The default executable for this program was not found! Make sure you selected the correct "
                 "anti-virus program, and the correct operating system."});
        screen_.Command2.Enabled = false;
        screen_.Command3.Enabled = false;
    } else {
        platform.dialogs.message({.text = "Success!"});
        screen_.Command2.Enabled = true;
    }
    screen_.Text2.Caption = path;
    screen_.Text2.Enabled = true;
}

void AVirHelp::testFound() {
    if (scanner_.test(screen_.Text2.Caption())) {
        screen_.Command3.Enabled = true;
    }
}

void AVirHelp::useFound() {
    const std::string path = screen_.Text2.Caption();
    if (forSecond_) {
        useForSecond(path);
    } else {
        useForFirst(path);
    }
    screen_.hide();
}

void AVirHelp::useForSecond(const std::string& path) {
    forSecond_ = false;
    scanners_.Text1.Caption = path;
    // The path again where arguments belong: it then stands twice on that scanner's command line.
    scanners_.Text2.Caption = scannerFamily(globals.texts, path) == ScannerFamily::Navw ? path : " ";
}

void AVirHelp::useForFirst(const std::string& path) {
    const std::string arguments = defaultArguments(scannerFamily(globals.texts, path));
    hooks.setWizardPath(path);
    hooks.setWizardArgs(arguments);
    scanners_.Text5.Caption = path;
    scanners_.Text6.Caption = arguments;
}

void AVirHelp::showSupportPage() {
    platform.dialogs.message(
        {.text =
             std::string(
                 "There is a very good chance that your anti-virus software is compatible.  As long as it "
                 "supports command line arguments, then it will work.\r"
                 "Tarvelon will now send you to the web site of ") +
             maker::name + ".\r\rSimply click on Tarvelon, and click on Anti-Virus support."});
    if (platform.shell.open(maker::webPage, "") == Shell::noProgram) {
        platform.dialogs.message(
            {.text = std::string("Could not open the default web browser. The page is ") + maker::webPage});
    }
}

} // namespace tarvelon
