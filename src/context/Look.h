#pragma once

#include <cstdint>
#include <unordered_map>
#include <vector>

#include "context/DrawSink.h"

namespace zv {

/// State that a recorded figure is drawn with. Inside a symbol's shape what was not set there comes
/// from the symbol.
struct Look {
    std::uint32_t rgba = 0xFFFFFFFFu; ///< red in the lowest byte
    std::uint16_t width = 1;          ///< pixels
    std::uint16_t stipple = kSolidLine;
    Compose compose = Compose::Replace;
    bool ownColor = false, ownWidth = false, ownStipple = false;

    bool operator==(const Look&) const = default;

    /// This look inside another.
    Look Within(const Look& outer) const {
        Look look = *this;
        if (!ownColor) look.rgba = outer.rgba;
        if (!ownWidth) look.width = outer.width;
        if (!ownStipple) look.stipple = outer.stipple;
        return look;
    }
};

/// Numbers the looks that occur; a map has few.
class LookTable {
  public:
    std::uint32_t NumberOf(const Look& look);
    /// REQUIRES: a number that NumberOf gave.
    const Look& operator[](std::uint32_t number) const { return m_looks[number]; }

  private:
    struct Hash {
        std::size_t operator()(const Look& look) const;
    };
    std::vector<Look> m_looks;
    std::unordered_map<Look, std::uint32_t, Hash> m_numbers;
    std::uint32_t m_last = 0;
};

} // namespace zv
