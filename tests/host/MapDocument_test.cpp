#include "data/MapDocument.h"

#include <gtest/gtest.h>

#include "data/Extents.h"
#include "platform/Error.h"
#include "platform/zvcom/ZvUtRegistry.h"
#include "support/LogLines.h"
#include "support/TempFolder.h"

namespace zv::host {
namespace {

using test::TempFolder;
using test::WriteText;

/// A folder with a project and its sources, and a work folder of its own.
class MapDocumentTest : public ::testing::Test {
  protected:
    MapDocumentTest() { SetWork((folder / "work").c_str()); }
    ~MapDocumentTest() override { SetWork(""); }

    static void SetWork(const std::string& path) {
        CZvUtRegistry::S_Override(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                                  path);
    }

    void Put(const std::string& name, const std::string& text) {
        WriteText(folder.Path() / name, text);
    }

    /// A project on a local grid with these sources (JSON), and what else belongs behind them.
    std::unique_ptr<MapDocument> Open(const std::string& sources, const std::string& more = "") {
        Put("map.json", R"({"units": "feet", "scale": 100, "bounds": {"xy": [0, 0, 1000, 1000]},
                            "sources": [)" +
                            sources + "]" + more + "}");
        return MapDocument::Open({folder / "map.json", "", "scratch", {}});
    }

    static CZvDisplayItem* First(CZvDispMap& map, int layer, int culture) {
        return map.GetItem(E_Layer(layer), 1, 1, ZVCulture(culture), 10001);
    }

    TempFolder folder;
};

TEST_F(MapDocumentTest, MakesOneItemOfEachRowAndCountsTheBadOnes) {
    Put("w.csv", "X,Y,API\n1,2,100\n,2,101\n*,2,102\n3,4,103\n");
    const auto document =
        Open(R"({"name": "wells", "file": "w.csv", "position": ["X", "Y"], "items": [
        {"kind": "symbol", "layer": 25, "culture": 220, "id": "{API}", "symbol": 56},
        {"kind": "text", "layer": 25, "culture": 222, "id": "{API}", "label": "{API}"}]})");
    EXPECT_EQ(document->Map().GetCultureCount(E_LAYER_WELLS, 1, 1, ZVCulture(220)), 2);
    EXPECT_EQ(document->Map().GetCultureCount(E_LAYER_WELLS, 1, 1, ZVCulture(222)), 2);
    const SourceReport& report = document->Report().sources.at(0);
    EXPECT_EQ(report.name, "wells");
    EXPECT_EQ(report.rows, 4);
    EXPECT_EQ(report.items, 4);
    EXPECT_EQ(report.reasons,
              (std::map<std::string, long long>{{"no position", 1}, {"position is no number", 1}}));
    EXPECT_EQ(report.rejected, 2);
    EXPECT_EQ(report.fewer, 0);
}

TEST_F(MapDocumentTest, AWellIsFoundByItsApiNumber) {
    Put("w.csv", "X,Y,API\n1,2,100\n3,4,103\n");
    const auto document = Open(R"({"file": "w.csv", "position": ["X", "Y"], "items": [
        {"kind": "symbol", "layer": 25, "culture": 220, "id": "{API}", "symbol": 56, "size": 0.5}]})");
    std::vector<unsigned>* found = nullptr;
    ASSERT_TRUE(document->Map().LookUpItem(E_LAYER_WELLS, 1, 1, ZVCulture(220), "103", found));
    const std::unique_ptr<CZvDisplayItem> item(
        document->Map().GetItem(E_LAYER_WELLS, 1, 1, ZVCulture(220), found->at(0)));
    const auto& symbol = dynamic_cast<const CZvDispSymbols&>(*item);
    EXPECT_EQ(symbol.GetCenter().GetX(), 3.0);
    EXPECT_EQ(symbol.GetSymbolNum(), 56);
    EXPECT_EQ(symbol.GetScale(), 50.0);
}

