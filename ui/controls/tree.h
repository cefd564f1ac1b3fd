#pragma once

#include "ui/controls/controls.h"

#include <deque>
#include <string>
#include <unordered_map>

namespace tarvelon {

/// A tree whose nodes are known by keys.
class Tree : public Control {
public:
    struct Node {
        std::string key;
        std::string text;
        Node* parent; ///< Null for a root.
    };

    /// `whenEmpty`: what fills the tree, shown while there is nothing in it.
    Tree(ControlParent parent, Rect place, bool visible = true, std::string whenEmpty = "");

    const std::string& whenEmpty() const { return whenEmpty_; }

    /// The nodes in the order of their making.
    const std::deque<Node>& nodes() const { return nodes_; }
    const Node* find(const std::string& key) const;

    /// Adds a root, or the last child of the node with the key `parentKey`. False, and nothing is added, when
    /// a node with the same key stands anywhere in the tree or the parent does not.
    bool addRoot(const std::string& key, const std::string& text);
    bool addChild(const std::string& parentKey, const std::string& key, const std::string& text);
    void clear();

    /// The texts from the root down to the node, a backslash between each two.
    static std::string fullPath(const Node& node);

    const Node* selected() const { return selected_; }
    /// The selected node has come back after the tree was filled anew: no click is raised.
    void reselect(const Node& node) { selected_ = &node; }

    Screen::Handler onNodeClick;
    /// A node was opened or closed.
    Screen::Handler onExpandOrCollapse;
    Screen::Handler onDoubleClick;
    std::function<void(int keyCode)> onKeyDown;

    void clickNode(const Node& node);
    void expandOrCollapse() { raise(onExpandOrCollapse); }
    void doubleClick() { raise(onDoubleClick); }
    void keyDown(int keyCode);

private:
    bool add(Node* parent, const std::string& key, const std::string& text);

    std::string whenEmpty_;
    std::deque<Node> nodes_; ///< Grows without moving its nodes.
    std::unordered_map<std::string, Node*> byKey_;
    const Node* selected_ = nullptr;
};

} // namespace tarvelon
