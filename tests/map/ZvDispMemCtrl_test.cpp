#include "map/ZvDispMemCtrl.h"

#include <gtest/gtest.h>

#include "support/LogLines.h"
#include "support/MapHome.h"

namespace {

using zv::test::L;
using zv::test::LogLines;
using zv::test::MapHome;

using Zones = std::vector<int>;

/// A control of a layer on a map with bounds.
template<class Control = CZvDispMemCtrl>
struct OnMap {
    OnMap(int layer, double width, double height) {
        bounds.SetXY(1000, 2000, 1000 + width, 2000 + height);
        m.map.SetMapBoundPtr(&bounds);
        control.SetLayer(L(layer));
        control.SetMapPtr(&m.map);
        control.SetThreshold(10);
    }
    explicit OnMap(int layer, double side) : OnMap(layer, side, side) {}

    bool Active() {
        control.CheckActive();
        return control.IsActive();
    }
    void View(double x1, double y1, double x2, double y2) { m.map.SetViewPort(x1, y1, x2, y2, 0); }
    Zones ZonesOf(double x1, double y1, double x2, double y2) {
        View(x1, y1, x2, y2);
        control.ComputeZones();
        return control.GetZones();
    }

    MapHome m;
    CZvMapBounds bounds;
    Control control;
};

TEST(MemCtrl, AMapOf576000FeetIsSmallAndOneOf576001IsNot) {
    EXPECT_FALSE(OnMap<>(13, 576000).Active());
    EXPECT_TRUE(OnMap<>(13, 576001).Active());
    EXPECT_FALSE(OnMap<>(13, 9e9, 576000.9).Active()) << "the smaller side, as an integer";
    EXPECT_FALSE(OnMap<>(13, 576000, 9e9).Active());
}

TEST(MemCtrl, AMetreMapIsMeasuredInFeet) {
    OnMap<> small(13, 175565), large(13, 175566); // 575999.5 and 576002.8 feet
    small.bounds.SetFeet(false);
    large.bounds.SetFeet(false);
    EXPECT_FALSE(small.Active());
    EXPECT_TRUE(large.Active());
}

TEST(MemCtrl, IsInactiveWithoutMapBoundsOrManagement) {
    OnMap<> t(13, 1e6);
    EXPECT_TRUE(t.Active());
    t.m.map.SetMemManage(false);
    EXPECT_FALSE(t.Active());
    t.m.map.SetMemManage(true);
    t.m.map.SetMapBoundPtr(nullptr);
    EXPECT_FALSE(t.Active());
    t.control.SetMapPtr(nullptr);
    EXPECT_FALSE(t.Active());
}

TEST(MemCtrl, WellsAndPermitsNeedABigListOfCulture0) {
    for (const int layer : {25, 67}) {
        OnMap<> t(layer, 1e6);
        EXPECT_FALSE(t.Active());
        for (int i = 0; i < 999; ++i)
            t.m.AddCircle(i, layer, 4, 7, 0);
        for (int i = 0; i < 2000; ++i)
            t.m.AddCircle(i, layer, 4, 7, 231);
        EXPECT_FALSE(t.Active()) << "another culture does not count";
        t.m.AddCircle(0, layer, 4, 7, 0);
        EXPECT_TRUE(t.Active());
    }
}

TEST(MemCtrl, TheZoneDimensionFollowsTheSmallerSide) {
    const auto dimension = [](int layer, double side) {
        OnMap<> t(layer, side, 9e9);
        return t.control.ComputeZoneDim();
    };
    EXPECT_EQ(dimension(25, 95040), 2); // q = 1
    EXPECT_EQ(dimension(25, 95040 * 2), 2);
    EXPECT_EQ(dimension(25, 95040 * 3), 4);
    EXPECT_EQ(dimension(25, 95040 * 4), 4);
    EXPECT_EQ(dimension(25, 95040 * 5), 6);
    EXPECT_EQ(dimension(25, 95040 * 6), 6);
    EXPECT_EQ(dimension(25, 95040 * 7), 10);
    EXPECT_EQ(dimension(25, 95040 * 10), 10);
    EXPECT_EQ(dimension(25, 95040 * 11), 15);
    EXPECT_EQ(dimension(25, 95040 * 15), 15);
    EXPECT_EQ(dimension(25, 95040 * 16), 20);
    for (const int layer : {13, 15, 3, 66, 67}) {
        EXPECT_EQ(dimension(layer, 190080 * 3), 4) << layer;
        EXPECT_EQ(dimension(layer, 190080 * 16), 20) << layer;
    }
    EXPECT_EQ(dimension(14, 190080 * 16), 2) << "a layer without control";
}

TEST(MemCtrl, AMapSmallerThanOneZoneKeepsTheDimension) {
    OnMap<> t(25, 95040 * 5);
    EXPECT_EQ(t.control.ComputeZoneDim(), 6);
    t.bounds.SetXY(0, 0, 95039, 95039);
    EXPECT_EQ(t.control.ComputeZoneDim(), 6);
    t.bounds.SetXY(0, 0, 95040, 95040);
    EXPECT_EQ(t.control.ComputeZoneDim(), 2);
    t.bounds.SetFeet(false);
    EXPECT_EQ(t.control.ComputeZoneDim(), 2) << "no conversion of units here";
}

TEST(MemCtrl, WithoutBoundsTheDimensionIsLeftAnd2IsGiven) {
    OnMap<> t(25, 95040 * 5);
    t.control.ComputeZoneDim();
    t.m.map.SetMapBoundPtr(nullptr);
    EXPECT_EQ(t.control.ComputeZoneDim(), 2);
    EXPECT_EQ(t.control.GetZoneDim(), 6);
}

TEST(MemCtrl, TellsItsDimensionInTheLog) {
    OnMap<> t(25, 95040 * 5);
    LogLines log;
    t.control.ComputeZoneDim();
    const LogLines::Line line{"Zone dimension of Wells layer is 6x6.\n", 103, true};
    EXPECT_EQ(log.Get(), std::vector{line});
}

TEST(MemCtrl, TheGridIsTheMapGrownByATenth) {
    OnMap<> t(13, 1000, 2000);
    CZvDispPoint ll, ur;
    t.control.GetGridRect(ll, ur);
    EXPECT_EQ(ll.GetX(), 950.0);
    EXPECT_EQ(ll.GetY(), 1900.0);
    EXPECT_EQ(ur.GetX(), 2050.0);
    EXPECT_EQ(ur.GetY(), 4100.0);
}

TEST(MemCtrl, AViewAsWideAsTheThresholdIsInRangeAndOneBlockMoreIsNot) {
    OnMap<> t(13, 1e6);
    t.View(0, 0, 15840 * 11 - 1, 9e9);
    EXPECT_TRUE(t.control.IsViewInRange()) << "ten blocks and a rest";
    t.View(0, 0, 9e9, -15840 * 11);
    EXPECT_FALSE(t.control.IsViewInRange());
    t.m.map.SetMapBoundPtr(nullptr);
    EXPECT_TRUE(t.control.IsViewInRange());
}

// Bounds 1000 to 2000 in X and Y; the grid 950 to 2050; two zones a side, parted at 1500.

TEST(MemCtrl, FindsTheZoneOfAPointAndTheLowerOneOnABorder) {
    OnMap<> t(13, 1000);
    t.bounds.SetXY(1000, 1000, 2000, 2000);
    int column = 9, row = 9;
    t.control.FindZoneIndex({1499, 1501}, column, row);
    EXPECT_EQ(column, 0);
    EXPECT_EQ(row, 1);
    t.control.FindZoneIndex({1500, 2050}, column, row);
    EXPECT_EQ(column, 0);
    EXPECT_EQ(row, 1);
    t.control.FindZoneIndex({949, 950}, column, row);
    EXPECT_EQ(column, -1);
    EXPECT_EQ(row, 0);
    Zones zones{5};
    t.control.FindPointZone({1499, 1501}, zones);
    EXPECT_EQ(zones, Zones{2});
    t.control.FindPointZone({949, 950}, zones);
    EXPECT_TRUE(zones.empty());
    t.m.map.SetMapBoundPtr(nullptr);
    t.control.FindZoneIndex({1499, 1501}, column, row);
    EXPECT_EQ(column, -1);
    EXPECT_EQ(row, -1);
}

TEST(MemCtrl, ComputesTheZonesOfTheViewColumnByColumn) {
    OnMap<> t(13, 1000);
    t.bounds.SetXY(1000, 1000, 2000, 2000);
    EXPECT_EQ(t.ZonesOf(1100, 1100, 1200, 1200), Zones{0});
    EXPECT_EQ(t.ZonesOf(1100, 1600, 1900, 1700), (Zones{2, 3}));
    EXPECT_EQ(t.ZonesOf(1100, 1100, 1900, 1900), (Zones{0, 2, 1, 3}));
    EXPECT_EQ(t.ZonesOf(0, 0, 9000, 9000), (Zones{0, 2, 1, 3})) << "the whole map";
    EXPECT_EQ(t.ZonesOf(0, 0, 1200, 1200), Zones{0}) << "the missing low indexes are 0";
    EXPECT_EQ(t.ZonesOf(1600, 1600, 9000, 9000), Zones{3});
    EXPECT_EQ(t.ZonesOf(0, 1600, 9000, 1700), (Zones{2, 3})) << "a stripe across the map";
}

TEST(MemCtrl, AViewBesideTheMapHasNoZones) {
    OnMap<> t(13, 1000);
    t.bounds.SetXY(1000, 1000, 2000, 2000);
    EXPECT_EQ(t.ZonesOf(0, 1100, 900, 1200), Zones{}) << "left";
    EXPECT_EQ(t.ZonesOf(2100, 1100, 3000, 1200), Zones{}) << "right";
    EXPECT_EQ(t.ZonesOf(1100, 0, 1200, 900), Zones{}) << "below";
    EXPECT_EQ(t.ZonesOf(1100, 2100, 1200, 3000), Zones{}) << "above";
    t.m.map.SetMapBoundPtr(nullptr);
    EXPECT_EQ(t.ZonesOf(1100, 1100, 1200, 1200), Zones{}) << "no bounds";
}

/// An active control of 2 by 2 zones: bounds from 0 to 10 million, zones parted at 5 million, views
/// up to ten blocks of 15840.
template<class Control>
struct Active : OnMap<Control> {
    Active() : OnMap<Control>(13, 1e7) {
        this->bounds.SetXY(0, 0, 1e7, 1e7);
        this->control.CheckActive();
    }
    void Update(double x, double y, double size = 1000) {
        this->View(x, y, x + size, y + size);
        this->control.V_Update();
    }
};

TEST(MemCtrl, AnUpdateErasesWhatLeftAndAddsWhatEntered) {
    Active<CZvDispMemCtrl> t;
    t.Update(1e6, 1e6);
    EXPECT_EQ(t.control.GetAddZones(), Zones{0});
    EXPECT_EQ(t.control.GetEraseZones(), Zones{});
    t.Update(1e6, 1e6);
    EXPECT_EQ(t.control.GetAddZones(), Zones{}) << "unchanged";
    t.Update(4999500, 1e6);
    EXPECT_EQ(t.control.GetAddZones(), Zones{1});
    EXPECT_EQ(t.control.GetEraseZones(), Zones{});
    EXPECT_EQ(t.control.GetZones(), (Zones{0, 1}));
    t.Update(6e6, 6e6);
    EXPECT_EQ(t.control.GetAddZones(), Zones{3});
    EXPECT_EQ(t.control.GetEraseZones(), (Zones{0, 1}));
}

TEST(MemCtrl, AViewOneBlockTooWideErasesAllZonesAtOnce) {
    Active<CZvDispMemCtrl> t;
    t.Update(4999500, 1e6, 15840 * 10);
    EXPECT_EQ(t.control.GetAddZones(), (Zones{0, 1}));
    t.Update(4999500, 1e6, 15840 * 11);
    EXPECT_EQ(t.control.GetEraseZones(), (Zones{0, 1}));
    EXPECT_EQ(t.control.GetAddZones(), Zones{});
    EXPECT_EQ(t.control.GetZones(), Zones{});
    t.Update(4999500, 1e6, 15840 * 11);
    EXPECT_EQ(t.control.GetEraseZones(), Zones{}) << "once";
    t.Update(4999500, 1e6);
    EXPECT_EQ(t.control.GetAddZones(), (Zones{0, 1})) << "close enough again";
}

TEST(MemCtrl, AnInactiveControlChangesNoZone) {
    Active<CZvDispMemCtrl> t;
    t.Update(1e6, 1e6);
    t.m.map.SetMemManage(false);
    t.control.CheckActive();
    t.Update(6e6, 6e6);
    EXPECT_EQ(t.control.GetAddZones(), Zones{});
    EXPECT_EQ(t.control.GetEraseZones(), Zones{});
    EXPECT_EQ(t.control.GetZones(), Zones{0});
}

TEST(MemCtrlExt, BeginsWithAllZonesAndTakesAwayWhatIsOutOfView) {
    Active<CZvDispMemCtrlExt> t;
    t.control.ShowAllZones();
    t.Update(1e6, 1e6);
    EXPECT_EQ(t.control.GetEraseZones(), (Zones{1, 2, 3}));
    EXPECT_EQ(t.control.GetAddZones(), Zones{});
    t.Update(1e6, 1e6, 15840 * 50);
    EXPECT_EQ(t.control.GetEraseZones(), Zones{}) << "no view is too wide";
    t.Update(0, 0, 1e7);
    EXPECT_EQ(t.control.GetAddZones(), (Zones{2, 1, 3}));
}

TEST(MemCtrl, TellsItsClass) {
    CZvDispMemCtrl plain;
    CZvDispMemCtrlExt extended;
    EXPECT_EQ(plain.V_GetClassName(), "CZvDispMemCtrl");
    EXPECT_EQ(extended.V_GetClassName(), "CZvDispMemCtrlExt");
}

TEST(MemCtrl, APostsMostProminentCultureIsExempt) {
    OnMap<> t(13, 1e7);
    t.control.SetCultures({145, 141, 142, 143});
    t.m.AddCircle(0, 13, 1, 1, 999); // no managed culture: on to the next user set
    t.m.AddCircle(0, 13, 1, 2, 142);
    t.m.AddCircle(0, 13, 1, 2, 143);
    t.m.AddCircle(0, 13, 1, 3, 145);
    t.m.AddCircle(0, 13, 2, 1, 141);
    t.m.AddCircle(0, 13, 2, 1, 145);
    t.control.SetPostCultures(1);
    EXPECT_FALSE(t.control.IsCulture(142));
    EXPECT_TRUE(t.control.IsCulture(143));
    EXPECT_TRUE(t.control.IsCulture(145));
    t.control.SetPostCultures(2);
    EXPECT_FALSE(t.control.IsCulture(145)) << "145 comes before the others";
    EXPECT_TRUE(t.control.IsCulture(141));
    EXPECT_TRUE(t.control.IsCulture(142)) << "back from the post before";
    t.control.SetPostCultures(3);
    EXPECT_TRUE(t.control.IsCulture(145));
    EXPECT_FALSE(t.control.IsCulture(999));
}

} // namespace
