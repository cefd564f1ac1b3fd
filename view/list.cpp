#include "view/list.h"

#include "view/form.h"

#include <algorithm>

namespace tarvelon {

namespace {

constexpr ItemsWindow::Messages listMessages{
    LB_ADDSTRING, LB_MSGMAX,      LB_RESETCONTENT, LB_ADDSTRING,  LB_SETCURSEL,
    LB_GETCURSEL, LB_GETTOPINDEX, LB_SETTOPINDEX,  LBN_SELCHANGE,
};
constexpr ItemsWindow::Messages comboMessages{
    CB_GETEDITSEL, CB_MSGMAX,      CB_RESETCONTENT, CB_ADDSTRING,  CB_SETCURSEL,
    CB_GETCURSEL,  CB_GETTOPINDEX, CB_SETTOPINDEX,  CBN_SELCHANGE,
};

} // namespace

void ItemsWindow::notified(int code) {
    if (code == messages_.selectionChanged) {
        items_.select(static_cast<int>(handleAsClass(messages_.getSelected, 0, 0)));
    }
}

LRESULT ItemsWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    if (stale_ && !following_ && message >= messages_.first && message <= messages_.last) {
        followRows();
    }
    return ControlWindow::handle(message, wide, low);
}

void ItemsWindow::refresh() {
    followRows();
    ControlWindow::refresh();
}

void ItemsWindow::applyItems(Aspect aspect) {
    stale_ = true;
    if (aspect == Aspect::Items) {
        rows_ = -1;
        if (isEmpty() && isFocused()) {
            form().leaveIfEmpty(*this);
        }
    }
}

void ItemsWindow::applyValue() {
    followRows();
    handleAsClass(messages_.setSelected, static_cast<WPARAM>(items_.listIndex()), 0);
}

void ItemsWindow::followRows() {
    if (!stale_) {
        return;
    }
    following_ = true;
    // On a hidden window the message would bring it to light.
    const bool holdsDrawing = items_.Visible();
    if (holdsDrawing) {
        handleAsClass(WM_SETREDRAW, FALSE, 0);
    }
    LRESULT topRow = 0;
    if (rows_ < 0) {
        topRow = handleAsClass(messages_.getTop, 0, 0);
        handleAsClass(messages_.clear, 0, 0);
        rows_ = 0;
    }
    const int first = rows_;
    for (; rows_ < items_.count(); ++rows_) {
        handleAsClass(messages_.add, 0,
                      reinterpret_cast<LPARAM>(items_.items()[static_cast<std::size_t>(rows_)].c_str()));
    }
    handleAsClass(messages_.setSelected, static_cast<WPARAM>(items_.listIndex()), 0);
    if (topRow > 0 && topRow < items_.count()) {
        // Rows that change their text do not move.
        handleAsClass(messages_.setTop, static_cast<WPARAM>(topRow), 0);
    }
    rowsAdded(first);
    if (holdsDrawing) {
        handleAsClass(WM_SETREDRAW, TRUE, 0);
    }
    stale_ = false;
    following_ = false;
}

void ItemsWindow::paintRow(const DRAWITEMSTRUCT& item) {
    const int row = static_cast<int>(item.itemID);
    const int width = std::max(widthOf(item.rcItem), rowWidth());
    const int height = heightOf(item.rcItem);
    if (row < 0 || !tools().buffer.reserve(width, height)) {
        return;
    }
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    const Color plain = items_.isUsable() ? theme().fieldText : theme().disabledText;
    Canvas canvas(tools().buffer, tools().fonts, scale(), width, height);
    canvas.fill(canvas.area(), selected ? theme().selected : theme().field);
    RECT text = inset(canvas.area(), scale()(6), 0);
    paintRowStart(canvas, row);
    text.left += rowStartWidth();
    canvas.text(items_.item(row), text, {.color = selected ? theme().selectedText : plain});
    BitBlt(item.hDC, item.rcItem.left, item.rcItem.top, width, height, canvas.dc(), 0, 0, SRCCOPY);
}

ListBoxWindow::ListBoxWindow(FormWindow& form, ItemControl& list)
    : ItemsWindow(form, list, listMessages) {}

ControlWindow::Kind ListBoxWindow::kind() const {
    return {"LISTBOX", LBS_NOTIFY | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS | LBS_NOINTEGRALHEIGHT | WS_BORDER |
                           WS_VSCROLL | WS_HSCROLL | WS_TABSTOP};
}

void ListBoxWindow::arranged() {
    handleAsClass(LB_SETITEMHEIGHT, 0, rowHeight());
    longestText_ = 0;
    rowsAdded(0);
}

