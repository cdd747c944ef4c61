#pragma once

#include <string>

#include "items/ZvDisplayItem.h"

/// One line of text at a map position. A label that was dragged away from its object remembers
/// where it went under an offset ID.
class ZVDISP_API CZvDispText : public CZvDisplayItem {
  public:
    CZvDispText();
    CZvDispText(const CZvDispText&) = delete;
    CZvDispText& operator=(const CZvDispText& other);

    /// Turns the position; the degree becomes `degrees`, it is not added.
    void V_Rotate(const CZvDispPoint& origin, double degrees) override;
    ~CZvDispText() override;
    bool Clip(CZvDispMapClipper* const clipper) override;
    void Draw(CZvDisplayContext* const context) override;
    void Erase(CZvDisplayContext* const context) override;
    /// Stores the ID and derives the offset ID from it.
    void SetID(std::string id) override;
    ZVDispType GetDispType() override;
    void V_ReadFromFile(CZvDispFileParam& file) override;
    void V_WriteToFile(CZvDispFileParam& file) override;
    void V_Update(const void* record) override;
    bool V_DispHib(CZvDispFileParam& file) override;
    bool V_DispWake(CZvDispFileParam& file) override;

    std::string GetOffsetID() const { return m_offsetID; }
    /// Stores the string with "-" for every blank.
    void SetOffsetID(std::string id);
    std::string GetFont() const { return m_font; }
    void SetFont(std::string font) { m_font = std::move(font); }
    /// Single-byte text (code page 1252).
    std::string GetLabel() const { return m_label; }
    const std::string& Label() const { return m_label; }
    void SetLabel(std::string label) { m_label = std::move(label); }
    /// 'a' stands above the anchor, 'b' below, anything else across it.
    char GetVertJustify() const { return m_vertical; }
    void SetVertJustify(char justify) { m_vertical = justify; }
    /// 'l' runs to the right of the anchor, 'r' to its left, 'c' is centred.
    char GetHorzJustify() const { return m_horizontal; }
    void SetHorzJustify(char justify) { m_horizontal = justify; }
    CZvDispPoint GetPoint() const { return m_point; }
    void SetPoint(CZvDispPoint point) { m_point = point; }
    /// Height in map units.
    float GetVertHeight() const { return m_height; }
    void SetVertHeight(float height) { m_height = height; }
    CZvDispPoint GetOffsetPoint() const { return m_offset; }
    void SetOffsetPoint(CZvDispPoint point) { m_offset = point; }

    /// Width estimate in map units: characters of the label up to its first zero, and `extra` more,
    /// each as wide as the text is high.
    double GetTextLength(int extra) const;
    /// Centre of the text's box on the map.
    CZvDispPoint GetJustCenter() const;
    /// Writes the record of a symbol's variable text.
    void WriteVarTextToFile(CZvDispFileParam& file);

  private:
    std::string m_offsetID;
    std::string m_font = "DEFAULT";
    std::string m_label = "UNDEFINED";
    char m_vertical = 'a';
    char m_horizontal = 'c';
    CZvDispPoint m_point;
    float m_height = 10000.0f;
    CZvDispPoint m_offset;
};
