#include "platform/zvcom/ZvLayerInfo.h"

#include <algorithm>
#include <system_error>

#include "platform/Share.h"
#include "platform/zvcom/LayerCatalogue.h"
#include "platform/zvcom/UserCultures.h"

namespace {

zv::LayerCatalogue LoadCatalogue() {
    const std::filesystem::path path = zv::FindDataFile("layers.json");
    return zv::ParseLayerCatalogue(zv::ReadWholeFile(path), path.string());
}

const zv::LayerCatalogue& Catalogue() {
    static const zv::LayerCatalogue catalogue = LoadCatalogue();
    return catalogue;
}

zv::UserCultures& UserTitles() {
    static zv::UserCultures titles;
    return titles;
}

bool IsPacked(int culture) {
    return culture < 0 || culture > zv::kMaxCultureNumber;
}

/// Two halves of a packed culture as "name-value".
std::string PackedTitle(ZVCulture culture, bool readable) {
    const auto bits = static_cast<std::uint32_t>(culture);
    return CZvLayerInfo::GetCultureTitle(ZVCulture(bits >> 16), readable) + "-" +
           std::to_string(bits & 0xFFFF);
}

} // namespace

std::vector<int> CZvLayerInfo::S_GetLayerCultures(E_Layer layer, bool firstPass, bool screen) {
    const zv::LayerEntry* entry = Catalogue().FindLayer(layer);
    if (!entry) return {};
    const zv::LayerPasses& passes = screen ? entry->screen : entry->paper;
    return firstPass ? passes.first : passes.then;
}

bool CZvLayerInfo::DrawOnce(E_Layer layer) {
    const zv::LayerEntry* entry = Catalogue().FindLayer(layer);
    return !entry || entry->drawOnce;
}

bool CZvLayerInfo::S_BuildSecondaryIndex(E_Layer layer) {
    const zv::LayerEntry* entry = Catalogue().FindLayer(layer);
    return entry && entry->secondaryIndex;
}

bool CZvLayerInfo::S_CheckWhiteConvert(E_Layer layer) {
    const zv::LayerEntry* entry = Catalogue().FindLayer(layer);
    return entry && entry->whiteConvert;
}

std::string CZvLayerInfo::GetLayerTitle(E_Layer layer) {
    const zv::LayerEntry* entry = Catalogue().FindLayer(layer);
    return entry ? entry->title : "Layer " + std::to_string(layer);
}

std::string CZvLayerInfo::GetLayerAbbr(E_Layer layer) {
    const zv::LayerEntry* entry = Catalogue().FindLayer(layer);
    return entry ? entry->abbr : zv::AbbrOfUnlisted(layer);
}

std::string CZvLayerInfo::GetCultureTitle(ZVCulture culture, bool readable) {
    if (IsPacked(culture)) return PackedTitle(culture, readable);
    if (const zv::CultureEntry* entry = Catalogue().FindCulture(culture))
        return readable ? entry->title : entry->name;
    return (readable ? "Culture " : "Culture") + std::to_string(culture);
}

bool CZvLayerInfo::S_LoadUserCultDesc() {
    const std::filesystem::path path = zv::FindDataFile("cultures.json");
    std::error_code ignored;
    const bool present = std::filesystem::exists(path, ignored);
    UserTitles() = present ? zv::ParseUserCultures(zv::ReadWholeFile(path), path.string())
                           : zv::UserCultures();
    return present;
}

std::string CZvLayerInfo::S_GetUserCultTitle(ZVCulture culture) {
    const auto found = UserTitles().find(culture);
    return found == UserTitles().end() ? GetCultureTitle(culture, false) : found->second;
}

std::vector<int> CZvLayerInfo::S_GetLayers() {
    std::vector<int> numbers;
    for (const zv::LayerEntry& layer : Catalogue().Layers())
        numbers.push_back(layer.number);
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

std::vector<int> CZvLayerInfo::S_GetCultures(E_Layer layer) {
    const zv::LayerEntry* entry = Catalogue().FindLayer(layer);
    return entry ? entry->cultures : std::vector<int>();
}

bool CZvLayerInfo::S_FindLayer(std::string_view word, E_Layer& layer) {
    const zv::LayerEntry* entry = Catalogue().FindLayer(word);
    if (entry) layer = E_Layer(entry->number);
    return entry != nullptr;
}

bool CZvLayerInfo::S_FindCulture(std::string_view word, ZVCulture& culture) {
    const zv::CultureEntry* entry = Catalogue().FindCulture(word);
    if (entry) culture = ZVCulture(entry->number);
    return entry != nullptr;
}

bool CZvLayerInfo::S_CultureHolds(ZVCulture culture, ZVDispType kind) {
    const zv::CultureEntry* entry = Catalogue().FindCulture(culture);
    if (!entry || !entry->managed) return true;
    return kind == ZV_DISP_TEXT || kind == ZV_DISP_POLYLINE || kind == ZV_DISP_POLYGON ||
           kind == ZV_DISP_CIRCLE;
}

std::string CZvLayerInfo::S_GetTemplateFolder(int type) {
    const zv::TemplateType* entry = Catalogue().FindTemplate(type);
    return entry ? entry->folder : std::string();
}

std::vector<std::string> CZvLayerInfo::S_GetTemplateZones(int type) {
    const zv::TemplateType* entry = Catalogue().FindTemplate(type);
    return entry ? entry->zones : std::vector<std::string>();
}

namespace zv {

std::string CultureColorKey(E_Layer, ZVCulture culture) {
    return "CULTURE#" + std::to_string(culture) + "\\COLOR";
}

} // namespace zv
