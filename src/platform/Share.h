#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/Export.h"

/// Where the library's data files lie: symbols, layer catalogue, palette, fonts table.
namespace zv {

/// Folder of the shared data files: the environment's ZVDISP_SHARE, else the folder that the
/// library was installed to when it exists, else the one in the source tree that it was built from.
/// The result need not exist.
ZVDISP_API std::filesystem::path ShareFolder();

/// Folder of the user's own files: the environment's ZVDISP_CONFIG, else $XDG_CONFIG_HOME/zvdisp
/// (where that is an absolute path), else $HOME/.config/zvdisp. Empty when none of them is set. The
/// result need not exist.
ZVDISP_API std::filesystem::path UserConfigFolder();

/// Path of a data file: the one in the user's folder when there is one of that name, else the
/// shared one, which need not exist.
ZVDISP_API std::filesystem::path FindDataFile(std::string_view name);

/// Bytes of a regular file. Throws DataError that names the file and the system's reason.
ZVDISP_API std::string ReadWholeFile(const std::filesystem::path& path);

} // namespace zv
