#include "data/read/CoastReader.h"

#include <algorithm>
#include <cmath>

namespace zv::host {
namespace {

constexpr double kTolerance = 1e-6; ///< of the box's size

/// How far it is from one place on the border to another, counter-clockwise.
double Ahead(double from, double to) {
    return to >= from ? to - from : to - from + 4.0;
}

bool IsClosed(const Points& points) {
    return points.size() > 3 && points.front().GetX() == points.back().GetX() &&
           points.front().GetY() == points.back().GetY();
}

} // namespace

CoastReader::CoastReader(std::unique_ptr<FeatureReader> lines, const std::array<double, 4>& box,
                         const Condition& where)
    : m_lines(std::move(lines)), m_box(box), m_where(where), m_index(m_lines->Fields()) {}

bool CoastReader::PlaceOnBorder(const CZvDispPoint& point, double& place) const {
    const auto& [x1, y1, x2, y2] = m_box;
    const double near = kTolerance * std::max(x2 - x1, y2 - y1);
    const double u = (point.GetX() - x1) / (x2 - x1), v = (point.GetY() - y1) / (y2 - y1);
    if (std::abs(point.GetY() - y1) <= near)
        place = u;
    else if (std::abs(point.GetX() - x2) <= near)
        place = 1.0 + v;
    else if (std::abs(point.GetY() - y2) <= near)
        place = 3.0 - u;
    else if (std::abs(point.GetX() - x1) <= near)
        place = 4.0 - v;
    else
        return false;
    return true;
}

/// Appends the corners that lie between two places.
void CoastReader::WalkBorder(double from, double to, Points& ring) const {
    const auto& [x1, y1, x2, y2] = m_box;
    const CZvDispPoint corners[] = {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}};
    const double far = from + Ahead(from, to);
    for (int corner = int(std::floor(from)) + 1; corner < far; ++corner)
        ring.push_back(corners[corner % 4]);
}

CoastReader::Shore* CoastReader::NextShore(double from) {
    return &*std::min_element(m_shores.begin(), m_shores.end(),
                              [from](const Shore& a, const Shore& b) {
                                  return Ahead(from, a.start) < Ahead(from, b.start);
                              });
}

/// True when the feature is an area by itself, or has a problem; false when its line waits for
/// others.
bool CoastReader::Keep(Feature& feature) {
    if (!feature.problem.empty()) return true;
    for (Part& part : feature.parts) {
        Points& points = part.rings.front();
        part.shape = Shape::Area;
        if (IsClosed(points)) continue;
        Shore shore{feature.values, points, 0.0, 0.0};
        if (!PlaceOnBorder(points.front(), shore.start) ||
            !PlaceOnBorder(points.back(), shore.end)) {
            feature.problem = "a line of the coast neither closes nor ends on the box";
            return true;
        }
        m_shores.push_back(std::move(shore));
        points.clear();
    }
    std::erase_if(feature.parts, [](const Part& part) { return part.rings.front().empty(); });
    return !feature.parts.empty();
}

bool CoastReader::Next(Feature& feature) {
    while (m_lines->Next(feature)) {
        const Row row{&m_index, &feature.values};
        if (m_where.Holds(row) && Keep(feature)) return true;
    }
    return NextJoined(feature);
}

bool CoastReader::NextJoined(Feature& feature) {
    const auto first = std::find_if(m_shores.begin(), m_shores.end(),
                                    [](const Shore& shore) { return !shore.used; });
    if (first == m_shores.end()) return false;
    Points ring;
    Shore* shore = &*first;
    while (!shore->used) {
        shore->used = true;
        ring.insert(ring.end(), shore->points.begin(), shore->points.end());
        Shore* next = NextShore(shore->end);
        WalkBorder(shore->end, next->start, ring);
        shore = next;
    }
    feature = {};
    feature.values = first->values;
    feature.parts = {{Shape::Area, {std::move(ring)}}};
    return true;
}

} // namespace zv::host
