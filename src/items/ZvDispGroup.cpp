#include "items/ZvDispGroup.h"

#include "clip/ZvDispMapClipper.h"
#include "context/ZvDispGL.h"
#include "items/ItemUpdate.h"
#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispPolygon.h"
#include "items/ZvDispSymbols.h"
#include "items/ZvDispText.h"

CZvDispGroup::CZvDispGroup() : m_list(new std::list<CZvDisplayItem*>) {
    StoreColor(ZV_COLOR_GROUP);
}

CZvDispGroup::CZvDispGroup(const CZvDispGroup& other)
    : CZvDisplayItem(other), m_useGroupColor(other.m_useGroupColor), m_origin(other.m_origin),
      m_map(other.m_map), m_list(other.m_list), m_deleteList(other.m_deleteList) {}

CZvDispGroup& CZvDispGroup::operator=(const CZvDispGroup& other) {
    if (this == &other) return *this;
    CZvDisplayItem::operator=(other);
    if (m_list != other.m_list) FreeList();
    m_useGroupColor = other.m_useGroupColor;
    m_origin = other.m_origin;
    m_map = other.m_map;
    m_list = other.m_list;
    m_deleteList = other.m_deleteList;
    return *this;
}

CZvDispGroup::~CZvDispGroup() {
    FreeList();
    m_map.clear();
}

void CZvDispGroup::FreeList() {
    if (!m_deleteList || !m_list) return;
    for (CZvDisplayItem* item : *m_list)
        delete item;
    delete m_list;
    m_list = nullptr;
}

ZVDispType CZvDispGroup::GetDispType() {
    return ZV_DISP_GROUP;
}

void CZvDispGroup::AddPrimitive(int key, CZvDisplayItem* item) {
    m_map.emplace(key, item);
    m_list->push_back(item);
    if (item) item->SetCustomCode('g');
}

CZvDisplayItem* CZvDispGroup::GetGroupItem(int key) const {
    const auto found = m_map.lower_bound(key);
    return found != m_map.end() && found->first == key ? found->second : nullptr;
}

void CZvDispGroup::Draw(CZvDisplayContext* const context) {
    context->DrawGroup(*this);
}

bool CZvDispGroup::Clip(CZvDispMapClipper* const clipper) {
    bool left = false;
    for (const auto& [key, item] : m_map) {
        if (!item) continue;
        switch (item->GetDispType()) {
        case ZV_DISP_TEXT: left |= clipper->ClipText(static_cast<CZvDispText*>(item)); break;
        case ZV_DISP_POLYLINE:
            left |= clipper->ClipPolyline(static_cast<CZvDispPolyLine*>(item));
            break;
        case ZV_DISP_POLYGON:
            left |= clipper->ClipPolygon(static_cast<CZvDispPolygon*>(item));
            break;
        case ZV_DISP_SYMBOL: left |= clipper->ClipSymbol(static_cast<CZvDispSymbols*>(item)); break;
        case ZV_DISP_CIRCLE: left |= clipper->ClipCircle(static_cast<CZvDispCircle*>(item)); break;
        case ZV_DISP_ARC: left |= clipper->ClipArc(static_cast<CZvDispArc*>(item)); break;
        default: return false;
        }
    }
    return left;
}

template<class Act>
void CZvDispGroup::ForKey(int key, Act&& act) {
    for (const auto& [own, item] : m_map)
        if (item && (own == key || own == 0)) act(*item);
}

void CZvDispGroup::SetColor(ZVColor color, int key) {
    ForKey(key, [&](CZvDisplayItem& item) { item.SetColor(color, 0); });
    if (key == 0) StoreColor(color);
}

void CZvDispGroup::SetLineWidth(unsigned char width, int key) {
    ForKey(key, [&](CZvDisplayItem& item) { item.SetLineWidth(width, 0); });
}

void CZvDispGroup::SetLineType(int type, int key) {
    ForKey(key, [&](CZvDisplayItem& item) { item.SetLineType(type, 0); });
}

void CZvDispGroup::V_Rotate(const CZvDispPoint& origin, double degrees) {
    if (degrees == 0.0 || !m_list) return;
    for (CZvDisplayItem* item : *m_list)
        if (item) item->V_Rotate(origin, degrees);
}

void CZvDispGroup::V_Update(const void* record) {
    const T_ZV_STRUC_UPDATE& update = zv::AsUpdate(record);
    SetCustomCode(update.code);
    for (const auto& [key, item] : m_map)
        if (item) item->SetCustomCode(update.code);
    switch (update.code) {
    case 'd': Erase(update.context); break;
    case 'f':
    case 'r': break;
    case 'm':
        zv::MoveBy(m_origin, update);
        m_useGroupColor = true;
        break;
    case 'v': m_useGroupColor = true; break;
    default: return;
    }
    for (const auto& [key, item] : m_map)
        if (item) item->V_Update(record);
    CZvDisplayItem::V_Update(record);
    if (update.code == 'm' || update.code == 'v') m_useGroupColor = false;
}
