#include "context/ZvDisplayContext.h"

#include <gtest/gtest.h>

#include <cmath>

#include "PlainTarget.h"
#include "platform/win/MessageBox.h"
#include "platform/zvset/ZvSettings.h"
#include "support/LogLines.h"

namespace {

using zv::test::LogLines;
using zv::test::PlainTarget;
using zv::test::RecordingContext;

TEST(ContextFrame, StartsAsAnyOtherTarget) {
    PlainTarget target;
    EXPECT_EQ(target.GetType(), 8);
    EXPECT_FALSE(target.GetIsOpenGL());
    EXPECT_EQ(target.layer, 13);
    EXPECT_EQ(target.post, 0);
    EXPECT_EQ(target.GetSettingsMgr(), nullptr);
    EXPECT_EQ(target.GetDispInfo(), nullptr);
    EXPECT_EQ(target.GetMemCtrl(), nullptr);
    EXPECT_FALSE(target.GetProcessInvisible());
    EXPECT_TRUE(target.ReadTagInfo(1, nullptr));
}

TEST(ContextFrame, TagsOneToFourAreKeptAndOthersPassedOver) {
    PlainTarget target;
    for (int tag = 0; tag <= 7; ++tag) {
        const int value = 100 + tag;
        EXPECT_TRUE(target.WriteTagInfo(tag, &value));
    }
    EXPECT_EQ(target.layer, 101);
    EXPECT_EQ(target.post, 102);
    EXPECT_EQ(target.uset, 103);
    EXPECT_EQ(target.culture, 104);
}

TEST(ContextFrame, FontNamesStandByIndex) {
    PlainTarget target;
    const char* names[] = {"Stroke", "Times",       "Helvetica",    "Courier", "Tahoma",
                           "Arial",  "Arial Black", "Arial Narrow", "Italic",  "Impact"};
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(target.GetFontName(i), names[i]);
}

TEST(ContextFrame, ALineOfOneVertexIsLoggedAndOneOfTwoDrawn) {
    LogLines log;
    PlainTarget target;
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{1, 1}});
    line.SetID("L1");
    EXPECT_TRUE(target.DrawDispItem(&line));
    EXPECT_TRUE(target.shapes.empty());
    ASSERT_EQ(log.Get().size(), 1u);
    EXPECT_EQ(log.Get()[0],
              (LogLines::Line{"Only one point found in polyglineL1 Skipped.", 103, false}));
    line.AddPoint({2, 2});
    EXPECT_TRUE(target.DrawDispItem(&line));
    EXPECT_EQ(target.shapes.size(), 1u);
    CZvDispPolyLine empty;
    EXPECT_TRUE(target.DrawDispItem(&empty));
    EXPECT_EQ(target.shapes.size(), 2u) << "a line without vertices goes on to the target";
}

TEST(ContextFrame, NoItemAndAnItemWithoutKindAreRefused) {
    PlainTarget target;
    CZvDisplayItem item;
    EXPECT_FALSE(target.DrawDispItem(nullptr));
    EXPECT_FALSE(target.DrawDispItem(&item));
}

TEST(ContextFrame, ACircleReachesAPlainTargetAs75VerticesWithTheFirstDoubled) {
    PlainTarget target;
    CZvDispCircle circle({10, 20}, 5.0);
    circle.SetFill(true);
    circle.SetColor(static_cast<ZVColor>(7), 0);
    circle.SetLineWidth(3, 0);
    circle.SetInActive(true);
    target.DrawDispItem(&circle);
    ASSERT_EQ(target.shapes.size(), 1u);
    const auto& points = target.shapes[0];
    ASSERT_EQ(points.size(), 75u);
    EXPECT_EQ(points[0].GetX(), 15.0);
    EXPECT_EQ(points[1].GetX(), points[0].GetX());
    EXPECT_EQ(points[1].GetY(), points[0].GetY());
    EXPECT_NEAR(points[19].GetX(), 10.0, 1e-6) << "90 degrees, in the frame's 57.29578";
    EXPECT_NEAR(points[19].GetY(), 25.0, 1e-6);
    EXPECT_EQ(points[74].GetX(), points[73].GetX());
    EXPECT_TRUE(target.filled);
    EXPECT_EQ(target.color, 7);
    EXPECT_EQ(target.width, 3);
    EXPECT_TRUE(target.inactive);
}

TEST(ContextFrame, AnArcOfThreeDegreesHasItsStartTwiceAndItsEnd) {
    PlainTarget target;
    CZvDispArc arc({0, 0}, 1.0, 0.0f, 3.0f);
    target.DrawDispItem(&arc);
    const auto& points = target.shapes.at(0);
    ASSERT_EQ(points.size(), 3u);
    EXPECT_EQ(points[0].GetX(), 1.0);
    EXPECT_EQ(points[1].GetX(), 1.0);
    EXPECT_NEAR(points[2].GetY(), std::sin(3.0 / 57.29578), 1e-15);
}

