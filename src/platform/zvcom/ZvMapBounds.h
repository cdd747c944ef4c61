#pragma once

#include "platform/Export.h"

/// What the host says about the map's extent: bounds in map units and in degrees, units, scale,
/// projection and turn. A plain value.
class ZVDISP_API CZvMapBounds {
  public:
    double GetXMin() const { return m_xMin; }
    double GetXMax() const { return m_xMax; }
    double GetYMin() const { return m_yMin; }
    double GetYMax() const { return m_yMax; }
    void SetXY(double xMin, double yMin, double xMax, double yMax) {
        m_xMin = xMin, m_yMin = yMin, m_xMax = xMax, m_yMax = yMax;
    }

    double GetLatMin() const { return m_latMin; }
    double GetLatMax() const { return m_latMax; }
    double GetLonMin() const { return m_lonMin; }
    double GetLonMax() const { return m_lonMax; }
    void SetLatLon(double latMin, double lonMin, double latMax, double lonMax) {
        m_latMin = latMin, m_lonMin = lonMin, m_latMax = latMax, m_lonMax = lonMax;
    }

    /// True when the map is bounded in X and Y, false when by latitude and longitude.
    bool GetXYBounded() const { return m_xyBounded; }
    void SetXYBounded(bool on) { m_xyBounded = on; }

    /// True: map units are US survey feet; false: metres.
    bool GetFeet() const { return m_feet; }
    void SetFeet(bool on) { m_feet = on; }

    /// Map feet (or metres) in one inch on paper.
    int GetScale() const { return m_scale; }
    void SetScale(int scale) { m_scale = scale; }

    /// Turn of the map about its centre, in degrees.
    double GetMapCenterAngle() const { return m_angle; }
    void SetMapCenterAngle(double degrees) { m_angle = degrees; }

    /// Number of the map's projection (CZvUtilLLdrv::S_RegisterProjection); 0 when it has none.
    int GetPrimeProj() const { return m_prime; }
    void SetPrimeProj(int number) { m_prime = number; }

  private:
    double m_xMin = 0.0, m_yMin = 0.0, m_xMax = 0.0, m_yMax = 0.0;
    double m_latMin = 0.0, m_lonMin = 0.0, m_latMax = 0.0, m_lonMax = 0.0;
    bool m_xyBounded = true;
    bool m_feet = true;
    int m_scale = 1;
    double m_angle = 0.0;
    int m_prime = 0;
};
