#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "data/build/ItemMaker.h"
#include "data/build/LabelPlacer.h"
#include "data/build/LoadReport.h"
#include "data/build/Tables.h"
#include "data/read/FeatureReader.h"

class CZvDispMap;

namespace zv::host {

/// A label that looks for room once every symbol has its place.
struct WaitingLabel {
    std::unique_ptr<CZvDispText> text;
    CZvDispPoint anchor;
    Place place;
};

/// Told now and then how many rows of a source have been read (`total` -1: unknown).
using LoadProgress =
    std::function<void(const std::string& source, long long rows, long long total)>;

/// What all sources of one map share. Borrows map and frame.
struct LoadContext {
    CZvDispMap& map;
    const MapFrame& frame;
    std::string file;   ///< the project, for errors
    std::string folder; ///< in which the sources' files lie
    CZvDisplayItemPara para{true};
    LabelPlacer placer;
    std::vector<WaitingLabel> waiting;
    bool keepClear = false; ///< some rule wants its labels clear of symbols
    LoadProgress progress;

    /// Hands an item to the map. Throws CZvUvException when its scratch file cannot be written.
    void Add(ItemPtr item, const Place& place);
};

/// Turns the rows of one source into items of the map.
class SourceLoader {
  public:
    /// Opens the source. Throws DataError on a file, table or field that is not there.
    SourceLoader(LoadContext& context, const Source& source, SourceReport& report);

    void Load();

  private:
    /// Points that rows of one key have given so far.
    struct Gathered {
        bool open = false;
        std::string key;
        std::vector<std::string> values;
        Points points;
        std::vector<std::shared_ptr<RowOutcome>> rows; ///< that the points are of
    };

    std::string CrsOfSource() const;
    void CheckFields() const;
    void CheckChoices(const ItemRule& rule) const;
    void CheckField(const std::string& field, const std::string& pointer) const;
    void JoinTables(std::vector<std::string>& values) const;
    bool Passes(const Row& row, const Feature& feature) const;
    void LoadRow(Feature& feature);
    void Apply(std::size_t rule, const Row& row, const Feature& feature);
    void ApplyPath(const ItemRule& rule, const Row& row);
    void ApplyParts(const ItemRule& rule, const Row& row, const std::vector<Part>& parts);
    void Gather(std::size_t rule, const Row& row, const std::vector<Part>& parts);
    void Flush(std::size_t rule);
    void AddObstacle(CZvDisplayItem& item);
    /// Gives why there are no items; empty when there are.
    std::string AddItems(const ItemRule& rule, const Row& row, const Part& part);
    void AddItem(ItemPtr item, const ItemRule& rule, const Part& part);
    void Project(Feature& feature) const;
    void Settle(const std::string& problem) { Settle(*m_row, problem); }
    static void Settle(RowOutcome& row, const std::string& problem);

    LoadContext& m_context;
    const Source& m_source;
    SourceReport& m_report;
    std::unique_ptr<FeatureReader> m_reader;
    std::vector<JoinTable> m_tables;
    FieldIndex m_fields;
    std::vector<std::string> m_fieldNames;
    ToMap m_toMap;
    ItemMaker m_maker;
    std::vector<Gathered> m_gathered;
    std::vector<long long> m_passes;   ///< rows that reached each rule
    std::shared_ptr<RowOutcome> m_row; ///< the row at hand
};

} // namespace zv::host
