#include "view/theme.h"

namespace tarvelon {

namespace {

/// From the usual notation 0xRRGGBB.
constexpr Color rgb(std::uint32_t notation) {
    return ((notation & 0xff) << 16) | (notation & 0xff00) | (notation >> 16);
}

bool isHighContrast() {
    HIGHCONTRASTA state{};
    state.cbSize = sizeof state;
    return SystemParametersInfoA(SPI_GETHIGHCONTRAST, sizeof state, &state, 0) &&
           (state.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

/// Black and white both read well on the faces of buttons: their captions change between the two.
Theme ownTheme() {
    return {
        .highContrast = false,
        .page = {rgb(0xEEF2F6), colors::black, rgb(0x55626F)},
        .card = {rgb(0xFAFCFE), colors::black, rgb(0x55626F)},
        .navigation = {rgb(0x1F2C3A), rgb(0xF2F6FA), rgb(0xB4C2D0)},
        .border = rgb(0xB9C6D3),
        .focus = rgb(0x1668C1),
        .field = rgb(0xFFFFFF),
        .fieldText = colors::black,
        .selected = rgb(0x3A6391),
        .selectedText = colors::white,
        .disabledText = rgb(0x8A939D),
        .link = colors::hoverBlue,
        .button = {rgb(0x5484B3), rgb(0x6D9AC8), rgb(0x365C85), rgb(0x7F8A95), rgb(0x5484B3)},
        .action = {rgb(0x5484B3), rgb(0x5C8BBA), rgb(0x365C85), rgb(0x7F8A95), rgb(0x2F5479)},
        .standby = {rgb(0xC4820E), rgb(0xDC9823), rgb(0x976308), rgb(0x7F8A95), rgb(0xC4820E)},
        .turnOff = {rgb(0xC24A42), rgb(0xDB5F55), rgb(0x93332C), rgb(0x7F8A95), rgb(0xC24A42)},
        .restart = {rgb(0x3F8F6B), rgb(0x4FA982), rgb(0x2C694D), rgb(0x7F8A95), rgb(0x3F8F6B)},
        .good = rgb(0x1E7145),
        .attention = rgb(0x8A5A00),
        .bad = rgb(0xB01C1C),
        .track = rgb(0xD5DEE7),
        .bar = rgb(0x3F8F6B),
        .navigationHover = rgb(0x2B3C4E),
        .navigationCurrent = rgb(0x365C85),
        .navigationCurrentText = colors::white,
    };
}

Theme systemTheme() {
    const auto system = [](int index) { return static_cast<Color>(GetSysColor(index)); };
    const Surface window{system(COLOR_WINDOW), system(COLOR_WINDOWTEXT), system(COLOR_WINDOWTEXT)};
    const Color face = system(COLOR_BTNFACE);
    const Face plain{face, face, face, face, system(COLOR_BTNTEXT)};
    return {
        .highContrast = true,
        .page = window,
        .card = window,
        .navigation = window,
        .border = system(COLOR_WINDOWTEXT),
        .focus = system(COLOR_HIGHLIGHT),
        .field = system(COLOR_WINDOW),
        .fieldText = system(COLOR_WINDOWTEXT),
        .selected = system(COLOR_HIGHLIGHT),
        .selectedText = system(COLOR_HIGHLIGHTTEXT),
        .disabledText = system(COLOR_GRAYTEXT),
        .link = system(COLOR_HOTLIGHT),
        .button = plain,
        .action = plain,
        .standby = plain,
        .turnOff = plain,
        .restart = plain,
        .good = system(COLOR_WINDOWTEXT),
        .attention = system(COLOR_WINDOWTEXT),
        .bad = system(COLOR_WINDOWTEXT),
        .track = system(COLOR_WINDOW),
        .bar = system(COLOR_HIGHLIGHT),
        .navigationHover = system(COLOR_WINDOW),
        .navigationCurrent = system(COLOR_HIGHLIGHT),
        .navigationCurrentText = system(COLOR_HIGHLIGHTTEXT),
    };
}

} // namespace

Theme currentTheme() {
    return isHighContrast() ? systemTheme() : ownTheme();
}

} // namespace tarvelon
