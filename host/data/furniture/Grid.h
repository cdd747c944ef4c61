#pragma once

#include <string>
#include <vector>

#include "data/build/SourceLoader.h"
#include "data/furniture/Sheet.h"

class CZvSettingsManager;

namespace zv::host {

/// Draws latitudes and longitudes into layer 31: lines, ticks at the border, and annotation outside
/// of it.
class GridBuilder {
  public:
    /// Borrows all of them. Size and offset of the annotation are "LL_TEXT_SIZE" and
    /// "LL_TEXT_OFFSET" (inches) of the layer's settings where they are given.
    GridBuilder(LoadContext& context, const Sheet& sheet, const GridStyle& style,
                CZvSettingsManager& settings);

    void Build();

  private:
    /// The four sides of the map, and the cultures of their annotation.
    enum Side { kNorth = 358, kSouth = 359, kEast = 360, kWest = 361 };

    void AddMeridians(const ToMap& convert);
    void AddParallels(const ToMap& convert);
    void AddLine(const Points& line, bool meridian, const std::string& label);
    void AddTick(const CZvDispPoint& at, Side side);
    void AddLabel(const CZvDispPoint& at, Side side, const std::string& label);
    void AddPolyline(Points points, int culture, int width);
    Points Clipped(const Points& line) const;
    std::vector<double> Steps(double from, double to) const;

    LoadContext& m_context;
    const Sheet& m_sheet;
    const GridStyle& m_style;
    double m_textSize; ///< inches
    double m_textOffset = 0.08;
    double m_x1, m_y1, m_x2, m_y2; ///< the map's rectangle
};

/// A latitude or longitude in degrees, minutes and seconds, as far as the step needs them:
/// "28(degree)30'N". The degree sign is UTF-8.
std::string AngleLabel(double degrees, double step, char positive, char negative);

} // namespace zv::host
