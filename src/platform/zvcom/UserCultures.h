#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/Export.h"

namespace zv {

/// The user's own culture titles by culture number; blanks have become "_".
using UserCultures = std::map<int, std::string>;

/// Reads the user's culture titles: {"version": 1, "titles": {"220": "Our wells"}}.
/// Throws DataError with file, place and reason.
ZVDISP_API UserCultures ParseUserCultures(std::string_view json, const std::string& name);

} // namespace zv
