#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "items/ZvDispText.h"

namespace zv::host {

struct Box {
    double x1, y1, x2, y2;

    bool Meets(const Box& other) const {
        return x1 < other.x2 && other.x1 < x2 && y1 < other.y2 && other.y1 < y2;
    }
};

/// Box of an unturned text on the map: each character as wide as the text is high.
Box BoxOf(const CZvDispText& text);

/// Finds room for labels beside their points: a label stands clear of every symbol and of every
/// label placed before it. Boxes are in map units; the cost of a label is that of its
/// neighbourhood.
class LabelPlacer {
  public:
    /// `cell` is about the size of a label, in map units.
    explicit LabelPlacer(double cell) : m_cell(cell) {}

    void AddObstacle(const Box& box);

    /// Tries the text where it stands, then mirrored about `anchor` to the other side, below on
    /// both sides, and centred above and below; takes the first place without an obstacle and
    /// becomes one itself. False, and the text as it came, when there is none, or when the same
    /// label stands at the same point already (bores of one well).
    bool Place(CZvDispText& text, const CZvDispPoint& anchor);

  private:
    template<class Act>
    bool ForCells(const Box& box, Act&& act) const;
    bool IsFree(const Box& box) const;

    double m_cell;
    std::vector<Box> m_boxes;
    std::set<std::tuple<double, double, std::string>> m_placed;
    std::unordered_map<std::uint64_t, std::vector<std::uint32_t>> m_cells;
};

} // namespace zv::host
