#include "tree_view.h"

#include "seen_windows.h"

#include <shlobj.h>

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

void TreeView::open(HTREEITEM item) const {
    SendMessageA(window_, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
}

void TreeView::select(HTREEITEM item) const {
    SendMessageA(window_, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
}

void TreeView::pick(const std::string& path) const {
    const std::wstring folder = wide(path.substr(0, path.size() - 1));
    const std::string name = narrow(folder.substr(folder.rfind(L'\\') + 1).c_str());
    open(root());
    const auto isPicked = [&] {
        Page page{};
        folder.copy(page.text, MAX_PATH - 1);
        WriteProcessMemory(process_, there_, &page, sizeof page, nullptr);
        SendMessageW(GetAncestor(window_, GA_ROOT), BFFM_SETSELECTIONW, TRUE,
                     reinterpret_cast<LPARAM>(there_->text));
        return textOf(next(TVGN_CARET, nullptr)) == name;
    };
    if (!comesTrue(isPicked)) {
        throw NotSeen("no folder \"" + path + "\" in the tree, but \"" + textOf(next(TVGN_CARET, nullptr)) +
                      "\"");
    }
}

} // namespace e2e
