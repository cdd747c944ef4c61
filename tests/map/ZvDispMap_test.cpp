#include "map/ZvDispMap.h"

#include <gtest/gtest.h>

#include "support/LogLines.h"
#include "support/MapHome.h"

namespace {

using zv::test::Cu;
using zv::test::L;
using zv::test::MapHome;
using zv::test::RecordingContext;

TEST(Map, PickIDsStartAt10001AndAgainAfterAClear) {
    MapHome m;
    auto* circle = new CZvDispCircle({0, 0}, 1.0);
    EXPECT_TRUE(m.map.AddItem(circle, L(25), 1, 1, Cu(220), false));
    EXPECT_EQ(circle->GetPickID(), 10001u) << "the object lives until its list frees it";
    m.AddCircle(1, 25, 1, 1, 220);
    EXPECT_TRUE(m.map.Clear(L(25)));
    auto* next = new CZvDispCircle({0, 0}, 1.0);
    m.map.AddItem(next, L(25), 1, 1, Cu(220), false);
    EXPECT_EQ(next->GetPickID(), 10003u) << "a layer's clear leaves the counter";
    EXPECT_TRUE(m.map.Clear());
    auto* again = new CZvDispCircle({0, 0}, 1.0);
    m.map.AddItem(again, L(25), 1, 1, Cu(220), false);
    EXPECT_EQ(again->GetPickID(), 10001u);
}

TEST(Map, AnItemOutsideIsRefusedAndItsPickIDStaysConsumed) {
    MapHome m;
    std::vector<CZvDispPoint> ring{{0, -10}, {0, 10}, {10, 10}, {10, -10}};
    m.map.GetScissors()->SetBoundsPolygon(ring);
    EXPECT_FALSE(m.AddCircle(50, 25, 1, 1, 220, true));
    EXPECT_TRUE(m.AddCircle(5, 25, 1, 1, 220, true));
    EXPECT_TRUE(m.AddCircle(50, 25, 1, 1, 220, false));
    EXPECT_EQ(m.map.GetItem(L(25), 1, 1, Cu(220), 10001), nullptr);
    for (const unsigned id : {10002u, 10003u}) {
        const std::unique_ptr<CZvDisplayItem> item(m.map.GetItem(L(25), 1, 1, Cu(220), id));
        ASSERT_NE(item, nullptr);
        EXPECT_EQ(item->GetPickID(), id);
    }
}

TEST(Map, AFetchedItemKnowsItsPlace) {
    MapHome m;
    m.AddCircle(5, 25, 2, 3, 220);
    const std::unique_ptr<CZvDisplayItem> item(m.map.GetItem(L(25), 2, 3, Cu(220), 10001));
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->GetLayerID(), 25);
    EXPECT_EQ(item->GetPost(), 2);
    EXPECT_EQ(item->GetUSet(), 3);
    EXPECT_EQ(item->GetCultureID(), 220);
    EXPECT_EQ(m.map.GetItem(L(26), 2, 3, Cu(220), 10001), nullptr);
    EXPECT_EQ(m.map.GetItem(L(25), 1, 3, Cu(220), 10001), nullptr);
    EXPECT_EQ(m.map.GetItem(L(25), 2, 1, Cu(220), 10001), nullptr);
    EXPECT_EQ(m.map.GetItem(L(25), 2, 3, Cu(221), 10001), nullptr);
}

TEST(Map, DeletingNeedsAPlaceInTheCallOrInTheItem) {
    MapHome m;
    m.AddCircle(5, 25, 1, 1, 220);
    CZvDispCircle stranger;
    stranger.SetPickID(10001);
    EXPECT_FALSE(m.map.DeleteItem(&stranger, L(25), 1, 1, Cu(-1)));
    EXPECT_EQ(m.map.GetCultureCount(L(25), 1, 1, Cu(220)), 1);
    const std::unique_ptr<CZvDisplayItem> item(m.map.GetItem(L(25), 1, 1, Cu(220), 10001));
    EXPECT_TRUE(m.map.DeleteItem(item.get(), L(-1), -1, -1, Cu(-1)));
    EXPECT_EQ(m.map.GetCultureCount(L(25), 1, 1, Cu(220)), 0);
}

