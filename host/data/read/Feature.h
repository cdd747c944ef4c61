#pragma once

#include <string>
#include <vector>

#include "platform/zvcom/ZvDispPoint.h"

namespace zv::host {

using Points = std::vector<CZvDispPoint>;

enum class Shape { Point, Line, Area };

/// One connected piece of a geometry: a point, a line, or an area's rings with the outer first.
struct Part {
    Shape shape = Shape::Point;
    std::vector<Points> rings; ///< at least one, each of at least one point
};

/// What a source gives for one row: its attributes and its geometry in the source's coordinates.
struct Feature {
    std::vector<std::string> values;
    std::vector<Part> parts;
    std::string problem; ///< why it has no usable geometry; empty when it has
    std::string flaw;    ///< what of a usable geometry had to be left out; mostly empty
};

} // namespace zv::host
