#include <algorithm>
#include <cmath>

#include "context/ZvDisplayContext.h"
#include "platform/zvcom/ZvUtilGeo.h"

/// Circles and arcs for targets without them, and the placement of vertices.

namespace {

constexpr double kDegreesInRadian = 57.29578;

/// Steps of 5 degrees in a sweep, both quotients truncated. Sweeps beyond 100 turns, or that are
/// not numbers, are cut: nothing of the figure changes.
int ChordCount(float start, float end) {
    constexpr float kMost = 36000.0f;
    const float sweep = end - start;
    return static_cast<int>(std::isnan(sweep) ? 0.0f : std::clamp(sweep, -kMost, kMost)) / 5;
}

CZvDispPoint OnArc(CZvDispArc& arc, double radians) {
    return {arc.GetCenter().GetX() + arc.GetRadius() * std::cos(radians),
            arc.GetCenter().GetY() + arc.GetRadius() * std::sin(radians)};
}

std::vector<CZvDispPoint> Chords(CZvDispArc& arc) {
    const double start = arc.GetStartAngle(), end = arc.GetEndAngle();
    const int steps = ChordCount(arc.GetStartAngle(), arc.GetEndAngle());
    double radians = start / kDegreesInRadian;
    std::vector<CZvDispPoint> points{OnArc(arc, radians)};
    for (int i = 0; i <= steps; ++i) {
        radians = (start + 5.0 * i) / kDegreesInRadian;
        points.push_back(OnArc(arc, radians));
    }
    // Degrees against radians: the closing point almost always stands, also on a sweep that the
    // steps met.
    if (end > radians) points.push_back(OnArc(arc, end / kDegreesInRadian));
    return points;
}

} // namespace

void CZvDisplayContext::DrawCircle(CZvDispCircle& circle) {
    CZvDispArc arc(circle.GetCenter(), circle.GetRadius(), 0.0f, 360.0f);
    arc.SetInActive(circle.GetInActive());
    arc.SetFill(circle.GetFill());
    arc.SetColor(circle.GetColor(), 0);
    arc.SetLineWidth(circle.GetLineWidth(), 0);
    DrawArc(arc);
}

void CZvDisplayContext::DrawArc(CZvDispArc& arc) {
    CZvDispPolygon polygon(Chords(arc));
    polygon.SetColor(arc.GetColor(), 0);
    polygon.SetLineWidth(arc.GetLineWidth(), 0);
    polygon.SetFill(arc.GetFill());
    polygon.SetInActive(arc.GetInActive());
    DrawPolygon(polygon);
}

void CZvDisplayContext::DrawPolyLine(CZvDispPolyLine&) {}

void CZvDisplayContext::DrawPolygon(CZvDispPolygon&) {}

void CZvDisplayContext::GetRotatePos(double* x, double* y, double angle, CZvDispPoint origin) {
    if (angle == 0.0) return;
    CZvDispPoint point(*x, *y);
    CZvUtilGeo::RotatePoint(point, origin, angle < 0.0 ? angle + 360.0 : angle);
    *x = point.GetX();
    *y = point.GetY();
}

void CZvDisplayContext::GetXYPos(double x, double y, double* outX, double* outY, bool noRotate) {
    *outX = x;
    *outY = y;
    if (!inSymbol) return;
    if (!noRotate && placeRotate != 0.0) GetRotatePos(outX, outY, placeRotate, {});
    *outX = *outX * placeScale + placeX;
    *outY = *outY * placeScale + placeY;
}
