#pragma once

#include "items/ZvDisplayItem.h"

namespace zv {

/// Puts an item's colour, line width and line type back at its end, through the setters.
class AttributeScope {
  public:
    explicit AttributeScope(CZvDisplayItem& item)
        : m_item(item), m_color(item.GetColor()), m_width(item.GetLineWidth()),
          m_type(item.GetLineType()) {}
    ~AttributeScope() {
        m_item.SetColor(m_color, 0);
        m_item.SetLineWidth(m_width, 0);
        m_item.SetLineType(m_type, 0);
    }
    AttributeScope(const AttributeScope&) = delete;
    AttributeScope& operator=(const AttributeScope&) = delete;

  private:
    CZvDisplayItem& m_item;
    ZVColor m_color;
    unsigned char m_width;
    unsigned char m_type;
};

} // namespace zv
