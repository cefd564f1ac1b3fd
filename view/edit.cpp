#include "view/edit.h"

#include <algorithm>

namespace tarvelon {

std::string TextBoxWindow::shownText() {
    std::string text(static_cast<std::size_t>(handleAsClass(WM_GETTEXTLENGTH, 0, 0)) + 1, '\0');
    const LRESULT copied = handleAsClass(WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()));
    text.resize(static_cast<std::size_t>(copied));
    return text;
}

void TextBoxWindow::notified(int code) {
    if (code == EN_CHANGE && !setting_) {
        box_.typed(shownText());
    }
}

void TextBoxWindow::applyCaption() {
    if (shownText() == box_.Caption()) {
        return; // It came from the keyboard; setting it again would move the caret.
    }
    setting_ = true;
    handleAsClass(WM_SETTEXT, 0, reinterpret_cast<LPARAM>(box_.Caption().c_str()));
    setting_ = false;
}

void TextBoxWindow::arranged() {
    handleAsClass(EM_SETMARGINS, EC_LEFTMARGIN | EC_RIGHTMARGIN, MAKELPARAM(scale()(5), scale()(5)));
    // Has the line centred anew.
    SetWindowPos(window(), nullptr, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

Color TextBoxWindow::ground() const {
    return box_.isUsable() ? theme().field : surface().ground;
}

HBRUSH TextBoxWindow::colorStandardWindow(HDC dc) {
    SetTextColor(dc, box_.isUsable() ? theme().fieldText : theme().disabledText);
    SetBkColor(dc, ground());
    return brush_.of(ground());
}

LRESULT TextBoxWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    switch (message) {
    case WM_NCCALCSIZE: {
        const LRESULT result = ControlWindow::handle(message, wide, low);
        centreLine(*reinterpret_cast<RECT*>(low)); // In both of its forms the message begins with it.
        return result;
    }
    case WM_NCPAINT:
        paintEdge();
        return 0;
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_ENABLE: {
        const LRESULT result = ControlWindow::handle(message, wide, low);
        RedrawWindow(window(), nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
        return result;
    }
    default:
        return ControlWindow::handle(message, wide, low);
    }
}

void TextBoxWindow::centreLine(RECT& inside) const {
    const HDC dc = GetDC(window());
    const HGDIOBJ previous =
        SelectObject(dc, tools().fonts.get(scale().letters(textSize::normal), FW_NORMAL));
    TEXTMETRICA metrics;
    GetTextMetricsA(dc, &metrics);
    SelectObject(dc, previous);
    ReleaseDC(window(), dc);
    const int spare = std::max((heightOf(inside) - static_cast<int>(metrics.tmHeight)) / 2, 1);
    inside = inset(inside, scale()(1), std::min(spare, heightOf(inside) / 2));
}

void TextBoxWindow::paintEdge() {
    RECT whole;
    GetWindowRect(window(), &whole);
    RECT inside;
    GetClientRect(window(), &inside);
    MapWindowPoints(window(), nullptr, reinterpret_cast<POINT*>(&inside), 2);
    OffsetRect(&inside, -whole.left, -whole.top);
    OffsetRect(&whole, -whole.left, -whole.top);
    const HDC dc = GetWindowDC(window());
    ExcludeClipRect(dc, inside.left, inside.top, inside.right, inside.bottom);
    const HBRUSH edge = CreateSolidBrush(isFocused() ? theme().focus : theme().border);
    const HBRUSH field = CreateSolidBrush(ground());
    const RECT withoutEdge = inset(whole, scale()(1), scale()(1));
    FillRect(dc, &whole, edge);
    FillRect(dc, &withoutEdge, field);
    DeleteObject(field);
    DeleteObject(edge);
    ReleaseDC(window(), dc);
}

} // namespace tarvelon
