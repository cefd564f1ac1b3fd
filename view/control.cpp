#include "view/control.h"

#include "view/accessible.h"
#include "view/form.h"
#include "view/row_menu.h"

#include <algorithm>

namespace tarvelon {

namespace {

/// The system's permission to draw what is torn, for as long as it lives.
struct Painting {
    explicit Painting(HWND painted)
        : window(painted) {
        BeginPaint(window, &job);
    }
    Painting(const Painting&) = delete;
    ~Painting() { EndPaint(window, &job); }

    HWND window;
    PAINTSTRUCT job{};
};

/// Of a window with our procedure.
ControlWindow* ownerOf(HWND window) {
    return reinterpret_cast<ControlWindow*>(windowCalls().getWindowLongPtr(window, GWLP_USERDATA));
}

} // namespace

ControlWindow* ControlWindow::from(HWND window) {
    const bool ours =
        window && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId() &&
        reinterpret_cast<WNDPROC>(windowCalls().getWindowLongPtr(window, GWLP_WNDPROC)) == procedure;
    return ours ? ownerOf(window) : nullptr;
}

void ControlWindow::create(HWND parent, int id, bool beginsGroup) {
    const DWORD state = (control_.Visible() ? WS_VISIBLE : 0) | (control_.Enabled() ? 0 : WS_DISABLED) |
                        (beginsGroup ? WS_GROUP : 0);
    const WindowCalls& calls = windowCalls();
    window_ =
        makeWindow(kind_.extendedStyle, kind_.windowClass,
                   kind_.textIsCaption ? control_.captionOrName() : control_.Caption(),
                   WS_CHILD | WS_CLIPSIBLINGS | kind_.style | state, form_.placeOf(control_), parent, id);
    calls.setWindowLongPtr(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    classProcedure_ = reinterpret_cast<WNDPROC>(
        calls.setWindowLongPtr(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
    setTypeSize();
    followTheme();
    applyItems(Aspect::Items);
    applyValue();
    showToolTip(control_.ToolTip());
    follow();
}

void ControlWindow::arrange() {
    const RECT place = form_.placeOf(control_);
    SetWindowPos(window_, nullptr, place.left, place.top, widthOf(place), heightOf(place),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    setTypeSize();
}

void ControlWindow::followTheme() {
    if (kind_.drawnByClass) {
        darkenScrollBars(window_, theme());
    }
}

void ControlWindow::setTypeSize() {
    handleAsClass(WM_SETFONT, reinterpret_cast<WPARAM>(normalFont()), FALSE);
    arranged();
}

HFONT ControlWindow::normalFont() const {
    return tools().fonts.get(scale().letters(textSize::normal), FW_NORMAL);
}

HDC ControlWindow::textDc() const {
    SelectObject(tools().buffer.dc(), normalFont());
    return tools().buffer.dc();
}

void ControlWindow::changed(Aspect aspect) {
    switch (aspect) {
    case Aspect::Visible:
        form_.followFocus(*this);
        ShowWindow(window_, control_.Visible() ? SW_SHOWNA : SW_HIDE);
        return;
    case Aspect::Enabled:
        form_.followFocus(*this);
        EnableWindow(window_, control_.Enabled());
        break;
    case Aspect::Value:
        applyValue();
        break;
    case Aspect::Items:
    case Aspect::ItemAdded:
        applyItems(aspect);
        break;
    case Aspect::Caption:
        applyCaption();
        break;
    case Aspect::ToolTip:
        showToolTip(control_.ToolTip());
        return;
    case Aspect::TextColor:
        break;
    case Aspect::Front:
        return; // Of a screen alone.
    }
    form_.refreshLater(*this);
}

void ControlWindow::refresh() {
    follow();
    if (kind_.textIsCaption) {
        // The system keeps a copy for those who read it without asking; no drawing comes of this.
        windowCalls().defWindowProc(window_, WM_SETTEXT, 0, WindowText(control_.captionOrName()).parameter());
    }
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
    NotifyWinEvent(EVENT_OBJECT_STATECHANGE, window_, OBJID_CLIENT, CHILDID_SELF);
}

void ControlWindow::setStyle(LONG style, bool wanted) const {
    const LONG now = GetWindowLongA(window_, GWL_STYLE);
    SetWindowLongA(window_, GWL_STYLE, wanted ? now | style : now & ~style);
}

std::optional<LRESULT> ControlWindow::reflect(UINT message, WPARAM wide, LPARAM low) {
    switch (message) {
    case WM_COMMAND:
        if (ControlWindow* child = from(reinterpret_cast<HWND>(low))) {
            child->notified(HIWORD(wide));
            return 0;
        }
        break;
    case WM_NOTIFY: {
        const auto& header = *reinterpret_cast<const NMHDR*>(low);
        if (ControlWindow* child = from(header.hwndFrom)) {
            return child->notifiedWith(header);
        }
        break;
    }
    case WM_DRAWITEM: {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(low);
        if (ControlWindow* child = from(item.hwndItem)) {
            child->drawRow(item);
            return TRUE;
        }
        break;
    }
    case WM_CONTEXTMENU: // Trees ask their parent for it.
        if (ControlWindow* child = from(reinterpret_cast<HWND>(wide));
            child && showRowMenu(child->window(), child->control(), low)) {
            return 0;
        }
        break;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORLISTBOX: {
        ControlWindow* child = from(reinterpret_cast<HWND>(low));
        if (HBRUSH brush = child ? child->colorStandardWindow(reinterpret_cast<HDC>(wide)) : nullptr) {
            return reinterpret_cast<LRESULT>(brush);
        }
        break;
    }
    default:
        break;
    }
    return std::nullopt;
}

LRESULT CALLBACK ControlWindow::procedure(HWND window, UINT message, WPARAM wide, LPARAM low) {
    ControlWindow& owner = *ownerOf(window);
    if (message == WM_SETFOCUS) {
        owner.form_.keepFocus(window);
    }
    return owner.handle(message, wide, low);
}

LRESULT ControlWindow::handleAsClass(UINT message, WPARAM wide, LPARAM low) {
    return windowCalls().callWindowProc(classProcedure_, window_, message, wide, low);
}

LRESULT ControlWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    toolTip_.see(window_, message, wide, low);
    if (kind_.textIsCaption) {
        if (const auto answer = answerText(control_.captionOrName(), message, wide, low)) {
            return *answer;
        }
    }
    if (message == WM_GETOBJECT && static_cast<LONG>(low) == OBJID_CLIENT) {
        if (const LRESULT answer = answerReader(*this, wide)) {
            return answer;
        }
    }
    if (message == WM_PAINT && !kind_.drawnByClass) {
        paintNow();
        return 0;
    }
    if (message == WM_ERASEBKGND && !kind_.drawnByClass) {
        return 1;
    }
    if (message == WM_NCPAINT && !kind_.drawnByClass) {
        return 0; // There is no edge but the one drawn inside.
    }
    if (message == WM_MOUSEMOVE && control_.onMouseMove && control_.kind() != ControlKind::FlatButton) {
        control_.screen().dispatch(control_.onMouseMove);
    }
    if (message == WM_CONTEXTMENU && showRowMenu(window_, control_, low)) {
        return 0;
    }
    const LRESULT result = handleAsClass(message, wide, low);
    if (message == WM_NCPAINT && kind_.drawnByClass) {
        RECT whole;
        GetWindowRect(window_, &whole);
        OffsetRect(&whole, -whole.left, -whole.top);
        const OwnedWindowDc dc(GetWindowDC(window_), {window_});
        paintEdge(dc.get(), whole, tools().brushes.get(isFocused() ? theme().focus : theme().border));
    } else if (message == WM_SETFOCUS || message == WM_KILLFOCUS || message == WM_ENABLE) {
        RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_FRAME);
    }
    return result;
}

std::optional<LRESULT> answerText(const std::string& caption, UINT message, WPARAM size, LPARAM buffer) {
    switch (message) {
    case WM_GETTEXTLENGTH:
        return static_cast<LRESULT>(WindowText(caption).size());
    case WM_GETTEXT:
        return WindowText(caption).copyTo(buffer, size);
    default:
        return std::nullopt;
    }
}

void ControlWindow::paintNow() {
    const Painting painting(window_);
    RECT area;
    GetClientRect(window_, &area);
    if (area.right > 0 && area.bottom > 0 && tools().buffer.reserve(area.right, area.bottom)) {
        Canvas canvas(tools().buffer, tools().fonts, scale(), area.right, area.bottom);
        canvas.fill(area, surface().ground);
        paint(canvas);
        const RECT& torn = painting.job.rcPaint;
        BitBlt(painting.job.hdc, torn.left, torn.top, widthOf(torn), heightOf(torn), canvas.dc(), torn.left,
               torn.top, SRCCOPY);
    }
}

void ControlWindow::paintEdge(HDC dc, const RECT& whole, HBRUSH edge) {
    FrameRect(dc, &whole, edge);
}

void ControlWindow::paintMark(Canvas& canvas, int left, const Mark& mark, const MarkColors& looks) const {
    const Scale& scaled = canvas.scale();
    const int size = scaled(Mark::size);
    const int top = (heightOf(canvas.area()) - size) / 2;
    const RECT place{left, top, left + size, top + size};
    const int radius = mark.round ? size / 2 : scaled(3);
    const Color strong = mark.usable ? looks.ticked : looks.edge;
    const Color edge = mark.hovered || mark.ticked ? strong : looks.edge;
    canvas.roundedBox(place, radius, mark.ticked ? strong : looks.field, edge, scaled(1));
    if (!mark.ticked) {
        return;
    }
    if (mark.round) {
        const int dot = scaled(5);
        canvas.roundedBox(inset(place, dot, dot), (size - 2 * dot) / 2, looks.tick);
        return;
    }
    const float unit = static_cast<float>(size) / Mark::size;
    const auto at = [&](float x, float y) {
        return Spot{static_cast<float>(place.left) + x * unit, static_cast<float>(place.top) + y * unit};
    };
    canvas.stroke({at(3.8F, 8.3F), at(6.8F, 11.2F), at(12.2F, 5.0F)}, 1.9F * unit, looks.tick);
}

void ControlWindow::paintFocus(Canvas& canvas, const RECT& around, Color ground) const {
    if (isFocused()) {
        canvas.roundedEdge(around, canvas.scale()(3), canvas.scale()(2), seenOn(ground, theme().focus));
    }
}

char ControlWindow::shownKey() const {
    return form_.showsAccessKeys() ? control_.accessKey : '\0';
}

void ControlWindow::paintWhenEmpty(const std::string& text) {
    RECT area;
    GetClientRect(window_, &area);
    if (!isEmpty() || text.empty() || !tools().buffer.reserve(area.right, area.bottom)) {
        return;
    }
    Canvas canvas(tools().buffer, tools().fonts, scale(), area.right, area.bottom);
    canvas.fill(area, theme().field);
    canvas.text(text, inset(area, scale()(16), scale()(8)),
                {.color = theme().fieldQuietText, .align = DT_CENTER, .middle = true});
    const OwnedWindowDc dc(GetDC(window_), {window_});
    BitBlt(dc.get(), 0, 0, area.right, area.bottom, canvas.dc(), 0, 0, SRCCOPY);
}

const Scale& ControlWindow::scale() const {
    return form_.scale();
}

ViewTools& ControlWindow::tools() const {
    return form_.tools();
}

const Surface& ControlWindow::surface() const {
    for (const Frame* frame = control_.frame(); frame; frame = frame->frame()) {
        if (form_.isNavigation(*frame)) {
            return theme().navigation;
        }
        if (frame->Current()) {
            return theme().current;
        }
        if (frame->look() == Frame::Look::Group) {
            return theme().card;
        }
    }
    return theme().page;
}

} // namespace tarvelon
