#include "context/Tessellator.h"

#include <GL/glu.h>

#include <array>
#include <cmath>
#include <deque>
#include <memory>

#include "platform/win/MessageBox.h"

namespace zv {

namespace {

using Vertex = std::array<double, 3>;

/// What the callbacks share. A deque keeps its vertices where they are: the tessellator holds their
/// addresses to the end of the polygon. It works out crossings with single-precision weights, so it
/// is given positions relative to the first vertex; the vertices kept here are the map's.
struct Run {
    DrawSink& sink;
    std::deque<Vertex> vertices;
    Vertex origin{};
};

constexpr const char* kTitle = "polygon";

Figure FigureOf(GLenum which) {
    if (which == GL_TRIANGLE_FAN) return Figure::TriangleFan;
    return which == GL_TRIANGLE_STRIP ? Figure::TriangleStrip : Figure::Triangles;
}

void OnBegin(GLenum which, void* user) {
    static_cast<Run*>(user)->sink.Begin(FigureOf(which));
}

void OnVertex(void* data, void* user) {
    const auto& vertex = *static_cast<const Vertex*>(data);
    static_cast<Run*>(user)->sink.Vertex(vertex[0], vertex[1]);
}

void OnEnd(void* user) {
    static_cast<Run*>(user)->sink.End();
}

/// A crossing of edges: a new vertex at its place, otherwise like the first of those that meet.
void OnCombine(double place[3], void* met[4], float[4], void** out, void* user) {
    Run& run = *static_cast<Run*>(user);
    const double z = met[0] ? (*static_cast<const Vertex*>(met[0]))[2] : 0.0;
    *out =
        &run.vertices.emplace_back(Vertex{place[0] + run.origin[0], place[1] + run.origin[1], z});
}

void OnError(GLenum error, void*) {
    MessageBoxA(reinterpret_cast<const char*>(gluErrorString(error)), kTitle, MB_OK);
}

using Callback = void (*)();

void SetCallbacks(GLUtesselator* tess) {
    gluTessCallback(tess, GLU_TESS_ERROR_DATA, reinterpret_cast<Callback>(OnError));
    gluTessCallback(tess, GLU_TESS_BEGIN_DATA, reinterpret_cast<Callback>(OnBegin));
    gluTessCallback(tess, GLU_TESS_VERTEX_DATA, reinterpret_cast<Callback>(OnVertex));
    gluTessCallback(tess, GLU_TESS_END_DATA, reinterpret_cast<Callback>(OnEnd));
    gluTessCallback(tess, GLU_TESS_COMBINE_DATA, reinterpret_cast<Callback>(OnCombine));
    gluTessNormal(tess, 0.0, 0.0, 1.0); // areas on the map lie flat
}

void Feed(GLUtesselator* tess, std::span<const double> vertices, Run& run) {
    for (std::size_t i = 0; i + 3 < vertices.size(); i += 3) {
        if (!std::isfinite(vertices[i]) || !std::isfinite(vertices[i + 1])) continue;
        run.vertices.push_back({vertices[i], vertices[i + 1], vertices[i + 2]});
        if (run.vertices.size() == 1) run.origin = run.vertices.front();
        Vertex flat{vertices[i] - run.origin[0], vertices[i + 1] - run.origin[1], 0.0};
        gluTessVertex(tess, flat.data(), &run.vertices.back());
    }
}

} // namespace

int TessellatePolygon(std::span<const double> vertices, int mode, DrawSink& sink) {
    std::unique_ptr<GLUtesselator, decltype(&gluDeleteTess)> tess(gluNewTess(), gluDeleteTess);
    if (!tess) {
        MessageBoxA("Create Tessalate Polygon failed", kTitle, MB_OK);
        return 0;
    }
    const Compose compose = mode == 1 ? Compose::Xor : Compose::Blend;
    Run run{sink, {}, {}};
    SetCallbacks(tess.get());
    sink.BeginCompose(compose);
    gluTessBeginPolygon(tess.get(), &run);
    gluTessBeginContour(tess.get());
    Feed(tess.get(), vertices, run);
    gluTessEndContour(tess.get());
    gluTessEndPolygon(tess.get());
    tess.reset();
    if (mode != 0) glFlush(); // who drags an area wants to see it at once
    sink.EndCompose(compose);
    return 1;
}

} // namespace zv
