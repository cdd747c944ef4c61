#include "data/build/LabelPlacer.h"

#include <cmath>

namespace zv::host {
namespace {

/// One way to stand beside a point: justification and place, for an offset (dx, dy) above it.
struct Stance {
    char horizontal;
    double x; ///< times dx
    double y; ///< times dy
    bool below;
};

constexpr Stance kStances[] = {
    {'l', 1, 1, false}, {'r', -1, 1, false}, {'l', 1, 1, true},
    {'r', -1, 1, true}, {'c', 0, 1, false},  {'c', 0, 1, true},
};
constexpr double kClearance = 0.6; ///< above and below a centred label, times its distance aside

std::uint64_t CellKey(std::int64_t column, std::int64_t row) {
    return (std::uint64_t(column) << 32) ^ (std::uint64_t(row) & 0xFFFFFFFFu);
}

} // namespace

Box BoxOf(const CZvDispText& text) {
    const double height = text.GetVertHeight();
    const double width = text.GetTextLength(0) - height / 3.0;
    double x = text.GetPoint().GetX();
    if (text.GetHorzJustify() == 'r') x -= width;
    if (text.GetHorzJustify() == 'c') x -= width / 2.0;
    double y = text.GetPoint().GetY();
    if (text.GetVertJustify() == 'b') y -= height;
    return {x, y, x + width, y + height};
}

template<class Act>
bool LabelPlacer::ForCells(const Box& box, Act&& act) const {
    const auto first = [this](double value) { return std::int64_t(std::floor(value / m_cell)); };
    for (std::int64_t column = first(box.x1); column <= first(box.x2); ++column)
        for (std::int64_t row = first(box.y1); row <= first(box.y2); ++row)
            if (!act(CellKey(column, row))) return false;
    return true;
}

void LabelPlacer::AddObstacle(const Box& box) {
    const auto index = std::uint32_t(m_boxes.size());
    m_boxes.push_back(box);
    ForCells(box, [this, index](std::uint64_t key) {
        m_cells[key].push_back(index);
        return true;
    });
}

bool LabelPlacer::IsFree(const Box& box) const {
    return ForCells(box, [this, &box](std::uint64_t key) {
        const auto found = m_cells.find(key);
        if (found == m_cells.end()) return true;
        for (const std::uint32_t index : found->second)
            if (m_boxes[index].Meets(box)) return false;
        return true;
    });
}

bool LabelPlacer::Place(CZvDispText& text, const CZvDispPoint& anchor) {
    const std::tuple name(anchor.GetX(), anchor.GetY(), text.GetLabel());
    if (m_placed.contains(name)) return false;
    const CZvDispPoint stood = text.GetPoint();
    const char horizontal = text.GetHorzJustify();
    const double height = text.GetVertHeight();
    const double dx = std::abs(stood.GetX() - anchor.GetX());
    const double dy = stood.GetY() - anchor.GetY();
    for (const Stance& stance : kStances) {
        const double up = stance.horizontal == 'c' ? dx * kClearance : dy;
        const double y = stance.below ? -up - height : up;
        text.SetHorzJustify(stance.horizontal);
        text.SetPoint({anchor.GetX() + stance.x * dx, anchor.GetY() + stance.y * y});
        const Box box = BoxOf(text);
        if (!IsFree(box)) continue;
        AddObstacle(box);
        m_placed.insert(name);
        return true;
    }
    text.SetPoint(stood);
    text.SetHorzJustify(horizontal);
    return false;
}

} // namespace zv::host
