#pragma once

#include "ui/controls/controls.h"

namespace tarvelon {

/// The choice of what the machine does when the scans are over.
struct LogoffScreen : Screen {
    LogoffScreen()
        : Screen("Secure Shut Down", 544, 280) {
        canMinimize = false;
        for (Picture* lit : {&Image2, &Image4, &Image6}) {
            lit->Visible = false;
        }
    }

    Timer Timer1{*this, 1000};

    // First, so that an Enter too early does no harm.
    Label Label1{*this, "Cancel", at(368, 224, 144, 32), TextStyle::Action};

    // The lit pictures lie over the plain ones and take the clicks.
    Picture Image2{*this, at(40, 24, 128, 128), "standby-lit", "Standby"};
    Picture Image4{*this, at(208, 24, 128, 128), "turnoff-lit", "Turn Off"};
    Picture Image6{*this, at(376, 24, 128, 128), "restart-lit", "Restart"};
    Picture Image1{*this, at(40, 24, 128, 128), "standby", "Standby"};
    Picture Image3{*this, at(208, 24, 128, 128), "turnoff", "Turn Off"};
    Picture Image5{*this, at(376, 24, 128, 128), "restart", "Restart"};

    Label Label4{*this, "Standby", at(24, 156, 160, 20), TextStyle::Caption};
    Label Label5{*this, "Turn Off", at(192, 156, 160, 20), TextStyle::Caption};
    Label Label3{*this, "Restart", at(360, 156, 160, 20), TextStyle::Caption};
    Label Label6{*this, "hold SHIFT for Hibernate", at(24, 178, 160, 20), TextStyle::Caption};
    Label Label2{*this, "Log Off...", at(32, 224, 144, 32), TextStyle::Action};
};

} // namespace tarvelon
