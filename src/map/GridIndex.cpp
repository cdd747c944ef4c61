#include "map/GridIndex.h"

#include "items/ZvDispCircle.h"
#include "items/ZvDispPolyLine.h"
#include "items/ZvDispText.h"
#include "platform/zvcom/ZvUtilGeo.h"
#include "platform/zvlogs/ZvLog.h"

namespace zv {

namespace {
constexpr int kPrompt = 101;
} // namespace

int FindBand(double value, double low, double high, int count) {
    const double size = (high - low) / count;
    const auto edge = [&](int i) { return i == count ? high : i * size + low; };
    for (int i = 0; i < count; ++i)
        if (edge(i) <= value && edge(i + 1) >= value) return i;
    return -1;
}

bool GridIndex::FindGridIndex(const CZvDispPoint& point, const CZvDispPoint& ll,
                              const CZvDispPoint& ur, int& column, int& row) {
    column = FindBand(point.GetX(), ll.GetX(), ur.GetX(), kCells);
    row = FindBand(point.GetY(), ll.GetY(), ur.GetY(), kCells);
    if (column >= 0 && row >= 0) return true;
    CZvLog::Output("Display item out of map boundry in Memory Control.", kPrompt, true);
    return false;
}

bool GridIndex::Insert(CZvDisplayItem& item, const CZvDispPoint& ll, const CZvDispPoint& ur) {
    const unsigned pickID = item.GetPickID();
    switch (item.GetDispType()) {
    case ZV_DISP_TEXT:
        return InsertPoint(pickID, static_cast<CZvDispText&>(item).GetPoint(), ll, ur);
    case ZV_DISP_CIRCLE:
        return InsertPoint(pickID, static_cast<CZvDispCircle&>(item).GetCenter(), ll, ur);
    case ZV_DISP_POLYLINE:
    case ZV_DISP_POLYGON:
        return InsertBox(pickID, static_cast<CZvDispPolyLine&>(item).GetVertices(), ll, ur);
    default: return true;
    }
}

bool GridIndex::InsertPoint(unsigned pickID, const CZvDispPoint& point, const CZvDispPoint& ll,
                            const CZvDispPoint& ur) {
    int column, row;
    if (!FindGridIndex(point, ll, ur, column, row)) return false;
    m_cells[column + row * kCells].push_back(pickID);
    return true;
}

bool GridIndex::InsertBox(unsigned pickID, const std::vector<CZvDispPoint>& vertices,
                          const CZvDispPoint& ll, const CZvDispPoint& ur) {
    CZvDispPoint min, max;
    if (!CZvUtilGeo::PolyLineGetMinMax(vertices, min, max)) return true;
    int fromColumn, fromRow, toColumn, toRow;
    const bool lowInside = FindGridIndex(min, ll, ur, fromColumn, fromRow);
    const bool highInside = FindGridIndex(max, ll, ur, toColumn, toRow);
    if (!lowInside || !highInside) return highInside;
    for (int column = fromColumn; column <= toColumn; ++column)
        for (int row = fromRow; row <= toRow; ++row)
            m_cells[column + row * kCells].push_back(pickID);
    return true;
}

const std::vector<unsigned>* GridIndex::Cell(int number) const {
    const auto found = m_cells.find(number);
    return found == m_cells.end() ? nullptr : &found->second;
}

} // namespace zv
