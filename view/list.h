#pragma once

#include "view/brush.h"
#include "view/control.h"
#include "view/mark.h"
#include "view/tip.h"

namespace tarvelon {

/// Rows of text. The window's rows follow the control's when they are next drawn or asked for, many at once.
class ItemsWindow : public ControlWindow {
public:
    /// The messages by which the two classes do the same things.
    struct Messages {
        UINT first;
        UINT last;
        UINT clear;
        UINT add;
        UINT setSelected;
        UINT getSelected;
        UINT getTop;
        UINT setTop;
        int selectionChanged;
    };

    ItemsWindow(FormWindow& form, ItemControl& items, const Messages& messages)
        : ControlWindow(form, items)
        , items_(items)
        , messages_(messages) {}

    void notified(int code) override;
    void refresh() override;
    /// The ground below the last row, also that of an open drop-down list.
    HBRUSH colorStandardWindow(HDC) override { return ground_.of(theme().field); }
    bool isEmpty() const override { return items_.count() == 0; }

protected:
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    void applyValue() override;
    void applyItems(Aspect aspect) override;
    /// Draws one row of a list, in one piece.
    void paintRow(const DRAWITEMSTRUCT& item);
    /// What stands before a row's text, and its width in pixels.
    virtual void paintRowStart(Canvas&, int) {}
    virtual int rowStartWidth() const { return 0; }
    /// Pixels of the longest row with all that is around it, where rows can be scrolled sideways.
    virtual int rowWidth() const { return 0; }
    int rowHeight() const { return scale()(20); }
    const Messages& messages() const { return messages_; }
    ItemControl& items() const { return items_; }

    /// Rows from `first` on are now in the window.
    virtual void rowsAdded(int) {}

private:
    void followRows();

    ItemControl& items_;
    const Messages& messages_;
    int rows_ = 0; ///< Rows the window has.
    bool stale_ = true;
    bool following_ = false;
    Brush ground_;
};

class ListBoxWindow : public ItemsWindow {
public:
    ListBoxWindow(FormWindow& form, ItemControl& list);
    void drawRow(const DRAWITEMSTRUCT& item) override;

protected:
    Kind kind() const override;
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    bool paintsItself() const override { return false; }
    void arranged() override;
    void rowsAdded(int first) override;
    int rowWidth() const override { return rowStartWidth() + longestText_ + scale()(12); }

    void applyToolTip() override;

private:
    tarvelon::ToolTip toolTip_;
    int longestText_ = 0; ///< In pixels.
};

/// A list with a mark before each row. Other programs read a row's tick as its item data.
class CheckListWindow : public ListBoxWindow {
public:
    CheckListWindow(FormWindow& form, CheckListBox& list)
        : ListBoxWindow(form, list)
        , list_(list) {}

    void notified(int code) override;

protected:
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    void paintRowStart(Canvas& canvas, int row) override;
    int rowStartWidth() const override { return scale()(Mark::size + 6); }

private:
    CheckListBox& list_;
};

class ComboBoxWindow : public ItemsWindow {
public:
    ComboBoxWindow(FormWindow& form, ComboBox& combo);
    void drawRow(const DRAWITEMSTRUCT& item) override;

protected:
    Kind kind() const override;
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    /// The window's text is the chosen row.
    bool answersCaption() const override { return false; }
    void paint(Canvas& canvas) override;
    void arranged() override;
};

} // namespace tarvelon
