#include <algorithm>

#include "items/ZvDispText.h"
#include "persist/DrawingFormat.h"
#include "persist/DrawingReader.h"
#include "persist/DrawingTail.h"
#include "persist/DrawingWriter.h"
#include "persist/ZvDispFileParam.h"

/// Texts in drawing records. Line width and line type of a text are not kept.

namespace {

using namespace zv;

void WriteText(CZvDispText& text, CZvDispFileParam& file, std::string_view tag, int code) {
    DrawingWriter out(file);
    const CZvDispPoint point = text.GetPoint();
    const std::string label = FitCharacters(text.Label(), "Label");
    out.Head(tag, code).Blanks(12).Int("COL:", text.GetColor(), drw::kSmall);
    out.Fixed("ANG:", text.GetDegree(), 4, drw::kAngle);
    out.Fixed("HT:", text.GetVertHeight(), 5, drw::kHeight);
    out.Char("HJ:", text.GetHorzJustify()).Char("VJ:", text.GetVertJustify()).Blanks(9).EndLine();
    out.Coordinate("X:", point.GetX()).Coordinate("Y:", point.GetY()).Tail(10, 34).EndLine();
    out.Text("TXT:");
    if (out.IsSymbol())
        out.Int("", file.GetSymbolNum(), drw::kSymbolField);
    else
        out.Blanks(drw::kSymbolField);
    out.Int("", drw::kCharacters, drw::kCodeField);
    out.Int("NUM:", static_cast<int>(label.size()), drw::kCount).Blanks(65).EndLine();
    out.Characters(label);
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
    m_height = static_cast<float>(in.Double(3, drw::kHeight));
    m_horizontal = in.Char(3);
    m_vertical = in.Char(3);
    in.Skip(9 + drw::kNewline);
    m_point.SetX(in.Double(2, drw::kCoordinate));
    m_point.SetY(in.Double(2, drw::kCoordinate));
    ReadTail(in, file, drw::kCultureOfText);
    in.Skip(4 + drw::kSymbolField + drw::kCodeField + 4);
    const int length = in.Int(0, drw::kCountLine);
    m_label =
        in.Chars(drw::kCharacterLine).substr(0, static_cast<std::size_t>(std::max(length, 0)));
}
