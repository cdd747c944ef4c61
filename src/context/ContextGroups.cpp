#include <optional>
#include <vector>

#include "context/ZvDisplayContext.h"
#include "items/SymbolTable.h"
#include "platform/wgl/MatrixScope.h"

/// Groups and symbols: items that draw through their members.

namespace {

/// Lends a colour to an item, and to all that it is made of when it is a group; every one has its
/// own again at the end.
class LentColor {
  public:
    LentColor(CZvDisplayItem& item, ZVColor color) {
        Remember(item);
        item.SetColor(color, 0);
    }
    ~LentColor() {
        for (const auto& [item, color] : m_own)
            item->SetColor(color, 0);
    }
    LentColor(const LentColor&) = delete;
    LentColor& operator=(const LentColor&) = delete;

  private:
    /// A group before its members: its setter reaches some of them.
    void Remember(CZvDisplayItem& item) {
        m_own.emplace_back(&item, item.GetColor());
        if (item.GetDispType() != ZV_DISP_GROUP) return;
        const auto* members = static_cast<CZvDispGroup&>(item).GetGroupList();
        if (!members) return;
        for (CZvDisplayItem* member : *members)
            if (member) Remember(*member);
    }

    std::vector<std::pair<CZvDisplayItem*, ZVColor>> m_own;
};

/// Turns an item by more degrees for the time of a draw.
class TurnedBy {
  public:
    TurnedBy(CZvDisplayItem& item, double degrees) : m_item(item), m_own(item.GetDegree()) {
        m_item.SetDegree(m_own + degrees);
    }
    ~TurnedBy() { m_item.SetDegree(m_own); }
    TurnedBy(const TurnedBy&) = delete;
    TurnedBy& operator=(const TurnedBy&) = delete;

  private:
    CZvDisplayItem& m_item;
    double m_own;
};

} // namespace

void CZvDisplayContext::DrawMember(CZvDispGroup& group, CZvDisplayItem& member) {
    if (!member.GetVisibility()) return;
    std::optional<LentColor> lent;
    if (group.UseGroupColor()) lent.emplace(member, group.GetColor());
    DrawDispItem(&member);
}

void CZvDisplayContext::DrawGroup(CZvDispGroup& group) {
    if (!group.GetVisibility() || !group.GetGroupList()) return;
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

/// Places the members of a symbol at one instance until its end.
class CZvDisplayContext::Placement {
  public:
    Placement(CZvDisplayContext& context, CZvDispSymbols& symbol) : m_context(context) {
        const CZvDispPoint& center = symbol.GetCenter();
        m_context.placeX = center.GetX();
        m_context.placeY = center.GetY();
        m_context.placeScale = symbol.GetScale();
        m_context.placeRotate = symbol.GetDegree();
        if (context.openGL)
            m_matrix.emplace(center.GetX(), center.GetY(), center.GetZ(), symbol.GetScale());
    }
    ~Placement() {
        m_context.placeX = m_context.placeY = m_context.placeRotate = 0.0;
        m_context.placeScale = 1.0;
    }
    Placement(const Placement&) = delete;
    Placement& operator=(const Placement&) = delete;

  private:
    CZvDisplayContext& m_context;
    std::optional<zv::MatrixScope> m_matrix;
};

void CZvDisplayContext::DrawSymbolMember(CZvDispSymbols& symbol, CZvDisplayItem& member) {
    Placement placement(*this, symbol);
    member.SetInActive(symbol.GetInActive());
    const bool isText = member.GetDispType() == ZV_DISP_TEXT;
    TurnedBy turned(member, isText ? placeRotate : 0.0);
    DrawDispItem(&member);
}

namespace {

/// Raises a flag until its end.
class FlagScope {
  public:
    explicit FlagScope(bool& flag) : m_flag(flag) { m_flag = true; }
    ~FlagScope() { m_flag = false; }
    FlagScope(const FlagScope&) = delete;
    FlagScope& operator=(const FlagScope&) = delete;

  private:
    bool& m_flag;
};

} // namespace

void CZvDisplayContext::DrawSymbol(CZvDispSymbols& symbol) {
    itemKind = ZV_CODE_SYMBOL;
    if (!ClipSymbol(symbol)) return;
    std::list<CZvDisplayItem*>* members = CZvDispSymbols::S_GetItemList(symbol.GetSymbolNum());
    if (!members) return;
    FlagScope walking(inSymbol);
    for (CZvDisplayItem* member : *members)
        if (member->GetVisibility()) DrawSymbolMember(symbol, *member);
}
