#include "data/project/Nodes.h"
#include "data/project/Words.h"

namespace zv::host {
namespace {

constexpr std::pair<std::string_view, ItemKind> kKinds[] = {
    {"line", ItemKind::Line}, {"polygon", ItemKind::Polygon}, {"symbol", ItemKind::Symbol},
    {"text", ItemKind::Text}, {"circle", ItemKind::Circle},   {"line-number", ItemKind::LineNumber},
};

constexpr std::pair<std::string_view, Anchor> kAnchors[] = {
    {"centre", Anchor::Centre}, {"first", Anchor::First}, {"last", Anchor::Last}};

template<class T, std::size_t N>
T ReadWord(const JsonNode& node, const std::pair<std::string_view, T> (&words)[N]) {
    const std::string text = node.Text(kMaxText);
    std::string known;
    for (const auto& [word, value] : words) {
        if (word == text) return value;
        known += (known.empty() ? "" : ", ") + std::string(word);
    }
    node.Fail("must be one of " + known);
}

std::array<double, 2> ReadPair(const JsonNode& node) {
    const std::vector<JsonNode> items = node.Items();
    if (items.size() != 2) node.Fail("must be two numbers");
    return {items[0].Number(-kMaxInches, kMaxInches), items[1].Number(-kMaxInches, kMaxInches)};
}

void ReadJustify(const JsonNode& node, ItemRule& rule) {
    const std::string text = node.Text(kMaxText);
    if (text.size() != 2 || std::string_view("lcr").find(text[0]) == std::string_view::npos ||
        std::string_view("amb").find(text[1]) == std::string_view::npos)
        node.Fail("must be one of l, c, r and one of a (above), m (middle), b (below): \"la\"");
    rule.horizontal = text[0];
    rule.vertical = text[1];
}

void ReadLook(const JsonNode& node, ItemRule& rule) {
    if (const auto colour = node.Find("colour")) rule.colour = ReadColourChoice(*colour);
    if (const auto fill = node.Find("fill")) rule.fill = ReadColourChoice(*fill);
    if (const auto text = node.Find("textColour")) rule.textColour = ReadColourChoice(*text);
    rule.fillStyle = IntOr(node, "fillStyle", 0, 0, 255);
    rule.width = IntOr(node, "width", 0, 0, 255);
    rule.type = IntOr(node, "type", 0, 0, 255);
    if (const auto symbol = node.Find("symbol")) rule.symbol = ReadSymbolChoice(*symbol);
    rule.size = NumberOr(node, "size", rule.size, 0.0, kMaxInches);
    rule.height = NumberOr(node, "height", rule.height, 0.0, kMaxInches);
    rule.style = IntOr(node, "style", 1, 1, 8);
}

/// An angle without fields is known now.
Template ReadAngle(const JsonNode& node) {
    const std::string text = node.Text(kMaxText);
    Template angle = ReadTemplate(node);
    double degrees = 0.0;
    if (angle.Fields().empty() && !text.empty() && text != "along" &&
        !ParseCoordinate(text, degrees))
        node.Fail("must be degrees, \"along\" or a template");
    return angle;
}

void ReadStand(const JsonNode& node, ItemRule& rule) {
    if (const auto justify = node.Find("justify")) ReadJustify(*justify, rule);
    if (const auto offset = node.Find("offset")) rule.offset = ReadPair(*offset);
    if (const auto angle = node.Find("angle")) rule.angle = ReadAngle(*angle);
    if (const auto at = node.Find("at")) rule.at = ReadWord(*at, kAnchors);
    if (const auto path = node.Find("path"))
        for (const JsonNode& point : path->Items())
            rule.path.push_back(ReadPosition(point));
    rule.clear = node.BoolOr("clear", false);
}

} // namespace

ItemRule ReadItemRule(const JsonNode& node) {
    node.AllowOnly({"kind",   "layer",  "post",   "uset",       "culture",   "where", "id",
                    "label",  "colour", "fill",   "textColour", "fillStyle", "width", "type",
                    "symbol", "size",   "height", "justify",    "offset",    "angle", "at",
                    "path",   "group",  "every",  "clear",      "style",     "about"});
    ItemRule rule;
    rule.pointer = node.Place();
    rule.kind = ReadWord(node.At("kind"), kKinds);
    rule.place = ReadPlace(node, false);
    if (const auto where = node.Find("where")) rule.where = ReadCondition(*where);
    rule.id = TemplateOr(node, "id");
    if (rule.kind == ItemKind::Text || rule.kind == ItemKind::LineNumber)
        rule.label = ReadTemplate(node.At("label"));
    else if (const auto label = node.Find("label"))
        label->Fail("only texts and line numbers have a label");
    rule.group = TemplateOr(node, "group");
    rule.every = IntOr(node, "every", 1, 1, 1000000);
    ReadLook(node, rule);
    ReadStand(node, rule);
    return rule;
}

} // namespace zv::host
