#pragma once

#include "driver.h"

#include <commctrl.h>

namespace e2e {

/// A tree of the system's own kind in another process's window.
class TreeView {
public:
    explicit TreeView(HWND window);
    TreeView(const TreeView&) = delete;
    ~TreeView();

    HTREEITEM root() const { return next(TVGN_ROOT, nullptr); }
    /// The entry that stands to `item` as `relation` says (TVGN_...); null when there is none.
    HTREEITEM next(WPARAM relation, HTREEITEM item) const;

    std::string textOf(HTREEITEM item) const;

    void open(HTREEITEM item) const;
    void select(HTREEITEM item) const;

    /// In the system's dialog for folders: has it select one, such as "C:\folder\". Throws NotSeen where that
    /// fails. Names in the tree are no help on the way there, as the system shows some of them in the user's
    /// language.
    void pick(const std::string& path) const;

private:
    /// A piece of the other process's memory, through which its tree answers.
    struct Page {
        TVITEMW item;
        wchar_t text[MAX_PATH];
    };

    HWND window_;
    HANDLE process_ = nullptr;
    Page* there_ = nullptr;
};

} // namespace e2e
