#include "view/fonts.h"

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

std::string chooseFace() {
    const OwnedMemoryDc screen(CreateCompatibleDC(nullptr));
    for (const char* face : {"Segoe UI", "Tahoma"}) {
        if (isInstalled(screen.get(), face)) {
            return face;
        }
    }
    NONCLIENTMETRICSA metrics{};
    metrics.cbSize = sizeof metrics;
    return SystemParametersInfoA(SPI_GETNONCLIENTMETRICS, sizeof metrics, &metrics, 0)
               ? metrics.lfMessageFont.lfFaceName
               : "MS Shell Dlg";
}

} // namespace

Fonts::Fonts()
    : face_(chooseFace()) {}

HFONT Fonts::get(int height, int weight, bool underlined) {
    OwnedFont& font = made_[{height, weight, underlined}];
    if (!font) {
        LOGFONTA description{};
        description.lfHeight = -height;
        description.lfWeight = weight;
        description.lfUnderline = underlined ? TRUE : FALSE;
        description.lfCharSet = DEFAULT_CHARSET;
        lstrcpynA(description.lfFaceName, face_.c_str(), LF_FACESIZE);
        font.reset(CreateFontIndirectA(&description));
    }
    return font.get();
}

} // namespace tarvelon
