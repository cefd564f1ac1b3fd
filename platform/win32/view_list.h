#pragma once

#include "platform/win32/view_control.h"

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
        UINT setRowHeight;
        int selectionChanged;
    };

    ItemsWindow(FormWindow& form, ItemControl& items, const Messages& messages)
        : ControlWindow(form, items)
        , items_(items)
        , messages_(messages) {}

    void notified(int code) override;
    void refresh() override;

protected:
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    void applyValue() override;
    void applyItems(Aspect aspect) override;
    void paintRow(HDC dc, const RECT& place, int row, bool selected);
    int rowHeight() const { return scale()(20); }
    const Messages& messages() const { return messages_; }
    const ItemControl& items() const { return items_; }

    /// Rows from `first` on are now in the window.
    virtual void rowsAdded(int) {}

private:
    void followRows();

    ItemControl& items_;
    const Messages& messages_;
    int rows_ = 0; ///< Rows the window has.
    bool stale_ = true;
    bool following_ = false;
};

class ListBoxWindow : public ItemsWindow {
public:
    ListBoxWindow(FormWindow& form, ListBox& list);
    void drawRow(const DRAWITEMSTRUCT& item) override;

protected:
    Kind kind() const override;
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override;
    bool paintsItself() const override { return false; }
    void arranged() override;
    void rowsAdded(int first) override;

private:
    void paintEdge();

    int widest_ = 0; ///< Pixels of the longest row.
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
