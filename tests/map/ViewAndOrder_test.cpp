#include <gtest/gtest.h>

#include "map/ZvDispMapScale.h"
#include "map/ZvDispOrder.h"
#include "map/ZvDispUtil.h"

namespace {

std::vector<int> Walk(CZvDispOrder& order) {
    std::vector<int> layers;
    for (E_Layer layer = order.GetFirstLayer(); !order.IsEndOfList(); layer = order.GetNextLayer())
        layers.push_back(layer);
    return layers;
}

TEST(DrawOrder, StartsWithTheLayersOfANewMap) {
    CZvDispOrder order;
    EXPECT_EQ(Walk(order), (std::vector<int>{31, 13, 70, 28, 71, 72, 73, 74, 26, 50, 51, 52, 53,
                                             66, 3,  54, 55, 25, 60, 61, 62, 63, 64, 65, 15, 16,
                                             4,  5,  6,  7,  8,  56, 57, 10, 17, 18, 19, 20, 21,
                                             30, 67, 68, 69, 22, 23, 91, 92, 93, 94, 90, 2}));
    EXPECT_EQ(order.GetNextLayer(), -1);
    EXPECT_TRUE(order.IsEndOfList());
}

TEST(DrawOrder, AddingALayerMovesItToTheVeryEnd) {
    CZvDispOrder order;
    order.AddLayer(E_LAYER_LATLON_GRID);
    EXPECT_EQ(order.GetLayerFromOrder(51), 31);
    EXPECT_EQ(order.GetLayerFromOrder(0), -1);
    EXPECT_EQ(order.GetFirstLayer(), 13);
    EXPECT_EQ(Walk(order).size(), 51u);
    order.AddLayer(E_LAYER_LATLON_GRID);
    EXPECT_EQ(order.GetLayerFromOrder(51), 31) << "the largest position left is 50";
    EXPECT_EQ(order.GetLayerFromOrder(52), -1);
}

TEST(DrawOrder, BehindTheGreatestPositionTheOrderIsNumberedAnew) {
    CZvDispOrder order;
    order.ClearLayerOrderMap();
    order.SetLayerOrder(2147483647, E_LAYER_WELLS);
    order.AddLayer(E_LAYER_CUSTOM);
    EXPECT_EQ(Walk(order), (std::vector<int>{25, 90}));
    EXPECT_EQ(order.GetLayerFromOrder(1), 90);
}

TEST(DrawOrder, AnEmptyOrderAnswersMinusOne) {
    CZvDispOrder order;
    order.ClearLayerOrderMap();
    EXPECT_EQ(order.GetFirstLayer(), -1);
    EXPECT_TRUE(order.IsEndOfList());
    EXPECT_EQ(order.GetNextLayer(), -1);
    order.AddLayer(E_LAYER_WELLS);
    EXPECT_EQ(order.GetLayerFromOrder(0), 25);
}

TEST(DrawOrder, PositionsNeedNotBeDenseAndCopiesStandAlone) {
    CZvDispOrder order;
    order.ClearLayerOrderMap();
    order.SetLayerOrder(10, E_LAYER_WELLS);
    order.SetLayerOrder(-5, E_LAYER_CUSTOM);
    order.SetLayerOrder(10, E_LAYER_LEASES);
    CZvDispOrder copy(order);
    EXPECT_EQ(Walk(copy), (std::vector<int>{90, 13}));
    copy.AddLayer(E_LAYER_WELLS);
    EXPECT_EQ(Walk(order), (std::vector<int>{90, 13}));
    order = copy;
    EXPECT_EQ(Walk(order), (std::vector<int>{90, 13, 25}));
}

TEST(MapScale, PlacesItsWindowAroundTheOrigin) {
    const CZvDispMapScale none;
    EXPECT_EQ(none.GetLowerLeft().GetX(), 0.0);
    EXPECT_EQ(none.GetUpperRight().GetY(), 0.0);
    CZvDispMapScale scale({1000, 2000}, 2.0f, 4.0f, 0.0f);
    EXPECT_EQ(scale.GetUpperRight().GetX(), 31000.0);
    EXPECT_EQ(scale.GetUpperRight().GetY(), 10750.0);
    EXPECT_EQ(scale.GetLowerLeft().GetX(), -19000.0);
    EXPECT_EQ(scale.GetLowerLeft().GetY(), -8000.0);
    scale.SetOrigin({0, 0});
    scale.SetXScale(1.0f);
    EXPECT_EQ(scale.GetLowerLeft().GetX(), -19000.0) << "setters do not move the window";
    scale.SetTheViewPort({1, 2}, {3, 4});
    const CZvDispMapScale copy(scale);
    EXPECT_EQ(copy.GetLowerLeft().GetY(), 2.0);
    EXPECT_EQ(copy.GetUpperRight().GetX(), 3.0);
}

TEST(MapFit, AWideMapIsPaddedAboveAndBelow) {
    CZvDispPoint ll, ur;
    EXPECT_EQ(CZvDispUtil::S_FitMapIntoView({0, 0, 100, 100}, {0, 0}, {100, 50}, ll, ur), 1.0);
    EXPECT_EQ(ll.GetX(), 0.0);
    EXPECT_EQ(ll.GetY(), -25.0);
    EXPECT_EQ(ur.GetX(), 100.0);
    EXPECT_EQ(ur.GetY(), 75.0);
}

TEST(MapFit, ATallMapIsPaddedLeftAndRight) {
    CZvDispPoint ll, ur;
    EXPECT_EQ(CZvDispUtil::S_FitMapIntoView({10, 10, 210, 110}, {0, 0}, {100, 100}, ll, ur), 1.0);
    EXPECT_EQ(ll.GetX(), -50.0);
    EXPECT_EQ(ur.GetX(), 150.0);
    EXPECT_EQ(ur.GetY(), 100.0);
}

TEST(MapFit, EqualShapesLeaveTheCornersAndGiveTheScale) {
    CZvDispPoint ll(7, 7), ur(8, 8);
    EXPECT_EQ(CZvDispUtil::S_FitMapIntoView({0, 0, 50, 25}, {0, 0}, {100, 50}, ll, ur), 2.0);
    EXPECT_EQ(ll.GetX(), 7.0);
    EXPECT_EQ(ur.GetY(), 8.0);
}

TEST(MapFit, TheUpperRightFollowsFromTheScale) {
    CZvDispPoint ur(0, 0, 5, false);
    EXPECT_TRUE(CZvDispUtil::S_FindMapUR({0, 0, 200, 100}, 2.5, {10, 20}, ur));
    EXPECT_EQ(ur.GetX(), 510.0);
    EXPECT_EQ(ur.GetY(), 270.0);
    EXPECT_EQ(ur.GetZ(), 5.0);
    EXPECT_FALSE(ur.GetDown());
}

TEST(MapFit, PixelsCountDownFromTheTopLeft) {
    CZvMapBounds bounds;
    bounds.SetXY(1000, 2000, 3000, 2500);
    const CRect view(10, 20, 110, 70);
    CZvDispPoint point = CZvDispUtil::S_ConvertWindowsPt(view, bounds, {10, 20});
    EXPECT_EQ(point.GetX(), 1000.0);
    EXPECT_EQ(point.GetY(), 2500.0);
    point = CZvDispUtil::S_ConvertWindowsPt(view, bounds, {60, 70});
    EXPECT_EQ(point.GetX(), 2000.0);
    EXPECT_EQ(point.GetY(), 2000.0);
}

} // namespace