TEST(ContextFrame, AnArcThatRunsBackwardsKeepsItsStart) {
    PlainTarget target;
    CZvDispArc arc({0, 0}, 1.0, 90.0f, 0.0f);
    target.DrawDispItem(&arc);
    ASSERT_EQ(target.shapes.at(0).size(), 1u) << "no step, and 0 degrees is not above the start";
    CZvDispArc odd({0, 0}, 1.0, 0.0f, std::nanf(""));
    EXPECT_TRUE(target.DrawDispItem(&odd));
}

TEST(ContextFrame, DisplayInfoNamesTheSingleMemberToDraw) {
    RecordingContext context;
    CZvDispGroup group;
    for (int key : {1, 2, 3}) {
        auto* circle = new CZvDispCircle({double(key), 0}, 1.0);
        group.AddPrimitive(key, circle);
    }
    T_ZV_STRUC_DISP_INFO info;
    info.memberNumber = 2;
    context.SetDispInfo(&info);
    context.DrawDispItem(&group);
    EXPECT_EQ(context.Take(), "group UNDEFINED c255\ncircle 2,0 r 1 c8\n");
    group.GetGroupItem(2)->SetVisibility(false);
    context.DrawDispItem(&group);
    EXPECT_EQ(context.Take(), "group UNDEFINED c255\n");
    info.memberNumber = 9;
    context.DrawDispItem(&group);
    EXPECT_EQ(context.Take(), "group UNDEFINED c255\n");
    info.memberNumber = 0;
    context.DrawDispItem(&group);
    EXPECT_EQ(context.Take(), "group UNDEFINED c255\ncircle 1,0 r 1 c8\ncircle 3,0 r 1 c8\n");
    group.SetVisibility(false);
    context.DrawDispItem(&group);
    EXPECT_EQ(context.Take(), "group UNDEFINED c255\n");
}

TEST(ContextFrame, AGroupsColourIsLentToItsMembers) {
    RecordingContext context;
    CZvDispGroup group;
    auto* circle = new CZvDispCircle({1, 0}, 1.0);
    circle->SetColor(static_cast<ZVColor>(5), 0);
    group.AddPrimitive(1, circle);
    group.SetUseGroupColorFlg(true);
    context.DrawDispItem(&group);
    EXPECT_EQ(context.Take(), "group UNDEFINED c255\ncircle 1,0 r 1 c255\n");
    EXPECT_EQ(circle->GetColor(), 5);
}

TEST(ContextFrame, ANestedGroupsMembersKeepTheirColours) {
    RecordingContext context;
    CZvDispGroup outer;
    auto* inner = new CZvDispGroup;
    auto* circle = new CZvDispCircle;
    circle->SetColor(static_cast<ZVColor>(5), 0);
    inner->AddPrimitive(0, circle);
    outer.AddPrimitive(1, inner);
    outer.SetUseGroupColorFlg(true);
    outer.SetColor(static_cast<ZVColor>(7), 0);
    context.DrawDispItem(&outer);
    EXPECT_EQ(context.Take(), "group UNDEFINED c7\ngroup UNDEFINED c7\ncircle 0,0 r 1 c7\n");
    EXPECT_EQ(circle->GetColor(), 5);
    EXPECT_EQ(inner->GetColor(), 255);
}

TEST(ContextClip, WithoutItsFlagEverythingPasses) {
    PlainTarget target;
    target.boundPolygon = {{0, 0}, {0, 10}, {10, 10}, {10, 0}};
    CZvDispText text;
    text.SetPoint({20, 5});
    EXPECT_TRUE(target.ClipText(text));
    EXPECT_FALSE(target.IsInsideFinalBorder({20, 5}));
    EXPECT_TRUE(target.IsInsideFinalBorder({10, 5})) << "on the outline";
    target.clipOn = true;
    EXPECT_FALSE(target.ClipText(text));
    text.SetPoint({5, 5});
    EXPECT_TRUE(target.ClipText(text));
}

TEST(ContextClip, ACopiedTextIsPlacedInItsSymbol) {
    PlainTarget target;
    CZvDispText from, to;
    from.SetLabel("T");
    from.SetPoint({1, 2, 9});
    target.inSymbol = true;
    target.placeX = 10;
    target.placeScale = 2;
    EXPECT_TRUE(target.CopyTextItem(&from, &to));
    EXPECT_EQ(to.GetLabel(), "T");
    EXPECT_EQ(to.GetPoint().GetX(), 12.0);
    EXPECT_EQ(to.GetPoint().GetY(), 4.0);
    EXPECT_EQ(to.GetPoint().GetZ(), 9.0);
}

