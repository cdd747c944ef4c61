#include "map/ZvDispMemCtrl.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "map/GridIndex.h"
#include "map/ZvDispMap.h"
#include "platform/zvcom/ZvLayerInfo.h"
#include "platform/zvcom/ZvUtilGeo.h"
#include "platform/zvlogs/ZvLog.h"

namespace {

constexpr int kNote = 103;
constexpr int kSmallMap = 576000; // feet
constexpr double kFeetPerMetre = 3.28083333;
constexpr int kBigList = 1000;    // items
constexpr int kViewBlock = 15840; // map units
constexpr int kWellZone = 95040, kZone = 190080;
constexpr auto kBlocksLayer = static_cast<E_Layer>(3), kPipelines = static_cast<E_Layer>(15),
               kPlatforms = static_cast<E_Layer>(66), kFacilities = static_cast<E_Layer>(67);

bool Contains(const std::vector<int>& numbers, int number) {
    return std::ranges::find(numbers, number) != numbers.end();
}

// The elements of a that are not in b, in the order of a.
std::vector<int> Minus(const std::vector<int>& a, const std::vector<int>& b) {
    std::vector<int> left;
    std::ranges::copy_if(a, std::back_inserter(left), [&](int zone) { return !Contains(b, zone); });
    return left;
}

// |a - b| without its fraction.
int Extent(double a, double b) {
    const double extent = std::abs(a - b);
    if (std::isnan(extent)) return 0;
    constexpr int kMost = std::numeric_limits<int>::max();
    return extent < kMost ? static_cast<int>(extent) : kMost;
}

int SmallerSide(const CZvMapBounds& bounds) {
    return std::min(Extent(bounds.GetXMin(), bounds.GetXMax()),
                    Extent(bounds.GetYMin(), bounds.GetYMax()));
}

bool IsSmall(const CZvMapBounds& bounds) {
    const int side = SmallerSide(bounds);
    return (bounds.GetFeet() ? side : side * kFeetPerMetre) <= kSmallMap;
}

const CZvMapBounds* BoundsOf(const CZvDispMap* map) {
    return map ? map->GetMapBoundPtr() : nullptr;
}

// The count asked for is that of culture 0.
bool HasBigList(CZvDispMap& map, E_Layer layer) {
    std::vector<int> posts;
    if (!map.GetPostList(layer, posts)) return false;
    for (const int post : posts)
        for (const int uset : map.GetUSetList(layer, post))
            if (map.GetCultureCount(layer, post, uset, static_cast<ZVCulture>(0)) >= kBigList)
                return true;
    return false;
}

// Greatest quotient of the map's side for each dimension; above the last one it is kMostZones.
constexpr int kDimensions[] = {2, 4, 6, 10, 15};
constexpr int kMostZones = 20;

int DimensionFor(int quotient) {
    const auto found = std::ranges::find_if(kDimensions, [&](int d) { return quotient <= d; });
    return found == std::end(kDimensions) ? kMostZones : *found;
}

// Side of the piece of map that one zone stands for; 0 for layers without memory control.
int ZoneSide(E_Layer layer) {
    switch (static_cast<int>(layer)) {
    case E_LAYER_WELLS: return kWellZone;
    case E_LAYER_LEASES:
    case kPipelines:
    case kBlocksLayer:
    case kPlatforms:
    case kFacilities: return kZone;
    default: return 0;
    }
}

// The indexes from low to high; whichever is missing becomes the first or the last.
void Complete(int& low, int& high, int dimension) {
    if (low < 0) low = 0;
    if (high < 0) high = dimension - 1;
}

bool BesideMap(double low, double high, double min, double max) {
    return (low < min && high < min) || (low > max && high > max);
}

} // namespace

CZvDispMemCtrl::~CZvDispMemCtrl() = default;

std::string CZvDispMemCtrl::V_GetClassName() {
    return "CZvDispMemCtrl";
}

void CZvDispMemCtrl::SetCultures(std::vector<int> cultures) {
    m_activeCultures = cultures;
    m_allCultures = std::move(cultures);
}

bool CZvDispMemCtrl::IsCulture(int culture) const {
    return Contains(m_activeCultures, culture);
}

void CZvDispMemCtrl::GetGridRect(CZvDispPoint& ll, CZvDispPoint& ur) const {
    const CZvMapBounds* const bounds = BoundsOf(m_map);
    if (!bounds) return;
    ll = {bounds->GetXMin(), bounds->GetYMin()};
    ur = {bounds->GetXMax(), bounds->GetYMax()};
    CZvUtilGeo::AddViewport(ll, ur, 0.1);
}

void CZvDispMemCtrl::CheckActive() {
    m_active = false;
    const CZvMapBounds* const bounds = BoundsOf(m_map);
    if (!bounds || !m_map->GetMemManage() || IsSmall(*bounds)) return;
    const bool onlyBigLists = m_layer == E_LAYER_WELLS || m_layer == kFacilities;
    m_active = !onlyBigLists || HasBigList(*m_map, m_layer);
}

