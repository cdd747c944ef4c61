#pragma once

#include <string>
#include <utility>

#include "data/build/MapFrame.h"

class CZvSettingsManager;

namespace zv::host {

/// A rectangle of the page in inches; the map's lower left corner is (0, 0), y is upward.
struct Area {
    double x1, y1, x2, y2;
    double Width() const { return x2 - x1; }
    double Height() const { return y2 - y1; }
};

/// The page around a map: where map, panel and page lie, in inches.
class Sheet {
  public:
    /// Borrows the frame. Without furniture the page is the map with a little air around it.
    Sheet(const MapFrame& frame, const std::optional<Furniture>& furniture);

    const Area& Map() const { return m_map; }
    const Area& Page() const { return m_page; }
    /// Empty (no width) when there is none.
    const Area& Panel() const { return m_panel; }
    CZvDispPoint ToMap(double x, double y) const;
    double ToMap(double inches) const { return m_frame.Inches(inches); }

    /// What a user has moved a piece of furniture by, in inches, kept by the settings of layer 2.
    static std::pair<double, double> Shift(CZvSettingsManager& settings, const std::string& detail);

  private:
    const MapFrame& m_frame;
    Area m_map{}, m_page{}, m_panel{};
};

} // namespace zv::host
