#pragma once

#include "ui/controls/lists.h"
#include "ui/controls/tree.h"

namespace tarvelon {

/// The controls of the page of the watched registry locations.
struct RegPageControls {
    explicit RegPageControls(Screen& screen)
        : regF(screen, at(160, 0, 600, 488), false) {
        Label19.Visible = false;
        Command11.ToolTip = "Has the scanner look at the file that the selected entry starts";
        cScnUpd.ToolTip =
            "Has the scanner look at all new and modified entries, and takes them as they are now";
        Command3.ToolTip = "Takes the selected entry out of the registry";
        cMod.ToolTip = "Lists the files that the next restart replaces or deletes";
        Command1.ToolTip = "Reads the watched places and compares them with what was there last";
        List5.name = "Registry warnings";
        Text4.name = "Selected entry";
        TreeView1.name = "Watched registry entries";
        List6.name = "Files pending for the next restart";
    }

    /// Row 1 of the warnings when there are none; code compares it.
    static constexpr const char* noWarnings = "*No new or modified Registry Entries*";

    Frame regF;
    Icon regIcon{regF, at(24, 20, 24, 24), "regwatch"};
    Label regTitle{regF, "RegWatch", at(56, 16, 520, 32), TextStyle::Title};
    ListBox List5{regF, at(24, 56, 552, 102), true,
                  "Press Refresh to read the registry"}; ///< warnings, below a heading
    Tree TreeView1{regF, at(24, 166, 552, 182), true, "All entries that start programs stand here then"};
    ListBox List6{regF, at(24, 166, 552, 182), false}; ///< files pending for the next start, below a heading
    Label entryLabel{regF, "Selected:", at(24, 358, 72, 24)};
    TextBox Text4{regF, at(96, 358, 480, 24)}; ///< the selected entry
    cButton Command11{regF, "Scan File for Viruses", at(24, 392, 176, 32)};
    cButton cScnUpd{regF, "Scan && Update Warnings", at(208, 392, 184, 32)};
    cButton Command3{regF, "Delete Key", at(464, 392, 112, 32), Rank::Destructive};
    cButton cMod{regF, "Check for modifications/deletions on reboot", at(24, 440, 312, 32)};
    cButton Command1{regF, "Refresh", at(464, 440, 112, 32), Rank::Primary};
    // A copy of the selected entry, and two lists that nothing fills; never shown.
    Label Label19{regF, "", at(0, 0, 8, 8)}; ///< the selected entry, as it is acted on
    ListBox List2{regF, at(0, 0, 8, 8), false};
    ListBox List3{regF, at(0, 0, 8, 8), false};
};

} // namespace tarvelon
