#pragma once

#include <string_view>
#include <vector>

namespace tarvelon {

struct Spot {
    float x;
    float y;
};

/// A picture made of lines of one thickness, on a square ground.
struct LineDrawing {
    float side = 0; ///< Of the square. All lengths are in its units.
    float thickness = 0;
    std::vector<std::vector<Spot>> lines; ///< Curves are cut into short straight pieces.
};

/// A picture of packaging/pictures by its name; one without lines when there is none.
const LineDrawing& drawingNamed(std::string_view name);

} // namespace tarvelon
