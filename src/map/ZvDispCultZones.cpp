// How a culture list works under memory control: what stands in which zone, and the display lists
// of the zones that leave and enter the view.
#include <algorithm>
#include <string>
#include <unordered_set>

#include "context/ZvDispGL.h"
#include "map/CultureList.h"
#include "map/ItemWalk.h"
#include "map/ZvDispMemCtrl.h"
#include "platform/zvcom/ZvLayerInfo.h"
#include "platform/zvlogs/ZvLog.h"

namespace {

constexpr int kNote = 103;

bool Contains(const std::vector<int>& zones, int zone) {
    return std::ranges::find(zones, zone) != zones.end();
}

// The zones of the first list that are not in the second.
std::vector<int> Without(const std::vector<int>& zones, const std::vector<int>& others) {
    std::vector<int> left;
    std::ranges::copy_if(zones, std::back_inserter(left),
                         [&](int zone) { return !Contains(others, zone); });
    return left;
}

} // namespace

bool CZvDispCult::IsManaged(const CZvDispMemCtrl* control) const {
    return control && control->IsActive() && control->IsCulture(m->store.Place().culture);
}

bool CZvDispCult::BuildGridPickIDMap(CZvDisplayItem& item, const CZvDispMemCtrl& control) {
    CZvDispPoint ll, ur;
    control.GetGridRect(ll, ur);
    return m->grid.Insert(item, ll, ur);
}

void CZvDispCult::UpdateZones(CZvDisplayContext& context, CZvDispMemCtrl* control) {
    if (!IsManaged(control)) return;
    EraseZones(context, *control);
    AddZones(context, control->GetAddZones(), *control);
}

void CZvDispCult::DrawVisibleZones(CZvDisplayContext& context, CZvDispMemCtrl& control) {
    if (!control.IsViewInRange()) return;
    control.ComputeZones();
    AddZones(context, control.GetZones(), control);
}

void CZvDispCult::AddZones(CZvDisplayContext& context, const std::vector<int>& zones,
                           const CZvDispMemCtrl& control) {
    if (zones.empty()) return;
    DrawDetails(context, PickIDsOfZones(zones, control.GetZoneDim()));
    LogZones(zones, " is added to map.\n");
}

// Deletes the display lists of all items of the zones; those that also stand in a zone still shown
// are compiled again. Items of the zones that enter the view come with these.
void CZvDispCult::EraseZones(CZvDisplayContext& context, const CZvDispMemCtrl& control) {
    const std::vector<int> zones = control.GetEraseZones();
    if (zones.empty()) return;
    const int dimension = control.GetZoneDim();
    const std::vector<unsigned> erased = PickIDsOfZones(zones, dimension);
    if (CZvDispGL* const gl = zv::AsOpenGL(&context)) {
        for (const unsigned pickID : erased)
            if (m->store.Holds(pickID) && gl->IsItemList(pickID)) gl->DeleteItemList(pickID);
    }
    LogZones(zones, " is erased from map.\n");

    const std::unordered_set<unsigned> gone(erased.begin(), erased.end());
    const std::vector<int> added = control.GetAddZones();
    const std::vector<unsigned> coming = PickIDsOfZones(added, dimension);
    const std::unordered_set<unsigned> later(coming.begin(), coming.end());
    std::vector<unsigned> shown = PickIDsOfZones(Without(control.GetZones(), added), dimension);
    std::erase_if(
        shown, [&](unsigned pickID) { return !gone.contains(pickID) || later.contains(pickID); });
    DrawDetails(context, shown);
}

void CZvDispCult::DrawDetails(CZvDisplayContext& context, const std::vector<unsigned>& pickIDs) {
    if (pickIDs.empty()) return;
    const zv::ItemStore::ReadScope reading(m->store);
    zv::ItemFetch fetch(m->store, pickIDs);
    while (const auto item = fetch.Next()) {
        item->SetCultureID(m->store.Place().culture);
        context.DrawDispItem(item.get());
    }
}

// Each pick ID once, where it comes first.
std::vector<unsigned> CZvDispCult::PickIDsOfZones(const std::vector<int>& zones,
                                                  int dimension) const {
    std::vector<unsigned> pickIDs;
    std::unordered_set<unsigned> seen;
    zv::ForEachCell(zones, dimension, [&](int number) {
        const std::vector<unsigned>* const cell = m->grid.Cell(number);
        if (!cell) return;
        for (const unsigned pickID : *cell)
            if (seen.insert(pickID).second) pickIDs.push_back(pickID);
    });
    return pickIDs;
}

void CZvDispCult::LogZones(const std::vector<int>& zones, const char* what) const {
    const std::string title = CZvLayerInfo::GetCultureTitle(m->store.Place().culture, false);
    for (const int zone : zones)
        CZvLog::Output("Culture " + title + " of Zone " + std::to_string(zone) + what, kNote, true);
}

void CZvDispCult::GetVecZonePickIDs(std::vector<int> zones, std::vector<unsigned>& out,
                                    CZvDispMemCtrl* control) {
    if (!control) return;
    zv::ForEachCell(zones, control->GetZoneDim(), [&](int number) {
        if (const std::vector<unsigned>* const cell = m->grid.Cell(number))
            out.insert(out.end(), cell->begin(), cell->end());
    });
}
