#pragma once

#include <array>
#include <vector>

struct FT_FaceRec_;

namespace zv {

/// The closed contours of one glyph, curves made straight, in units of the em.
struct GlyphOutline {
    using Contour = std::vector<std::array<double, 2>>;
    std::vector<Contour> contours;
    double advance = 0.0;
};

/// The outline of a Unicode character, the face's own sign for a missing one where it has none;
/// empty with a bitmap face.
/// REQUIRES: deviation > 0.
GlyphOutline LoadGlyphOutline(FT_FaceRec_* face, unsigned long character, double deviation);

} // namespace zv
