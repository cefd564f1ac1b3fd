#include "shutdown/logoff.h"

#include "core/globals.h"
#include "platform/dialogs.h"
#include "platform/platform.h"
#include "platform/processes.h"
#include "shutdown/logoff_screen.h"

namespace tarvelon {

namespace {

constexpr int shiftKey = 16;

} // namespace

Logoff::Logoff(LogoffScreen& screen, AppState& app, Platform& platform)
    : screen_(screen)
    , app_(app)
    , platform_(platform) {
    bind();
}

void Logoff::bind() {
    screen_.onLoad = [this] { refuseSecondInstance(); };
    screen_.onQueryClose = [this] {
        platform_.processes.end();
        return true;
    };
    screen_.onMouseMove = [this] { restAll(); };
    screen_.onKeyDown = [this](int keyCode) {
        if (keyCode == shiftKey) {
            nameFirstButton("Hibernate");
        }
    };
    screen_.onKeyUp = [this](int) { nameFirstButton("Standby"); };

    bindButton(screen_.Image1, screen_.Image2,
               [this]() -> std::int16_t { return screen_.Label4.Caption() == "Standby" ? 1 : 0; });
    bindButton(screen_.Image3, screen_.Image4, []() -> std::int16_t { return 8; });
    bindButton(screen_.Image5, screen_.Image6, []() -> std::int16_t { return 2; });
    for (Label* label : {&screen_.Label1, &screen_.Label2}) {
        label->onMouseMove = [this, label] {
            restAll();
            label->ForeColor = colors::white;
        };
    }
    // The same as Hibernate, although it reads otherwise.
    screen_.Label2.onClick = [this] { choose(0); };
    screen_.Label1.onClick = [this] { platform_.processes.end(); };
}

void Logoff::bindButton(Picture& plain, Picture& lit, const std::function<std::int16_t()>& action) {
    plain.onMouseMove = [this, &lit] { light(lit); };
    plain.onFocus = plain.onMouseMove;
    plain.onFocusLost = [&lit] { lit.Visible = false; };
    lit.onClick = [this, action] { choose(action()); };
    plain.onClick = lit.onClick; // By other programs, which do not pass over it.
    // The key that comes up takes the SHIFT key's mark away in front of the click.
    plain.onKeyPress = [this, action] { pressedAction_ = action(); };
    plain.onKeyClick = [this] { choose(pressedAction_); };
}

/// One picture is lit at a time: the one that the mouse or the keyboard came to last.
void Logoff::light(const Picture& lit) {
    for (Picture* picture : {&screen_.Image2, &screen_.Image4, &screen_.Image6}) {
        picture->Visible = picture == &lit;
    }
}

/// On the label, which is the record of the SHIFT key, and on the pictures for those who hear them read.
void Logoff::nameFirstButton(const char* name) {
    screen_.Label4.Caption = name;
    screen_.Image1.Caption = name;
    screen_.Image2.Caption = name;
}

void Logoff::choose(std::int16_t action) {
    app_.shutAction = action;
    preShut0();
}

void Logoff::restAll() {
    for (Picture* lit : {&screen_.Image2, &screen_.Image4, &screen_.Image6}) {
        lit->Visible = false;
    }
    screen_.Label1.ForeColor = colors::black;
    screen_.Label2.ForeColor = colors::black;
}

void Logoff::refuseSecondInstance() {
    if (platform_.processes.anotherInstance()) {
        platform_.dialogs.message({.text = "You must close Tarvelon before using the Shut Down Feature."});
        platform_.processes.end();
    }
}

} // namespace tarvelon
