#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "map/KeyTable.h"
#include "map/RecordWindow.h"
#include "map/ScratchFile.h"
#include "platform/zvcom/ZvTypes.h"

class CZvDispMap;
class CZvDisplayItem;

namespace zv {

/// Where a culture list stands in the map's tree; its scratch file is named after it.
struct ListPlace {
    E_Layer layer;
    int post;
    int uset;
    ZVCulture culture;
};

/// Makes the item that a record holds; null when it is of no known kind or cut off in front.
std::unique_ptr<CZvDisplayItem> WakeItem(RecordReader& record);

/// The items of a culture list as records in its scratch file, by pick ID.
///
/// Raises CZvUvException (kind 6, source "ZvDisplayList"; line 973 reading, 1125 writing) when the
/// file cannot be opened, or when records could not be written in full, which may show some records
/// later. The pick IDs whose records were lost are then gone from the table, and `onLost` hears
/// them before the exception leaves.
class ItemStore {
  public:
    using OnLost = std::function<void(const std::vector<unsigned>& pickIDs)>;
    ItemStore(const ListPlace& place, OnLost onLost)
        : m_place(place), m_onLost(std::move(onLost)) {}

    /// Borrowed; gives the folder of the file.
    void SetMap(const CZvDispMap* map) { m_map = map; }
    const ListPlace& Place() const { return m_place; }

    std::size_t Count() const { return m_keys.Size(); }
    bool Holds(unsigned pickID) const { return m_keys.Find(pickID).has_value(); }
    const KeyTable& Keys() const { return m_keys; }
    void RemoveKey(unsigned pickID) { m_keys.Remove(pickID); }
    void RemoveAllKeys() { m_keys.Clear(); }

    /// Name of the scratch file in the engine's spelling. Makes its folder.
    std::string GetFileName() const;
    /// Both return at once when the file is open that way, and are true otherwise too: a failure is
    /// the exception.
    bool OpenForWrite();
    bool OpenForRead();
    void CloseWrite();
    void CloseRead() { m_readOpen = false; }
    /// CloseWrite, and lets go of the file itself.
    void CloseFile();

    /// Reading from what is written so far, until its end also when an exception passes.
    class ReadScope {
      public:
        explicit ReadScope(ItemStore& store);
        ~ReadScope() { m_store.CloseRead(); }
        ReadScope(const ReadScope&) = delete;
        ReadScope& operator=(const ReadScope&) = delete;

      private:
        ItemStore& m_store;
    };

    /// Writes the item's record behind the others and enters its pick ID.
    void Append(CZvDisplayItem& item);
    /// Null for a pick ID that is not there or whose record cannot be read.
    /// REQUIRES: nothing was appended since CloseWrite. So for the two that follow.
    std::unique_ptr<CZvDisplayItem> Read(unsigned pickID);
    /// Replaces the item's record; false when its pick ID is not there. In place where the new
    /// record is no longer than the old one (`oldLength` bytes; 0: to be found out), else at the
    /// end of the file.
    bool Update(CZvDisplayItem& item, std::uint64_t oldLength = 0);
    /// How much to read for one record: enough for most.
    std::size_t UsualLength() const;

    ScratchFile& File() { return m_file; }

  private:
    void NameFile();
    std::uint64_t LengthAt(std::uint64_t offset);
    [[noreturn]] void FailRead() const;
    [[noreturn]] void FailWrite() const;
    std::size_t ForgetLost();
    void DropLost();

    ListPlace m_place;
    OnLost m_onLost;
    const CZvDispMap* m_map = nullptr;
    KeyTable m_keys;
    ScratchFile m_file;
    unsigned m_nameGeneration = 0; // of the registry, when the file was named
    std::string m_namePath;        // the map's display file path then
    bool m_readOpen = false;
    bool m_writeOpen = false;
    std::uint64_t m_records = 0; // ever appended
    std::size_t m_longest = 0;   // bytes of a record
};

} // namespace zv
