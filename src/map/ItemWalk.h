#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "map/ItemStore.h"
#include "map/KeyTable.h"
#include "map/RecordWindow.h"

class CZvDisplayItem;

namespace zv {

/// One walk over the items of a store in the order of its keys, as fresh objects. It ends at the
/// first record that cannot be read. The file is opened by the first step, and not at all for an
/// empty list, and closed by the last or by the destructor.
class ItemWalk {
  public:
    explicit ItemWalk(ItemStore& store) : m_store(store), m_window(store.File()) {}
    ~ItemWalk() { m_store.CloseRead(); }
    ItemWalk(const ItemWalk&) = delete;
    ItemWalk& operator=(const ItemWalk&) = delete;

    /// Null at the end.
    std::unique_ptr<CZvDisplayItem> Next();
    /// Bytes of the record given last.
    std::uint64_t Length() const { return m_length; }

  private:
    void Load(std::uint64_t offset);

    ItemStore& m_store;
    RecordWindow m_window;
    KeyTable::Cursor m_cursor;
    std::uint64_t m_length = 0;
};

/// Items of a store by a list of pick IDs, as fresh objects in the order of the list. IDs that are
/// not there or cannot be read are passed over. REQUIRES: the file is open for reading.
class ItemFetch {
  public:
    /// Both are borrowed.
    ItemFetch(ItemStore& store, const std::vector<unsigned>& pickIDs)
        : m_store(store), m_pickIDs(pickIDs), m_window(store.File()) {}

    /// Null at the end.
    std::unique_ptr<CZvDisplayItem> Next();

  private:
    std::uint64_t OffsetOf(std::size_t index) const;

    ItemStore& m_store;
    const std::vector<unsigned>& m_pickIDs;
    RecordWindow m_window;
    std::size_t m_next = 0;
};

} // namespace zv
