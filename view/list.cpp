#include "ui/controls/lists.h"
#include "view/create.h"
#include "view/form.h"

#include <algorithm>
#include <utility>

namespace tarvelon {

namespace {

/// The messages by which the two classes do the same things.
struct ItemMessages {
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

constexpr ItemMessages listMessages{
    LB_ADDSTRING, LB_MSGMAX,      LB_RESETCONTENT, LB_ADDSTRING,  LB_SETCURSEL,
    LB_GETCURSEL, LB_GETTOPINDEX, LB_SETTOPINDEX,  LBN_SELCHANGE,
};
constexpr ItemMessages comboMessages{
    CB_GETEDITSEL, CB_MSGMAX,      CB_RESETCONTENT, CB_ADDSTRING,  CB_SETCURSEL,
    CB_GETCURSEL,  CB_GETTOPINDEX, CB_SETTOPINDEX,  CBN_SELCHANGE,
};

/// Rows of text. The window's rows follow the control's when they are next drawn or asked for, many at once.
class ItemsWindow : public WindowOf<ItemControl> {
public:
    ItemsWindow(FormWindow& form, Control& items, const Kind& kind, const ItemMessages& messages)
        : WindowOf(form, items, kind)
        , messages_(messages) {}

    void notified(int code) override {
        if (code == messages_.selectionChanged) {
            control().select(static_cast<int>(handleAsClass(messages_.getSelected, 0, 0)));
        }
    }

    /// Draws one row, in one piece.
    void drawRow(const DRAWITEMSTRUCT& item) override {
        const int row = static_cast<int>(item.itemID);
        const int width = std::max(widthOf(item.rcItem), rowWidth());
        const int height = heightOf(item.rcItem);
        if (row < 0 || !tools().buffer.reserve(width, height)) {
            return;
        }
        const bool selected = (item.itemState & ODS_SELECTED) != 0;
        const bool elsewhere = selected && !isFocused();
        const Color ground = elsewhere  ? theme().selectedElsewhere
                             : selected ? theme().selected
                                        : theme().field;
        const Color plain = control().isUsable() ? theme().fieldText : surface().disabledText;
        Canvas canvas(tools().buffer, tools().fonts, scale(), width, height);
        canvas.fill(canvas.area(), ground);
        RECT text = inset(canvas.area(), scale()(6), 0);
        paintRowStart(canvas, row, ground);
        text.left += rowStartWidth();
        canvas.text(control().item(row), text,
                    {.color = elsewhere  ? theme().selectedElsewhereText
                              : selected ? theme().selectedText
                                         : plain});
        BitBlt(item.hDC, item.rcItem.left, item.rcItem.top, width, height, canvas.dc(), 0, 0, SRCCOPY);
    }

    /// The ground below the last row, also that of an open drop-down list.
    HBRUSH colorStandardWindow(HDC) override { return tools().brushes.get(theme().field); }
    bool isEmpty() const override { return control().count() == 0; }

protected:
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        if (message >= messages_.first && message <= messages_.last) {
            follow();
        }
        return ControlWindow::handle(message, wide, low);
    }

    void applyValue() override {
        follow();
        handleAsClass(messages_.setSelected, static_cast<WPARAM>(control().listIndex()), 0);
    }

    void applyItems(Aspect aspect) override {
        stale_ = true;
        if (aspect == Aspect::Items) {
            rows_ = -1;
            if (isEmpty() && isFocused()) {
                form().leaveIfEmpty(*this);
            }
        }
    }

    /// What stands before a row's text, and its width in pixels.
    virtual void paintRowStart(Canvas&, int, Color /*ground*/) {}
    virtual int rowStartWidth() const { return 0; }
    /// Pixels of the longest row with all that is around it, where rows can be scrolled sideways.
    virtual int rowWidth() const { return 0; }
    int rowHeight() const { return scale()(20); }

