#include "data/furniture/FurnitureBuilder.h"

#include <algorithm>

#include "data/furniture/Grid.h"

namespace zv::host {
namespace {

constexpr int kBorder = 450;
constexpr int kFurniture = 451;
constexpr double kPadding = 0.3;   ///< inches between the panel's edge and what stands in it
constexpr double kFarOutside = 40; ///< inches of paper around the page

constexpr const char* kLegendDetails[] = {
    "WELL_LEGEND",        "LEASE_LEGEND", "PIPE_LEGEND",      "PROSPECT_LEGEND", "FIELDS_LEGEND",
    "FIELD_BLOCK_LEGEND", "SAND_LEGEND",  "RESERVOIR_LEGEND", "PLATFORM_LEGEND"};

int CharacterCount(const std::string& utf8) {
    return int(std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

} // namespace

double FittingHeight(const std::string& utf8, double width, double most) {
    const int count = CharacterCount(utf8);
    return count == 0 ? most : std::min(most, width / count);
}

std::string LegendDetail(int number) {
    return std::string("LEGEND_DETAIL\\") + kLegendDetails[number];
}

Area FurnitureBuilder::PanelInside() const {
    const Area& panel = m_sheet.Panel();
    return {panel.x1 + kPadding, panel.y1 + kPadding, panel.x2 - kPadding, panel.y2 - kPadding};
}

void FurnitureBuilder::Put(Drafter& drafter, const std::string& id, int culture, double x,
                           double y) {
    auto group = drafter.Finish(id, x, y);
    group->SetPara(&m_context.para);
    m_context.Add(std::move(group), {E_LAYER_FURNITURE, 1, 1, ZVCulture(culture)});
}

void FurnitureBuilder::Build() {
    AddBorder();
    if (m_sheet.Panel().Width() > 2.0 * kPadding) {
        double bottom = AddProjectionText(PanelInside().y1);
        if (m_style.scaleBar) bottom = AddScaleBar(bottom);
        double top = AddTitleBlock(PanelInside().y2);
        for (const LegendStyle& legend : m_style.legends)
            top = AddLegend(legend, top);
        if (m_style.north > 0) AddNorthArrow(bottom, top);
    }
    if (m_style.grid) GridBuilder(m_context, m_sheet, *m_style.grid, m_settings).Build();
}

void FurnitureBuilder::AddBorder() {
    Drafter drafter(m_sheet);
    const Area& map = m_sheet.Map();
    const Area& page = m_sheet.Page();
    const Area far{page.x1 - kFarOutside, page.y1 - kFarOutside, page.x2 + kFarOutside,
                   page.y2 + kFarOutside};
    drafter.Fill({far.x1, far.y1, map.x1, far.y2}, m_style.paper);
    drafter.Fill({map.x2, far.y1, far.x2, far.y2}, m_style.paper);
    drafter.Fill({map.x1, far.y1, map.x2, map.y1}, m_style.paper);
    drafter.Fill({map.x1, map.y2, map.x2, far.y2}, m_style.paper);
    const double inset = 0.06;
    drafter.Frame(map, {m_style.ink, 1});
    drafter.Frame({page.x1 + inset, page.y1 + inset, page.x2 - inset, page.y2 - inset},
                  {m_style.ink, 2});
    const double x = m_sheet.Panel().x1;
    if (m_sheet.Panel().Width() > 0.0)
        drafter.Line({{x, page.y1 + inset}, {x, page.y2 - inset}}, {m_style.ink, 1});
    Put(drafter, "BORDER_DETAIL", kBorder, map.x1, map.y1);
}

} // namespace zv::host
