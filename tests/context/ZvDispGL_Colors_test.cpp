#include "context/GlMap.h"

namespace zv::testing {
namespace {

struct Override {
    int background, color, drawn;
};

class BackgroundRule : public ::testing::TestWithParam<Override> {};

TEST_P(BackgroundRule, GivesTheColorThatShows) {
    OpenGL gl;
    gl.SetBKColor(static_cast<ZVColor>(GetParam().background));
    EXPECT_EQ(gl.DispOverrideColor(static_cast<ZVColor>(GetParam().color)), GetParam().drawn);
}

INSTANTIATE_TEST_SUITE_P(Black, BackgroundRule,
                         ::testing::Values(Override{0, 99, 0}, Override{0, 0, 8}, Override{0, 8, 8},
                                           Override{0, 1, 1}, Override{0, 3, 3},
                                           Override{0, 16, 16}, Override{0, 246, 246}));
INSTANTIATE_TEST_SUITE_P(White, BackgroundRule,
                         ::testing::Values(Override{8, 99, 8}, Override{8, 8, 0},
                                           Override{8, 16, 0}, Override{8, 3, 4},
                                           Override{8, 11, 4}, Override{8, 0, 8}, Override{8, 1, 1},
                                           Override{8, 9, 9}));
INSTANTIATE_TEST_SUITE_P(Light, BackgroundRule,
                         ::testing::Values(Override{16, 99, 16}, Override{16, 8, 0},
                                           Override{16, 16, 0}, Override{16, 3, 4},
                                           Override{16, 11, 4}, Override{16, 0, 0},
                                           Override{16, 24, 25}, Override{16, 5, 5}));
INSTANTIATE_TEST_SUITE_P(OtherColors, BackgroundRule,
                         ::testing::Values(Override{3, 99, 3}, Override{3, 3, 4},
                                           Override{3, 11, 12}, Override{11, 3, 4},
                                           Override{11, 11, 12}, Override{11, 19, 20},
                                           Override{3, 8, 8}, Override{3, 0, 0},
                                           Override{20, 12, 13}, Override{255, 255, 256}));

TEST(ZvDispGLColors, WhiteOnWhiteComesOutBlack) {
    GlMap map;
    map.gl.SetBKColor(ZV_COLOR_WHITE);
    CZvDispPolyLine line; // colour 8
    MakeRow(line, 10, 50, 20);
    const auto picture = map.Draw(line);
    EXPECT_EQ(picture.At(30, 43), kBlack);
    EXPECT_EQ(picture.At(30, 40), kWhite);
}

TEST(ZvDispGLColors, LinesHaveTheColorOfThePalette) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetColor(static_cast<ZVColor>(1), 0);
    EXPECT_EQ(map.Draw(line).At(30, 43), Palette(1));
}

TEST(ZvDispGLColors, InactiveLinesAreAtThreeFifths) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetInActive(true);
    EXPECT_EQ(map.Draw(line).At(30, 43), (Rgb{153, 153, 153})); // 255 * 0.6
}

TEST(ZvDispGLColors, BrightnessScalesTheLine) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetBrightness(0.2);
    EXPECT_EQ(map.Draw(line).At(30, 43), (Rgb{51, 51, 51})); // 255 * 0.2
}

TEST(ZvDispGLColors, AColorOutsideThePaletteIsTakenAsWhite) {
    for (const int color : {-1, 256, -2147483647, 2147483647}) {
        GlMap map;
        CZvDispPolyLine line;
        MakeRow(line, 10, 50, 20);
        line.SetColor(static_cast<ZVColor>(color), 0);
        EXPECT_EQ(map.Draw(line).At(30, 43), kWhite) << color;
    }
}

