#include "map/ZvDispLayer.h"

#include <set>

#include "context/ZvDisplayContext.h"
#include "map/Children.h"
#include "map/Composite.h"
#include "map/ZvDispMemCtrl.h"
#include "persist/ZvDispFileParam.h"

CZvDispLayer::CZvDispLayer(E_Layer layer) : m_layer(layer), m_cursor(m_posts.end()) {
    InitializeMemCtrl();
}

CZvDispLayer::CZvDispLayer(const CZvDispLayer& other) {
    *this = other;
}

CZvDispLayer& CZvDispLayer::operator=(const CZvDispLayer& other) {
    m_context = other.m_context;
    m_layer = other.m_layer;
    m_posts = other.m_posts;
    m_cursor = m_posts.end();
    m_map = other.m_map;
    m_memCtrl = other.m_memCtrl;
    m_memCtrlExt = other.m_memCtrlExt;
    return *this;
}

CZvDispLayer::~CZvDispLayer() = default;

bool CZvDispLayer::AddItem(int post, int uset, ZVCulture culture, CZvDisplayItem* item,
                           CZvDispMapClipper* clipper, bool clip) {
    auto& child = m_posts[post];
    if (!child) {
        child = std::make_shared<CZvDispPost>(m_layer, post);
        CZvDispFileParam none;
        child->SetPara(none, m_context);
    }
    child->SetMapPtr(m_map);
    return child->AddItem(uset, culture, item, clipper, clip);
}

void CZvDispLayer::DrawPost(CZvDisplayContext& context, int post, int uset, ZVCulture culture,
                            bool redraw) {
    CZvDispPost* child = GetPost(post);
    if (!child) return;
    if (m_memCtrl && m_layer == E_LAYER_LEASES) m_memCtrl->SetPostCultures(post);
    const int count = static_cast<int>(m_posts.size());
    context.WriteTagInfo(ZV_TAG_POST_COUNT, &count);
    context.WriteTagInfo(ZV_TAG_POST, &post);
    child->Draw(&context, uset, culture, redraw);
}

void CZvDispLayer::Draw(CZvDisplayContext* context, int post, int uset, ZVCulture culture,
                        bool redraw) {
    if (!context) return;
    context->SetMemCtrl(m_memCtrl.get());
    context->SetMemCtrlExt(m_memCtrlExt.get());
    if (post != kAllPosts) return DrawPost(*context, post, uset, culture, redraw);
    for (const auto& [number, child] : m_posts)
        DrawPost(*context, number, uset, culture, redraw);
}

void CZvDispLayer::DeletePost(int post) {
    if (CZvDispPost* child = GetPost(post)) child->Delete(kAllUserSets);
    m_posts.erase(post);
    m_cursor = m_posts.end();
}

void CZvDispLayer::DeleteCultureEverywhere(ZVCulture culture) {
    for (const auto& [number, child] : m_posts)
        for (const int uset : child->GetUSetList())
            child->GetUSet(uset)->Delete(culture);
}

void CZvDispLayer::Delete(int post, int uset, ZVCulture culture) {
    const bool everyCulture = culture == ZV_CULTURE_ALL;
    if (post == kAllPosts) {
        if (uset != kAllUserSets) return;
        if (!everyCulture) return DeleteCultureEverywhere(culture);
        while (!m_posts.empty())
            DeletePost(m_posts.begin()->first);
    } else if (uset == kAllUserSets) {
        if (everyCulture) DeletePost(post);
    } else if (everyCulture) {
        if (CZvDispPost* child = GetPost(post)) child->Delete(uset);
    } else if (CZvDispUSet* set = FindUSet(post, uset)) {
        set->Delete(culture);
    }
}

CZvDispUSet* CZvDispLayer::FindUSet(int post, int uset) const {
    const CZvDispPost* child = GetPost(post);
    return child ? child->GetUSet(uset) : nullptr;
}

CZvDispCult* CZvDispLayer::FindCult(int post, int uset, ZVCulture culture) const {
    const CZvDispUSet* set = FindUSet(post, uset);
    return set ? set->GetCult(culture) : nullptr;
}

template<class Act>
void CZvDispLayer::WithList(int post, int uset, ZVCulture culture, Act&& act) {
    const zv::Composite parts = zv::Split(culture);
    if (CZvDispCult* list = FindCult(post, uset, static_cast<ZVCulture>(parts.culture)))
        act(*list, parts.sub);
}

