#pragma once

#include <array>
#include <optional>
#include <string>

#include "data/project/Project.h"
#include "platform/zvcom/ZvDispPoint.h"
#include "platform/zvcom/ZvMapBounds.h"
#include "platform/zvcom/ZvUtilLLdrv.h"

namespace zv::host {

/// What a coordinate system counts in.
struct CrsInfo {
    bool geographic = false;
    double metresPerUnit = 1.0; ///< of a projected one
};

/// `definition` is anything that PROJ reads. Throws DataError naming it.
CrsInfo InspectCrs(const std::string& definition);
/// The same; the error names the file and the place in it that the definition comes from.
CrsInfo InspectCrs(const std::string& definition, const std::string& file,
                   const std::string& place);

/// Brings points of one coordinate system to the map. Made without systems it leaves them alone.
class ToMap {
  public:
    ToMap() = default;
    /// Throws DataError on a definition that PROJ does not read.
    ToMap(const std::string& from, const std::string& map, double mapMetresPerUnit);

    /// In place. Null when it worked; else why not, and the point stays.
    const char* Convert(CZvDispPoint& point) const;
    /// Map point to the other system; false when it has no image there.
    bool Back(CZvDispPoint& point) const;

  private:
    std::optional<Projection> m_projection;
    bool m_geographic = false;
    double m_factor = 1.0; ///< from the projection's unit to the map's
};

/// The map's extent, units and projection, as its project says.
class MapFrame {
  public:
    MapFrame() = default;
    /// Throws DataError on a coordinate system that PROJ does not read, or bounds without an image.
    /// `file` stands for the project in errors.
    MapFrame(const Project& project, const std::string& file);

    /// Conversion from a source's system; an empty one is the map's own.
    ToMap From(const std::string& crs) const;

    /// Inches on paper to map units.
    double Inches(double inches) const { return inches * m_unitsPerInch; }
    const CZvMapBounds& Bounds() const { return m_bounds; }
    CZvDispPoint LowerLeft() const { return {m_bounds.GetXMin(), m_bounds.GetYMin()}; }
    CZvDispPoint UpperRight() const { return {m_bounds.GetXMax(), m_bounds.GetYMax()}; }
    bool IsFeet() const { return m_bounds.GetFeet(); }
    int Scale() const { return m_bounds.GetScale(); }
    bool HasProjection() const { return !m_crs.empty(); }
    const std::string& Geographic() const { return m_geographic; }

  private:
    void CheckSystems(const std::string& file) const;
    void SetUnits(const Project& project);
    void SetBounds(const Project& project, const std::string& file);
    void SetBoundsOfLatLon(const Project& project, const std::string& file);
    void SetLatLonOfBounds();

    CZvMapBounds m_bounds;
    std::string m_crs;
    std::string m_geographic;
    double m_metresPerUnit = 1.0; ///< of the map's unit
    double m_unitsPerInch = 1.0;
};

} // namespace zv::host
