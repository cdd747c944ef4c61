#include "data/project/Nodes.h"

namespace zv::host {
namespace {

constexpr double kFarthest = 1e12;

Join ReadJoin(const JsonNode& node) {
    node.AllowOnly({"file", "key", "on"});
    return {node.At("file").Text(kMaxText), node.At("key").Text(kMaxText),
            ReadTemplate(node.At("on"))};
}

std::array<double, 4> ReadBox(const JsonNode& node) {
    const std::vector<JsonNode> items = node.Items();
    if (items.size() != 4) node.Fail("must be four numbers: x1, y1, x2, y2");
    std::array<double, 4> box{};
    for (std::size_t i = 0; i < 4; ++i)
        box[i] = items[i].Number(-kFarthest, kFarthest);
    if (box[0] > box[2] || box[1] > box[3]) node.Fail("has its corners in the wrong order");
    return box;
}

void ReadFormat(const JsonNode& node, Source& source) {
    const std::string format = TextOr(node, "format", "");
    if (format == "sps")
        source.sps = true;
    else if (!format.empty())
        node.At("format").Fail("must be \"sps\", or be left out");
}

void ReadGeometry(const JsonNode& node, Source& source) {
    if (const auto position = node.Find("position")) source.position = ReadPosition(*position);
    source.wkt = TextOr(node, "wkt", "");
    if (source.position && !source.wkt.empty())
        node.At("wkt").Fail("cannot stand beside \"position\"");
    if (const auto box = node.Find("box")) source.box = ReadBox(*box);
    if (const auto coast = node.Find("coast")) source.coast = ReadBox(*coast);
}

Source ReadDrawing(const JsonNode& node) {
    node.AllowOnly({"name", "drawing", "about"});
    Source source;
    source.pointer = node.Place();
    source.drawing = node.At("drawing").Text(kMaxText);
    source.name = TextOr(node, "name", source.drawing);
    return source;
}

} // namespace

Source ReadSource(const JsonNode& node) {
    if (node.Find("drawing")) return ReadDrawing(node);
    node.AllowOnly({"name", "file", "archive", "member", "table", "crs", "position", "wkt",
                    "format", "joins", "where", "box", "coast", "items", "about"});
    Source source;
    source.pointer = node.Place();
    if (const auto archive = node.Find("archive")) {
        source.file = archive->Text(kMaxText);
        source.member = node.At("member").Text(kMaxText);
    } else {
        source.file = node.At("file").Text(kMaxText);
    }
    source.name = TextOr(node, "name", source.file);
    source.layer = TextOr(node, "table", "");
    source.crs = TextOr(node, "crs", "");
    ReadFormat(node, source);
    ReadGeometry(node, source);
    if (const auto joins = node.Find("joins"))
        for (const JsonNode& join : joins->Items())
            source.joins.push_back(ReadJoin(join));
    if (const auto where = node.Find("where")) source.where = ReadCondition(*where);
    for (const JsonNode& item : node.At("items").Items())
        source.items.push_back(ReadItemRule(item));
    return source;
}

} // namespace zv::host
