#include "tree_view.h"

#include "seen_windows.h"

namespace e2e {

TreeView::TreeView(HWND window)
    : window_(window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    there_ = static_cast<Page*>(VirtualAllocEx(process_, nullptr, sizeof(Page), MEM_COMMIT, PAGE_READWRITE));
}

TreeView::~TreeView() {
    VirtualFreeEx(process_, there_, 0, MEM_RELEASE);
    CloseHandle(process_);
}

HTREEITEM TreeView::next(WPARAM relation, HTREEITEM item) const {
    return reinterpret_cast<HTREEITEM>(
        SendMessageA(window_, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM TreeView::child(HTREEITEM parent, const std::string& text, Milliseconds limit) const {
    HTREEITEM found = nullptr;
    comesTrue(
        [&] {
            found = next(TVGN_CHILD, parent);
            while (found != nullptr && !textOf(found).ends_with(text)) {
                found = next(TVGN_NEXT, found);
            }
            return found != nullptr;
        },
        limit);
    return found;
}

std::string TreeView::textOf(HTREEITEM item) const {
    Page page{};
    page.item.mask = TVIF_TEXT;
    page.item.hItem = item;
    page.item.pszText = there_->text;
    page.item.cchTextMax = MAX_PATH;
    WriteProcessMemory(process_, there_, &page, sizeof page, nullptr);
    SendMessageA(window_, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&there_->item));
    ReadProcessMemory(process_, there_, &page, sizeof page, nullptr);
    return narrow(page.text);
}

std::string TreeView::describe(HTREEITEM parent) const {
    std::string all;
    for (HTREEITEM item = next(TVGN_CHILD, parent); item != nullptr; item = next(TVGN_NEXT, item)) {
        all += " [" + textOf(item) + "]";
    }
    return all;
}

void TreeView::open(HTREEITEM item) const {
    SendMessageA(window_, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
}

void TreeView::select(HTREEITEM item) const {
    SendMessageA(window_, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

HTREEITEM TreeView::drive(const std::string& name) const {
    open(root());
    for (HTREEITEM place = next(TVGN_CHILD, root()); place != nullptr; place = next(TVGN_NEXT, place)) {
        open(place);
        if (HTREEITEM const found = child(place, name, Milliseconds(200))) {
            return found;
        }
    }
    throw NotSeen("no drive " + name + " in the tree of folders:" + describe(root()));
}

void TreeView::pick(const std::string& path) const {
    HTREEITEM item = drive("(" + path.substr(0, 2) + ")");
    for (std::size_t from = 3; from < path.size(); from = path.find('\\', from) + 1) {
        const std::string name = path.substr(from, path.find('\\', from) - from);
        open(item);
        HTREEITEM const found = child(item, name, patience);
        if (found == nullptr) {
            throw NotSeen("no folder \"" + name + "\" in the tree:" + describe(item));
        }
        item = found;
    }
    select(item);
}

} // namespace e2e
