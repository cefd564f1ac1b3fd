#pragma once

#include "ui/controls/controls.h"

#include <functional>
#include <string>
#include <vector>

namespace tarvelon {

/// Rows of text, and the selected one. Shared by the list box and the drop-down list.
class ItemControl : public Control {
public:
    const std::vector<std::string>& items() const { return items_; }
    int count() const { return static_cast<int>(items_.size()); }
    /// Empty beyond the last row, as for a row that is not there.
    std::string item(int index) const;

    void add(std::string text);
    void clear();
    void replace(int index, std::string text);

    /// Selected row from 0, or -1. Set by code, it raises no click.
    int listIndex() const { return listIndex_; }
    void setListIndex(int index);
    /// The selected row's text, or empty.
    std::string text() const { return item(listIndex_); }

    Screen::Handler onClick;
    /// The user selected a row.
    void select(int index);

protected:
    using Control::Control;

private:
    std::vector<std::string> items_;
    int listIndex_ = -1;
};

/// What stands before a row that is a finding.
enum class RowMark { None, New, Changed };

class ListBox : public ItemControl {
public:
    /// `whenEmpty`: what fills the list, shown while there is nothing in it.
    ListBox(ControlParent parent, Rect place, bool visible = true, std::string whenEmpty = "");

    const std::string& whenEmpty() const { return whenEmpty_; }

    /// By a row's text. With it the rows are paths: long ones are shortened in the middle, and the whole row
    /// shows while the mouse rests on it.
    std::function<RowMark(const std::string& row)> rowMark;

protected:
    ListBox(ControlKind kind, ControlParent parent, Rect place, std::string whenEmpty);

private:
    std::string whenEmpty_;
};

/// A list whose rows carry a tick each. A click on a row flips its tick and then tells of the click.
class CheckListBox : public ListBox {
public:
    CheckListBox(ControlParent parent, Rect place);

    bool ticked(int index) const;
    /// Ticked by code: no click is raised.
    void setTicked(int index, bool ticked);
    /// The user flips a row's tick.
    void toggle(int index);

private:
    std::vector<bool> ticks_; ///< As many as were ever set; rows beyond are clear.
};

class ComboBox : public ItemControl {
public:
    ComboBox(ControlParent parent, Rect place);
};

} // namespace tarvelon
