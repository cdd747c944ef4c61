#include <cmath>
#include <limits>

#include "context/GlMap.h"
#include "support/LogLines.h"

namespace zv::testing {
namespace {

TEST(ZvDispGLShapes, APointWithItsPenUpEndsTheLineAndStartsTheNext) {
    GlMap map;
    CZvDispPolyLine line;
    line.SetVertices({{5, 20.5}, {20, 20.5}, {40, 20.5, 0, false}, {60, 20.5}});
    const auto picture = map.Draw(line);
    EXPECT_EQ(picture.At(10, 43), kWhite);
    EXPECT_EQ(picture.At(30, 43), kBlack);
    EXPECT_EQ(picture.At(50, 43), kWhite);
}

TEST(ZvDispGLShapes, DashesStartAnewBehindAGap) {
    GlMap map;
    CZvDispPolyLine line;
    line.SetVertices({{2.5, 20.5}, {14.5, 20.5}, {22.5, 20.5, 0, false}, {38.5, 20.5}});
    line.SetLineType(1, 0); // eight on, eight off
    line.SetPickID(10001);
    map.gl.DrawDispItem(&line);
    for (const auto& picture : {map.Redraw({10001}), map.CallLists({10001})}) {
        std::string drawn;
        for (int x = 2; x < 38; ++x)
            drawn += picture.At(x, 43) == kWhite ? '#' : '.';
        EXPECT_EQ(drawn, "########............########........");
    }
}

TEST(ZvDispGLShapes, AnEmptyLineDrawsNothing) {
    GlMap map;
    CZvDispPolyLine line;
    EXPECT_EQ(map.Draw(line).CountOther(kBlack), 0);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST(ZvDispGLShapes, VerticesThatAreNoNumbersAreLeftOut) {
    GlMap map;
    CZvDispPolyLine line;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    line.SetVertices({{5, 20.5}, {nan, 3}, {30, 20.5}, {HUGE_VAL, 20.5}});
    const auto picture = map.Draw(line);
    EXPECT_EQ(picture.At(20, 43), kWhite);
    EXPECT_EQ(picture.At(50, 43), kBlack);
}

TEST(ZvDispGLShapes, AnUnfilledPolygonIsItsOutline) {
    GlMap map;
    CZvDispPolygon polygon;
    polygon.SetVertices(Rectangle(10.5, 10.5, 50.5, 50.5));
    polygon.SetPickID(10001);
    map.gl.DrawDispItem(&polygon);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR)); // its list was not opened twice
    const auto picture = map.Redraw({10001});
    EXPECT_EQ(picture.At(30, 53), kWhite);
    EXPECT_EQ(picture.At(30, 30), kBlack);
    EXPECT_NEAR(picture.CountOf(kWhite), 160, 4); // four sides of 40, whose corners may be left out
}

TEST(ZvDispGLShapes, AFilledPolygonCoversItsArea) {
    GlMap map;
    map.gl.SetPFBrightIndex(0);
    CZvDispPolygon polygon;
    polygon.SetVertices({{10, 10}, {50, 10}, {50, 50}, {30, 30}, {10, 50}, {10, 10}});
    polygon.SetFill(true);
    const auto picture = map.Draw(polygon);
    EXPECT_EQ(picture.At(30, 63 - 20), kWhite);
    EXPECT_EQ(picture.At(30, 63 - 45), kBlack); // in the notch
    EXPECT_NEAR(picture.CountOf(kWhite), 1200, 45);
}

TEST(ZvDispGLShapes, AnOpenRingLosesNoCorner) {
    GlMap map;
    map.gl.SetPFBrightIndex(0);
    CZvDispPolygon polygon;
    polygon.SetVertices({{10, 10}, {50, 10}, {50, 50}, {10, 50}});
    polygon.SetFill(true);
    EXPECT_EQ(map.Draw(polygon).CountOf(kWhite), 1600);
}

TEST(ZvDispGLShapes, ABowTieIsFilledOnBothSidesOfItsCrossing) {
    GlMap map;
    map.gl.SetPFBrightIndex(0);
    CZvDispPolygon polygon;
    polygon.SetVertices({{10, 10}, {50, 50}, {50, 10}, {10, 50}, {10, 10}});
    polygon.SetFill(true);
    const auto picture = map.Draw(polygon);
    EXPECT_EQ(picture.At(15, 63 - 30), kWhite);
    EXPECT_EQ(picture.At(45, 63 - 30), kWhite);
    EXPECT_EQ(picture.At(30, 63 - 15), kBlack);
    EXPECT_EQ(picture.At(30, 63 - 45), kBlack);
}

std::vector<CZvDispPoint> RingOf(int vertices) {
    std::vector<CZvDispPoint> ring;
    for (int i = 0; i + 1 < vertices; ++i) {
        const double angle = 2 * std::numbers::pi * i / (vertices - 1);
        ring.emplace_back(32 + 20 * std::cos(angle), 32 + 20 * std::sin(angle));
    }
    ring.push_back(ring.front());
    return ring;
}

TEST(ZvDispGLShapes, APolygonOf301VerticesLogsAndStillDraws) {
    GlMap map;
    CZvDispPolygon polygon;
    polygon.SetFill(true);
    polygon.SetVertices(RingOf(300));
    const test::LogLines log;
    map.Draw(polygon);
    EXPECT_TRUE(log.Get().empty());
    polygon.SetVertices(RingOf(301));
    EXPECT_GT(map.Draw(polygon).CountOther(kBlack), 1200);
    ASSERT_EQ(log.Get().size(), 1u);
    EXPECT_EQ(log.Get()[0], (test::LogLines::Line{"Polygon is too large", 103, false}));
}

TEST(ZvDispGLShapes, AFilledPolygonWithoutVerticesLogs) {
    GlMap map;
    CZvDispPolygon polygon;
    polygon.SetFill(true);
    const test::LogLines log;
    EXPECT_EQ(map.Draw(polygon).CountOther(kBlack), 0);
    ASSERT_EQ(log.Get().size(), 1u);
    EXPECT_EQ(log.Get()[0].text, "Vertice = 0 ");
}

TEST(ZvDispGLShapes, AMovedPolygonIsDrawnSoThatTheSecondTimeTakesItAway) {
    GlMap map;
    CZvDispPolygon polygon;
    polygon.SetVertices(Rectangle(10, 10, 50, 50));
    polygon.SetFill(true);
    polygon.SetCustomCode('m');
    EXPECT_EQ(map.Draw(polygon).CountOther(kBlack), 1600);
    map.gl.DrawPolygon(polygon);
    EXPECT_EQ(map.Show().CountOther(kBlack), 0);
    EXPECT_FALSE(glIsEnabled(GL_COLOR_LOGIC_OP));
}

TEST(ZvDispGLShapes, ACircleIs37PointsEveryTenDegrees) {
    GlMap map(256, 256);
    CZvDispCircle circle({128.5, 128.5}, 100);
    const auto picture = map.Draw(circle);
    for (int degrees = 0; degrees < 360; degrees += 10) {
        const double angle = (degrees + 0.0) * std::numbers::pi / 180;
        const int x = static_cast<int>(128.5 + 100 * std::cos(angle));
        const int y = 255 - static_cast<int>(128.5 + 100 * std::sin(angle));
        bool found = false;
        for (int dx = -1; dx <= 1; ++dx)
            for (int dy = -1; dy <= 1; ++dy)
                found |= picture.At(x + dx, y + dy) == kWhite;
        EXPECT_TRUE(found) << degrees;
    }
    // Between two points the chord runs cos 5 degrees of the radius from the centre: 99.62.
    EXPECT_EQ(picture.At(128 + 100, 255 - 128), kWhite);
    const auto box = picture.BoxOfOther(kBlack);
    EXPECT_EQ(box[2] - box[0], 200);
}

TEST(ZvDispGLShapes, AFilledCircleIsWhole) {
    GlMap map;
    CZvDispCircle circle({32, 32}, 20);
    circle.SetFill(true);
    // The 36-gon: 18 * 20^2 * sin 10 degrees = 1250.2.
    EXPECT_NEAR(map.Draw(circle).CountOf(kWhite), 1250, 30);
}

TEST(ZvDispGLShapes, AnArcRunsInStepsOfTenDegreesAndDoesNotReachAnEndBetween) {
    GlMap map(256, 256);
    CZvDispArc arc({28.5, 28.5}, 200, 0.0f, 45.0f);
    const auto picture = map.Draw(arc);
    const auto at = [&](double degrees) {
        const double a = degrees * std::numbers::pi / 180;
        const int x = static_cast<int>(28.5 + 200 * std::cos(a));
        const int y = 255 - static_cast<int>(28.5 + 200 * std::sin(a));
        bool found = false;
        for (int dx = -2; dx <= 2; ++dx)
            for (int dy = -2; dy <= 2; ++dy)
                found |= picture.At(x + dx, y + dy) == kWhite;
        return found;
    };
    EXPECT_TRUE(at(0));
    EXPECT_TRUE(at(20));
    EXPECT_TRUE(at(39.5));
    EXPECT_FALSE(at(43));
}

TEST(ZvDispGLShapes, ArcAnglesAreTruncatedToWholeDegrees) {
    GlMap map(256, 256);
    CZvDispArc whole({28.5, 28.5}, 200, 10.0f, 40.0f), broken({28.5, 28.5}, 200, 10.9f, 40.9f);
    EXPECT_EQ(map.Draw(whole), map.Draw(broken));
}

TEST(ZvDispGLShapes, ArcsOfAnyLengthEnd) {
    GlMap map;
    CZvDispArc arc({32.5, 32.5}, 20, -1e30f, 1e30f), backward({32.5, 32.5}, 20, 90.0f, 0.0f);
    map.Draw(arc);
    EXPECT_EQ(map.Draw(backward).CountOther(kBlack), 0);
    CZvDispArc turns({32.5, 32.5}, 20, 0.0f, 3600.0f);
    CZvDispCircle circle({32.5, 32.5}, 20);
    EXPECT_EQ(map.Draw(turns), map.Draw(circle));
}

TEST(ZvDispGLShapes, AGroupIsOneListOfItsVisibleMembers) {
    GlMap map;
    CZvDispGroup group;
    for (int i = 0; i < 3; ++i) {
        auto* line = new CZvDispPolyLine;
        MakeRow(*line, 10, 50, 10 + 10 * i);
        line->SetPickID(20001 + static_cast<unsigned>(i));
        line->SetVisibility(i != 1);
        group.AddPrimitive(i, line);
    }
    group.SetPickID(10001);
    map.gl.DrawDispItem(&group);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    EXPECT_TRUE(glIsList(10001));
    EXPECT_FALSE(map.gl.IsItemList(20001));
    const auto picture = map.Redraw({10001});
    EXPECT_EQ(picture.At(30, 63 - 10), kWhite);
    EXPECT_EQ(picture.At(30, 63 - 20), kBlack);
    EXPECT_EQ(picture.At(30, 63 - 30), kWhite);
}

TEST(ZvDispGLShapes, AGroupMayDrawItsMembersInItsOwnColor) {
    GlMap map;
    CZvDispGroup group;
    auto* line = new CZvDispPolyLine;
    MakeRow(*line, 10, 50, 20);
    line->SetColor(static_cast<ZVColor>(1), 0);
    group.AddPrimitive(1, line);
    group.SetUseGroupColorFlg(true);
    static_cast<CZvDisplayItem&>(group).SetColor(static_cast<ZVColor>(2), 7);
    const Rgb groupColor = Palette(group.GetColor());
    EXPECT_EQ(map.Draw(group).At(30, 43), groupColor);
    EXPECT_EQ(line->GetColor(), 1);
}

TEST(ZvDispGLShapes, ATemporaryPolygonIsFilledAtOnce) {
    GlMap map;
    map.gl.SetPFBrightIndex(0);
    CZvDispPolygon polygon;
    polygon.SetVertices(Rectangle(10, 10, 50, 50));
    polygon.SetPickID(10001);
    map.gl.V_OnTempPolygon(polygon);
    EXPECT_EQ(map.Show().CountOf(kWhite), 1600);
    EXPECT_FALSE(map.gl.IsItemList(10001));
}

TEST(ZvDispGLShapes, ErasingByExclusiveOrLeavesNoPixel) {
    GlMap map;
    map.View(0.3, 0.2, 63.1, 64.7);
    CZvDispPolygon polygon;
    polygon.SetVertices({{10.3, 10.1}, {50.7, 22.2}, {33.3, 55.9}, {10.3, 10.1}});
    polygon.SetFill(true);
    polygon.SetFillStyle(static_cast<E_FILL_STYLE>(1));
    map.gl.DrawDispItem(&polygon);
    polygon.Erase(&map.gl);
    EXPECT_EQ(map.Show().CountOther(kBlack), 0);
}

TEST(ZvDispGLShapes, ATemporaryPolygonIsFilledWhateverTheModeWas) {
    GlMap map;
    CZvDispPolygon polygon;
    polygon.SetVertices(Rectangle(10, 10, 50, 50));
    glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    map.gl.V_OnTempPolygon(polygon);
    GLint modes[2];
    glGetIntegerv(GL_POLYGON_MODE, modes);
    EXPECT_EQ(modes[0], GL_FILL);
    EXPECT_EQ(map.Show().CountOf(kWhite), 1600);
}

} // namespace
} // namespace zv::testing
