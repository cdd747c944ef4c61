#pragma once

#include <algorithm>
#include <array>

namespace zv {

/// The brightness of an index: 0 is 1.0, 9 is 0.1. An index outside is taken as the nearest of
/// these.
inline double Brightness(int index) {
    constexpr std::array kBrightness = {1.0, 0.9, 0.8, 0.7, 0.6, 0.5, 0.4, 0.3, 0.2, 0.1};
    return kBrightness[static_cast<std::size_t>(std::clamp(index, 0, 9))];
}

} // namespace zv
