#pragma once

#include "items/ZvDisplayItem.h"
#include "persist/DrawingFormat.h"
#include "persist/DrawingReader.h"
#include "persist/DrawingWriter.h"

namespace zv {

/// Line width, line type and colour, as every shape's record has them.
inline void WriteStyle(DrawingWriter& out, const CZvDisplayItem& item) {
    out.Int("LW:", item.GetLineWidth(), drw::kSmall);
    out.Int("LT:", item.GetLineType(), drw::kSmall);
    out.Int("COL:", item.GetColor(), drw::kSmall);
}

inline void WriteFill(DrawingWriter& out, const CZvDisplayItem& item) {
    out.Char("FIL:", item.GetFill() ? 'T' : 'F');
}

inline void ReadStyle(DrawingReader& in, CZvDisplayItem& item) {
    item.SetLineWidth(static_cast<unsigned char>(in.Int(3, drw::kSmall)), 0);
    item.SetLineType(in.Int(3, drw::kSmall), 0);
    item.SetColor(static_cast<ZVColor>(in.Int(4, drw::kSmall)), 0);
}

} // namespace zv