TEST_F(MapDocumentTest, AttributesChooseSymbolAndColour) {
    Put("w.csv", "X,Y,T,S\n1,2,D,PA\n1,2,UNK,NWN\n1,2,,N\n");
    const auto document = Open(R"({"file": "w.csv", "position": ["X", "Y"], "items": [
        {"kind": "symbol", "layer": 25, "culture": 220, "symbol": {"by": "{T}{S}"},
         "where": {"T": ["UNK", ""]},
         "colour": {"by": "{S}", "table": {"N": 7}, "default": 5}},
        {"kind": "symbol", "layer": 25, "culture": 221,
         "symbol": {"by": "{T}", "table": {"D": 701}, "default": 42}}]})");
    const auto symbol = [&](int culture, unsigned id) {
        const std::unique_ptr<CZvDisplayItem> item(
            document->Map().GetItem(E_LAYER_WELLS, 1, 1, ZVCulture(culture), id));
        return std::pair(dynamic_cast<CZvDispSymbols&>(*item).GetSymbolNum(),
                         int(item->GetColor()));
    };
    EXPECT_EQ(symbol(221, 10001).first, 701);
    EXPECT_EQ(symbol(220, 10002), std::pair(68, 5)); // both names mean 68
    EXPECT_EQ(symbol(221, 10003).first, 42);
    EXPECT_EQ(symbol(220, 10004), std::pair(68, 7));
    EXPECT_TRUE(document->Report().sources[0].reasons.empty());
}

TEST_F(MapDocumentTest, ASymbolThatIsNotThereIsLeftOutAndCounted) {
    Put("w.csv", "X,Y,T\n1,2,OIL\n1,2,??\n1,2,??\n1,2,\n");
    const auto document = Open(R"({"file": "w.csv", "position": ["X", "Y"], "items": [
        {"kind": "symbol", "layer": 25, "culture": 220, "symbol": {"by": "{T}"}},
        {"kind": "text", "layer": 25, "culture": 222, "label": "{T}"}]})");
    const SourceReport& report = document->Report().sources.at(0);
    EXPECT_EQ(document->Map().GetCultureCount(E_LAYER_WELLS, 1, 1, ZVCulture(220)), 1);
    EXPECT_EQ(report.items, 4); // one symbol, three labels
    EXPECT_EQ(report.reasons,
              (std::map<std::string, long long>{
                  {"no symbol \"??\"", 2}, {"no symbol \"\"", 1}, {"no text for a label", 1}}));
    EXPECT_EQ(report.fewer, 2);
    EXPECT_EQ(report.rejected, 1);
}

TEST_F(MapDocumentTest, ASymbolOfTheProjectThatIsNotThereIsAnErrorWithItsPlace) {
    Put("s.csv", "X,Y\n1,1\n");
    const auto fault = [this](const std::string& symbol, const std::string& more = "") {
        try {
            Open(R"({"file": "s.csv", "position": ["X", "Y"], "items": [
                 {"kind": "symbol", "layer": 90, "culture": 556, "symbol": )" +
                     symbol + "}]}",
                 more);
        } catch (const DataError& error) {
            return error.GetError().place + ": " + error.GetError().reason;
        }
        return std::string("none");
    };
    const std::string rule = "/sources/0/items/0/symbol";
    EXPECT_EQ(fault("990"), rule + ": there is no symbol 990");
    EXPECT_EQ(fault("\"NONE\""), rule + ": there is no symbol \"NONE\"");
    EXPECT_EQ(fault(R"({"by": "{X}", "table": {"1": "OIL", "2/a": 991}})"),
              rule + "/table/2~1a: there is no symbol 991");
    EXPECT_EQ(fault(R"({"by": "{X}", "table": {"1": "OIL"}, "default": "NONE"})"),
              rule + "/default: there is no symbol \"NONE\"");
    EXPECT_EQ(fault("56", R"(, "furniture": {"north": 992})"),
              "/furniture/north: there is no symbol 992");
    EXPECT_EQ(fault("56", R"(, "furniture": {"legends": [{"detail": 0, "title": "L", "rows": [
                             {"text": "a", "line": true}, {"text": "b", "symbol": "NONE"}]}]})"),
              "/furniture/legends/0/rows/1/symbol: there is no symbol \"NONE\"");
    EXPECT_EQ(fault("\"UNKNWN\""), "none");
}

