#include "platform/wgl/OutlineMesher.h"

#include <GL/glu.h>

#include <deque>
#include <memory>

namespace zv {

namespace {

using Vertex = std::array<double, 3>;

/// State of one run of the tessellator. Its vertices keep their addresses to the end.
struct Run {
    std::deque<Vertex> vertices;
    std::vector<float> triangles;
    bool failed = false;
};

using TessCallback = void (*)();

void OnVertex(void* vertex, void* user) {
    const auto& v = *static_cast<const Vertex*>(vertex);
    auto& triangles = static_cast<Run*>(user)->triangles;
    triangles.push_back(static_cast<float>(v[0]));
    triangles.push_back(static_cast<float>(v[1]));
}

void OnCombine(double coords[3], void* [4], float[4], void** out, void* user) {
    *out = &static_cast<Run*>(user)->vertices.emplace_back(Vertex{coords[0], coords[1], 0.0});
}

/// Its presence makes the tessellator hand out separate triangles only.
void OnEdgeFlag(unsigned char, void*) {}

void OnError(unsigned, void* user) {
    static_cast<Run*>(user)->failed = true;
}

struct TessCloser {
    void operator()(GLUtesselator* tess) const { gluDeleteTess(tess); }
};

void SetCallbacks(GLUtesselator* tess) {
    gluTessCallback(tess, GLU_TESS_VERTEX_DATA, reinterpret_cast<TessCallback>(OnVertex));
    gluTessCallback(tess, GLU_TESS_COMBINE_DATA, reinterpret_cast<TessCallback>(OnCombine));
    gluTessCallback(tess, GLU_TESS_EDGE_FLAG_DATA, reinterpret_cast<TessCallback>(OnEdgeFlag));
    gluTessCallback(tess, GLU_TESS_ERROR_DATA, reinterpret_cast<TessCallback>(OnError));
    gluTessProperty(tess, GLU_TESS_WINDING_RULE, GLU_TESS_WINDING_NONZERO);
    gluTessNormal(tess, 0.0, 0.0, 1.0);
}

void Feed(GLUtesselator* tess, const GlyphOutline::Contour& contour, Run& run) {
    gluTessBeginContour(tess);
    for (const auto& p : contour) {
        auto& vertex = run.vertices.emplace_back(Vertex{p[0], p[1], 0.0});
        gluTessVertex(tess, vertex.data(), &vertex);
    }
    gluTessEndContour(tess);
}

} // namespace

std::vector<float> FillContours(const std::vector<GlyphOutline::Contour>& contours) {
    const std::unique_ptr<GLUtesselator, TessCloser> tess(gluNewTess());
    Run run;
    if (!tess) return {};
    SetCallbacks(tess.get());
    gluTessBeginPolygon(tess.get(), &run);
    for (const auto& contour : contours)
        Feed(tess.get(), contour, run);
    gluTessEndPolygon(tess.get());
    if (run.failed) return {};
    return std::move(run.triangles);
}

} // namespace zv
