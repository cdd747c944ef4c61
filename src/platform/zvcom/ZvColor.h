#pragma once

#include <string>
#include <string_view>

#include "platform/Export.h"

/// The one palette of 256 colours and what the foreign formats call them.
///
/// It is read once, at the first call, from the data file "palette.json" (zv::FindDataFile). Every
/// operation throws zv::DataError (file, place, reason) while that file cannot be read. Indexes
/// outside 0 to 255 stand for black.
class ZVDISP_API CZvColor {
  public:
    /// Channels from 0 to 255. False, and black, for an index outside the palette.
    static bool GetRGBColor(int index, int& r, int& g, int& b);

    /// Channels from 0.0 to 1.0. False, and black, for an index outside the palette.
    static bool GetCGMColor(int index, double& r, double& g, double& b);

    /// The colour in the words of a format: target 0 the colour names of SMT ("white" for 8),
    /// 1 the colour words of Landmark metafiles, 2 the AutoCAD colour number in decimal. No word
    /// holds a blank or a comma. Empty for any other target.
    static std::string GetEXPColor(int index, int target);

    /// Index of the nearest colour in the palette of 40 that map files of old versions have. Those
    /// are the first 40 of this palette, so indexes 0 to 39 stay.
    static int Convert256To40(int index);

    /// The way back: index in the palette of 256 of an old colour, and its channels from 0 to 255.
    /// 0 and black for an index outside 0 to 39.
    static int Get256CrossIndexRGB(int oldIndex, int& r, int& g, int& b);

    /// Name of its own of each colour ("lease-3"); empty for an index outside the palette.
    static std::string S_GetName(int index);
    /// Index of a name, -1 when there is none.
    static int S_Find(std::string_view name);
};
