#include "data/build/ItemMaker.h"

#include <cmath>

#include "data/build/SymbolCheck.h"
#include "data/project/Words.h"
#include "data/read/FeatureReader.h"
#include "data/read/Keyhole.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "platform/zvcom/ZvUtilGeo.h"

namespace zv::host {
namespace {

/// Why a row gives no item.
struct NoItem {
    std::string reason;
};

constexpr std::string_view kDegreeUtf8 = "\xC2\xB0";

template<class T>
const T& Choose(const Choice<T>& choice, const Row& row) {
    if (!choice.by) return choice.fallback;
    const auto found = choice.table.find(choice.by->Expand(row));
    return found == choice.table.end() ? choice.fallback : found->second;
}

ZVColor Colour(const ColourChoice& choice, const Row& row) {
    return ZVColor(Choose(choice, row));
}

SymbolRef SymbolOf(const SymbolChoice& choice, const Row& row) {
    if (choice.byName && choice.by) return {0, choice.by->Expand(row)};
    return Choose<SymbolRef>(choice, row);
}

void SetSymbol(CZvDispSymbols& item, const SymbolRef& symbol) {
    if (!SymbolIsThere(symbol)) throw NoItem{"no symbol " + SymbolText(symbol)};
    if (symbol.name.empty())
        item.SetSymbolNum(symbol.number);
    else
        item.SetSymbolNum(symbol.name);
}

} // namespace

std::string LabelText(const std::string& utf8, int& lost) {
    std::string text;
    for (std::size_t at = 0; at < utf8.size(); ++at) {
        const bool degree = utf8.compare(at, kDegreeUtf8.size(), kDegreeUtf8) == 0;
        text += degree ? '\t' : utf8[at];
        if (degree) at += kDegreeUtf8.size() - 1;
    }
    return ToLabel(text, lost);
}

void PutText(CZvDispText& text, const CZvDispPoint& point, char horizontal, double degrees) {
    const double height = text.GetVertHeight();
    const double width = text.GetTextLength(0) - height / 3.0;
    const bool turned = degrees != 0.0;
    CZvDispPoint start(turned && horizontal != 'l' ? -width / (horizontal == 'c' ? 2.0 : 1.0) : 0.0,
                       0.0);
    CZvUtilGeo::RotatePoint(start, CZvDispPoint(), degrees);
    text.SetPoint(point + start);
    text.SetDegree(degrees);
    text.SetHorzJustify(turned ? 'l' : horizontal);
}

std::vector<ItemPtr> ItemMaker::MakeAll(const ItemRule& rule, const Row& row,
                                        const Part& part) const {
    std::vector<ItemPtr> items;
    switch (rule.kind) {
    case ItemKind::Line: items.push_back(MakeLine(part)); break;
    case ItemKind::Polygon: items.push_back(MakePolygon(part)); break;
    case ItemKind::Symbol: items.push_back(MakeSymbol(rule, row, part)); break;
    case ItemKind::Text: items.push_back(MakeText(rule, row, part)); break;
    case ItemKind::Circle: items.push_back(MakeCircle(rule, row, part)); break;
    case ItemKind::LineNumber: items = MakeLineNumber(rule, row, part); break;
    }
    return items;
}

Made ItemMaker::Make(const ItemRule& rule, const Row& row, const Part& part) const {
    try {
        Made made{MakeAll(rule, row, part), {}};
        for (const ItemPtr& item : made.items)
            Finish(*item, rule, row);
        return made;
    } catch (const NoItem& none) {
        return {{}, none.reason};
    }
}

void ItemMaker::Finish(CZvDisplayItem& item, const ItemRule& rule, const Row& row) const {
    item.SetColor(Colour(rule.colour, row), 0);
    item.SetLineWidth(static_cast<unsigned char>(rule.width), 0);
    item.SetLineType(rule.type, 0);
    item.SetFillStyle(E_FILL_STYLE(rule.fillStyle));
    item.SetPara(m_para);
    if (!rule.id.IsEmpty()) item.SetID(ToLabel(rule.id.Expand(row), m_lost));
}

ItemPtr ItemMaker::MakeLine(const Part& part) const {
    if (part.shape == Shape::Point) throw NoItem{"a point is no line"};
    auto line = std::make_unique<CZvDispPolyLine>();
    line->GetVertices() = part.shape == Shape::Area ? Outline(part) : part.rings.front();
    return line;
}

ItemPtr ItemMaker::MakePolygon(const Part& part) const {
    if (part.shape == Shape::Point) throw NoItem{"a point is no area"};
    auto polygon = std::make_unique<CZvDispPolygon>();
    polygon->GetVertices() = Keyhole(part);
    polygon->SetFill(true);
    return polygon;
}

double ItemMaker::AngleOf(const ItemRule& rule, const Row& row, const Stand& stand) const {
    if (rule.angle.IsEmpty()) return 0.0;
    const std::string text = rule.angle.Expand(row);
    if (text == "along") return Upright(stand.direction);
    double degrees = 0.0;
    if (!ParseCoordinate(text, degrees)) throw NoItem{"angle is no number"};
    return degrees;
}

std::string ItemMaker::LabelOf(const ItemRule& rule, const Row& row) const {
    std::string label = LabelText(rule.label.Expand(row), m_lost);
    if (label.empty()) throw NoItem{"no text for a label"};
    return label;
}

CZvDispPoint ItemMaker::Shifted(const ItemRule& rule, const Stand& stand, double degrees) const {
    CZvDispPoint shift(m_frame.Inches(rule.offset[0]), m_frame.Inches(rule.offset[1]));
    CZvUtilGeo::RotatePoint(shift, CZvDispPoint(), degrees);
    return stand.point + shift;
}

ItemPtr ItemMaker::MakeSymbol(const ItemRule& rule, const Row& row, const Part& part) const {
    auto symbol = std::make_unique<CZvDispSymbols>();
    const Stand stand = StandOf(part, rule.at);
    const double degrees = AngleOf(rule, row, stand);
    SetSymbol(*symbol, SymbolOf(rule.symbol, row));
    symbol->SetCenter(Shifted(rule, stand, degrees));
    symbol->SetScale(m_frame.Inches(rule.size));
    symbol->SetDegree(degrees);
    if (rule.fill) symbol->SetFillColor(Colour(*rule.fill, row), 0);
    if (rule.textColour) symbol->SetTextColor(Colour(*rule.textColour, row), 0);
    return symbol;
}

ItemPtr ItemMaker::MakeText(const ItemRule& rule, const Row& row, const Part& part) const {
    const std::string label = LabelOf(rule, row);
    auto text = std::make_unique<CZvDispText>();
    const Stand stand = StandOf(part, rule.at);
    const double degrees = AngleOf(rule, row, stand);
    const double height = m_frame.Inches(rule.height);
    CZvDispPoint drop(0.0, rule.vertical == 'm' ? -height / 2.0 : 0.0);
    CZvUtilGeo::RotatePoint(drop, CZvDispPoint(), degrees);
    text->SetLabel(label);
    text->SetVertHeight(float(height));
    PutText(*text, Shifted(rule, stand, degrees) + drop, rule.horizontal, degrees);
    text->SetVertJustify(rule.vertical == 'b' ? 'b' : 'a');
    return text;
}

ItemPtr ItemMaker::MakeCircle(const ItemRule& rule, const Row& row, const Part& part) const {
    const Stand stand = StandOf(part, rule.at);
    auto circle = std::make_unique<CZvDispCircle>(Shifted(rule, stand, AngleOf(rule, row, stand)),
                                                  m_frame.Inches(rule.size));
    circle->SetFill(rule.fill.has_value());
    return circle;
}

std::vector<ItemPtr> ItemMaker::MakeLineNumber(const ItemRule& rule, const Row& row,
                                               const Part& part) const {
    const std::string label = LabelOf(rule, row);
    if (part.shape == Shape::Point) throw NoItem{"a point is no line"};
    const Stand stand = StandOf(part, rule.at);
    const bool atEnd = rule.at == Anchor::Last;
    CZvDispPoint position = Shifted(rule, stand, stand.direction);
    const std::unique_ptr<std::list<CZvDisplayItem*>> made(CZvDispSymbols::S_BuildLineNumberSymbol(
        rule.style, m_frame.Scale(), 1, rule.height, m_frame.Inches(rule.height), int(label.size()),
        stand.direction, position, atEnd ? 1 : 0, m_frame.IsFeet() ? 0 : 1));
    if (!made || made->empty()) throw NoItem{"no ends of a line number"};
    std::vector<ItemPtr> items;
    for (CZvDisplayItem* item : *made)
        items.emplace_back(item);
    items.push_back(NumberText(rule, label, items, Upright(stand.direction)));
    return items;
}

ItemPtr ItemMaker::NumberText(const ItemRule& rule, const std::string& label,
                              const std::vector<ItemPtr>& ends, double degrees) const {
    const auto& first = static_cast<const CZvDispSymbols&>(*ends.front()).GetCenter();
    const auto& last = static_cast<const CZvDispSymbols&>(*ends.back()).GetCenter();
    const double height = m_frame.Inches(rule.height);
    CZvDispPoint drop(0.0, -height / 2.0);
    CZvUtilGeo::RotatePoint(drop, CZvDispPoint(), degrees);
    auto text = std::make_unique<CZvDispText>();
    text->SetLabel(label);
    text->SetVertHeight(float(height));
    const CZvDispPoint middle((first.GetX() + last.GetX()) / 2.0,
                              (first.GetY() + last.GetY()) / 2.0);
    PutText(*text, middle + drop, 'c', degrees);
    return text;
}

} // namespace zv::host
