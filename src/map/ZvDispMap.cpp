#include "map/ZvDispMap.h"

#include <limits>

#include "context/ZvDisplayContext.h"
#include "map/Children.h"
#include "persist/ZvDispFileParam.h"
#include "platform/Numbers.h"
#include "platform/zvlogs/ZvLog.h"
#include "platform/zvset/ZvSettings.h"
#include "platform/zvset/ZvSettingsManager.h"

namespace {
constexpr unsigned kFirstPickID = 10001; // below lie the list names of symbols and characters
} // namespace

CZvDispMap::CZvDispMap(CZvSettingsManager* settings)
    : m_settings(settings), m_scissors(new CZvDispMapClipper), m_cursor(m_layers.end()),
      m_nextPickID(kFirstPickID - 1), m_order(std::make_unique<CZvDispOrder>()) {
    m_order->AddLayer(E_LAYER_LATLON_GRID);
}

CZvDispMap::~CZvDispMap() {
    m_layers.clear();
    delete m_scissors;
}

void CZvDispMap::ForgetMemCtrls(CZvDisplayContext* context) {
    if (!context) return;
    context->SetMemCtrl(nullptr);
    context->SetMemCtrlExt(nullptr);
}

bool CZvDispMap::SetContext(CZvDisplayContext* const context) {
    ForgetMemCtrls(context);
    CZvDispFileParam none;
    for (const auto& [number, layer] : m_layers)
        if (layer) layer->SetPara(none, context);
    m_context = context;
    return true;
}

void CZvDispMap::SetViewPort(CZvDispPoint lowerLeft, CZvDispPoint upperRight) {
    m_scale.SetTheViewPort(lowerLeft, upperRight);
}

void CZvDispMap::SetViewPort(double x1, double y1, double x2, double y2, int) {
    SetViewPort({x1, y1}, {x2, y2});
}

void CZvDispMap::GetViewPort(CZvDispPoint& lowerLeft, CZvDispPoint& upperRight) const {
    lowerLeft = m_scale.GetLowerLeft();
    upperRight = m_scale.GetUpperRight();
}

CZvDispLayer* CZvDispMap::GetLayer(E_Layer layer) const {
    return zv::FindChild(m_layers, layer);
}

CZvDispUSet* CZvDispMap::FindUSet(E_Layer layer, int post, int uset) const {
    const CZvDispLayer* entry = GetLayer(layer);
    const CZvDispPost* child = entry ? entry->GetPost(post) : nullptr;
    return child ? child->GetUSet(uset) : nullptr;
}

CZvDispCult* CZvDispMap::FindCult(E_Layer layer, int post, int uset, ZVCulture culture) const {
    const CZvDispUSet* set = FindUSet(layer, post, uset);
    return set ? set->GetCult(culture) : nullptr;
}

CZvDispLayer& CZvDispMap::MakeLayer(E_Layer layer) {
    auto& entry = m_layers[layer];
    if (!entry) entry = std::make_unique<CZvDispLayer>(layer);
    entry->SetMapPtr(this);
    if (entry->GetPara() != m_context) {
        CZvDispFileParam none;
        entry->SetPara(none, m_context);
    }
    return *entry;
}

bool CZvDispMap::AddItem(CZvDisplayItem* item, E_Layer layer, int post, int uset, ZVCulture culture,
                         bool clip) {
    constexpr unsigned kNoPickID = std::numeric_limits<unsigned>::max();
    if (m_nextPickID == kNoPickID - 1) {
        CZvLog::Output("The map has no pick IDs left. Item skipped.", 101, false);
        delete item;
        return false;
    }
    item->SetPickID(++m_nextPickID);
    return MakeLayer(layer).AddItem(post, uset, culture, item, GetScissors(),
                                    clip && GetScissors());
}

bool CZvDispMap::DeleteItem(CZvDisplayItem* item, E_Layer layer, int post, int uset,
                            ZVCulture culture) {
    if (layer == -1) layer = item->GetLayerID();
    if (post == -1) post = item->GetPost();
    if (uset == -1) uset = item->GetUSet();
    if (culture == -1) culture = item->GetCultureID();
    if (layer == -1 || post == -1 || uset == -1 || culture == -1) return false;
    CZvDispCult* list = FindCult(layer, post, uset, culture);
    return list && list->DeleteItemFromList(item);
}

CZvDisplayItem* CZvDispMap::GetItem(E_Layer layer, int post, int uset, ZVCulture culture,
                                    unsigned pickID) {
    CZvDispCult* list = FindCult(layer, post, uset, culture);
    CZvDisplayItem* item = list ? list->GetItem(pickID) : nullptr;
    if (!item) return nullptr;
    item->SetLayerID(layer);
    item->SetPost(post);
    item->SetUSet(uset);
    item->SetCultureID(culture);
    return item;
}

bool CZvDispMap::LookUpItem(E_Layer layer, int post, int uset, ZVCulture culture, CString key,
                            std::vector<unsigned>*& pickIDs) {
    CZvDispCult* list = FindCult(layer, post, uset, culture);
    return list && list->LookUpItemPickID(key, pickIDs);
}

std::vector<CString> CZvDispMap::GetApiSndIdxVec(E_Layer layer, int post, int uset,
                                                 ZVCulture culture) {
    CZvDispCult* list = FindCult(layer, post, uset, culture);
    return list ? list->GetApiSndIdxVec() : std::vector<CString>();
}

int CZvDispMap::GetCultureCount(E_Layer layer, int post, int uset, ZVCulture culture) {
    const CZvDispLayer* entry = GetLayer(layer);
    return entry ? entry->GetCultureCount(post, uset, culture) : 0;
}

