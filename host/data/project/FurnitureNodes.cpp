#include "data/project/Nodes.h"

namespace zv::host {
namespace {

constexpr std::size_t kMaxLines = 40;

std::vector<std::string> ReadLines(const JsonNode& node) {
    std::vector<std::string> lines;
    for (const JsonNode& line : node.Items())
        lines.push_back(line.Text(kMaxText));
    if (lines.size() > kMaxLines) node.Fail("has more than 40 lines");
    return lines;
}

GridStyle ReadGrid(const JsonNode& node) {
    node.AllowOnly({"step", "lines", "colour", "textColour", "height"});
    GridStyle grid;
    grid.step = node.At("step").Number(1.0 / 3600.0, 90.0);
    grid.lines = node.BoolOr("lines", true);
    grid.colour = ColourOr(node, "colour", grid.colour);
    grid.textColour = ColourOr(node, "textColour", grid.textColour);
    grid.height = NumberOr(node, "height", grid.height, 0.0, kMaxInches);
    return grid;
}

LegendRow ReadRow(const JsonNode& node) {
    node.AllowOnly({"text", "symbol", "line", "area", "fill", "width", "type", "colour"});
    LegendRow row;
    row.text = node.At("text").Text(kMaxText);
    row.colour = ColourOr(node, "colour", row.colour);
    row.width = IntOr(node, "width", 0, 0, 255);
    row.type = IntOr(node, "type", 0, 0, 255);
    if (const auto fill = node.Find("fill")) row.fill = ReadColour(*fill);
    if (const auto symbol = node.Find("symbol")) {
        row.symbol = ReadSymbol(*symbol);
        return row;
    }
    row.kind = node.BoolOr("area", false) ? LegendRow::Kind::Area : LegendRow::Kind::Line;
    if (row.kind == LegendRow::Kind::Line && !node.BoolOr("line", false))
        node.Fail("needs a \"symbol\", or \"line\" or \"area\" as true");
    return row;
}

LegendStyle ReadLegend(const JsonNode& node) {
    node.AllowOnly({"detail", "title", "rows"});
    LegendStyle legend;
    legend.detail = node.At("detail").Int(0, 8);
    legend.title = node.At("title").Text(kMaxText);
    for (const JsonNode& row : node.At("rows").Items())
        legend.rows.push_back(ReadRow(row));
    if (legend.rows.size() > kMaxLines) node.Fail("has more than 40 rows");
    return legend;
}

} // namespace

Furniture ReadFurniture(const JsonNode& node) {
    node.AllowOnly({"margin", "panel", "paper", "ink", "title", "projection", "scaleBar", "north",
                    "grid", "legends"});
    Furniture furniture;
    furniture.margin = NumberOr(node, "margin", furniture.margin, 0.0, kMaxInches);
    furniture.panel = NumberOr(node, "panel", furniture.panel, 0.0, kMaxInches);
    furniture.paper = ColourOr(node, "paper", furniture.paper);
    furniture.ink = ColourOr(node, "ink", furniture.ink);
    if (const auto title = node.Find("title")) furniture.title = ReadLines(*title);
    if (const auto lines = node.Find("projection")) furniture.projection = ReadLines(*lines);
    furniture.scaleBar = node.BoolOr("scaleBar", true);
    furniture.north = IntOr(node, "north", furniture.north, 0, 9999);
    if (const auto grid = node.Find("grid")) furniture.grid = ReadGrid(*grid);
    if (const auto legends = node.Find("legends"))
        for (const JsonNode& legend : legends->Items())
            furniture.legends.push_back(ReadLegend(legend));
    return furniture;
}

} // namespace zv::host
