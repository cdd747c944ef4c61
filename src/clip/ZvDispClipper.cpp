#include "clip/ZvDispClipper.h"

#include "clip/ZvDispMapClipper.h"
#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispSymbols.h"
#include "items/ZvDispText.h"

CZvDispClipper::~CZvDispClipper() = default;
CZvDispMapClipper::~CZvDispMapClipper() = default;

namespace {

bool IsBetween(double value, double a, double b) {
    return (a <= value && value <= b) || (b <= value && value <= a);
}

/// Whether a point stands exactly on the segment from a to b.
bool IsOnEdge(const CZvDispPoint& p, const CZvDispPoint& a, const CZvDispPoint& b) {
    const double cross = (b.GetX() - a.GetX()) * (p.GetY() - a.GetY()) -
                         (b.GetY() - a.GetY()) * (p.GetX() - a.GetX());
    return cross == 0.0 && IsBetween(p.GetX(), a.GetX(), b.GetX()) &&
           IsBetween(p.GetY(), a.GetY(), b.GetY());
}

/// Whether the ray to the right of a point crosses the edge.
bool CrossesRay(const CZvDispPoint& p, const CZvDispPoint& a, const CZvDispPoint& b) {
    if ((a.GetY() > p.GetY()) == (b.GetY() > p.GetY())) return false;
    const double at =
        a.GetX() + (p.GetY() - a.GetY()) / (b.GetY() - a.GetY()) * (b.GetX() - a.GetX());
    return p.GetX() < at;
}

} // namespace

bool CZvDispClipper::IsInArea(CZvDispPoint& point) {
    if (m_ring.empty()) return true;
    bool inside = false;
    for (std::size_t i = 0, before = m_ring.size() - 1; i < m_ring.size(); before = i++) {
        if (IsOnEdge(point, m_ring[before], m_ring[i])) return true;
        inside ^= CrossesRay(point, m_ring[before], m_ring[i]);
    }
    return inside;
}

bool CZvDispClipper::ClipText(CZvDispText* text) {
    CZvDispPoint anchor = text->GetPoint();
    return IsInArea(anchor);
}

bool CZvDispClipper::ClipPolyline(CZvDispPolyLine*) {
    return true;
}

bool CZvDispClipper::ClipPolygon(CZvDispPolygon*) {
    return true;
}

bool CZvDispClipper::ClipCircle(CZvDispCircle* circle) {
    CZvDispPoint center = circle->GetCenter();
    return IsInArea(center);
}

bool CZvDispClipper::ClipArc(CZvDispArc* arc) {
    CZvDispPoint center = arc->GetCenter();
    return IsInArea(center);
}

bool CZvDispClipper::ClipSymbol(CZvDispSymbols* symbol) {
    CZvDispPoint center = symbol->GetCenter();
    return IsInArea(center);
}
