#include <gtest/gtest.h>

#include <sstream>

#include "data/read/CoastReader.h"
#include "data/read/FeatureReader.h"
#include "data/read/Keyhole.h"
#include "data/read/SpsReader.h"
#include "platform/Error.h"
#include "support/TempFolder.h"

namespace zv::host {
namespace {

using test::TempFolder;
using test::WriteText;

/// Rings in a short text form: "0 0, 4 0, 4 4; 1 1, 2 1, 2 2".
Points Ring(const std::string& text) {
    Points points;
    std::istringstream in(text);
    double x, y;
    char comma;
    while (in >> x >> y) {
        points.emplace_back(x, y);
        in >> comma;
    }
    return points;
}

/// The way back: "^" before a vertex with its pen up.
std::string Text(const Points& points) {
    std::ostringstream out;
    for (const CZvDispPoint& point : points)
        out << (out.tellp() > 0 ? ", " : "") << (point.GetDown() ? "" : "^") << point.GetX() << " "
            << point.GetY();
    return out.str();
}

/// Twice the area by the surveyor's formula, walking the list as one contour.
double TwiceArea(const Points& ring) {
    double sum = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const CZvDispPoint& a = ring[i];
        const CZvDispPoint& b = ring[(i + 1) % ring.size()];
        sum += a.GetX() * b.GetY() - b.GetX() * a.GetY();
    }
    return sum;
}

TEST(Keyhole, ClosesARingWithoutHoles) {
    EXPECT_EQ(Text(Keyhole({Shape::Area, {Ring("0 0, 4 0, 4 4")}})), "0 0, 4 0, 4 4, 0 0");
    EXPECT_EQ(Text(Keyhole({Shape::Area, {Ring("0 0, 4 0, 4 4, 0 0")}})), "0 0, 4 0, 4 4, 0 0");
}

TEST(Keyhole, WalksToEachHoleAndBackWithThePenUp) {
    const Part part{Shape::Area,
                    {Ring("0 0, 9 0, 9 9, 0 9"), Ring("1 1, 1 2, 2 2"), Ring("5 5, 5 6, 6 6")}};
    EXPECT_EQ(Text(Keyhole(part)), "0 0, 9 0, 9 9, 0 9, 0 0, ^1 1, 1 2, 2 2, 1 1, ^0 0, "
                                   "^5 5, 5 6, 6 6, 5 5, ^0 0");
}

TEST(Keyhole, EnclosesTheAreaWithoutItsHoles) {
    const Part part{Shape::Area, {Ring("0 0, 10 0, 10 10, 0 10"), Ring("2 2, 2 4, 4 4, 4 2")}};
    EXPECT_DOUBLE_EQ(TwiceArea(Keyhole(part)), 2.0 * (100.0 - 4.0));
}

TEST(Keyhole, AnOutlineHasGapsBetweenItsRings) {
    const Part part{Shape::Area, {Ring("0 0, 9 0, 9 9"), Ring("1 1, 1 2, 2 2")}};
    EXPECT_EQ(Text(Outline(part)), "0 0, 9 0, 9 9, 0 0, ^1 1, 1 2, 2 2, 1 1");
}

std::vector<Feature> ReadAll(FeatureReader& reader) {
    std::vector<Feature> features;
    Feature feature;
    while (reader.Next(feature))
        features.push_back(feature);
    return features;
}

std::vector<Feature> ReadSps(const std::string& text) {
    SpsReader reader(std::make_unique<std::istringstream>(text));
    return ReadAll(reader);
}

/// A record of the first release with its fields in their columns.
std::string SpsRecord(const std::string& easting, const std::string& northing) {
    std::string line(80, ' ');
    line.replace(0, 1, "S");
    line.replace(1, 4, "L-12");
    line.replace(17, 8, "    1003");
    line.replace(25, 3, "1V1");
    line.replace(46 + 9 - easting.size(), easting.size(), easting);
    line.replace(55 + 10 - northing.size(), northing.size(), northing);
    line.replace(65, 6, "  12.5");
    return line;
}

TEST(SpsReader, ReadsTheColumnsOfTheFirstRelease) {
    const auto rows = ReadSps("H00 SPS format version num.     SPS001\r\n" +
                              SpsRecord("498123.4", "3125678.9") + "\r\n");
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_EQ(rows[0].problem, "");
    EXPECT_DOUBLE_EQ(rows[0].parts[0].rings[0][0].GetX(), 498123.4);
    EXPECT_DOUBLE_EQ(rows[0].parts[0].rings[0][0].GetY(), 3125678.9);
    EXPECT_EQ(rows[0].values,
              (std::vector<std::string>{"S", "L-12", "1003", "1", "V1", "12.5", "", ""}));
}

TEST(SpsReader, ReadsTheWideForm) {
    const auto rows = ReadSps(" S1                    410111E1     0  0.0     0 0  0.0      200.0"
                              "         0.0     0.0   1235959\n");
    ASSERT_EQ(rows.size(), 1u);
    EXPECT_DOUBLE_EQ(rows[0].parts.at(0).rings[0][0].GetX(), 200.0);
    EXPECT_DOUBLE_EQ(rows[0].parts[0].rings[0][0].GetY(), 0.0);
    EXPECT_EQ(rows[0].values[1], "1");
    EXPECT_EQ(rows[0].values[2], "41011");
    EXPECT_EQ(rows[0].values[3], "1");
    EXPECT_EQ(rows[0].values[4], "E1");
}

TEST(SpsReader, PassesOverHeadersRelationsAndBlankLines) {
    EXPECT_EQ(ReadSps("H00x\nX relation\n\n" + SpsRecord("1.0", "2.0") + "\n").size(), 1u);
}

TEST(SpsReader, TellsWhatIsWrongWithARow) {
    const auto rows =
        ReadSps(SpsRecord("", "2.0") + "\n" + SpsRecord("12x4", "2.0") + "\nS short\nQ?\n");
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0].problem, "no position");
    EXPECT_EQ(rows[1].problem, "position is no number");
    EXPECT_EQ(rows[2].problem, "no position");
    EXPECT_EQ(rows[3].problem, "not a record of a shotpoint or station");
}

