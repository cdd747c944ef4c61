#pragma once

#include "items/ZvDisplayItem.h"

/// Part of a circle from the start angle to the end angle, in degrees.
class ZVDISP_API CZvDispArc : public CZvDisplayItem {
  public:
    CZvDispArc() = default;
    CZvDispArc(const CZvDispPoint& center, double radius, float startAngle, float endAngle);
    CZvDispArc(const CZvDispArc&) = delete;
    CZvDispArc& operator=(const CZvDispArc& other);

    void V_Rotate(const CZvDispPoint& origin, double degrees) override;
    ~CZvDispArc() override;
    bool Clip(CZvDispMapClipper* const clipper) override;
    void Draw(CZvDisplayContext* const context) override;
    void Erase(CZvDisplayContext* const context) override;
    ZVDispType GetDispType() override;
    void V_ReadFromFile(CZvDispFileParam& file) override;
    void V_WriteToFile(CZvDispFileParam& file) override;
    void V_Update(const void* record) override;
    bool V_DispHib(CZvDispFileParam& file) override;
    bool V_DispWake(CZvDispFileParam& file) override;

    const CZvDispPoint& GetCenter() const { return m_center; }
    void SetCenter(const CZvDispPoint& center) { m_center = center; }
    double GetRadius() const { return m_radius; }
    void SetRadius(double radius) { m_radius = radius; }
    float GetStartAngle() const { return m_startAngle; }
    void SetStartAngle(float degrees) { m_startAngle = degrees; }
    float GetEndAngle() const { return m_endAngle; }
    void SetEndAngle(float degrees) { m_endAngle = degrees; }

  private:
    double m_radius = 1.0;
    CZvDispPoint m_center;
    float m_endAngle = 0.0f;
    float m_startAngle = 0.0f;
};
