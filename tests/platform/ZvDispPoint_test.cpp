#include <gtest/gtest.h>

#include "platform/zvcom/ZvDispPoint.h"

TEST(ZvDispPoint, StartsAtZeroWithThePenDown) {
    const CZvDispPoint point;
    EXPECT_EQ(point.GetX(), 0.0);
    EXPECT_EQ(point.GetY(), 0.0);
    EXPECT_EQ(point.GetZ(), 0.0);
    EXPECT_TRUE(point.GetDown());
}

TEST(ZvDispPoint, SumKeepsTheLeftPenFlag) {
    const CZvDispPoint up(1.0, 2.0, 3.0, false);
    const CZvDispPoint down(10.0, 20.0, 30.0, true);
    const CZvDispPoint sum = up + down;
    EXPECT_EQ(sum.GetX(), 11.0);
    EXPECT_EQ(sum.GetY(), 22.0);
    EXPECT_EQ(sum.GetZ(), 33.0);
    EXPECT_FALSE(sum.GetDown());
    EXPECT_TRUE((down + up).GetDown());
}

TEST(ZvDispPoint, SettersChangeOneFieldEach) {
    CZvDispPoint point(1.0, 2.0, 3.0, true);
    point.SetX(-1.5);
    point.SetDown(false);
    EXPECT_EQ(point.GetX(), -1.5);
    EXPECT_EQ(point.GetY(), 2.0);
    EXPECT_EQ(point.GetZ(), 3.0);
    EXPECT_FALSE(point.GetDown());
    point.SetY(7.0);
    point.SetZ(9.0);
    EXPECT_EQ(point.GetY(), 7.0);
    EXPECT_EQ(point.GetZ(), 9.0);
}

TEST(ZvDispPoint, CopiesAreIndependent) {
    CZvDispPoint point(1.0, 2.0, 3.0, false);
    const CZvDispPoint copy = point;
    point.SetX(99.0);
    EXPECT_EQ(copy.GetX(), 1.0);
    EXPECT_FALSE(copy.GetDown());
}
