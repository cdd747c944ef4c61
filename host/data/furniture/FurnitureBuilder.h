#pragma once

#include <memory>

#include "data/build/SourceLoader.h"
#include "data/furniture/Drafter.h"
#include "data/furniture/Sheet.h"

class CZvSettingsManager;

namespace zv::host {

/// Puts the furniture of a map into its layers 2 and 31: border, title block, legends, scale bar,
/// north arrow, projection note, and the grid of latitudes and longitudes.
class FurnitureBuilder {
  public:
    /// Borrows all of them.
    FurnitureBuilder(LoadContext& context, const Sheet& sheet, const Furniture& style,
                     CZvSettingsManager& settings)
        : m_context(context), m_sheet(sheet), m_style(style), m_settings(settings) {}

    void Build();

  private:
    void AddBorder();
    /// Each of these draws downward from `top` (inches) and gives the height where the next begins.
    double AddTitleBlock(double top);
    double AddLegend(const LegendStyle& legend, double top);
    /// These draw upward from `bottom`.
    double AddProjectionText(double bottom);
    double AddScaleBar(double bottom);
    void AddNorthArrow(double bottom, double top);
    double TrueNorth() const;
    void Put(Drafter& drafter, const std::string& id, int culture, double x, double y);
    Area PanelInside() const;

    LoadContext& m_context;
    const Sheet& m_sheet;
    const Furniture& m_style;
    CZvSettingsManager& m_settings;
};

/// Height at which a text fits a width in the stroke font, but no more than `most`.
double FittingHeight(const std::string& utf8, double width, double most);

/// Detail part of the settings' key for a legend's number, 0 to 8.
std::string LegendDetail(int number);

} // namespace zv::host
