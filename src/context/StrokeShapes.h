#pragma once

#include <vector>

#include "context/Affine.h"

namespace zv {

/// A character of the stroke font as lines, in cells, the pen's start at the origin.
struct StrokeShape {
    std::vector<Point2> points;
    std::vector<std::size_t> runs; ///< points of each line, in order
    Box box;
    bool hasRow = false; ///< a character without one draws nothing and does not move the pen
};

inline constexpr double kStrokeCell = 6.0;

/// The shape of a character, made once for the process.
const StrokeShape& StrokeShapeOf(unsigned char c);

/// Walks the pen steps of a character from (0, 0): begin(), vertex(x, y) and end() of each line.
template<class Begin, class Vertex, class End>
void WalkStrokes(unsigned char c, Begin&& begin, Vertex&& vertex, End&& end);

} // namespace zv

#include "context/StrokeFont.h"

template<class Begin, class Vertex, class End>
void zv::WalkStrokes(unsigned char c, Begin&& begin, Vertex&& vertex, End&& end) {
    double x = 0.0, y = 0.0;
    bool open = false;
    for (const StrokeStep& step : StrokeGlyph(c)) {
        if (step.op == kStrokeDraw && !open) begin();
        const bool draws = step.op == kStrokeDraw || open;
        if (draws) vertex(x, y);
        if (draws && step.op != kStrokeDraw) end();
        open = step.op == kStrokeDraw;
        x += step.dx;
        y += step.dy;
    }
    if (open) end();
}
