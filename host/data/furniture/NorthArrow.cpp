#include <algorithm>

#include "data/furniture/FurnitureBuilder.h"
#include "platform/zvcom/ZvUtilGeo.h"

namespace zv::host {

/// Direction of true north at the map's centre, in degrees from the page's own.
double FurnitureBuilder::TrueNorth() const {
    const MapFrame& frame = m_context.frame;
    if (!frame.HasProjection()) return 0.0;
    const ToMap convert = frame.From(frame.Geographic());
    const CZvDispPoint a = frame.LowerLeft(), b = frame.UpperRight();
    CZvDispPoint centre((a.GetX() + b.GetX()) / 2.0, (a.GetY() + b.GetY()) / 2.0);
    if (!convert.Back(centre)) return 0.0;
    CZvDispPoint north(centre.GetX(), centre.GetY() + 0.01);
    if (convert.Convert(centre) || convert.Convert(north)) return 0.0;
    return CZvUtilGeo::FindAngle(centre, north) - 90.0;
}

void FurnitureBuilder::AddNorthArrow(double bottom, double top) {
    const double size = std::min(0.75, (top - bottom) / 2.4);
    if (size < 0.1) return;
    const Area inside = PanelInside();
    const double x = inside.x1 + inside.Width() / 2.0;
    const double y = bottom + size * 1.1;
    Drafter drafter(m_sheet, Sheet::Shift(m_settings, "NORTH_ARROW_DETAIL"));
    drafter.Symbol(x, y, size, {m_style.north, {}}, m_style.ink, std::nullopt, TrueNorth());
    Put(drafter, "NORTH_ARROW_DETAIL", 451, x, y);
}

} // namespace zv::host
