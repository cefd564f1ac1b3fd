#pragma once

#include "ui/controls/controls.h"

namespace tarvelon {

/// Progress of the scans in front of a shut-down.
struct SProgScreen : Screen {
    SProgScreen()
        : Screen("Scanning and Shutting Down...Please Wait", 480, 152) {
        Command1.Visible = false;
    }

    Label Label2{*this, "Status: ", at(16, 16, 448, 20)};
    Label Label1{*this, "Current Task Progress:", at(16, 48, 448, 20)};
    ProgressBar ProgressBar1{*this, at(16, 72, 448, 20)};
    cButton Command1{*this, "ShutDown Now", at(320, 104, 144, 32)};
};

} // namespace tarvelon
