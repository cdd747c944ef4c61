#include "map/ItemStore.h"

#include <algorithm>

#include "items/ZvDisplayItem.h"
#include "map/ZvDispMap.h"
#include "platform/win/Files.h"
#include "platform/zvcom/ZvLayerInfo.h"
#include "platform/zvcom/ZvUtRegistry.h"
#include "platform/zvcom/ZvUvException.h"
#include "platform/zvlogs/ZvLog.h"

namespace zv {

namespace {

constexpr int kFileFault = 6; // kind of the exception
constexpr int kReadLine = 973;
constexpr int kWriteLine = 1125;
constexpr const char* kDefaultPath = "DispDefault";

/// A record being written behind what is pending; taken back unless it is kept.
class Draft {
  public:
    Draft(RecordWriter& to, CZvDisplayItem& item) : m_to(to), m_begin(to.Size()) {
        try {
            item.Hibernate(to);
        } catch (...) {
            to.Truncate(m_begin);
            throw;
        }
    }
    ~Draft() {
        if (!m_kept) m_to.Truncate(m_begin);
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;

    std::span<const char> Bytes() const { return m_to.Bytes().subspan(m_begin); }
    void Keep() { m_kept = true; }

  private:
    RecordWriter& m_to;
    std::size_t m_begin;
    bool m_kept = false;
};

} // namespace

std::unique_ptr<CZvDisplayItem> WakeItem(RecordReader& record) {
    std::unique_ptr<CZvDisplayItem> item(CZvDisplayItem::MakeNewItem(record));
    if (item) item->Wake(record);
    return item;
}

std::string ItemStore::GetFileName() const {
    const std::string folder = CZvUtRegistry::GetRegistry(CZvUtRegistry::S_GetWorkPath(),
                                                          CZvUtRegistry::S_GetWorkKey(), true) +
                               "\\" + (m_map ? m_map->GetDispFilePath() : kDefaultPath);
    MakeFolder(folder);
    return folder + "\\" + CZvLayerInfo::GetLayerAbbr(m_place.layer) + "_" +
           std::to_string(m_place.post) + "_" + std::to_string(m_place.uset) + "_" +
           std::to_string(m_place.culture);
}

// The name is the same from one opening to the next unless registry or map say otherwise.
void ItemStore::NameFile() {
    const unsigned generation = CZvUtRegistry::S_GetGeneration();
    const std::string path = m_map ? m_map->GetDispFilePath() : kDefaultPath;
    if (m_nameGeneration == generation && m_namePath == path && m_file.IsOpen()) return;
    const bool kept = m_file.SetName(GetFileName());
    m_nameGeneration = generation;
    m_namePath = path;
    if (!kept) DropLost();
}

bool ItemStore::OpenForWrite() {
    if (m_writeOpen) return true;
    NameFile();
    if (!m_file.OpenForWrite()) FailWrite();
    if (m_file.Size() == 0 && Count() > 0) {
        CZvLog::Output("Scratch file " + m_file.Name() + " is gone. " +
                           std::to_string(ForgetLost()) + " items are lost.",
                       101, false);
    }
    m_writeOpen = true;
    return true;
}

bool ItemStore::OpenForRead() {
    if (m_readOpen) return true;
    NameFile();
    if (!m_file.OpenForRead()) FailRead();
    m_readOpen = true;
    return true;
}

void ItemStore::CloseWrite() {
    m_writeOpen = false;
    if (!m_file.Flush()) DropLost();
}

ItemStore::ReadScope::ReadScope(ItemStore& store) : m_store(store) {
    m_store.CloseWrite();
    m_store.OpenForRead();
}

void ItemStore::CloseFile() {
    CloseWrite();
    m_file.Close();
}

void ItemStore::Append(CZvDisplayItem& item) {
    OpenForWrite();
    const std::uint64_t offset = m_file.Size();
    Draft draft(m_file.Pending(), item);
    const std::size_t length = draft.Bytes().size();
    draft.Keep();
    if (!m_file.Commit()) {
        ForgetLost();
        m_writeOpen = false;
        FailWrite(); // this item's own record is among the lost
    }
    m_keys.Set(item.GetPickID(), offset);
    ++m_records;
    m_longest = std::max(m_longest, length);
}

std::size_t ItemStore::UsualLength() const {
    const std::uint64_t average = m_records ? m_file.Size() / m_records : 0;
    const std::uint64_t usual = std::max<std::uint64_t>(4 * average, 1024);
    return static_cast<std::size_t>(std::min<std::uint64_t>(usual, m_longest));
}

std::unique_ptr<CZvDisplayItem> ItemStore::Read(unsigned pickID) {
    const auto offset = m_keys.Find(pickID);
    if (!offset) return nullptr;
    RecordWindow window(m_file);
    window.Load(*offset, UsualLength(), [] { return RecordWindow::kNoOffset; });
    RecordReader record = window.At(*offset);
    return WakeItem(record);
}

std::uint64_t ItemStore::LengthAt(std::uint64_t offset) {
    RecordWindow window(m_file);
    window.Load(offset, UsualLength(), [] { return RecordWindow::kNoOffset; });
    RecordReader record = window.At(offset);
    const bool read = WakeItem(record) && !record.AtEnd();
    return read ? record.Taken() : 0;
}

bool ItemStore::Update(CZvDisplayItem& item, std::uint64_t oldLength) {
    const auto offset = m_keys.Find(item.GetPickID());
    if (!offset) return false;
    if (!oldLength) oldLength = LengthAt(*offset);
    Draft draft(m_file.Pending(), item);
    const std::size_t length = draft.Bytes().size();
    if (length <= oldLength) {
        if (!m_file.Overwrite(*offset, draft.Bytes())) FailWrite();
        return true;
    }
    draft.Keep();
    const std::uint64_t end = m_file.Written();
    if (!m_file.Flush()) FailWrite();
    m_keys.Set(item.GetPickID(), end);
    ++m_records;
    m_longest = std::max(m_longest, length);
    return true;
}

void ItemStore::FailRead() const {
    throw CZvUvException(kFileFault,
                         "Can't Read File " + m_file.Name() + ". " +
                             "Please check you disk space or access right.",
                         "ZvDisplayList", kReadLine);
}

void ItemStore::FailWrite() const {
    throw CZvUvException(kFileFault,
                         "Can't Write File " + m_file.Name() + ". " +
                             "Please check you disk space or access right.",
                         "ZvDisplayList", kWriteLine);
}

// Takes the keys away whose records never reached the file; gives their number.
std::size_t ItemStore::ForgetLost() {
    std::vector<unsigned> lost;
    KeyTable::Cursor cursor;
    while (const KeyTable::Entry* entry = m_keys.Next(cursor))
        if (entry->Offset() >= m_file.Written()) lost.push_back(entry->key);
    for (const unsigned key : lost)
        m_keys.Remove(key);
    if (m_onLost && !lost.empty()) m_onLost(lost);
    return lost.size();
}

// Raises the exception when records were lost that somebody still asks for.
void ItemStore::DropLost() {
    m_writeOpen = false;
    if (ForgetLost() > 0) FailWrite();
}

} // namespace zv
