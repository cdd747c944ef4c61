#include <array>
#include <memory>

#include "items/ZvDispSymbols.h"
#include "platform/zvcom/ZvUtilGeo.h"

/// Labels of seismic lines: an end symbol, a double rule where asked for, and a second end symbol.

namespace {

constexpr double kInchesInMeter = 3.28083333 * 12.0;

struct Ends {
    int first, second;
    bool rule;
};

/// By kind, from 1.
constexpr std::array<Ends, 8> kEnds = {{{201, 200, true},
                                        {201, 200, false},
                                        {205, 204, true},
                                        {205, 204, false},
                                        {203, 202, true},
                                        {203, 202, false},
                                        {207, 206, true},
                                        {207, 206, false}}};

CZvDispSymbols* EndSymbol(const CZvDispPoint& center, int number, double degrees, double scale) {
    auto* symbol = new CZvDispSymbols(center, number);
    symbol->SetDegree(degrees);
    symbol->SetScale(scale);
    return symbol;
}

CZvDispPolyLine* Rule(CZvDispPoint from, CZvDispPoint to, const CZvDispPoint& about,
                      double degrees) {
    CZvUtilGeo::RotatePoint(from, about, degrees);
    CZvUtilGeo::RotatePoint(to, about, degrees);
    return new CZvDispPolyLine(std::vector{from, to});
}

} // namespace

double CZvDispSymbols::S_GetRotationAngle(double angle, int side) {
    switch (side) {
    case 1: return angle + 180.0;
    case 2: return angle + 270.0;
    case 3: return angle + 90.0;
    default: return angle;
    }
}

double CZvDispSymbols::S_ConvertToXY(int scale, int unit, double size) {
    if (unit == 0) return scale * size;
    if (unit == 1) return size / kInchesInMeter * scale;
    return size;
}

void CZvDispSymbols::S_BuildMidLine(double size, double charSize, int count, double angle,
                                    CZvDispPoint& point, std::list<CZvDisplayItem*>* list,
                                    bool add) {
    const double length = (size * 0.4 + count) * charSize;
    const double half = (charSize * 0.4 + charSize) * 0.5;
    const double x1 = point.GetX() - half, x2 = x1 - length;
    CZvDispPoint center((x1 + x2) * 0.5, point.GetY());
    CZvUtilGeo::RotatePoint(center, point, angle);
    if (add)
        for (const double y : {point.GetY() + half, point.GetY() - half})
            list->push_back(Rule({x1, y}, {x2, y}, point, angle));
    point = center;
}

void CZvDispSymbols::S_BuildSymbol(int first, int second, bool rule, double scale, double size,
                                   double charSize, int count, double angle, CZvDispPoint start,
                                   const CZvDispPoint& position, std::list<CZvDisplayItem*>* list) {
    const double length = (count + size * 0.4) * charSize;
    CZvDispPoint end(start.GetX() - (charSize * 0.4 + charSize) - length, start.GetY());
    CZvUtilGeo::RotatePoint(start, position, angle);
    CZvUtilGeo::RotatePoint(end, position, angle);
    list->push_back(EndSymbol(start, first, angle, scale));
    S_BuildMidLine(size, charSize, count, angle, start, list, rule);
    list->push_back(EndSymbol(end, second, angle, scale));
}

std::list<CZvDisplayItem*>* CZvDispSymbols::S_BuildLineNumberSymbol(int kind, int a, int b,
                                                                    double size, double charSize,
                                                                    int count, double angle,
                                                                    CZvDispPoint& position,
                                                                    int side, int c) {
    if (kind < 1 || kind > static_cast<int>(kEnds.size())) return nullptr;
    const Ends& ends = kEnds[static_cast<std::size_t>(kind - 1)];
    CZvDispPoint start = position;
    start.SetX(position.GetX() - ((size * 0.4 + charSize) * 0.5 + charSize));
    auto list = std::make_unique<std::list<CZvDisplayItem*>>();
    S_BuildSymbol(ends.first, ends.second, ends.rule, S_ConvertToXY(a, c, size * 1.4) / b, size,
                  charSize, count, S_GetRotationAngle(angle, side), start, position, list.get());
    return list.release();
}
