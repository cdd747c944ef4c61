#include "context/ZvDisplayContext.h"

#include <gtest/gtest.h>

#include "PlainTarget.h"

namespace {

using zv::test::PlainTarget;
using zv::test::RecordingContext;

CZvDispText& Place(CZvDispText& text, const char* label, char h, char v) {
    text.SetLabel(label);
    text.SetHorzJustify(h);
    text.SetVertJustify(v);
    text.SetVertHeight(12.0f);
    text.SetPoint({100, 200});
    return text;
}

TEST(ContextText, JustificationStartsTheTextInCells) {
    PlainTarget target;
    CZvDispText text;
    // Cells of 12 / 6 = 2 units: 'c' of 3 characters (2 - 18) / 2 = -8 cells, 'a' -2 cells.
    CZvDispPoint start = target.GetTextPostion(Place(text, "ABC", 'c', 'a'));
    EXPECT_EQ(start.GetX(), 84.0);
    EXPECT_EQ(start.GetY(), 196.0);
    start = target.GetTextPostion(Place(text, "ABC", 'r', 'b'));
    EXPECT_EQ(start.GetX(), 68.0);
    EXPECT_EQ(start.GetY(), 184.0);
    start = target.GetTextPostion(Place(text, "ABC", 'l', 'o'));
    EXPECT_EQ(start.GetX(), 100.0);
    EXPECT_EQ(start.GetY(), 190.0);
    start = target.GetTextPostion(Place(text, "ABC", 'x', 'x'));
    EXPECT_EQ(start.GetX(), 100.0);
    EXPECT_EQ(start.GetY(), 200.0);
    EXPECT_EQ(start.GetZ(), 0.0);
    EXPECT_TRUE(start.GetDown());
}

TEST(ContextText, OutlineFontsAreThreeQuartersAsWideAndADegreeTurnsTheStart) {
    PlainTarget target;
    target.strokeFont = false;
    CZvDispText text;
    Place(text, "ABC", 'c', 'a');
    EXPECT_EQ(target.GetTextPostion(text).GetX(), 88.0); // -8 x 9 / 6
    text.SetDegree(90.0);                                // (-12, -4) turns to (4, -12)
    EXPECT_DOUBLE_EQ(target.GetTextPostion(text).GetX(), 104.0);
    EXPECT_DOUBLE_EQ(target.GetTextPostion(text).GetY(), 188.0);
    target.SetIsOpenGL(true);
    EXPECT_EQ(target.GetTextPostion(text).GetX(), -12.0) << "the matrix stack does the rest";
    EXPECT_EQ(target.GetTextPostion(text).GetY(), -4.0);
}

TEST(ContextText, StrokesReachTheTargetAsLines) {
    PlainTarget target;
    CZvDispText text;
    Place(text, ".", 'l', 'x');
    text.SetVertHeight(5.0f); // the pen's size is 5 + 1: a cell unit is one map unit
    target.DrawDispItem(&text);
    ASSERT_EQ(target.shapes.size(), 1u);
    const auto& dot = target.shapes[0];
    ASSERT_EQ(dot.size(), 2u);
    EXPECT_EQ(dot[0].GetX(), 101.0);
    EXPECT_EQ(dot[0].GetY(), 202.0);
    EXPECT_EQ(dot[1].GetX(), 102.0);
    EXPECT_EQ(dot[1].GetY(), 202.0);
}

TEST(ContextText, StrokesHaveTheTextsColourWidthAndActivity) {
    struct Strokes : RecordingContext {
        bool inactive = false;
        void DrawText(CZvDispText& text) override { DrawStrokeFontText(text); }
        void DrawPolyLine(CZvDispPolyLine& line) override {
            inactive = line.GetInActive();
            RecordingContext::DrawPolyLine(line);
        }
    } target;
    CZvDispText text;
    Place(text, ".", 'l', 'x');
    text.SetVertHeight(5.0f);
    text.SetColor(static_cast<ZVColor>(5), 0);
    text.SetLineWidth(2, 0);
    text.SetInActive(true);
    target.DrawDispItem(&text);
    EXPECT_EQ(target.Take(), "line 101,202 102,202 c5 w2\n");
    EXPECT_TRUE(target.inactive);
}

TEST(ContextText, TheNextCharacterStandsACellFurtherAndTurnsWithTheText) {
    PlainTarget target;
    CZvDispText text;
    Place(text, "..", 'l', 'x');
    text.SetVertHeight(5.0f);
    text.SetDegree(90.0);
    target.DrawDispItem(&text);
    ASSERT_EQ(target.shapes.size(), 2u);
    EXPECT_NEAR(target.shapes[1][0].GetX(), 98.0, 1e-6); // (7, 2) turned: (-2, 7)
    EXPECT_NEAR(target.shapes[1][0].GetY(), 207.0, 1e-6);
}

TEST(ContextText, ATabHasItsOwnRowAndABytePast127DrawsNothing) {
    PlainTarget target;
    CZvDispText text;
    target.DrawDispItem(&Place(text, "\t", 'l', 'x'));
    EXPECT_FALSE(target.shapes.empty());
    target.shapes.clear();
    target.DrawDispItem(&Place(text, "\xb0\xff", 'l', 'x'));
    EXPECT_TRUE(target.shapes.empty());
    target.DrawDispItem(&Place(text, "\xb0.", 'l', 'x'));
    text.SetVertHeight(5.0f);
    EXPECT_EQ(target.shapes.at(0)[0].GetX(), 100.0 + 13.0 / 6.0) << "and advances nothing";
}

TEST(ContextText, TheFramesOwnTextBodyScalesALaterTextTwice) {
    struct Frame : PlainTarget {
        void DrawText(CZvDispText& text) override { CZvDisplayContext::DrawText(text); }
    };
    Frame target;
    CZvDispText text;
    Place(text, ".", 'l', 'x');
    text.SetVertHeight(11.0f); // size 12: scale 2 on moves that are doubled already
    target.DrawDispItem(&text);
    EXPECT_EQ(target.shapes.at(0)[0].GetX(), 104.0);
}

} // namespace
