#include <cmath>
#include <vector>

#include "context/StrokeFont.h"
#include "context/ZvDisplayContext.h"
#include "platform/zvcom/ZvUtilGeo.h"

/// Text in the stroke font, for targets without fonts.

namespace {

constexpr double kDegreesInRadian = 57.29578;
constexpr double kCell = 6.0;

/// Start of a text in cells, from its justification.
double CellX(char justify, double characters) {
    switch (justify) {
    case 'c': return (2.0 - kCell * characters) / 2.0;
    case 'r': return 2.0 - kCell * characters;
    default: return 0.0;
    }
}

double CellY(char justify) {
    switch (justify) {
    case 'a': return -2.0;
    case 'b': return -8.0;
    case 'o': return -5.0;
    default: return 0.0;
    }
}

} // namespace

CZvDispPoint CZvDisplayContext::GetTextPostion(CZvDispText& text) {
    const double h = text.GetVertHeight(), w = strokeFont ? h : 0.75 * h;
    const auto characters = static_cast<double>(text.Label().size());
    CZvDispPoint start(CellX(text.GetHorzJustify(), characters) * w / kCell,
                       CellY(text.GetVertJustify()) * h / kCell);
    if (openGL) return start;
    if (text.GetDegree() != 0.0) CZvUtilGeo::RotatePoint(start, {}, text.GetDegree());
    const CZvDispPoint anchor = text.GetPoint();
    return {start.GetX() + anchor.GetX(), start.GetY() + anchor.GetY()};
}

void CZvDisplayContext::DrawStrokeFontLetter(char c, double angle, ZVColor color, bool inactive,
                                             unsigned char width, double sizeX, double sizeY,
                                             double& x, double& y) {
    std::vector<CZvDispPoint> stroke;
    bool drawing = false;
    for (const zv::StrokeStep& step : zv::StrokeGlyph(static_cast<unsigned char>(c))) {
        if (step.op == zv::kStrokeDraw) {
            if (!drawing) stroke.clear();
            drawing = true;
            stroke.emplace_back(x, y);
        } else if (drawing) {
            stroke.emplace_back(x, y);
            CZvDispPolyLine line(stroke);
            line.SetColor(color, 0);
            line.SetLineWidth(width, 0);
            line.SetInActive(inactive);
            DrawDispItem(&line);
            stroke.clear();
            drawing = false;
        }
        const double dx = step.dx * sizeX / kCell * charScaleX;
        const double dy = step.dy * sizeY / kCell * charScaleY;
        const double turn = openGL ? 0.0 : angle;
        x += dx * std::cos(turn) - dy * std::sin(turn);
        y += dx * std::sin(turn) + dy * std::cos(turn);
    }
}

void CZvDisplayContext::DrawStrokeFontText(CZvDispText& text) {
    const double size = text.GetVertHeight() + 1.0;
    const double angle = text.GetDegree() / kDegreesInRadian;
    const CZvDispPoint start = GetTextPostion(text);
    double x = start.GetX(), y = start.GetY();
    for (const char c : text.Label())
        if (!zv::StrokeGlyph(static_cast<unsigned char>(c)).empty())
            DrawStrokeFontLetter(c, angle, text.GetColor(), text.GetInActive(), text.GetLineWidth(),
                                 size, size, x, y);
}

void CZvDisplayContext::DrawText(CZvDispText& text) {
    charScaleX = charScaleY = (text.GetVertHeight() + 1.0) / kCell;
    charScaleZ = 1.0;
    DrawStrokeFontText(text);
}

bool CZvDisplayContext::CopyTextItem(const CZvDispText* source, CZvDispText* destination) {
    *destination = *source;
    if (inSymbol) {
        const CZvDispPoint from = source->GetPoint();
        double x = 0.0, y = 0.0;
        GetXYPos(destination->GetPoint().GetX(), destination->GetPoint().GetY(), &x, &y, true);
        destination->SetPoint({x, y, from.GetZ(), from.GetDown()});
    }
    return ClipText(*destination);
}
