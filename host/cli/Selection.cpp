#include "cli/Selection.h"

#include <algorithm>
#include <set>

#include "map/ZvDispMap.h"
#include "platform/Error.h"
#include "platform/Numbers.h"

namespace zv::host {
namespace {

constexpr int kAll = 99; ///< of posts and user sets

/// What the map has, each level below what is asked for on the levels above.
struct Present {
    std::set<int> layers, posts, usets, cultures;
};

void FindCultures(CZvDispMap& map, const RenderOptions& options, int layer, int post,
                  Present& present) {
    for (const int uset : map.GetUSetList(E_Layer(layer), post)) {
        present.usets.insert(uset);
        if (options.uset != kAll && options.uset != uset) continue;
        const auto cultures = map.GetCultureList(E_Layer(layer), post, uset);
        present.cultures.insert(cultures.begin(), cultures.end());
    }
}

Present FindPresent(CZvDispMap& map, const RenderOptions& options) {
    Present present;
    const std::vector<int>& wanted = options.layers;
    for (const int layer : map.GetLayerList()) {
        present.layers.insert(layer);
        if (!wanted.empty() && std::find(wanted.begin(), wanted.end(), layer) == wanted.end())
            continue;
        std::vector<int> posts;
        map.GetPostList(E_Layer(layer), posts);
        present.posts.insert(posts.begin(), posts.end());
        for (const int post : posts)
            if (options.post == kAll || options.post == post)
                FindCultures(map, options, layer, post, present);
    }
    return present;
}

void CheckPresent(const char* option, int wanted, const std::set<int>& present) {
    if (present.contains(wanted)) return;
    std::string list;
    for (const int number : present)
        list += (list.empty() ? "" : ", ") + FormatInt(number);
    throw DataError(option, "",
                    "there is no " + FormatInt(wanted) + "; the map has " +
                        (list.empty() ? "nothing" : list));
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

} // namespace

void CheckChosen(CZvDispMap& map, const RenderOptions& options) {
    const Present present = FindPresent(map, options);
    for (const int layer : options.layers)
        CheckPresent("--layer", layer, present.layers);
    if (options.post != kAll) CheckPresent("--post", options.post, present.posts);
    if (options.uset != kAll) CheckPresent("--uset", options.uset, present.usets);
    if (options.culture) CheckPresent("--culture", *options.culture, present.cultures);
}

void KeepChosen(CZvDispMap& map, const RenderOptions& options) {
    KeepLayers(map, options.layers);
    if (options.culture) KeepCulture(map, *options.culture);
}

} // namespace zv::host
