#pragma once

#include "avshell/known_scanners.h"
#include "ui/controls/lists.h"

namespace tarvelon {

/// The catalogue of known scanners: choose, search, test, use.
struct AVirHelpScreen : Screen {
    AVirHelpScreen()
        : Screen("Anti-Virus Shell Help", 560, 432) {
        canMinimize = false;
        for (const KnownScanner& known : knownScanners) {
            List1.add(known.product);
        }
        Command4.ToolTip = "Looks for the program's file in the folder of programs";
        Command2.ToolTip = "Has the program look at a harmless file";
        Text2.name = "The file that was found";
        List1.name = "Anti-virus programs";
    }

    Label Label1{*this,
                 "Step 1) Choose your Anti Virus Software, then click on \"Search\":", at(16, 16, 528, 20),
                 TextStyle::Heading};
    ListBox List1{*this, at(16, 44, 528, 162)}; ///< products
    cButton Command4{*this, "Search for this Selection...", at(16, 214, 216, 32)};
    TextBox Text2{*this, at(16, 258, 528, 24)}; ///< the file that was found
    Label Label2{*this, "Step 2) Click Test it!", at(16, 300, 248, 20), TextStyle::Heading};
    cButton Command2{*this, "Test It!", at(16, 328, 136, 32)};
    Label Label3{*this, "Step 3) Click Use it!", at(280, 300, 264, 20), TextStyle::Heading};
    cButton Command3{*this, "Use It!", at(280, 328, 136, 32), Rank::Primary};
    cButton Command1{*this, "My Anti-Virus Program Isn't Listed!", at(16, 384, 264, 32), Rank::Quiet};
};

} // namespace tarvelon
