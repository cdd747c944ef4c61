#include "context/GlMap.h"
#include "platform/wgl/WglFailure.h"

namespace zv::testing {
namespace {

/// A text of cell size 1 (height 6) at a pixel's corner.
void MakeText(CZvDispText& text, const std::string& label, double x, double y, float height = 6) {
    text.SetLabel(label);
    text.SetPoint({x, y});
    text.SetVertHeight(height);
    text.SetHorzJustify('l');
    text.SetVertJustify('c'); // the baseline stands 2 cells above the point
}

TEST(ZvDispGLText, AStrokeTextStandsInCellsOfASixthOfItsHeight) {
    GlMap map(128, 64);
    CZvDispText text;
    // "I" is 2 wide from x = 1 to 3 and stands on y = 2 to 8 of its cell.
    MakeText(text, "I", 0.5, 0.5, 36); // 6 pixels to a unit
    const auto box = map.Draw(text).BoxOfOther(kBlack);
    EXPECT_NEAR(box[0], 6, 1);
    EXPECT_NEAR(box[2], 18, 1);
    EXPECT_NEAR(box[1], 63 - 48, 1);
    EXPECT_NEAR(box[3], 63 - 12, 1);
}

TEST(ZvDispGLText, CharactersAreSixUnitsApart) {
    GlMap map(128, 64);
    CZvDispText one, two;
    MakeText(one, "I", 36.5, 0.5, 36);
    MakeText(two, " I", 0.5, 0.5, 36);
    EXPECT_EQ(map.Draw(one), map.Draw(two));
}

TEST(ZvDispGLText, ACharacterThatTheTableLacksClosesUpTheGap) {
    GlMap map(128, 64);
    CZvDispText whole, gaps;
    MakeText(whole, "AB", 10, 10, 24);
    MakeText(gaps, "A\x7F\xE4\rB", 10, 10, 24); // 127, 228 and 13 have no row
    EXPECT_EQ(map.Draw(whole), map.Draw(gaps));
}

TEST(ZvDispGLText, BytesAbove127AreNoCharacters) {
    GlMap map;
    CZvDispText text;
    MakeText(text, "\xB0\xFF\x80", 10, 10, 24);
    EXPECT_EQ(map.Draw(text).CountOther(kBlack), 0);
}

struct Justified {
    char horizontal, vertical;
    double dx, dy; ///< of the first character's cell, in units of the font, for 3 characters
};

class StrokeJustification : public ::testing::TestWithParam<Justified> {};

TEST_P(StrokeJustification, MovesTheStart) {
    GlMap map(256, 256);
    CZvDispText justified, plain;
    const double unit = 4; // height 24
    MakeText(justified, "AIA", 120, 120, 24);
    justified.SetHorzJustify(GetParam().horizontal);
    justified.SetVertJustify(GetParam().vertical);
    MakeText(plain, "AIA", 120 + GetParam().dx * unit, 120 + GetParam().dy * unit, 24);
    const auto picture = map.Draw(justified);
    EXPECT_GT(picture.CountOther(kBlack), 100);
    EXPECT_EQ(picture, map.Draw(plain));
}

// 'c': (2 - 6 * 3) / 2; 'r': 2 - 6 * 3
INSTANTIATE_TEST_SUITE_P(All, StrokeJustification,
                         ::testing::Values(Justified{'l', 'x', 0, 0}, Justified{'c', 'x', -8, 0},
                                           Justified{'r', 'x', -16, 0}, Justified{'l', 'a', 0, -2},
                                           Justified{'l', 'b', 0, -8}, Justified{'l', 'o', 0, 5},
                                           Justified{'c', 'a', -8, -2}, Justified{'?', '?', 0, 0}));

TEST(ZvDispGLText, AStrokeTextTurnsAboutItsPoint) {
    GlMap map(128, 128);
    CZvDispText text;
    MakeText(text, "II", 64, 64, 24); // x from 4 to 36, y from 8 to 32 about the point
    text.SetDegree(90);
    const auto box = map.Draw(text).BoxOfOther(kBlack);
    EXPECT_NEAR(box[0], 64 - 32, 1);
    EXPECT_NEAR(box[2], 64 - 8, 1);
    EXPECT_NEAR(127 - box[3], 64 + 4, 1);
    EXPECT_NEAR(127 - box[1], 64 + 36, 1);
}

TEST(ZvDispGLText, ALetterMayBeDrawnDirectly) {
    GlMap map;
    map.View(0, 0, 8, 8); // 8 pixels to a unit
    glColor3f(1, 1, 1);
    map.gl.DrawStrokeFontLetter('I');
    const auto box = map.Show().BoxOfOther(kBlack);
    EXPECT_NEAR(box[0], 8, 1);
    EXPECT_NEAR(box[2], 24, 1);
}

TEST(ZvDispGLText, CharacterListsRunThePenFromTheirOrigin) {
    GlMap map;
    map.View(0, 0, 8, 8);
    // A character's list knows no origin of the map.
    glLoadIdentity();
    glOrtho(0, 8, 0, 8, -1, 1);
    glColor3f(1, 1, 1);
    glCallList(4000 + 'I');
    const auto box = map.Show().BoxOfOther(kBlack);
    EXPECT_NEAR(box[0], 8, 1);
    EXPECT_NEAR(box[2], 24, 1);
    glNewList(1, GL_COMPILE); // the lists behind row 127 are empty
    glEndList();
    glLoadIdentity();
    map.Clear();
    for (unsigned c = 127; c < 178; ++c)
        glCallList(4000 + c);
    EXPECT_EQ(map.Show().CountOther(kBlack), 0);
}

TEST(ZvDispGLText, AnInactiveTextIsAtThreeFifths) {
    GlMap map;
    CZvDispText text;
    MakeText(text, "I", 0.5, 0.5, 36);
    text.SetInActive(true);
    const auto picture = map.Draw(text);
    EXPECT_GT(picture.CountOf({153, 153, 153}), 40);
    EXPECT_EQ(picture.CountOf(kWhite), 0);
}

class OutlineText : public ::testing::Test {
  protected:
    OutlineText() { map.gl.SetFontIndex(5); } // Arial
    GlMap map{256, 128};
};

TEST_F(OutlineText, SetFontIndexSelectsItForAllContexts) {
    EXPECT_EQ(CZvDispGL::m_nFontIndex, 5);
    EXPECT_TRUE(map.Messages().GetShown().empty());
    map.gl.SetFontIndex(0); // does nothing
    EXPECT_EQ(CZvDispGL::m_nFontIndex, 5);
    map.gl.SetFontIndex(99);
    EXPECT_EQ(CZvDispGL::m_nFontIndex, 5);
}

TEST_F(OutlineText, IsFilledAndAsTallAsItsSize) {
    CZvDispText text;
    MakeText(text, "H", 10, 10, 40);
    const auto picture = map.Draw(text);
    // em = 40 * 12 * 96 / 72 * 0.1 = 64 pixels; a capital is 1409 of 2048 units: 44.0.
    const auto box = picture.BoxOfOther(kBlack);
    EXPECT_NEAR(box[3], 127 - 10, 1);
    EXPECT_NEAR(box[3] - box[1] + 1, 44, 1);
    EXPECT_NEAR(box[0], 10 + 64 * 0.078, 1.5); // left bearing of the letter
    EXPECT_DOUBLE_EQ(map.gl.CharScale(), 64.0);
}

TEST_F(OutlineText, AnEmptyTextDrawsNothing) {
    CZvDispText text;
    MakeText(text, "", 10, 10, 40);
    EXPECT_EQ(map.Draw(text).CountOther(kBlack), 0);
    EXPECT_TRUE(map.Messages().GetShown().empty());
}

TEST_F(OutlineText, CompilesIntoTheItemsList) {
    CZvDispText text;
    MakeText(text, "Hg", 10, 30, 40);
    text.SetDegree(30);
    const auto direct = map.Draw(text);
    text.SetPickID(10001);
    map.gl.DrawDispItem(&text);
    EXPECT_EQ(map.Redraw({10001}), direct);
    const auto drivers = map.CallLists({10001});
    EXPECT_NEAR(drivers.CountOf(kWhite), direct.CountOf(kWhite), 20);
}

TEST_F(OutlineText, TheFirstTabIsADegreeSign) {
    CZvDispText tab, degree, head, plain;
    MakeText(tab, "9\t", 10, 30, 40);
    MakeText(degree, "9\xB0", 10, 30, 40);
    EXPECT_EQ(map.Draw(tab), map.Draw(degree));
    MakeText(head, "\t9", 10, 30, 40); // at position 0 it stays, and is no glyph
    MakeText(plain, "9", 10, 30, 40);
    EXPECT_EQ(map.Draw(head), map.Draw(plain));
}

TEST_F(OutlineText, TheFirstLineFeedIsLeftOut) {
    CZvDispText feed, plain;
    MakeText(feed, "A\nB", 10, 30, 40);
    MakeText(plain, "AB", 10, 30, 40);
    EXPECT_EQ(map.Draw(feed), map.Draw(plain));
}

TEST_F(OutlineText, JustificationTakesItsWidthFromTheFrame) {
    // n = 4, w = 0.75 h = 15: width = (6 * 4 - 2) * 15 / 6 = 55.
    struct {
        char justify;
        double start;
    } const cases[] = {{'l', 0}, {'c', -27.5}, {'r', -55}};
    for (const auto& c : cases) {
        CZvDispText text, plain;
        MakeText(text, "WELL", 120, 30, 20);
        text.SetHorzJustify(c.justify);
        MakeText(plain, "WELL", 120 + c.start, 30, 20);
        EXPECT_EQ(map.Draw(text), map.Draw(plain)) << c.justify;
        EXPECT_EQ(text.GetHorzJustify(), c.justify);
    }
}

TEST_F(OutlineText, LineWidthSelectsTheStyle) {
    CZvDispText text;
    MakeText(text, "lH", 10, 30, 40);
    const auto ink = [&](unsigned char width) {
        text.SetLineWidth(width, 0);
        return map.Draw(text).CountOther(kBlack);
    };
    const int plain = ink(0), bold = ink(1), italic = ink(2), both = ink(3);
    EXPECT_GT(bold, plain * 1.2);
    EXPECT_NEAR(italic, plain, plain * 0.15);
    EXPECT_GT(both, italic * 1.2);
    EXPECT_EQ(ink(4), plain);
}

TEST_F(OutlineText, AnotherFaceReplacesTheLists) {
    CZvDispText text;
    MakeText(text, "Hg", 10, 30, 40);
    const auto arial = map.Draw(text);
    map.gl.SetFontIndex(1); // Times
    EXPECT_EQ(CZvDispGL::m_nFontIndex, 1);
    EXPECT_FALSE(map.Draw(text) == arial);
    map.gl.SetFontIndex(5);
    EXPECT_EQ(map.Draw(text), arial);
}

TEST_F(OutlineText, ItsListsKeepAwayFromPickIDs) {
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    for (unsigned id = 10001; id < 10100; ++id) {
        line.SetPickID(id);
        map.gl.DrawDispItem(&line);
    }
    map.gl.SetFontIndex(1);
    for (unsigned name = 10100; name < 12000; ++name)
        ASSERT_FALSE(glIsList(name)) << name;
    for (unsigned name = 4178; name < 10001; ++name)
        ASSERT_FALSE(glIsList(name)) << name;
}

TEST(ZvDispGLFonts, WithoutAContextTheFontIsRefusedByAMessage) {
    GlMap map;
    wglMakeCurrent(nullptr, nullptr);
    map.gl.SetFontIndex(5);
    ASSERT_EQ(map.Messages().GetShown().size(), 1u);
    EXPECT_EQ(map.Messages().GetShown()[0].text, "SetFontIndex-wglGetCurrentDC() return NULL");
}

TEST(ZvDispGLFonts, AFaceThatCannotBeUsedIsNamed) {
    class NoFace : public CZvDispGL {
        std::string GetFontName(int) override { return "No Such Face"; }
    };
    GlMap map;
    NoFace gl;
    gl.SetFontIndex(9);
    ASSERT_EQ(map.Messages().GetShown().size(), 1u);
    EXPECT_EQ(map.Messages().GetShown()[0].text, "No Such Face - Unable to use this Font");
}

TEST(ZvDispGLFonts, AFontThatTheSystemRefusesIsTold) {
    GlMap map;
    FailNextWgl(WglStep::UseFontOutlines, 1);
    map.gl.SetFontIndex(5);
    ASSERT_EQ(map.Messages().GetShown().size(), 1u);
    EXPECT_EQ(map.Messages().GetShown()[0].text, "SetFontIndex-Unable to use true type Font");
    FailNextWgl(WglStep::UseFontOutlines, 1);
    map.gl.CreateCharDisplayList();
    ASSERT_EQ(map.Messages().GetShown().size(), 2u);
    EXPECT_EQ(map.Messages().GetShown()[1].text, "Unable to use true type Font");
}

TEST(ZvDispGLFonts, CharacterListsWithoutAContextAreToldWhenAnOutlineFontIsWanted) {
    GlMap map;
    wglMakeCurrent(nullptr, nullptr);
    CZvDispGL::m_nFontIndex = 5;
    map.gl.CreateCharDisplayList();
    ASSERT_EQ(map.Messages().GetShown().size(), 1u);
    EXPECT_EQ(map.Messages().GetShown()[0].text, "wglGetCurrentDC() return NULL");
    map.gl.Start();
}

TEST(ZvDispGLFonts, AContextMadeWhileAnOutlineFontIsSelectedHasIt) {
    GlMap first;
    first.gl.SetFontIndex(5);
    TestSurface surface(64, 64);
    OpenGL second;
    second.Create(surface.Dc());
    second.Resize(0, 0, 64, 64);
    CZvDispPoint lowerLeft(0, 0), upperRight(64, 64);
    second.SetView(lowerLeft, upperRight);
    CZvDispText text;
    MakeText(text, "H", 10, 10, 20);
    second.DrawDispItem(&text);
    second.Render();
    EXPECT_GT(surface.Shown().CountOther(kBlack), 100);
    second.Destroy();
    first.gl.Start();
}

/// A second display context, made while the stroke font is selected.
class TwoContexts : public ::testing::Test {
  protected:
    TwoContexts() {
        second.Create(m_surface.Dc());
        second.Resize(0, 0, 64, 64);
    }
    ~TwoContexts() override {
        second.Destroy();
        first.gl.Start();
    }
    /// A letter as the second context shows it.
    Picture DrawOnSecond() {
        CZvDispPoint lowerLeft(0, 0), upperRight(64, 64);
        second.SetView(lowerLeft, upperRight);
        CZvDispText text;
        MakeText(text, "H", 10, 10, 20);
        second.DrawDispItem(&text);
        second.Render();
        return m_surface.Shown();
    }
    GlMap first;
    OpenGL second;

