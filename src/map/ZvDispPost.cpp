#include "map/ZvDispPost.h"

#include "context/ZvDisplayContext.h"
#include "map/Children.h"
#include "map/ZvDispUSet.h"
#include "persist/ZvDispFileParam.h"

CZvDispPost::CZvDispPost(E_Layer layer, int post)
    : m_post(post), m_layer(layer), m_cursor(m_usets.end()) {}

CZvDispPost::~CZvDispPost() = default;

bool CZvDispPost::AddItem(int uset, ZVCulture culture, CZvDisplayItem* item,
                          CZvDispMapClipper* clipper, bool clip) {
    auto& child = m_usets[uset];
    if (!child) {
        child = std::make_unique<CZvDispUSet>(m_layer, m_post, uset);
        CZvDispFileParam none;
        child->SetPara(none, m_context);
    }
    child->SetMapPtr(m_map);
    return child->AddItem(culture, item, clipper, clip);
}

void CZvDispPost::DrawUSet(CZvDisplayContext& context, int uset, ZVCulture culture, bool redraw) {
    CZvDispUSet* child = GetUSet(uset);
    if (!child) return;
    const int count = static_cast<int>(m_usets.size());
    context.WriteTagInfo(ZV_TAG_USET_COUNT, &count);
    context.WriteTagInfo(ZV_TAG_USET, &uset);
    child->Draw(&context, culture, redraw);
}

void CZvDispPost::Draw(CZvDisplayContext* context, int uset, ZVCulture culture, bool redraw) {
    if (!context) return;
    if (uset != kAllUserSets) return DrawUSet(*context, uset, culture, redraw);
    for (const auto& [number, child] : m_usets)
        DrawUSet(*context, number, culture, redraw);
}

void CZvDispPost::Delete(int uset) {
    if (uset == kAllUserSets) {
        for (const auto& [number, child] : m_usets)
            child->Delete(ZV_CULTURE_ALL);
        m_usets.clear();
    } else if (CZvDispUSet* child = GetUSet(uset)) {
        child->Delete(ZV_CULTURE_ALL);
        m_usets.erase(uset);
    }
    m_cursor = m_usets.end();
}

std::vector<int> CZvDispPost::GetUSetList() const {
    std::vector<int> numbers;
    for (const auto& [number, child] : m_usets)
        numbers.push_back(number);
    return numbers;
}

void CZvDispPost::SetPara(CZvDispFileParam& file, void* context) {
    m_context = context;
    for (const auto& [number, child] : m_usets)
        child->SetPara(file, context);
}

void CZvDispPost::SetMapPtr(CZvDispMap* map) {
    if (m_map == map) return;
    m_map = map;
    for (const auto& [number, child] : m_usets)
        child->SetMapPtr(map);
}

CZvDispUSet* CZvDispPost::GetFirstUSet() {
    m_cursor = m_usets.begin();
    return zv::ChildAt(m_usets, m_cursor);
}

CZvDispUSet* CZvDispPost::GetNextUSet() {
    return zv::NextChild(m_usets, m_cursor);
}

bool CZvDispPost::IsLastUSet() const {
    return m_cursor == m_usets.end();
}

CZvDispUSet* CZvDispPost::GetUSet(int uset) const {
    return zv::FindChild(m_usets, uset);
}