void CZvDispLayer::SetColor(ZVColor color, int post, int uset, ZVCulture culture) {
    WithList(post, uset, culture, [=](CZvDispCult& list, int sub) { list.SetColor(color, sub); });
}

void CZvDispLayer::SetLineType(unsigned char type, int post, int uset, ZVCulture culture) {
    WithList(post, uset, culture, [=](CZvDispCult& list, int sub) { list.SetLineType(type, sub); });
}

void CZvDispLayer::SetLineWidth(double width, int post, int uset, ZVCulture culture) {
    WithList(post, uset, culture,
             [=](CZvDispCult& list, int sub) { list.SetLineWidth(width, sub); });
}

void CZvDispLayer::SetDegree(double, int, int, ZVCulture) {}
void CZvDispLayer::SetFill(bool, int, int, ZVCulture) {}
void CZvDispLayer::SetFillStyle(E_FILL_STYLE, int, int, ZVCulture) {}
void CZvDispLayer::SetSmooth(bool, int, int, ZVCulture) {}

namespace {

void SetPostVisibility(CZvDispPost& post, bool on) {
    for (const int uset : post.GetUSetList()) {
        CZvDispUSet& set = *post.GetUSet(uset);
        for (const int culture : set.GetCultureList())
            set.GetCult(static_cast<ZVCulture>(culture))->SetVisibility(on);
    }
}

} // namespace

void CZvDispLayer::SetVisibility(bool on, int post, int uset, ZVCulture culture) {
    if (post == kAllPosts) {
        for (const auto& [number, child] : m_posts)
            SetPostVisibility(*child, on);
    } else if (uset == kAllUserSets) {
        if (CZvDispPost* child = GetPost(post)) SetPostVisibility(*child, on);
    } else if (CZvDispCult* list = FindCult(post, uset, culture)) {
        list->SetVisibility(on);
    }
}

bool CZvDispLayer::GetPostList(std::vector<int>& posts) const {
    posts.clear();
    for (const auto& [number, child] : m_posts)
        if (child) posts.push_back(number);
    return true;
}

std::vector<int> CZvDispLayer::GetUSetList(int post) const {
    const CZvDispPost* child = GetPost(post);
    return child ? child->GetUSetList() : std::vector<int>();
}

std::vector<int> CZvDispLayer::GetCultureList(int post, int uset) const {
    const CZvDispUSet* set = FindUSet(post, uset);
    return set ? set->GetCultureList() : std::vector<int>();
}

std::list<CZvDisplayItem*>& CZvDispLayer::GetDispList(int post, int uset, ZVCulture culture) {
    static std::list<CZvDisplayItem*> none;
    CZvDispCult* list = FindCult(post, uset, culture);
    if (list) return list->GetDispList();
    none.clear();
    return none;
}

bool CZvDispLayer::GetSubLayerList(std::vector<int>& cultures) const {
    std::set<int> all;
    for (const auto& [number, child] : m_posts)
        for (const int uset : child->GetUSetList())
            for (const int culture : child->GetUSet(uset)->GetCultureList())
                all.insert(culture);
    cultures.assign(all.begin(), all.end());
    return true;
}

int CZvDispLayer::GetCultureCount(int post, int uset, ZVCulture culture) const {
    const CZvDispUSet* set = FindUSet(post, uset);
    return set ? set->GetCultureCount(culture) : 0;
}

void CZvDispLayer::SetPara(CZvDispFileParam& file, void* context) {
    m_context = context;
    for (const auto& [number, child] : m_posts)
        child->SetPara(file, context);
}

void CZvDispLayer::SetMapPtr(CZvDispMap* map) {
    if (m_map == map) return;
    m_map = map;
    for (const auto& [number, child] : m_posts)
        child->SetMapPtr(map);
}

CZvDispPost* CZvDispLayer::GetFirstPost() {
    m_cursor = m_posts.begin();
    return zv::ChildAt(m_posts, m_cursor);
}

CZvDispPost* CZvDispLayer::GetNextPost() {
    return zv::NextChild(m_posts, m_cursor);
}

bool CZvDispLayer::IsLastPost() const {
    return m_cursor == m_posts.end();
}

CZvDispPost* CZvDispLayer::GetPost(int post) const {
    return zv::FindChild(m_posts, post);
}
