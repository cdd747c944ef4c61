// Reads a hibernate record from memory, in one piece and in small ones, and writes what was read.
// What was written must be read back as the same bytes.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>

#include "items/ZvDisplayItem.h"
#include "persist/RecordStream.h"

namespace {

using zv::RecordReader;
using zv::RecordWriter;

class Pieces : public zv::RecordSource {
  public:
    Pieces(std::span<const char> bytes, std::size_t size) : m_bytes(bytes), m_size(size) {}
    std::span<const char> More() override {
        const std::span<const char> piece = m_bytes.first(std::min(m_size, m_bytes.size()));
        m_bytes = m_bytes.subspan(piece.size());
        return piece;
    }
    std::uint64_t Left() override { return m_bytes.size(); }

  private:
    std::span<const char> m_bytes;
    std::size_t m_size;
};

/// The record of the item that the reader gives; empty when there is none.
std::string Rewritten(RecordReader& reader) {
    const std::unique_ptr<CZvDisplayItem> item(CZvDisplayItem::MakeNewItem(reader));
    if (!item) return {};
    item->Wake(reader);
    RecordWriter writer;
    item->Hibernate(writer);
    return {writer.Bytes().begin(), writer.Bytes().end()};
}

std::string Rewritten(std::span<const char> bytes) {
    RecordReader reader(bytes);
    return Rewritten(reader);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span<const char> bytes(reinterpret_cast<const char*>(data), size);
    const std::string once = Rewritten(bytes);
    if (Rewritten(once) != once) std::abort();
    Pieces pieces(bytes, size % 13 + 1);
    RecordReader reader({}, &pieces);
    if (Rewritten(reader) != once) std::abort();
    return 0;
}
