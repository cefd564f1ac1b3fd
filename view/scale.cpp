#include "view/scale.h"

namespace tarvelon {

RECT Scale::operator()(const Rect& place) const {
    const Scale& scaled = *this;
    return {scaled(place.x), scaled(place.y), scaled(place.x + place.width), scaled(place.y + place.height)};
}

unsigned ScaleCalls::dotsPerInch(HWND window) const {
    if (getDpiForWindow_) {
        if (const UINT own = getDpiForWindow_(window)) {
            return own;
        }
    }
    const OwnedMemoryDc screen(CreateCompatibleDC(nullptr));
    const int shared = GetDeviceCaps(screen.get(), LOGPIXELSY);
    return shared > 0 ? static_cast<unsigned>(shared) : 96;
}

void ScaleCalls::addFrame(RECT& inside, DWORD style, DWORD extendedStyle, unsigned dotsPerInch) const {
    if (!adjustForDpi_ || !adjustForDpi_(&inside, style, FALSE, extendedStyle, dotsPerInch)) {
        AdjustWindowRectEx(&inside, style, FALSE, extendedStyle);
    }
}

} // namespace tarvelon