  private:
    TestSurface m_surface{64, 64};
};

TEST_F(TwoContexts, BothFollowTheFontThatOneSelects) {
    const auto strokes = DrawOnSecond();
    first.gl.Start();
    first.gl.SetFontIndex(5);
    const auto outline = DrawOnSecond();
    EXPECT_GT(outline.CountOther(kBlack), 100);
    EXPECT_FALSE(outline == strokes);
    first.gl.Start();
    first.gl.SetFontIndex(1);
    const auto other = DrawOnSecond();
    EXPECT_GT(other.CountOther(kBlack), 60);
    EXPECT_FALSE(other == outline);
}

TEST_F(TwoContexts, AFontSelectedWhileTheOtherIsCurrentShowsOnBoth) {
    second.Start();
    first.gl.SetFontIndex(5);
    EXPECT_GT(DrawOnSecond().CountOther(kBlack), 100);
    first.gl.Start();
    CZvDispText text;
    MakeText(text, "H", 10, 10, 20);
    EXPECT_GT(first.Draw(text).CountOther(kBlack), 100);
    EXPECT_TRUE(first.Messages().GetShown().empty());
}

TEST_F(TwoContexts, OneThatCannotMakeTheFontSaysSoOnceAndKeepsToStrokes) {
    const auto strokes = DrawOnSecond();
    first.gl.Start();
    first.gl.SetFontIndex(5);
    FailNextWgl(WglStep::UseFontOutlines, 1);
    EXPECT_EQ(DrawOnSecond(), strokes);
    EXPECT_EQ(DrawOnSecond(), strokes);
    ASSERT_EQ(first.Messages().GetShown().size(), 1u);
    EXPECT_EQ(first.Messages().GetShown()[0].text, "Unable to use true type Font");
}

TEST(ZvDispGLFonts, AFaceThatFailsLeavesTheFormerFont) {
    GlMap map;
    map.gl.SetFontIndex(5);
    CZvDispText text;
    MakeText(text, "Hg", 5, 20, 20);
    const auto arial = map.Draw(text);
    EXPECT_GT(arial.CountOther(kBlack), 100);
    FailNextWgl(WglStep::UseFontOutlines, 1);
    map.gl.SetFontIndex(1);
    EXPECT_EQ(map.Messages().GetShown().size(), 1u);
    EXPECT_EQ(map.Draw(text), arial);
    text.SetPickID(10001);
    map.gl.DrawDispItem(&text);
    EXPECT_EQ(map.Redraw({10001}), arial);
    EXPECT_GT(map.CallLists({10001}).CountOther(kBlack), 100);
    EXPECT_EQ(map.Messages().GetShown().size(), 1u);
}

} // namespace
} // namespace zv::testing
