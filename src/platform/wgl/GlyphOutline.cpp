#include "platform/wgl/GlyphOutline.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_OUTLINE_H

#include <algorithm>
#include <cmath>

namespace zv {

namespace {

using Point = std::array<double, 2>;

/// Most straight pieces of one curve.
constexpr int kMostPieces = 32;

/// Receives FreeType's walk along an outline.
struct Walk {
    GlyphOutline& outline;
    double unit;      // ems to a font unit
    double deviation; // ems

    Point At(const FT_Vector* v) const {
        return {static_cast<double>(v->x) * unit, static_cast<double>(v->y) * unit};
    }
    GlyphOutline::Contour& Open() { return outline.contours.back(); }
};

Point Mix(const Point& a, const Point& b, double t) {
    return {a[0] + (b[0] - a[0]) * t, a[1] + (b[1] - a[1]) * t};
}

/// Pieces that keep a curve whose control points lie `bulge` off its chord within the deviation.
int Pieces(double bulge, double deviation) {
    const double pieces = std::ceil(std::sqrt(bulge / (4.0 * deviation)));
    return std::clamp(static_cast<int>(pieces), 1, kMostPieces);
}

double Distance(const Point& a, const Point& b) {
    return std::hypot(a[0] - b[0], a[1] - b[1]);
}

int MoveTo(const FT_Vector* to, void* user) {
    auto& walk = *static_cast<Walk*>(user);
    walk.outline.contours.push_back({walk.At(to)});
    return 0;
}

int LineTo(const FT_Vector* to, void* user) {
    auto& walk = *static_cast<Walk*>(user);
    walk.Open().push_back(walk.At(to));
    return 0;
}

int ConicTo(const FT_Vector* control, const FT_Vector* to, void* user) {
    auto& walk = *static_cast<Walk*>(user);
    const Point a = walk.Open().back(), b = walk.At(control), c = walk.At(to);
    const int n = Pieces(Distance(b, Mix(a, c, 0.5)) * 2.0, walk.deviation);
    for (int i = 1; i <= n; ++i) {
        const double t = static_cast<double>(i) / n;
        walk.Open().push_back(Mix(Mix(a, b, t), Mix(b, c, t), t));
    }
    return 0;
}

int CubicTo(const FT_Vector* control1, const FT_Vector* control2, const FT_Vector* to, void* user) {
    auto& walk = *static_cast<Walk*>(user);
    const Point a = walk.Open().back(), b = walk.At(control1), c = walk.At(control2),
                d = walk.At(to);
    const double bulge = std::max(Distance(b, Mix(a, d, 1.0 / 3)), Distance(c, Mix(a, d, 2.0 / 3)));
    const int n = Pieces(bulge * 3.0, walk.deviation);
    for (int i = 1; i <= n; ++i) {
        const double t = static_cast<double>(i) / n;
        const Point ab = Mix(a, b, t), bc = Mix(b, c, t), cd = Mix(c, d, t);
        walk.Open().push_back(Mix(Mix(ab, bc, t), Mix(bc, cd, t), t));
    }
    return 0;
}

/// Distance of p from the segment a to b.
double OffChord(const Point& p, const Point& a, const Point& b) {
    const double dx = b[0] - a[0], dy = b[1] - a[1], length = dx * dx + dy * dy;
    if (length == 0.0) return Distance(p, a);
    const double t = ((p[0] - a[0]) * dx + (p[1] - a[1]) * dy) / length;
    return Distance(p, Mix(a, b, std::clamp(t, 0.0, 1.0)));
}

bool IsStraight(const GlyphOutline::Contour& contour, std::size_t first, std::size_t last,
                double deviation) {
    for (std::size_t i = first + 1; i < last; ++i)
        if (OffChord(contour[i], contour[first], contour[last]) > deviation) return false;
    return true;
}

/// Leaves out points as long as the outline stays that near; fonts have more of them than small
/// text needs.
void Simplify(GlyphOutline::Contour& contour, double deviation) {
    GlyphOutline::Contour kept;
    for (std::size_t first = 0; first < contour.size();) {
        kept.push_back(contour[first]);
        std::size_t next = first + 1;
        while (next + 1 < contour.size() && IsStraight(contour, first, next + 1, deviation))
            ++next;
        first = next;
    }
    if (kept.size() >= 3) contour = std::move(kept);
}

constexpr FT_Outline_Funcs kWalk = {MoveTo, LineTo, ConicTo, CubicTo, 0, 0};

} // namespace

GlyphOutline LoadGlyphOutline(FT_FaceRec_* face, unsigned long character, double deviation) {
    GlyphOutline outline;
    const auto glyph = FT_Get_Char_Index(face, character);
    if (FT_Load_Glyph(face, glyph, FT_LOAD_NO_SCALE | FT_LOAD_NO_BITMAP) != 0) return outline;
    if (face->glyph->format != FT_GLYPH_FORMAT_OUTLINE) return outline;
    const double unit = 1.0 / face->units_per_EM;
    outline.advance = static_cast<double>(face->glyph->metrics.horiAdvance) * unit;
    Walk walk{outline, unit, deviation};
    FT_Outline_Decompose(&face->glyph->outline, &kWalk, &walk);
    for (auto& contour : outline.contours)
        Simplify(contour, deviation);
    return outline;
}

} // namespace zv
