#include "map/ZvDispCult.h"

#include <algorithm>
#include <string>

#include "clip/ZvDispMapClipper.h"
#include "items/ZvDisplayItemPara.h"
#include "map/CultureList.h"
#include "map/ItemWalk.h"
#include "platform/zvcom/ZvLayerInfo.h"
#include "platform/zvlogs/ZvLog.h"

namespace {
constexpr int kNote = 103;
}

CZvDispCult::Impl::Impl(const zv::ListPlace& place)
    : store(place, [this](const std::vector<unsigned>& lost) {
          std::vector<unsigned> sorted = lost;
          std::ranges::sort(sorted);
          ids.RemoveEverywhere(sorted);
      }) {}

CZvDispCult::CZvDispCult(E_Layer layer, int post, int uset, ZVCulture culture)
    : m(std::make_unique<Impl>(zv::ListPlace{layer, post, uset, culture})) {}

CZvDispCult::~CZvDispCult() {
    FreeItems();
}

bool CZvDispCult::AddItem(CZvDisplayItem* item, CZvDispMapClipper* const clipper, bool clip) {
    if (clip && !item->Clip(clipper)) {
        delete item;
        return false;
    }
    AddItemToList(item);
    return true;
}

void CZvDispCult::AddItemToList(CZvDisplayItem* item) {
    if (!m->hasIDs) m->hasIDs = CZvLayerInfo::S_BuildSecondaryIndex(m->store.Place().layer);
    m->store.Append(*item);
    if (*m->hasIDs) m->ids.Add(item->GetID(), item->GetPickID());
    const CZvDisplayItemPara* const para = item->GetPara();
    if (!para)
        Keep(item);
    else if (para->GetDestroyAfterAdd())
        delete item;
}

void CZvDispCult::Keep(CZvDisplayItem* item) {
    const unsigned pickID = item->GetPickID();
    const auto place = m->retained.try_emplace(m->retained.end(), pickID);
    if (place->second.get() != item) place->second.reset(item);
}

bool CZvDispCult::FreeItems() {
    const std::size_t count = m->retained.size();
    m->retained.clear();
    CZvLog::Output(std::to_string(count) + " display items has been deleted.", kNote, false);
    return true;
}

bool CZvDispCult::CloseFiles() {
    m->store.CloseFile();
    return true;
}

void CZvDispCult::Write(CZvDispFileParam& file) {
    m->store.CloseWrite();
    FreeItems();
    zv::ItemWalk walk(m->store);
    while (const auto item = walk.Next())
        if (item->GetVisibility()) item->WriteDrawingFile(file);
}

void CZvDispCult::RemoveAll() {
    FreeItems();
    ClearDispList();
    m->store.RemoveAllKeys();
    m->ids.Clear();
}

void CZvDispCult::SetVisibility(bool on) {
    m->visible = on;
    if (on && m->context) Draw(m->context, true);
}

std::list<CZvDisplayItem*>& CZvDispCult::GetDispList() {
    static std::list<CZvDisplayItem*> items;
    m->store.CloseWrite();
    zv::ItemWalk walk(m->store);
    while (auto item = walk.Next())
        items.push_back(item.release());
    return items;
}

CZvDisplayItem* CZvDispCult::GetItem(unsigned pickID) {
    if (!m->store.Holds(pickID)) return nullptr;
    const zv::ItemStore::ReadScope reading(m->store);
    std::unique_ptr<CZvDisplayItem> item = m->store.Read(pickID);
    if (item) item->SetCultureID(m->store.Place().culture);
    return item.release();
}

bool CZvDispCult::OpenAndUpdateItem(CZvDisplayItem* item) {
    if (m->store.Count() == 0) return false;
    const zv::ItemStore::ReadScope reading(m->store);
    return m->store.Update(*item);
}

bool CZvDispCult::DeleteItemFromList(CZvDisplayItem* item) {
    m->ids.Remove(item->GetID(), item->GetPickID());
    m->store.RemoveKey(item->GetPickID());
    return true;
}

void CZvDispCult::SetPara(CZvDispFileParam&, void* context) {
    m->context = static_cast<CZvDisplayContext*>(context);
}

bool CZvDispCult::IsItemPresent(unsigned pickID) const {
    return m->store.Holds(pickID);
}

int CZvDispCult::GetCultureCount() const {
    return static_cast<int>(m->store.Count());
}

void CZvDispCult::SetMapPtr(CZvDispMap* map) {
    m->store.SetMap(map);
}

bool CZvDispCult::LookUpItemPickID(CString& key, std::vector<unsigned>*& out) {
    std::vector<unsigned>* const found = m->ids.Find(key.Str());
    if (!found) return false;
    out = found;
    return true;
}

std::vector<CString> CZvDispCult::GetApiSndIdxVec() {
    return m->ids.Keys();
}
