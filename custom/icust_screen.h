#pragma once

#include "ui/controls/lists.h"

namespace tarvelon {

/// The manager of the custom folders: a working copy of the twenty slots.
struct ICustScreen : Screen {
    ICustScreen()
        : Screen("Add/Remove Custom Integrity Scan Folders", 720, 480) {
        canMinimize = false;
        List3.Visible = false;
        List5.Visible = false;
        cButton2.ToolTip = "Puts a folder into the first empty slot";
        Command2.ToolTip = "Takes the selected folder out, and its baseline with it";
        List1.name = "Custom folders";
        List2.name = "File types at startup";
        List4.name = "File types at secure shut down";
    }

    // The lists show whole rows: 20 units each, and a unit of edge above and below.
    Label Label2{*this, "Custom Folder List:", at(16, 12, 688, 32), TextStyle::Title};
    ListBox List1{*this, at(16, 48, 536, 142)}; ///< the slots, a row for each
    cButton cButton2{*this, "Add Folder...", at(568, 48, 136, 32)};
    cButton Command2{*this, "Remove Folder", at(568, 88, 136, 32), Rank::Destructive};

    Label Label3{*this, "Click on a Folder, then Edit its properties below", at(16, 196, 688, 20),
                 TextStyle::Hint};
    Label Label1{*this, "Currently Selected:", at(16, 220, 688, 20)}; ///< the folder whose ticks are shown
    CheckBox Check1{*this, "Scan this Folder at Startup (AutoLoad)", at(16, 250, 336, 24)};
    CheckListBox List2{*this, at(16, 282, 336, 122)}; ///< types at start-up
    CheckBox Check2{*this, "Scan this folder at Secure Shut Down", at(368, 250, 336, 24)};
    CheckListBox List4{*this, at(368, 282, 336, 122)}; ///< types at shut-down
    cButton Command3{*this, "Save and Exit", at(568, 432, 136, 32), Rank::Primary};

    // What the slots' settings are now; never shown.
    ListBox List3{*this, at(0, 0, 8, 8)}; ///< "args" of each slot
    ListBox List5{*this, at(0, 0, 8, 8)}; ///< "args2" of each slot
};

} // namespace tarvelon
