#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Error.h"
#include "platform/Export.h"

/// The colours of maps: the content of "palette.json".
namespace zv {

inline constexpr int kPaletteSize = 256;
/// The colours that map files of old versions know are the first of the palette.
inline constexpr int kOldPaletteSize = 40;

struct PaletteEntry {
    std::array<std::uint8_t, 3> rgb{};
    std::string name;     ///< unique, without blanks
    std::string smt;      ///< colour name of the SMT format
    std::string landmark; ///< colour word of the Landmark format
    int acad = 7;         ///< AutoCAD colour number, 1 to 255
};

struct Palette {
    std::array<PaletteEntry, kPaletteSize> entries;
    /// The nearest of the first 40 colours for each colour; those 40 stand for themselves.
    std::array<std::uint8_t, kPaletteSize> old{};
};

/// Reads and checks a palette. `name` is the file name for errors. Throws DataError with file,
/// place (JSON pointer; line and column where the text is not JSON) and reason.
ZVDISP_API Palette ParsePalette(std::string_view json, const std::string& name);

} // namespace zv
