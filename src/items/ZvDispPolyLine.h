#pragma once

#include <vector>

#include "items/ZvDisplayItem.h"

/// A line through vertices; a vertex whose pen flag is clear starts a new run.
class ZVDISP_API CZvDispPolyLine : public CZvDisplayItem {
  public:
    CZvDispPolyLine() = default;
    explicit CZvDispPolyLine(const std::vector<CZvDispPoint>& vertices);
    CZvDispPolyLine(const CZvDispPolyLine&) = delete;
    CZvDispPolyLine& operator=(const CZvDispPolyLine& other);

    void V_Rotate(const CZvDispPoint& origin, double degrees) override;
    ~CZvDispPolyLine() override;
    bool Clip(CZvDispMapClipper* const clipper) override;
    void Draw(CZvDisplayContext* const context) override;
    void Erase(CZvDisplayContext* const context) override;
    /// Centre of the figure closed by its first vertex; (0, 0, 0) without vertices.
    CZvDispPoint GetCenterPt() override;
    ZVDispType GetDispType() override;
    void V_ReadFromFile(CZvDispFileParam& file) override;
    void V_WriteToFile(CZvDispFileParam& file) override;
    void V_Update(const void* record) override;
    bool V_DispHib(CZvDispFileParam& file) override;
    bool V_DispWake(CZvDispFileParam& file) override;

    /// Replaces the vertices by copies; its own vector as argument leaves it empty.
    void SetVertices(const std::vector<CZvDispPoint>& vertices);
    /// Through this clippers and contexts read and change the vertices.
    std::vector<CZvDispPoint>& GetVertices() { return m_vertices; }
    int GetSize() const { return static_cast<int>(m_vertices.size()); }
    /// REQUIRES: 0 <= index < GetSize().
    CZvDispPoint GetPoint(int index) const { return m_vertices[static_cast<std::size_t>(index)]; }
    void AddPoint(const CZvDispPoint& point) { m_vertices.push_back(point); }
    /// Empties the vector and keeps its capacity.
    void ClearVerticesVector() { m_vertices.clear(); }

  protected:
    /// The vertices as scratch records hold them: a count and four arrays.
    void DispOut(const std::vector<CZvDispPoint>& vertices);
    void DispIn(std::vector<CZvDispPoint>& vertices);
    using CZvDisplayItem::DispIn;
    using CZvDisplayItem::DispOut;

  private:
    std::vector<CZvDispPoint> m_vertices;
};
