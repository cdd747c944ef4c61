#pragma once

#include <string>
#include <vector>

namespace zv::host {

/// Checks, before any work is done, that a picture can be written to `output`: its name ends in
/// ".png", its folder is there and can be written, and it is none of `inputs`, under whatever name.
/// Throws DataError.
void CheckOutput(const std::string& output, const std::vector<std::string>& inputs);

/// Files from which a map is made: the map itself and all that its project names. Throws DataError
/// on one that is not there.
std::vector<std::string> InputsOf(const std::string& map, const std::string& data);

} // namespace zv::host
