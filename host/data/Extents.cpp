#include "data/Extents.h"

#include <algorithm>

#include "map/ZvDispMap.h"

namespace zv::host {

void Extent::Add(double x, double y) {
    x1 = empty ? x : std::min(x1, x);
    y1 = empty ? y : std::min(y1, y);
    x2 = empty ? x : std::max(x2, x);
    y2 = empty ? y : std::max(y2, y);
    empty = false;
}

void Extent::Add(const Extent& other) {
    if (other.empty) return;
    Add(other.x1, other.y1);
    Add(other.x2, other.y2);
}

void ExtentContext::Measure(CZvDispMap& map) {
    map.SetContext(this);
    for (const int one : map.GetLayerList())
        map.Draw(E_Layer(one), kAllPosts, kAllUserSets, ZV_CULTURE_ALL, false);
    map.SetContext(nullptr);
}

Extent ExtentContext::Of(int layerNumber, int postNumber, int usetNumber, int cultureNumber) const {
    const auto agrees = [](int wanted, int number) { return wanted < 0 || wanted == number; };
    Extent sum;
    for (const auto& [key, extent] : m_lists) {
        const auto& [l, p, u, c] = key;
        if (agrees(layerNumber, l) && agrees(postNumber, p) && agrees(usetNumber, u) &&
            agrees(cultureNumber, c))
            sum.Add(extent);
    }
    return sum;
}

Extent& ExtentContext::Here() {
    return m_lists[{layer, post, uset, culture}];
}

void ExtentContext::AddRound(const CZvDispPoint& center, double radius) {
    Here().Add(center.GetX() - radius, center.GetY() - radius);
    Here().Add(center.GetX() + radius, center.GetY() + radius);
}

void ExtentContext::DrawGroup(CZvDispGroup& group) {
    for (CZvDisplayItem* member : *group.GetGroupList())
        DrawDispItem(member);
}

void ExtentContext::DrawCircle(CZvDispCircle& circle) {
    AddRound(circle.GetCenter(), circle.GetRadius());
}

void ExtentContext::DrawPolyLine(CZvDispPolyLine& line) {
    Extent& here = Here();
    for (const CZvDispPoint& point : line.GetVertices())
        here.Add(point.GetX(), point.GetY());
}

void ExtentContext::DrawPolygon(CZvDispPolygon& polygon) {
    DrawPolyLine(polygon);
}

void ExtentContext::DrawText(CZvDispText& text) {
    Here().Add(text.GetPoint().GetX(), text.GetPoint().GetY());
}

void ExtentContext::DrawArc(CZvDispArc& item) {
    AddRound(item.GetCenter(), item.GetRadius());
}

void ExtentContext::DrawSymbol(CZvDispSymbols& symbol) {
    AddRound(symbol.GetCenter(), symbol.GetScale() / 2.0);
}

} // namespace zv::host
