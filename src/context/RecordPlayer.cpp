#include "context/RecordPlayer.h"

#include <algorithm>
#include <cmath>

#include "context/CutLine.h"

namespace zv {

namespace {

/// Deepest nesting of symbols that is followed.
constexpr int kMostNested = 8;
/// No coordinate leaves this range on its way to OpenGL.
constexpr double kMostFloat = 1e18;

ScreenVertex ToScreen(const Point2& p, std::uint32_t rgba) {
    return {static_cast<float>(std::clamp(p.x, -kMostFloat, kMostFloat)),
            static_cast<float>(std::clamp(p.y, -kMostFloat, kMostFloat)), rgba};
}

} // namespace

void RecordPlayer::Play(std::span<const std::uint32_t> words, const Affine& place, double pixel,
                        const Box* limits) {
    m_limits = limits;
    m_pixel = pixel;
    PlayWithin(words, place, Look{});
}

void RecordPlayer::PlayWithin(std::span<const std::uint32_t> words, const Affine& place,
                              const Look& outer) {
    if (m_depth >= kMostNested) return;
    ++m_depth;
    Look look = outer;
    RecordWalk walk(words);
    for (RecordedCall call; walk.Next(call);) {
        if (call.call == Call::Look)
            look = m_looks[call.Number()].Within(outer);
        else
            PlayCall(call, place, look);
    }
    --m_depth;
}

void RecordPlayer::PlayCall(const RecordedCall& call, const Affine& place, const Look& look) {
    const auto at = [&](std::size_t i) {
        const Point2 p = call.At(i);
        return place(p.x, p.y);
    };
    switch (call.call) {
    case Call::Lines:
    case Call::FarLines: AddLine(call.count, at, look); break;
    case Call::Triangles:
    case Call::FarTriangles:
        AddVertices(ScreenBatch::Shape::Triangles, call.count, at, look);
        break;
    case Call::Symbol: PlaySymbol(call, place, look); break;
    case Call::StrokeText: PlayStrokeText(call, place, look); break;
    case Call::OutlineText: PlayOutlineText(call, place, look); break;
    case Call::Look: break;
    }
}

void RecordPlayer::PlaySymbol(const RecordedCall& call, const Affine& place, const Look& look) {
    if (const auto* shape = m_shapes.Symbol(static_cast<int>(call.Number())))
        PlayWithin(shape->words, place * call.Place(), look);
}

void RecordPlayer::PlayStrokeText(const RecordedCall& call, const Affine& place, const Look& look) {
    const Affine text = place * call.Place();
    WalkStrokeText(call.Text(), [&](const StrokeShape& shape, double x) {
        std::size_t first = 0;
        for (const std::size_t run : shape.runs) {
            const auto at = [&](std::size_t i) {
                return text(shape.points[first + i].x + x, shape.points[first + i].y);
            };
            AddLine(run, at, look);
            first += run;
        }
    });
}

void RecordPlayer::PlayOutlineText(const RecordedCall& call, const Affine& place,
                                   const Look& look) {
    const Affine text = place * call.Place();
    const double em = std::sqrt(std::fabs(text.a * text.d - text.b * text.c));
    const GlyphMeshes* meshes =
        m_shapes.Meshes(call.Number(), m_pixel > 0.0 ? em / m_pixel : HUGE_VAL);
    if (!meshes) return;
    WalkOutlineText(*meshes, call.Text(), [&](const GlyphMesh& mesh, double x) {
        const float* xy = mesh.triangles.data();
        const auto at = [&](std::size_t i) { return text(xy[2 * i] + x, xy[2 * i + 1]); };
        AddVertices(ScreenBatch::Shape::Triangles, mesh.triangles.size() / 2, at, look);
    });
}

template<class At>
void RecordPlayer::AddLine(std::size_t count, At&& at, const Look& look) {
    if (count < 2) return;
    if (m_limits && look.stipple == kSolidLine)
        AddCutSegments(count, at, look);
    else
        AddVertices(ScreenBatch::Shape::LineStrips, count, at, look);
}

template<class At>
void RecordPlayer::AddCutSegments(std::size_t count, At&& at, const Look& look) {
    ScreenVertex* out = m_batch.Reserve(ScreenBatch::Shape::Lines, look, 2 * (count - 1));
    std::size_t used = 0;
    Point2 start = at(0);
    for (std::size_t i = 1; i < count; ++i) {
        const Point2 end = at(i);
        Point2 from = start, to = end;
        if (CutLine(from, to, *m_limits)) {
            out[used++] = ToScreen(from, look.rgba);
            out[used++] = ToScreen(to, look.rgba);
        }
        start = end;
    }
    m_batch.Commit(used);
}

template<class At>
void RecordPlayer::AddVertices(ScreenBatch::Shape shape, std::size_t count, At&& at,
                               const Look& look) {
    if (count == 0) return;
    ScreenVertex* out = m_batch.Reserve(shape, look, count);
    for (std::size_t i = 0; i < count; ++i)
        out[i] = ToScreen(at(i), look.rgba);
    m_batch.Commit(count);
}

} // namespace zv
