#include <cmath>

#include "data/build/ItemMaker.h"
#include "data/read/Keyhole.h"
#include "platform/zvcom/ZvUtilGeo.h"

namespace zv::host {
namespace {

double Length(const CZvDispPoint& a, const CZvDispPoint& b) {
    return std::hypot(b.GetX() - a.GetX(), b.GetY() - a.GetY());
}

Stand Between(const CZvDispPoint& a, const CZvDispPoint& b, double share) {
    return {{a.GetX() + (b.GetX() - a.GetX()) * share, a.GetY() + (b.GetY() - a.GetY()) * share},
            CZvUtilGeo::FindAngle(a, b)};
}

/// Middle of the longest stretch: where a label along the line fits best.
Stand MiddleOf(const Points& line) {
    std::size_t longest = 1;
    for (std::size_t i = 2; i < line.size(); ++i)
        if (Length(line[i - 1], line[i]) > Length(line[longest - 1], line[longest])) longest = i;
    return Between(line[longest - 1], line[longest], 0.5);
}

} // namespace

Stand StandOf(const Part& part, Anchor anchor) {
    const Points& ring = part.rings.front();
    if (part.shape == Shape::Point || ring.size() < 2) return {ring.front(), 0.0};
    if (anchor == Anchor::First) return Between(ring[0], ring[1], 0.0);
    if (anchor == Anchor::Last) return Between(ring[ring.size() - 2], ring.back(), 1.0);
    if (part.shape == Shape::Line) return MiddleOf(ring);
    Points closed = ring;
    CloseRing(closed);
    return {CZvUtilGeo::S_FindPolylineCenter(closed), 0.0};
}

double Upright(double degrees) {
    double angle = std::remainder(degrees, 360.0);
    if (angle > 90.0) angle -= 180.0;
    if (angle <= -90.0) angle += 180.0;
    return angle;
}

} // namespace zv::host
