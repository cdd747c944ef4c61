#include "context/ShapeLibrary.h"

#include <algorithm>

#include "context/Recording.h"

namespace zv {

namespace {

/// Deviation of outlines in ems for text below that size: a sixth of a pixel at most.
struct MeshLevel {
    float deviation;
    double pixels;
};
constexpr MeshLevel kMeshLevels[] = {{0.0f, HUGE_VAL}, {0.01f, 16.0}, {0.05f, 4.0}};

} // namespace

void ShapeLibrary::SetSymbol(int number, std::span<const std::uint32_t> words) {
    Shape& shape = m_symbols[number];
    shape.words.assign(words.begin(), words.end());
    shape.box = BoundsOf(shape.words);
}

const ShapeLibrary::Shape* ShapeLibrary::Symbol(int number) const {
    const auto found = m_symbols.find(number);
    return found == m_symbols.end() ? nullptr : &found->second;
}

void ShapeLibrary::SetFont(std::size_t style, const FontRequest& font) {
    m_styles[style] = {font, true, {}};
}

const GlyphMeshes* ShapeLibrary::Meshes(std::size_t style, double pixels) const {
    if (style >= m_styles.size() || !m_styles[style].isSet) return nullptr;
    std::size_t level = 0;
    while (level + 1 < kLevels && pixels < kMeshLevels[level + 1].pixels)
        ++level;
    auto& meshes = m_styles[style].levels[level];
    if (!meshes) meshes = LoadGlyphMeshes(m_styles[style].font, kMeshLevels[level].deviation);
    return meshes.get();
}

void ShapeLibrary::AddText(Box& box, const RecordedCall& call) const {
    Box ink;
    if (call.call == Call::StrokeText) {
        WalkStrokeText(call.Text(), [&](const StrokeShape& shape, double x) {
            ink.Add(shape.box, Affine::Shift(x, 0.0));
        });
    } else if (const GlyphMeshes* meshes = Meshes(call.Number(), HUGE_VAL)) {
        WalkOutlineText(*meshes, call.Text(), [&](const GlyphMesh& mesh, double x) {
            ink.Add(Box{mesh.minX, mesh.minY, mesh.maxX, mesh.maxY}, Affine::Shift(x, 0.0));
        });
    }
    box.Add(ink, call.Place());
}

Box ShapeLibrary::BoundsOf(std::span<const std::uint32_t> words) const {
    Box box;
    RecordWalk walk(words);
    for (RecordedCall call; walk.Next(call);) {
        if (call.IsLines() || call.IsTriangles()) {
            for (std::size_t i = 0; i < call.count; ++i)
                box.Add(call.At(i));
        } else if (call.call == Call::Symbol) {
            if (const Shape* shape = Symbol(static_cast<int>(call.Number())))
                box.Add(shape->box, call.Place());
        } else if (call.call != Call::Look) {
            AddText(box, call);
        }
    }
    return box;
}

bool ShapeLibrary::RefersToShapes(std::span<const std::uint32_t> words) const {
    RecordWalk walk(words);
    for (RecordedCall call; walk.Next(call);)
        if (call.call == Call::Symbol || call.call == Call::OutlineText) return true;
    return false;
}

} // namespace zv
