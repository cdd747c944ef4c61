#include <optional>
#include <vector>

#include "context/ZvDisplayContext.h"
#include "items/SymbolTable.h"
#include "platform/wgl/MatrixScope.h"

/// Groups and symbols: items that draw through their members.

void CZvDisplayContext::DrawMember(CZvDispGroup& group, CZvDisplayItem& member) {
    if (!member.GetVisibility()) return;
    if (!group.UseGroupColor()) {
        DrawDispItem(&member);
        return;
    }
    const ZVColor own = member.GetColor();
    member.SetColor(group.GetColor(), 0);
    DrawDispItem(&member);
    member.SetColor(own, 0);
}

void CZvDisplayContext::DrawGroup(CZvDispGroup& group) {
    if (!group.GetVisibility()) return;
    if (dispInfo && dispInfo->memberNumber > 0) {
        if (CZvDisplayItem* member = group.GetGroupItem(dispInfo->memberNumber))
            DrawMember(group, *member);
        return;
    }
    for (CZvDisplayItem* member : *group.GetGroupList())
        if (member) DrawMember(group, *member);
}

bool CZvDisplayContext::CTXDrawGroup(CZvDispGroup& group) {
    DrawGroup(group);
    return true;
}

namespace {

/// Gives the members of a symbol's definition the look of one instance, and takes it back at its
/// end. The line type stays: every instance sets its own before it draws.
class InstanceLook {
  public:
    InstanceLook(CZvDispSymbols& symbol, std::list<CZvDisplayItem*>& members)
        : m_symbol(symbol), m_members(members) {
        m_colors.reserve(members.size());
        for (CZvDisplayItem* member : members)
            Apply(*member);
    }

    ~InstanceLook() {
        std::size_t i = 0;
        for (CZvDisplayItem* member : m_members) {
            if (!m_symbol.GetUseOrigColor()) member->SetColor(m_colors[i++], 0);
            if (!IsText(*member)) AddWidth(*member, -m_symbol.GetLineWidth());
        }
    }
    InstanceLook(const InstanceLook&) = delete;
    InstanceLook& operator=(const InstanceLook&) = delete;

  private:
    static bool IsText(CZvDisplayItem& item) { return item.GetDispType() == ZV_DISP_TEXT; }

    static void AddWidth(CZvDisplayItem& item, int more) {
        item.SetLineWidth(static_cast<unsigned char>(item.GetLineWidth() + more), 0);
    }

    ZVColor ColorFor(CZvDisplayItem& member) const {
        const ZVColor special = IsText(member)     ? m_symbol.GetTextColor()
                                : member.GetFill() ? m_symbol.GetFillColor()
                                                   : ZV_COLOR_NONE;
        return special == ZV_COLOR_NONE ? m_symbol.GetColor() : special;
    }

    void Apply(CZvDisplayItem& member) {
        if (!m_symbol.GetUseOrigColor()) {
            m_colors.push_back(member.GetColor());
            member.SetColor(ColorFor(member), 0);
        }
        if (IsText(member)) return;
        AddWidth(member, m_symbol.GetLineWidth());
        member.SetLineType(m_symbol.GetLineType(), 0);
    }

    CZvDispSymbols& m_symbol;
    std::list<CZvDisplayItem*>& m_members;
    std::vector<ZVColor> m_colors;
};

} // namespace

bool CZvDisplayContext::CTXDrawSymbol(CZvDispSymbols& symbol) {
    std::list<CZvDisplayItem*>* members = CZvDispSymbols::S_GetItemList(symbol.GetSymbolNum());
    if (!members) {
        zv::LogSymbolNotFound(symbol.GetSymbolNum());
        return false;
    }
    InstanceLook look(symbol, *members);
    DrawSymbol(symbol);
    return true;
}

void CZvDisplayContext::DrawSymbolMember(CZvDispSymbols& symbol, CZvDisplayItem& member) {
    placeX = symbol.GetCenter().GetX();
    placeY = symbol.GetCenter().GetY();
    placeScale = symbol.GetScale();
    placeRotate = symbol.GetDegree();
    {
        std::optional<zv::MatrixScope> matrix;
        if (openGL) matrix.emplace(placeX, placeY, placeScale);
        member.SetInActive(symbol.GetInActive());
        const double degree = member.GetDegree();
        if (member.GetDispType() == ZV_DISP_TEXT) member.SetDegree(degree + placeRotate);
        DrawDispItem(&member);
        member.SetDegree(degree);
    }
    placeX = placeY = placeRotate = 0.0;
    placeScale = 1.0;
}

void CZvDisplayContext::DrawSymbol(CZvDispSymbols& symbol) {
    itemKind = ZV_CODE_SYMBOL;
    if (!ClipSymbol(symbol)) return;
    std::list<CZvDisplayItem*>* members = CZvDispSymbols::S_GetItemList(symbol.GetSymbolNum());
    if (!members) return;
    inSymbol = true;
    for (CZvDisplayItem* member : *members)
        if (member->GetVisibility()) DrawSymbolMember(symbol, *member);
    inSymbol = false;
}