TEST_F(MapDocumentTest, AnAngleThatIsNoNumberGivesNoItem) {
    Put("s.csv", "X,Y,A\n1,1,30\n1,1,north\n1,1,\n");
    const auto document = Open(R"({"file": "s.csv", "position": ["X", "Y"], "items": [
        {"kind": "symbol", "layer": 90, "culture": 556, "symbol": 56, "angle": "{A}"}]})");
    const SourceReport& report = document->Report().sources.at(0);
    EXPECT_EQ(report.items, 1);
    EXPECT_EQ(report.rejected, 2);
    EXPECT_EQ(report.reasons, (std::map<std::string, long long>{{"angle is no number", 2}}));
    EXPECT_THROW(Open(R"({"file": "s.csv", "position": ["X", "Y"], "items": [
        {"kind": "symbol", "layer": 90, "culture": 556, "symbol": 56, "angle": "north"}]})"),
                 DataError);
}

TEST_F(MapDocumentTest, EachRowIsFilteredOrGivesItemsOrIsCountedWithAReason) {
    Put("s.csv", "X,Y,L,N\n0,0,A,a\n1,0,A,\n5,5,B,b\n6,6,C,\n");
    const auto document = Open(R"({"file": "s.csv", "position": ["X", "Y"], "items": [
        {"kind": "line", "layer": 16, "culture": 658, "group": "{L}", "where": {"L": ["A", "B"]}},
        {"kind": "line", "layer": 16, "culture": 665, "where": {"L": "B"}},
        {"kind": "polygon", "layer": 3, "culture": 12, "where": {"L": "B"}},
        {"kind": "line-number", "layer": 16, "culture": 664, "label": "{N}", "where": {"L": "B"}}]})");
    const SourceReport& report = document->Report().sources.at(0);
    EXPECT_EQ(report.rows, 4);
    EXPECT_EQ(report.items, 1);    // of the two rows of A
    EXPECT_EQ(report.filtered, 1); // C, on which no rule acts
    EXPECT_EQ(report.rejected, 1);
    EXPECT_EQ(report.fewer, 0);
    EXPECT_EQ(report.reasons, (std::map<std::string, long long>{{"a line of one point", 1},
                                                                {"a point is no area", 1},
                                                                {"a point is no line", 1}}));
}

TEST_F(MapDocumentTest, AMultipolygonGivesAnItemForEachPartUnderOneId) {
    Put("b.csv", "G,ID\n\"MULTIPOLYGON (((0 0,9 0,9 9,0 9,0 0),(1 1,1 2,2 2,1 1)),((20 0,21 0,21 1,"
                 "20 0)))\",A#1#\n");
    const auto document = Open(R"({"file": "b.csv", "wkt": "G", "items": [
        {"kind": "polygon", "layer": 3, "culture": 12, "id": "{ID}", "colour": 42},
        {"kind": "line", "layer": 3, "culture": 11, "id": "{ID}"},
        {"kind": "text", "layer": 3, "culture": 13, "label": "{ID}"}]})");
    CZvDispMap& map = document->Map();
    EXPECT_EQ(map.GetCultureCount(E_LAYER_LEASE_BLOCKS, 1, 1, ZVCulture(12)), 2);
    EXPECT_EQ(map.GetCultureCount(E_LAYER_LEASE_BLOCKS, 1, 1, ZVCulture(11)), 2);
    EXPECT_EQ(map.GetCultureCount(E_LAYER_LEASE_BLOCKS, 1, 1, ZVCulture(13)), 1);
    const std::unique_ptr<CZvDisplayItem> item(First(map, 3, 12));
    auto& polygon = dynamic_cast<CZvDispPolygon&>(*item);
    EXPECT_EQ(polygon.GetID(), "A#1#");
    EXPECT_TRUE(polygon.GetFill());
    EXPECT_EQ(polygon.GetSize(), 10); // 5 of the outer ring, 4 of the hole, and the way back
    EXPECT_FALSE(polygon.GetPoint(5).GetDown());
}

