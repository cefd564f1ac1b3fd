#include "ui/controls/tree.h"

#include "view/create.h"
#include "view/form.h"

#include <commctrl.h>

#include <string>
#include <unordered_map>
#include <vector>

namespace tarvelon {

namespace {

/// The tree in the system's tree window, whose items follow the nodes when they are next drawn or asked for.
/// An item is known by its node's key, so that the selection, the open nodes and the place in the list
/// outlive a tree that is filled anew.
class TreeWindow : public WindowOf<Tree> {
public:
    using WindowOf::WindowOf;

    LRESULT notifiedWith(const NMHDR& header) override {
        if (header.code == NM_CUSTOMDRAW) {
            return colourRow(reinterpret_cast<NMTVCUSTOMDRAW&>(const_cast<NMHDR&>(header)));
        }
        if (following_) {
            return 0; // The window changes by itself.
        }
        if (comesIn_ && (header.code == TVN_SELCHANGINGA || header.code == TVN_SELCHANGINGW)) {
            return TRUE;
        }
        ++raising_;
        raise(header);
        --raising_;
        if (stale_ && raising_ == 0) {
            form().refreshLater(*this);
        }
        return 0;
    }

    bool isEmpty() const override { return control().nodes().empty(); }

    void follow() override {
        colour();
        followNodes();
    }

    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        if (message == WM_SYSKEYDOWN) {
            // Alt and what goes with it is the form's; some classes take it for a key of their own.
            return windowCalls().defWindowProc(window(), message, wide, low);
        }
        constexpr UINT lastTreeMessage = TV_FIRST + 0xff;
        const bool asked = message >= TV_FIRST && message <= lastTreeMessage;
        if (asked || message == WM_KEYDOWN || message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN) {
            followNodes();
        }
        if (message == WM_KEYDOWN && wide >= VK_PRIOR && wide <= VK_DOWN && !next(TVGN_CARET)) {
            // From no row at all the keys for moving lead nowhere.
            select(TVGN_CARET, next(TVGN_ROOT));
        } else if (message == WM_PAINT) {
            colour();
        }
        // When the keyboard comes in, the class would select a row: by Tab alone another one would be meant.
        comesIn_ = comesIn_ || message == WM_SETFOCUS;
        const LRESULT result = ControlWindow::handle(message, wide, low);
        comesIn_ = comesIn_ && message != WM_SETFOCUS;
        if (message == WM_PAINT) {
            paintWhenEmpty(control().whenEmpty());
        }
        return result;
    }

    void applyItems(Aspect aspect) override {
        stale_ = true;
        anew_ = anew_ || aspect == Aspect::Items;
    }

    void arranged() override {
        handleAsClass(TVM_SETITEMHEIGHT, static_cast<WPARAM>(scale()(20)), 0);
        handleAsClass(TVM_SETINDENT, static_cast<WPARAM>(scale()(20)), 0);
        // Older systems pass this over.
        constexpr UINT setExtendedStyle = TV_FIRST + 44;
        constexpr WPARAM doubleBuffered = 4;
        handleAsClass(setExtendedStyle, doubleBuffered, doubleBuffered);
    }

private:
    /// What the user has made of the window.
    struct Stand {
        std::string selected; ///< Keys.
        std::string first;    ///< At the upper edge.
        std::vector<std::string> open;
    };

    /// Selected rows look as those of lists do.
    LRESULT colourRow(NMTVCUSTOMDRAW& drawn) const {
        if (drawn.nmcd.dwDrawStage == CDDS_PREPAINT) {
            return CDRF_NOTIFYITEMDRAW;
        }
        if (drawn.nmcd.dwDrawStage == CDDS_ITEMPREPAINT && (drawn.nmcd.uItemState & CDIS_SELECTED) != 0) {
            const bool here = isFocused();
            drawn.clrTextBk = here ? theme().selected : theme().selectedElsewhere;
            drawn.clrText = here ? theme().selectedText : theme().selectedElsewhereText;
        }
        return CDRF_DODEFAULT;
    }

    void colour() {
        if (ground_ != theme().field || text_ != theme().fieldText) {
            ground_ = theme().field;
            text_ = theme().fieldText;
            handleAsClass(TVM_SETBKCOLOR, 0, static_cast<LPARAM>(ground_));
            handleAsClass(TVM_SETTEXTCOLOR, 0, static_cast<LPARAM>(text_));
        }
    }

    void followNodes() {
        if (!stale_ || following_ || raising_ > 0) {
            return;
        }
        following_ = true;
        const DrawingHeld held(*this);
        const Stand stand = anew_ ? clear() : Stand{};
        addMissing();
        restore(stand);
        stale_ = false;
        anew_ = false;
        following_ = false;
    }

    Stand clear() {
        Stand stand{.selected = keyOf(next(TVGN_CARET)), .first = keyOf(next(TVGN_FIRSTVISIBLE)), .open = {}};
        for (const auto& [key, item] : items_) {
            if ((ask(item, TVIF_STATE, TVIS_EXPANDED).state & TVIS_EXPANDED) != 0) {
                stand.open.push_back(key);
            }
        }
        handleAsClass(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT));
        items_.clear();
        return stand;
    }

