#include "platform/zvcom/ZvUtilGeo.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <optional>
#include <span>

namespace {

using Vertices = std::span<const CZvDispPoint>;

constexpr double kInchesInMetre = 39.36999996;

bool SamePlace(const CZvDispPoint& a, const CZvDispPoint& b) {
    return a.GetX() == b.GetX() && a.GetY() == b.GetY();
}

bool HasFinitePlace(const CZvDispPoint& p) {
    return std::isfinite(p.GetX()) && std::isfinite(p.GetY());
}

/// A turn by a fixed angle.
class Turn {
  public:
    /// An angle that is not finite turns nothing: it must not lose the place of what it meets.
    explicit Turn(double degrees) {
        if (!std::isfinite(degrees)) {
            return;
        }
        const double rest = std::fmod(degrees, 360.0);
        const double quarters = rest / 90.0;
        if (quarters == std::trunc(quarters)) {
            SetQuarters(static_cast<int>(quarters));
        } else {
            const double radians = rest / 180.0 * std::numbers::pi;
            m_cos = std::cos(radians), m_sin = std::sin(radians);
        }
    }

    /// True when every point stays where it is: by subtracting and adding the origin it would lose
    /// bits.
    bool IsNone() const { return m_cos == 1.0; }

    void Apply(CZvDispPoint& point, const CZvDispPoint& origin) const {
        const double dx = point.GetX() - origin.GetX();
        const double dy = point.GetY() - origin.GetY();
        point.SetX(origin.GetX() + dx * m_cos - dy * m_sin);
        point.SetY(origin.GetY() + dx * m_sin + dy * m_cos);
    }

  private:
    /// REQUIRES: -3 to 3.
    void SetQuarters(int quarters) {
        constexpr double kCos[] = {1.0, 0.0, -1.0, 0.0};
        constexpr double kSin[] = {0.0, 1.0, 0.0, -1.0};
        const int index = (quarters + 4) % 4;
        m_cos = kCos[index], m_sin = kSin[index];
    }

    double m_cos = 1.0;
    double m_sin = 0.0;
};

/// Twice the area of a ring, positive counter-clockwise, with the moments that give the centroid;
/// all relative to the first vertex, and wide enough that no product of coordinates overflows.
struct RingSums {
    long double area2 = 0, momentX = 0, momentY = 0;

    /// REQUIRES: a vertex.
    explicit RingSums(Vertices ring) {
        const auto dx = [&](std::size_t i) -> long double {
            return static_cast<long double>(ring[i].GetX()) - ring[0].GetX();
        };
        const auto dy = [&](std::size_t i) -> long double {
            return static_cast<long double>(ring[i].GetY()) - ring[0].GetY();
        };
        for (std::size_t i = 1; i + 1 < ring.size(); ++i) {
            const long double cross = dx(i) * dy(i + 1) - dx(i + 1) * dy(i);
            area2 += cross;
            momentX += cross * (dx(i) + dx(i + 1));
            momentY += cross * (dy(i) + dy(i + 1));
        }
    }
};

/// Length of a run of edges, with the moments about its first vertex.
struct LengthSums {
    long double length = 0, momentX = 0, momentY = 0;

    explicit LengthSums(Vertices run) {
        for (std::size_t i = 0; i + 1 < run.size(); ++i) {
            const auto& a = run[i];
            const auto& b = run[i + 1];
            const long double edge = std::hypot(static_cast<long double>(b.GetX()) - a.GetX(),
                                                static_cast<long double>(b.GetY()) - a.GetY());
            length += edge;
            momentX += edge * (Offset(a.GetX(), run[0].GetX()) + Offset(b.GetX(), run[0].GetX()));
            momentY += edge * (Offset(a.GetY(), run[0].GetY()) + Offset(b.GetY(), run[0].GetY()));
        }
    }

    static long double Offset(long double a, long double origin) { return (a - origin) / 2; }
};

/// True when the area is no more than what the rounding of the coordinates alone makes of an
/// outline without area; the centroid of such a remainder could lie anywhere.
bool HasNoArea(Vertices outline, long double area2, long double length) {
    double largest = 0.0;
    for (const CZvDispPoint& vertex : outline) {
        largest = std::max({largest, std::fabs(vertex.GetX()), std::fabs(vertex.GetY())});
    }
    return std::fabs(area2) <= 4 * std::numeric_limits<double>::epsilon() * length * largest;
}

CZvDispPoint Moved(const CZvDispPoint& from, long double dx, long double dy) {
    return {static_cast<double>(from.GetX() + dx), static_cast<double>(from.GetY() + dy)};
}

/// REQUIRES: a vertex.
CZvDispPoint PlaneCenter(Vertices outline) {
    const LengthSums length(outline);
    if (length.length == 0) {
        return outline[0];
    }
    const RingSums ring(outline);
    if (HasNoArea(outline, ring.area2, length.length)) {
        return Moved(outline[0], length.momentX / length.length, length.momentY / length.length);
    }
    return Moved(outline[0], ring.momentX / (3 * ring.area2), ring.momentY / (3 * ring.area2));
}

/// REQUIRES: a vertex.
double MeanZ(Vertices outline) {
    const bool closed = outline.size() > 1 && SamePlace(outline.front(), outline.back());
    const Vertices counted = outline.first(outline.size() - (closed ? 1 : 0));
    double sum = 0.0;
    for (const CZvDispPoint& vertex : counted) {
        sum += vertex.GetZ();
    }
    return sum / static_cast<double>(counted.size());
}

bool HasThreeDifferent(Vertices ring) {
    std::optional<CZvDispPoint> second;
    for (const CZvDispPoint& vertex : ring) {
        if (SamePlace(vertex, ring[0]) || (second && SamePlace(vertex, *second))) {
            continue;
        }
        if (second) {
            return true;
        }
        second = vertex;
    }
    return false;
}

} // namespace

