#pragma once

#include "avshell/scanner_command.h"
#include "ui/controls/controls.h"

namespace tarvelon {

/// The choice of the two scanners: for each its program, and the arguments in front of the files.
struct SAvirScreen : Screen {
    SAvirScreen()
        : Screen("Anti-Virus/Trojan Selection Screen", 576, 384) {
        canMinimize = false;
        cButton2.isCancel = true;
        Text5.Caption = noScanner;
        Text1.Caption = noScanner;
    }

    /// Stands in the field of a scanner that was never named.
    static constexpr const char* noScanner = "Anti-Virus Software";

    Label Label8{*this, "Your Anti-Virus Program (Select upto 2):", at(16, 12, 544, 32), TextStyle::Title};

    Frame firstGroup{*this, "First program", at(16, 56, 544, 128)};
    TextBox Text5{firstGroup, at(16, 24, 400, 24)};
    cButton cChoose{firstGroup, "Choose...", at(424, 20, 104, 32)};
    Label Label14{firstGroup, "Optional Command Line Arguments:", at(16, 56, 232, 24)};
    TextBox Text6{firstGroup, at(248, 56, 168, 24)};
    cButton chlpFind{firstGroup, "Help me find the correct exe file...", at(16, 88, 264, 32), Rank::Quiet};

    Frame secondGroup{*this, "Second program", at(16, 192, 544, 128)};
    TextBox Text1{secondGroup, at(16, 24, 400, 24)};
    cButton cButton10{secondGroup, "Choose...", at(424, 20, 104, 32)};
    Label Label1{secondGroup, "Optional Command Line Arguments:", at(16, 56, 232, 24)};
    TextBox Text2{secondGroup, at(248, 56, 168, 24)};
    cButton cButton1{secondGroup, "Help me find the correct exe file...", at(16, 88, 264, 32), Rank::Quiet};

    cButton cButton2{*this, "Cancel", at(336, 336, 104, 32)};
    cButton cButton3{*this, "Save", at(448, 336, 112, 32), Rank::Primary};

    const ScannerFields first{Text5, Text6};
    const ScannerFields second{Text1, Text2};
};

} // namespace tarvelon
