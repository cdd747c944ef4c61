#include "map/ItemWalk.h"

#include "items/ZvDisplayItem.h"

namespace zv {

std::unique_ptr<CZvDisplayItem> ItemWalk::Next() {
    if (m_store.Count() == 0) return nullptr;
    m_store.OpenForRead();
    const KeyTable::Entry* const entry = m_store.Keys().Next(m_cursor);
    if (!entry) {
        m_store.CloseRead();
        return nullptr;
    }
    const std::uint64_t offset = entry->Offset();
    if (!m_window.Covers(offset)) Load(offset);
    RecordReader record = m_window.At(offset);
    std::unique_ptr<CZvDisplayItem> item = WakeItem(record);
    m_length = record.AtEnd() ? 0 : record.Taken();
    if (!item) m_store.CloseRead();
    return item;
}

void ItemWalk::Load(std::uint64_t offset) {
    if (offset >= m_store.File().Written()) m_store.CloseWrite();
    KeyTable::Cursor ahead = m_cursor;
    m_window.Load(offset, m_store.UsualLength(), [&] {
        const KeyTable::Entry* const entry = m_store.Keys().Next(ahead);
        return entry ? entry->Offset() : RecordWindow::kNoOffset;
    });
}

std::uint64_t ItemFetch::OffsetOf(std::size_t index) const {
    if (index >= m_pickIDs.size()) return RecordWindow::kNoOffset;
    return m_store.Keys().Find(m_pickIDs[index]).value_or(RecordWindow::kNoOffset);
}

std::unique_ptr<CZvDisplayItem> ItemFetch::Next() {
    while (m_next < m_pickIDs.size()) {
        const std::uint64_t offset = OffsetOf(m_next++);
        if (offset == RecordWindow::kNoOffset) continue;
        if (!m_window.Covers(offset)) {
            std::size_t ahead = m_next;
            m_window.Load(offset, m_store.UsualLength(), [&] { return OffsetOf(ahead++); });
        }
        RecordReader record = m_window.At(offset);
        if (auto item = WakeItem(record)) return item;
    }
    return nullptr;
}

} // namespace zv
