#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "platform/zvcom/ZvUtilGeo.h"

namespace {

using Points = std::vector<CZvDispPoint>;

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNan = std::numeric_limits<double>::quiet_NaN();

void ExpectAt(const CZvDispPoint& point, double x, double y) {
    EXPECT_EQ(point.GetX(), x);
    EXPECT_EQ(point.GetY(), y);
}

void ExpectNear(const CZvDispPoint& point, double x, double y, double tolerance = 1e-12) {
    EXPECT_NEAR(point.GetX(), x, tolerance);
    EXPECT_NEAR(point.GetY(), y, tolerance);
}

CZvDispPoint Turned(CZvDispPoint point, const CZvDispPoint& origin, double degrees) {
    CZvUtilGeo::RotatePoint(point, origin, degrees);
    return point;
}

} // namespace

TEST(RotatePoint, TurnsCounterClockwise) {
    const double half = std::sqrt(0.5);
    ExpectNear(Turned({1, 0}, {0, 0}, 45), half, half);
    ExpectNear(Turned({1, 0}, {0, 0}, -45), half, -half);
    ExpectNear(Turned({2, 0}, {0, 0}, 60), 1.0, std::sqrt(3.0));
}

TEST(RotatePoint, IsExactAtQuarterTurns) {
    const CZvDispPoint point(13, 25), origin(10, 20);
    ExpectAt(Turned(point, origin, 90), 5, 23);
    ExpectAt(Turned(point, origin, 180), 7, 15);
    ExpectAt(Turned(point, origin, 270), 15, 17);
    ExpectAt(Turned(point, origin, -90), 15, 17);
    ExpectAt(Turned(point, origin, -270), 5, 23);
    ExpectAt(Turned(point, origin, 450), 5, 23);
    ExpectAt(Turned(point, origin, 36000090), 5, 23);
}

TEST(RotatePoint, LeavesThePointBitwiseAloneAtWholeTurns) {
    const CZvDispPoint origin(1e7, -1e7);
    for (const double degrees : {0.0, -0.0, 360.0, -720.0}) {
        ExpectAt(Turned({0.1, 0.3}, origin, degrees), 0.1, 0.3);
    }
    EXPECT_TRUE(std::signbit(Turned({-0.0, 1.0}, origin, 0.0).GetX()));
}

TEST(RotatePoint, LeavesThePointAloneAtAnAngleThatIsNoNumber) {
    ExpectAt(Turned({3, 4}, {0, 0}, kNan), 3, 4);
    ExpectAt(Turned({3, 4}, {0, 0}, kInfinity), 3, 4);
}

TEST(RotatePoint, KeepsDepthAndPenFlag) {
    const CZvDispPoint turned = Turned({1, 0, 7, false}, {0, 0, 99}, 90);
    EXPECT_EQ(turned.GetZ(), 7.0);
    EXPECT_FALSE(turned.GetDown());
}

TEST(RotatePoint, AboutItselfStays) {
    CZvDispPoint point(3, 4);
    CZvUtilGeo::RotatePoint(point, point, 30);
    ExpectAt(point, 3, 4);
}

TEST(RotatePolyline, TurnsEveryVertex) {
    Points line = {{0, 0}, {2, 0}, {2, 1, 5, false}};
    CZvUtilGeo::RotatePolyline(line, {0, 0}, 90);
    ExpectAt(line[0], 0, 0);
    ExpectAt(line[1], 0, 2);
    ExpectAt(line[2], -1, 2);
    EXPECT_EQ(line[2].GetZ(), 5.0);
    EXPECT_FALSE(line[2].GetDown());
}

TEST(RotatePolyline, TakesOneOfItsVerticesAsOrigin) {
    Points line = {{1, 1}, {3, 1}, {1, 5}};
    CZvUtilGeo::RotatePolyline(line, line[0], 180);
    ExpectAt(line[0], 1, 1);
    ExpectAt(line[1], -1, 1);
    ExpectAt(line[2], 1, -3);
}

