#pragma once

#include <span>

#include "context/DrawSink.h"

namespace zv {

/// Fills a closed outline, whatever its shape, into `sink`.
///
/// `vertices`: x, y, z of each vertex in map units; the last one repeats the first and is left out,
/// so an open ring must be handed over with its first vertex repeated. Where edges cross, what an
/// odd number of turns encloses is filled. Vertices that are not finite are left out.
/// `mode`: 1 draws with exclusive or, any other blends by alpha.
/// Gives 1; 0, with a message, when there is no tessellator. Errors inside it are shown in messages
/// titled "polygon".
/// REQUIRES: vertices.size() is a multiple of 3.
int TessellatePolygon(std::span<const double> vertices, int mode, DrawSink& sink);

} // namespace zv
