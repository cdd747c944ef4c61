#include <algorithm>
#include <map>
#include <set>

#include "platform/JsonInput.h"
#include "platform/zvcom/LayerCatalogue.h"

namespace zv {
namespace {

constexpr int kVersion = 1;
constexpr std::size_t kMaxTitle = 80;
constexpr std::size_t kMaxCultureName = 24;
constexpr std::size_t kMaxAbbr = 12;
constexpr std::size_t kMaxAbout = 1000;
constexpr std::size_t kMaxFolder = 64;
constexpr int kMaxTemplateNumber = 99;
/// A layer may be the model of a thousand others: this bounds what their copies take.
constexpr std::size_t kMaxCulturesOfLayer = 512;
/// Numbers that stand for "all" in arguments.
constexpr int kAllLayers = 99;
constexpr int kAllCultures = 900;

bool IsLetterOrDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

std::string LowerCase(std::string text) {
    for (char& c : text)
        if (c >= 'A' && c <= 'Z') c = char(c - 'A' + 'a');
    return text;
}

std::string ReadTitle(const JsonNode& node) {
    std::string title = node.Text(kMaxTitle);
    if (title.empty()) node.Fail("is empty");
    return title;
}

void CheckAbout(const JsonNode& node) {
    if (const auto about = node.Find("about")) about->Text(kMaxAbout);
}

/// Numbers or words that may stand once only.
template<class Value>
class Once {
  public:
    void Enter(const JsonNode& node, const Value& value) {
        if (!m_seen.insert(value).second) node.Fail("stands twice");
    }
    bool Has(const Value& value) const { return m_seen.contains(value); }

  private:
    std::set<Value> m_seen;
};

/// True for what AbbrOfUnlisted gives, in any case: such a word would stand for two layers.
bool LooksUnlisted(std::string_view abbr) {
    if (abbr.empty() || (abbr[0] != 'L' && abbr[0] != 'l')) return false;
    abbr.remove_prefix(1);
    if (!abbr.empty() && (abbr[0] == 'M' || abbr[0] == 'm')) abbr.remove_prefix(1);
    return !abbr.empty() &&
           std::all_of(abbr.begin(), abbr.end(), [](char c) { return c >= '0' && c <= '9'; });
}

class CatalogueReader {
  public:
    LayerCatalogue Read(const JsonNode& root) {
        root.AllowOnly({"version", "about", "cultures", "layers", "templates"});
        root.At("version").Int(kVersion, kVersion);
        CheckAbout(root);
        for (const JsonNode& node : root.At("cultures").Items())
            ReadCulture(node);
        for (const JsonNode& node : root.At("layers").Items())
            ReadLayer(node);
        CheckHomes(root.At("cultures"));
        if (const auto templates = root.Find("templates"))
            for (const JsonNode& node : templates->Items())
                ReadTemplate(node);
        return {std::move(m_cultures), std::move(m_layers), std::move(m_templates)};
    }

  private:
    void ReadCulture(const JsonNode& node) {
        node.AllowOnly({"number", "name", "title", "managed", "about"});
        CheckAbout(node);
        const JsonNode number = node.At("number");
        CultureEntry culture{.number = number.Int(0, kMaxCultureNumber),
                             .name = node.At("name").Word(kMaxCultureName),
                             .title = ReadTitle(node.At("title")),
                             .managed = node.BoolOr("managed", false)};
        if (culture.number == kAllCultures) number.Fail("900 stands for all cultures");
        m_cultureNumbers.Enter(number, culture.number);
        m_cultureNames.Enter(node.At("name"), LowerCase(culture.name));
        m_cultures.push_back(std::move(culture));
    }

    void ReadLayer(const JsonNode& node) {
        node.AllowOnly({"number", "title", "abbr", "like", "cultures", "screen", "paper",
                        "drawOnce", "secondaryIndex", "whiteConvert", "about"});
        CheckAbout(node);
        LayerEntry layer = node.Find("like") ? ReadLike(node) : ReadOwnContent(node);
        layer.number = ReadLayerNumber(node.At("number"));
        layer.title = ReadTitle(node.At("title"));
        m_layerTitles.Enter(node.At("title"), LowerCase(layer.title));
        layer.abbr = ReadAbbr(node.At("abbr"));
        m_layerPlaces[layer.number] = m_layers.size();
        m_layers.push_back(std::move(layer));
    }

    int ReadLayerNumber(const JsonNode& node) {
        const int number = node.Int(0, kMaxLayerNumber);
        if (number == kAllLayers) node.Fail("99 stands for all layers");
        m_layerNumbers.Enter(node, number);
        return number;
    }

    std::string ReadAbbr(const JsonNode& node) {
        std::string abbr = node.Word(kMaxAbbr);
        if (LooksUnlisted(abbr)) node.Fail("is kept for layers that no catalogue lists");
        m_layerAbbrs.Enter(node, LowerCase(abbr));
        return abbr;
    }

