#include "ui/mform1.h"

#include "platform/platform.h"
#include "platform/processes.h"
#include "ui/mform1_screen.h"

namespace tarvelon {

MForm1::MForm1(MForm1Screen& screen, Platform& platform)
    : screen_(screen)
    , platform_(platform) {
    bind();
}

void MForm1::bind() {
    screen_.onQueryClose = [this] {
        platform_.processes.end();
        return true;
    };
    screen_.cButton9.onClick = [this] { platform_.processes.end(); };
    screen_.Image5.onClick = [this] { open(screen_.Image5, screen_.intF); };
    screen_.Image7.onClick = [this] { open(screen_.Image7, screen_.regF); };
    screen_.Image9.onClick = [this] { open(screen_.Image9, screen_.appF); };
    screen_.Image11.onClick = [this] { open(screen_.Image11, screen_.setFq); };
    screen_.cButton7.onClick = [this] { cAbout_Click(); };
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

void MForm1::open(NavButton& entry, Frame& page) {
    norms2();
    entry.Current = true;
    page.Visible = true;
}

void MForm1::cAbout_Click() {
    norms2();
    screen_.Frame2.Visible = true;
}

} // namespace tarvelon
