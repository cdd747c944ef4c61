#pragma once

#include "platform/zvcom/ZvTypes.h"

namespace zv {

/// A culture argument taken apart: a number outside 0 to 65535 packs a culture in its high and a
/// sub-value in its low 16 bits.
struct Composite {
    int culture;
    int sub;
};

constexpr Composite Split(ZVCulture value) {
    constexpr int kMost = 65535;
    if (value >= 0 && value <= kMost) return {value, 0};
    const auto bits = static_cast<std::uint32_t>(value);
    return {static_cast<int>(bits >> 16), static_cast<int>(bits & kMost)};
}

} // namespace zv
