#include "data/furniture/Sheet.h"

#include "platform/zvset/ZvSettings.h"
#include "platform/zvset/ZvSettingsManager.h"

namespace zv::host {
namespace {

constexpr double kAir = 0.02; ///< of the map's size, around a map without furniture

} // namespace

Sheet::Sheet(const MapFrame& frame, const std::optional<Furniture>& furniture) : m_frame(frame) {
    const CZvMapBounds& bounds = frame.Bounds();
    const double inch = frame.Inches(1.0);
    m_map = {0.0, 0.0, (bounds.GetXMax() - bounds.GetXMin()) / inch,
             (bounds.GetYMax() - bounds.GetYMin()) / inch};
    const double marginX = furniture ? furniture->margin : m_map.Width() * kAir;
    const double marginY = furniture ? furniture->margin : m_map.Height() * kAir;
    const double panel = furniture ? furniture->panel : 0.0;
    m_page = {-marginX, -marginY, m_map.x2 + marginX + panel, m_map.y2 + marginY};
    m_panel = {m_page.x2 - panel, m_page.y1, m_page.x2, m_page.y2};
}

CZvDispPoint Sheet::ToMap(double x, double y) const {
    const CZvDispPoint origin = m_frame.LowerLeft();
    return {origin.GetX() + m_frame.Inches(x), origin.GetY() + m_frame.Inches(y)};
}

std::pair<double, double> Sheet::Shift(CZvSettingsManager& settings, const std::string& detail) {
    double x = 0.0, y = 0.0;
    if (const CZvSettings* layer = settings.GetLayerSettings(E_LAYER_FURNITURE)) {
        layer->GetDouble("Post#1\\" + detail + "\\XOFFSET", x);
        layer->GetDouble("Post#1\\" + detail + "\\YOFFSET", y);
    }
    return {x, y};
}

} // namespace zv::host