    void addMissing() {
        const auto& nodes = control().nodes();
        for (std::size_t index = items_.size(); index < nodes.size(); ++index) {
            const Tree::Node& node = nodes[index];
            const WindowText text(node.text); // Seen up to its first zero.
            TVINSERTSTRUCTW insert{};
            const auto [item, isNew] = items_.emplace(node.key, nullptr);
            insert.hParent = node.parent ? itemOf(node.parent->key) : TVI_ROOT;
            insert.hInsertAfter = TVI_LAST;
            insert.item.mask = TVIF_TEXT | TVIF_PARAM;
            insert.item.pszText = text.inRecord();
            insert.item.lParam = reinterpret_cast<LPARAM>(&item->first);
            item->second = reinterpret_cast<HTREEITEM>(
                handleAsClass(windowCalls().insertTreeItem, 0, reinterpret_cast<LPARAM>(&insert)));
        }
    }

    void restore(const Stand& stand) {
        for (const std::string& key : stand.open) {
            handleAsClass(TVM_EXPAND, TVE_EXPAND, reinterpret_cast<LPARAM>(itemOf(key)));
        }
        if (const HTREEITEM selected = itemOf(stand.selected)) {
            select(TVGN_CARET, selected);
            control().reselect(*control().find(stand.selected));
        }
        if (const HTREEITEM first = itemOf(stand.first)) {
            select(TVGN_FIRSTVISIBLE, first);
        }
    }

    void raise(const NMHDR& header) {
        switch (header.code) {
        case TVN_SELCHANGEDA:
        case TVN_SELCHANGEDW:
            if (const auto* node = nodeOf(reinterpret_cast<const NMTREEVIEWA&>(header).itemNew.hItem)) {
                control().clickNode(*node);
            }
            break;
        case NM_CLICK:
            clickedAgain();
            break;
        case NM_DBLCLK:
            control().doubleClick();
            break;
        case TVN_ITEMEXPANDEDA:
        case TVN_ITEMEXPANDEDW:
            control().expandOrCollapse();
            break;
        case TVN_KEYDOWN:
            control().keyDown(reinterpret_cast<const NMTVKEYDOWN&>(header).wVKey);
            break;
        default:
            break;
        }
    }

    void clickedAgain() {
        // A click on the node that is selected already changes no selection, but is a click all the same.
        TVHITTESTINFO hit{};
        const DWORD where = GetMessagePos();
        hit.pt = {static_cast<short>(LOWORD(where)), static_cast<short>(HIWORD(where))};
        ScreenToClient(window(), &hit.pt);
        handleAsClass(TVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit));
        const Tree::Node* node = (hit.flags & TVHT_ONITEM) != 0 ? nodeOf(hit.hItem) : nullptr;
        if (node && node == control().selected()) {
            control().clickNode(*node);
        }
    }

    HTREEITEM next(WPARAM relation) {
        return reinterpret_cast<HTREEITEM>(handleAsClass(TVM_GETNEXTITEM, relation, 0));
    }

    void select(WPARAM as, HTREEITEM item) {
        handleAsClass(TVM_SELECTITEM, as, reinterpret_cast<LPARAM>(item));
    }

    /// All zero for no item.
    TVITEMA ask(HTREEITEM item, UINT mask, UINT states = 0) {
        TVITEMA asked{};
        asked.mask = mask;
        asked.hItem = item;
        asked.stateMask = states;
        const bool found = item && handleAsClass(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&asked)) != 0;
        return found ? asked : TVITEMA{};
    }

    /// Empty for no item.
    std::string keyOf(HTREEITEM item) {
        const auto* key = reinterpret_cast<const std::string*>(ask(item, TVIF_PARAM).lParam);
        return key ? *key : std::string();
    }

    const Tree::Node* nodeOf(HTREEITEM item) { return control().find(keyOf(item)); }

    HTREEITEM itemOf(const std::string& key) const {
        const auto found = items_.find(key);
        return found == items_.end() ? nullptr : found->second;
    }
    std::unordered_map<std::string, HTREEITEM> items_; ///< The window's items point at the keys.
    bool stale_ = true;
    bool anew_ = false; ///< Nothing of what the window has is left.
    bool following_ = false;
    bool comesIn_ = false;
    int raising_ = 0; ///< Notifications that are being handled: the window stands on its items meanwhile.
    Color ground_ = CLR_NONE; ///< As last told to the window, with the text's.
    Color text_ = CLR_NONE;
};

} // namespace

MadeWindow makeTree(FormWindow& form, Control& control) {
    return std::make_unique<TreeWindow>(form, control,
                                        ControlWindow::Kind{.windowClass = WC_TREEVIEWA,
                                                            .style = TVS_HASBUTTONS | TVS_LINESATROOT |
                                                                     TVS_FULLROWSELECT | TVS_SHOWSELALWAYS |
                                                                     WS_BORDER | WS_TABSTOP,
                                                            .drawnByClass = true});
}

} // namespace tarvelon
