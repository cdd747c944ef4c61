#pragma once

#include "context/Affine.h"

namespace zv {

/// Cuts the segment to the box, borders included; false when nothing of it lies inside. The parts
/// of the two ends that lie inside stay bitwise as they are.
/// REQUIRES: finite coordinates.
bool CutLine(Point2& from, Point2& to, const Box& box);

} // namespace zv