TEST(ZvDispGLColors, FillsAreSeenThroughByTheFillIndex) {
    GlMap map;
    CZvDispPolygon polygon;
    polygon.SetVertices(Rectangle(10, 10, 50, 50));
    polygon.SetFill(true);
    EXPECT_NEAR(map.Draw(polygon).At(30, 30).r, 255 * 0.7, 1.0); // index 3 at the start
    map.gl.SetPFBrightIndex(0);
    EXPECT_EQ(map.Draw(polygon).At(30, 30), kWhite);
    map.gl.SetPFBrightIndex(9);
    EXPECT_NEAR(map.Draw(polygon).At(30, 30).r, 255 * 0.1, 1.0);
}

TEST(ZvDispGLColors, InactiveFillsAreAtTwoFifths) {
    GlMap map;
    map.gl.SetPFBrightIndex(0);
    CZvDispPolygon polygon;
    polygon.SetVertices(Rectangle(10, 10, 50, 50));
    polygon.SetFill(true);
    polygon.SetInActive(true);
    EXPECT_EQ(map.Draw(polygon).At(30, 30), (Rgb{102, 102, 102})); // 255 * 0.4
}

TEST(ZvDispGLColors, AnotherFillStyleTakesTheColorOfTheLine) {
    GlMap map;
    CZvDispPolygon polygon;
    polygon.SetVertices(Rectangle(10, 10, 50, 50));
    polygon.SetFill(true);
    polygon.SetInActive(true);
    polygon.SetFillStyle(static_cast<E_FILL_STYLE>(1));
    EXPECT_EQ(map.Draw(polygon).At(30, 30), (Rgb{153, 153, 153})); // opaque, 255 * 0.6
}

TEST(ZvDispGLColors, BrightnessIndexOutsideTheTableIsTheNearestInside) {
    GlMap map;
    map.gl.SetBKColor(ZV_COLOR_WHITE);
    struct {
        int index, level;
    } const cases[] = {{0, 255}, {5, 128}, {9, 26}, {-7, 255}, {10, 26}, {1 << 30, 26}};
    for (const auto& c : cases) {
        map.gl.SetBKBrightIndex(c.index);
        map.Clear();
        EXPECT_NEAR(map.Show().At(0, 0).r, c.level, 1) << c.index;
    }
}

TEST(ZvDispGLColors, BackgroundIsClearedToItsColor) {
    GlMap map(4, 4);
    map.gl.SetBKColor(static_cast<ZVColor>(2));
    map.Clear();
    EXPECT_EQ(map.Show().CountOf(Palette(2)), 16);
}

TEST(ZvDispGLColors, LineWidthIsOneMoreThanTheItems) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    const auto rows = [&](unsigned char width) {
        line.SetLineWidth(width, 0);
        const auto box = map.Draw(line).BoxOfOther(kBlack);
        return box[3] - box[1] + 1;
    };
    EXPECT_EQ(rows(0), 1);
    EXPECT_EQ(rows(2), 3);
    EXPECT_EQ(rows(6), 7);
}

struct LineTypeCase {
    int type;
    std::string pattern; ///< of 16 pixels, the first on the left
};

class LineTypes : public ::testing::TestWithParam<LineTypeCase> {};

TEST_P(LineTypes, DrawTheirPatternFromItsLowestBit) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 8.5, 40.5, 20);
    line.SetLineType(GetParam().type, 0);
    const auto picture = map.Draw(line);
    std::string drawn;
    for (int x = 8; x < 40; ++x)
        drawn += picture.At(x, 43) == kWhite ? '#' : '.';
    EXPECT_EQ(drawn, GetParam().pattern + GetParam().pattern);
}

// 255 = 0x00FF, 771 = 0x0303, 783 = 0x030F, 35103 = 0x891F
INSTANTIATE_TEST_SUITE_P(
    All, LineTypes,
    ::testing::Values(LineTypeCase{0, "################"}, LineTypeCase{1, "########........"},
                      LineTypeCase{2, "##......##......"}, LineTypeCase{3, "####....##......"},
                      LineTypeCase{4, "#####...#..#...#"}, LineTypeCase{5, "################"},
                      LineTypeCase{255, "################"}));

} // namespace
} // namespace zv::testing
