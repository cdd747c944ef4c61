#pragma once

#include "platform/Export.h"

/// A vertex in map units. The pen flag tells whether the stretch that ends here is drawn: a vertex
/// whose flag is clear starts a new run, so a line with gaps stays one list of vertices.
class ZVDISP_API CZvDispPoint {
  public:
    CZvDispPoint() = default;
    CZvDispPoint(double x, double y, double z = 0.0, bool down = true)
        : m_x(x), m_y(y), m_z(z), m_down(down) {}

    /// Sum of the coordinates; the pen flag is that of the left side.
    CZvDispPoint operator+(const CZvDispPoint& other) const {
        return {m_x + other.m_x, m_y + other.m_y, m_z + other.m_z, m_down};
    }

    double GetX() const { return m_x; }
    double GetY() const { return m_y; }
    double GetZ() const { return m_z; }
    bool GetDown() const { return m_down; }

    void SetX(double x) { m_x = x; }
    void SetY(double y) { m_y = y; }
    void SetZ(double z) { m_z = z; }
    void SetDown(bool down) { m_down = down; }

  private:
    double m_x = 0.0;
    double m_y = 0.0;
    double m_z = 0.0;
    bool m_down = true;
};
