#include "data/furniture/Grid.h"

#include <algorithm>
#include <cmath>

#include "map/ZvDispMap.h"
#include "platform/Numbers.h"
#include "platform/zvset/ZvSettings.h"
#include "platform/zvset/ZvSettingsManager.h"

namespace zv::host {
namespace {

constexpr int kLines = 350, kTicks = 351;
constexpr int kPieces = 96;     ///< chords of one line
constexpr int kMostLines = 720; ///< of one direction
constexpr double kTick = 0.1;   ///< inches

std::string TwoDigits(long long value) {
    return (value < 10 ? "0" : "") + FormatInt(value);
}

/// Cuts the segment to the rectangle; false when nothing is left.
bool ClipSegment(CZvDispPoint& a, CZvDispPoint& b, double x1, double y1, double x2, double y2) {
    const double dx = b.GetX() - a.GetX(), dy = b.GetY() - a.GetY();
    const double steps[] = {-dx, dx, -dy, dy};
    const double room[] = {a.GetX() - x1, x2 - a.GetX(), a.GetY() - y1, y2 - a.GetY()};
    double from = 0.0, to = 1.0;
    for (int i = 0; i < 4; ++i) {
        if (steps[i] == 0.0) {
            if (room[i] < 0.0) return false;
            continue;
        }
        const double share = room[i] / steps[i];
        if (steps[i] < 0.0)
            from = std::max(from, share);
        else
            to = std::min(to, share);
    }
    if (from >= to) return false;
    b = {a.GetX() + dx * to, a.GetY() + dy * to};
    a = {a.GetX() + dx * from, a.GetY() + dy * from};
    return true;
}

/// The image of a straight line between two positions; empty where it has none.
Points ImageOf(double lon1, double lat1, double lon2, double lat2, const ToMap& convert) {
    Points line;
    for (int i = 0; i <= kPieces; ++i) {
        CZvDispPoint point(lon1 + (lon2 - lon1) * i / kPieces, lat1 + (lat2 - lat1) * i / kPieces);
        if (!convert.Convert(point)) line.push_back(point);
    }
    return line;
}

} // namespace

std::string AngleLabel(double degrees, double step, char positive, char negative) {
    const auto seconds = std::llround(std::abs(degrees) * 3600.0);
    std::string label = FormatInt(seconds / 3600) + "\xC2\xB0";
    const auto stepSeconds = std::llround(step * 3600.0);
    if (stepSeconds % 3600 != 0) label += TwoDigits(seconds / 60 % 60) + "'";
    if (stepSeconds % 60 != 0) label += TwoDigits(seconds % 60) + "\"";
    if (seconds != 0) label += degrees < 0.0 ? negative : positive;
    return label;
}

GridBuilder::GridBuilder(LoadContext& context, const Sheet& sheet, const GridStyle& style,
                         CZvSettingsManager& settings)
    : m_context(context), m_sheet(sheet), m_style(style), m_textSize(style.height) {
    if (const CZvSettings* layer = settings.GetLayerSettings(E_LAYER_LATLON_GRID)) {
        layer->GetDouble("Post#1\\LL_TEXT_SIZE", m_textSize);
        layer->GetDouble("Post#1\\LL_TEXT_OFFSET", m_textOffset);
    }
    const CZvMapBounds& bounds = context.frame.Bounds();
    m_x1 = bounds.GetXMin(), m_y1 = bounds.GetYMin();
    m_x2 = bounds.GetXMax(), m_y2 = bounds.GetYMax();
}

void GridBuilder::Build() {
    const MapFrame& frame = m_context.frame;
    if (!frame.HasProjection()) return;
    const ToMap convert = frame.From(frame.Geographic());
    AddMeridians(convert);
    AddParallels(convert);
}

std::vector<double> GridBuilder::Steps(double from, double to) const {
    std::vector<double> steps;
    const double first = std::ceil(from / m_style.step - 1e-9);
    for (int i = 0; i < kMostLines; ++i) {
        const double value = (first + i) * m_style.step;
        if (value > to + 1e-9) break;
        steps.push_back(value);
    }
    return steps;
}

void GridBuilder::AddMeridians(const ToMap& convert) {
    const CZvMapBounds& bounds = m_context.frame.Bounds();
    const double air = m_style.step;
    for (const double lon : Steps(bounds.GetLonMin() - air, bounds.GetLonMax() + air))
        AddLine(ImageOf(lon, bounds.GetLatMin() - air, lon, bounds.GetLatMax() + air, convert),
                true, AngleLabel(lon, m_style.step, 'E', 'W'));
}

void GridBuilder::AddParallels(const ToMap& convert) {
    const CZvMapBounds& bounds = m_context.frame.Bounds();
    const double air = m_style.step;
    for (const double lat : Steps(bounds.GetLatMin() - air, bounds.GetLatMax() + air))
        AddLine(ImageOf(bounds.GetLonMin() - air, lat, bounds.GetLonMax() + air, lat, convert),
                false, AngleLabel(lat, m_style.step, 'N', 'S'));
}

/// The part within the map: one run from where the line enters to where it leaves.
Points GridBuilder::Clipped(const Points& line) const {
    Points inside;
    for (std::size_t i = 1; i < line.size(); ++i) {
        CZvDispPoint a = line[i - 1], b = line[i];
        if (!ClipSegment(a, b, m_x1, m_y1, m_x2, m_y2)) continue;
        if (inside.empty()) inside.push_back(a);
        inside.push_back(b);
    }
    return inside;
}

void GridBuilder::AddLine(const Points& line, bool meridian, const std::string& label) {
    Points inside = Clipped(line);
    if (inside.size() < 2) return;
    const double edge = m_sheet.ToMap(0.01);
    for (const CZvDispPoint& end : {inside.front(), inside.back()}) {
        if (meridian && end.GetY() > m_y2 - edge)
            AddTick(end, kNorth), AddLabel(end, kNorth, label);
        if (meridian && end.GetY() < m_y1 + edge)
            AddTick(end, kSouth), AddLabel(end, kSouth, label);
        if (!meridian && end.GetX() > m_x2 - edge) AddTick(end, kEast), AddLabel(end, kEast, label);
        if (!meridian && end.GetX() < m_x1 + edge) AddTick(end, kWest), AddLabel(end, kWest, label);
    }
    if (m_style.lines) AddPolyline(std::move(inside), kLines, 0);
}

void GridBuilder::AddTick(const CZvDispPoint& at, Side side) {
    const double length = m_sheet.ToMap(kTick);
    CZvDispPoint end = at;
    if (side == kNorth) end.SetY(at.GetY() + length);
    if (side == kSouth) end.SetY(at.GetY() - length);
    if (side == kEast) end.SetX(at.GetX() + length);
    if (side == kWest) end.SetX(at.GetX() - length);
    AddPolyline({at, end}, kTicks, 1);
}

void GridBuilder::AddLabel(const CZvDispPoint& at, Side side, const std::string& label) {
    const double away = m_sheet.ToMap(kTick + m_textOffset);
    const double height = m_sheet.ToMap(m_textSize);
    CZvDispPoint point = at;
    if (side == kNorth) point.SetY(at.GetY() + away);
    if (side == kSouth) point.SetY(at.GetY() - away - height);
    if (side == kEast) point.SetX(at.GetX() + away + height);
    if (side == kWest) point.SetX(at.GetX() - away);
    int lost = 0;
    auto text = std::make_unique<CZvDispText>();
    text->SetLabel(LabelText(label, lost));
    text->SetVertHeight(float(height));
    PutText(*text, point, 'c', side == kEast || side == kWest ? 90.0 : 0.0);
    text->SetColor(ZVColor(m_style.textColour), 0);
    text->SetPara(&m_context.para);
    m_context.Add(std::move(text), {E_LAYER_LATLON_GRID, 1, 1, ZVCulture(side)});
}

void GridBuilder::AddPolyline(Points points, int culture, int width) {
    auto line = std::make_unique<CZvDispPolyLine>();
    line->GetVertices() = std::move(points);
    line->SetColor(ZVColor(culture == kTicks ? m_style.textColour : m_style.colour), 0);
    line->SetLineWidth(static_cast<unsigned char>(width), 0);
    line->SetPara(&m_context.para);
    m_context.Add(std::move(line), {E_LAYER_LATLON_GRID, 1, 1, ZVCulture(culture)});
}

} // namespace zv::host
