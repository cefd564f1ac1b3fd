#pragma once

#include <cstdint>

namespace tarvelon {

/// A place in its parent, in pixels at 96 dots an inch.
struct Rect {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rect&) const = default;
};

constexpr Rect at(int x, int y, int width, int height) {
    return {x, y, width, height};
}

/// 0x00BBGGRR, as the system's drawing calls take it.
using Color = std::uint32_t;

namespace colors {
constexpr Color black = 0x000000;
constexpr Color white = 0xffffff;
constexpr Color hoverBlue = 0xff0000;
constexpr Color scanGrey = 0x404040; ///< Labels of the scan pass that is running.
} // namespace colors

} // namespace tarvelon
