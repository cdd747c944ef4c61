#include "context/OverlapGrid.h"

#include <algorithm>

namespace zv {

namespace {
constexpr int kMostCells = 64;
}

void OverlapGrid::Reset(const ScreenMatrix& matrix) {
    m_known = matrix.modelView && matrix.pixel.x > 0.0 && matrix.pixel.y > 0.0;
    if (m_known) {
        m_scale = {(*matrix.modelView)[0] * kSide / 2, (*matrix.modelView)[5] * kSide / 2};
        m_pixel = matrix.pixel;
    }
    Reset();
}

void OverlapGrid::Reset() {
    m_last.fill(0);
    m_everywhere = m_most = 0;
}

OverlapGrid::Cells OverlapGrid::CellsOf(const Box& box, double pixels) const {
    if (!m_known || box.IsEmpty()) return {};
    const auto cell = [](double position) {
        return static_cast<int>(std::clamp(position + kSide / 2, 0.0, kSide - 1.0));
    };
    const double dx = pixels * m_pixel.x, dy = pixels * m_pixel.y;
    const std::array x = {(box.minX - dx) * m_scale.x, (box.maxX + dx) * m_scale.x};
    const std::array y = {(box.minY - dy) * m_scale.y, (box.maxY + dy) * m_scale.y};
    Cells cells{cell(std::min(x[0], x[1])), cell(std::min(y[0], y[1])), cell(std::max(x[0], x[1])),
                cell(std::max(y[0], y[1])), false};
    cells.all = (cells.x1 - cells.x0 + 1) * (cells.y1 - cells.y0 + 1) > kMostCells;
    return cells;
}

int OverlapGrid::FirstFor(const Cells& cells) const {
    if (cells.all) return m_most;
    int first = m_everywhere;
    for (int y = cells.y0; y <= cells.y1; ++y)
        for (int x = cells.x0; x <= cells.x1; ++x)
            first = std::max<int>(first, m_last[static_cast<std::size_t>(y * kSide + x)]);
    return first;
}

void OverlapGrid::Mark(const Cells& cells, int bundle) {
    m_most = std::max(m_most, bundle);
    if (cells.all) {
        m_everywhere = bundle;
        return;
    }
    for (int y = cells.y0; y <= cells.y1; ++y)
        for (int x = cells.x0; x <= cells.x1; ++x)
            m_last[static_cast<std::size_t>(y * kSide + x)] = static_cast<std::uint8_t>(bundle);
}

} // namespace zv
