#include "view/row_menu.h"

#include "platform/win32/clipboard.h"
#include "platform/win32/owned.h"
#include "platform/win32/shell_execute.h"
#include "platform/win32/window_calls.h"
#include "ui/controls/lists.h"
#include "ui/controls/tree.h"

#include <commctrl.h>

#include <cstring>
#include <optional>
#include <vector>

namespace tarvelon {

namespace {

using OwnedMenu = Owned<HMENU, DestroyMenu>;

enum Command : UINT { Copy = 1, CopyAll, OpenFolder, Properties };

const ItemControl* listOf(const Control& control) {
    const bool isList = control.kind() == ControlKind::ListBox || control.kind() == ControlKind::CheckList;
    return isList ? static_cast<const ItemControl*>(&control) : nullptr;
}

const Tree* treeOf(const Control& control) {
    return control.kind() == ControlKind::Tree ? static_cast<const Tree*>(&control) : nullptr;
}

bool hasRows(const Control& control) {
    return listOf(control) || treeOf(control);
}

std::vector<std::string> rowsOf(const Control& control) {
    std::vector<std::string> rows;
    if (const ItemControl* list = listOf(control)) {
        rows = list->items();
    } else if (const Tree* tree = treeOf(control)) {
        for (const Tree::Node& node : tree->nodes()) {
            rows.push_back(Tree::fullPath(node));
        }
    }
    return rows;
}

std::optional<std::string> selectedRow(const Control& control) {
    if (const ItemControl* list = listOf(control)) {
        return list->listIndex() < 0 ? std::nullopt : std::optional(list->text());
    }
    const Tree* tree = treeOf(control);
    return tree && tree->selected() ? std::optional(tree->selected()->text) : std::nullopt;
}

LRESULT ask(HWND window, UINT message, WPARAM wide, LPARAM low) {
    return windowCalls().sendMessage(window, message, wide, low);
}

/// The row under the mouse is the one that the menu is for.
void selectAt(HWND window, Control& control, POINT where) {
    ScreenToClient(window, &where);
    if (treeOf(control)) {
        TVHITTESTINFO hit{where, 0, nullptr};
        if (ask(window, TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)) != 0) {
            ask(window, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(hit.hItem));
        }
        return;
    }
    const auto row = static_cast<DWORD>(ask(window, LB_ITEMFROMPOINT, 0, MAKELPARAM(where.x, where.y)));
    auto& list = static_cast<ItemControl&>(control);
    if (HIWORD(row) == 0 && LOWORD(row) < list.count() && LOWORD(row) != list.listIndex()) {
        list.select(LOWORD(row));
    }
}

/// Below the selected row, or in the corner of a window without any.
POINT belowSelection(HWND window, const Control& control) {
    RECT row{};
    if (const ItemControl* list = listOf(control)) {
        if (list->listIndex() >= 0) {
            ask(window, LB_GETITEMRECT, static_cast<WPARAM>(list->listIndex()),
                reinterpret_cast<LPARAM>(&row));
        }
    } else if (const LRESULT item = ask(window, TVM_GETNEXTITEM, TVGN_CARET, 0)) {
        std::memcpy(&row, &item, sizeof item); // The message wants the item where its answer goes.
        ask(window, TVM_GETITEMRECT, TRUE, reinterpret_cast<LPARAM>(&row));
    }
    POINT spot{row.left, row.bottom};
    ClientToScreen(window, &spot);
    return spot;
}

Command chosen(HWND window, const Control& control, const std::string& file, POINT where) {
    const OwnedMenu menu(CreatePopupMenu());
    const auto add = [&](Command command, const char* text, bool usable) {
        AppendMenuA(menu.get(), MF_STRING | (usable ? 0U : MF_GRAYED), command, text);
    };
    add(Copy, "&Copy\tCtrl+C", selectedRow(control).has_value());
    add(CopyAll, "Copy &all", !rowsOf(control).empty());
    if (control.fileOfRow) {
        AppendMenuA(menu.get(), MF_SEPARATOR, 0, nullptr);
        add(OpenFolder, "&Open folder", !file.empty());
        add(Properties, "&Properties", !file.empty());
    }
    return static_cast<Command>(
        TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, where.x, where.y, 0, window, nullptr));
}

} // namespace

bool copyRows(HWND window, const Control& control, Rows which) {
    if (!hasRows(control)) {
        return false;
    }
    std::string text;
    if (which == Rows::Selected) {
        text = selectedRow(control).value_or("");
    } else {
        for (const std::string& row : rowsOf(control)) {
            text += row + "\r\n";
        }
    }
    if (!text.empty()) {
        copyToClipboard(window, text);
    }
    return true;
}

bool showRowMenu(HWND window, Control& control, LPARAM where) {
    if (!hasRows(control)) {
        return false;
    }
    SetFocus(window);
    POINT spot{static_cast<short>(LOWORD(where)), static_cast<short>(HIWORD(where))};
    const bool byKey = where == -1;
    if (byKey) {
        spot = belowSelection(window, control);
    } else {
        selectAt(window, control, spot);
    }
    const auto row = selectedRow(control);
    const std::string file = row && control.fileOfRow ? control.fileOfRow(*row) : std::string();
    switch (chosen(window, control, file, spot)) {
    case Copy:
        return copyRows(window, control, Rows::Selected);
    case CopyAll:
        return copyRows(window, control, Rows::All);
    case OpenFolder:
        showInFolder(GetAncestor(window, GA_ROOT), file);
        return true;
    case Properties:
        showProperties(GetAncestor(window, GA_ROOT), file);
        return true;
    }
    return true;
}

} // namespace tarvelon
