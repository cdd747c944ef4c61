#pragma once

#include "platform/Export.h"
#include "platform/zvcom/ZvDispPoint.h"

/// The view window in map units and the scale numbers beside it.
class ZVDISP_API CZvDispMapScale {
  public:
    CZvDispMapScale() = default;
    /// Places a window around the origin: 60000 and 35000 units to the right and up, 40000 to the
    /// left and down, each divided by its scale. REQUIRES: scales are not 0.
    CZvDispMapScale(CZvDispPoint origin, float xScale, float yScale, float slant);
    virtual ~CZvDispMapScale();
    CZvDispMapScale(const CZvDispMapScale&) = default;
    CZvDispMapScale& operator=(const CZvDispMapScale&) = default;

    /// These store only; the window does not move.
    void SetOrigin(CZvDispPoint origin) { m_origin = origin; }
    void SetXScale(float scale) { m_xScale = scale; }
    void SetYScale(float scale) { m_yScale = scale; }
    void SetSlant(float slant) { m_slant = slant; }
    CZvDispPoint GetLowerLeft() const { return m_lowerLeft; }
    CZvDispPoint GetUpperRight() const { return m_upperRight; }
    void SetTheViewPort(CZvDispPoint lowerLeft, CZvDispPoint upperRight);

  private:
    CZvDispPoint m_upperRight;
    CZvDispPoint m_lowerLeft;
    CZvDispPoint m_origin;
    float m_xScale = 0.0f;
    float m_yScale = 0.0f;
    float m_slant = 0.0f;
};
