#pragma once

#include "ui/controls/controls.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace tarvelon {

/// A face that is pressed: its colour as it lies, under the mouse, pressed, and when it cannot be used.
/// Captions are black, and white while it is pressed or cannot be used.
struct Face {
    Color normal;
    Color hovered;
    Color pressed;
    Color disabled;
    Color edge;
};

/// The square of a check box or the circle of an option button.
struct MarkColors {
    Color field;
    Color edge;
    Color ticked; ///< The field when it is ticked, and what ticks it.
    Color tick;
};

/// What stands under a control decides its colours.
struct Surface {
    Color ground;
    Color text;
    Color quietText;
    Color disabledText;
    MarkColors mark;
    std::array<Face, 4> buttons; ///< By rank.

    const Face& button(Rank rank) const { return buttons[static_cast<std::size_t>(rank)]; }
};

/// A sign and the band that it may stand on.
struct ToneColors {
    Color sign;
    Color band;
};

/// All colours of the view.
struct Theme {
    bool highContrast = false; ///< The user's own colours: no others may be mixed with them.
    bool dark = false;
    Surface page;
    Surface card;    ///< Inside a box with a title.
    Surface current; ///< Around what goes on now; texts on it may be of a dark grey.
    Surface navigation;
    /// Under captions that turn black and blue where the page is too dark for those.
    std::optional<Surface> captions;
    std::array<ToneColors, 5> tones;
    Color line;   ///< Sets parts off from each other.
    Color border; ///< Of what is filled in and of bars.
    Color focus;
    Color field; ///< Behind typed text and rows.
    Color fieldText;
    Color fieldQuietText;
    Color selected; ///< A row, while the keyboard is with its list.
    Color selectedText;
    Color selectedElsewhere; ///< A row of a list that the keyboard has left.
    Color selectedElsewhereText;
    Color link;
    Face standby;
    Face turnOff;
    Face restart;
    Color track; ///< The part of a bar that is still to come.
    Color bar;
    Color chartBar; ///< One that is not marked.
    Color navigationHover;
    Color navigationCurrent;
    Color navigationCurrentText;

    const ToneColors& tone(Tone of) const { return tones[static_cast<std::size_t>(of)]; }
};

/// From the usual notation 0xRRGGBB.
constexpr Color rgb(std::uint32_t notation) {
    return ((notation & 0xff) << 16) | (notation & 0xff00) | (notation >> 16);
}

/// How well one colour is told from another: 1 (equal) to 21, as the web's guidelines for access reckon it.
inline double contrast(Color one, Color other) {
    const auto light = [](Color color) {
        const auto part = [color](int shift, double weight) {
            const double share = ((color >> shift) & 0xff) / 255.0;
            return weight * (share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4));
        };
        return part(0, 0.2126) + part(8, 0.7152) + part(16, 0.0722) + 0.05;
    };
    const auto [darker, lighter] = std::minmax({light(one), light(other)});
    return lighter / darker;
}

/// For lines and signs on the ground: the wanted colour, or what shows there.
inline Color seenOn(Color ground, Color wanted) {
    if (contrast(wanted, ground) >= 3) {
        return wanted;
    }
    return contrast(colors::white, ground) > contrast(colors::black, ground) ? colors::white : colors::black;
}

constexpr std::array<Face, 4> lightFaces(Color ground) {
    constexpr Color pressed = rgb(0x24588F);
    constexpr Color disabled = rgb(0x6C7784);
    return {{{rgb(0xFDFEFF), rgb(0xDCEAF8), pressed, disabled, rgb(0x6F7D8C)},
             {rgb(0x79B4EC), rgb(0x94C6F5), pressed, disabled, rgb(0x2A6CB0)},
             {ground, rgb(0xDCEAF8), pressed, disabled, rgb(0xB7C3CF)},
             {rgb(0xFDFEFF), rgb(0xFBE4E1), rgb(0x93332C), disabled, rgb(0xC0281E)}}};
}

/// On a dark ground: light, since their captions are black.
constexpr std::array<Face, 4> duskFaces() {
    constexpr Color pressed = rgb(0x24588F);
    constexpr Color disabled = rgb(0x4A5561);
    return {{{rgb(0xA9BACB), rgb(0xC4D2DF), pressed, disabled, rgb(0xA9BACB)},
             {rgb(0x79B4EC), rgb(0x94C6F5), pressed, disabled, rgb(0x79B4EC)},
             {rgb(0x8F9FAF), rgb(0xA9BACB), pressed, disabled, rgb(0x8F9FAF)},
             {rgb(0xA9BACB), rgb(0xE3B5B0), rgb(0x93332C), disabled, rgb(0xFF7A70)}}};
}

