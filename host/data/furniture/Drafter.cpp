#include "data/furniture/Drafter.h"

#include "data/build/ItemMaker.h"

namespace zv::host {
namespace {

constexpr int kOpaque = 1; ///< a fill style other than the plain one draws without alpha

std::vector<std::pair<double, double>> Corners(const Area& area) {
    return {{area.x1, area.y1},
            {area.x2, area.y1},
            {area.x2, area.y2},
            {area.x1, area.y2},
            {area.x1, area.y1}};
}

} // namespace

Drafter::Drafter(const Sheet& sheet, std::pair<double, double> shift)
    : m_sheet(sheet), m_shift(shift), m_group(std::make_unique<CZvDispGroup>()) {}

CZvDispPoint Drafter::Point(double x, double y) const {
    return m_sheet.ToMap(x + m_shift.first, y + m_shift.second);
}

/// Members wake in the order of their keys, so each gets the next one.
void Drafter::Add(std::unique_ptr<CZvDisplayItem> item) {
    m_group->AddPrimitive(++m_key, item.release());
}

void Drafter::Line(const std::vector<std::pair<double, double>>& points, const Pen& pen) {
    auto line = std::make_unique<CZvDispPolyLine>();
    for (const auto& [x, y] : points)
        line->AddPoint(Point(x, y));
    line->SetColor(ZVColor(pen.colour), 0);
    line->SetLineWidth(static_cast<unsigned char>(pen.width), 0);
    line->SetLineType(pen.type, 0);
    Add(std::move(line));
}

void Drafter::Frame(const Area& area, const Pen& pen) {
    Line(Corners(area), pen);
}

void Drafter::AddFill(const std::vector<std::pair<double, double>>& points, int colour, int style) {
    auto polygon = std::make_unique<CZvDispPolygon>();
    for (const auto& [x, y] : points)
        polygon->AddPoint(Point(x, y));
    polygon->SetColor(ZVColor(colour), 0);
    polygon->SetFill(true);
    polygon->SetFillStyle(E_FILL_STYLE(style));
    Add(std::move(polygon));
}

void Drafter::Fill(const Area& area, int colour) {
    AddFill(Corners(area), colour, kOpaque);
}

void Drafter::FillShape(const std::vector<std::pair<double, double>>& points, int colour) {
    AddFill(points, colour, kOpaque);
}

void Drafter::Wash(const Area& area, int colour) {
    AddFill(Corners(area), colour, 0);
}

void Drafter::Text(double x, double y, double height, const std::string& utf8, char justify,
                   int colour, int width, double degrees) {
    int lost = 0;
    auto text = std::make_unique<CZvDispText>();
    text->SetLabel(LabelText(utf8, lost));
    text->SetVertHeight(float(m_sheet.ToMap(height)));
    PutText(*text, Point(x, y), justify, degrees);
    text->SetColor(ZVColor(colour), 0);
    text->SetLineWidth(static_cast<unsigned char>(width), 0);
    Add(std::move(text));
}

void Drafter::Symbol(double x, double y, double size, const SymbolRef& symbol, int colour,
                     std::optional<int> fill, double degrees) {
    auto item = std::make_unique<CZvDispSymbols>();
    if (symbol.name.empty())
        item->SetSymbolNum(symbol.number);
    else
        item->SetSymbolNum(symbol.name);
    item->SetCenter(Point(x, y));
    item->SetScale(m_sheet.ToMap(size));
    item->SetColor(ZVColor(colour), 0);
    item->SetDegree(degrees);
    if (fill) item->SetFillColor(ZVColor(*fill), 0);
    Add(std::move(item));
}

std::unique_ptr<CZvDispGroup> Drafter::Finish(const std::string& id, double x, double y) {
    m_group->SetID(id);
    m_group->SetOrigin(Point(x, y));
    m_key = 0;
    return std::exchange(m_group, std::make_unique<CZvDispGroup>());
}

} // namespace zv::host
