#pragma once

#include "avshell/scanner_command.h"
#include "ui/controls/controls.h"

namespace tarvelon {

/// The choice of the two scanners: for each its program, and the arguments in front of the files.
struct SAvirScreen : Screen {
    SAvirScreen()
        : Screen("Anti-Virus/Trojan Selection Screen", 560, 368) {
        canMinimize = false;
        Text5.Caption = noScanner;
        Text1.Caption = noScanner;
    }

    /// Stands in the field of a scanner that was never named.
    static constexpr const char* noScanner = "Anti-Virus Software";

    Label Label8{*this, "Your Anti-Virus Program (Select upto 2):", at(24, 16, 512, 26), TextStyle::Heading};

    TextBox Text5{*this, at(24, 56, 400, 24)};
    cButton cChoose{*this, "Choose...", at(432, 52, 104, 32)};
    Label Label14{*this, "Optional Command Line Arguments:", at(24, 92, 248, 24)};
    TextBox Text6{*this, at(280, 92, 144, 24)};
    cButton chlpFind{*this, "Help me find the correct exe file...", at(24, 128, 264, 32)};

    TextBox Text1{*this, at(24, 192, 400, 24)};
    cButton cButton10{*this, "Choose...", at(432, 188, 104, 32)};
    Label Label1{*this, "Optional Command Line Arguments:", at(24, 228, 248, 24)};
    TextBox Text2{*this, at(280, 228, 144, 24)};
    cButton cButton1{*this, "Help me find the correct exe file...", at(24, 264, 264, 32)};

    cButton cButton3{*this, "Save", at(320, 320, 104, 32)};
    cButton cButton2{*this, "Cancel", at(432, 320, 104, 32)};

    const ScannerFields first{Text5, Text6};
    const ScannerFields second{Text1, Text2};
};

} // namespace tarvelon