TEST(Map, LooksItemsUpByTheirID) {
    MapHome m;
    for (const char* id : {"608174000100", "608174000200", "608174000100"}) {
        auto* circle = new CZvDispCircle;
        circle->SetID(id);
        m.map.AddItem(circle, L(25), 1, 1, Cu(220), false);
    }
    std::vector<unsigned>* ids = nullptr;
    ASSERT_TRUE(m.map.LookUpItem(L(25), 1, 1, Cu(220), "608174000100", ids));
    EXPECT_EQ(*ids, (std::vector<unsigned>{10001, 10003}));
    EXPECT_FALSE(m.map.LookUpItem(L(25), 1, 1, Cu(220), "nobody", ids));
    EXPECT_FALSE(m.map.LookUpItem(L(25), 1, 2, Cu(220), "608174000100", ids));
    EXPECT_EQ(m.map.GetApiSndIdxVec(L(25), 1, 1, Cu(220)).size(), 2u);
    EXPECT_TRUE(m.map.GetApiSndIdxVec(L(26), 1, 1, Cu(220)).empty());
}

TEST(Map, MissingStepsAndMissingScissorsDoNoHarm) {
    MapHome m;
    CZvDispCircle stranger;
    EXPECT_FALSE(m.map.DeleteItem(&stranger, L(25), 1, 1, Cu(220)));
    EXPECT_TRUE(m.map.GetUSetList(L(25), 1).empty());
    EXPECT_TRUE(m.map.GetCultureList(L(25), 1, 1).empty());
    for (int missing = 0; missing < 4; ++missing)
        EXPECT_FALSE(m.map.DeleteItem(&stranger, L(missing == 0 ? -1 : 25), missing == 1 ? -1 : 1,
                                      missing == 2 ? -1 : 1, Cu(missing == 3 ? -1 : 220)));
    const std::unique_ptr<CZvDispMapClipper> before(m.map.GetScissors());
    m.map.SetScissors(nullptr);
    EXPECT_TRUE(m.AddCircle(1, 25, 1, 1, 220, true));
}

TEST(Map, DoesNotTouchItsContextWhenItGoes) {
    auto m = std::make_unique<MapHome>();
    {
        RecordingContext context;
        m->map.SetContext(&context);
        m->AddCircle(1, 25, 1, 1, 220);
    }
    m.reset(); // the context is gone already
    EXPECT_EQ(m, nullptr) << "under the address sanitizer a touch of the context ends the test";
}

TEST(Map, EveryNodeHasTheContextAlsoTheNewest) {
    MapHome m;
    RecordingContext first, second;
    m.map.SetContext(&first);
    m.AddCircle(1, 25, 1, 1, 220);
    m.map.SetContext(&second);
    m.AddCircle(2, 26, 1, 1, 658);
    EXPECT_EQ(m.map.GetDispLayer(L(25))->GetPara(), &second);
    EXPECT_EQ(m.map.GetDispLayer(L(26))->GetPara(), &second);
    EXPECT_EQ(m.map.GetContext(), &second);
}

TEST(Map, ListsItsTree) {
    MapHome m;
    m.AddCircle(1, 26, 5, 1, 658);
    m.AddCircle(1, 25, 2, 4, 221);
    m.AddCircle(1, 25, 2, 3, 220);
    m.AddCircle(1, 25, 1, 3, 220);
    EXPECT_EQ(m.map.GetLayerList(), (std::vector<int>{25, 26}));
    std::vector<int> posts;
    EXPECT_TRUE(m.map.GetPostList(L(25), posts));
    EXPECT_EQ(posts, (std::vector<int>{1, 2}));
    EXPECT_FALSE(m.map.GetPostList(L(99), posts));
    EXPECT_EQ(m.map.GetUSetList(L(25), 2), (std::vector<int>{3, 4}));
    EXPECT_EQ(m.map.GetCultureList(L(25), 2, 4), std::vector<int>{221});
    EXPECT_EQ(m.map.GetDispLayer(L(99)), nullptr);
    EXPECT_EQ(m.map.GetFirstLayer()->GetLayerName(), 25);
    EXPECT_EQ(m.map.GetNextLayer()->GetLayerName(), 26);
    EXPECT_EQ(m.map.GetNextLayer(), nullptr);
    EXPECT_TRUE(m.map.IsLastLayer());
    EXPECT_EQ(m.map.GetCultureAsText(Cu(12)), "e12");
    EXPECT_EQ(m.map.GetLayerAsText(L(25)), "L25");
}

