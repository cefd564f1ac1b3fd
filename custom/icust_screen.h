#pragma once

#include "ui/controls/controls.h"

namespace tarvelon {

/// The manager of the custom folders: a working copy of the twenty slots.
struct ICustScreen : Screen {
    ICustScreen()
        : Screen("Add/Remove Custom Integrity Scan Folders", 720, 520) {
        canMinimize = false;
        List3.Visible = false;
        List5.Visible = false;
        List1.name = "Custom folders";
        List2.name = "File types at startup";
        List4.name = "File types at secure shut down";
    }

    // The lists show whole rows: 20 units each, and a unit of edge above and below.
    Label Label2{*this, "Custom Folder List:", at(16, 14, 688, 26), TextStyle::Heading};
    ListBox List1{*this, at(16, 48, 688, 162)}; ///< the slots, a row for each
    cButton cButton2{*this, "Add Folder...", at(16, 218, 136, 32)};
    cButton Command2{*this, "Remove Folder", at(160, 218, 136, 32)};

    Label Label3{*this, "Click on a Folder, then Edit its properties below", at(16, 266, 688, 18),
                 TextStyle::Hint};
    Label Label1{*this, "Currently Selected:", at(16, 286, 688, 18)}; ///< the folder whose ticks are shown
    CheckBox Check1{*this, "Scan this Folder at Startup (AutoLoad)", at(16, 312, 336, 24)};
    CheckListBox List2{*this, at(16, 340, 336, 122)}; ///< types at start-up
    CheckBox Check2{*this, "Scan this folder at Secure Shut Down", at(368, 312, 336, 24)};
    CheckListBox List4{*this, at(368, 340, 336, 122)}; ///< types at shut-down
    cButton Command3{*this, "Save and Exit", at(568, 472, 136, 32)};

    // What the slots' settings are now; never shown.
    ListBox List3{*this, at(0, 0, 8, 8)}; ///< "args" of each slot
    ListBox List5{*this, at(0, 0, 8, 8)}; ///< "args2" of each slot
};

} // namespace tarvelon
