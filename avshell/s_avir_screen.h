#pragma once

#include "ui/controls/controls.h"

namespace tarvelon {

/// The choice of the two scanners: for each its program and the arguments in front of the files.
struct SAvirScreen : Screen {
    SAvirScreen()
        : Screen("Anti-Virus", 480, 240) {}

    TextBox Text5{*this, at(16, 32, 448, 24)};
    TextBox Text6{*this, at(16, 64, 448, 24)};
    TextBox Text1{*this, at(16, 128, 448, 24)};
    TextBox Text2{*this, at(16, 160, 448, 24)};
};

} // namespace tarvelon
