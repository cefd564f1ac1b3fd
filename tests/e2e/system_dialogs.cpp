#include "system_dialogs.h"

#include "tree_view.h"

#include <algorithm>

namespace e2e {

namespace {

HTREEITEM drive(const TreeView& tree, const std::string& name) {
    HTREEITEM const desktop = tree.root();
    tree.open(desktop);
    for (HTREEITEM place = tree.next(TVGN_CHILD, desktop); place != nullptr;
         place = tree.next(TVGN_NEXT, place)) {
        tree.open(place);
        if (HTREEITEM const found = tree.child(place, name, Milliseconds(200))) {
            return found;
        }
    }
    throw NotSeen("no drive " + name + " in the tree of folders:" + tree.describe(desktop));
}

} // namespace

FolderDialog::FolderDialog(const Program& program)
    : box_(program.box()) {}

void FolderDialog::pick(const std::string& path) const {
    HWND window = nullptr;
    if (!comesTrue([&] {
            return (window = FindWindowExA(box_.window, nullptr, WC_TREEVIEWA, nullptr)) != nullptr;
        })) {
        throw NotSeen("no tree of folders in \"" + box_.title + "\"");
    }
    const TreeView tree(window);
    HTREEITEM item = drive(tree, "(" + path.substr(0, 2) + ")");
    for (std::size_t from = 3; from < path.size();) {
        const std::size_t end = std::min(path.find('\\', from), path.size());
        const std::string name = path.substr(from, end - from);
        tree.open(item);
        HTREEITEM const found = tree.child(item, name, patience);
        if (found == nullptr) {
            throw NotSeen("no folder \"" + name + "\" in the tree:" + tree.describe(item));
        }
        item = found;
        from = end + 1;
    }
    tree.select(item);
    box_.press("OK");
}

FileDialog::FileDialog(const Program& program, const std::string& title)
    : box_(program.box()) {
    if (box_.title != title) {
        throw NotSeen("\"" + box_.title + "\" in place of \"" + title + "\"");
    }
}

void FileDialog::pick(const std::string& path) const {
    Form(box_.window).fill(0, path);
    box_.press("Open");
}

} // namespace e2e
