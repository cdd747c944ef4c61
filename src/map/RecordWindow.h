#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>

#include "persist/RecordStream.h"

namespace zv {

class ScratchFile;

/// Reads records of a scratch file through large reads.
///
/// A walk over a culture list goes backward through 16 neighbours and then jumps back by the
/// records of 272 pick IDs. So a window spans the next records of the walk that lie close together,
/// in whatever order, and what lies between the jumps is not read.
class RecordWindow : public RecordSource {
  public:
    /// `file` is borrowed for the life of the window.
    explicit RecordWindow(ScratchFile& file) : m_file(file) {}

    bool Covers(std::uint64_t offset) const {
        return offset >= m_offset && offset - m_offset < m_filled;
    }
    /// Fills the window with the records at `first` and at those of the offsets that follow in the
    /// walk which lie near. `next` gives the offsets one by one, kNoOffset at the end; `length`
    /// bytes are taken to be enough for one record.
    template<class Next>
    void Load(std::uint64_t first, std::size_t length, Next&& next) {
        std::uint64_t low = first, high = first;
        for (int i = 0; i < kLookAhead; ++i) {
            const std::uint64_t offset = next();
            if (offset == kNoOffset || !IsNear(offset, low, high)) break;
            low = std::min(low, offset);
            high = std::max(high, offset);
        }
        Fill(low, static_cast<std::size_t>(high - low) + length);
    }
    /// A reader at a record, with nothing to read where the window does not reach (the file was
    /// cut). Borrowed until the next Load.
    RecordReader At(std::uint64_t offset);

    std::span<const char> More() override;
    std::uint64_t Left() override;

    static constexpr std::uint64_t kNoOffset = ~std::uint64_t{0};

  private:
    static constexpr int kLookAhead = 256;
    static constexpr std::uint64_t kNear = 8 * 1024;
    static constexpr std::uint64_t kSpan = 128 * 1024;

    static bool IsNear(std::uint64_t offset, std::uint64_t low, std::uint64_t high) {
        if (offset < low) return low - offset <= kNear && high - offset <= kSpan;
        if (offset > high) return offset - high <= kNear && offset - low <= kSpan;
        return true;
    }
    void Fill(std::uint64_t offset, std::size_t size);

    ScratchFile& m_file;
    std::unique_ptr<char[]> m_bytes;
    std::size_t m_capacity = 0;
    std::size_t m_filled = 0;
    std::uint64_t m_offset = 0;
    std::unique_ptr<char[]> m_more; // what follows the window, for records that run over its end
    std::uint64_t m_moreOffset = 0;
};

} // namespace zv
