#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Error.h"
#include "platform/Export.h"

/// What layers and cultures there are: the content of "layers.json".
namespace zv {

inline constexpr int kMaxLayerNumber = 999;
inline constexpr int kMaxCultureNumber = 65535;

/// A feature kind.
struct CultureEntry {
    int number = 0;
    std::string name;  ///< one word of letters and digits, unique without regard to case
    std::string title; ///< for people
    /// Memory control may show it zone by zone: it holds texts, lines, polygons and circles alone.
    bool managed = false;
};

/// Cultures of one target (screen or paper) in drawing order. No culture stands in both passes.
struct LayerPasses {
    std::vector<int> first; ///< the backgrounds, under all layers' other cultures
    std::vector<int> then;  ///< lines, symbols and labels
};

/// A kind of map content.
struct LayerEntry {
    int number = 0;
    std::string title;         ///< for people; unique without regard to case
    std::string abbr;          ///< letters and digits, unique without regard to case; names files
    std::vector<int> cultures; ///< all that are at home here, drawn or not
    LayerPasses screen;
    LayerPasses paper;
    bool drawOnce = false;       ///< drawn as a whole, in the second pass
    bool secondaryIndex = false; ///< its items are found by their ID
    bool whiteConvert = false;   ///< white fills turn black on paper
};

/// A kind of template and where its files lie under the template folder.
struct TemplateType {
    int number = 0;
    std::string title;
    std::string folder;             ///< with a "\" at its end, or empty
    std::vector<std::string> zones; ///< words that may follow the folder
};

/// Numbers to places in a table, for small numbers of any density. -1 for a number that is not
/// there.
class NumberIndex {
  public:
    void Enter(int number, std::size_t place);
    int Find(int number) const noexcept {
        return number >= 0 && std::size_t(number) < m_places.size() ? m_places[std::size_t(number)]
                                                                    : -1;
    }

  private:
    std::vector<std::int32_t> m_places;
};

/// The tables with look-up by number in constant time. Immutable.
class ZVDISP_API LayerCatalogue {
  public:
    LayerCatalogue() = default;
    /// REQUIRES what ParseLayerCatalogue checks.
    LayerCatalogue(std::vector<CultureEntry> cultures, std::vector<LayerEntry> layers,
                   std::vector<TemplateType> templates);

    const std::vector<CultureEntry>& Cultures() const { return m_cultures; }
    const std::vector<LayerEntry>& Layers() const { return m_layers; }
    const std::vector<TemplateType>& Templates() const { return m_templates; }

    /// Null for a number that the catalogue lacks. Owned by this.
    const CultureEntry* FindCulture(int number) const noexcept;
    const LayerEntry* FindLayer(int number) const noexcept;
    const TemplateType* FindTemplate(int number) const noexcept;

    /// By title or abbreviation, name or title, without regard to case; null when there is none.
    const LayerEntry* FindLayer(std::string_view word) const noexcept;
    const CultureEntry* FindCulture(std::string_view word) const noexcept;

  private:
    std::vector<CultureEntry> m_cultures;
    std::vector<LayerEntry> m_layers;
    std::vector<TemplateType> m_templates;
    NumberIndex m_cultureIndex;
    NumberIndex m_layerIndex;
};

/// Abbreviation of a layer that no catalogue holds: "L" and the number, with "M" for a minus.
ZVDISP_API std::string AbbrOfUnlisted(int layer);

/// Equal without regard to the case of ASCII letters.
ZVDISP_API bool SameWord(std::string_view a, std::string_view b) noexcept;

/// Reads and checks a catalogue; docs/layer-catalogue.md is its grammar. `name` is the file name
/// for errors. Throws DataError with file, place (JSON pointer; line and column where the text is
/// not JSON) and reason.
ZVDISP_API LayerCatalogue ParseLayerCatalogue(std::string_view json, const std::string& name);

} // namespace zv
