#pragma once

#include <memory>
#include <string>
#include <vector>

#include "data/build/LoadReport.h"
#include "data/build/MapFrame.h"
#include "data/build/SourceLoader.h"
#include "data/furniture/Sheet.h"
#include "data/project/Project.h"
#include "map/ZvDispMap.h"
#include "platform/zvset/ZvSettingsManager.h"

namespace zv::host {

/// How a map is opened.
struct OpenRequest {
    std::string path;    ///< a project (.json) or a drawing file
    std::string data;    ///< folder of the sources; empty: the project's own
    std::string scratch; ///< folder below the work folder for the map's scratch files
    LoadProgress progress;
};

/// An open map together with all that it borrows: settings, bounds, and what its project says.
class MapDocument {
  public:
    /// Reads the file and fills the map. Throws DataError (file, place, reason) on a fault of
    /// project, settings, symbols or a source as a whole, CZvUvException on a scratch file; single
    /// bad rows are counted in the report.
    static std::unique_ptr<MapDocument> Open(const OpenRequest& request);

    CZvDispMap& Map() { return m_map; }
    const Project& GetProject() const { return m_project; }
    const LoadReport& Report() const { return m_report; }
    /// Rectangle of map units that shows the whole page.
    std::array<double, 4> Page() const { return m_page; }

    MapDocument(const MapDocument&) = delete;
    MapDocument& operator=(const MapDocument&) = delete;

  private:
    explicit MapDocument(const OpenRequest& request);

    void OpenProject(const OpenRequest& request);
    void OpenDrawing(const std::string& path);
    void DrawEveryLayer();
    void LoadSettings(const std::string& folder, const std::string& file);
    void LoadSymbols(const std::string& folder) const;
    void LoadSources(LoadContext& context);
    void LoadDrawing(const Source& source, LoadContext& context, SourceReport& report);
    void PlaceLabels(LoadContext& context);
    void ApplyOverrides();

    Project m_project;
    CZvSettingsManager m_settings;
    MapFrame m_frame;
    CZvMapBounds m_bounds;
    CZvDispMap m_map{&m_settings};
    LoadReport m_report;
    std::array<double, 4> m_page{};
};

/// What kind of map a file is. Throws DataError when it is none that can be opened.
enum class MapKind { Project, Drawing };
MapKind KindOf(const std::string& path);

/// Files that a project names: sources, joined tables, symbol files, settings. Throws DataError on
/// the first one that is not there.
std::vector<std::string> CheckFiles(const Project& project, const std::string& projectPath,
                                    const std::string& data);

/// Folder in which a project's sources lie: `data`, or the project's own.
std::string DataFolder(const std::string& projectPath, const std::string& data);

} // namespace zv::host
