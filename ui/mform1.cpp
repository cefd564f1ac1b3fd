#include "ui/mform1.h"

#include "core/globals.h"
#include "core/maker.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/processes.h"
#include "platform/registry.h"
#include "platform/shell.h"
#include "regwatch/reg_class.h"
#include "ui/mform1_screen.h"

namespace tarvelon {

MForm1::MForm1(MForm1Screen& screen, const Globals& globals, Platform& platform)
    : screen_(screen)
    , globals_(globals)
    , platform_(platform) {
    bind();
}

void MForm1::bind() {
    screen_.onQueryClose = [this] {
        platform_.processes.end();
        return true;
    };
    screen_.cButton9.onClick = [this] { screen_.close(); };
    screen_.cAbout.onClick = [this] { showAbout(); };
    screen_.cButton7.onClick = screen_.cAbout.onClick;
    screen_.cButton4.onClick = [this] { showHelp("index.html"); };
    screen_.cButton6.onClick = screen_.cButton4.onClick;
    screen_.chlp.onClick = screen_.cButton4.onClick;
    screen_.cButton5.onClick = [this] { siteClick(); };
    screen_.Label37.onClick = [this] { writeToSupport(); };
    screen_.cUpdates.onClick = [this] { checkForUpdates(); };
    screen_.addRem.onClick = [this] { hooks.showCustomFolders(); };
    screen_.cButton10.onClick = [this] { hooks.showScanners(); };
    bindPages();
    bindHover();
}

void MForm1::bindPages() {
    screen_.Image7.onClick = [this] {
        hooks.regPageOpened();
        open(&screen_.Image7, screen_.regF);
    };
    screen_.Image9.onClick = [this] { open(&screen_.Image9, screen_.appF); };
    screen_.Image11.onClick = [this] {
        norms2();
        hooks.loadSettings();
        screen_.Image11.Current = true;
        screen_.setFq.Visible = true;
        screen_.cViewReport.Enabled = false;
    };
    screen_.cSettings.onClick = [this] {
        hooks.loadSettings();
        screen_.settF.Visible = true;
        screen_.qSett.Visible = true;
        screen_.setFq.Visible = false;
        screen_.advF.Visible = false;
    };
    screen_.cButton2.onClick = [this] {
        hooks.loadSettings();
        norms2();
        screen_.Image11.Current = true;
        screen_.settF.Visible = true;
        screen_.qSett.Visible = false;
        screen_.advF.Visible = true;
        hooks.advancedPageOpened();
    };
    screen_.cCancelSett.onClick = [this] { backToOptions(screen_.settF); };
    screen_.cButton1.onClick = screen_.cCancelSett.onClick;
}

void MForm1::bindHover() {
    for (Frame* frame : {&screen_.settF, &screen_.qSett, &screen_.Frame2}) {
        frame->onMouseMove = [this] { norms(); };
    }
}

/// The hover look of flat buttons goes by itself.
void MForm1::norms() {
    for (Control* control : screen_.controls()) {
        if (control->kind() == ControlKind::FlatCheck) {
            static_cast<check*>(control)->downStatus(1);
        }
    }
}

void MForm1::norms2() {
    for (Frame* page : {&screen_.Frame2, &screen_.repF, &screen_.setFq, &screen_.appF, &screen_.regF,
                        &screen_.intF, &screen_.settF, &screen_.qSett, &screen_.advF}) {
        page->Visible = false;
    }
    for (NavButton* entry : {&screen_.Image5, &screen_.Image7, &screen_.Image9, &screen_.Image11}) {
        entry->Current = false;
    }
}

void MForm1::open(NavButton* entry, Frame& page) {
    norms2();
    if (entry) {
        entry->Current = true;
    }
    page.Visible = true;
}

void MForm1::backToOptions(Frame& page) {
    page.Visible = false;
    screen_.setFq.Visible = true;
}

void MForm1::showAbout() {
    const auto version = platform_.processes.programVersion();
    screen_.Label33.Caption = "Version: " + std::to_string(version[0]) + "." + std::to_string(version[1]) +
                              "." + std::to_string(version[2]);
    open(nullptr, screen_.Frame2);
    hooks.startPageOpened();
}

void MForm1::showHelp(const char* page) {
    if (platform_.shell.open(page, globals_.app.appPath + "Help\\") != Shell::fileNotFound) {
        return;
    }
    const Answer answer =
        platform_.dialogs.message({.text = "The Help file wasn't found or cannot be executed! Would you like "
                                           "to browse Tarvelon help on the web?",
                                   .buttons = Buttons::YesNo});
    if (answer != Answer::Yes) {
        return;
    }
    platform_.dialogs.message({.text = "Click on the Tarvelon page, then choose 'Online Help'.\r\n\r\n"
                                       "The web page of Quillfen is being opened."});
    if (platform_.shell.open(maker::webPage, "") <= Shell::lastFailure) {
        platform_.dialogs.message({.text = std::string("The link could not be executed: ") + maker::webPage});
    }
}

void MForm1::siteClick() {
    visitMaker(maker::webPage);
}

void MForm1::visitMaker(const char* address) {
    const Answer answer = platform_.dialogs.message(
        {.text = "Would you like to visit the web site of Quillfen?", .buttons = Buttons::YesNo});
    if (answer == Answer::Yes && platform_.shell.open(address, "") <= Shell::lastFailure) {
        platform_.dialogs.message(
            {.text = std::string("The web site could not be opened. Please visit it by hand: ") + address});
    }
}

void MForm1::writeToSupport() {
    const auto version = platform_.processes.programVersion();
    const std::string subject = "Tarvelon(v" + std::to_string(version[0]) + "." + std::to_string(version[1]) +
                                "." + std::to_string(version[2]) + ")";
    const std::string link = std::string("mailto:") + maker::supportAddress + "?subject=" + subject;
    if (platform_.shell.open(link, "") == Shell::noProgram) {
        platform_.dialogs.message(
            {.text = std::string("Could not execute default mail client.\r\n") + maker::supportAddress});
    }
}

void MForm1::checkForUpdates() {
    const std::string folder =
        valueOf(platform_.registry, Registry::localMachine,
                R"(SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall\Orbexa_is1)", "Inno Setup: App Path");
    if (!folder.empty()) {
        platform_.processes.start(globals_.texts.withBackslash(folder) + "Orbexa.exe", "Tarvelon2",
                                  WindowStyle::MinimizedFocus);
        return;
    }
    const Answer answer = platform_.dialogs.message(
        {.text = "Tarvelon requires Orbexa (Orbexa Update Utility) to check for updates.\r\n\r\n"
                 "Would you like to download Orbexa?",
         .buttons = Buttons::YesNo});
    if (answer == Answer::Yes) {
        visitMaker(maker::updateUtilityPage);
    }
}

} // namespace tarvelon