TEST(RotatePolyline, LeavesAnEmptyLineEmpty) {
    Points line;
    CZvUtilGeo::RotatePolyline(line, {0, 0}, 90);
    EXPECT_TRUE(line.empty());
}

TEST(FindPolylineCenter, IsTheAreaCentroid) {
    ExpectNear(CZvUtilGeo::S_FindPolylineCenter({{0, 0}, {6, 0}, {0, 3}, {0, 0}}), 2, 1);
    ExpectNear(CZvUtilGeo::S_FindPolylineCenter({{0, 0}, {0, 3}, {6, 0}, {0, 0}}), 2, 1);
    ExpectNear(CZvUtilGeo::S_FindPolylineCenter({{0, 0}, {4, 0}, {4, 2}, {0, 2}, {0, 0}}), 2, 1);
}

TEST(FindPolylineCenter, OfAnLShapeWeighsItsAreas) {
    // A square of 2 by 2 at (1, 1) and one of 2 by 4 at (3, 2): (4 * 1 + 8 * 3) / 12, and so on.
    const Points shape = {{0, 0}, {4, 0}, {4, 4}, {2, 4}, {2, 2}, {0, 2}, {0, 0}};
    ExpectNear(CZvUtilGeo::S_FindPolylineCenter(shape), 28.0 / 12, 20.0 / 12);
}

TEST(FindPolylineCenter, StaysExactFarFromTheOrigin) {
    const double far = 1e7;
    const Points square = {
        {far, far}, {far + 2, far}, {far + 2, far + 2}, {far, far + 2}, {far, far}};
    ExpectAt(CZvUtilGeo::S_FindPolylineCenter(square), far + 1, far + 1);
}

TEST(FindPolylineCenter, WithoutAreaIsTheCentroidByLength) {
    ExpectNear(CZvUtilGeo::S_FindPolylineCenter({{0, 0}, {4, 0}, {0, 0}}), 2, 0);
    // Out along two edges of 1 and 3 and back over 4: (0.5 + 3 * 2.5 + 4 * 2) / 8.
    ExpectNear(CZvUtilGeo::S_FindPolylineCenter({{0, 0}, {1, 0}, {4, 0}, {0, 0}}), 2, 0);
}

TEST(FindPolylineCenter, OfANearlyStraightOutlineStaysOnIt) {
    Points line;
    for (int i = 0; i <= 10; ++i) {
        line.emplace_back(1e7 + 0.1 * i, 1e7 + 0.3 * i);
    }
    line.push_back(line.front());
    ExpectNear(CZvUtilGeo::S_FindPolylineCenter(line), 1e7 + 0.5, 1e7 + 1.5, 1e-6);
}

TEST(FindPolylineCenter, OfOnePlaceIsThatPlace) {
    ExpectAt(CZvUtilGeo::S_FindPolylineCenter({{3.3, 4.4}}), 3.3, 4.4);
    ExpectAt(CZvUtilGeo::S_FindPolylineCenter({{3.3, 4.4}, {3.3, 4.4}, {3.3, 4.4}}), 3.3, 4.4);
}

TEST(FindPolylineCenter, OfNothingIsTheOrigin) {
    const CZvDispPoint center = CZvUtilGeo::S_FindPolylineCenter({});
    ExpectAt(center, 0, 0);
    EXPECT_EQ(center.GetZ(), 0.0);
}

TEST(FindPolylineCenter, TakesTheMeanDepthWithoutTheClosingVertex) {
    const Points ring = {{0, 0, 10}, {6, 0, 20}, {0, 3, 60}, {0, 0, 10}};
    EXPECT_EQ(CZvUtilGeo::S_FindPolylineCenter(ring).GetZ(), 30.0);
    EXPECT_EQ(CZvUtilGeo::S_FindPolylineCenter({{1, 2, 8}}).GetZ(), 8.0);
}