TEST_F(MapDocumentTest, RowsOfOneKeyBecomeALine) {
    Put("s.csv", "L,X,Y\nA,0,0\nA,1,0\nA,2,0\nB,5,5\nB,6,6\n");
    const auto document = Open(R"({"file": "s.csv", "position": ["X", "Y"], "items": [
        {"kind": "line", "layer": 16, "culture": 658, "id": "{L}", "group": "{L}"},
        {"kind": "symbol", "layer": 16, "culture": 659, "every": 2, "symbol": 210},
        {"kind": "line-number", "layer": 16, "culture": 664, "group": "{L}", "label": "{L}", "at": "first"}]})");
    CZvDispMap& map = document->Map();
    EXPECT_EQ(map.GetCultureCount(E_Layer(16), 1, 1, ZVCulture(658)), 2);
    EXPECT_EQ(map.GetCultureCount(E_Layer(16), 1, 1, ZVCulture(659)), 3);
    // Two end symbols, two rules and the number itself, for each line.
    EXPECT_EQ(map.GetCultureCount(E_Layer(16), 1, 1, ZVCulture(664)), 10);
}

TEST_F(MapDocumentTest, JoinsATableAndFilters) {
    Put("b.csv", "G,LEASE\n\"POINT (1 1)\",00016\n\"POINT (2 2)\",00017\n\"POINT (3 3)\",00018\n");
    Put("t.csv", "Lease Number,Area\n 00016,GI\n 00017,WD\n");
    const auto document =
        Open(R"({"file": "b.csv", "wkt": "G", "where": {"LEASE": ["00016", "00018"]},
        "joins": [{"file": "t.csv", "key": "Lease Number", "on": "{LEASE}"}], "items": [
        {"kind": "symbol", "layer": 90, "culture": 556, "id": "{Area}#", "symbol": 42}]})");
    const std::unique_ptr<CZvDisplayItem> first(First(document->Map(), 90, 556));
    EXPECT_EQ(first->GetID(), "GI#");
    const std::unique_ptr<CZvDisplayItem> second(
        document->Map().GetItem(E_LAYER_CUSTOM, 1, 1, ZVCulture(556), 10002));
    EXPECT_EQ(second->GetID(), "#");
    EXPECT_EQ(document->Report().sources[0].filtered, 1);
}

TEST_F(MapDocumentTest, OverridesReachOneCultureList) {
    Put("s.csv", "X,Y\n1,1\n");
    const auto document =
        Open(R"({"file": "s.csv", "position": ["X", "Y"], "items": [
        {"kind": "symbol", "layer": 90, "culture": 556, "symbol": 42, "colour": 1},
        {"kind": "symbol", "layer": 90, "culture": 555, "symbol": 42, "colour": 1}]})",
             R"(, "overrides": [{"layer": 90, "culture": 556, "colour": 4, "type": 2,
                               "width": 3}, {"layer": 13, "culture": 141, "colour": 4}])");
    const std::unique_ptr<CZvDisplayItem> item(First(document->Map(), 90, 556));
    EXPECT_EQ(item->GetColor(), 4);
    EXPECT_EQ(item->GetLineType(), 2);
    EXPECT_EQ(item->GetLineWidth(), 3);
    const std::unique_ptr<CZvDisplayItem> other(
        document->Map().GetItem(E_LAYER_CUSTOM, 1, 1, ZVCulture(555), 10002));
    EXPECT_EQ(other->GetColor(), 1);
}

