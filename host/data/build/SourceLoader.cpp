#include "data/build/SourceLoader.h"

#include <algorithm>
#include <utility>

#include "map/ZvDispMap.h"
#include "platform/Error.h"
#include "platform/zvcom/ZvUtilGeo.h"

namespace zv::host {
namespace {

constexpr long long kProgressRows = 500;
constexpr double kSymbolShare = 0.45; ///< half of a symbol, of its scale, that labels keep off

/// The largest piece of a geometry by its box: where the one label of several pieces goes.
const Part& Largest(const std::vector<Part>& parts) {
    const auto size = [](const Part& part) {
        CZvDispPoint min, max;
        CZvUtilGeo::PolyLineGetMinMax(part.rings.front(), min, max);
        return (max.GetX() - min.GetX()) * (max.GetY() - min.GetY());
    };
    return *std::max_element(parts.begin(), parts.end(),
                             [&](const Part& a, const Part& b) { return size(a) < size(b); });
}

bool WantsOnePiece(const ItemRule& rule) {
    return rule.kind == ItemKind::Text || rule.kind == ItemKind::LineNumber;
}

bool InBox(const std::array<double, 4>& box, const std::vector<Part>& parts) {
    for (const Part& part : parts)
        for (const CZvDispPoint& point : part.rings.front())
            if (point.GetX() >= box[0] && point.GetX() <= box[2] && point.GetY() >= box[1] &&
                point.GetY() <= box[3])
                return true;
    return false;
}

} // namespace

void LoadContext::Add(ItemPtr item, const Place& place) {
    map.AddItem(item.get(), place.layer, place.post, place.uset, place.culture, false);
    item.release();
}

SourceLoader::SourceLoader(LoadContext& context, const Source& source, SourceReport& report)
    : m_context(context), m_source(source), m_report(report),
      m_reader(OpenSource(source, context.folder)), m_fieldNames(m_reader->Fields()),
      m_toMap(context.frame.From(CrsOfSource())),
      m_maker(context.frame, &context.para, report.lostCharacters), m_gathered(source.items.size()),
      m_passes(source.items.size()) {
    for (const Join& join : source.joins) {
        m_tables.emplace_back(join, context.folder);
        const auto& fields = m_tables.back().Fields();
        m_fieldNames.insert(m_fieldNames.end(), fields.begin(), fields.end());
    }
    m_fields = FieldIndex(m_fieldNames);
    CheckFields();
}

std::string SourceLoader::CrsOfSource() const {
    if (m_source.crs.empty()) return m_reader->Crs();
    InspectCrs(m_source.crs, m_context.file, m_source.pointer + "/crs");
    return m_source.crs;
}

void SourceLoader::CheckField(const std::string& field, const std::string& pointer) const {
    if (m_fields.Find(field) >= 0) return;
    throw DataError(m_context.file, pointer,
                    "the source \"" + m_source.name + "\" has no field \"" + field + "\"");
}

void SourceLoader::CheckFields() const {
    for (const auto& [field, values] : m_source.where.allowed)
        CheckField(field, m_source.pointer + "/where");
    for (const Join& join : m_source.joins)
        for (const std::string& field : join.on.Fields())
            CheckField(field, m_source.pointer + "/joins");
    for (const ItemRule& rule : m_source.items) {
        for (const auto& [field, values] : rule.where.allowed)
            CheckField(field, rule.pointer + "/where");
        for (const PositionFields& point : rule.path) {
            CheckField(point.x, rule.pointer + "/path");
            CheckField(point.y, rule.pointer + "/path");
        }
        for (const Template* text : {&rule.id, &rule.label, &rule.angle, &rule.group})
            for (const std::string& field : text->Fields())
                CheckField(field, rule.pointer);
        CheckChoices(rule);
    }
}

void SourceLoader::CheckChoices(const ItemRule& rule) const {
    std::vector<std::optional<Template>> keys{rule.symbol.by, rule.colour.by};
    if (rule.fill) keys.push_back(rule.fill->by);
    if (rule.textColour) keys.push_back(rule.textColour->by);
    for (const std::optional<Template>& key : keys)
        if (key)
            for (const std::string& field : key->Fields())
                CheckField(field, rule.pointer);
}

void SourceLoader::Load() {
    const long long total = m_reader->Count();
    Feature feature;
    while (m_reader->Next(feature)) {
        ++m_report.rows;
        LoadRow(feature);
        if (m_context.progress && m_report.rows % kProgressRows == 0)
            m_context.progress(m_source.name, m_report.rows, total);
    }
    for (std::size_t i = 0; i < m_gathered.size(); ++i)
        Flush(i);
    m_row.reset(); // the last row is counted too
    if (m_context.progress) m_context.progress(m_source.name, m_report.rows, m_report.rows);
}

void SourceLoader::JoinTables(std::vector<std::string>& values) const {
    values.reserve(m_fieldNames.size());
    for (std::size_t i = 0; i < m_tables.size(); ++i) {
        const std::string key = m_source.joins[i].on.Expand({&m_fields, &values});
        const std::vector<std::string>& more = m_tables[i].Find(key);
        values.insert(values.end(), more.begin(), more.end());
    }
}

bool SourceLoader::Passes(const Row& row, const Feature& feature) const {
    if (!m_source.where.Holds(row)) return false;
    return !m_source.box || !feature.problem.empty() || InBox(*m_source.box, feature.parts);
}

void SourceLoader::LoadRow(Feature& feature) {
    m_row = std::make_shared<RowOutcome>(m_report);
    JoinTables(feature.values);
    const Row row{&m_fields, &feature.values};
    if (!Passes(row, feature)) return;
    if (feature.problem.empty()) Project(feature);
    for (std::size_t i = 0; i < m_source.items.size(); ++i)
        if (m_source.items[i].where.Holds(row)) Apply(i, row, feature);
}

void SourceLoader::Settle(RowOutcome& row, const std::string& problem) {
    if (problem.empty())
        row.Give();
    else
        row.Reject(problem);
}

void SourceLoader::Project(Feature& feature) const {
    for (Part& part : feature.parts)
        for (Points& ring : part.rings)
            for (CZvDispPoint& point : ring)
                if (const char* fault = m_toMap.Convert(point)) {
                    feature.problem = fault;
                    return;
                }
}

void SourceLoader::Apply(std::size_t index, const Row& row, const Feature& feature) {
    const ItemRule& rule = m_source.items[index];
    if (m_passes[index]++ % rule.every != 0) return;
    m_row->Ask();
    if (!rule.path.empty()) return ApplyPath(rule, row);
    if (!feature.problem.empty()) return Settle(feature.problem);
    if (feature.parts.empty()) return Settle("no geometry");
    if (!feature.flaw.empty()) m_row->Reject(feature.flaw);
    if (!rule.group.IsEmpty())
        Gather(index, row, feature.parts);
    else
        ApplyParts(rule, row, feature.parts);
}

void SourceLoader::ApplyPath(const ItemRule& rule, const Row& row) {
    Points points;
    for (const PositionFields& fields : rule.path) {
        CZvDispPoint point;
        const char* fault = ParsePosition(row.Value(fields.x), row.Value(fields.y), point);
        if (!fault) fault = m_toMap.Convert(point);
        if (fault) return Settle(std::string(fault) + " (" + fields.x + ", " + fields.y + ")");
        points.push_back(point);
    }
    const Shape shape = points.size() == 1 ? Shape::Point : Shape::Line;
    Settle(AddItems(rule, row, {shape, {std::move(points)}}));
}

void SourceLoader::ApplyParts(const ItemRule& rule, const Row& row,
                              const std::vector<Part>& parts) {
    if (WantsOnePiece(rule)) return Settle(AddItems(rule, row, Largest(parts)));
    for (const Part& part : parts)
        Settle(AddItems(rule, row, part));
}

void SourceLoader::Gather(std::size_t index, const Row& row, const std::vector<Part>& parts) {
    Gathered& line = m_gathered[index];
    const std::string key = m_source.items[index].group.Expand(row);
    if (line.open && line.key != key) Flush(index);
    if (!line.open) line = {true, key, *row.values, {}, {}};
    line.rows.push_back(m_row);
    for (const Part& part : parts)
        line.points.insert(line.points.end(), part.rings.front().begin(), part.rings.front().end());
}

void SourceLoader::Flush(std::size_t index) {
    Gathered line = std::exchange(m_gathered[index], {});
    if (!line.open) return;
    const Row row{&m_fields, &line.values};
    std::string problem = "a line of one point";
    if (line.points.size() > 1)
        problem = AddItems(m_source.items[index], row, {Shape::Line, {std::move(line.points)}});
    for (const auto& one : line.rows)
        Settle(*one, problem);
}

/// Symbols, and texts that read from the left, keep other labels off.
void SourceLoader::AddObstacle(CZvDisplayItem& item) {
    if (item.GetDispType() == ZV_DISP_SYMBOL) {
        const auto& symbol = static_cast<const CZvDispSymbols&>(item);
        const double half = symbol.GetScale() * kSymbolShare;
        const CZvDispPoint& at = symbol.GetCenter();
        m_context.placer.AddObstacle(
            {at.GetX() - half, at.GetY() - half, at.GetX() + half, at.GetY() + half});
    } else if (item.GetDispType() == ZV_DISP_TEXT && item.GetDegree() == 0.0) {
        m_context.placer.AddObstacle(BoxOf(static_cast<const CZvDispText&>(item)));
    }
}

void SourceLoader::AddItem(ItemPtr item, const ItemRule& rule, const Part& part) {
    ++m_report.items;
    if (rule.clear && item->GetDispType() == ZV_DISP_TEXT) {
        auto* text = static_cast<CZvDispText*>(item.release());
        m_context.waiting.push_back(
            {std::unique_ptr<CZvDispText>(text), m_maker.AnchorOf(rule, part), rule.place});
        return;
    }
    if (m_context.keepClear) AddObstacle(*item);
    m_context.Add(std::move(item), rule.place);
}

std::string SourceLoader::AddItems(const ItemRule& rule, const Row& row, const Part& part) {
    Made made = m_maker.Make(rule, row, part);
    for (ItemPtr& item : made.items)
        AddItem(std::move(item), rule, part);
    return made.problem;
}

} // namespace zv::host
