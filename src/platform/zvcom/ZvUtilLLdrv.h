#pragma once

#include <memory>
#include <string>

#include "platform/Export.h"

namespace zv {

/// A transformation between two coordinate systems through PROJ, datum shift included.
/// Coordinates are in longitude, latitude (degrees) or easting, northing order, whatever order the
/// authority prescribes. Not shared between threads.
class ZVDISP_API Projection {
  public:
    /// `from` and `to` are anything that PROJ reads ("EPSG:4267", a PROJ string, WKT).
    /// Throws zv::DataError naming the definition and PROJ's reason.
    Projection(const std::string& from, const std::string& to);
    ~Projection();
    Projection(Projection&&) noexcept;
    Projection& operator=(Projection&&) noexcept;

    /// In place; false, and both values left as they were, when the point has no image.
    bool Forward(double& x, double& y) const;
    bool Back(double& x, double& y) const;

  private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace zv

/// Conversion between latitude and longitude and the map's projection, which an int names.
class ZVDISP_API CZvUtilLLdrv {
  public:
    /// Enters a map projection by its definition and gives the number that stands for it
    /// (CZvMapBounds::GetPrimeProj); the same definitions give the same number. `geographic` is the
    /// system of the latitudes and longitudes. Numbers start at 1.
    /// Throws zv::DataError on a definition that PROJ does not read.
    static int S_RegisterProjection(const std::string& map, const std::string& geographic);

    /// Direction 1: latitude and longitude in degrees to *x, *y in map units. Direction 2: *x is
    /// the map X and *y the map Y on entry, and they come back as longitude and latitude (`lat` and
    /// `lon` are not read). `meters` is 1 when the map's unit is the metre, 0 for US survey feet:
    /// it converts when the projection itself is defined in the other unit. The three last numbers
    /// have no effect. False, with *x and *y untouched, for a number never entered or a point
    /// without image.
    static bool LLdrv(double lat, double lon, double* x, double* y, int projection, int meters,
                      int direction, float, float, float);
};
