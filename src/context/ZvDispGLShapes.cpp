#include <GL/gl.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "context/DrawSink.h"
#include "context/GlListScope.h"
#include "context/GlScene.h"
#include "context/RaisedFlag.h"
#include "context/Tessellator.h"
#include "platform/zvlogs/ZvLog.h"

/// Lines, areas, circles, arcs and groups.

namespace {

constexpr int kLargePolygon = 300; // vertices
constexpr int kStep = 10;          // degrees between two points of a circle

CZvDispPoint OnCircle(const CZvDispPoint& center, double radius, double degrees) {
    const double radians = degrees * std::numbers::pi / 180.0;
    return {center.GetX() + radius * std::cos(radians), center.GetY() + radius * std::sin(radians),
            center.GetZ()};
}

void Append(std::vector<double>& triples, const CZvDispPoint& p) {
    triples.insert(triples.end(), {p.GetX(), p.GetY(), p.GetZ()});
}

bool SamePlace(const CZvDispPoint& a, const CZvDispPoint& b) {
    return a.GetX() == b.GetX() && a.GetY() == b.GetY();
}

/// The vertices as triples, closed by a copy of the first where the ring is open.
std::vector<double> ClosedTriples(const std::vector<CZvDispPoint>& ring) {
    std::vector<double> triples;
    triples.reserve(3 * (ring.size() + 1));
    for (const auto& p : ring)
        Append(triples, p);
    if (!SamePlace(ring.front(), ring.back())) Append(triples, ring.front());
    return triples;
}

} // namespace

zv::KeepBy CZvDispGL::KeepItemsBy() const {
    return m_recordItems ? zv::KeepBy::Recording : zv::KeepBy::DriverOnly;
}

void CZvDispGL::GLNewList(CZvDisplayItem& item) {
    auto* scene = zv::GlScene::Current();
    if (!scene) return;
    const ZVDispType kind = item.GetDispType();
    const bool mayHoldOthers = kind == ZV_DISP_SYMBOL || kind == ZV_DISP_GROUP;
    // Before the list opens, since lists do not nest while they are compiled.
    if (!scene->Lists().IsOpen()) {
        if (mayHoldOthers && !m_symbolsBuilt && !m_buildingSymbols) CreateSymbolDisplayList();
        if (mayHoldOthers || kind == ZV_DISP_TEXT) FollowFontIndex();
    }
    scene->Lists().NewList(item.GetPickID(), KeepItemsBy());
}

void CZvDispGL::GLEndList(CZvDisplayItem&) {
    if (auto* scene = zv::GlScene::Current()) scene->Lists().EndList();
}

void CZvDispGL::DrawPolyLine(CZvDispPolyLine& line) {
    const ListScope list(*this, line);
    V_GLPolyline(line);
}

void CZvDispGL::DrawPolygon(CZvDispPolygon& polygon) {
    const ListScope list(*this, polygon);
    V_GLPolygon(polygon);
}

void CZvDispGL::DrawCircle(CZvDispCircle& circle) {
    const ListScope list(*this, circle);
    V_GLCircle(circle);
}

void CZvDispGL::DrawArc(CZvDispArc& arc) {
    const ListScope list(*this, arc);
    V_GLArc(arc);
}

void CZvDispGL::DrawGroup(CZvDispGroup& group) {
    const ListScope list(*this, group);
    const zv::RaisedFlag inGroup(m_inGroup);
    V_GLGroup(group);
}

void CZvDispGL::V_GLGroup(CZvDispGroup& group) {
    CZvDisplayContext::DrawGroup(group);
}

void CZvDispGL::V_GLVertice(const CZvDispPoint& point) {
    Sink().Vertex(point.GetX(), point.GetY());
}

void CZvDispGL::V_GLPolyline(CZvDispPolyLine& line) {
    GLSetColor(line);
    GLSetLineWidth(line);
    if (!m_buildingSymbols) GLSetLineType(line);
    const auto& points = line.GetVertices();
    if (!points.empty()) Sink().Begin(zv::Figure::LineStrip);
    for (std::size_t i = 0; i < points.size(); ++i) {
        if (i > 0 && !points[i].GetDown()) {
            Sink().End();
            Sink().Begin(zv::Figure::LineStrip);
        }
        V_GLVertice(points[i]);
    }
    if (!points.empty()) Sink().End();
    Sink().StippleOff();
}

void CZvDispGL::V_GLPolygon(CZvDispPolygon& polygon) {
    GLSetColor(polygon);
    GLSetLineWidth(polygon);
    GLSetFillColor(polygon);
    if (!polygon.GetFill()) {
        DrawPolyLine(polygon);
        return;
    }
    if (polygon.GetSize() > kLargePolygon) CZvLog::Output("Polygon is too large", 103, false);
    FillPolygon(polygon);
}

void CZvDispGL::FillPolygon(CZvDispPolygon& polygon) {
    if (polygon.GetSize() == 0) {
        CZvLog::Output("Vertice = 0 ", 103, false);
        return;
    }
    const auto triples = ClosedTriples(polygon.GetVertices());
    // A polygon on its way is drawn so that drawing it again takes it away.
    zv::TessellatePolygon(triples, polygon.IsCustomCode('m') ? 1 : 0, Sink());
}

void CZvDispGL::V_GLCircle(CZvDispCircle& circle) {
    GLSetColor(circle);
    GLSetLineWidth(circle);
    std::vector<CZvDispPoint> ring;
    for (int degrees = 0; degrees < 360; degrees += kStep)
        ring.push_back(OnCircle(circle.GetCenter(), circle.GetRadius(), degrees));
    if (circle.GetFill()) {
        zv::TessellatePolygon(ClosedTriples(ring), 0, Sink());
        return;
    }
    ring.push_back(ring.front());
    Sink().Begin(zv::Figure::LineStrip);
    for (const auto& p : ring)
        V_GLVertice(p);
    Sink().End();
}

void CZvDispGL::V_GLArc(CZvDispArc& arc) {
    GLSetColor(arc);
    GLSetLineWidth(arc);
    const double start = std::trunc(arc.GetStartAngle());
    // Beyond one turn the points come again.
    const double sweep = std::fmin(std::trunc(arc.GetEndAngle()) - start, 360.0);
    Sink().Begin(zv::Figure::LineStrip);
    for (int degrees = 0; degrees <= sweep; degrees += kStep)
        V_GLVertice(OnCircle(arc.GetCenter(), arc.GetRadius(), std::fmod(start, 360.0) + degrees));
    Sink().End();
}

void CZvDispGL::V_OnTempPolygon(CZvDispPolygon& polygon) {
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    const zv::TemporaryScope temporary(KeepItemsBy());
    GLSetColor(polygon);
    GLSetLineWidth(polygon);
    GLSetFillColor(polygon);
    Sink().Begin(zv::Figure::Polygon);
    for (const auto& p : polygon.GetVertices())
        Sink().Vertex(p.GetX(), p.GetY());
    Sink().End();
}
