#include "data/build/MapFrame.h"

#include <ogr_spatialref.h>

#include <algorithm>
#include <cmath>
#include <limits>

#include "data/read/Gdal.h"
#include "platform/Error.h"

namespace zv::host {
namespace {

constexpr double kSurveyFoot = 1200.0 / 3937.0;
constexpr double kInchesPerMetre = 3.28083333 * 12.0;
constexpr int kEdgeSteps = 8;

/// Grows with each point that it is given.
struct Extent {
    double xMin = std::numeric_limits<double>::max(), yMin = xMin, xMax = -xMin, yMax = -xMin;

    void Add(const CZvDispPoint& point) {
        xMin = std::min(xMin, point.GetX());
        yMin = std::min(yMin, point.GetY());
        xMax = std::max(xMax, point.GetX());
        yMax = std::max(yMax, point.GetY());
    }
};

/// Points along the four edges of a box.
template<class Act>
void WalkEdges(double x1, double y1, double x2, double y2, Act&& act) {
    for (int i = 0; i <= kEdgeSteps; ++i) {
        const double x = x1 + (x2 - x1) * i / kEdgeSteps;
        const double y = y1 + (y2 - y1) * i / kEdgeSteps;
        act(CZvDispPoint(x, y1));
        act(CZvDispPoint(x, y2));
        act(CZvDispPoint(x1, y));
        act(CZvDispPoint(x2, y));
    }
}

} // namespace

CrsInfo InspectCrs(const std::string& definition) {
    const QuietGdal quiet;
    OGRSpatialReference reference;
    if (reference.SetFromUserInput(definition.c_str()) != OGRERR_NONE)
        throw DataError(definition, "", "is not a coordinate system");
    return {reference.IsGeographic() != 0, reference.GetLinearUnits()};
}

CrsInfo InspectCrs(const std::string& definition, const std::string& file,
                   const std::string& place) {
    try {
        return InspectCrs(definition);
    } catch (const DataError& fault) {
        throw DataError(file, place, "\"" + definition + "\" " + fault.GetError().reason);
    }
}

ToMap::ToMap(const std::string& from, const std::string& map, double mapMetresPerUnit)
    : m_projection(std::in_place, from, map), m_geographic(InspectCrs(from).geographic),
      m_factor(InspectCrs(map).metresPerUnit / mapMetresPerUnit) {}

const char* ToMap::Convert(CZvDispPoint& point) const {
    double x = point.GetX(), y = point.GetY();
    if (m_geographic && !(std::abs(y) <= 90.0 && std::abs(x) <= 180.0))
        return "latitude or longitude out of range";
    if (!m_projection) return nullptr;
    if (!m_projection->Forward(x, y) || !std::isfinite(x) || !std::isfinite(y))
        return "no image in the map's projection";
    point.SetX(x * m_factor);
    point.SetY(y * m_factor);
    return nullptr;
}

bool ToMap::Back(CZvDispPoint& point) const {
    double x = point.GetX() / m_factor, y = point.GetY() / m_factor;
    if (m_projection && !m_projection->Back(x, y)) return false;
    point.SetX(x);
    point.SetY(y);
    return true;
}

MapFrame::MapFrame(const Project& project, const std::string& file)
    : m_crs(project.crs), m_geographic(project.geographic) {
    if (HasProjection()) CheckSystems(file);
    SetUnits(project);
    SetBounds(project, file);
}

void MapFrame::CheckSystems(const std::string& file) const {
    if (InspectCrs(m_crs, file, "/crs").geographic)
        throw DataError(file, "/crs", "\"" + m_crs + "\" is not a projection");
    if (!InspectCrs(m_geographic, file, "/geographic").geographic)
        throw DataError(file, "/geographic",
                        "\"" + m_geographic + "\" has no latitudes and longitudes");
}

void MapFrame::SetUnits(const Project& project) {
    const bool feet = project.feet ? *project.feet : InspectCrs(m_crs).metresPerUnit < 0.5;
    m_metresPerUnit = feet ? kSurveyFoot : 1.0;
    m_unitsPerInch = feet ? project.scale : project.scale / kInchesPerMetre;
    m_bounds.SetFeet(feet);
    m_bounds.SetScale(project.scale);
    if (HasProjection())
        m_bounds.SetPrimeProj(CZvUtilLLdrv::S_RegisterProjection(m_crs, m_geographic));
}

void MapFrame::SetBounds(const Project& project, const std::string& file) {
    m_bounds.SetXYBounded(!project.boundsByLatLon);
    if (project.boundsByLatLon) {
        SetBoundsOfLatLon(project, file);
        return;
    }
    m_bounds.SetXY(project.bounds[0], project.bounds[1], project.bounds[2], project.bounds[3]);
    if (HasProjection()) SetLatLonOfBounds();
}

void MapFrame::SetBoundsOfLatLon(const Project& project, const std::string& file) {
    const auto& [latMin, lonMin, latMax, lonMax] = project.bounds;
    const ToMap convert = From(m_geographic);
    Extent extent;
    WalkEdges(lonMin, latMin, lonMax, latMax, [&](CZvDispPoint point) {
        if (const char* fault = convert.Convert(point))
            throw DataError(file, "/bounds/latlon", fault);
        extent.Add(point);
    });
    m_bounds.SetXY(extent.xMin, extent.yMin, extent.xMax, extent.yMax);
    m_bounds.SetLatLon(latMin, lonMin, latMax, lonMax);
}

void MapFrame::SetLatLonOfBounds() {
    const ToMap convert = From(m_geographic);
    Extent extent;
    WalkEdges(m_bounds.GetXMin(), m_bounds.GetYMin(), m_bounds.GetXMax(), m_bounds.GetYMax(),
              [&](CZvDispPoint point) {
                  if (convert.Back(point)) extent.Add(point);
              });
    m_bounds.SetLatLon(extent.yMin, extent.xMin, extent.yMax, extent.xMax);
}

ToMap MapFrame::From(const std::string& crs) const {
    if (!HasProjection()) return {};
    return ToMap(crs.empty() ? m_crs : crs, m_crs, m_metresPerUnit);
}

} // namespace zv::host
