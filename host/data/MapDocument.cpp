#include "data/MapDocument.h"

#include <algorithm>
#include <filesystem>
#include <set>

#include "data/Extents.h"
#include "data/build/SymbolCheck.h"
#include "data/furniture/FurnitureBuilder.h"
#include "platform/Error.h"
#include "platform/Numbers.h"
#include "platform/zvlogs/ZvLog.h"
#include "platform/zvset/ZvSettings.h"

namespace zv::host {
namespace {

constexpr double kDrawingAir = 0.03; ///< around a drawing, of its size
constexpr double kLabelCell = 0.5;   ///< inches

bool WantsClearLabels(const Project& project) {
    for (const Source& source : project.sources)
        for (const ItemRule& rule : source.items)
            if (rule.clear) return true;
    return false;
}

void LogLost(const SourceReport& report) {
    if (report.lostCharacters == 0) return;
    CZvLog::Output(report.name + ": " + FormatInt(report.lostCharacters) +
                       " characters of labels have no place in code page 1252 and became \"?\"",
                   101, false);
}

} // namespace

std::unique_ptr<MapDocument> MapDocument::Open(const OpenRequest& request) {
    return std::unique_ptr<MapDocument>(new MapDocument(request));
}

MapDocument::MapDocument(const OpenRequest& request) {
    m_map.SetMemManage(false);
    m_map.SetUseWaitCursor(false);
    if (!request.scratch.empty()) m_map.SetDispFilePath(request.scratch);
    if (KindOf(request.path) == MapKind::Project)
        OpenProject(request);
    else
        OpenDrawing(request.path);
    m_map.SetViewPort(m_page[0], m_page[1], m_page[2], m_page[3], 0);
}

void MapDocument::OpenProject(const OpenRequest& request) {
    m_project = ReadProject(request.path);
    CheckFiles(m_project, request.path, request.data);
    const std::string own = DataFolder(request.path, "");
    LoadSettings(own, request.path);
    LoadSymbols(own);
    CheckSymbols(m_project, request.path);
    m_frame = MapFrame(m_project, request.path);
    m_bounds = m_frame.Bounds();
    m_map.SetMapBoundPtr(&m_bounds);
    m_map.SetMapBound(m_frame.LowerLeft(), m_frame.UpperRight());

    const Sheet sheet(m_frame, m_project.furniture);
    LoadContext context{m_map,
                        m_frame,
                        request.path,
                        DataFolder(request.path, request.data),
                        CZvDisplayItemPara(true),
                        LabelPlacer(m_frame.Inches(kLabelCell)),
                        {},
                        WantsClearLabels(m_project),
                        request.progress};
    LoadSources(context);
    PlaceLabels(context);
    if (m_project.furniture)
        FurnitureBuilder(context, sheet, *m_project.furniture, m_settings).Build();
    ApplyOverrides();
    const CZvDispPoint ll = sheet.ToMap(sheet.Page().x1, sheet.Page().y1);
    const CZvDispPoint ur = sheet.ToMap(sheet.Page().x2, sheet.Page().y2);
    m_page = {ll.GetX(), ll.GetY(), ur.GetX(), ur.GetY()};
}

void MapDocument::LoadSettings(const std::string& folder, const std::string& file) {
    if (!m_project.settingsFile.empty())
        m_settings.Load(SourcePath(m_project.settingsFile, "", folder));
    else if (!m_project.settingsText.empty())
        m_settings.LoadText(m_project.settingsText, file + ": /settings");
    bool memory = false;
    m_settings.GetGlobalSettings().GetBoolean("MEMORY_MANAGEMENT", memory);
    m_map.SetMemManage(memory);
}

void MapDocument::LoadSymbols(const std::string& folder) const {
    const CZvDispSymbols first; // brings the installation's own symbols in before the project's
    for (const std::string& file : m_project.symbolFiles) {
        const std::string path = SourcePath(file, "", folder);
        if (!CZvDispSymbols::S_LoadSymbols(path, "-1", true, "", false))
            throw DataError(path, "", "the symbols cannot be read");
    }
}

void MapDocument::LoadSources(LoadContext& context) {
    for (const Source& source : m_project.sources) {
        SourceReport& report = m_report.sources.emplace_back();
        report.name = source.name;
        if (source.drawing.empty())
            SourceLoader(context, source, report).Load();
        else
            LoadDrawing(source, context, report);
        LogLost(report);
    }
}

namespace {

long long CountItems(CZvDispMap& map) {
    long long count = 0;
    for (const int layer : map.GetLayerList()) {
        std::vector<int> posts;
        map.GetPostList(E_Layer(layer), posts);
        for (const int post : posts)
            for (const int uset : map.GetUSetList(E_Layer(layer), post))
                for (const int culture : map.GetCultureList(E_Layer(layer), post, uset))
                    count += map.GetCultureCount(E_Layer(layer), post, uset, ZVCulture(culture));
    }
    return count;
}

} // namespace

void MapDocument::LoadDrawing(const Source& source, LoadContext& context, SourceReport& report) {
    const long long before = CountItems(m_map);
    m_map.Read(SourcePath(source.drawing, "", context.folder));
    report.items = CountItems(m_map) - before;
    report.rows = report.items;
}

void MapDocument::PlaceLabels(LoadContext& context) {
    for (WaitingLabel& label : context.waiting) {
        const bool placed = context.placer.Place(*label.text, label.anchor);
        label.text->SetVisibility(placed);
        ++(placed ? m_report.labels : m_report.hiddenLabels);
        context.Add(std::move(label.text), label.place);
    }
    context.waiting.clear();
}

void MapDocument::ApplyOverrides() {
    for (const Override& style : m_project.overrides) {
        const Place& at = style.place;
        CZvDispLayer* layer = m_map.GetDispLayer(at.layer);
        if (!layer) {
            CZvLog::Output(style.pointer + ": layer " + FormatInt(at.layer) +
                               " has no items, so its style stays",
                           101, false);
            continue;
        }
        if (style.colour) layer->SetColor(ZVColor(*style.colour), at.post, at.uset, at.culture);
        if (style.type)
            layer->SetLineType(static_cast<unsigned char>(*style.type), at.post, at.uset,
                               at.culture);
        if (style.width) layer->SetLineWidth(*style.width, at.post, at.uset, at.culture);
    }
}

/// A drawing may hold layers that no map draws by itself.
void MapDocument::DrawEveryLayer() {
    CZvDispOrder& order = *m_map.GetDispOrder();
    std::set<int> ordered;
    for (E_Layer layer = order.GetFirstLayer(); !order.IsEndOfList(); layer = order.GetNextLayer())
        ordered.insert(layer);
    for (const int layer : m_map.GetLayerList())
        if (!ordered.contains(layer)) order.AddLayer(E_Layer(layer));
}

void MapDocument::OpenDrawing(const std::string& path) {
    m_map.Read(path);
    DrawEveryLayer();
    m_project.title = std::filesystem::path(path).filename().string();
    SourceReport& report = m_report.sources.emplace_back();
    report.name = path;
    report.items = report.rows = CountItems(m_map);
    ExtentContext extents;
    extents.Measure(m_map);
    const Extent all = extents.Of();
    if (all.empty) throw DataError(path, "", "the drawing holds nothing");
    const double air = std::max({all.x2 - all.x1, all.y2 - all.y1, 1e-6}) * kDrawingAir;
    m_page = {all.x1 - air, all.y1 - air, all.x2 + air, all.y2 + air};
    m_bounds.SetXY(all.x1, all.y1, all.x2, all.y2);
    m_map.SetMapBoundPtr(&m_bounds);
    m_map.SetMapBound({all.x1, all.y1}, {all.x2, all.y2});
}

} // namespace zv::host
