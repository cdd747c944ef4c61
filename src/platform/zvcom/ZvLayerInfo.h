#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Export.h"
#include "platform/zvcom/ZvTypes.h"

/// What is known of layers and cultures by their numbers: titles, file words, drawing order.
///
/// The tables are read once, at the first call, from the data file "layers.json"
/// (zv::FindDataFile). Every operation throws zv::DataError (file, place, reason) while that file
/// cannot be read. A layer that the tables lack is called "Layer <number>", has no cultures and is
/// drawn as a whole.
class ZVDISP_API CZvLayerInfo {
  public:
    /// Cultures of a layer that are drawn in one pass, in drawing order. `firstPass`: the
    /// backgrounds under all layers' other cultures; `screen`: for the screen, else for paper. No
    /// culture stands in both passes of one target.
    static std::vector<int> S_GetLayerCultures(E_Layer layer, bool firstPass, bool screen);

    /// True for a layer that is drawn as a whole, once.
    static bool DrawOnce(E_Layer layer);
    /// True for a layer whose items are found by their ID.
    static bool S_BuildSecondaryIndex(E_Layer layer);
    /// True for a layer whose white fills turn black on paper.
    static bool S_CheckWhiteConvert(E_Layer layer);

    /// Never empty.
    static std::string GetLayerTitle(E_Layer layer);
    /// Letters and digits, never empty, of no other layer in any case: "WELL", "L4711".
    static std::string GetLayerAbbr(E_Layer layer);

    /// Title of a culture: with `readable` in plain words, else one word of letters and digits for
    /// logs and the layer names of other formats. A culture that the tables lack is called by its
    /// number; one that packs a sub-value has that behind a "-".
    static std::string GetCultureTitle(ZVCulture culture, bool readable);

    /// Reads the user's own culture titles from "cultures.json" in the user's folder, or in the
    /// shared one, in place of those read before. False, with no titles, when there is no such
    /// file. Throws zv::DataError on one that is broken; the titles read before then stay.
    static bool S_LoadUserCultDesc();
    /// The user's title of a culture, without blanks; GetCultureTitle(culture, false) when the user
    /// gave none.
    static std::string S_GetUserCultTitle(ZVCulture culture);

    /// Numbers of the layers that the tables hold, ascending.
    static std::vector<int> S_GetLayers();
    /// All cultures that are at home in a layer, drawn or not.
    static std::vector<int> S_GetCultures(E_Layer layer);
    /// Looks a layer up by title or abbreviation, without regard to case. False, with `layer`
    /// untouched, when there is none.
    static bool S_FindLayer(std::string_view word, E_Layer& layer);
    /// Looks a culture up by its word or title, without regard to case; as S_FindLayer.
    static bool S_FindCulture(std::string_view word, ZVCulture& culture);
    /// Whether items of a kind may stand in a culture: those that memory control shows zone by zone
    /// hold texts, lines, polygons and circles alone.
    static bool S_CultureHolds(ZVCulture culture, ZVDispType kind);

    /// Folder of a template type below the template folder, with a "\" at its end or empty.
    static std::string S_GetTemplateFolder(int type);
    /// Zones of a template type.
    static std::vector<std::string> S_GetTemplateZones(int type);
};

namespace zv {

/// Key under which a layer's settings hold the colour of a culture: "CULTURE#220\COLOR". All layers
/// spell it alike, since each has settings of its own.
ZVDISP_API std::string CultureColorKey(E_Layer layer, ZVCulture culture);

} // namespace zv
