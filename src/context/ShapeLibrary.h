#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <span>
#include <unordered_map>
#include <vector>

#include "context/Affine.h"
#include "platform/wgl/GlyphMesh.h"

namespace zv {

/// Shapes that recordings refer to: symbols, and the outline font's characters.
class ShapeLibrary {
  public:
    struct Shape {
        std::vector<std::uint32_t> words; ///< a recording about the symbol's centre
        Box box;
    };

    /// Replaces the symbol's shape.
    void SetSymbol(int number, std::span<const std::uint32_t> words);
    /// Null for a symbol without a shape. Borrowed until the next SetSymbol.
    const Shape* Symbol(int number) const;

    /// A style of the outline font.
    void SetFont(std::size_t style, const FontRequest& font);
    /// Its characters; null for a style that was not set. `pixels`: how tall the em is on the
    /// screen, for which the outlines are true enough.
    const GlyphMeshes* Meshes(std::size_t style, double pixels) const;

    /// What a recording covers, relative to its origin, without the width of its lines.
    Box BoundsOf(std::span<const std::uint32_t> words) const;
    bool RefersToShapes(std::span<const std::uint32_t> words) const;

  private:
    void AddText(Box& box, const struct RecordedCall& call) const;

    std::unordered_map<int, Shape> m_symbols;
    static constexpr std::size_t kLevels = 3;
    struct Style {
        FontRequest font;
        bool isSet = false;
        mutable std::array<std::shared_ptr<const GlyphMeshes>, kLevels> levels;
    };
    std::array<Style, 4> m_styles;
};

/// The pen's way through a text: place(character, x) for every character that the font has.
template<class Place>
void WalkStrokeText(std::string_view text, Place&& place);
template<class Place>
void WalkOutlineText(const GlyphMeshes& meshes, std::string_view text, Place&& place);

} // namespace zv

#include "context/StrokeShapes.h"

template<class Place>
void zv::WalkStrokeText(std::string_view text, Place&& place) {
    double x = 0.0;
    for (const char c : text) {
        const StrokeShape& shape = StrokeShapeOf(static_cast<unsigned char>(c));
        if (!shape.hasRow) continue;
        place(shape, x);
        x += kStrokeCell;
    }
}

template<class Place>
void zv::WalkOutlineText(const GlyphMeshes& meshes, std::string_view text, Place&& place) {
    double x = 0.0;
    for (const char c : text) {
        const GlyphMesh& mesh = meshes[static_cast<unsigned char>(c)];
        place(mesh, x);
        x += mesh.advance;
    }
}
