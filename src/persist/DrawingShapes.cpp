#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "persist/DrawingStyle.h"
#include "persist/DrawingTail.h"
#include "persist/ZvDispFileParam.h"
#include "platform/Numbers.h"

/// Arcs and circles in drawing records.

namespace {

using namespace zv;

void WriteCenter(DrawingWriter& out, const CZvDispPoint& center, double radius) {
    out.Coordinate("X:", center.GetX()).Blanks(drw::kFirstLineBlanks).EndLine();
    out.Coordinate("Y:", center.GetY()).Fixed("RAD:", radius, 5, drw::kRadius);
}

/// Arcs and circles alone take one off the colour, and anything but "F" for filled.
void ReadShapeStyle(DrawingReader& in, CZvDisplayItem& item) {
    ReadStyle(in, item);
    item.SetColor(static_cast<ZVColor>(item.GetColor() - 1), 0);
    item.SetFill(in.Char(4) != 'F');
}

CZvDispPoint ReadCenter(DrawingReader& in, CZvDispPoint center) {
    center.SetX(in.Double(2, drw::kCoordinate));
    center.SetY(in.Double(drw::kFirstLineBlanks + drw::kNewline + 2, drw::kCoordinate));
    return center;
}

} // namespace

void CZvDispArc::V_WriteToFile(CZvDispFileParam& file) {
    DrawingWriter out(file);
    out.Head("ARC:", drw::kArc);
    WriteStyle(out, *this);
    WriteFill(out, *this);
    WriteCenter(out, m_center, m_radius);
    out.Fixed("DGS:", m_startAngle, 4, drw::kAngle);
    out.Fixed("DGD:", m_endAngle - m_startAngle, 4, drw::kAngle);
    out.Tail(drw::kArcBlanks, drw::kArcBlanksInSymbol).EndLine();
}

void CZvDispArc::V_ReadFromFile(CZvDispFileParam& file) {
    DrawingReader in(*file.GetInFile());
    ReadShapeStyle(in, *this);
    m_center = ReadCenter(in, m_center);
    m_radius = in.Double(4, drw::kRadius);
    m_startAngle = ToFloat(in.Double(4, drw::kAngle));
    m_endAngle = m_startAngle + ToFloat(in.Double(4, drw::kAngle));
    ReadTail(in, file, drw::kCultureOfArc);
}

void CZvDispCircle::V_WriteToFile(CZvDispFileParam& file) {
    DrawingWriter out(file);
    out.Head("CIR:", drw::kCircle);
    WriteStyle(out, *this);
    WriteFill(out, *this);
    WriteCenter(out, m_center, m_radius);
    out.Tail(drw::kCircleBlanks, drw::kCircleBlanksInSymbol).EndLine();
}

void CZvDispCircle::V_ReadFromFile(CZvDispFileParam& file) {
    DrawingReader in(*file.GetInFile());
    ReadShapeStyle(in, *this);
    m_center = ReadCenter(in, m_center);
    m_radius = in.Double(4, drw::kRadius);
    ReadTail(in, file, drw::kCultureOfCircle);
}
