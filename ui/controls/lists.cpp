#include "ui/controls/lists.h"

#include <utility>

namespace tarvelon {

std::string ItemControl::item(int index) const {
    return index >= 0 && index < count() ? items_[static_cast<std::size_t>(index)] : std::string();
}

void ItemControl::add(std::string text) {
    items_.push_back(std::move(text));
    changed(Aspect::ItemAdded);
}

void ItemControl::clear() {
    items_.clear();
    listIndex_ = -1;
    changed(Aspect::Items);
}

void ItemControl::replace(int index, std::string text) {
    if (index >= 0 && index < count()) {
        items_[static_cast<std::size_t>(index)] = std::move(text);
        changed(Aspect::Items);
    }
}

void ItemControl::setListIndex(int index) {
    const int chosen = index >= 0 && index < count() ? index : -1;
    if (listIndex_ != chosen) {
        listIndex_ = chosen;
        changed(Aspect::Value);
    }
}

void ItemControl::select(int index) {
    if (isUsable()) {
        setListIndex(index);
        raise(onClick);
    }
}

ListBox::ListBox(ControlParent parent, Rect place, bool visible, std::string whenEmpty)
    : ListBox(ControlKind::ListBox, parent, place, std::move(whenEmpty)) {
    Visible = visible;
}

ListBox::ListBox(ControlKind kind, ControlParent parent, Rect place, std::string whenEmpty)
    : ItemControl(kind, parent, "", place)
    , whenEmpty_(std::move(whenEmpty)) {}

CheckListBox::CheckListBox(ControlParent parent, Rect place)
    : ListBox(ControlKind::CheckList, parent, place, "") {}

bool CheckListBox::ticked(int index) const {
    return index >= 0 && static_cast<std::size_t>(index) < ticks_.size() &&
           ticks_[static_cast<std::size_t>(index)];
}

void CheckListBox::setTicked(int index, bool ticked) {
    if (index < 0 || index >= count() || this->ticked(index) == ticked) {
        return;
    }
    ticks_.resize(static_cast<std::size_t>(count()), false);
    ticks_[static_cast<std::size_t>(index)] = ticked;
    changed(Aspect::Value);
}

void CheckListBox::toggle(int index) {
    setTicked(index, !ticked(index));
    select(index);
}

ComboBox::ComboBox(ControlParent parent, Rect place)
    : ItemControl(ControlKind::ComboBox, parent, "", place) {}

} // namespace tarvelon
