#include "folder_dialog.h"

#include <commctrl.h>

#include <algorithm>

namespace e2e {

namespace {

/// A piece of another process's memory, through which its tree answers.
class Shared {
public:
    struct Page {
        TVITEMW item;
        wchar_t text[MAX_PATH];
    };

    explicit Shared(HWND window) {
        DWORD id = 0;
        GetWindowThreadProcessId(window, &id);
        process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
        page_ =
            static_cast<Page*>(VirtualAllocEx(process_, nullptr, sizeof(Page), MEM_COMMIT, PAGE_READWRITE));
    }
    Shared(const Shared&) = delete;
    ~Shared() {
        VirtualFreeEx(process_, page_, 0, MEM_RELEASE);
        CloseHandle(process_);
    }

    Page* there() const { return page_; }
    void write(const Page& page) const { WriteProcessMemory(process_, page_, &page, sizeof page, nullptr); }
    Page read() const {
        Page page{};
        ReadProcessMemory(process_, page_, &page, sizeof page, nullptr);
        return page;
    }

private:
    HANDLE process_ = nullptr;
    Page* page_ = nullptr;
};

/// The tree of the dialog. Its folders are read when they are opened.
class Tree {
public:
    explicit Tree(HWND window)
        : window_(window)
        , shared_(window) {}

    HTREEITEM root() const { return next(TVGN_ROOT, nullptr); }

    void open(HTREEITEM item) const {
        SendMessageA(window_, TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(item));
    }
    void select(HTREEITEM item) const {
        SendMessageA(window_, TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item));
    }

    /// The entry below `parent` whose text is or ends in `text`; null when there is none within `limit`.
    HTREEITEM child(HTREEITEM parent, const std::string& text, Milliseconds limit) const {
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

    HTREEITEM next(WPARAM relation, HTREEITEM item) const {
        return reinterpret_cast<HTREEITEM>(
            SendMessageA(window_, TVM_GETNEXTITEM, relation, reinterpret_cast<LPARAM>(item)));
    }

    std::string textOf(HTREEITEM item) const {
        Shared::Page page{};
        page.item.mask = TVIF_TEXT;
        page.item.hItem = item;
        page.item.pszText = shared_.there()->text;
        page.item.cchTextMax = MAX_PATH;
        shared_.write(page);
        SendMessageA(window_, TVM_GETITEMW, 0, reinterpret_cast<LPARAM>(shared_.there()));
        char text[MAX_PATH] = {};
        WideCharToMultiByte(CP_ACP, 0, shared_.read().text, -1, text, sizeof text, nullptr, nullptr);
        return text;
    }

    std::string texts(HTREEITEM parent) const {
        std::string all;
        for (HTREEITEM item = next(TVGN_CHILD, parent); item != nullptr; item = next(TVGN_NEXT, item)) {
            all += " [" + textOf(item) + "]";
        }
        return all;
    }

private:
    HWND window_;
    Shared shared_;
};

HTREEITEM drive(const Tree& tree, const std::string& name) {
    HTREEITEM const desktop = tree.root();
    tree.open(desktop);
    for (HTREEITEM place = tree.next(TVGN_CHILD, desktop); place != nullptr;
         place = tree.next(TVGN_NEXT, place)) {
        tree.open(place);
        if (HTREEITEM const found = tree.child(place, name, Milliseconds(200))) {
            return found;
        }
    }
    throw NotSeen("no drive " + name + " in the tree of folders:" + tree.texts(desktop));
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
    const Tree tree(window);
    HTREEITEM item = drive(tree, "(" + path.substr(0, 2) + ")");
    for (std::size_t from = 3; from < path.size();) {
        const std::size_t end = std::min(path.find('\\', from), path.size());
        const std::string name = path.substr(from, end - from);
        tree.open(item);
        HTREEITEM const found = tree.child(item, name, patience);
        if (found == nullptr) {
            throw NotSeen("no folder \"" + name + "\" in the tree:" + tree.texts(item));
        }
        item = found;
        from = end + 1;
    }
    tree.select(item);
    box_.press("OK");
}

} // namespace e2e
