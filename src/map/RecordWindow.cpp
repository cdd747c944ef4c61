#include "map/RecordWindow.h"

#include "map/ScratchFile.h"

namespace zv {

namespace {
constexpr std::size_t kMoreBytes = 64 * 1024;
}

void RecordWindow::Fill(std::uint64_t offset, std::size_t size) {
    if (m_capacity < size) {
        m_bytes = std::make_unique_for_overwrite<char[]>(size);
        m_capacity = size;
    }
    m_offset = offset;
    m_filled = m_file.ReadAt(offset, m_bytes.get(), size);
}

RecordReader RecordWindow::At(std::uint64_t offset) {
    if (!Covers(offset)) return RecordReader(std::span<const char>());
    m_moreOffset = m_offset + m_filled;
    const auto skip = static_cast<std::size_t>(offset - m_offset);
    return RecordReader({m_bytes.get() + skip, m_filled - skip}, this);
}

std::span<const char> RecordWindow::More() {
    if (!m_more) m_more = std::make_unique_for_overwrite<char[]>(kMoreBytes);
    const std::size_t got = m_file.ReadAt(m_moreOffset, m_more.get(), kMoreBytes);
    m_moreOffset += got;
    return {m_more.get(), got};
}

std::uint64_t RecordWindow::Left() {
    const std::uint64_t end = m_file.Written();
    return end > m_moreOffset ? end - m_moreOffset : 0;
}

} // namespace zv