void CZvDispMap::ConvertXY(RECT window, int x, int y, double& mapX, double& mapY, int) const {
    const CZvDispPoint ll = m_scale.GetLowerLeft(), ur = m_scale.GetUpperRight();
    const double width = static_cast<double>(window.right) - window.left;
    const double height = static_cast<double>(window.bottom) - window.top;
    mapX = width == 0.0 ? ll.GetX() : ll.GetX() + x / width * (ur.GetX() - ll.GetX());
    mapY = height == 0.0 ? ll.GetY() : ll.GetY() + (height - y) / height * (ur.GetY() - ll.GetY());
}

bool CZvDispMap::Clear() {
    m_nextPickID = kFirstPickID - 1;
    ForgetMemCtrls(m_context);
    for (const auto& [number, layer] : m_layers)
        if (layer) layer->Delete(kAllPosts, kAllUserSets, ZV_CULTURE_ALL);
    m_layers.clear();
    m_cursor = m_layers.end();
    CZvDispSymbols::S_DeleteExternalSymbols();
    return true;
}

bool CZvDispMap::Clear(E_Layer layer) {
    CZvDispLayer* entry = GetLayer(layer);
    if (!entry) return false;
    ForgetMemCtrls(m_context);
    entry->Delete(kAllPosts, kAllUserSets, ZV_CULTURE_ALL);
    m_layers.erase(layer);
    m_cursor = m_layers.end();
    return true;
}

bool CZvDispMap::Clear(E_Layer layer, int post, int uset) {
    CZvDispLayer* entry = GetLayer(layer);
    if (!entry) return false;
    entry->Delete(post, uset, ZV_CULTURE_ALL);
    return true;
}

template<class Act>
bool CZvDispMap::ForEachList(E_Layer layer, int post, int uset, Act&& act) {
    CZvDispUSet* set = FindUSet(layer, post, uset);
    if (!set) return false;
    for (const int culture : set->GetCultureList())
        act(*set->GetCult(static_cast<ZVCulture>(culture)));
    return true;
}

bool CZvDispMap::FreeItems(E_Layer layer, int post, int uset) {
    return ForEachList(layer, post, uset, [](CZvDispCult& list) { list.FreeItems(); });
}

bool CZvDispMap::CloseFiles(E_Layer layer, int post, int uset) {
    return ForEachList(layer, post, uset, [](CZvDispCult& list) { list.CloseFiles(); });
}

bool CZvDispMap::SetLayerVisibility(E_Layer layer, bool on) {
    CZvDispLayer* entry = GetLayer(layer);
    if (!entry) return false;
    entry->SetVisibility(on, kAllPosts, kAllUserSets, ZV_CULTURE_ALL);
    return true;
}

bool CZvDispMap::GetLayerOn(E_Layer layer) const {
    bool on = true;
    if (!m_settings) return on;
    if (const CZvSettings* settings = m_settings->GetLayerSettings(layer))
        settings->GetBoolean("ON_OFF", on);
    return on;
}

std::vector<int> CZvDispMap::GetLayerList() const {
    std::vector<int> numbers;
    for (const auto& [number, layer] : m_layers)
        numbers.push_back(number);
    return numbers;
}

bool CZvDispMap::GetPostList(E_Layer layer, std::vector<int>& posts) const {
    const CZvDispLayer* entry = GetLayer(layer);
    return entry && entry->GetPostList(posts);
}

std::vector<int> CZvDispMap::GetUSetList(E_Layer layer, int post) const {
    const CZvDispLayer* entry = GetLayer(layer);
    return entry ? entry->GetUSetList(post) : std::vector<int>();
}

std::vector<int> CZvDispMap::GetCultureList(E_Layer layer, int post, int uset) const {
    const CZvDispLayer* entry = GetLayer(layer);
    return entry ? entry->GetCultureList(post, uset) : std::vector<int>();
}

std::string CZvDispMap::GetCultureAsText(ZVCulture culture) const {
    return "e" + zv::FormatInt(culture);
}

std::string CZvDispMap::GetLayerAsText(E_Layer layer) const {
    return "L" + zv::FormatInt(layer);
}

CZvDispLayer* CZvDispMap::GetFirstLayer() {
    m_cursor = m_layers.begin();
    return zv::ChildAt(m_layers, m_cursor);
}

CZvDispLayer* CZvDispMap::GetNextLayer() {
    return zv::NextChild(m_layers, m_cursor);
}

bool CZvDispMap::IsLastLayer() const {
    return m_cursor == m_layers.end();
}

bool CZvDispMap::LoadMap(std::string) {
    return true;
}

bool CZvDispMap::SaveMap(std::string) {
    return true;
}

bool CZvDispMap::SetMapBound(const CZvDispPoint& ll, const CZvDispPoint& ur) {
    m_boundLL = ll;
    m_boundUR = ur;
    return SetMapBoundTemp(ll, ur);
}

bool CZvDispMap::GetMapBound(CZvDispPoint& ll, CZvDispPoint& ur) const {
    if (m_finalBorderOn) return GetMapBoundTemp(ll, ur);
    ll = m_boundLL;
    ur = m_boundUR;
    return true;
}

bool CZvDispMap::SetMapBoundTemp(const CZvDispPoint& ll, const CZvDispPoint& ur) {
    m_tempLL = ll;
    m_tempUR = ur;
    return true;
}

bool CZvDispMap::GetMapBoundTemp(CZvDispPoint& ll, CZvDispPoint& ur) const {
    ll = m_tempLL;
    ur = m_tempUR;
    return true;
}
