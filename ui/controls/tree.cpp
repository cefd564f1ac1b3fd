#include "ui/controls/tree.h"

#include <utility>

namespace tarvelon {

Tree::Tree(ControlParent parent, Rect place, bool visible, std::string whenEmpty)
    : Control(ControlKind::Tree, parent, "", place)
    , whenEmpty_(std::move(whenEmpty)) {
    Visible = visible;
}

const Tree::Node* Tree::find(const std::string& key) const {
    const auto found = byKey_.find(key);
    return found == byKey_.end() ? nullptr : found->second;
}

bool Tree::addRoot(const std::string& key, const std::string& text) {
    return add(nullptr, key, text);
}

bool Tree::addChild(const std::string& parentKey, const std::string& key, const std::string& text) {
    const auto parent = byKey_.find(parentKey);
    return parent != byKey_.end() && add(parent->second, key, text);
}

bool Tree::add(Node* parent, const std::string& key, const std::string& text) {
    if (byKey_.contains(key)) {
        return false;
    }
    byKey_[key] = &nodes_.emplace_back(Node{key, text, parent});
    changed(Aspect::ItemAdded);
    return true;
}

void Tree::clear() {
    nodes_.clear();
    byKey_.clear();
    selected_ = nullptr;
    changed(Aspect::Items);
}

std::string Tree::fullPath(const Node& node) {
    return node.parent ? fullPath(*node.parent) + "\\" + node.text : node.text;
}

void Tree::clickNode(const Node& node) {
    selected_ = &node;
    raise(onNodeClick);
}

void Tree::keyDown(int keyCode) {
    raise([this, keyCode] {
        if (onKeyDown) {
            onKeyDown(keyCode);
        }
    });
}

} // namespace tarvelon
