#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

namespace zv {

/// Memory of many small recordings, in chunks that are given back when nothing in them lives any
/// more: no allocation for each recording, and none of it ever moves.
class RecordArena {
  public:
    struct Place {
        std::uint32_t chunk = 0, offset = 0, words = 0;
    };

    /// Keeps a copy.
    Place Store(std::span<const std::uint32_t> words);
    void Free(const Place& place);
    std::span<const std::uint32_t> At(const Place& place) const {
        return {m_chunks[place.chunk].words.get() + place.offset, place.words};
    }
    std::size_t Bytes() const;

  private:
    struct Chunk {
        std::unique_ptr<std::uint32_t[]> words;
        std::size_t size = 0, used = 0;
        std::size_t alive = 0; ///< recordings in it
    };
    std::uint32_t ChunkFor(std::size_t words);

    std::vector<Chunk> m_chunks;
    std::vector<std::uint32_t> m_free; // numbers of chunks without memory
    std::uint32_t m_open = UINT32_MAX; // the one that is being filled
};

} // namespace zv
