#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <span>
#include <string>

namespace zv {

/// Levels of groups within groups that a hibernate record may hold; a group that is no member is
/// level 1.
inline constexpr int kRecordGroupLevels = 64;

/// Appends the blocks of hibernate records to memory, in the machine's own layout. Whoever owns the
/// writer decides when the bytes go to a file.
class RecordWriter {
  public:
    void Bool(bool value) { Byte(value ? 1 : 0); }
    void Byte(unsigned char value) { *Extend(1) = static_cast<char>(value); }
    void Int(std::int32_t value) { Put(&value, sizeof value); }
    void Unsigned(std::uint32_t value) { Put(&value, sizeof value); }
    void Double(double value) { Put(&value, sizeof value); }
    /// A length and that many bytes, no terminator.
    void String(const std::string& text);
    void Put(const void* bytes, std::size_t size) {
        if (size) std::memcpy(Extend(size), bytes, size);
    }
    /// Room for `size` more bytes, to be filled by the caller; borrowed until the next call.
    char* Extend(std::size_t size) {
        if (m_capacity - m_size < size) Grow(size);
        char* const room = m_bytes.get() + m_size;
        m_size += size;
        return room;
    }

    std::size_t Size() const { return m_size; }
    /// Borrowed until the next call that changes the writer.
    std::span<const char> Bytes() const { return {m_bytes.get(), m_size}; }
    /// Cuts the bytes back to the first `size`. REQUIRES: size <= Size().
    void Truncate(std::size_t size) { m_size = size; }
    /// Empties the writer and gives its memory back.
    void Release();

    /// Level of the group being written, 0 outside of groups.
    int& Level() { return m_level; }

  private:
    void Grow(std::size_t more);

    struct Free {
        void operator()(char* bytes) const { std::free(bytes); }
    };
    std::unique_ptr<char, Free> m_bytes;
    std::size_t m_size = 0;
    std::size_t m_capacity = 0;
    int m_level = 0;
};

/// Where a reader finds the bytes behind its window.
class RecordSource {
  public:
    virtual ~RecordSource() = default;
    /// The bytes behind those given so far, as many as are convenient; empty at the end. Borrowed
    /// until the next call.
    virtual std::span<const char> More() = 0;
    /// Number of bytes that More has not given yet.
    virtual std::uint64_t Left() = 0;
};

/// Reads the blocks of hibernate records from a window of memory that a source may follow, or from
/// a stream. As with a stream, the end shows only once a read came short: AtEnd is true from then
/// on, and nothing more is read.
class RecordReader {
  public:
    explicit RecordReader(std::span<const char> window, RecordSource* source = nullptr)
        : m_begin(window.data()), m_pos(m_begin), m_end(m_begin + window.size()), m_source(source) {
    }
    /// Reads exactly the bytes of the blocks asked for, so that the stream stands behind the record
    /// afterwards.
    explicit RecordReader(std::FILE* stream) : m_stream(stream) {}

    /// 0 when the value is cut off.
    std::int32_t Int() { return Value<std::int32_t>(); }
    std::uint32_t Unsigned() { return Value<std::uint32_t>(); }
    double Double() { return Value<double>(); }
    /// These leave the target as it was when nothing is left.
    void Bool(bool& value) {
        unsigned char byte = 0;
        if (Get(&byte, 1)) value = byte != 0;
    }
    void Byte(unsigned char& value) { Get(&value, 1); }
    /// Reads a length and that many bytes; the text ends at its first zero byte. Empty at the end,
    /// and for a length that is negative or more than the source still holds.
    void String(std::string& text);

    /// The next int as the count of elements of `elementSize` bytes. 0, and the record is broken
    /// off, when it is negative or the source does not hold that many.
    std::size_t Count(std::size_t elementSize);
    /// All of the bytes, or false and the target untouched (of more than kScalar bytes: undefined).
    bool Get(void* to, std::size_t size) {
        if (static_cast<std::size_t>(m_end - m_pos) < size) return GetSlow(to, size);
        std::memcpy(to, m_pos, size);
        m_pos += size;
        return true;
    }
    /// The next bytes in place, and steps over them; null when they do not lie in one piece. Then
    /// Get copies them.
    const char* InPlace(std::size_t size) {
        if (static_cast<std::size_t>(m_end - m_pos) < size) return nullptr;
        const char* const bytes = m_pos;
        m_pos += size;
        return bytes;
    }

    bool AtEnd() const { return m_atEnd || (m_stream && std::feof(m_stream)); }
    /// Gives the record up: from now on the reader stands at the end.
    void BreakOff();
    /// Upper bound of the bytes still to come.
    std::uint64_t Left();
    /// Bytes read so far from window and source.
    std::uint64_t Taken() const { return m_before + static_cast<std::uint64_t>(m_pos - m_begin); }

    /// Level of the group being read, 0 outside of groups.
    int& Level() { return m_level; }

  private:
    static constexpr std::size_t kScalar = 8;

    template<class T>
    T Value() {
        T value{};
        Get(&value, sizeof value);
        return value;
    }
    bool GetSlow(void* to, std::size_t size);
    std::size_t Gather(char* to, std::size_t size);
    bool Refill();

    const char* m_begin = nullptr;
    const char* m_pos = nullptr;
    const char* m_end = nullptr;
    std::uint64_t m_before = 0; // bytes of the windows before this one
    RecordSource* m_source = nullptr;
    std::FILE* m_stream = nullptr;
    bool m_atEnd = false;
    int m_level = 0;
};

} // namespace zv
