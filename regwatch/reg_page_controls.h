#pragma once

#include "ui/controls/controls.h"
#include "ui/controls/tree.h"

namespace tarvelon {

/// The controls of the page of the watched registry locations.
struct RegPageControls {
    explicit RegPageControls(Screen& screen)
        : regF(screen, at(160, 0, 600, 488), false) {
        Label19.Visible = false;
        List5.name = "Registry warnings";
        TreeView1.name = "Watched registry entries";
        List6.name = "Files pending for the next restart";
    }

    /// Row 1 of the warnings when there are none; code compares it.
    static constexpr const char* noWarnings = "*No new or modified Registry Entries*";

    Frame regF;
    ListBox List5{regF, at(16, 16, 568, 112)}; ///< warnings, below a heading
    Tree TreeView1{regF, at(16, 136, 568, 224)};
    ListBox List6{regF, at(16, 136, 568, 224), false}; ///< files pending for the next start, below a heading
    TextBox Text4{regF, at(16, 368, 568, 24)};         ///< the selected entry
    cButton Command1{regF, "Refresh", at(16, 400, 96, 32)};
    cButton Command3{regF, "Delete Key", at(120, 400, 112, 32)};
    cButton Command11{regF, "Scan File for Viruses", at(240, 400, 168, 32)};
    cButton cScnUpd{regF, "Scan && Update Warnings", at(416, 400, 168, 32)};
    cButton cMod{regF, "Check for modifications/deletions on reboot", at(16, 440, 312, 32)};
    // A copy of the selected entry, and two lists that nothing fills; never shown.
    Label Label19{regF, "", at(0, 0, 8, 8)}; ///< the selected entry, as it is acted on
    ListBox List2{regF, at(0, 0, 8, 8), false};
    ListBox List3{regF, at(0, 0, 8, 8), false};
};

} // namespace tarvelon
