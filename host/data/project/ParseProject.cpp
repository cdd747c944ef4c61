#include <algorithm>
#include <nlohmann/json.hpp>

#include "data/project/Nodes.h"
#include "data/project/Words.h"
#include "platform/Share.h"

namespace zv::host {
namespace {

constexpr double kFarthest = 1e12;
constexpr std::size_t kMaxProject = std::size_t(4) << 20;

bool ReadFeet(const JsonNode& node) {
    const std::string units = node.Text(kMaxText);
    if (units != "feet" && units != "metre") node.Fail("must be \"feet\" or \"metre\"");
    return units == "feet";
}

void ReadFour(const JsonNode& node, double limit, Project& project) {
    const std::vector<JsonNode> items = node.Items();
    if (items.size() != 4) node.Fail("must be four numbers");
    for (std::size_t i = 0; i < 4; ++i)
        project.bounds[i] = items[i].Number(-limit, limit);
    if (project.bounds[0] >= project.bounds[2] || project.bounds[1] >= project.bounds[3])
        node.Fail("has its corners in the wrong order");
}

void ReadBounds(const JsonNode& node, Project& project) {
    node.AllowOnly({"xy", "latlon"});
    const auto latLon = node.Find("latlon");
    project.boundsByLatLon = latLon.has_value();
    if (latLon && node.Find("xy")) node.Fail("has both \"xy\" and \"latlon\"");
    if (latLon && project.crs.empty()) latLon->Fail("needs a \"crs\" for the map");
    ReadFour(latLon ? *latLon : node.At("xy"), latLon ? 180.0 : kFarthest, project);
}

std::array<int, 2> ReadSize(const JsonNode& node) {
    const std::vector<JsonNode> items = node.Items();
    if (items.size() != 2) node.Fail("must be width and height in pixels");
    return {items[0].Int(16, 16384), items[1].Int(16, 16384)};
}

ViewStyle ReadView(const JsonNode& node) {
    node.AllowOnly({"background", "backgroundBrightness", "fillBrightness", "font", "size"});
    ViewStyle view;
    view.background = ColourOr(node, "background", view.background);
    view.backgroundBrightness = IntOr(node, "backgroundBrightness", 0, 0, 9);
    view.fillBrightness = IntOr(node, "fillBrightness", view.fillBrightness, 0, 9);
    view.font = TextOr(node, "font", view.font);
    if (const auto size = node.Find("size")) view.size = ReadSize(*size);
    return view;
}

void ReadSettings(const JsonNode& node, Project& project) {
    if (node.IsText()) {
        project.settingsFile = node.Text(kMaxText);
        return;
    }
    if (!node.IsObject()) node.Fail("must be a file name or the settings themselves");
    project.settingsText = node.Value().dump();
}

std::optional<int> MaybeInt(const JsonNode& node, std::string_view name) {
    const auto found = node.Find(name);
    if (!found) return std::nullopt;
    return found->Int(0, 255);
}

Override ReadOverride(const JsonNode& node) {
    node.AllowOnly({"layer", "post", "uset", "culture", "colour", "type", "width", "about"});
    Override override;
    override.pointer = node.Place();
    override.place = ReadPlace(node, true);
    if (const auto colour = node.Find("colour")) override.colour = ReadColour(*colour);
    override.type = MaybeInt(node, "type");
    override.width = MaybeInt(node, "width");
    return override;
}

void ReadFrame(const JsonNode& root, Project& project) {
    project.title = TextOr(root, "title", "");
    project.crs = TextOr(root, "crs", "");
    project.geographic = TextOr(root, "geographic", project.geographic);
    if (const auto units = root.Find("units")) project.feet = ReadFeet(*units);
    if (project.crs.empty() && !project.feet) root.Fail("needs \"crs\", or \"units\" without one");
    project.scale = root.At("scale").Int(1, 100000000);
    ReadBounds(root.At("bounds"), project);
    if (const auto view = root.Find("view")) project.view = ReadView(*view);
    if (const auto settings = root.Find("settings")) ReadSettings(*settings, project);
}

} // namespace

bool Condition::Holds(const Row& row) const {
    return std::all_of(allowed.begin(), allowed.end(), [&row](const auto& field) {
        const std::string_view value = Trimmed(row.Value(field.first));
        return std::find(field.second.begin(), field.second.end(), value) != field.second.end();
    });
}

Project ParseProject(std::string_view text, const std::string& name) {
    const JsonDocument document(text, name, kMaxProject);
    const JsonNode root = document.Root();
    root.AllowOnly({"title", "about", "crs", "geographic", "units", "scale", "bounds", "view",
                    "settings", "symbols", "sources", "overrides", "furniture"});
    Project project;
    ReadFrame(root, project);
    if (const auto symbols = root.Find("symbols"))
        for (const JsonNode& file : symbols->Items())
            project.symbolFiles.push_back(file.Text(kMaxText));
    if (const auto sources = root.Find("sources"))
        for (const JsonNode& source : sources->Items())
            project.sources.push_back(ReadSource(source));
    if (const auto overrides = root.Find("overrides"))
        for (const JsonNode& one : overrides->Items())
            project.overrides.push_back(ReadOverride(one));
    if (const auto furniture = root.Find("furniture"))
        project.furniture = ReadFurniture(*furniture);
    return project;
}

Project ReadProject(const std::string& path) {
    return ParseProject(ReadWholeFile(path), path);
}

} // namespace zv::host
