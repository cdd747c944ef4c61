#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "platform/Export.h"

namespace zv {

/// Turns a path of the engine into one of this system: "\" becomes the native separator, a drive
/// letter ("C:\MAPS") becomes a folder of that letter under the work folder ("<work>/drive_c"),
/// and, where a piece does not exist as it is spelled, one that differs only in case is taken
/// ("\Template" and "\template\" are one folder). Pieces that exist in neither spelling stay as
/// they are.
ZVDISP_API std::filesystem::path NativePath(std::string_view path);

/// fopen on NativePath(path); binary always. Null on failure, errno tells why.
ZVDISP_API std::FILE* OpenFile(std::string_view path, const char* mode);

/// Bytes of an open file at a place, whatever its stream's position: fewer than asked at the end of
/// the file or on a fault. The stream must not buffer (setvbuf with _IONBF).
ZVDISP_API std::size_t ReadAt(std::FILE* file, std::uint64_t offset, std::span<char> to);
/// Writes bytes at a place; false when they could not be written in full.
ZVDISP_API bool WriteAt(std::FILE* file, std::uint64_t offset, std::span<const char> bytes);
/// Whether an open file still has a name on disk: false once it was deleted.
ZVDISP_API bool HasName(std::FILE* file);

/// Makes a folder and what is missing above it, private to the user where it is new. Errors are
/// left to whoever opens a file in it. True when the folder exists afterwards.
ZVDISP_API bool MakeFolder(std::string_view path);

/// Writes a whole file beside the target, flushes it and renames it over the target. Throws
/// zv::DataError naming file and reason; the old file then stands and nothing half-written stays.
/// A new file has the usual access rights, a replaced one keeps those it had; behind a link the
/// file that it points to is replaced. A device or pipe is written in place.
ZVDISP_API void WriteFileAtomically(std::string_view path, std::string_view content);

} // namespace zv
