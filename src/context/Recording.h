#pragma once

#include <bit>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

#include "context/Affine.h"

namespace zv {

/// Drawing calls as a stream of 32-bit words, relative to an origin of the recording's own:
///
///   stream   = { call }
///   call     = head, body         head: operation in the low 8 bits, count above them
///   look     = number             of the look table; holds until the next one
///   lines, triangles              count vertices, two floats each
///   farLines, farTriangles        count vertices, two doubles each: where floats are too coarse
///   text     = style, place, characters (count of them, padded to whole words)
///   symbol   = number, place
///   place    = a, b, c, d as floats, tx, ty as doubles
enum class Call : std::uint32_t {
    Look,
    Lines,
    FarLines,
    Triangles,
    FarTriangles,
    StrokeText,
    OutlineText,
    Symbol,
};

inline constexpr std::uint32_t kMostInCall = (1u << 24) - 1;
inline constexpr std::size_t kPlaceWords = 8;

constexpr std::uint32_t CallHead(Call call, std::size_t count) {
    return static_cast<std::uint32_t>(call) | static_cast<std::uint32_t>(count) << 8;
}

/// One call of a stream, read.
struct RecordedCall {
    Call call;
    std::uint32_t count;
    const std::uint32_t* body;

    /// Vertex i of a figure.
    Point2 At(std::size_t i) const {
        if (call == Call::Lines || call == Call::Triangles) {
            float xy[2];
            std::memcpy(xy, body + 2 * i, sizeof xy);
            return {xy[0], xy[1]};
        }
        double xy[2];
        std::memcpy(xy, body + 4 * i, sizeof xy);
        return {xy[0], xy[1]};
    }
    bool IsLines() const { return call == Call::Lines || call == Call::FarLines; }
    bool IsTriangles() const { return call == Call::Triangles || call == Call::FarTriangles; }
    /// Look, style or symbol.
    std::uint32_t Number() const { return body[0]; }
    Affine Place() const;
    std::string_view Text() const {
        return {reinterpret_cast<const char*>(body + 1 + kPlaceWords), count};
    }
};

/// Walks a stream from its head.
class RecordWalk {
  public:
    explicit RecordWalk(std::span<const std::uint32_t> words) : m_words(words) {}
    /// False at the end.
    bool Next(RecordedCall& call);

  private:
    std::span<const std::uint32_t> m_words;
};

} // namespace zv
