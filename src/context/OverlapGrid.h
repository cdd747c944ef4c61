#pragma once

#include <array>
#include <cstdint>

#include "context/ScreenView.h"

namespace zv {

/// Remembers which bundle last drew in which cell of the screen, so that a figure may join an
/// earlier bundle where nothing drawn since then lies under it.
class OverlapGrid {
  public:
    static constexpr int kMostBundles = 64;

    struct Cells {
        int x0 = 0, y0 = 0, x1 = 0, y1 = 0; ///< inclusive
        bool all = true;                    ///< too many to look at one by one
    };

    /// Forgets everything; the matrix holds until the next time.
    void Reset(const ScreenMatrix& matrix);
    void Reset();
    /// Cells that a box, relative to the matrix' center, covers with `pixels` around it.
    Cells CellsOf(const Box& box, double pixels) const;
    /// First bundle that may take a figure in these cells.
    int FirstFor(const Cells& cells) const;
    /// REQUIRES: bundle is FirstFor(cells) or more.
    void Mark(const Cells& cells, int bundle);

  private:
    static constexpr int kSide = 128;

    bool m_known = false; // where on the screen positions lie
    Point2 m_scale;       // cells to a map unit
    Point2 m_pixel;       // map units of a pixel
    std::array<std::uint8_t, kSide * kSide> m_last{};
    int m_everywhere = 0; // least for all cells
    int m_most = 0;
};

} // namespace zv