TEST(FindPolylineCenter, SurvivesHugeCoordinates) {
    const double big = 1e300;
    const CZvDispPoint center =
        CZvUtilGeo::S_FindPolylineCenter({{0, 0}, {big, 0}, {big, big}, {0, big}, {0, 0}});
    EXPECT_DOUBLE_EQ(center.GetX(), big / 2);
    EXPECT_DOUBLE_EQ(center.GetY(), big / 2);
}

TEST(PolyLineGetMinMax, GivesTheBox) {
    CZvDispPoint min, max;
    ASSERT_TRUE(CZvUtilGeo::PolyLineGetMinMax({{3, -1}, {-2, 5}, {0, 0}}, min, max));
    ExpectAt(min, -2, -1);
    ExpectAt(max, 3, 5);
}

TEST(PolyLineGetMinMax, KeepsDepthAndPenFlagOfItsResults) {
    CZvDispPoint min(0, 0, 7, false), max(0, 0, 8, true);
    ASSERT_TRUE(CZvUtilGeo::PolyLineGetMinMax({{3, -1, 100}}, min, max));
    ExpectAt(min, 3, -1);
    ExpectAt(max, 3, -1);
    EXPECT_EQ(min.GetZ(), 7.0);
    EXPECT_FALSE(min.GetDown());
    EXPECT_EQ(max.GetZ(), 8.0);
}

TEST(PolyLineGetMinMax, LeavesBothPointsAloneWithoutVertices) {
    CZvDispPoint min(1, 2), max(3, 4);
    EXPECT_FALSE(CZvUtilGeo::PolyLineGetMinMax({}, min, max));
    ExpectAt(min, 1, 2);
    ExpectAt(max, 3, 4);
}

TEST(AddViewport, GrowsByHalfTheFractionOnEachSide) {
    CZvDispPoint lowerLeft(0, 1000), upperRight(100, 1200);
    CZvUtilGeo::AddViewport(lowerLeft, upperRight, 0.1);
    ExpectAt(lowerLeft, -5, 990);
    ExpectAt(upperRight, 105, 1210);
}

TEST(AddViewport, LeavesARectangleWithoutExtentAlone) {
    CZvDispPoint lowerLeft(7, 8), upperRight(7, 8);
    CZvUtilGeo::AddViewport(lowerLeft, upperRight, 0.1);
    ExpectAt(lowerLeft, 7, 8);
    ExpectAt(upperRight, 7, 8);
}

TEST(FindDirection, TellsClockwiseFromCounterClockwise) {
    int error = 77;
    EXPECT_TRUE(CZvUtilGeo::S_FindDirection({{0, 0}, {0, 1}, {1, 1}, {1, 0}, {0, 0}}, &error));
    EXPECT_EQ(error, 0);
    EXPECT_FALSE(CZvUtilGeo::S_FindDirection({{0, 0}, {1, 0}, {1, 1}, {0, 1}, {0, 0}}, &error));
    EXPECT_EQ(error, 0);
}

TEST(FindDirection, NeedsNoClosingVertex) {
    int error = 77;
    EXPECT_TRUE(CZvUtilGeo::S_FindDirection({{0, 0}, {0, 1}, {1, 0}}, &error));
    EXPECT_EQ(error, 0);
}

TEST(FindDirection, TellsARingFarFromTheOrigin) {
    int error = 77;
    const double x = 1e7, y = 1e7, d = 1e-6;
    EXPECT_TRUE(CZvUtilGeo::S_FindDirection({{x, y}, {x, y + d}, {x + d, y}}, &error));
    EXPECT_EQ(error, 0);
}

TEST(FindDirection, FailsWithOneOnARingWithoutArea) {
    int error = 77;
    EXPECT_FALSE(CZvUtilGeo::S_FindDirection({{0, 0}, {1, 1}, {2, 2}, {0, 0}}, &error));
    EXPECT_EQ(error, 1);
}

