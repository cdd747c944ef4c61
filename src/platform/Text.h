#pragma once

#include <string>
#include <string_view>

#include "platform/Export.h"

namespace zv {

/// UTF-8 to the single-byte text of labels (code page 1252; 0xB0 is the degree sign). What does not
/// fit, malformed bytes included, becomes "?" once a character; `lost` grows by one for each.
ZVDISP_API std::string ToLabel(std::string_view utf8, int& lost);
/// And back. Bytes without a character in the code page become U+FFFD.
ZVDISP_API std::string ToUtf8(std::string_view label);

} // namespace zv
