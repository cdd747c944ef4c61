#include "context/StrokeShapes.h"

#include <array>

namespace zv {

namespace {

StrokeShape MakeShape(unsigned char c) {
    StrokeShape shape;
    shape.hasRow = !StrokeGlyph(c).empty();
    const auto add = [&](double x, double y) {
        shape.points.push_back({x, y});
        shape.box.Add({x, y});
        ++shape.runs.back();
    };
    WalkStrokes(
        c, [&] { shape.runs.push_back(0); }, add, [] {});
    return shape;
}

std::array<StrokeShape, 256> MakeShapes() {
    std::array<StrokeShape, 256> shapes;
    for (std::size_t c = 0; c < shapes.size(); ++c)
        shapes[c] = MakeShape(static_cast<unsigned char>(c));
    return shapes;
}

} // namespace

const StrokeShape& StrokeShapeOf(unsigned char c) {
    static const auto shapes = MakeShapes();
    return shapes[c];
}

} // namespace zv
