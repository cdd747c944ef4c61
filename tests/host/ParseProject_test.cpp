#include <gtest/gtest.h>

#include "data/project/Project.h"
#include "platform/Error.h"

namespace zv::host {
namespace {

constexpr const char* kFrame =
    R"("units": "feet", "scale": 1000, "bounds": {"xy": [0, 0, 10, 10]})";

std::string With(const std::string& more) {
    return "{" + std::string(kFrame) + more + "}";
}

std::string WithItem(const std::string& item) {
    return With(R"(, "sources": [{"file": "a.csv", "items": [)" + item + "]}]");
}

/// "place: reason" of the error that a text gives.
std::string Fault(const std::string& text) {
    try {
        ParseProject(text, "map.json");
    } catch (const DataError& fault) {
        EXPECT_EQ(fault.GetError().file, "map.json");
        return fault.GetError().place + ": " + fault.GetError().reason;
    }
    return "none";
}

TEST(ParseProject, ReadsTheFrame) {
    const Project project = ParseProject(
        R"({"title": "T", "crs": "EPSG:32065", "geographic": "EPSG:4267", "scale": 24000,
            "bounds": {"latlon": [28, -92, 29, -91]},
            "view": {"background": "navy", "fillBrightness": 0, "font": "Arial", "size": [800, 600]}})",
        "map.json");
    EXPECT_EQ(project.title, "T");
    EXPECT_EQ(project.scale, 24000);
    EXPECT_TRUE(project.boundsByLatLon);
    EXPECT_EQ(project.bounds, (std::array<double, 4>{28, -92, 29, -91}));
    EXPECT_FALSE(project.feet.has_value());
    EXPECT_EQ(project.view.background, 32);
    EXPECT_EQ(project.view.fillBrightness, 0);
    EXPECT_EQ(project.view.size, (std::array<int, 2>{800, 600}));
    EXPECT_FALSE(project.furniture.has_value());
}

TEST(ParseProject, ReadsAnItemRule) {
    const Project project = ParseProject(
        WithItem(R"({"kind": "symbol", "layer": 25, "post": 2, "uset": 3, "culture": 220,
                     "id": "{API}", "symbol": {"by": "{T}-{S}", "table": {"D-PA": 6, "D-COM": "OIL"},
                     "default": 68}, "size": 0.2, "offset": [0.1, -0.2], "colour": {"by": "{S}",
                     "table": {"PA": 9}, "default": "red"}, "every": 10, "clear": true})"),
        "map.json");
    const ItemRule& rule = project.sources.at(0).items.at(0);
    EXPECT_EQ(rule.kind, ItemKind::Symbol);
    EXPECT_EQ(rule.pointer, "/sources/0/items/0");
    EXPECT_EQ(rule.place.layer, 25);
    EXPECT_EQ(rule.place.post, 2);
    EXPECT_EQ(rule.place.uset, 3);
    EXPECT_EQ(rule.place.culture, 220);
    EXPECT_EQ(rule.symbol.table.at("D-PA").number, 6);
    EXPECT_EQ(rule.symbol.table.at("D-COM").name, "OIL");
    EXPECT_FALSE(rule.symbol.byName);
    EXPECT_EQ(rule.colour.table.at("PA"), 9);
    EXPECT_EQ(rule.colour.fallback, 1);
    EXPECT_EQ(rule.every, 10);
    EXPECT_TRUE(rule.clear);
}

TEST(ParseProject, PostAndUserSetAreOneWhereNothingElseIsSaid) {
    const Project project =
        ParseProject(WithItem(R"({"kind": "line", "layer": 6, "culture": 31})"), "map.json");
    EXPECT_EQ(project.sources[0].items[0].place.post, 1);
    EXPECT_EQ(project.sources[0].items[0].place.uset, 1);
}

TEST(ParseProject, ASymbolByNameNeedsNoTable) {
    const Project project = ParseProject(
        WithItem(R"({"kind": "symbol", "layer": 25, "culture": 220, "symbol": {"by": "{T}"}})"),
        "map.json");
    EXPECT_TRUE(project.sources[0].items[0].symbol.byName);
}

TEST(ParseProject, PacksACompositeCulture) {
    const Project project = ParseProject(
        With(R"(, "overrides": [{"layer": 25, "culture": "3:7", "colour": 4, "width": 2}])"),
        "map.json");
    EXPECT_EQ(project.overrides.at(0).place.culture, 196608 + 7);
    EXPECT_EQ(project.overrides[0].colour, 4);
    EXPECT_EQ(project.overrides[0].width, 2);
    EXPECT_FALSE(project.overrides[0].type.has_value());
}

