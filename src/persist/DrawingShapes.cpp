#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "persist/DrawingFormat.h"
#include "persist/DrawingReader.h"
#include "persist/DrawingTail.h"
#include "persist/DrawingWriter.h"
#include "persist/ZvDispFileParam.h"

/// Arcs and circles in drawing records.

namespace {

using namespace zv;

void WriteStyle(DrawingWriter& out, CZvDisplayItem& item) {
    out.Int("LW:", item.GetLineWidth(), drw::kSmall);
    out.Int("LT:", item.GetLineType(), drw::kSmall);
    out.Int("COL:", item.GetColor(), drw::kSmall);
    out.Char("FIL:", item.GetFill() ? 'T' : 'F');
}

void WriteCenter(DrawingWriter& out, const CZvDispPoint& center, double radius) {
    out.Coordinate("X:", center.GetX()).Blanks(drw::kFirstLineBlanks).EndLine();
    out.Coordinate("Y:", center.GetY()).Fixed("RAD:", radius, 5, drw::kRadius);
}

void ReadStyle(DrawingReader& in, CZvDisplayItem& item) {
    item.SetLineWidth(static_cast<unsigned char>(in.Int(3, drw::kSmall)), 0);
    item.SetLineType(in.Int(3, drw::kSmall), 0);
    item.SetColor(static_cast<ZVColor>(static_cast<long long>(in.Int(4, drw::kSmall)) - 1), 0);
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
    WriteCenter(out, m_center, m_radius);
    out.Fixed("DGS:", m_startAngle, 4, drw::kAngle);
    out.Fixed("DGD:", m_endAngle - m_startAngle, 4, drw::kAngle);
    out.Tail(0, 12).EndLine();
}

void CZvDispArc::V_ReadFromFile(CZvDispFileParam& file) {
    DrawingReader in(*file.GetInFile());
    ReadStyle(in, *this);
    m_center = ReadCenter(in, m_center);
    m_radius = in.Double(4, drw::kRadius);
    m_startAngle = static_cast<float>(in.Double(4, drw::kAngle));
    m_endAngle = m_startAngle + static_cast<float>(in.Double(4, drw::kAngle));
    ReadTail(in, file, drw::kCultureOfArc);
}

void CZvDispCircle::V_WriteToFile(CZvDispFileParam& file) {
    DrawingWriter out(file);
    out.Head("CIR:", drw::kCircle);
    WriteStyle(out, *this);
    WriteCenter(out, m_center, m_radius);
    out.Tail(14, 38).EndLine();
}

void CZvDispCircle::V_ReadFromFile(CZvDispFileParam& file) {
    DrawingReader in(*file.GetInFile());
    ReadStyle(in, *this);
    m_center = ReadCenter(in, m_center);
    m_radius = in.Double(4, drw::kRadius);
    ReadTail(in, file, drw::kCultureOfCircle);
}
