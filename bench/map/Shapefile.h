#pragma once

#include <string>

namespace zv::bench {

/// Writes the lines of a map as a shapefile.
void WriteShapefile(const std::string& path, long count);
/// Reads every feature of a shapefile through OGR; gives how many vertices there were.
long ReadShapefile(const std::string& path);

} // namespace zv::bench
