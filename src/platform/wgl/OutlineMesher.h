#pragma once

#include <vector>

#include "platform/wgl/GlyphOutline.h"

namespace zv {

/// Triangles that fill the contours by the non-zero rule, as outline fonts wind, given as x, y of
/// each corner. Empty when the tessellator gives up.
std::vector<float> FillContours(const std::vector<GlyphOutline::Contour>& contours);

} // namespace zv
