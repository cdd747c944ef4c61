#pragma once

#include <cstddef>

namespace zv {

// Sizes of the blocks of a hibernate record in bytes; the grammar stands in
// docs/hibernate-record.md.
inline constexpr std::size_t kBoolBytes = 1;
inline constexpr std::size_t kByteBytes = 1;
inline constexpr std::size_t kIntBytes = 4;
inline constexpr std::size_t kDoubleBytes = 8;
inline constexpr std::size_t kPointBytes = 3 * kDoubleBytes + kBoolBytes;
/// One vertex's share of the four arrays X, Y, Z and down.
inline constexpr std::size_t kVertexBytes = 3 * kDoubleBytes + kBoolBytes;
/// The least that a string, or a record of any kind, takes.
inline constexpr std::size_t kStringBytes = kIntBytes;
inline constexpr std::size_t kKindBytes = kIntBytes;

/// Kind and common part with an empty ID: fill, inactive, smooth, visibility; colour; degree; line
/// width, line type; fill style; ID; pick ID; brightness.
inline constexpr std::size_t kCommonBytes = kKindBytes + 4 * kBoolBytes + kByteBytes +
                                            kDoubleBytes + 2 * kByteBytes + kIntBytes +
                                            kStringBytes + kIntBytes + kDoubleBytes;

// Own parts behind it, with empty strings and lists.
inline constexpr std::size_t kTextBytes =
    2 * kByteBytes + kDoubleBytes + kPointBytes + 3 * kStringBytes;
inline constexpr std::size_t kPolyLineBytes = kIntBytes;
inline constexpr std::size_t kPolygonBytes =
    kPolyLineBytes + kBoolBytes + 2 * kDoubleBytes + kBoolBytes;
inline constexpr std::size_t kSymbolBytes = kPointBytes + kDoubleBytes + 3 * kIntBytes + kBoolBytes;
inline constexpr std::size_t kCircleBytes = kPointBytes + kDoubleBytes;
inline constexpr std::size_t kGroupBytes = kPointBytes + kIntBytes;
inline constexpr std::size_t kArcBytes = kPointBytes + 3 * kDoubleBytes;

} // namespace zv
