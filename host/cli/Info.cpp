#include <algorithm>

#include "cli/ReportJson.h"
#include "cli/Scratch.h"
#include "cli/Verbs.h"
#include "data/Extents.h"
#include "map/ZvDispMap.h"
#include "platform/Numbers.h"
#include "platform/zvcom/ZvLayerInfo.h"

namespace zv::host {
namespace {

using Json = nlohmann::ordered_json;

Json ExtentJson(const Extent& extent) {
    if (extent.empty) return nullptr;
    return {extent.x1, extent.y1, extent.x2, extent.y2};
}

Json Node(const char* kind, int number, const std::string& title, const Extent& extent) {
    Json node{{kind, number}};
    if (!title.empty()) node["title"] = title;
    node["count"] = 0;
    node["bounds"] = ExtentJson(extent);
    return node;
}

void AddChild(Json& parent, const char* list, Json child) {
    parent["count"] = parent["count"].get<long long>() + child["count"].get<long long>();
    parent[list].push_back(std::move(child));
}

Json USetNode(CZvDispMap& map, const ExtentContext& extents, int layer, int post, int uset) {
    Json node = Node("uset", uset, "", extents.Of(layer, post, uset));
    for (const int culture : map.GetCultureList(E_Layer(layer), post, uset)) {
        Json leaf =
            Node("culture", culture, CZvLayerInfo::GetCultureTitle(ZVCulture(culture), true),
                 extents.Of(layer, post, uset, culture));
        leaf["count"] = map.GetCultureCount(E_Layer(layer), post, uset, ZVCulture(culture));
        AddChild(node, "cultures", std::move(leaf));
    }
    return node;
}

Json LayerNode(CZvDispMap& map, const ExtentContext& extents, int layer) {
    Json node =
        Node("layer", layer, CZvLayerInfo::GetLayerTitle(E_Layer(layer)), extents.Of(layer));
    std::vector<int> posts;
    map.GetPostList(E_Layer(layer), posts);
    for (const int post : posts) {
        Json postNode = Node("post", post, "", extents.Of(layer, post));
        for (const int uset : map.GetUSetList(E_Layer(layer), post))
            AddChild(postNode, "usets", USetNode(map, extents, layer, post, uset));
        AddChild(node, "posts", std::move(postNode));
    }
    return node;
}

Json Tree(MapDocument& document, const ExtentContext& extents) {
    CZvDispMap& map = document.Map();
    Json tree{{"map", document.GetProject().title}, {"count", 0}};
    CZvDispPoint ll, ur;
    map.GetMapBound(ll, ur);
    tree["bounds"] = {ll.GetX(), ll.GetY(), ur.GetX(), ur.GetY()};
    tree["layers"] = Json::array();
    for (const int layer : map.GetLayerList())
        AddChild(tree, "layers", LayerNode(map, extents, layer));
    return tree;
}

std::string BoundsText(const Json& bounds) {
    if (bounds.is_null()) return "";
    std::string text = "  [";
    for (const Json& value : bounds)
        text += (text.size() > 3 ? ", " : "") + FormatFixed(value.get<double>(), 1);
    return text + "]";
}

/// One line of the tree: what it is, how many items, where.
void PutLine(std::string& text, int depth, const char* kind, const Json& node) {
    const std::string title = node.value("title", "");
    std::string line(std::size_t(depth) * 2, ' ');
    line += std::string(kind) + " " + FormatInt(node[kind].get<int>());
    if (!title.empty()) line += " " + title;
    line.resize(std::max<std::size_t>(line.size() + 2, 56), ' ');
    const std::string count = FormatInt(node["count"].get<long long>());
    line += std::string(count.size() < 9 ? 9 - count.size() : 0, ' ') + count;
    text += line + BoundsText(node["bounds"]) + "\n";
}

std::string TreeText(const Json& tree) {
    std::string text = "map " + tree["map"].get<std::string>() + ": " +
                       FormatInt(tree["count"].get<long long>()) + " items" +
                       BoundsText(tree["bounds"]) + "\n";
    for (const Json& layer : tree["layers"]) {
        PutLine(text, 1, "layer", layer);
        for (const Json& post : layer["posts"]) {
            PutLine(text, 2, "post", post);
            for (const Json& uset : post["usets"]) {
                PutLine(text, 3, "uset", uset);
                for (const Json& culture : uset["cultures"])
                    PutLine(text, 4, "culture", culture);
            }
        }
    }
    return text;
}

} // namespace

void Info(const InfoOptions& options) {
    const Scratch scratch;
    const auto document = OpenMap(options.map, options.data, scratch.Name(), options.common.quiet);
    TellRejected(document->Report(), options.common.quiet);
    ExtentContext extents;
    extents.Measure(document->Map());
    Json tree = Tree(*document, extents);
    if (!options.common.json) return PutOut(TreeText(tree));
    tree["sources"] = SourcesJson(document->Report());
    PutOut(JsonText(tree));
}

} // namespace zv::host
