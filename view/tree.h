#pragma once

#include "ui/controls/tree.h"
#include "view/control.h"

#include <commctrl.h>

#include <string>
#include <unordered_map>
#include <vector>

namespace tarvelon {

/// The tree in the system's tree window, whose items follow the nodes when they are next drawn or asked for.
/// An item is known by its node's key, so that the selection, the open nodes and the place in the list
/// outlive a tree that is filled anew.
class TreeWindow : public ControlWindow {
public:
    TreeWindow(FormWindow& form, Tree& tree)
        : ControlWindow(form, tree)
        , tree_(tree) {}

    void notifiedWith(const NMHDR& header) override;
    void refresh() override;

protected:
    Kind kind() const override;
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    bool paintsItself() const override { return false; }
    void applyItems(Aspect aspect) override;
    void arranged() override;

private:
    /// What the user has made of the window.
    struct Stand {
        std::string selected; ///< Keys.
        std::string first;    ///< At the upper edge.
        std::vector<std::string> open;
    };

    void followNodes();
    Stand clear();
    void addMissing();
    void restore(const Stand& stand);
    void colour();
    void selectFirstIfNone();
    void raise(const NMHDR& header);
    void clickedAgain();
    std::string keyOf(HTREEITEM item);
    HTREEITEM itemOf(const std::string& key) const;
    HTREEITEM next(WPARAM relation);
    const Tree::Node* nodeOf(HTREEITEM item) { return tree_.find(keyOf(item)); }

    Tree& tree_;
    std::unordered_map<std::string, HTREEITEM> items_; ///< The window's items point at the keys.
    bool stale_ = true;
    bool anew_ = false; ///< Nothing of what the window has is left.
    bool following_ = false;
    int raising_ = 0; ///< Notifications that are being handled: the window stands on its items meanwhile.
    Color ground_ = CLR_NONE; ///< As last told to the window, with the text's.
    Color text_ = CLR_NONE;
};

} // namespace tarvelon
