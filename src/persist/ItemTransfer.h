#pragma once

#include <cstdio>

#include "persist/RecordStream.h"

namespace zv {

/// Hands `put` the writer of the transfer under way or, outside of one, a writer whose bytes go to
/// the stream that the last transfer left behind. Without either nothing happens.
template<class Put>
void Emit(RecordWriter* out, std::FILE* stream, Put&& put) {
    if (out) return put(*out);
    if (!stream) return;
    RecordWriter own;
    put(own);
    std::fwrite(own.Bytes().data(), 1, own.Size(), stream);
}

/// The same for reading.
template<class Take>
void Fetch(RecordReader* in, std::FILE* stream, Take&& take) {
    if (in) return take(*in);
    if (!stream) return;
    RecordReader own(stream);
    take(own);
}

/// Makes a value the transfer under way and puts the one before it back at the end.
template<class T>
class TransferScope {
  public:
    TransferScope(T*& place, T& value) : m_place(place), m_before(place) { place = &value; }
    ~TransferScope() { m_place = m_before; }
    TransferScope(const TransferScope&) = delete;
    TransferScope& operator=(const TransferScope&) = delete;

  private:
    T*& m_place;
    T* m_before;
};

} // namespace zv
