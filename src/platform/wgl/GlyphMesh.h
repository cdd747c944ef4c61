#pragma once

#include <array>
#include <memory>
#include <vector>

#include "platform/wgl/Wgl.h"

namespace zv {

/// The filled outline of one character, in units of the em, the pen at the origin.
struct GlyphMesh {
    std::vector<float> triangles; ///< x, y of each corner; three corners to a triangle
    float advance = 0.0f;
    float minX = 0.0f, minY = 0.0f, maxX = 0.0f, maxY = 0.0f; ///< of the ink; all 0 without any
};

/// The 256 characters of code page 1252 in one face.
using GlyphMeshes = std::array<GlyphMesh, 256>;

/// Meshes of a face, kept for the next asker. `deviation`: greatest distance from the true outline
/// in ems, 0 for the default. Null when no face with outlines is found.
std::shared_ptr<const GlyphMeshes> LoadGlyphMeshes(const FontRequest& request, float deviation);

} // namespace zv
