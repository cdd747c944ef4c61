// The hibernate record of a group: origin, keys, and one whole record for each member.
#include <memory>
#include <utility>
#include <vector>

#include "items/ZvDispGroup.h"
#include "persist/ItemTransfer.h"

namespace {

using Member = std::pair<int, CZvDisplayItem*>;

/// Counts the level of a group up for the time of its transfer.
class LevelScope {
  public:
    explicit LevelScope(int& level) : m_level(level) { ++m_level; }
    ~LevelScope() { --m_level; }
    LevelScope(const LevelScope&) = delete;
    LevelScope& operator=(const LevelScope&) = delete;

  private:
    int& m_level;
};

// Members that a reader can bring back: not the missing ones, and no group below the last level.
std::vector<Member> WritableMembers(const std::multimap<int, CZvDisplayItem*>& members, int level) {
    std::vector<Member> writable;
    for (const auto& [key, item] : members) {
        if (!item) continue;
        if (item->GetDispType() == ZV_DISP_GROUP && level >= zv::kRecordGroupLevels) continue;
        writable.emplace_back(key, item);
    }
    return writable;
}

} // namespace

bool CZvDispGroup::V_DispHib(CZvDispFileParam& file) {
    zv::RecordWriter* const out = Out();
    if (!out) return !Stream() || HibDispItem(Stream());
    const LevelScope level(out->Level());
    CZvDisplayItem::V_DispHib(file);
    DispOut(m_origin);
    const std::vector<Member> members = WritableMembers(m_map, out->Level());
    DispOut(static_cast<int>(members.size()));
    for (const auto& [key, item] : members)
        DispOut(key);
    for (const auto& [key, item] : members) {
        HandStreamTo(*item);
        item->Hibernate(*out);
    }
    return true;
}

bool CZvDispGroup::V_DispWake(CZvDispFileParam& file) {
    zv::RecordReader* const in = In();
    if (!in) return !Stream() || WakeDispItem(Stream());
    const LevelScope level(in->Level());
    CZvDisplayItem::V_DispWake(file);
    DispIn(m_origin);
    std::vector<int> keys;
    DispIn(keys);
    for (const int key : keys)
        if (!ReadPrimitive(key)) break;
    return true;
}

// False when the member cannot be read: nothing tells where the next one would begin.
bool CZvDispGroup::ReadPrimitive(int key) {
    zv::RecordReader& in = *In();
    std::unique_ptr<CZvDisplayItem> item(MakeNewItem(in));
    if (!item || (item->GetDispType() == ZV_DISP_GROUP && in.Level() >= zv::kRecordGroupLevels)) {
        in.BreakOff();
        return false;
    }
    HandStreamTo(*item);
    item->Wake(in);
    AddPrimitive(key, item.release());
    return true;
}
