#include "map/ZvDispMap.h"

#include <gtest/gtest.h>

#include "platform/Numbers.h"
#include "support/LogLines.h"
#include "support/MapHome.h"

namespace {

using zv::test::Cu;
using zv::test::L;
using zv::test::MapHome;
using zv::test::ReadText;

TEST(MapDrawingFile, AMissingFileIsTold) {
    MapHome m;
    m.map.Read("nowhere\\map.drw");
    ASSERT_EQ(m.home.messages.GetShown().size(), 1u);
    EXPECT_EQ(m.home.messages.GetShown()[0].text, "Could not open file:\nnowhere\\map.drw");
    EXPECT_TRUE(m.map.GetLayerList().empty());
}

TEST(MapDrawingFile, OnlyLayer99WritesAnything) {
    MapHome m;
    m.AddCircle(1, 25, 1, 1, 220);
    const std::string path = m.home.TempFile("one.drw");
    m.map.Write(path, L(25), 1, 1, Cu(220));
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_EQ(ReadText(path), "");
    m.map.Write(path, L(99), 7, 7, Cu(7));
    const std::string text = ReadText(path);
    EXPECT_EQ(text.size(), 2u * 82u + 80u);
    EXPECT_EQ(text.substr(0, 13), "CIR:    2   0") << "every record carries zeroes";
    EXPECT_EQ(text.substr(2 * 82), "EOF:  120" + std::string(71, ' '));
}

TEST(MapDrawingFile, IsReadBackWithoutPolygonsAndCirclesOneColourLower) {
    MapHome m;
    m.AddCircle(1.5, 25, 1, 1, 220);
    auto* line = new CZvDispPolyLine(std::vector<CZvDispPoint>{{0, 0}, {1, 2}});
    line->SetColor(static_cast<ZVColor>(5), 0);
    m.map.AddItem(line, L(25), 1, 1, Cu(221), false);
    auto* hidden = new CZvDispPolyLine(std::vector<CZvDispPoint>{{9, 9}, {9, 9}});
    hidden->SetVisibility(false);
    m.map.AddItem(hidden, L(25), 1, 1, Cu(221), false);
    m.map.AddItem(new CZvDispPolygon(std::vector<CZvDispPoint>{{0, 0}, {1, 2}, {3, 3}}), L(25), 1,
                  1, Cu(222), false);
    auto* text = new CZvDispText;
    text->SetLabel("A 1");
    m.map.AddItem(text, L(25), 1, 1, Cu(250), false);
    const std::string path = m.home.TempFile("map.drw");
    m.map.Write(path, L(99), 99, 99, Cu(900));

    CZvDispMap again(nullptr);
    zv::test::LogLines log;
    again.SetDispFilePath("Again");
    again.Read(path);
    EXPECT_TRUE(log.Holds("1 polygons of the drawing file"));
    EXPECT_EQ(again.GetLayerList(), std::vector<int>{0});
    EXPECT_EQ(again.GetCultureCount(L(0), 0, 0, Cu(0)), 3);
    const auto item = [&](unsigned id) {
        return std::unique_ptr<CZvDisplayItem>(again.GetItem(L(0), 0, 0, Cu(0), id));
    };
    EXPECT_EQ(item(10001)->GetDispType(), ZV_DISP_CIRCLE);
    EXPECT_EQ(item(10001)->GetColor(), 7);
    EXPECT_EQ(item(10002)->GetDispType(), ZV_DISP_POLYLINE);
    EXPECT_EQ(item(10002)->GetColor(), 5);
    EXPECT_EQ(static_cast<CZvDispText&>(*item(10003)).GetLabel(), "A 1");
    EXPECT_EQ(item(10003)->GetLineWidth(), 1) << "a text's width is always read as 1";
    EXPECT_EQ(item(10003)->GetLineType(), 1);
}

TEST(MapDrawingFile, TakesPlacesFromTheRecordsAndTheLastTailWhereOneIsMissing) {
    MapHome m;
    const auto n = [](const char* value) { return CZvDisplayItem::PadBlankToFront(value, 21); };
    const auto line = [&](const std::string& tail) {
        return "COV:   13  25LW:  1LT:  0COL:  5X:" + n("1.0") + std::string(25, ' ') +
               "\r\nY:" + n("2.0") + CZvDisplayItem::PadBlankToBack(tail, 57) + "\r\n";
    };
    const std::string path = m.home.TempFile("places.drw");
    zv::test::WriteText(path, line("IB:POS:  2UST:  3CUL:220") + line("") + "TRI:   10  25" +
                                  std::string(67, ' ') + "\r\n" + "EOF:  120");
    m.map.Read(path);
    EXPECT_EQ(m.map.GetLayerList(), std::vector<int>{25});
    EXPECT_EQ(m.map.GetCultureCount(L(25), 2, 3, Cu(220)), 2);
    EXPECT_TRUE(m.home.messages.GetShown().empty());
}

TEST(MapDrawingFile, AFolderCannotBeOpened) {
    MapHome m;
    const std::string folder = std::filesystem::path(m.home.TempFile("x")).parent_path();
    m.map.Read(folder);
    ASSERT_EQ(m.home.messages.GetShown().size(), 1u);
    EXPECT_EQ(m.home.messages.GetShown()[0].text, "Could not open file:\n" + folder);
}

TEST(MapDrawingFile, IsWrittenInTheOrderOfTheTreesNumbers) {
    MapHome m;
    const int places[][4] = {
        {26, 1, 1, 5}, {25, 2, 1, 5}, {25, 1, 2, 5}, {25, 1, 1, 6}, {25, 1, 1, 5}};
    for (const auto& p : places)
        m.AddCircle(p[0] * 1000 + p[1] * 100 + p[2] * 10 + p[3], p[0], p[1], p[2], p[3]);
    const std::string path = m.home.TempFile("order.drw");
    m.map.Write(path, L(99), 99, 99, Cu(900));
    const std::string text = ReadText(path);
    std::vector<int> centers;
    for (std::size_t at = text.find("X:"); at != std::string::npos; at = text.find("X:", at + 1))
        centers.push_back(static_cast<int>(zv::ParseDouble(text.substr(at + 2, 21))));
    EXPECT_EQ(centers, (std::vector<int>{25115, 25116, 25125, 25215, 26115}));
}

TEST(MapDrawingFile, ReadsArcsAndTextsAndStepsOverDescriptionsAndStrangers) {
    MapHome m;
    CZvDispMap other(nullptr);
    const std::string path = m.home.TempFile("kinds.drw");
    m.map.AddItem(new CZvDispArc({1, 2}, 3.0, 10.0f, 100.0f), L(25), 1, 1, Cu(220), false);
    m.map.Write(path, L(99), 99, 99, Cu(900));
    std::string arc = ReadText(path);
    arc.resize(arc.find("EOF:"));
    zv::test::WriteText(path, "stranger without a colon\r\nODD:99 \r\nCTX: 5123NUM: 8" +
                                  std::string(65, ' ') + "\r\nOil well" + std::string(72, ' ') +
                                  "\r\n" + arc + arc.substr(0, 4) + "712" + arc.substr(7) +
                                  "EOF:  120");
    other.SetDispFilePath("Other");
    other.Read(path);
    ASSERT_EQ(other.GetCultureCount(L(0), 0, 0, Cu(0)), 2);
    const std::unique_ptr<CZvDisplayItem> item(other.GetItem(L(0), 0, 0, Cu(0), 10002));
    EXPECT_EQ(item->GetDispType(), ZV_DISP_ARC);
    EXPECT_EQ(static_cast<CZvDispArc&>(*item).GetEndAngle(), 100.0f);
}

TEST(MapDrawingFile, ACoordinateLineThatLooksLikeARecordIsTakenForOne) {
    MapHome m;
    m.map.AddItem(new CZvDispPolygon(std::vector<CZvDispPoint>{{0, 10234567.0}, {1, 10234567.0}}),
                  L(25), 1, 1, Cu(220), false);
    const std::string path = m.home.TempFile("north.drw");
    m.map.Write(path, L(99), 99, 99, Cu(900));
    CZvDispMap other(nullptr);
    other.SetDispFilePath("Other");
    other.Read(path);
    EXPECT_EQ(other.GetLayerList(), std::vector<int>{234})
        << "\"Y:   1023 4567...\" reads as an arc";
}

TEST(MapDrawingFile, AnUnwritablePathFailsQuietly) {
    MapHome m;
    m.AddCircle(1, 25, 1, 1, 220);
    m.map.Write(m.home.TempFile("no/such/folder/map.drw"), L(99), 99, 99, Cu(900));
    EXPECT_FALSE(std::filesystem::exists(m.home.TempFile("no")));
    EXPECT_TRUE(m.home.messages.GetShown().empty());
}

} // namespace