    /// Rows from `first` on are now in the window.
    virtual void rowsAdded(int) {}

private:
    void follow() override {
        if (!std::exchange(stale_, false)) {
            return;
        }
        const DrawingHeld held(*this);
        LRESULT topRow = 0;
        if (rows_ < 0) {
            topRow = handleAsClass(messages_.getTop, 0, 0);
            handleAsClass(messages_.clear, 0, 0);
            rows_ = 0;
        }
        const int first = rows_;
        for (; rows_ < control().count(); ++rows_) {
            const WindowText row(control().items()[static_cast<std::size_t>(rows_)]);
            handleAsClass(messages_.add, 0, row.parameter());
        }
        handleAsClass(messages_.setSelected, static_cast<WPARAM>(control().listIndex()), 0);
        if (topRow > 0 && topRow < control().count()) {
            // Rows that change their text do not move.
            handleAsClass(messages_.setTop, static_cast<WPARAM>(topRow), 0);
        }
        rowsAdded(first);
    }

    const ItemMessages& messages_;
    int rows_ = 0; ///< Rows the window has.
    bool stale_ = true;
};

class ListBoxWindow : public ItemsWindow {
public:
    ListBoxWindow(FormWindow& form, Control& list)
        : ItemsWindow(form, list,
                      {.windowClass = "LISTBOX",
                       .style = LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT |
                                WS_BORDER | WS_VSCROLL | WS_HSCROLL | WS_TABSTOP,
                       .drawnByClass = true},
                      listMessages) {}

    void drawRow(const DRAWITEMSTRUCT& item) override {
        ItemsWindow::drawRow(item);
        if ((item.itemState & (ODS_FOCUS | ODS_SELECTED)) == ODS_FOCUS && control().count() > 0) {
            DrawFocusRect(item.hDC, &item.rcItem); // On no row the keyboard is seen otherwise.
        }
    }

protected:
    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        if (message == WM_MOUSEMOVE && list().rowMark) {
            tellRowAt(low);
        }
        const LRESULT result = ItemsWindow::handle(message, wide, low);
        if (message == WM_PAINT) {
            paintWhenEmpty(list().whenEmpty());
        } else if (message == WM_MOUSELEAVE) {
            told_ = -1;
        }
        return result;
    }

    void arranged() override {
        handleAsClass(LB_SETITEMHEIGHT, 0, rowHeight());
        rowsAdded(0);
    }

    void rowsAdded(int first) override {
        const HDC dc = textDc();
        longestText_ = first == 0 ? 0 : longestText_;
        for (int row = first; row < control().count(); ++row) {
            const WindowText text(control().items()[static_cast<std::size_t>(row)]);
            longestText_ = std::max(longestText_, static_cast<int>(text.extent(dc).cx));
        }
        handleAsClass(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(rowWidth()), 0);
    }

    int rowWidth() const override {
        return list().rowMark ? 0 : rowStartWidth() + longestText_ + scale()(12);
    }

    void paintRowStart(Canvas& canvas, int row, Color ground) override {
        const RowMark mark = list().rowMark ? list().rowMark(control().item(row)) : RowMark::None;
        if (mark == RowMark::None) {
            return;
        }
        const int size = scale()(Mark::size);
        const int top = (heightOf(canvas.area()) - size) / 2;
        const int left = scale()(6);
        const bool isNew = mark == RowMark::New;
        canvas.drawing(drawingNamed(isNew ? "new" : "changed"), {left, top, left + size, top + size},
                       seenOn(ground, theme().tone(isNew ? Tone::Attention : Tone::Bad).sign), ground);
    }
    int rowStartWidth() const override { return list().rowMark ? scale()(Mark::size + 6) : 0; }

private:
    const ListBox& list() const { return static_cast<const ListBox&>(control()); }

    void tellRowAt(LPARAM where) {
        const LRESULT hit = handleAsClass(LB_ITEMFROMPOINT, 0, where);
        const int row = HIWORD(hit) == 0 ? LOWORD(hit) : -1;
        if (row != told_) {
            told_ = row;
            showToolTip(control().item(row));
        }
    }

    int told_ = -1;       ///< The row whose text is the tool tip.
    int longestText_ = 0; ///< In pixels.
};

/// A list with a mark before each row. Other programs read a row's tick as its item data.
class CheckListWindow : public WindowOf<CheckListBox, ListBoxWindow> {
public:
    using WindowOf::WindowOf;