TEST(Map, ClearsPieceByPiece) {
    MapHome m;
    m.AddCircle(1, 25, 1, 1, 220);
    m.AddCircle(2, 25, 1, 2, 220);
    m.AddCircle(3, 26, 1, 1, 658);
    EXPECT_FALSE(m.map.Clear(L(77)));
    EXPECT_FALSE(m.map.Clear(L(77), 1, 1));
    EXPECT_TRUE(m.map.Clear(L(25), 1, 2));
    EXPECT_EQ(m.map.GetUSetList(L(25), 1), std::vector<int>{1});
    EXPECT_TRUE(m.map.Clear(L(25)));
    EXPECT_EQ(m.map.GetLayerList(), std::vector<int>{26});
    EXPECT_TRUE(m.map.Clear());
    EXPECT_TRUE(m.map.GetLayerList().empty());
}

TEST(Map, FreesAndClosesAUserSet) {
    MapHome m;
    m.AddCircle(1, 25, 1, 1, 220);
    zv::test::LogLines log;
    EXPECT_TRUE(m.map.FreeItems(L(25), 1, 1));
    EXPECT_TRUE(log.Holds("1 display items has been deleted."));
    EXPECT_FALSE(m.map.FreeItems(L(25), 1, 2));
    EXPECT_TRUE(m.map.CloseFiles(L(25), 1, 1));
    EXPECT_FALSE(m.map.CloseFiles(L(26), 1, 1));
}

TEST(Map, ConvertsWindowPixels) {
    MapHome m;
    m.map.SetViewPort(1000, 2000, 3000, 2500, 7);
    double x = 0, y = 0;
    const RECT window{10, 10, 210, 60};
    m.map.ConvertXY(window, 0, 0, x, y, 0);
    EXPECT_EQ(x, 1000.0);
    EXPECT_EQ(y, 2500.0);
    m.map.ConvertXY(window, 50, 25, x, y, 1);
    EXPECT_EQ(x, 1500.0);
    EXPECT_EQ(y, 2250.0);
    m.map.ConvertXY({5, 5, 5, 5}, 3, 3, x, y, 0);
    EXPECT_EQ(x, 1000.0);
    EXPECT_EQ(y, 2000.0);
}

TEST(Map, BoundsComeInTwoPairs) {
    MapHome m;
    CZvDispPoint ll, ur;
    m.map.SetMapBound({1, 2}, {3, 4});
    m.map.GetMapBoundTemp(ll, ur);
    EXPECT_EQ(ur.GetY(), 4.0) << "both pairs are set at once";
    m.map.SetMapBoundTemp({5, 6}, {7, 8});
    m.map.GetMapBound(ll, ur);
    EXPECT_EQ(ll.GetX(), 1.0);
    m.map.SetFinalBorderOn(true);
    EXPECT_TRUE(m.map.FinalBorderIsOn());
    m.map.GetMapBound(ll, ur);
    EXPECT_EQ(ll.GetX(), 5.0);
}

TEST(Map, LoadAndSaveTouchNothing) {
    MapHome m;
    EXPECT_TRUE(m.map.LoadMap("nowhere"));
    EXPECT_TRUE(m.map.SaveMap(m.home.TempFile("saved")));
    EXPECT_FALSE(std::filesystem::exists(m.home.TempFile("saved")));
}

} // namespace