int CZvDispMemCtrl::ComputeZoneDim() {
    const CZvMapBounds* const bounds = BoundsOf(m_map);
    if (!bounds) return 2;
    const int side = ZoneSide(m_layer);
    if (side == 0) return m_zoneDim = 2;
    const int quotient = SmallerSide(*bounds) / side;
    if (quotient > 0) m_zoneDim = DimensionFor(quotient);
    const std::string dimension = std::to_string(m_zoneDim);
    CZvLog::Output("Zone dimension of " + CZvLayerInfo::GetLayerTitle(m_layer) + " layer is " +
                       dimension + "x" + dimension + ".\n",
                   kNote, true);
    return m_zoneDim;
}

bool CZvDispMemCtrl::IsViewInRange() const {
    if (!BoundsOf(m_map)) return true;
    CZvDispPoint ll, ur;
    m_map->GetViewPort(ll, ur);
    const int side = std::min(Extent(ll.GetX(), ur.GetX()), Extent(ll.GetY(), ur.GetY()));
    return side / kViewBlock <= m_threshold;
}

void CZvDispMemCtrl::FindZoneIndex(CZvDispPoint point, int& column, int& row) const {
    column = row = -1;
    if (!BoundsOf(m_map)) return;
    CZvDispPoint ll, ur;
    GetGridRect(ll, ur);
    column = zv::FindBand(point.GetX(), ll.GetX(), ur.GetX(), m_zoneDim);
    row = zv::FindBand(point.GetY(), ll.GetY(), ur.GetY(), m_zoneDim);
}

void CZvDispMemCtrl::FindPointZone(CZvDispPoint point, std::vector<int>& out) const {
    out.clear();
    int column, row;
    FindZoneIndex(point, column, row);
    if (column >= 0 && row >= 0) out.push_back(row * m_zoneDim + column);
}

void CZvDispMemCtrl::ComputeZones() {
    m_current.clear();
    const CZvMapBounds* const bounds = BoundsOf(m_map);
    if (!bounds) return;
    CZvDispPoint ll, ur;
    m_map->GetViewPort(ll, ur);
    int fromColumn, fromRow, toColumn, toRow;
    FindZoneIndex(ll, fromColumn, fromRow);
    FindZoneIndex(ur, toColumn, toRow);
    const bool reachesIn = (fromRow >= 0 || toRow >= 0) && (fromColumn >= 0 || toColumn >= 0);
    // A view that holds the whole map is not beside it.
    if (!reachesIn && (BesideMap(ll.GetX(), ur.GetX(), bounds->GetXMin(), bounds->GetXMax()) ||
                       BesideMap(ll.GetY(), ur.GetY(), bounds->GetYMin(), bounds->GetYMax())))
        return;
    Complete(fromColumn, toColumn, m_zoneDim);
    Complete(fromRow, toRow, m_zoneDim);
    for (int column = fromColumn; column <= toColumn; ++column)
        for (int row = fromRow; row <= toRow; ++row)
            m_current.push_back(row * m_zoneDim + column);
}

void CZvDispMemCtrl::V_Update() {
    m_erase.clear();
    m_add.clear();
    if (!m_active) return;
    ComputeZones();
    m_unchanged = m_current == m_previous;
    if (IsViewInRange()) {
        if (!m_unchanged) {
            m_erase = Minus(m_previous, m_current);
            m_add = Minus(m_current, m_previous);
            if (!m_add.empty()) m_zonesShown = true;
        }
        m_previous = m_current;
    } else if (m_zonesShown) {
        m_erase = m_previous;
        m_zonesShown = false;
        m_previous.clear();
        m_current.clear();
    }
}

void CZvDispMemCtrl::SetPostCultures(int post) {
    constexpr int kProminent = 145;
    m_activeCultures = m_allCultures;
    const CZvDispLayer* const layer = m_map ? m_map->GetDispLayer(m_layer) : nullptr;
    if (!layer) return;
    for (const int uset : layer->GetUSetList(post)) {
        const std::vector<int> cultures = layer->GetCultureList(post, uset);
        auto exempt = std::ranges::find(cultures, kProminent);
        if (exempt == cultures.end())
            exempt =
                std::ranges::find_if(cultures, [&](int culture) { return IsCulture(culture); });
        if (exempt == cultures.end()) continue;
        std::erase(m_activeCultures, *exempt);
        return;
    }
}

CZvDispMemCtrlExt::~CZvDispMemCtrlExt() = default;

std::string CZvDispMemCtrlExt::V_GetClassName() {
    return "CZvDispMemCtrlExt";
}

void CZvDispMemCtrlExt::V_Update() {
    m_erase.clear();
    m_add.clear();
    if (!m_active) return;
    ComputeZones();
    m_unchanged = m_current == m_previous;
    if (!m_unchanged) {
        m_erase = Minus(m_previous, m_current);
        m_add = Minus(m_current, m_previous);
    }
    m_previous = m_current;
}

void CZvDispMemCtrlExt::ShowAllZones() {
    m_previous.resize(static_cast<std::size_t>(m_zoneDim * m_zoneDim));
    for (int zone = 0; zone < m_zoneDim * m_zoneDim; ++zone)
        m_previous[static_cast<std::size_t>(zone)] = zone;
    m_zonesShown = true;
}
