#pragma once

#include <string_view>
#include <vector>

namespace tarvelon {

struct Spot {
    float x;
    float y;
};

enum class Ink {
    Line,
    Solid, ///< What the line goes around.
    Cut,   ///< A line in the colour of the ground.
};

/// A picture made of lines of one thickness, on a square ground.
struct LineDrawing {
    struct Part {
        Ink ink;
        std::vector<Spot> line; ///< Curves are cut into short straight pieces.
    };

    float side = 0; ///< Of the square. All lengths are in its units.
    float thickness = 0;
    std::vector<Part> parts; ///< In the order of drawing.
};

/// A picture of packaging/pictures by its name; one without lines when there is none.
const LineDrawing& drawingNamed(std::string_view name);

} // namespace tarvelon
