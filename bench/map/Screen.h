#pragma once

#include <string>

namespace zv::bench {

struct ScreenTimes {
    double fullDraw, redraw, redrawZoomed; // seconds
};

/// Draws `count` lines off-screen at 1600 by 1200, redraws the whole, then 1 % of the area; writes
/// the pictures beside `prefix` when it is not empty.
ScreenTimes DrawOnScreen(long count, const std::string& prefix);

} // namespace zv::bench