TEST_F(MapDocumentTest, LabelsWithoutRoomAreInvisibleButThere) {
    Put("s.csv",
        "X,Y,N\n500,500,AAAA\n500,500,BBBB\n500,500,CCCC\n500,500,DDDD\n500,500,EEEE\n500,500,"
        "FFFF\n500,500,GGGG\n");
    const auto document = Open(R"({"file": "s.csv", "position": ["X", "Y"], "items": [
        {"kind": "text", "layer": 25, "culture": 222, "label": "{N}", "offset": [0.1, 0.02], "clear": true}]})");
    EXPECT_EQ(document->Map().GetCultureCount(E_LAYER_WELLS, 1, 1, ZVCulture(222)), 7);
    EXPECT_EQ(document->Report().labels + document->Report().hiddenLabels, 7);
    EXPECT_GE(document->Report().hiddenLabels, 1);
}

TEST_F(MapDocumentTest, TellsOfCharactersThatLabelsCannotHold) {
    Put("s.csv", "X,Y,N\n1,1,\xC5\x81uk\n");
    const test::LogLines log;
    const auto document =
        Open(R"({"name": "names", "file": "s.csv", "position": ["X", "Y"], "items": [
        {"kind": "text", "layer": 90, "culture": 550, "label": "{N}"}]})");
    const std::unique_ptr<CZvDisplayItem> item(First(document->Map(), 90, 550));
    EXPECT_EQ(dynamic_cast<CZvDispText&>(*item).GetLabel(), "?uk");
    EXPECT_TRUE(log.Holds("names: 1 characters of labels have no place in code page 1252"));
}

TEST_F(MapDocumentTest, FurnitureCarriesTheNamesOfItsDetails) {
    const auto document =
        Open("", R"(, "furniture": {"title": ["T"], "projection": ["P"], "legends": [
        {"detail": 1, "title": "L", "rows": [{"text": "x", "symbol": 56}]}]})");
    std::vector<std::string> ids;
    for (unsigned id = 10001; id < 10010; ++id) {
        const std::unique_ptr<CZvDisplayItem> item(
            document->Map().GetItem(E_LAYER_FURNITURE, 1, 1, ZVCulture(451), id));
        if (!item) continue;
        ids.push_back(item->GetID());
        EXPECT_EQ(item->GetDispType(), ZV_DISP_GROUP);
    }
    EXPECT_EQ(ids, (std::vector<std::string>{"PROJ_TEXT_DETAIL", "SCALE_TEXT_DETAIL",
                                             "TITLE_BLOCK_DETAIL", "LEGEND_DETAIL1",
                                             "NORTH_ARROW_DETAIL"}));
    EXPECT_EQ(document->Map().GetCultureCount(E_LAYER_FURNITURE, 1, 1, ZVCulture(450)), 1);
}

TEST_F(MapDocumentTest, FurnitureStandsWhereTheSettingsMovedIt) {
    const std::string furniture =
        R"(, "furniture": {"title": ["T"], "scaleBar": false, "north": 0})";
    const auto origin = [](MapDocument& document) {
        const std::unique_ptr<CZvDisplayItem> item(
            document.Map().GetItem(E_LAYER_FURNITURE, 1, 1, ZVCulture(451), 10002));
        return dynamic_cast<CZvDispGroup&>(*item).GetOrigin();
    };
    const CZvDispPoint before = origin(*Open("", furniture));
    const CZvDispPoint after =
        origin(*Open("", furniture + R"(, "settings": {"layers": {"2": {"Post#1":
        {"TITLE_BLOCK_DETAIL": {"XOFFSET": 0.5, "YOFFSET": -1.0}}}}})"));
    EXPECT_NEAR(after.GetX() - before.GetX(), 50.0, 1e-9);
    EXPECT_NEAR(after.GetY() - before.GetY(), -100.0, 1e-9);
}

