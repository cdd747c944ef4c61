#include "items/ZvDispText.h"
#include "persist/DrawingFormat.h"
#include "persist/DrawingReader.h"
#include "persist/DrawingTail.h"
#include "persist/DrawingWriter.h"
#include "persist/ZvDispFileParam.h"
#include "platform/Numbers.h"

/// Texts in drawing records. Line width and line type of a text are not kept.

namespace {

using namespace zv;

void WriteText(CZvDispText& text, CZvDispFileParam& file, std::string_view tag, int code) {
    DrawingWriter out(file);
    const CZvDispPoint point = text.GetPoint();
    const std::string label = FitCharacters(text.Label(), "Label");
    out.Head(tag, code).Blanks(drw::kTextHeadBlanks).Int("COL:", text.GetColor(), drw::kSmall);
    out.Fixed("ANG:", text.GetDegree(), 4, drw::kAngle);
    out.Fixed("HT:", text.GetVertHeight(), 5, drw::kHeight);
    out.Char("HJ:", text.GetHorzJustify())
        .Char("VJ:", text.GetVertJustify())
        .Blanks(drw::kTextStyleBlanks)
        .EndLine();
    out.Coordinate("X:", point.GetX())
        .Coordinate("Y:", point.GetY())
        .Tail(drw::kTextBlanks, drw::kTextBlanksInSymbol)
        .EndLine();
    out.ShortHead("TXT:", drw::kCharacters).CountedLine(label);
}

} // namespace

void CZvDispText::V_WriteToFile(CZvDispFileParam& file) {
    WriteText(*this, file, "TXP:", drw::kText);
}

void CZvDispText::WriteVarTextToFile(CZvDispFileParam& file) {
    WriteText(*this, file, "VTX:", drw::kVariableText);
}

void CZvDispText::V_ReadFromFile(CZvDispFileParam& file) {
    DrawingReader in(*file.GetInFile());
    SetColor(static_cast<ZVColor>(in.Int(4, drw::kSmall)), 0);
    SetLineWidth(1, 0);
    SetLineType(1, 0);
    SetDegree(in.Double(4, drw::kAngle));
    m_height = ToFloat(in.Double(3, drw::kHeight));
    m_horizontal = in.Char(3);
    m_vertical = in.Char(3);
    in.Skip(drw::kTextStyleBlanks + drw::kNewline);
    m_point.SetX(in.Double(2, drw::kCoordinate));
    m_point.SetY(in.Double(2, drw::kCoordinate));
    ReadTail(in, file, drw::kCultureOfText);
    in.Skip(4 + drw::kSymbolField + drw::kCodeField + 4);
    m_label = in.CountedLine();
}
