#include <GL/gl.h>

#include "context/DrawSink.h"
#include "context/GlListScope.h"
#include "context/GlScene.h"
#include "context/ListNames.h"
#include "context/RaisedFlag.h"
#include "platform/Numbers.h"
#include "platform/zvlogs/ZvLog.h"

/// Symbols, from the lists of their shapes or member by member.

namespace {

/// Symbols whose members keep colours and widths of their own, and those that have no list.
bool IsDrawnByMembers(int number) {
    return (number >= 600 && number <= 799) || (number >= 23 && number <= 26) || number == 500 ||
           number == 501 || number >= 1000 || zv::CollidesWithOthers(number);
}

/// Makes an item inactive, or active, for the time of a draw: members of a symbol belong to all of
/// its instances.
class LentActivity {
  public:
    LentActivity(CZvDisplayItem& item, bool inactive) : m_item(item), m_own(item.GetInActive()) {
        m_item.SetInActive(inactive);
    }
    ~LentActivity() { m_item.SetInActive(m_own); }
    LentActivity(const LentActivity&) = delete;
    LentActivity& operator=(const LentActivity&) = delete;

  private:
    CZvDisplayItem& m_item;
    bool m_own;
};

zv::Affine PlaceOf(CZvDispSymbols& symbol) {
    const CZvDispPoint& center = symbol.GetCenter();
    return zv::Affine::Shift(center.GetX(), center.GetY()) *
           zv::Affine::Stretch(symbol.GetScale(), symbol.GetScale()) *
           zv::Affine::Turn(symbol.GetDegree());
}

} // namespace

void CZvDispGL::DrawSymbol(CZvDispSymbols& symbol) {
    const ListScope list(*this, symbol);
    V_GLSymbol(symbol);
}

void CZvDispGL::V_GLSymbol(CZvDispSymbols& symbol) {
    if (!m_symbolsBuilt && !m_buildingSymbols) CreateSymbolDisplayList();
    if (IsDrawnByMembers(symbol.GetSymbolNum()))
        DrawSymbolByMembers(symbol);
    else
        DrawSymbolFromList(symbol);
}

void CZvDispGL::DrawSymbolFromList(CZvDispSymbols& symbol) {
    const zv::PlaceScope place(Sink(), PlaceOf(symbol));
    GLSetColor(symbol);
    GLSetLineWidth(symbol);
    GLSetLineType(symbol);
    Sink().SymbolShape(symbol.GetSymbolNum());
    Sink().StippleOff();
}

void CZvDispGL::PlaceMembers(CZvDispSymbols& symbol, void (CZvDispGL::*draw)(CZvDisplayItem&)) {
    const auto* members = CZvDispSymbols::S_GetItemList(symbol.GetSymbolNum());
    if (!members) return;
    for (CZvDisplayItem* member : *members) {
        if (!member->GetVisibility()) continue;
        const zv::PlaceScope place(Sink(), PlaceOf(symbol));
        const LentActivity activity(*member, symbol.GetInActive());
        (this->*draw)(*member);
    }
}

void CZvDispGL::DrawMember(CZvDisplayItem& member) {
    DrawDispItem(&member);
}

void CZvDispGL::DrawTempMember(CZvDisplayItem& member) {
    if (member.GetDispType() == ZV_DISP_POLYGON)
        V_OnTempPolygon(static_cast<CZvDispPolygon&>(member));
    else
        DrawDispItem(&member);
}

void CZvDispGL::DrawSymbolByMembers(CZvDispSymbols& symbol) {
    PlaceMembers(symbol, &CZvDispGL::DrawMember);
}

void CZvDispGL::V_OnTempSymbols(CZvDispSymbols& symbol) {
    const zv::TemporaryScope temporary(KeepItemsBy());
    PlaceMembers(symbol, &CZvDispGL::DrawTempMember);
}

void CZvDispGL::CreateSymbolDisplayList() {
    auto* scene = zv::GlScene::Current();
    if (!scene || scene->Lists().IsOpen()) return;
    BuildSymbolLists();
    m_symbolsBuilt = true;
    scene->Lists().ShapesChanged();
}

void CZvDispGL::BuildSymbolLists() {
    const zv::RaisedFlag building(m_buildingSymbols);
    for (const int number : *CZvDispSymbols::S_GetSymbolNumList()) {
        if (zv::CollidesWithOthers(number))
            CZvLog::Output("Symbol " + zv::FormatInt(number) +
                               " has no display list: its name belongs to others.",
                           103, false);
        else
            BuildSymbolList(number);
    }
}

void CZvDispGL::BuildSymbolList(int number) {
    const auto* members = CZvDispSymbols::S_GetItemList(number);
    if (!members) return;
    auto& scene = *zv::GlScene::Current();
    scene.BeginShapeList(zv::kSymbolLists + static_cast<unsigned>(number), true);
    for (CZvDisplayItem* member : *members) {
        if (!member->GetVisibility()) continue;
        const zv::PlaceScope place(Sink(), zv::Affine{});
        DrawDispItem(member);
    }
    scene.EndShapeList();
    scene.Shapes().SetSymbol(number, scene.ShapeWords());
}
