#include "view/tree.h"

#include "view/form.h"

namespace tarvelon {

ControlWindow::Kind TreeWindow::kind() const {
    return {WC_TREEVIEWA,
            TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP};
}

void TreeWindow::arranged() {
    handleAsClass(TVM_SETITEMHEIGHT, static_cast<WPARAM>(scale()(22)), 0);
    handleAsClass(TVM_SETINDENT, static_cast<WPARAM>(scale()(20)), 0);
    // Older systems pass this over.
    constexpr UINT setExtendedStyle = TV_FIRST + 44;
    constexpr WPARAM doubleBuffered = 4;
    handleAsClass(setExtendedStyle, doubleBuffered, doubleBuffered);
}

void TreeWindow::applyItems(Aspect aspect) {
    stale_ = true;
    anew_ = anew_ || aspect == Aspect::Items;
}

void TreeWindow::refresh() {
    colour();
    followNodes();
    ControlWindow::refresh();
}

void TreeWindow::colour() {
    if (ground_ != theme().field || text_ != theme().fieldText) {
        ground_ = theme().field;
        text_ = theme().fieldText;
        handleAsClass(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(ground_));
        handleAsClass(TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(text_));
    }
}

void TreeWindow::followNodes() {
    if (!stale_ || following_ || raising_ > 0) {
        return;
    }
    following_ = true;
    // On a hidden window the message would bring it to light.
    const bool holdsDrawing = tree_.Visible();
    if (holdsDrawing) {
        handleAsClass(WM_SETREDRAW, FALSE, 0);
    }
    const Stand stand = anew_ ? clear() : Stand{};
    addMissing();
    restore(stand);
    if (holdsDrawing) {
        handleAsClass(WM_SETREDRAW, TRUE, 0);
    }
    stale_ = false;
    anew_ = false;
    following_ = false;
}

TreeWindow::Stand TreeWindow::clear() {
    Stand stand{.selected = keyOf(next(TVGN_CARET)), .first = keyOf(next(TVGN_FIRSTVISIBLE)), .open = {}};
    for (const auto& [key, item] : items_) {
        TVITEMA asked{};
        asked.mask = TVIF_STATE;
        asked.hItem = item;
        asked.stateMask = TVIS_EXPANDED;
        handleAsClass(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&asked));
        if ((asked.state & TVIS_EXPANDED) != 0) {
            stand.open.push_back(key);
        }
    }
    handleAsClass(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
    items_.clear();
    return stand;
}

void TreeWindow::restore(const Stand& stand) {
    for (const std::string& key : stand.open) {
        handleAsClass(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(itemOf(key)));
    }
    if (const HTREEITEM selected = itemOf(stand.selected)) {
        handleAsClass(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(selected));
        tree_.reselect(*tree_.find(stand.selected));
    }
    if (const HTREEITEM first = itemOf(stand.first)) {
        handleAsClass(TVM_SELECTITEM, TVGN_FIRSTVISIBLE, reinterpret_cast<LPARAM>(first));
    }
}

void TreeWindow::addMissing() {
    const auto& nodes = tree_.nodes();
    for (std::size_t index = items_.size(); index < nodes.size(); ++index) {
        const Tree::Node& node = nodes[index];
        std::string text = node.text; // Seen up to its first zero.
        TVINSERTSTRUCTA insert{};
        const auto [item, isNew] = items_.emplace(node.key, nullptr);
        insert.hParent = node.parent ? itemOf(node.parent->key) : TVI_ROOT;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT | TVIF_PARAM;
        insert.item.pszText = text.data();
        insert.item.lParam = reinterpret_cast<LPARAM>(&item->first);
        item->second =
            reinterpret_cast<HTREEITEM>(handleAsClass(TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
    }
}

LRESULT TreeWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    constexpr UINT lastTreeMessage = TV_FIRST + 0xff;
    const bool asked = message >= TV_FIRST && message <= lastTreeMessage;
    if (stale_ &&
        (asked || message == WM_KEYDOWN || message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN)) {
        followNodes();
    }
    if (message == WM_KEYDOWN && wide >= VK_PRIOR && wide <= VK_DOWN) {
        selectFirstIfNone();
    } else if (message == WM_PAINT) {
        colour();
    }
    const LRESULT result = ControlWindow::handle(message, wide, low);
    if (message == WM_NCPAINT) {
        paintThinEdge();
    }
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
        RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    }
    return result;
}

void TreeWindow::selectFirstIfNone() {
    // From no row at all the keys for moving lead nowhere.
    if (!next(TVGN_CARET)) {
        handleAsClass(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(next(TVGN_ROOT)));
    }
}

/// Empty for no item.
std::string TreeWindow::keyOf(HTREEITEM item) {
    TVITEMA asked{};
    asked.mask = TVIF_PARAM;
    asked.hItem = item;
    const bool found = item && handleAsClass(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&asked)) != 0;
    return found ? *reinterpret_cast<const std::string*>(asked.lParam) : std::string();
}

HTREEITEM TreeWindow::itemOf(const std::string& key) const {
    const auto found = items_.find(key);
    return found == items_.end() ? nullptr : found->second;
}

HTREEITEM TreeWindow::next(WPARAM relation) {
    return reinterpret_cast<HTREEITEM>(handleAsClass(TVM_GETNEXTITEM, relation, 0));
}

void TreeWindow::notifiedWith(const NMHDR& header) {
    if (following_) {
        return; // The window changes by itself.
    }
    ++raising_;
    raise(header);
    --raising_;
    if (stale_ && raising_ == 0) {
        form().refreshLater(*this);
    }
}

void TreeWindow::raise(const NMHDR& header) {
    switch (header.code) {
    case TVN_SELCHANGEDA:
    case TVN_SELCHANGEDW:
        if (const Tree::Node* node = nodeOf(reinterpret_cast<const NMTREEVIEWA&>(header).itemNew.hItem)) {
            tree_.clickNode(*node);
        }
        break;
    case NM_CLICK:
        clickedAgain();
        break;
    case NM_DBLCLK:
        tree_.doubleClick();
        break;
    case TVN_ITEMEXPANDEDA:
    case TVN_ITEMEXPANDEDW:
        tree_.expandOrCollapse();
        break;
    case TVN_KEYDOWN:
        tree_.keyDown(reinterpret_cast<const NMTVKEYDOWN&>(header).wVKey);
        break;
    default:
        break;
    }
}

void TreeWindow::clickedAgain() {
    // A click on the node that is selected already changes no selection, but is a click all the same.
    TVHITTESTINFO hit{};
    const DWORD where = GetMessagePos();
    hit.pt = {static_cast<short>(LOWORD(where)), static_cast<short>(HIWORD(where))};
    ScreenToClient(window(), &hit.pt);
    handleAsClass(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
    const Tree::Node* node = (hit.flags & TVHT_ONITEM) != 0 ? nodeOf(hit.hItem) : nullptr;
    if (node && node == tree_.selected()) {
        tree_.clickNode(*node);
    }
}

} // namespace tarvelon
