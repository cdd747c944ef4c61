#pragma once

#include <string>
#include <string_view>

#include "platform/Export.h"

/// Numbers as text and back, in the C locale whatever the user's is, of any length.
namespace zv {

/// "%d".
ZVDISP_API std::string FormatInt(long long value);
/// "%.<decimals>f"; of a number that is not finite "nan", "inf", "-inf".
ZVDISP_API std::string FormatFixed(double value, int decimals);
/// Shortest text that reads back as the same number.
ZVDISP_API std::string FormatShortest(double value);

/// The nearest number of single precision; what lies beyond its range becomes infinite.
ZVDISP_API float ToFloat(double value);

/// The number at the head of the text behind leading blanks, as the C function does: what cannot be
/// read gives 0, and what follows the number is not looked at. Out of range saturates.
ZVDISP_API int ParseInt(std::string_view text);
ZVDISP_API double ParseDouble(std::string_view text);

} // namespace zv
