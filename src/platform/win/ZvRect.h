#pragma once

#include <cstdint>

#include "platform/Export.h"

/// Rectangle in window pixels, y downward; right and bottom lie outside.
struct RECT {
    std::int32_t left = 0, top = 0, right = 0, bottom = 0;
};

/// Point in window pixels, y downward.
struct CPoint {
    std::int32_t x = 0, y = 0;
};

struct CRect : RECT {
    CRect() = default;
    CRect(std::int32_t l, std::int32_t t, std::int32_t r, std::int32_t b) : RECT{l, t, r, b} {}
    std::int32_t Width() const { return static_cast<std::int32_t>(std::int64_t{right} - left); }
    std::int32_t Height() const { return static_cast<std::int32_t>(std::int64_t{bottom} - top); }
};