TEST(ContextLog, PointErrorsNameKindPlaceAndCoordinates) {
    LogLines log;
    PlainTarget target;
    const int layer = 25, post = 1, uset = 2, culture = 220;
    target.WriteTagInfo(1, &layer);
    target.WriteTagInfo(2, &post);
    target.WriteTagInfo(3, &uset);
    target.WriteTagInfo(4, &culture);
    target.LogError(11, 1.5, -2.0, "");
    target.LogError(16, 1.5, -2.0, "A 1");
    target.LogError(17, 1.5, -2.0, "");
    target.LogError(99, 1.5, -2.0, "A 1");
    ASSERT_EQ(log.Get().size(), 4u);
    EXPECT_EQ(
        log.Get()[0].text,
        "Point Error, C_POLYLINE_ATTR, eLayer=25,eCul=220,ePost=1,eUset=2,X=1.500000,Y=-2.000000");
    EXPECT_EQ(log.Get()[0].level, 103);
    EXPECT_EQ(log.Get()[1].text, "Point Error, C_TEXT_ATTR, eLayer=25,eCul=220,ePost=1,eUset=2,"
                                 "X=1.500000,Y=-2.000000,\"A 1\"");
    EXPECT_EQ(log.Get()[2].text.substr(0, 29), "Point Error, C_SQUARE_ATTR, e");
    EXPECT_EQ(log.Get()[3].text, "");
    target.boundPolygon = {{0, 0}, {0, 10}, {10, 10}, {10, 0}};
    target.LogError(11, 50, 50, "");
    EXPECT_EQ(log.Get().size(), 4u) << "a point outside the final border is expected";
}

TEST(ContextFileName, ForbiddenCharactersBecomeUnderlines) {
    LogLines log;
    PlainTarget target;
    std::string name = "a/b\\c:d*e?f\"g<h>i|j";
    EXPECT_EQ(target.ValidateStringAsFileName(name), 9);
    EXPECT_EQ(name, "a_b_c_d_e_f_g_h_i_j");
    ASSERT_EQ(log.Get().size(), 1u);
    EXPECT_EQ(
        log.Get()[0],
        (LogLines::Line{"Export - Illegal charactors found in file name and replaced with '_'.",
                        101, false}));
    std::string good = "plain name";
    EXPECT_EQ(target.ValidateStringAsFileName(good), 0);
    EXPECT_EQ(log.Get().size(), 1u);
}

TEST(ContextFileName, TheTailNamesPostAndDataset) {
    LogLines log;
    PlainTarget target;
    EXPECT_EQ(target.BuildExportFileMoniker(nullptr, 1, 1, 1, 1), "");
    EXPECT_EQ(target.BuildExportFileMoniker(nullptr, 2, 2, 1, 1), "_Post#2");
    EXPECT_EQ(target.BuildExportFileMoniker(nullptr, 2, 2, 3, 1), "_Post#2_Dataset#1");
    CZvSettings settings;
    EXPECT_EQ(target.BuildExportFileMoniker(&settings, 1, 1, 2, 1), "_Dataset#1");
    settings.SetString("Post#1\\USET#1\\QUAL_NAME", "A/B");
    EXPECT_TRUE(log.Get().empty());
    EXPECT_EQ(target.BuildExportFileMoniker(&settings, 1, 1, 1, 1), "_A_B");
    EXPECT_EQ(log.Get().size(), 1u);
}

TEST(ContextFrame, ErrorsOfThePlatformAreShownWithTheirTitle) {
    struct Failing : PlainTarget {
        static void Show() { GetError("Specify Device Context's Pixel Format"); }
    };
    zv::HeadlessMessageHost host;
    zv::MessageHost* before = zv::SetMessageHost(&host);
    Failing::Show();
    zv::SetMessageHost(before);
    ASSERT_EQ(host.GetShown().size(), 1u);
    EXPECT_EQ(host.GetShown()[0].title, "Specify Device Context's Pixel Format");
    EXPECT_EQ(host.GetShown()[0].style, 64u);
}

TEST(ContextFrame, ColoursComeFromThePalette) {
    PlainTarget target;
    int r = 1, g = 1, b = 1;
    EXPECT_TRUE(target.GetRGBColor(0, r, g, b));
    EXPECT_EQ(r + g + b, 0);
    EXPECT_TRUE(target.GetRGBColor(8, r, g, b));
    EXPECT_EQ(r + g + b, 3 * 255);
}

TEST(ContextFrame, CopiesTakeEveryMember) {
    PlainTarget from;
    from.boundPolygon = {{0, 0}, {1, 1}};
    from.layer = 77;
    from.SetSkewAngle(12.0);
    from.SetIsOpenGL(true);
    from.placeScale = 4.0;
    from.clipOn = true;
    from.strokeFont = false;
    from.culture = 220;
    PlainTarget copy(from);
    from.boundPolygon.clear();
    EXPECT_EQ(copy.placeScale, 4.0);
    EXPECT_TRUE(copy.clipOn);
    EXPECT_FALSE(copy.strokeFont);
    EXPECT_EQ(copy.culture, 220);
    EXPECT_EQ(copy.layer, 77);
    EXPECT_EQ(copy.boundPolygon.size(), 2u);
    EXPECT_TRUE(copy.GetIsOpenGL());
    PlainTarget assigned;
    assigned = copy;
    EXPECT_EQ(assigned.layer, 77);
    EXPECT_EQ(assigned.boundPolygon.size(), 2u);
}

} // namespace
