#include <algorithm>
#include <cmath>

#include "cli/Output.h"
#include "cli/Picture.h"
#include "cli/ReportJson.h"
#include "cli/Scratch.h"
#include "cli/Selection.h"
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

void CheckView(const std::vector<double>& view) {
    if (view.empty()) return;
    if (!(view[0] < view[2] && view[1] < view[3]) || !std::isfinite(view[2] - view[0]) ||
        !std::isfinite(view[3] - view[1]))
        throw DataError("--view", "", "must be x1,y1,x2,y2 with x1 below x2 and y1 below y2");
}

std::array<double, 4> ViewOf(const RenderOptions& options, const MapDocument& document) {
    const std::vector<double>& view = options.view;
    return view.empty() ? document.Page() : std::array{view[0], view[1], view[2], view[3]};
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

std::string ResultJson(const RenderOptions& options, const PictureStyle& style,
                       const LoadReport& report) {
    nlohmann::ordered_json json{
        {"output", options.output},      {"width", style.width},
        {"height", style.height},        {"loaded", report.Items()},
        {"labels", report.labels},       {"hiddenLabels", report.hiddenLabels},
        {"sources", SourcesJson(report)}};
    return JsonText(json);
}

std::string ResultText(const RenderOptions& options, const PictureStyle& style,
                       const LoadReport& report) {
    std::string text = options.output + ": " + FormatInt(style.width) + " x " +
                       FormatInt(style.height) + " pixels, " + FormatInt(report.Items()) +
                       " items loaded";
    if (const long long none = report.Rejected(); none > 0)
        text += ", " + FormatInt(none) + (none == 1 ? " row" : " rows") + " gave no item";
    if (report.Fewer() > 0) text += ", " + FormatInt(report.Fewer()) + " gave less than asked";
    return text + "\n";
}

/// All that can be known to be wrong before anything is loaded.
void CheckBefore(const RenderOptions& options) {
    CheckOutput(options.output, InputsOf(options.map, options.data));
    CheckView(options.view);
    const bool own = options.font.empty() && KindOf(options.map) == MapKind::Project;
    FontIndex(own ? ReadProject(options.map).view.font
                  : (options.font.empty() ? PictureStyle().font : options.font));
}

void ListOutput(const RenderOptions& options) {
    PutOut(options.common.json ? JsonText({{"writes", nlohmann::json::array({options.output})}})
                               : options.output + "\n");
}

} // namespace

void Render(const RenderOptions& options) {
    CheckBefore(options);
    if (options.common.dryRun) return ListOutput(options);
    const Scratch scratch;
    const auto document = OpenMap(options.map, options.data, scratch.Name(), options.common.quiet);
    const PictureStyle style = StyleOf(options, *document);
    TellRejected(document->Report(), options.common.quiet);
    CheckChosen(document->Map(), options);
    KeepChosen(document->Map(), options);
    Picture picture(style);
    picture.Draw(document->Map());
    picture.Save(options.output);
    PutOut(options.common.json ? ResultJson(options, style, document->Report())
                               : ResultText(options, style, document->Report()));
}

} // namespace zv::host
