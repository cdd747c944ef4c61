#include "context/RecordArena.h"

#include <algorithm>

namespace zv {

namespace {
constexpr std::size_t kChunkWords = std::size_t{1} << 18; // 1 MB
}

std::uint32_t RecordArena::ChunkFor(std::size_t words) {
    if (m_open != UINT32_MAX && m_chunks[m_open].size - m_chunks[m_open].used >= words)
        return m_open;
    std::uint32_t number = static_cast<std::uint32_t>(m_chunks.size());
    if (m_free.empty()) {
        m_chunks.emplace_back();
    } else {
        number = m_free.back();
        m_free.pop_back();
    }
    const std::size_t size = std::max(kChunkWords, words);
    m_chunks[number] = {std::make_unique_for_overwrite<std::uint32_t[]>(size), size, 0, 0};
    const auto former = m_open;
    m_open = number;
    if (former != UINT32_MAX && m_chunks[former].alive == 0) {
        m_chunks[former] = {};
        m_free.push_back(former);
    }
    return number;
}

RecordArena::Place RecordArena::Store(std::span<const std::uint32_t> words) {
    const auto number = ChunkFor(words.size());
    Chunk& chunk = m_chunks[number];
    const Place place{number, static_cast<std::uint32_t>(chunk.used),
                      static_cast<std::uint32_t>(words.size())};
    std::ranges::copy(words, chunk.words.get() + chunk.used);
    chunk.used += words.size();
    ++chunk.alive;
    return place;
}

void RecordArena::Free(const Place& place) {
    Chunk& chunk = m_chunks[place.chunk];
    if (--chunk.alive > 0) return;
    if (place.chunk == m_open) {
        chunk.used = 0;
    } else {
        chunk = {};
        m_free.push_back(place.chunk);
    }
}

std::size_t RecordArena::Bytes() const {
    std::size_t bytes = 0;
    for (const Chunk& chunk : m_chunks)
        bytes += chunk.size * sizeof(std::uint32_t);
    return bytes;
}

} // namespace zv
