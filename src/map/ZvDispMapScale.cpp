#include "map/ZvDispMapScale.h"

CZvDispMapScale::CZvDispMapScale(CZvDispPoint origin, float xScale, float yScale, float slant)
    : m_upperRight(origin.GetX() + 60000.0 / xScale, origin.GetY() + 35000.0 / yScale),
      m_lowerLeft(origin.GetX() - 40000.0 / xScale, origin.GetY() - 40000.0 / yScale),
      m_origin(origin), m_xScale(xScale), m_yScale(yScale), m_slant(slant) {}

CZvDispMapScale::~CZvDispMapScale() = default;

void CZvDispMapScale::SetTheViewPort(CZvDispPoint lowerLeft, CZvDispPoint upperRight) {
    m_lowerLeft = lowerLeft;
    m_upperRight = upperRight;
}
