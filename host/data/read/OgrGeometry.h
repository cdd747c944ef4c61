#pragma once

#include <string>

#include "data/read/Feature.h"

class OGRGeometry;

namespace zv::host {

/// Takes a geometry apart into points, lines and polygons. Curves become lines. A piece is broken
/// when it has a coordinate that is not finite, is a line of fewer than two points or an outer ring
/// of fewer than three different ones; broken pieces, and holes broken in that way, are left out.
///
/// Fills `feature.parts`, and `feature.flaw` when something was left out; or `feature.problem` when
/// there is no geometry, it is empty, or nothing of it can be used.
void TakeGeometry(const OGRGeometry* geometry, Feature& feature);

} // namespace zv::host
