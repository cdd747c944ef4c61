#pragma once

#include <vector>

#include "platform/Export.h"
#include "platform/zvcom/ZvDispPoint.h"

class CZvDispArc;
class CZvDispCircle;
class CZvDispPolyLine;
class CZvDispPolygon;
class CZvDispSymbols;
class CZvDispText;

/// Tells what lies in an area of the map. Without an outline the area is the whole plane, and every
/// item passes unchanged.
class ZVDISP_API CZvDispClipper {
  public:
    CZvDispClipper() = default;
    CZvDispClipper(const CZvDispClipper&) = default;
    CZvDispClipper& operator=(const CZvDispClipper&) = default;

    virtual ~CZvDispClipper();
    /// True for a point inside the outline or on it.
    virtual bool IsInArea(CZvDispPoint& point);
    /// A text lies where its anchor lies, circles, arcs and symbols where their centre lies.
    virtual bool ClipText(CZvDispText* text);
    /// Lines pass whole; always true.
    virtual bool ClipPolyline(CZvDispPolyLine* line);
    /// Polygons pass whole; always true.
    virtual bool ClipPolygon(CZvDispPolygon* polygon);
    virtual bool ClipCircle(CZvDispCircle* circle);
    virtual bool ClipArc(CZvDispArc* arc);
    virtual bool ClipSymbol(CZvDispSymbols* symbol);

    /// Installs the outline, a closed ring; the last vertex joins the first.
    void SetBoundsPolygon(std::vector<CZvDispPoint>& ring) { m_ring = ring; }
    std::vector<CZvDispPoint>& GetBoundsPolygon() { return m_ring; }

  private:
    std::vector<CZvDispPoint> m_ring;
};
