#include "persist/RecordStream.h"

#include <algorithm>
#include <new>

namespace zv {

namespace {

// What a stream that cannot be measured (a pipe) is taken to hold at most.
constexpr std::uint64_t kUnmeasured = 16u << 20;

std::uint64_t LeftInStream(std::FILE* stream) {
    if (std::feof(stream)) return 0;
    const off_t here = ftello(stream);
    if (here < 0 || fseeko(stream, 0, SEEK_END) != 0) return kUnmeasured;
    const off_t end = ftello(stream);
    fseeko(stream, here, SEEK_SET);
    return end > here ? static_cast<std::uint64_t>(end - here) : 0;
}

} // namespace

void RecordWriter::String(const std::string& text) {
    Int(static_cast<std::int32_t>(text.size()));
    Put(text.data(), text.size());
}

void RecordWriter::Release() {
    m_bytes.reset();
    m_size = m_capacity = 0;
}

void RecordWriter::Grow(std::size_t more) {
    const std::size_t capacity = std::max({std::size_t{256}, m_capacity * 2, m_size + more});
    char* const grown = static_cast<char*>(std::realloc(m_bytes.get(), capacity));
    if (!grown) throw std::bad_alloc();
    static_cast<void>(m_bytes.release());
    m_bytes.reset(grown);
    m_capacity = capacity;
}

void RecordReader::BreakOff() {
    m_atEnd = true;
    m_pos = m_end;
}

std::uint64_t RecordReader::Left() {
    if (m_atEnd) return 0;
    if (m_stream) return LeftInStream(m_stream);
    return static_cast<std::uint64_t>(m_end - m_pos) + (m_source ? m_source->Left() : 0);
}

bool RecordReader::Refill() {
    if (!m_source) return false;
    const std::span<const char> window = m_source->More();
    m_before += static_cast<std::uint64_t>(m_end - m_begin);
    m_begin = m_pos = window.data();
    m_end = m_begin + window.size();
    return !window.empty();
}

std::size_t RecordReader::Gather(char* to, std::size_t size) {
    if (m_stream) {
        const std::size_t got = std::fread(to, 1, size, m_stream);
        m_before += got;
        return got;
    }
    std::size_t got = 0;
    while (got < size && (m_pos != m_end || Refill())) {
        const std::size_t take = std::min(size - got, static_cast<std::size_t>(m_end - m_pos));
        std::memcpy(to + got, m_pos, take);
        m_pos += take;
        got += take;
    }
    return got;
}

bool RecordReader::GetSlow(void* to, std::size_t size) {
    if (m_atEnd) return false;
    char scalar[kScalar];
    char* const target = size <= kScalar ? scalar : static_cast<char*>(to);
    if (Gather(target, size) < size) {
        m_atEnd = true;
        return false;
    }
    if (target == scalar) std::memcpy(to, scalar, size);
    return true;
}

std::size_t RecordReader::Count(std::size_t elementSize) {
    const std::int32_t count = Int();
    if (count <= 0 || AtEnd()) {
        if (count < 0) BreakOff();
        return 0;
    }
    const std::uint64_t bytes = static_cast<std::uint64_t>(count) * elementSize;
    if (bytes > static_cast<std::uint64_t>(m_end - m_pos) && bytes > Left()) {
        BreakOff();
        return 0;
    }
    return static_cast<std::size_t>(count);
}

void RecordReader::String(std::string& text) {
    const std::size_t length = Count(1);
    if (const char* const bytes = InPlace(length)) {
        text.assign(bytes, strnlen(bytes, length));
        return;
    }
    text.resize(length);
    if (length && !Get(text.data(), length)) text.clear();
    text.resize(strnlen(text.data(), text.size()));
}

} // namespace zv
