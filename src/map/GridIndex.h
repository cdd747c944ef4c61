#pragma once

#include <unordered_map>
#include <vector>

#include "platform/zvcom/ZvDispPoint.h"

class CZvDisplayItem;

namespace zv {

/// The first of `count` equal bands between low and high that holds a value, borders included; -1
/// when none does. The last band ends at `high` itself, whatever the rounding of the others.
int FindBand(double value, double low, double high, int count);

/// Which cell of the map a pick ID stands in: 60 by 60 cells over the rectangle of memory control.
/// A cell's number is column + row * 60, both from 0 at the lower left.
class GridIndex {
  public:
    static constexpr int kCells = 60; ///< on a side

    /// Column and row of the cell that holds a point; a point on a border belongs to the lower
    /// cell, one on the upper edge of the rectangle to cell 59. What is not found becomes -1. False
    /// when either is, with a line in the log.
    static bool FindGridIndex(const CZvDispPoint& point, const CZvDispPoint& ll,
                              const CZvDispPoint& ur, int& column, int& row);

    /// Files an item into the cells that it touches: texts and circles by their point, polylines
    /// and polygons by their box. False when it does not fit and so has to be drawn at once. True
    /// without a cell for the other kinds, for a line without vertices, and for a box of which the
    /// lower left corner alone lies outside.
    bool Insert(CZvDisplayItem& item, const CZvDispPoint& ll, const CZvDispPoint& ur);
    void Clear() { m_cells.clear(); }
    /// Null for an empty cell.
    const std::vector<unsigned>* Cell(int number) const;

  private:
    bool InsertPoint(unsigned pickID, const CZvDispPoint& point, const CZvDispPoint& ll,
                     const CZvDispPoint& ur);
    bool InsertBox(unsigned pickID, const std::vector<CZvDispPoint>& vertices,
                   const CZvDispPoint& ll, const CZvDispPoint& ur);

    std::unordered_map<int, std::vector<unsigned>> m_cells;
};

/// Calls `act` with the number of each cell of the zones, zone by zone and column by column within
/// a zone. `dimension` is the number of zones on a side.
template<class Act>
void ForEachCell(const std::vector<int>& zones, int dimension, Act&& act) {
    if (dimension <= 0 || dimension > GridIndex::kCells) return;
    const int side = GridIndex::kCells / dimension;
    for (const int zone : zones) {
        if (zone < 0 || zone >= dimension * dimension) continue;
        const int row = zone / dimension, column = zone % dimension;
        for (int x = column * side; x < (column + 1) * side; ++x)
            for (int y = row * side; y < (row + 1) * side; ++y)
                act(x + y * GridIndex::kCells);
    }
}

} // namespace zv