TEST_F(MapDocumentTest, MemoryManagementComesFromTheSettings) {
    EXPECT_FALSE(Open("")->Map().GetMemManage());
    EXPECT_TRUE(
        Open("", R"(, "settings": {"global": {"MEMORY_MANAGEMENT": true}})")->Map().GetMemManage());
}

TEST_F(MapDocumentTest, NamesPlaceAndFileOfASourceThatIsNotThere) {
    try {
        Open(R"({"file": "gone.csv", "items": []})");
        FAIL() << "opened";
    } catch (const DataError& fault) {
        EXPECT_EQ(fault.GetError().place, "/sources/0");
        EXPECT_NE(fault.GetError().reason.find("gone.csv\" cannot be found"), std::string::npos);
    }
}

TEST_F(MapDocumentTest, NamesTheRuleThatAsksForAFieldThatIsNotThere) {
    Put("s.csv", "X,Y\n1,1\n");
    try {
        Open(R"({"file": "s.csv", "position": ["X", "Y"], "items": [
            {"kind": "symbol", "layer": 90, "culture": 556, "id": "{API}", "symbol": 42}]})");
        FAIL() << "opened";
    } catch (const DataError& fault) {
        EXPECT_EQ(fault.GetError().place, "/sources/0/items/0");
        EXPECT_EQ(fault.GetError().file, folder / "map.json");
        EXPECT_EQ(fault.GetError().reason, "the source \"s.csv\" has no field \"API\"");
    }
}

/// A line of a drawing file: 80 columns and its end.
std::string DrawingLine(std::string text) {
    text.resize(80, ' ');
    return text + "\r\n";
}

/// A polyline from (1, 2) to (30, 40) in layer 90, culture 551.
std::string Drawing() {
    return DrawingLine("COV:   13  90LW:  0LT:  0COL:  4X:           1.00000000") +
           DrawingLine("Y:           2.00000000IB:POS:  1UST:  1CUL:551") +
           DrawingLine("COV2:  14X:          30.00000000Y:          40.00000000") +
           DrawingLine("EOF:  120");
}

TEST_F(MapDocumentTest, NamesThePlaceOfACoordinateSystemThatIsNone) {
    const auto fault = [this](const std::string& text) {
        Put("map.json", text);
        try {
            MapDocument::Open({folder / "map.json", "", "scratch", {}});
        } catch (const DataError& error) {
            return error.GetError().place + ": " + error.GetError().reason;
        }
        return std::string("none");
    };
    const std::string bounds = R"("scale": 1, "bounds": {"xy": [0, 0, 1, 1]})";
    EXPECT_EQ(fault(R"({"crs": "EPSG:none", )" + bounds + "}"),
              "/crs: \"EPSG:none\" is not a coordinate system");
    EXPECT_EQ(fault(R"({"crs": "EPSG:4267", )" + bounds + "}"),
              "/crs: \"EPSG:4267\" is not a projection");
    EXPECT_EQ(fault(R"({"crs": "EPSG:26782", "geographic": "EPSG:26782", )" + bounds + "}"),
              "/geographic: \"EPSG:26782\" has no latitudes and longitudes");
    Put("s.csv", "X,Y\n1,1\n");
    EXPECT_EQ(fault(R"({"crs": "EPSG:26782", "sources": [{"file": "s.csv", "position": ["X", "Y"],
                       "crs": "here", "items": []}], )" +
                    bounds + "}"),
              "/sources/0/crs: \"here\" is not a coordinate system");
}

