#include <algorithm>
#include <cmath>

#include "cli/Picture.h"
#include "cli/ReportJson.h"
#include "cli/Scratch.h"
#include "cli/Verbs.h"
#include "map/ZvDispMap.h"
#include "platform/Error.h"
#include "platform/Numbers.h"

namespace zv::host {
namespace {

constexpr int kUsualSize = 1600; ///< of the longer side, in pixels

/// A picture of the page's shape.
std::pair<int, int> SizeFor(const std::array<double, 4>& view) {
    const double width = view[2] - view[0], height = view[3] - view[1];
    const double scale = kUsualSize / std::max(width, height);
    const auto pixels = [scale](double length) {
        return std::max(16, int(std::lround(length * scale)));
    };
    return {pixels(width), pixels(height)};
}

std::array<double, 4> ViewOf(const RenderOptions& options, const MapDocument& document) {
    if (options.view.empty()) return document.Page();
    const std::array<double, 4> view{options.view[0], options.view[1], options.view[2],
                                     options.view[3]};
    if (!(view[0] < view[2] && view[1] < view[3]) || !std::isfinite(view[2] - view[0]) ||
        !std::isfinite(view[3] - view[1]))
        throw DataError("--view", "", "must be x1,y1,x2,y2 with x1 below x2 and y1 below y2");
    return view;
}

PictureStyle StyleOf(const RenderOptions& options, const MapDocument& document) {
    const ViewStyle& own = document.GetProject().view;
    PictureStyle style;
    style.view = ViewOf(options, document);
    const bool sized = own.size[0] > 0 && options.view.empty();
    const std::pair<int, int> usual =
        sized ? std::pair(own.size[0], own.size[1]) : SizeFor(style.view);
    std::tie(style.width, style.height) = options.size.value_or(usual);
    style.font = options.font.empty() ? own.font : options.font;
    style.background = options.background.value_or(own.background);
    style.backgroundBrightness = options.backgroundBrightness.value_or(own.backgroundBrightness);
    style.fillBrightness = options.fillBrightness.value_or(own.fillBrightness);
    style.post = options.post;
    style.uset = options.uset;
    return style;
}

/// Leaves only the wanted layers in the order by which the map draws, each at its place.
void KeepLayers(CZvDispMap& map, const std::vector<int>& layers) {
    if (layers.empty()) return;
    CZvDispOrder& order = *map.GetDispOrder();
    std::vector<E_Layer> kept;
    for (E_Layer layer = order.GetFirstLayer(); !order.IsEndOfList(); layer = order.GetNextLayer())
        if (std::find(layers.begin(), layers.end(), layer) != layers.end()) kept.push_back(layer);
    for (const int layer : layers)
        if (std::find(kept.begin(), kept.end(), layer) == kept.end())
            kept.push_back(E_Layer(layer));
    order.ClearLayerOrderMap();
    for (const E_Layer layer : kept)
        order.AddLayer(layer);
}

/// Hides every culture list but those of one culture.
void KeepCulture(CZvDispMap& map, int culture) {
    for (const int layer : map.GetLayerList()) {
        std::vector<int> posts;
        map.GetPostList(E_Layer(layer), posts);
        for (const int post : posts)
            for (const int uset : map.GetUSetList(E_Layer(layer), post))
                for (const int one : map.GetCultureList(E_Layer(layer), post, uset))
                    if (one != culture)
                        map.GetDispLayer(E_Layer(layer))
                            ->SetVisibility(false, post, uset, ZVCulture(one));
    }
}

std::string ResultJson(const RenderOptions& options, const PictureStyle& style,
                       const LoadReport& report) {
    nlohmann::ordered_json json{
        {"output", options.output},      {"width", style.width},
        {"height", style.height},        {"items", report.Items()},
        {"labels", report.labels},       {"hiddenLabels", report.hiddenLabels},
        {"sources", SourcesJson(report)}};
    return JsonText(json);
}

std::string ResultText(const RenderOptions& options, const PictureStyle& style,
                       const LoadReport& report) {
    std::string text = options.output + ": " + FormatInt(style.width) + " x " +
                       FormatInt(style.height) + " pixels, " + FormatInt(report.Items()) + " items";
    if (report.Rejected() > 0) text += ", " + FormatInt(report.Rejected()) + " rows rejected";
    return text + "\n";
}

/// What a run would write, after all that can be known without writing has been checked.
void ListOutput(const RenderOptions& options) {
    if (KindOf(options.map) == MapKind::Project)
        CheckFiles(ReadProject(options.map), options.map, options.data);
    if (!options.font.empty()) FontIndex(options.font);
    PutOut(options.common.json ? JsonText({{"writes", nlohmann::json::array({options.output})}})
                               : options.output + "\n");
}

} // namespace

void Render(const RenderOptions& options) {
    if (options.common.dryRun) return ListOutput(options);
    const Scratch scratch;
    const auto document = OpenMap(options.map, options.data, scratch.Name(), options.common.quiet);
    const PictureStyle style = StyleOf(options, *document);
    TellRejected(document->Report(), options.common.quiet);
    KeepLayers(document->Map(), options.layers);
    if (options.culture) KeepCulture(document->Map(), *options.culture);
    Picture picture(style);
    picture.Draw(document->Map());
    picture.Save(options.output);
    PutOut(options.common.json ? ResultJson(options, style, document->Report())
                               : ResultText(options, style, document->Report()));
}

} // namespace zv::host
