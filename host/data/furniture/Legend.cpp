#include "data/furniture/FurnitureBuilder.h"
#include "platform/Numbers.h"

namespace zv::host {
namespace {

constexpr double kHeadHeight = 0.13;
constexpr double kRowHeight = 0.1;
constexpr double kRowStep = 0.28;
constexpr double kSampleWidth = 0.42;

void DrawSample(Drafter& drafter, const LegendRow& row, double x, double y) {
    const double middle = y + kRowHeight / 2.0;
    const Area box{x, middle - 0.09, x + kSampleWidth, middle + 0.09};
    switch (row.kind) {
    case LegendRow::Kind::Symbol:
        drafter.Symbol(x + kSampleWidth / 2.0, middle, 0.18, row.symbol, row.colour, row.fill);
        break;
    case LegendRow::Kind::Line:
        drafter.Line({{box.x1, middle}, {box.x2, middle}}, {row.colour, row.width, row.type});
        break;
    case LegendRow::Kind::Area:
        if (row.fill) drafter.Wash(box, *row.fill);
        drafter.Frame(box, {row.colour, row.width, row.type});
        break;
    }
}

} // namespace

double FurnitureBuilder::AddLegend(const LegendStyle& legend, double top) {
    const Area inside = PanelInside();
    Drafter drafter(m_sheet, Sheet::Shift(m_settings, LegendDetail(legend.detail)));
    const double textX = inside.x1 + kSampleWidth + 0.15;
    double y = top - kHeadHeight;
    drafter.Text(inside.x1, y, FittingHeight(legend.title, inside.Width(), kHeadHeight),
                 legend.title, 'l', m_style.ink, 1);
    y -= 0.04;
    for (const LegendRow& row : legend.rows) {
        y -= kRowStep;
        DrawSample(drafter, row, inside.x1, y);
        drafter.Text(textX, y, FittingHeight(row.text, inside.x2 - textX, kRowHeight), row.text,
                     'l', m_style.ink);
    }
    Put(drafter, "LEGEND_DETAIL" + FormatInt(legend.detail), 451, inside.x1, y);
    return y - 0.34;
}

} // namespace zv::host