constexpr Surface lightSurface(Color ground) {
    return {.ground = ground,
            .text = colors::black,
            .quietText = rgb(0x55626F),
            .disabledText = rgb(0x58636E),
            .mark = {colors::white, rgb(0x6B7988), rgb(0x2F6BA8), colors::white},
            .buttons = lightFaces(ground)};
}

constexpr Surface duskSurface(Color ground) {
    return {.ground = ground,
            .text = rgb(0xF0F4F8),
            .quietText = rgb(0xB4C2D0),
            .disabledText = rgb(0x95A1AD),
            .mark = {rgb(0x151A20), rgb(0x8796A6), rgb(0x79B4EC), colors::black},
            .buttons = duskFaces()};
}

inline constexpr Theme lightTheme{
    .page = lightSurface(rgb(0xF3F6FA)),
    .card = lightSurface(rgb(0xFBFCFE)),
    .current = lightSurface(rgb(0xDCEAF8)),
    .navigation = duskSurface(rgb(0x1F2C3A)),
    .captions = std::nullopt,
    .tones = {{{rgb(0x2A639D), rgb(0xE8EDF3)},
               {rgb(0x1E7145), rgb(0xE6F4EA)},
               {rgb(0x8A5A00), rgb(0xFFF4D6)},
               {rgb(0xB01C1C), rgb(0xFDE7E4)},
               {rgb(0x55626F), rgb(0xE8EDF3)}}},
    .line = rgb(0xCCD6E0),
    .border = rgb(0x7A8898),
    .focus = rgb(0x0B4A94),
    .field = colors::white,
    .fieldText = colors::black,
    .fieldQuietText = rgb(0x55626F),
    .selected = rgb(0x2F6BA8),
    .selectedText = colors::white,
    .selectedElsewhere = rgb(0xD3E1EF),
    .selectedElsewhereText = colors::black,
    .link = rgb(0x0B4A94),
    .standby = {rgb(0xB87A0C), rgb(0xC5861A), rgb(0x8E5D08), rgb(0x6C7784), rgb(0xB87A0C)},
    .turnOff = {rgb(0xC24A42), rgb(0xD25A50), rgb(0x93332C), rgb(0x6C7784), rgb(0xC24A42)},
    .restart = {rgb(0x3F8F6B), rgb(0x469A74), rgb(0x2C694D), rgb(0x6C7784), rgb(0x3F8F6B)},
    .track = rgb(0xE8EEF4),
    .bar = rgb(0x2E7D57),
    .chartBar = rgb(0x7A8EA3),
    .navigationHover = rgb(0x2B3C4E),
    .navigationCurrent = rgb(0x365C85),
    .navigationCurrentText = colors::white,
};

inline constexpr Theme darkTheme{
    .dark = true,
    .page = duskSurface(rgb(0x1B2129)),
    .card = duskSurface(rgb(0x242C36)),
    .current = lightSurface(rgb(0xD6E1EC)),
    .navigation = duskSurface(rgb(0x131920)),
    .captions = lightSurface(rgb(0xD6E1EC)),
    .tones = {{{rgb(0x79B4EC), rgb(0x2F3944)},
               {rgb(0x5CC48C), rgb(0x1C3A2B)},
               {rgb(0xE8B04A), rgb(0x40330F)},
               {rgb(0xFF8A80), rgb(0x4A2220)},
               {rgb(0xB4C2D0), rgb(0x2F3944)}}},
    .line = rgb(0x3A4654),
    .border = rgb(0x8090A1),
    .focus = rgb(0x8CC4FF),
    .field = rgb(0x151A20),
    .fieldText = rgb(0xF0F4F8),
    .fieldQuietText = rgb(0xB4C2D0),
    .selected = rgb(0x2F6BA8),
    .selectedText = colors::white,
    .selectedElsewhere = rgb(0x33414F),
    .selectedElsewhereText = rgb(0xF0F4F8),
    .link = rgb(0x8CC4FF),
    .standby = lightTheme.standby,
    .turnOff = lightTheme.turnOff,
    .restart = lightTheme.restart,
    .track = rgb(0x2A333E),
    .bar = rgb(0x4FB584),
    .chartBar = rgb(0x8090A1),
    .navigationHover = rgb(0x2B3C4E),
    .navigationCurrent = rgb(0x365C85),
    .navigationCurrentText = colors::white,
};

} // namespace tarvelon
