#include "view/fonts.h"

#include <algorithm>

namespace tarvelon {

namespace {

int CALLBACK noteFont(const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM found) {
    *reinterpret_cast<bool*>(found) = true;
    return 0;
}

bool isInstalled(HDC screen, const char* face) {
    LOGFONTA wanted{};
    wanted.lfCharSet = DEFAULT_CHARSET;
    lstrcpynA(wanted.lfFaceName, face, LF_FACESIZE);
    bool found = false;
    EnumFontFamiliesExA(screen, &wanted, noteFont, reinterpret_cast<LPARAM>(&found), 0);
    return found;
}

std::string messageFace() {
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    return SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)
               ? metrics.lfMessageFont.lfFaceName
               : "MS Shell Dlg";
}

std::string chooseFace() {
    const HDC screen = GetDC(nullptr);
    const char* const preferred[] = {"Segoe UI", "Tahoma"};
    const auto* const chosen = std::find_if(std::begin(preferred), std::end(preferred),
                                            [screen](const char* face) { return isInstalled(screen, face); });
    ReleaseDC(nullptr, screen);
    return chosen == std::end(preferred) ? messageFace() : *chosen;
}

} // namespace

Fonts::Fonts()
    : face_(chooseFace()) {}

Fonts::~Fonts() {
    for (const auto& [key, font] : made_) {
        DeleteObject(font);
    }
}

HFONT Fonts::get(int height, int weight, bool underlined) {
    HFONT& font = made_[{height, weight, underlined}];
    if (!font) {
        LOGFONTA description{};
        description.lfHeight = -height;
        description.lfWeight = weight;
        description.lfUnderline = underlined ? TRUE : FALSE;
        description.lfCharSet = DEFAULT_CHARSET;
        lstrcpynA(description.lfFaceName, face_.c_str(), LF_FACESIZE);
        font = CreateFontIndirectA(&description);
    }
    return font;
}

} // namespace tarvelon