TEST_F(MapDocumentTest, OpensADrawingFileByItself) {
    Put("d.drw", Drawing());
    const auto drawing = MapDocument::Open({folder / "d.drw", "", "scratch", {}});
    EXPECT_EQ(drawing->Map().GetCultureCount(E_LAYER_CUSTOM, 1, 1, ZVCulture(551)), 1);
    CZvDispPoint ll, ur;
    drawing->Map().GetMapBound(ll, ur);
    EXPECT_EQ(ll.GetX(), 1.0);
    EXPECT_EQ(ur.GetY(), 40.0);
    EXPECT_LT(drawing->Page()[0], 1.0);
}

TEST_F(MapDocumentTest, ADrawingFileCanBeASourceToo) {
    Put("d.drw", Drawing());
    const auto document = Open(R"({"drawing": "d.drw"})");
    EXPECT_EQ(document->Map().GetCultureCount(E_LAYER_CUSTOM, 1, 1, ZVCulture(551)), 1);
    EXPECT_EQ(document->Report().sources.at(0).items, 1);
}

TEST_F(MapDocumentTest, LayersThatNoMapDrawsByItselfAreDrawnOfADrawing) {
    std::string text = Drawing();
    text.replace(text.find("  90LW"), 4, "   0");
    Put("d.drw", text);
    const auto drawing = MapDocument::Open({folder / "d.drw", "", "scratch", {}});
    CZvDispOrder& order = *drawing->Map().GetDispOrder();
    E_Layer last = E_LAYER_UNSET;
    for (E_Layer layer = order.GetFirstLayer(); !order.IsEndOfList(); layer = order.GetNextLayer())
        last = layer;
    EXPECT_EQ(last, 0);
}

/// One symbol, a line, under a number that the installation does not use.
std::string UserSymbols() {
    return " SYMBOL #  950\r\n" +
           DrawingLine("COV:95013 999LW:  1LT:  1COL:  1X:           0.00000000") +
           DrawingLine("Y:           0.00000000") +
           DrawingLine("COV2:  14X:           1.00000000Y:           1.00000000") +
           DrawingLine("EOF:95020");
}

TEST_F(MapDocumentTest, LoadsSymbolsOfTheProject) {
    Put("user.tab", UserSymbols());
    Open("", R"(, "symbols": ["user.tab"])");
    ASSERT_NE(CZvDispSymbols::S_GetItemList(950), nullptr);
    EXPECT_EQ(CZvDispSymbols::S_GetItemList(950)->size(), 1u);
    CZvDispSymbols::S_DeleteSymbol(950);
}

TEST_F(MapDocumentTest, RefusesSymbolsThatCannotBeRead) {
    Put("broken.tab", " SYMBOL #  951\r\n" + DrawingLine("BAD: 95199 999"));
    EXPECT_THROW(Open("", R"(, "symbols": ["broken.tab"])"), DataError);
    EXPECT_THROW(Open("", R"(, "symbols": ["gone.tab"])"), DataError);
}

TEST_F(MapDocumentTest, RefusesWhatIsNeitherProjectNorDrawing) {
    Put("x.txt", "just text\n");
    try {
        MapDocument::Open({folder / "x.txt", "", "scratch", {}});
        FAIL() << "opened";
    } catch (const DataError& fault) {
        EXPECT_EQ(fault.GetError().reason, "is neither a map project (.json) nor a drawing file");
    }
}

TEST_F(MapDocumentTest, ExtentsCoverEachCultureList) {
    Put("s.csv", "X,Y\n1,2\n30,40\n");
    const auto document = Open(R"({"file": "s.csv", "position": ["X", "Y"], "items": [
        {"kind": "text", "layer": 90, "culture": 550, "label": "x"}]})");
    ExtentContext extents;
    extents.Measure(document->Map());
    const Extent box = extents.Of(90, 1, 1, 550);
    EXPECT_EQ(box.x1, 1.0);
    EXPECT_EQ(box.y2, 40.0);
    EXPECT_TRUE(extents.Of(25).empty);
}

} // namespace
} // namespace zv::host
