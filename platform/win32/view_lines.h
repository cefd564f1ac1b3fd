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

/// Reads a drawing from its source, an SVG picture: the side from "viewBox", the thickness from
/// "stroke-width", the lines from the paths. Paths know the absolute commands M, L, H, V, C, A (of circles)
/// and Z; a path ends where it holds anything else.
LineDrawing readLineDrawing(std::string_view svg);

} // namespace tarvelon
