#pragma once

#include "platform/win32/windows_api.h"

#include <map>
#include <string>
#include <tuple>

namespace tarvelon {

/// Sizes of text in tenths of a point.
namespace textSize {
constexpr int normal = 90;
constexpr int heading = 130;
constexpr int value = 120;
} // namespace textSize

/// The view's one typeface in the sizes and weights that were asked for so far.
class Fonts {
public:
    Fonts();
    Fonts(const Fonts&) = delete;
    ~Fonts();

    /// `height` is that of a letter in pixels; `weight` is one of the system's, such as FW_NORMAL.
    HFONT get(int height, int weight, bool underlined = false);

private:
    std::string face_;
    std::map<std::tuple<int, int, bool>, HFONT> made_;
};

} // namespace tarvelon
