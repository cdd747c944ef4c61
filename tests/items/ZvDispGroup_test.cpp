#include "items/ZvDispGroup.h"

#include <gtest/gtest.h>

#include <memory>

#include "clip/ZvDispMapClipper.h"
#include "context/ZvDispGL.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispPolyLine.h"
#include "items/ZvDispText.h"
#include "items/ZvUpdateRecord.h"
#include "support/RecordingContext.h"

namespace {

using zv::test::RecordingContext;

CZvDispPolyLine* Line(double x) {
    return new CZvDispPolyLine(std::vector<CZvDispPoint>{{x, 0}, {x + 1, 0}});
}

ZVColor C(int index) {
    return static_cast<ZVColor>(index);
}

TEST(Group, StartsEmptyInTheGroupsColour) {
    CZvDispGroup group;
    CZvDispMapClipper clipper;
    EXPECT_EQ(group.GetColor(), 255);
    EXPECT_TRUE(group.GetGroupList()->empty());
    EXPECT_TRUE(group.GetGroupMap().empty());
    EXPECT_FALSE(group.Clip(&clipper));
    EXPECT_EQ(group.GetGroupItem(1), nullptr);
    EXPECT_FALSE(group.UseGroupColor());
}

TEST(Group, FindsTheFirstPrimitiveOfAKey) {
    CZvDispGroup group;
    CZvDispPolyLine *first = Line(0), *second = Line(1);
    group.AddPrimitive(3, first);
    group.AddPrimitive(3, second);
    EXPECT_EQ(group.GetGroupItem(3), first);
    EXPECT_EQ(group.GetGroupItem(2), nullptr);
    EXPECT_TRUE(first->IsCustomCode('g'));
}

TEST(Group, AKeyColoursItsPrimitivesAndThoseUnderZero) {
    CZvDispGroup group;
    CZvDispPolyLine *zero = Line(0), *three = Line(1), *threeToo = Line(2), *four = Line(3);
    group.AddPrimitive(4, four);
    group.AddPrimitive(3, three);
    group.AddPrimitive(0, zero);
    group.AddPrimitive(3, threeToo);
    group.SetColor(C(5), 3);
    EXPECT_EQ(three->GetColor(), 5);
    EXPECT_EQ(threeToo->GetColor(), 5);
    EXPECT_EQ(zero->GetColor(), 5);
    EXPECT_EQ(four->GetColor(), 8);
    EXPECT_EQ(group.GetColor(), 255);
    group.SetColor(C(6), 0);
    EXPECT_EQ(zero->GetColor(), 6);
    EXPECT_EQ(four->GetColor(), 8);
    EXPECT_EQ(three->GetColor(), 5);
    EXPECT_EQ(group.GetColor(), 6);
    group.SetLineWidth(2, 3);
    group.SetLineType(4, 3);
    EXPECT_EQ(three->GetLineWidth(), 2);
    EXPECT_EQ(zero->GetLineType(), 4);
    EXPECT_EQ(four->GetLineWidth(), 0);
    EXPECT_EQ(group.GetLineWidth(), 0);
    EXPECT_EQ(group.GetLineType(), 0);
}

TEST(Group, ClippingIsTrueWhenAnyPrimitiveIsLeft) {
    CZvDispMapClipper clipper;
    std::vector<CZvDispPoint> ring{{0, 0}, {0, 10}, {10, 10}, {10, 0}};
    clipper.SetBoundsPolygon(ring);
    CZvDispGroup group;
    group.AddPrimitive(1, new CZvDispCircle({50, 50}, 1.0));
    EXPECT_FALSE(group.Clip(&clipper));
    group.AddPrimitive(2, new CZvDispCircle({5, 5}, 1.0));
    EXPECT_TRUE(group.Clip(&clipper));
}

TEST(Group, AGroupInAGroupIsNotClipped) {
    CZvDispMapClipper clipper;
    CZvDispGroup group;
    group.AddPrimitive(1, Line(0));
    EXPECT_TRUE(group.Clip(&clipper));
    group.AddPrimitive(2, new CZvDispGroup);
    EXPECT_FALSE(group.Clip(&clipper));
}

TEST(Group, WithoutTheDeleteFlagThePrimitivesOutliveIt) {
    auto* group = new CZvDispGroup;
    CZvDispPolyLine* line = Line(7);
    group->AddPrimitive(1, line);
    std::list<CZvDisplayItem*>* list = group->GetGroupList();
    group->SetDeleteListFlag(false);
    delete group;
    ASSERT_EQ(list->size(), 1u);
    EXPECT_EQ(list->front(), line);
    EXPECT_EQ(line->GetPoint(0).GetX(), 7.0);
    delete line;
    delete list;
}

TEST(Group, ACopySharesListAndPrimitivesWhichAreFreedOnce) {
    CZvDispGroup group;
    group.SetID("LEGEND_DETAIL0");
    group.SetOrigin({3, 4});
    group.SetUseGroupColorFlg(true);
    group.AddPrimitive(1, Line(0));
    CZvDispGroup copy(group);
    copy.SetDeleteListFlag(false);
    EXPECT_EQ(copy.GetGroupList(), group.GetGroupList());
    EXPECT_EQ(copy.GetGroupItem(1), group.GetGroupItem(1));
    EXPECT_EQ(copy.GetOrigin().GetY(), 4.0);
    EXPECT_TRUE(copy.UseGroupColor());
    EXPECT_EQ(copy.GetID(), "") << "construction takes no attribute of the base";
    CZvDispGroup assigned;
    assigned = group;
    assigned.SetDeleteListFlag(false);
    EXPECT_EQ(assigned.GetID(), "LEGEND_DETAIL0");
    EXPECT_EQ(assigned.GetGroupList(), group.GetGroupList());
}

TEST(Group, TurnsItsMembersAndNotItself) {
    CZvDispGroup group;
    CZvDispPolyLine* line = Line(1);
    group.SetOrigin({1, 0});
    group.AddPrimitive(1, line);
    group.V_Rotate({0, 0}, 0.0);
    EXPECT_EQ(line->GetPoint(0).GetX(), 1.0);
    group.V_Rotate({0, 0}, 90.0);
    EXPECT_EQ(line->GetPoint(0).GetY(), 1.0);
    EXPECT_EQ(group.GetOrigin().GetX(), 1.0);
    EXPECT_EQ(group.GetDegree(), 0.0);
}

TEST(Group, DrawsItsVisibleMembersInOrderOfAdding) {
    RecordingContext context;
    CZvDispGroup group;
    group.SetID("G");
    group.AddPrimitive(9, Line(1));
    group.AddPrimitive(1, Line(2));
    CZvDispPolyLine* hidden = Line(3);
    hidden->SetVisibility(false);
    group.AddPrimitive(2, hidden);
    group.Draw(&context);
    EXPECT_EQ(context.Take(), "group G c255\nline 1,0 2,0 c8\nline 2,0 3,0 c8\n")
        << "members are marked as such and still draw in their own colour";
}

class GroupScreen : public CZvDispGL {
  public:
    std::vector<std::string> trace;
    void DrawPolyLine(CZvDispPolyLine& line) override {
        trace.push_back("line c" + std::to_string(line.GetColor()));
    }
    void DrawGroup(CZvDispGroup& group) override {
        trace.push_back(std::string("group") + (group.UseGroupColor() ? " highlighted" : ""));
    }
};

T_ZV_STRUC_UPDATE Step(char code, CZvDispGL& screen) {
    T_ZV_STRUC_UPDATE step;
    step.code = static_cast<unsigned char>(code);
    step.context = &screen;
    step.deltaX = 3.0;
    step.deltaY = 4.0;
    return step;
}

TEST(Group, AMoveShiftsOriginAndMembers) {
    GroupScreen screen;
    CZvDispGroup group;
    CZvDispPolyLine* line = Line(1);
    group.AddPrimitive(1, line);
    const auto step = Step('m', screen);
    group.V_Update(&step);
    EXPECT_EQ(group.GetOrigin().GetX(), 3.0);
    EXPECT_EQ(group.GetOrigin().GetY(), 4.0);
    EXPECT_EQ(line->GetPoint(0).GetX(), 4.0);
    EXPECT_TRUE(line->IsCustomCode('m'));
    EXPECT_FALSE(group.UseGroupColor());
    EXPECT_EQ(screen.trace, std::vector<std::string>{"line c99"});
}

TEST(Group, ShownAgainItIsHighlightedForTheTimeOfTheStep) {
    GroupScreen screen;
    CZvDispGroup group;
    group.AddPrimitive(1, Line(1));
    const auto step = Step('v', screen);
    group.V_Update(&step);
    EXPECT_EQ(screen.trace,
              (std::vector<std::string>{"line c99", "line c246", "group highlighted"}));
    EXPECT_FALSE(group.UseGroupColor());
    EXPECT_EQ(group.GetColor(), 255);
}

TEST(Group, AStepLeavesTheColoursOfMembersUnderKeyZero) {
    GroupScreen screen;
    CZvDispGroup group;
    CZvDispPolyLine* line = Line(1);
    line->SetColor(C(5), 0);
    group.AddPrimitive(0, line);
    const auto show = Step('v', screen), turn = Step('r', screen);
    group.V_Update(&show);
    EXPECT_EQ(line->GetColor(), 5);
    group.V_Update(&turn);
    EXPECT_EQ(line->GetColor(), 5);
    EXPECT_EQ(group.GetColor(), 255);
}

TEST(Group, FinishingUncodesTheWholeAndLeavesItInPlace) {
    GroupScreen screen;
    CZvDispGroup group;
    CZvDispPolyLine* line = Line(1);
    group.AddPrimitive(1, line);
    const auto step = Step('f', screen);
    group.V_Update(&step);
    EXPECT_FALSE(group.IsCustomCode('c'));
    EXPECT_FALSE(line->IsCustomCode('c'));
    EXPECT_EQ(group.GetOrigin().GetX(), 0.0);
    EXPECT_EQ(screen.trace, std::vector<std::string>{"line c99"});
}

TEST(Group, ErasingErasesTheWholeBeforeTheMembers) {
    GroupScreen screen;
    CZvDispGroup group;
    group.AddPrimitive(1, Line(1));
    const auto step = Step('d', screen);
    group.V_Update(&step);
    EXPECT_EQ(screen.trace, (std::vector<std::string>{"group", "line c99"}));
}

TEST(Group, AnUnknownCodeMarksAndStops) {
    GroupScreen screen;
    CZvDispGroup group;
    CZvDispPolyLine* line = Line(1);
    group.AddPrimitive(1, line);
    const auto step = Step('k', screen);
    group.V_Update(&step);
    EXPECT_TRUE(screen.trace.empty());
    EXPECT_TRUE(line->IsCustomCode('c'));
}

} // namespace
