#pragma once

#include "platform/win32/view_control.h"
#include "ui/controls/tree.h"

#include <commctrl.h>

#include <unordered_map>

namespace tarvelon {

/// The tree in the system's tree window, whose items follow the nodes when they are next drawn or asked for.
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
    void followNodes();
    void clear();
    void addMissing();
    void colour();
    void selectFirstIfNone();
    void raise(const NMHDR& header);
    void clickedAgain();
    const Tree::Node* nodeOf(HTREEITEM item);

    Tree& tree_;
    std::unordered_map<const Tree::Node*, HTREEITEM> items_;
    bool stale_ = true;
    bool anew_ = false; ///< Nothing of what the window has is left.
    bool following_ = false;
    int raising_ = 0; ///< Notifications that are being handled: the window stands on its items meanwhile.
    Color ground_ = CLR_NONE; ///< As last told to the window, with the text's.
    Color text_ = CLR_NONE;
};

} // namespace tarvelon
