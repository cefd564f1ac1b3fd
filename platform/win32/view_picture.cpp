#include "platform/win32/view_picture.h"

#include "platform/win32/view_form.h"

#include <string_view>

namespace tarvelon {

namespace {

constexpr std::string_view litEnding = "-lit";

} // namespace

void Drawing::load(const std::string& name, int size) {
    forget();
    picture_ = static_cast<HICON>(
        LoadImageA(GetModuleHandleA(nullptr), name.c_str(), IMAGE_ICON, size, size, LR_DEFAULTCOLOR));
}

void Drawing::forget() {
    if (picture_) {
        DestroyIcon(picture_);
        picture_ = nullptr;
    }
}

bool PictureWindow::isLit() const {
    return std::string_view(picture_.image()).ends_with(litEnding);
}

void PictureWindow::arranged() {
    const std::size_t nameLength = picture_.image().size() - (isLit() ? litEnding.size() : 0);
    drawing_.load(picture_.image().substr(0, nameLength), scale()(48));
}

LRESULT PictureWindow::handle(UINT message, WPARAM wide, LPARAM low) {
    const LRESULT result = PressWindow::handle(message, wide, low);
    if (message == WM_SETFOCUS && picture_.onFocus) {
        picture_.screen().dispatch(picture_.onFocus);
    }
    return result;
}

void PictureWindow::paint(Canvas& canvas) {
    const Scale& scaled = canvas.scale();
    const RECT area = canvas.area();
    const Face& face = theme().button;
    const Color plain = isLit() ? face.hovered : faceColor(face);
    const Color ground = isHeld() ? face.pressed : plain;
    const Color edge = theme().highContrast || isLit() ? theme().focus : ground;
    canvas.roundedBox(area, scaled(16), ground, edge, scaled(isLit() ? 3 : 1));
    const int size = scaled(48);
    const int left = (widthOf(area) - size) / 2;
    const int top = (heightOf(area) - size) / 2;
    if (drawing_.get()) {
        canvas.picture(drawing_.get(), {left, top, left + size, top + size},
                       theme().highContrast ? face.border : colors::white, ground);
    }
    if (isFocused()) {
        paintFocus(canvas, inset(area, scaled(8), scaled(8)),
                   theme().highContrast ? theme().focus : colors::white);
    }
}

void NavButtonWindow::arranged() {
    drawing_.load(button_.icon(), scale()(32));
}

void NavButtonWindow::paint(Canvas& canvas) {
    const Scale& scaled = canvas.scale();
    const RECT area = canvas.area();
    Color ground = isHovered() ? theme().navigationHover : theme().navigation.ground;
    Color text = theme().navigation.text;
    if (button_.Current()) {
        ground = theme().navigationCurrent;
        text = theme().navigationCurrentText;
    }
    if (!button_.isUsable()) {
        text = theme().disabledText;
    }
    canvas.fill(area, ground);
    if (button_.Current()) {
        canvas.fill({0, 0, scaled(4), area.bottom}, text);
    }
    const int size = scaled(32);
    const int line = scaled(20);
    const int gap = scaled(4);
    const int left = (widthOf(area) - size) / 2;
    const int top = (heightOf(area) - size - gap - line) / 2;
    if (drawing_.get()) {
        canvas.picture(drawing_.get(), {left, top, left + size, top + size}, text, ground);
    }
    const RECT caption{scaled(8), top + size + gap, area.right - scaled(8), top + size + gap + line};
    canvas.text(button_.Caption(), caption, {.color = text, .align = Align::Center, .mnemonics = true});
    if (isFocused()) {
        paintFocus(canvas, inset(area, scaled(2), scaled(2)), theme().navigation.quietText);
    }
}

} // namespace tarvelon
