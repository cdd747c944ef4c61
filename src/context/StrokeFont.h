#pragma once

#include <cstdint>
#include <span>

namespace zv {

/// One pen step of the stroke font.
///
/// A cell is 6 wide and 8 high. The baseline stands at y = 2, capitals reach to 8, descenders to 0,
/// and the ink of a glyph lies between x = 0 and x = 4, so that a gap of 2 parts two letters.
struct StrokeStep {
    std::int16_t op; ///< kStrokeDraw, kStrokeMove, or 0 behind the last step of a row
    std::int16_t dx; ///< to the right, in sixths of a cell's width
    std::int16_t dy; ///< upwards, in the same unit
};

inline constexpr std::int16_t kStrokeDraw = 2; ///< draws to the new position
inline constexpr std::int16_t kStrokeMove = 3; ///< ends the stroke and moves with the pen up

inline constexpr int kStrokeRows = 128;
inline constexpr int kStrokeSteps = 18;

/// The pen steps of character `c`, without the end mark.
///
/// The last step moves with the pen up, so it ends the last stroke: the steps of a line feed add up
/// to (0, -9), those of every other glyph to (6, 0). The view lies in a constant table.
/// Empty for the rows without a glyph (0, 13, 127) and for `c` above 127.
std::span<const StrokeStep> StrokeGlyph(unsigned char c);

} // namespace zv
