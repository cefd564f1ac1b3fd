#include "view/control.h"

#include "view/form.h"

#include <algorithm>
#include <cstring>

namespace tarvelon {

ControlWindow* ControlWindow::from(HWND window) {
    const bool ours = window && GetWindowThreadProcessId(window, nullptr) == GetCurrentThreadId() &&
                      reinterpret_cast<WNDPROC>(GetWindowLongPtrA(window, GWLP_WNDPROC)) == procedure;
    return ours ? reinterpret_cast<ControlWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA)) : nullptr;
}

void ControlWindow::create(HWND parent, int id) {
    const Kind made = kind();
    const DWORD state = (control_.Visible() ? WS_VISIBLE : 0) | (control_.Enabled() ? 0 : WS_DISABLED);
    window_ = CreateWindowExA(made.extendedStyle, made.windowClass, control_.captionOrName().c_str(),
                              WS_CHILD | WS_CLIPSIBLINGS | made.style | state, 0, 0, 0, 0, parent,
                              reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), GetModuleHandleA(nullptr),
                              nullptr);
    SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    classProcedure_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
    arrange();
    applyItems(Aspect::Items);
    applyValue();
    applyToolTip();
    form_.refreshLater(*this);
}

void ControlWindow::arrange() {
    const RECT place = scale()(control_.place());
    SetWindowPos(window_, nullptr, place.left, place.top, widthOf(place), heightOf(place),
                 SWP_NOZORDER | SWP_NOACTIVATE);
    const HFONT font = tools().fonts.get(scale().letters(textSize::normal), FW_NORMAL);
    handleAsClass(WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    arranged();
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
        applyToolTip();
        return;
    case Aspect::TextColor:
        break;
    case Aspect::Front:
        return; // Of a screen alone.
    }
    form_.refreshLater(*this);
}

void ControlWindow::refresh() {
    if (answersCaption()) {
        // The system keeps a copy for those who read it without asking; no drawing comes of this.
        DefWindowProcA(window_, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(control_.captionOrName().c_str()));
    }
    RedrawWindow(window_, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN);
}

LRESULT CALLBACK ControlWindow::procedure(HWND window, UINT message, WPARAM wide, LPARAM low) {
    auto* self = reinterpret_cast<ControlWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    return self->handle(message, wide, low);
}

LRESULT ControlWindow::handleAsClass(UINT message, WPARAM wide, LPARAM low) {
    return CallWindowProcA(classProcedure_, window_, message, wide, low);
}

LRESULT ControlWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    switch (message) {
    case WM_GETTEXT:
        if (answersCaption()) {
            return copyCaption(control_.captionOrName(), wide, low);
        }
        break;
    case WM_GETTEXTLENGTH:
        if (answersCaption()) {
            return static_cast<LRESULT>(control_.captionOrName().size());
        }
        break;
    case WM_PAINT:
        if (paintsItself()) {
            paintNow();
            return 0;
        }
        break;
    case WM_ERASEBKGND:
        if (paintsItself()) {
            return 1;
        }
        break;
    case WM_MOUSEMOVE:
        if (control_.onMouseMove && control_.kind() != ControlKind::FlatButton) {
            control_.screen().dispatch(control_.onMouseMove);
        }
        break;
    default:
        break;
    }
    return handleAsClass(message, wide, low);
}

LRESULT copyCaption(const std::string& caption, WPARAM size, LPARAM buffer) {
    if (size == 0) {
        return 0;
    }
    const std::size_t length = std::min(caption.size(), static_cast<std::size_t>(size) - 1);
    char* text = reinterpret_cast<char*>(buffer);
    std::memcpy(text, caption.data(), length);
    text[length] = '\0';
    return static_cast<LRESULT>(length);
}

void ControlWindow::paintNow() {
    PAINTSTRUCT job;
    const HDC target = BeginPaint(window_, &job);
    RECT area;
    GetClientRect(window_, &area);
    if (area.right > 0 && area.bottom > 0 && tools().buffer.reserve(area.right, area.bottom)) {
        Canvas canvas(tools().buffer, tools().fonts, scale(), area.right, area.bottom);
        canvas.fill(area, surface().ground);
        paint(canvas);
        const RECT& torn = job.rcPaint;
        BitBlt(target, torn.left, torn.top, widthOf(torn), heightOf(torn), canvas.dc(), torn.left, torn.top,
               SRCCOPY);
    }
    EndPaint(window_, &job);
}

void ControlWindow::paintFocus(Canvas& canvas, const RECT& around, Color color) const {
    const Scale& scaled = canvas.scale();
    const int thickness = std::max(scaled(2) * 3 / 4, 1);
    const auto left = static_cast<float>(around.left) + static_cast<float>(thickness) / 2;
    const auto top = static_cast<float>(around.top) + static_cast<float>(thickness) / 2;
    const auto right = static_cast<float>(around.right) - static_cast<float>(thickness) / 2;
    const auto bottom = static_cast<float>(around.bottom) - static_cast<float>(thickness) / 2;
    canvas.stroke({{left, top}, {right, top}, {right, bottom}, {left, bottom}, {left, top}},
                  static_cast<float>(thickness), color);
}

void ControlWindow::paintThinEdge() const {
    RECT whole;
    GetWindowRect(window_, &whole);
    OffsetRect(&whole, -whole.left, -whole.top);
    const HDC dc = GetWindowDC(window_);
    const HBRUSH edge = CreateSolidBrush(isFocused() ? theme().focus : theme().border);
    FrameRect(dc, &whole, edge);
    DeleteObject(edge);
    ReleaseDC(window_, dc);
}

Scale ControlWindow::scale() const {
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
        if (frame->look() == Frame::Look::Group) {
            return theme().card;
        }
    }
    return theme().page;
}

} // namespace tarvelon
