#include "items/ZvDispText.h"

#include <gtest/gtest.h>

#include "context/ZvDispGL.h"
#include "items/ZvUpdateRecord.h"
#include "support/RecordingContext.h"

namespace {

using zv::test::RecordingContext;

TEST(Text, Defaults) {
    CZvDispText text;
    EXPECT_EQ(text.GetVertHeight(), 10000.0f);
    EXPECT_EQ(text.GetVertJustify(), 'a');
    EXPECT_EQ(text.GetHorzJustify(), 'c');
    EXPECT_EQ(text.GetFont(), "DEFAULT");
    EXPECT_EQ(text.GetLabel(), "UNDEFINED");
    EXPECT_EQ(text.GetOffsetID(), "");
    EXPECT_FALSE(text.GetUseOffsetFlag());
    EXPECT_EQ(text.GetOffsetPoint().GetX(), 0.0);
    EXPECT_TRUE(text.GetOffsetPoint().GetDown());
    EXPECT_EQ(text.GetDispType(), ZV_DISP_TEXT);
    EXPECT_EQ(text.GetCenterPt().GetX(), 0.0);
}

TEST(Text, AnIDGivesAnOffsetIDWithoutBlanks) {
    CZvDispText text;
    text.SetID("WELL A 12");
    EXPECT_EQ(text.GetID(), "WELL A 12");
    EXPECT_EQ(text.GetOffsetID(), "WELL-A-12");
    text.SetOffsetID("WELL_B");
    EXPECT_EQ(text.GetOffsetID(), "WELL_B");
    EXPECT_EQ(text.GetID(), "WELL A 12");
}

TEST(Text, TurningReplacesTheDegreeAndMovesThePosition) {
    CZvDispText text;
    text.SetDegree(45.0);
    text.SetPoint({2, 0});
    text.SetOffsetPoint({7, 7});
    text.V_Rotate({0, 0}, 90.0);
    EXPECT_EQ(text.GetDegree(), 90.0);
    EXPECT_EQ(text.GetPoint().GetX(), 0.0);
    EXPECT_EQ(text.GetPoint().GetY(), 2.0);
    EXPECT_EQ(text.GetOffsetPoint().GetX(), 7.0);
    text.SetDegree(45.0);
    text.V_Rotate({0, 0}, 30.0);
    EXPECT_EQ(text.GetDegree(), 30.0);
    text.V_Rotate({0, 0}, -0.0);
    EXPECT_EQ(text.GetDegree(), 30.0);
}

TEST(Text, ACharacterIsAsWideAsTheTextIsHigh) {
    CZvDispText text;
    text.SetLabel("ABC");
    text.SetVertHeight(10.0f);
    EXPECT_EQ(text.GetTextLength(2), 50.0);
    text.SetLabel(std::string("AB\0CDE", 6));
    EXPECT_EQ(text.GetTextLength(0), 20.0);
}

TEST(Text, JustificationPlacesTheBoxAndTheDegreeTurnsIt) {
    CZvDispText text;
    text.SetLabel("ABCD"); // 4 x 10: 40 wide
    text.SetVertHeight(10.0f);
    text.SetPoint({100, 200});
    text.SetHorzJustify('c');
    text.SetVertJustify('c');
    text.SetDegree(33.0);
    EXPECT_EQ(text.GetJustCenter().GetX(), 100.0);
    EXPECT_EQ(text.GetJustCenter().GetY(), 200.0);
    text.SetDegree(0.0);
    text.SetHorzJustify('l');
    text.SetVertJustify('a');
    EXPECT_EQ(text.GetJustCenter().GetX(), 120.0);
    EXPECT_EQ(text.GetJustCenter().GetY(), 205.0);
    text.SetHorzJustify('r');
    text.SetVertJustify('b');
    EXPECT_EQ(text.GetJustCenter().GetX(), 80.0);
    EXPECT_EQ(text.GetJustCenter().GetY(), 195.0);
    text.SetDegree(90.0); // (-20, -5) turns to (5, -20)
    EXPECT_EQ(text.GetJustCenter().GetX(), 105.0);
    EXPECT_EQ(text.GetJustCenter().GetY(), 180.0);
}

TEST(Text, EraseGoesThroughTheSetterBothWays) {
    struct Watched : CZvDispText {
        std::vector<int> set;
        void SetColor(ZVColor color, int key) override {
            set.push_back(color);
            CZvDispText::SetColor(color, key);
        }
    };
    RecordingContext context;
    Watched text;
    text.SetLabel("X");
    text.Erase(&context);
    EXPECT_EQ(context.Take(), "text \"X\" 0,0 c99\n");
    EXPECT_EQ(text.set, (std::vector<int>{99, 8}));
}

class QuietScreen : public CZvDispGL {
  public:
    int drawn = 0;
    void DrawText(CZvDispText&) override { ++drawn; }
};

T_ZV_STRUC_UPDATE Step(char code, CZvDispGL& screen) {
    T_ZV_STRUC_UPDATE step;
    step.code = static_cast<unsigned char>(code);
    step.context = &screen;
    step.deltaX = 3.0;
    step.deltaY = 4.0;
    step.angle = 60.0;
    return step;
}

TEST(Text, AMoveSurvivesAsAnOffset) {
    QuietScreen screen;
    CZvDispText text;
    text.SetPoint({10, 10});
    const auto step = Step('m', screen);
    text.V_Update(&step);
    text.V_Update(&step);
    EXPECT_EQ(text.GetPoint().GetX(), 16.0);
    EXPECT_EQ(text.GetOffsetPoint().GetX(), 6.0);
    EXPECT_EQ(text.GetOffsetPoint().GetY(), 8.0);
    EXPECT_TRUE(text.IsCustomCode('o'));
    EXPECT_FALSE(text.IsCustomCode('m'));
}

TEST(Text, DeletingHidesItAndAnUnknownCodeShowsItAgain) {
    QuietScreen screen;
    RecordingContext context;
    CZvDispText text;
    const auto erase = Step('d', screen);
    text.V_Update(&erase);
    EXPECT_FALSE(text.GetVisibility());
    text.Draw(&context);
    EXPECT_EQ(context.Take(), "");
    const auto unknown = Step('u', screen);
    text.V_Update(&unknown);
    EXPECT_TRUE(text.GetVisibility());
}

TEST(Text, ATurnStepSetsTheDegree) {
    QuietScreen screen;
    CZvDispText text;
    text.SetDegree(10.0);
    const auto step = Step('r', screen);
    text.V_Update(&step);
    EXPECT_EQ(text.GetDegree(), 60.0);
    EXPECT_FALSE(text.GetUseOffsetFlag());
}

TEST(Text, AssignmentCarriesTheOffsetAlong) {
    CZvDispText from, to;
    from.SetOffsetID("e12+A");
    from.SetOffsetPoint({5, 6});
    from.SetLabel("L");
    from.SetFont("Arial");
    from.SetHorzJustify('r');
    from.SetVertJustify('b');
    from.SetVertHeight(7.0f);
    from.SetPoint({1, 2});
    to = from;
    EXPECT_EQ(to.GetOffsetID(), "e12+A");
    EXPECT_EQ(to.GetOffsetPoint().GetY(), 6.0);
    EXPECT_EQ(to.GetLabel(), "L");
    EXPECT_EQ(to.GetFont(), "Arial");
    EXPECT_EQ(to.GetHorzJustify(), 'r');
    EXPECT_EQ(to.GetVertJustify(), 'b');
    EXPECT_EQ(to.GetVertHeight(), 7.0f);
    EXPECT_EQ(to.GetPoint().GetY(), 2.0);
}

} // namespace
