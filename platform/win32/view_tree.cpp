#include "platform/win32/view_tree.h"

namespace tarvelon {

ControlWindow::Kind TreeWindow::kind() const {
    return {WC_TREEVIEWA,
            TVS_HASBUTTONS | TVS_HASLINES | TVS_LINESATROOT | TVS_SHOWSELALWAYS | WS_BORDER | WS_TABSTOP};
}

void TreeWindow::arranged() {
    handleAsClass(TVM_SETITEMHEIGHT, static_cast<WPARAM>(scale()(22)), 0);
    handleAsClass(TVM_SETINDENT, static_cast<WPARAM>(scale()(20)), 0);
}

void TreeWindow::applyItems(Aspect aspect) {
    stale_ = true;
    anew_ = anew_ || aspect == Aspect::Items;
}

void TreeWindow::refresh() {
    handleAsClass(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(theme().field));
    handleAsClass(TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(theme().fieldText));
    followNodes();
    ControlWindow::refresh();
}

void TreeWindow::followNodes() {
    if (!stale_) {
        return;
    }
    following_ = true;
    if (anew_) {
        handleAsClass(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
        items_.clear();
    }
    const auto& nodes = tree_.nodes();
    for (std::size_t index = items_.size(); index < nodes.size(); ++index) {
        const Tree::Node& node = nodes[index];
        std::string text = node.text;
        TVINSERTSTRUCTA insert{};
        insert.hParent = node.parent ? items_[node.parent] : TVI_ROOT;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT | TVIF_PARAM;
        insert.item.pszText = text.data();
        insert.item.lParam = reinterpret_cast<LPARAM>(&node);
        items_[&node] =
            reinterpret_cast<HTREEITEM>(handleAsClass(TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
    }
    stale_ = false;
    anew_ = false;
    following_ = false;
}

LRESULT TreeWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    constexpr UINT lastTreeMessage = TV_FIRST + 0xff;
    if (stale_ && !following_ && message >= TV_FIRST && message <= lastTreeMessage) {
        followNodes();
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

const Tree::Node* TreeWindow::nodeOf(HTREEITEM item) {
    TVITEMA asked{};
    asked.mask = TVIF_PARAM;
    asked.hItem = item;
    const bool found = item && handleAsClass(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&asked)) != 0;
    return found ? reinterpret_cast<const Tree::Node*>(asked.lParam) : nullptr;
}

void TreeWindow::notifiedWith(const NMHDR& header) {
    if (following_ || anew_) {
        return; // The items still name nodes that are gone.
    }
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
