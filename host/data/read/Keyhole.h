#pragma once

#include "data/read/Feature.h"

namespace zv::host {

/// Closes a ring whose last point is not its first.
void CloseRing(Points& ring);

/// The rings of a polygon as one list of vertices: the outer ring, then each hole and the way back
/// to the first vertex. Each bridge is walked there and back, so that it bounds no area by the
/// odd-even rule, and each vertex behind a jump has its pen flag clear, so that an outline drawn of
/// the same list has gaps there. A polygon without holes is its outer ring, closed.
Points Keyhole(const Part& polygon);

/// The rings as one line with gaps between them.
Points Outline(const Part& polygon);

} // namespace zv::host
