#include "data/read/Keyhole.h"

namespace zv::host {
namespace {

void Append(Points& list, const Points& ring) {
    const std::size_t first = list.size();
    list.insert(list.end(), ring.begin(), ring.end());
    if (first < list.size()) list[first].SetDown(false);
}

Points Closed(Points ring) {
    CloseRing(ring);
    return ring;
}

} // namespace

void CloseRing(Points& ring) {
    if (ring.empty()) return;
    const CZvDispPoint first = ring.front();
    if (first.GetX() == ring.back().GetX() && first.GetY() == ring.back().GetY() && ring.size() > 1)
        return;
    ring.push_back(first);
    ring.back().SetDown(true);
}

Points Keyhole(const Part& polygon) {
    if (polygon.rings.empty()) return {};
    Points list = Closed(polygon.rings.front());
    for (std::size_t i = 1; i < polygon.rings.size(); ++i) {
        Append(list, Closed(polygon.rings[i]));
        CZvDispPoint back = list.front();
        back.SetDown(false);
        list.push_back(back);
    }
    return list;
}

Points Outline(const Part& polygon) {
    if (polygon.rings.empty()) return {};
    Points list = Closed(polygon.rings.front());
    for (std::size_t i = 1; i < polygon.rings.size(); ++i)
        Append(list, Closed(polygon.rings[i]));
    return list;
}

} // namespace zv::host