    void notified(int code) override {
        if (code == LBN_SELCHANGE) {
            // By the arrow keys. A click and Space come as messages of their own, and flip the tick.
            control().setListIndex(static_cast<int>(handleAsClass(LB_GETCURSEL, 0, 0)));
        }
    }

    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        if (message == LB_GETITEMDATA) {
            return control().ticked(static_cast<int>(wide)) ? 1 : 0;
        }
        const LRESULT result = ListBoxWindow::handle(message, wide, low);
        if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
            const LRESULT hit = handleAsClass(LB_ITEMFROMPOINT, 0, low);
            if (HIWORD(hit) == 0) {
                control().toggle(LOWORD(hit));
            }
        } else if (message == WM_KEYDOWN && wide == VK_SPACE && control().listIndex() >= 0) {
            control().toggle(control().listIndex());
        }
        return result;
    }

    void paintRowStart(Canvas& canvas, int row, Color ground) override {
        MarkColors looks = surface().mark;
        if (contrast(looks.ticked, ground) < 3) { // On a selected row.
            const Color seen = seenOn(ground, looks.tick);
            looks = {ground, seen, seen, ground};
        }
        paintMark(canvas, canvas.scale()(6),
                  {.ticked = control().ticked(row), .usable = control().isUsable()}, looks);
    }
    int rowStartWidth() const override { return scale()(Mark::size + 6); }
};

class ComboBoxWindow : public ItemsWindow {
public:
    ComboBoxWindow(FormWindow& form, Control& combo)
        : ItemsWindow(
              form, combo,
              {.windowClass = "COMBOBOX",
               .style = CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP,
               .textIsCaption = false}, // It is the chosen row.
              comboMessages) {}

    void drawRow(const DRAWITEMSTRUCT& item) override {
        if ((item.itemState & ODS_COMBOBOXEDIT) != 0) {
            repaint(); // The closed field is drawn whole.
        } else {
            ItemsWindow::drawRow(item);
        }
    }

    LRESULT handle(UINT message, WPARAM wide, LPARAM low) override {
        if (message == WM_CTLCOLORLISTBOX) {
            return reinterpret_cast<LRESULT>(colorStandardWindow(nullptr));
        }
        return ItemsWindow::handle(message, wide, low);
    }

    void paint(Canvas& canvas) override {
        const Scale& scaled = canvas.scale();
        const RECT area = canvas.area();
        const bool usable = control().isUsable();
        canvas.roundedBox(area, scaled(4), usable ? theme().field : surface().ground,
                          isFocused() ? theme().focus : theme().border, scaled(isFocused() ? 2 : 1));
        const Color color = usable ? theme().fieldText : surface().disabledText;
        const RECT text{scaled(7), 1, area.right - scaled(26), area.bottom - 1};
        canvas.text(control().text(), text, {.color = color});
        const float half = static_cast<float>(scaled(8)) / 2;
        const float x = static_cast<float>(area.right - scaled(14));
        const float y = static_cast<float>(area.bottom) / 2;
        canvas.stroke({{x - half, y - half / 2}, {x, y + half / 2}, {x + half, y - half / 2}},
                      1.5F * half / 4, color);
    }

    void arranged() override {
        // The window's height is that of the list when it is open; the closed field follows its row.
        constexpr int rowsShown = 12;
        const RECT place = scale()(control().place());
        handleAsClass(CB_SETITEMHEIGHT, 0, rowHeight());
        handleAsClass(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), heightOf(place) - 6);
        SetWindowPos(window(), nullptr, 0, 0, widthOf(place), heightOf(place) + rowsShown * rowHeight(),
                     SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
};

} // namespace

MadeWindow makeListBox(FormWindow& form, Control& control) {
    return std::make_unique<ListBoxWindow>(form, control);
}

MadeWindow makeCheckList(FormWindow& form, Control& control) {
    return std::make_unique<CheckListWindow>(form, control);
}

MadeWindow makeComboBox(FormWindow& form, Control& control) {
    return std::make_unique<ComboBoxWindow>(form, control);
}

} // namespace tarvelon