void CZvUtilGeo::RotatePoint(CZvDispPoint& point, const CZvDispPoint& origin, double degrees) {
    const Turn turn(degrees);
    if (!turn.IsNone()) {
        turn.Apply(point, CZvDispPoint(origin));
    }
}

void CZvUtilGeo::RotatePolyline(std::vector<CZvDispPoint>& vertices, const CZvDispPoint& origin,
                                double degrees) {
    const Turn turn(degrees);
    if (turn.IsNone()) {
        return;
    }
    // The origin may be one of the vertices.
    const CZvDispPoint center = origin;
    for (CZvDispPoint& vertex : vertices) {
        turn.Apply(vertex, center);
    }
}

CZvDispPoint CZvUtilGeo::S_FindPolylineCenter(const std::vector<CZvDispPoint>& closed) {
    if (closed.empty()) {
        return {};
    }
    const CZvDispPoint center = PlaneCenter(closed);
    return {center.GetX(), center.GetY(), MeanZ(closed)};
}

bool CZvUtilGeo::PolyLineGetMinMax(const std::vector<CZvDispPoint>& vertices, CZvDispPoint& min,
                                   CZvDispPoint& max) {
    if (vertices.empty()) {
        return false;
    }
    const auto byX = [](const auto& a, const auto& b) { return a.GetX() < b.GetX(); };
    const auto byY = [](const auto& a, const auto& b) { return a.GetY() < b.GetY(); };
    const auto [left, right] = std::minmax_element(vertices.begin(), vertices.end(), byX);
    const auto [bottom, top] = std::minmax_element(vertices.begin(), vertices.end(), byY);
    const CZvDispPoint low(left->GetX(), bottom->GetY());
    const CZvDispPoint high(right->GetX(), top->GetY());
    min.SetX(low.GetX()), min.SetY(low.GetY());
    max.SetX(high.GetX()), max.SetY(high.GetY());
    return true;
}

void CZvUtilGeo::AddViewport(CZvDispPoint& lowerLeft, CZvDispPoint& upperRight, double fraction) {
    const double sideX = (upperRight.GetX() - lowerLeft.GetX()) * fraction / 2.0;
    const double sideY = (upperRight.GetY() - lowerLeft.GetY()) * fraction / 2.0;
    lowerLeft.SetX(lowerLeft.GetX() - sideX), lowerLeft.SetY(lowerLeft.GetY() - sideY);
    upperRight.SetX(upperRight.GetX() + sideX), upperRight.SetY(upperRight.GetY() + sideY);
}

bool CZvUtilGeo::S_FindDirection(const std::vector<CZvDispPoint>& ring, int* error) {
    int none = 0;
    int& fault = error ? *error : none;
    if (!std::all_of(ring.begin(), ring.end(), HasFinitePlace)) {
        fault = 1;
        return false;
    }
    if (!HasThreeDifferent(ring)) {
        fault = 2;
        return false;
    }
    const RingSums sums(ring);
    fault = sums.area2 == 0 ? 1 : 0;
    return sums.area2 < 0;
}

void CZvUtilGeo::S_GetOffsetOf2Points(const CZvDispPoint& a, const CZvDispPoint& b, double& dx,
                                      double& dy, int scale, int meters) {
    const double inches = meters ? kInchesInMetre : 1.0;
    dx = scale ? (b.GetX() - a.GetX()) * inches / scale : 0.0;
    dy = scale ? (b.GetY() - a.GetY()) * inches / scale : 0.0;
}

double CZvUtilGeo::FindAngle(const CZvDispPoint& a, const CZvDispPoint& b) {
    const double dx = b.GetX() - a.GetX();
    const double dy = b.GetY() - a.GetY();
    if (dx == 0.0 && dy == 0.0) {
        return 0.0;
    }
    const double degrees = std::atan2(dy, dx) / std::numbers::pi * 180.0;
    // What lies a hair below the full turn rounds to it; adding 0.0 takes the sign off a zero.
    const double positive = degrees < 0.0 ? degrees + 360.0 : degrees + 0.0;
    return positive < 360.0 ? positive : 0.0;
}
