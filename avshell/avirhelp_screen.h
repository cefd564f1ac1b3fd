#pragma once

#include "avshell/known_scanners.h"
#include "ui/controls/controls.h"

namespace tarvelon {

/// The catalogue of known scanners: choose, search, test, use.
struct AVirHelpScreen : Screen {
    AVirHelpScreen()
        : Screen("Anti-Virus Shell Help", 560, 432) {
        canMinimize = false;
        for (const KnownScanner& known : knownScanners) {
            List1.add(known.product);
        }
        List1.name = "Anti-virus programs";
    }

    Label Label1{*this,
                 "Step 1) Choose your Anti Virus Software, then click on \"Search\":", at(24, 16, 512, 20)};
    ListBox List1{*this, at(24, 40, 512, 184)}; ///< products
    cButton Command4{*this, "Search for this Selection...", at(24, 232, 224, 32)};
    TextBox Text2{*this, at(24, 280, 512, 24)}; ///< the file that was found
    Label Label2{*this, "Step 2) Click Test it!", at(24, 320, 248, 20)};
    cButton Command2{*this, "Test It!", at(24, 344, 136, 32)};
    Label Label3{*this, "Step 3) Click Use it!", at(288, 320, 248, 20)};
    cButton Command3{*this, "Use It!", at(288, 344, 136, 32)};
    cButton Command1{*this, "My Anti-Virus Program Isn't Listed!", at(24, 388, 288, 32)};
};

} // namespace tarvelon