std::vector<Feature> ReadFile(const TempFolder& folder, Source source, const std::string& text) {
    WriteText(folder.Path() / source.file, text);
    const auto reader = OpenSource(source, folder.Path().string());
    return ReadAll(*reader);
}

Source Csv() {
    Source source;
    source.file = "a.csv";
    source.pointer = "/sources/0";
    return source;
}

TEST(OgrReader, TakesPositionsFromFields) {
    const TempFolder folder;
    Source source = Csv();
    source.position = PositionFields{"X", "Y"};
    const auto rows =
        ReadFile(folder, source,
                 "\xEF\xBB\xBFX,Y,NAME\n-91.5,28.25,\" B003\"\n,28.0,b\n*****,1,c\n1e400,2,d\n");
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_DOUBLE_EQ(rows[0].parts.at(0).rings[0][0].GetX(), -91.5);
    EXPECT_EQ(rows[0].values[2], " B003");
    EXPECT_EQ(rows[1].problem, "no position");
    EXPECT_EQ(rows[2].problem, "position is no number");
    EXPECT_EQ(rows[3].problem, "position is no number");
}

TEST(OgrReader, ReadsTablesWithoutAnExtensionOfTheirOwn) {
    const TempFolder folder;
    Source source = Csv();
    source.file = "a.txt";
    source.position = PositionFields{"X", "Y"};
    EXPECT_EQ(ReadFile(folder, source, "\"X\",\"Y\"\n\"1\",\"2\"\n").size(), 1u);
}

TEST(OgrReader, ReadsGeometryFromWkt) {
    const TempFolder folder;
    Source source = Csv();
    source.wkt = "G";
    const auto rows =
        ReadFile(folder, source,
                 "G,N\n\"MULTIPOLYGON (((0 0,9 0,9 9,0 9,0 0),(1 1,1 2,2 2,1 1)),((20 0,21 0,21 "
                 "1,20 0)))\",a\n"
                 "MULTIPOLYGON EMPTY,b\n,c\nPOLYGON ((0 0,d\n\"LINESTRING (1 1)\",e\n");
    ASSERT_EQ(rows.size(), 5u);
    ASSERT_EQ(rows[0].parts.size(), 2u);
    EXPECT_EQ(rows[0].parts[0].rings.size(), 2u);
    EXPECT_EQ(rows[1].problem, "empty geometry");
    EXPECT_EQ(rows[2].problem, "no geometry");
    EXPECT_EQ(rows[3].problem, "broken geometry");
    EXPECT_EQ(rows[4].problem, "broken geometry");
}

