#include "data/project/Nodes.h"

#include <stdexcept>

#include "platform/Numbers.h"
#include "platform/zvcom/ZvColor.h"

namespace zv::host {
namespace {

constexpr int kMaxLayer = 32767;
constexpr int kMaxCulture = 65535;
constexpr int kMaxNumber = 1000000;

bool IsWholeNumber(std::string_view text) {
    return !text.empty() && text.size() <= 5 &&
           text.find_first_not_of("0123456789") == std::string_view::npos;
}

int ReadHalf(const JsonNode& node, std::string_view text) {
    if (!IsWholeNumber(text) || ParseInt(text) > kMaxCulture)
        node.Fail("must be two numbers from 0 to 65535 with a colon between");
    return ParseInt(text);
}

/// {"by", "table", "default"}: reads what both kinds of choice share.
template<class T, class ReadOne>
void ReadChoice(const JsonNode& node, Choice<T>& choice, ReadOne&& readOne) {
    node.AllowOnly({"by", "table", "default"});
    choice.by = ReadTemplate(node.At("by"));
    if (const auto table = node.Find("table"))
        for (const auto& [key, value] : table->Members())
            choice.table[key] = readOne(value);
    if (const auto fallback = node.Find("default")) choice.fallback = readOne(*fallback);
}

} // namespace

std::string TextOr(const JsonNode& node, std::string_view name, std::string fallback) {
    const auto found = node.Find(name);
    return found ? found->Text(kMaxText) : std::move(fallback);
}

int IntOr(const JsonNode& node, std::string_view name, int fallback, int min, int max) {
    const auto found = node.Find(name);
    return found ? found->Int(min, max) : fallback;
}

double NumberOr(const JsonNode& node, std::string_view name, double fallback, double min,
                double max) {
    const auto found = node.Find(name);
    return found ? found->Number(min, max) : fallback;
}

Template ReadTemplate(const JsonNode& node) {
    try {
        return Template(node.Text(kMaxText));
    } catch (const std::invalid_argument& fault) {
        node.Fail(fault.what());
    }
}

Template TemplateOr(const JsonNode& node, std::string_view name) {
    const auto found = node.Find(name);
    return found ? ReadTemplate(*found) : Template();
}

int ReadColour(const JsonNode& node) {
    if (!node.IsText()) return node.Int(0, 255);
    const std::string name = node.Text(kMaxText);
    const int index = CZvColor::S_Find(name);
    if (index < 0) node.Fail("the palette has no colour \"" + name + "\"");
    return index;
}

int ColourOr(const JsonNode& node, std::string_view name, int fallback) {
    const auto found = node.Find(name);
    return found ? ReadColour(*found) : fallback;
}

ColourChoice ReadColourChoice(const JsonNode& node) {
    ColourChoice choice;
    if (!node.IsObject()) {
        choice.fallback = ReadColour(node);
        return choice;
    }
    node.At("table");
    ReadChoice(node, choice, ReadColour);
    return choice;
}

SymbolRef ReadSymbol(const JsonNode& node) {
    if (node.IsText()) return {0, node.Text(6)};
    return {node.Int(1, kMaxNumber), {}};
}

SymbolChoice ReadSymbolChoice(const JsonNode& node) {
    SymbolChoice choice;
    if (!node.IsObject()) {
        choice.fallback = ReadSymbol(node);
        return choice;
    }
    ReadChoice(node, choice, ReadSymbol);
    choice.byName = choice.table.empty();
    return choice;
}

Condition ReadCondition(const JsonNode& node) {
    Condition condition;
    for (const auto& [field, value] : node.Members()) {
        std::vector<std::string>& allowed = condition.allowed[field];
        if (!value.IsArray()) {
            allowed.push_back(value.Text(kMaxText));
            continue;
        }
        for (const JsonNode& one : value.Items())
            allowed.push_back(one.Text(kMaxText));
    }
    return condition;
}

PositionFields ReadPosition(const JsonNode& node) {
    const std::vector<JsonNode> items = node.Items();
    if (items.size() != 2) node.Fail("must be two field names: X (or longitude), Y (or latitude)");
    return {items[0].Text(kMaxText), items[1].Text(kMaxText)};
}

ZVCulture ReadCulture(const JsonNode& node, bool compositeAllowed) {
    if (!compositeAllowed || !node.IsText()) return ZVCulture(node.Int(0, kMaxCulture));
    const std::string text = node.Text(kMaxText);
    const std::size_t colon = text.find(':');
    if (colon == std::string::npos) node.Fail("must be a number, or two as in \"3:7\"");
    const int culture = ReadHalf(node, std::string_view(text).substr(0, colon));
    const int sub = ReadHalf(node, std::string_view(text).substr(colon + 1));
    if (culture > 32767) node.Fail("has a culture above 32767 before the colon");
    return ZVCulture((culture << 16) | sub);
}

Place ReadPlace(const JsonNode& node, bool compositeAllowed) {
    Place place;
    place.layer = E_Layer(node.At("layer").Int(0, kMaxLayer));
    place.post = IntOr(node, "post", 1, 0, kMaxNumber);
    place.uset = IntOr(node, "uset", 1, 0, kMaxNumber);
    place.culture = ReadCulture(node.At("culture"), compositeAllowed);
    return place;
}

} // namespace zv::host