void ListBoxWindow::rowsAdded(int first) {
    const HDC dc = GetDC(window());
    const HGDIOBJ previous =
        SelectObject(dc, tools().fonts.get(scale().letters(textSize::normal), FW_NORMAL));
    longestText_ = first == 0 ? 0 : longestText_;
    for (int row = first; row < items().count(); ++row) {
        const std::string& text = items().items()[static_cast<std::size_t>(row)];
        SIZE size{};
        GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
        longestText_ = std::max(longestText_, static_cast<int>(size.cx));
    }
    SelectObject(dc, previous);
    ReleaseDC(window(), dc);
    handleAsClass(LB_SETHORIZONTALEXTENT, static_cast<WPARAM>(rowWidth()), 0);
}

void ListBoxWindow::drawRow(const DRAWITEMSTRUCT& item) {
    paintRow(item);
    if ((item.itemState & ODS_FOCUS) != 0 && items().count() > 0) {
        DrawFocusRect(item.hDC, &item.rcItem);
    }
}

LRESULT ListBoxWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    toolTip_.see(window(), message, wide, low);
    const LRESULT result = ItemsWindow::handle(message, wide, low);
    if (message == WM_NCPAINT) {
        paintThinEdge();
    }
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS) {
        RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    }
    return result;
}

void ListBoxWindow::applyToolTip() {
    toolTip_.set(items().ToolTip(), scale()(480));
}

void CheckListWindow::notified(int code) {
    if (code == LBN_SELCHANGE) {
        // By the arrow keys. A click and Space come as messages of their own, and flip the tick.
        list_.setListIndex(static_cast<int>(handleAsClass(LB_GETCURSEL, 0, 0)));
    }
}

LRESULT CheckListWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    if (message == LB_GETITEMDATA) {
        return list_.ticked(static_cast<int>(wide)) ? 1 : 0;
    }
    const LRESULT result = ListBoxWindow::handle(message, wide, low);
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
        const LRESULT hit = handleAsClass(LB_ITEMFROMPOINT, 0, low);
        if (HIWORD(hit) == 0) {
            list_.toggle(LOWORD(hit));
        }
    } else if (message == WM_KEYDOWN && wide == VK_SPACE && list_.listIndex() >= 0) {
        list_.toggle(list_.listIndex());
    }
    return result;
}

void CheckListWindow::paintRowStart(Canvas& canvas, int row) {
    paintMark(canvas, theme(), canvas.scale()(6), {.ticked = list_.ticked(row), .usable = list_.isUsable()});
}

ComboBoxWindow::ComboBoxWindow(FormWindow& form, ComboBox& combo)
    : ItemsWindow(form, combo, comboMessages) {}

ControlWindow::Kind ComboBoxWindow::kind() const {
    return {"COMBOBOX", CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS | WS_VSCROLL | WS_TABSTOP};
}

void ComboBoxWindow::arranged() {
    // The window's height is that of the list when it is open; the closed field follows its row.
    constexpr int rowsShown = 12;
    const RECT place = scale()(control().place());
    handleAsClass(CB_SETITEMHEIGHT, 0, rowHeight());
    handleAsClass(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), heightOf(place) - 6);
    SetWindowPos(window(), nullptr, 0, 0, widthOf(place), heightOf(place) + rowsShown * rowHeight(),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void ComboBoxWindow::drawRow(const DRAWITEMSTRUCT& item) {
    if ((item.itemState & ODS_COMBOBOXEDIT) != 0) {
        repaint(); // The closed field is drawn whole.
        return;
    }
    paintRow(item);
}

LRESULT ComboBoxWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    if (message == WM_CTLCOLORLISTBOX) {
        return reinterpret_cast<LRESULT>(colorStandardWindow(nullptr));
    }
    const LRESULT result = ItemsWindow::handle(message, wide, low);
    if (message == WM_SETFOCUS || message == WM_KILLFOCUS || message == WM_ENABLE) {
        repaint();
    }
    return result;
}

void ComboBoxWindow::paint(Canvas& canvas) {
    const Scale& scaled = canvas.scale();
    const RECT area = canvas.area();
    const bool usable = items().isUsable();
    canvas.roundedBox(area, scaled(4), usable ? theme().field : surface().ground,
                      isFocused() ? theme().focus : theme().border, scaled(1));
    const Color color = usable ? theme().fieldText : theme().disabledText;
    const RECT text{scaled(7), 1, area.right - scaled(26), area.bottom - 1};
    canvas.text(items().text(), text, {.color = color});
    const float half = static_cast<float>(scaled(8)) / 2;
    const float x = static_cast<float>(area.right - scaled(14));
    const float y = static_cast<float>(area.bottom) / 2;
    canvas.stroke({{x - half, y - half / 2}, {x, y + half / 2}, {x + half, y - half / 2}}, 1.5F * half / 4,
                  color);
}

} // namespace tarvelon
