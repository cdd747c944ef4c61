#include "data/read/OgrGeometry.h"

#include <ogr_geometry.h>

#include <cmath>

namespace zv::host {
namespace {

enum class Outcome { Good, Empty, Broken };

Outcome TakePoints(const OGRSimpleCurve& curve, Points& points) {
    points.reserve(std::size_t(curve.getNumPoints()));
    for (int i = 0; i < curve.getNumPoints(); ++i) {
        if (!std::isfinite(curve.getX(i)) || !std::isfinite(curve.getY(i))) return Outcome::Broken;
        points.emplace_back(curve.getX(i), curve.getY(i));
    }
    return points.empty() ? Outcome::Empty : Outcome::Good;
}

bool HasThreeCorners(const Points& ring) {
    const auto same = [](const CZvDispPoint& a, const CZvDispPoint& b) {
        return a.GetX() == b.GetX() && a.GetY() == b.GetY();
    };
    std::size_t corners = 1;
    const CZvDispPoint* last = &ring.front();
    for (const CZvDispPoint& point : ring)
        if (!same(point, *last) && (!same(point, ring.front()) || corners < 2)) {
            last = &point;
            ++corners;
        }
    return corners >= 3;
}

Outcome TakePoint(const OGRPoint& point, std::vector<Part>& parts) {
    if (point.IsEmpty()) return Outcome::Empty;
    if (!std::isfinite(point.getX()) || !std::isfinite(point.getY())) return Outcome::Broken;
    parts.push_back({Shape::Point, {{CZvDispPoint(point.getX(), point.getY())}}});
    return Outcome::Good;
}

Outcome TakeLine(const OGRLineString& line, std::vector<Part>& parts) {
    Points points;
    const Outcome outcome = TakePoints(line, points);
    if (outcome != Outcome::Good) return outcome;
    if (points.size() < 2) return Outcome::Broken;
    parts.push_back({Shape::Line, {std::move(points)}});
    return Outcome::Good;
}

Outcome TakePolygon(const OGRPolygon& polygon, std::vector<Part>& parts, bool& flawed) {
    if (polygon.IsEmpty()) return Outcome::Empty;
    Part part{Shape::Area, {}};
    for (const OGRLinearRing* ring : polygon) {
        Points points;
        const bool good = TakePoints(*ring, points) == Outcome::Good && HasThreeCorners(points);
        if (good)
            part.rings.push_back(std::move(points));
        else if (part.rings.empty())
            return Outcome::Broken;
        else
            flawed = true;
    }
    parts.push_back(std::move(part));
    return Outcome::Good;
}

Outcome Take(const OGRGeometry& geometry, std::vector<Part>& parts, bool& flawed);

Outcome TakeCollection(const OGRGeometryCollection& collection, std::vector<Part>& parts,
                       bool& flawed) {
    if (collection.IsEmpty()) return Outcome::Empty;
    bool broken = false;
    for (const OGRGeometry* member : collection)
        if (Take(*member, parts, flawed) == Outcome::Broken) broken = true;
    flawed = flawed || broken;
    if (!parts.empty()) return Outcome::Good;
    return broken ? Outcome::Broken : Outcome::Empty;
}

Outcome Take(const OGRGeometry& geometry, std::vector<Part>& parts, bool& flawed) {
    switch (wkbFlatten(geometry.getGeometryType())) {
    case wkbPoint: return TakePoint(*geometry.toPoint(), parts);
    case wkbLineString: return TakeLine(*geometry.toLineString(), parts);
    case wkbPolygon: return TakePolygon(*geometry.toPolygon(), parts, flawed);
    case wkbMultiPoint:
    case wkbMultiLineString:
    case wkbMultiPolygon:
    case wkbGeometryCollection:
        return TakeCollection(*geometry.toGeometryCollection(), parts, flawed);
    default: return Outcome::Broken;
    }
}

} // namespace

void TakeGeometry(const OGRGeometry* geometry, Feature& feature) {
    feature.parts.clear();
    feature.problem.clear();
    feature.flaw.clear();
    if (!geometry) {
        feature.problem = "no geometry";
        return;
    }
    bool flawed = false;
    const std::unique_ptr<OGRGeometry> linear(geometry->getLinearGeometry());
    const Outcome outcome = linear ? Take(*linear, feature.parts, flawed) : Outcome::Broken;
    if (flawed && outcome == Outcome::Good) feature.flaw = "a broken piece was left out";
    if (outcome == Outcome::Good) return;
    feature.parts.clear();
    feature.problem = outcome == Outcome::Empty ? "empty geometry" : "broken geometry";
}

} // namespace zv::host
