#include "view/fonts.h"

#include "platform/win32/window_calls.h"

namespace tarvelon {

namespace {

std::string chooseFace() {
    const OwnedMemoryDc screen(CreateCompatibleDC(nullptr));
    for (const char* face : {"Segoe UI", "Tahoma"}) {
        if (isFontInstalled(screen.get(), face)) {
            return face;
        }
    }
    const std::string face = messageFontFace();
    return face.empty() ? "MS Shell Dlg" : face;
}

} // namespace

Fonts::Fonts()
    : face_(chooseFace()) {}

HFONT Fonts::get(int height, int weight, bool underlined) {
    OwnedFont& font = made_[{height, weight, underlined}];
    if (!font) {
        font.reset(makeFont(face_, height, weight, underlined));
    }
    return font.get();
}

} // namespace tarvelon
