#pragma once

#include "platform/win32/owned.h"

#include <map>
#include <string>
#include <tuple>

namespace tarvelon {

/// Sizes of text in tenths of a point.
namespace textSize {
constexpr int normal = 90;
constexpr int heading = 110;
constexpr int title = 160;
constexpr int value = 200;
} // namespace textSize

/// The view's one typeface in the sizes and weights that were asked for so far.
class Fonts {
public:
    Fonts();

    /// `height` is that of a letter in pixels; `weight` is one of the system's, such as FW_NORMAL.
    HFONT get(int height, int weight, bool underlined = false);

private:
    std::string face_;
    std::map<std::tuple<int, int, bool>, OwnedFont> made_;
};

} // namespace tarvelon