TEST(OgrReader, LeavesABrokenPieceOutAndSaysSo) {
    const TempFolder folder;
    Source source = Csv();
    source.wkt = "G";
    const auto rows = ReadFile(folder, source,
                               "G,N\n\"MULTIPOLYGON (((0 0,9 0,9 9,0 0)),((5 5,6 6,5 5,5 "
                               "5)))\",a\n\"POLYGON ((5 5,6 6,5 5,5 5))\",b\n");
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].parts.size(), 1u);
    EXPECT_EQ(rows[0].flaw, "a broken piece was left out");
    EXPECT_EQ(rows[1].problem, "broken geometry");
}

std::string OpenFault(const TempFolder& folder, const Source& source) {
    try {
        OpenSource(source, folder.Path().string());
    } catch (const DataError& fault) {
        return fault.GetError().place + ": " + fault.GetError().reason;
    }
    return "none";
}

TEST(OgrReader, NamesAFileAndAFieldThatAreNotThere) {
    const TempFolder folder;
    Source source = Csv();
    EXPECT_EQ(OpenFault(folder, source), ": cannot be found");
    WriteText(folder.Path() / "a.csv", "X,Y\n1,2\n");
    source.position = PositionFields{"X", "LAT"};
    EXPECT_EQ(OpenFault(folder, source), ": has no field \"LAT\"");
    source.position.reset();
    source.layer = "other";
    EXPECT_EQ(OpenFault(folder, source), ": has no table \"other\"");
}

/// Lines of a coast handed out one after another.
class Lines : public FeatureReader {
  public:
    explicit Lines(std::vector<Points> lines) : m_lines(std::move(lines)) {}
    const std::vector<std::string>& Fields() const override { return m_fields; }
    bool Next(Feature& feature) override {
        if (m_next == m_lines.size()) return false;
        feature = {};
        feature.values = {"1"};
        feature.parts = {{Shape::Line, {m_lines[m_next++]}}};
        return true;
    }
    std::string Crs() const override { return {}; }
    long long Count() const override { return -1; }

  private:
    std::vector<std::string> m_fields{"level"};
    std::vector<Points> m_lines;
    std::size_t m_next = 0;
};

std::vector<Feature> Coast(std::vector<Points> lines) {
    CoastReader reader(std::make_unique<Lines>(std::move(lines)), {0, 0, 10, 10}, {});
    return ReadAll(reader);
}

TEST(CoastReader, ClosesALineAlongTheBorderOnItsLeft) {
    // Eastward through the middle: land is the northern half.
    const auto areas = Coast({Ring("0 5, 4 4, 10 5")});
    ASSERT_EQ(areas.size(), 1u);
    EXPECT_EQ(areas[0].parts[0].shape, Shape::Area);
    EXPECT_EQ(Text(areas[0].parts[0].rings[0]), "0 5, 4 4, 10 5, 10 10, 0 10");
}

TEST(CoastReader, JoinsLinesThatBoundOneLand) {
    // A channel runs through the box from south to north; land lies on both sides of it.
    const auto west = Coast({Ring("4 0, 4 10"), Ring("6 10, 6 0")});
    ASSERT_EQ(west.size(), 2u);
    EXPECT_EQ(Text(west[0].parts[0].rings[0]), "4 0, 4 10, 0 10, 0 0");
    EXPECT_EQ(Text(west[1].parts[0].rings[0]), "6 10, 6 0, 10 0, 10 10");
    // A strip of land between two seas: both lines belong to one ring.
    const auto strip = Coast({Ring("4 10, 4 0"), Ring("6 0, 6 10")});
    ASSERT_EQ(strip.size(), 1u);
    EXPECT_EQ(Text(strip[0].parts[0].rings[0]), "4 10, 4 0, 6 0, 6 10");
}

TEST(CoastReader, TakesClosedLinesAsIslandsAndRefusesLooseEnds) {
    const auto areas = Coast({Ring("2 2, 3 2, 3 3, 2 2"), Ring("5 5, 6 6")});
    ASSERT_EQ(areas.size(), 2u);
    EXPECT_EQ(areas[0].problem, "");
    EXPECT_EQ(areas[1].problem, "a line of the coast neither closes nor ends on the box");
}

} // namespace
} // namespace zv::host