TEST(FindDirection, FailsWithOneOnACoordinateThatIsNotFinite) {
    int error = 77;
    EXPECT_FALSE(CZvUtilGeo::S_FindDirection({{0, 0}, {0, 1}, {kInfinity, 0}}, &error));
    EXPECT_EQ(error, 1);
    error = 77;
    EXPECT_FALSE(CZvUtilGeo::S_FindDirection({{0, kNan}, {0, 1}, {1, 0}}, &error));
    EXPECT_EQ(error, 1);
}

TEST(FindDirection, FailsWithTwoOnFewerThanThreePlaces) {
    for (const Points& ring : {Points{}, Points{{1, 1}}, Points{{0, 0}, {1, 1}, {0, 0}, {1, 1}}}) {
        int error = 77;
        EXPECT_FALSE(CZvUtilGeo::S_FindDirection(ring, &error));
        EXPECT_EQ(error, 2);
    }
}

TEST(FindDirection, TakesANullError) {
    EXPECT_TRUE(CZvUtilGeo::S_FindDirection({{0, 0}, {0, 1}, {1, 0}}, nullptr));
    EXPECT_FALSE(CZvUtilGeo::S_FindDirection({}, nullptr));
}

TEST(GetOffsetOf2Points, GivesPageInchesOnAFeetMap) {
    double dx = 0, dy = 0;
    CZvUtilGeo::S_GetOffsetOf2Points({1000, 500}, {5000, -1500}, dx, dy, 2000, 0);
    EXPECT_EQ(dx, 2.0);
    EXPECT_EQ(dy, -1.0);
}

TEST(GetOffsetOf2Points, CountsMetresByTheirInches) {
    double dx = 0, dy = 0;
    CZvUtilGeo::S_GetOffsetOf2Points({0, 0}, {1000, -500}, dx, dy, 10000, 1);
    EXPECT_DOUBLE_EQ(dx, 3.936999996);
    EXPECT_DOUBLE_EQ(dy, -1.968499998);
}

TEST(GetOffsetOf2Points, IsZeroWithoutScale) {
    double dx = 5, dy = 5;
    CZvUtilGeo::S_GetOffsetOf2Points({0, 0}, {1000, 500}, dx, dy, 0, 0);
    EXPECT_EQ(dx, 0.0);
    EXPECT_EQ(dy, 0.0);
}

TEST(FindAngle, CountsCounterClockwiseFromEast) {
    const CZvDispPoint a(10, 20);
    EXPECT_DOUBLE_EQ(CZvUtilGeo::FindAngle(a, {11, 20}), 0.0);
    EXPECT_DOUBLE_EQ(CZvUtilGeo::FindAngle(a, {11, 21}), 45.0);
    EXPECT_DOUBLE_EQ(CZvUtilGeo::FindAngle(a, {10, 21}), 90.0);
    EXPECT_DOUBLE_EQ(CZvUtilGeo::FindAngle(a, {9, 20}), 180.0);
    EXPECT_DOUBLE_EQ(CZvUtilGeo::FindAngle(a, {10, 19}), 270.0);
    EXPECT_DOUBLE_EQ(CZvUtilGeo::FindAngle(a, {11, 19}), 315.0);
}

TEST(FindAngle, StaysBelowAFullTurn) {
    EXPECT_LT(CZvUtilGeo::FindAngle({0, 0}, {1, -1e-300}), 360.0);
    EXPECT_GE(CZvUtilGeo::FindAngle({0, 0}, {1, -1e-300}), 0.0);
    EXPECT_EQ(CZvUtilGeo::FindAngle({0, 0}, {1, -0.0}), 0.0);
    EXPECT_FALSE(std::signbit(CZvUtilGeo::FindAngle({0, 0}, {1, -0.0})));
}

TEST(FindAngle, OfOnePlaceIsZero) {
    EXPECT_EQ(CZvUtilGeo::FindAngle({5, 5}, {5, 5}), 0.0);
}
