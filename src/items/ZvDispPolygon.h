#pragma once

#include "items/ZvDispPolyLine.h"

/// An area bounded by its vertices.
class ZVDISP_API CZvDispPolygon : public CZvDispPolyLine {
  public:
    CZvDispPolygon() = default;
    explicit CZvDispPolygon(const std::vector<CZvDispPoint>& vertices);
    /// Builds an empty polygon: nothing is taken from the argument.
    CZvDispPolygon(const CZvDispPolygon&);
    CZvDispPolygon& operator=(const CZvDispPolygon& other);

    ~CZvDispPolygon() override;
    bool Clip(CZvDispMapClipper* const clipper) override;
    void Draw(CZvDisplayContext* const context) override;
    /// A polygon is erased as the base erases, by drawing it once more with XOR.
    void Erase(CZvDisplayContext* const context) override;
    ZVDispType GetDispType() override;
    void V_ReadFromFile(CZvDispFileParam& file) override;
    void V_WriteToFile(CZvDispFileParam& file) override;
    bool V_DispHib(CZvDispFileParam& file) override;
    bool V_DispWake(CZvDispFileParam& file) override;

    /// Drawn by the three-dimensional context as a special polygon, between the two depths.
    bool GetSpecialPolygonFlag() const { return m_special; }
    void SetSpecialPolygonFlag(bool on) { m_special = on; }
    double GetMinDepth() const { return m_minDepth; }
    void SetMinDepth(double depth) { m_minDepth = depth; }
    double GetMaxDepth() const { return m_maxDepth; }
    void SetMaxDepth(double depth) { m_maxDepth = depth; }
    /// The vertices do not share one depth.
    bool GetDifferentZPolygonFlag() const { return m_differentZ; }
    void SetDifferentZPolygonFlag(bool on) { m_differentZ = on; }

  private:
    bool m_special = false;
    double m_minDepth = 0.0;
    double m_maxDepth = 0.0;
    bool m_differentZ = false;
};
