#pragma once

#include "ui/controls/controls.h"

namespace tarvelon {

/// Progress of the scans in front of a shut-down.
struct SProgScreen : Screen {
    SProgScreen()
        : Screen("Scanning and Shutting Down...Please Wait", 480, 208) {
        closesByEsc = true;
        Command1.Visible = false;
        ProgressBar1.name = "Current task";
    }

    Label Label2{*this, "Status: ", at(16, 16, 448, 20), TextStyle::Heading};
    Label Label1{*this, "Current Task Progress:", at(16, 48, 448, 20)};
    ProgressBar ProgressBar1{*this, at(16, 72, 448, 16)};
    Label timeLeft{*this, "", at(16, 104, 72, 40), TextStyle::Value, false};
    Label wayOut{*this, "until the machine shuts down. Close this window to cancel the shut-down.",
                 at(104, 104, 360, 40), TextStyle::Hint, false};
    cButton Command1{*this, "ShutDown Now", at(304, 160, 160, 32), Rank::Primary};
};

} // namespace tarvelon
