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

    /// The entry below `parent` whose text is or ends in `text`; null when there is none within `limit`.
    HTREEITEM child(HTREEITEM parent, const std::string& text, Milliseconds limit) const;

    std::string textOf(HTREEITEM item) const;
    /// The entries below it, for messages about failures.
    std::string describe(HTREEITEM parent) const;

    void open(HTREEITEM item) const;
    void select(HTREEITEM item) const;

    /// In the system's tree of folders: opens it along the path, such as "C:\folder\", and selects the last
    /// folder. Throws NotSeen where one is missing.
    void pick(const std::string& path) const;

private:
    HTREEITEM drive(const std::string& name) const;

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