    /// All but number, title and abbreviation from a layer that stands above.
    LayerEntry ReadLike(const JsonNode& node) const {
        for (const char* own :
             {"cultures", "screen", "paper", "drawOnce", "secondaryIndex", "whiteConvert"})
            if (const auto member = node.Find(own)) member->Fail("cannot stand beside \"like\"");
        const JsonNode like = node.At("like");
        const auto model = m_layerPlaces.find(like.Int(0, kMaxLayerNumber));
        if (model == m_layerPlaces.end()) like.Fail("no layer of that number stands above");
        return m_layers[model->second];
    }

    LayerEntry ReadOwnContent(const JsonNode& node) {
        LayerEntry layer;
        layer.cultures = ReadCultures(node.At("cultures"));
        layer.screen = ReadPasses(node.At("screen"), layer.cultures);
        const auto paper = node.Find("paper");
        layer.paper = paper ? ReadPasses(*paper, layer.cultures) : layer.screen;
        layer.drawOnce = node.BoolOr("drawOnce", false);
        layer.secondaryIndex = node.BoolOr("secondaryIndex", false);
        layer.whiteConvert = node.BoolOr("whiteConvert", false);
        return layer;
    }

    std::vector<int> ReadCultures(const JsonNode& node) {
        std::vector<int> cultures;
        Once<int> once;
        const std::vector<JsonNode> items = node.Items();
        if (items.size() > kMaxCulturesOfLayer) node.Fail("holds more than 512 cultures");
        for (const JsonNode& item : items) {
            const int culture = item.Int(0, kMaxCultureNumber);
            if (!m_cultureNumbers.Has(culture)) item.Fail("there is no culture of that number");
            once.Enter(item, culture);
            m_housed.insert(culture);
            cultures.push_back(culture);
        }
        return cultures;
    }

    static LayerPasses ReadPasses(const JsonNode& node, const std::vector<int>& cultures) {
        node.AllowOnly({"first", "then"});
        const std::set<int> known(cultures.begin(), cultures.end());
        Once<int> once; // one for both passes: what stands in both would be drawn twice
        return {.first = ReadPass(node.At("first"), known, once),
                .then = ReadPass(node.At("then"), known, once)};
    }

    static std::vector<int> ReadPass(const JsonNode& node, const std::set<int>& known,
                                     Once<int>& once) {
        std::vector<int> pass;
        for (const JsonNode& item : node.Items()) {
            const int culture = item.Int(0, kMaxCultureNumber);
            if (!known.contains(culture)) item.Fail("is not among the layer's cultures");
            once.Enter(item, culture);
            pass.push_back(culture);
        }
        return pass;
    }

    void CheckHomes(const JsonNode& cultures) const {
        const std::vector<JsonNode> nodes = cultures.Items();
        for (std::size_t i = 0; i < nodes.size(); ++i)
            if (!m_housed.contains(m_cultures[i].number))
                nodes[i].Fail("no layer holds this culture");
    }

    void ReadTemplate(const JsonNode& node) {
        node.AllowOnly({"number", "title", "folder", "zones", "about"});
        CheckAbout(node);
        TemplateType type{.number = node.At("number").Int(0, kMaxTemplateNumber),
                          .title = ReadTitle(node.At("title")),
                          .folder = ReadFolder(node.At("folder"))};
        m_templateNumbers.Enter(node.At("number"), type.number);
        Once<std::string> once;
        if (const auto zones = node.Find("zones"))
            for (const JsonNode& zone : zones->Items()) {
                type.zones.push_back(zone.Word(kMaxFolder));
                once.Enter(zone, LowerCase(type.zones.back()));
            }
        m_templates.push_back(std::move(type));
    }

    /// Words, each with a "\" behind it: a folder below the template folder, never beside it.
    static std::string ReadFolder(const JsonNode& node) {
        std::string folder = node.Text(kMaxFolder);
        char before = '\\';
        for (const char c : folder) {
            if (!IsLetterOrDigit(c) && (c != '\\' || before == '\\'))
                node.Fail("must be words of letters and digits, each with \"\\\" behind it");
            before = c;
        }
        if (before != '\\') node.Fail("must end with \"\\\"");
        return folder;
    }

    std::vector<CultureEntry> m_cultures;
    std::vector<LayerEntry> m_layers;
    std::vector<TemplateType> m_templates;
    std::map<int, std::size_t> m_layerPlaces;
    std::set<int> m_housed;
    Once<int> m_cultureNumbers, m_layerNumbers, m_templateNumbers;
    Once<std::string> m_cultureNames, m_layerTitles, m_layerAbbrs;
};

} // namespace

LayerCatalogue ParseLayerCatalogue(std::string_view json, const std::string& name) {
    const JsonDocument document(json, name);
    return CatalogueReader().Read(document.Root());
}

} // namespace zv