TEST(ParseProject, TakesSettingsInlineOrByName) {
    EXPECT_EQ(ParseProject(With(R"(, "settings": "s.json")"), "map.json").settingsFile, "s.json");
    EXPECT_EQ(
        ParseProject(With(R"(, "settings": {"global": {"A": true}})"), "map.json").settingsText,
        R"({"global":{"A":true}})");
}

TEST(ParseProject, AnArchiveNeedsItsMember) {
    EXPECT_EQ(Fault(With(R"(, "sources": [{"archive": "a.zip", "items": []}])")),
              "/sources/0: lacks the member \"member\"");
}

TEST(ParseProject, NamesThePlaceOfAnUnknownKey) {
    EXPECT_EQ(Fault(With(R"(, "titel": "x")")), "/titel: there is no such member here");
    EXPECT_EQ(Fault(WithItem(R"({"kind": "line", "layer": 6, "culture": 31, "color": 4})")),
              "/sources/0/items/0/color: there is no such member here");
}

TEST(ParseProject, NamesThePlaceOfAWrongValue) {
    EXPECT_EQ(Fault(WithItem(R"({"kind": "blob", "layer": 6, "culture": 31})")),
              "/sources/0/items/0/kind: must be one of line, polygon, symbol, text, circle, "
              "line-number");
    EXPECT_EQ(Fault(WithItem(R"({"kind": "line", "layer": -1, "culture": 31})")),
              "/sources/0/items/0/layer: must be from 0 to 32767");
    EXPECT_EQ(Fault(WithItem(R"({"kind": "line", "layer": 6, "culture": 31, "colour": 256})")),
              "/sources/0/items/0/colour: must be from 0 to 255");
    EXPECT_EQ(Fault(WithItem(R"({"kind": "line", "layer": 6, "culture": 31, "colour": "mud"})")),
              "/sources/0/items/0/colour: the palette has no colour \"mud\"");
    EXPECT_EQ(Fault(WithItem(R"({"kind": "line", "layer": 6, "culture": 31, "id": "{A"})")),
              "/sources/0/items/0/id: a \"{\" is not closed");
    EXPECT_EQ(Fault(WithItem(R"({"kind": "text", "layer": 6, "culture": 31})")),
              "/sources/0/items/0: lacks the member \"label\"");
    EXPECT_EQ(Fault(WithItem(R"({"kind": "line", "layer": 6, "culture": 31, "label": "x"})")),
              "/sources/0/items/0/label: only texts and line numbers have a label");
}

TEST(ParseProject, NamesLineAndColumnOfBrokenText) {
    EXPECT_EQ(Fault("{\n  \"scale\": ,\n}").substr(0, 17), "line 2, column 12");
}

TEST(ParseProject, RefusesBoundsThatAreNone) {
    EXPECT_EQ(Fault(R"({"units": "feet", "scale": 1, "bounds": {"xy": [5, 0, 5, 9]}})"),
              "/bounds/xy: has its corners in the wrong order");
    EXPECT_EQ(Fault(R"({"units": "feet", "scale": 1, "bounds": {"xy": [0, 0, 1]}})"),
              "/bounds/xy: must be four numbers");
    EXPECT_EQ(Fault(R"({"units": "feet", "scale": 1, "bounds": {"latlon": [0, 0, 1, 1]}})"),
              "/bounds/latlon: needs a \"crs\" for the map");
    EXPECT_EQ(Fault(R"({"scale": 1, "bounds": {"xy": [0, 0, 1, 1]}})"),
              ": needs \"crs\", or \"units\" without one");
}

TEST(ParseProject, RefusesAScaleOfNothing) {
    EXPECT_EQ(Fault(R"({"units": "feet", "scale": 0, "bounds": {"xy": [0, 0, 1, 1]}})"),
              "/scale: must be from 1 to 100000000");
}

TEST(ParseProject, RefusesWktBesideAPosition) {
    EXPECT_EQ(Fault(With(R"(, "sources": [{"file": "a.csv", "position": ["X", "Y"], "wkt": "G",
                              "items": []}])")),
              "/sources/0/wkt: cannot stand beside \"position\"");
}

TEST(Condition, HoldsWhereEveryFieldHasOneOfItsValues) {
    const FieldIndex fields({"A", "B"});
    const Condition condition{{{"A", {"x", "y"}}, {"B", {"1"}}}};
    const std::vector<std::string> good{" y ", "1"}, bad{"y", "2"};
    EXPECT_TRUE(condition.Holds({&fields, &good}));
    EXPECT_FALSE(condition.Holds({&fields, &bad}));
    EXPECT_TRUE(Condition{}.Holds({&fields, &bad}));
}

} // namespace
} // namespace zv::host
