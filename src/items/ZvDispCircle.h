#pragma once

#include "items/ZvDisplayItem.h"

class ZVDISP_API CZvDispCircle : public CZvDisplayItem {
  public:
    CZvDispCircle() = default;
    CZvDispCircle(const CZvDispPoint& center, double radius);
    /// Copies centre and radius only.
    CZvDispCircle(const CZvDispCircle& other);
    /// Takes over centre and radius only; colour, ID and the rest stay.
    CZvDispCircle& operator=(const CZvDispCircle& other);

    void V_Rotate(const CZvDispPoint& origin, double degrees) override;
    ~CZvDispCircle() override;
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
    void SetCenter(CZvDispPoint center) { m_center = center; }
    double GetRadius() const { return m_radius; }
    void SetRadius(double radius) { m_radius = radius; }

  private:
    CZvDispPoint m_center;
    double m_radius = 1.0;
};
