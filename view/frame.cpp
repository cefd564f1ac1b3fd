#include "view/frame.h"

#include "view/form.h"

namespace tarvelon {

ControlWindow::Kind FrameWindow::kind() const {
    return {frameWindowClass, WS_CLIPCHILDREN, WS_EX_CONTROLPARENT};
}

LRESULT FrameWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    LRESULT result = 0;
    if (reflectToChild(message, wide, low, result)) {
        return result;
    }
    return ControlWindow::handle(message, wide, low);
}

void FrameWindow::paint(Canvas& canvas) {
    if (form().isNavigation(frame_)) {
        canvas.fill(canvas.area(), theme().navigation.ground);
    }
    if (frame_.look() != Frame::Look::Group) {
        return;
    }
    const Scale& scaled = canvas.scale();
    canvas.roundedBox(canvas.area(), scaled(6), theme().card.ground, theme().border, scaled(1));
    const RECT title{scaled(12), scaled(4), widthOf(canvas.area()) - scaled(12), scaled(22)};
    canvas.text(frame_.Caption(), title, {.color = theme().card.text, .weight = FW_SEMIBOLD});
}

bool reflectToChild(UINT message, WPARAM wide, LPARAM low, LRESULT& result) {
    switch (message) {
    case WM_COMMAND:
        if (ControlWindow* child = ControlWindow::from(reinterpret_cast<HWND>(low))) {
            child->notified(HIWORD(wide));
            return true;
        }
        return false;
    case WM_NOTIFY: {
        const auto& header = *reinterpret_cast<const NMHDR*>(low);
        if (ControlWindow* child = ControlWindow::from(header.hwndFrom)) {
            child->notifiedWith(header);
            return true;
        }
        return false;
    }
    case WM_DRAWITEM: {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(low);
        if (ControlWindow* child = ControlWindow::from(item.hwndItem)) {
            child->drawRow(item);
            result = TRUE;
            return true;
        }
        return false;
    }
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORLISTBOX:
        if (ControlWindow* child = ControlWindow::from(reinterpret_cast<HWND>(low))) {
            const HBRUSH brush = child->colorStandardWindow(reinterpret_cast<HDC>(wide));
            result = reinterpret_cast<LRESULT>(brush);
            return brush != nullptr;
        }
        return false;
    default:
        return false;
    }
}

} // namespace tarvelon
