#include "map/ZvDispUSet.h"

#include "context/ZvDisplayContext.h"
#include "map/Children.h"
#include "map/Composite.h"
#include "map/ZvDispCult.h"
#include "persist/ZvDispFileParam.h"

CZvDispUSet::CZvDispUSet(E_Layer layer, int post, int uset)
    : m_uset(uset), m_post(post), m_layer(layer), m_cursor(m_cultures.end()) {}

CZvDispUSet::~CZvDispUSet() = default;

bool CZvDispUSet::AddItem(ZVCulture culture, CZvDisplayItem* item, CZvDispMapClipper* clipper,
                          bool clip) {
    auto& list = m_cultures[culture];
    if (!list) {
        list = std::make_unique<CZvDispCult>(m_layer, m_post, m_uset, culture);
        CZvDispFileParam none;
        list->SetPara(none, m_context);
    }
    list->SetMapPtr(m_map);
    return list->AddItem(item, clipper, clip);
}

namespace {

/// Tells the context, for the time of a draw, which member of the groups is meant.
class DispInfoScope {
  public:
    DispInfoScope(CZvDisplayContext& context, int member) : m_context(context) {
        m_info.memberNumber = member;
        m_context.SetDispInfo(&m_info);
    }
    ~DispInfoScope() { m_context.SetDispInfo(nullptr); }
    DispInfoScope(const DispInfoScope&) = delete;
    DispInfoScope& operator=(const DispInfoScope&) = delete;

  private:
    CZvDisplayContext& m_context;
    T_ZV_STRUC_DISP_INFO m_info;
};

} // namespace

void CZvDispUSet::DrawList(CZvDisplayContext& context, int culture, int sub, bool redraw) {
    CZvDispCult* list = GetCult(static_cast<ZVCulture>(culture));
    if (!list) return;
    context.WriteTagInfo(ZV_TAG_CULTURE, &culture);
    if (sub > 0) {
        DispInfoScope info(context, sub);
        list->Draw(&context, redraw);
    } else {
        list->Draw(&context, redraw);
    }
}

void CZvDispUSet::Draw(CZvDisplayContext* context, ZVCulture culture, bool redraw) {
    if (!context) return;
    if (culture == ZV_CULTURE_ALL) {
        for (const auto& [number, list] : m_cultures)
            DrawList(*context, number, 0, redraw);
        return;
    }
    const zv::Composite parts = culture < 0 ? zv::Composite{culture, 0} : zv::Split(culture);
    DrawList(*context, parts.culture, parts.sub, redraw);
}

void CZvDispUSet::Delete(ZVCulture culture) {
    if (culture == ZV_CULTURE_ALL) {
        for (const auto& [number, list] : m_cultures)
            list->RemoveAll();
        m_cultures.clear();
    } else if (CZvDispCult* list = GetCult(culture)) {
        list->RemoveAll();
        m_cultures.erase(culture);
    }
    m_cursor = m_cultures.end();
}

std::vector<int> CZvDispUSet::GetCultureList() const {
    std::vector<int> numbers;
    for (const auto& [number, list] : m_cultures)
        numbers.push_back(number);
    return numbers;
}

int CZvDispUSet::GetCultureCount(ZVCulture culture) const {
    const CZvDispCult* list = GetCult(culture);
    return list ? list->GetCultureCount() : 0;
}

void CZvDispUSet::SetPara(CZvDispFileParam& file, void* context) {
    m_context = context;
    for (const auto& [number, list] : m_cultures)
        list->SetPara(file, context);
}

void CZvDispUSet::SetMapPtr(CZvDispMap* map) {
    if (m_map == map) return;
    m_map = map;
    for (const auto& [number, list] : m_cultures)
        list->SetMapPtr(map);
}

CZvDispCult* CZvDispUSet::GetFirstCult() {
    m_cursor = m_cultures.begin();
    return zv::ChildAt(m_cultures, m_cursor);
}

CZvDispCult* CZvDispUSet::GetNextCult() {
    return zv::NextChild(m_cultures, m_cursor);
}

bool CZvDispUSet::IsLastCult() const {
    return m_cursor == m_cultures.end();
}

CZvDispCult* CZvDispUSet::GetCult(ZVCulture culture) const {
    return zv::FindChild(m_cultures, culture);
}
