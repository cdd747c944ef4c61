#pragma once

#include "cli/Options.h"

class CZvDispMap;

namespace zv::host {

/// Checks layers, post, user set and culture of the options against a map that is loaded. Throws
/// DataError on a number that matches nothing, with those that there are.
void CheckChosen(CZvDispMap& map, const RenderOptions& options);

/// Leaves only the layers and the culture of the options to be drawn.
void KeepChosen(CZvDispMap& map, const RenderOptions& options);

} // namespace zv::host
