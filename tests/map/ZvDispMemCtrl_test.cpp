#include "map/ZvDispMemCtrl.h"

#include <gtest/gtest.h>

#include "context/GlTestSurface.h"
#include "items/ZvDispGroup.h"
#include "items/ZvDispText.h"
#include "map/GridIndex.h"
#include "support/LogLines.h"
#include "support/MapHome.h"
#include "support/RecordingGL.h"

namespace {

using zv::test::LogLines;
using zv::test::MapHome;
using zv::test::RecordingGL;

using Zones = std::vector<int>;

E_Layer L(int number) {
    return static_cast<E_Layer>(number);
}

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

TEST(GridIndex, HoldsPointsBoxesAndNothingElse) {
    const CZvDispPoint ll{0, 0}, ur{60, 60};
    zv::GridIndex grid;
    CZvDispText text;
    text.SetPickID(1);
    text.SetPoint({2.5, 1.5});
    CZvDispPolyLine line({{0.5, 0.5}, {1.5, 1.5}});
    line.SetPickID(2);
    CZvDispCircle circle({59.5, 0}, 1);
    circle.SetPickID(3);
    CZvDispGroup group;
    EXPECT_TRUE(grid.Insert(text, ll, ur));
    EXPECT_TRUE(grid.Insert(line, ll, ur));
    EXPECT_TRUE(grid.Insert(circle, ll, ur));
    EXPECT_TRUE(grid.Insert(group, ll, ur));
    using Cell = std::vector<unsigned>;
    EXPECT_EQ(*grid.Cell(62), Cell{1});
    for (const int cell : {0, 1, 60, 61})
        EXPECT_EQ(*grid.Cell(cell), Cell{2}) << cell;
    EXPECT_EQ(*grid.Cell(59), Cell{3});
    EXPECT_EQ(grid.Cell(2), nullptr);
}

TEST(GridIndex, ABorderBelongsToTheLowerCellAndTheUpperEdgeToTheLast) {
    const CZvDispPoint ll{0.1, -0.7}, ur{0.9, 7.3};
    int column, row;
    LogLines log;
    EXPECT_TRUE(zv::GridIndex::FindGridIndex(ur, ll, ur, column, row));
    EXPECT_EQ(column, 59);
    EXPECT_EQ(row, 59);
    EXPECT_TRUE(zv::GridIndex::FindGridIndex(ll, ll, ur, column, row));
    EXPECT_EQ(column, 0);
    EXPECT_EQ(row, 0);
    EXPECT_TRUE(zv::GridIndex::FindGridIndex({2, 3}, {0, 0}, {60, 60}, column, row));
    EXPECT_EQ(column, 1);
    EXPECT_EQ(row, 2);
    EXPECT_TRUE(log.Get().empty());
}

TEST(GridIndex, APointBeyondTheEdgeIsLogged) {
    LogLines log;
    int column, row;
    EXPECT_FALSE(zv::GridIndex::FindGridIndex({60.001, 5.5}, {0, 0}, {60, 60}, column, row));
    EXPECT_EQ(column, -1);
    EXPECT_EQ(row, 5);
    const LogLines::Line line{"Display item out of map boundry in Memory Control.", 101, true};
    EXPECT_EQ(log.Get(), std::vector{line});
}

TEST(GridIndex, ABoxFitsWhenItsUpperRightCornerDoes) {
    const CZvDispPoint ll{0, 0}, ur{60, 60};
    zv::GridIndex grid;
    CZvDispPolyLine lowOutside({{-1, 5}, {5, 6}}), highOutside({{55, 5}, {61, 6}});
    EXPECT_TRUE(grid.Insert(lowOutside, ll, ur)) << "it stands in no cell";
    EXPECT_FALSE(grid.Insert(highOutside, ll, ur));
    for (int cell = 0; cell < 3600; ++cell)
        ASSERT_EQ(grid.Cell(cell), nullptr);
}

/// Pipelines (layer 15, culture 52) on a map from 0 to 1,000,000 feet: 6 by 6 zones, 183,333 feet
/// each, over -50,000 to 1,050,000. Views up to ten blocks of 15,840 feet show zones.
struct Pipelines {
    Pipelines() {
        bounds.SetXY(0, 0, 1e6, 1e6);
        m.map.SetMapBoundPtr(&bounds);
        m.map.SetUseWaitCursor(false);
        m.map.SetContext(&gl);
        gl.Create(surface.Dc());
        gl.Resize(0, 0, 64, 64);
    }
    ~Pipelines() {
        m.map.Clear();
        m.map.SetContext(nullptr);
        gl.Destroy();
    }
    void AddLine(double x1, double y1, double x2, double y2) {
        m.map.AddItem(new CZvDispPolyLine({{x1, y1}, {x2, y2}}), L(15), 1, 1,
                      static_cast<ZVCulture>(52), false);
    }
    std::string Draw(double x, double y, double size, bool redraw) {
        m.map.SetViewPort(x, y, x + size, y + size, 0);
        m.map.Draw(L(15), 99, 99, ZV_CULTURE_ALL, redraw);
        return gl.Take();
    }

    zv::testing::TestSurface surface;
    MapHome m;
    CZvMapBounds bounds;
    RecordingGL gl;
};

TEST(MemoryControl, AFullDrawCompilesTheZonesInViewOnly) {
    Pipelines t;
    t.AddLine(10000, 10000, 20000, 20000);     // zone 0
    t.AddLine(600000, 600000, 610000, 610000); // zone 21
    EXPECT_EQ(t.Draw(0, 0, 1000, false), "line 10001 c8\n");
    EXPECT_TRUE(t.gl.IsItemList(10001));
    EXPECT_FALSE(t.gl.IsItemList(10002));
    EXPECT_EQ(t.Draw(0, 0, 500000, false), "") << "too wide for any zone";
    EXPECT_FALSE(t.gl.IsItemList(10001));
}

TEST(MemoryControl, WithoutManagementEveryItemIsCompiled) {
    Pipelines t;
    t.m.map.SetMemManage(false);
    t.AddLine(10000, 10000, 20000, 20000);
    t.AddLine(600000, 600000, 610000, 610000);
    EXPECT_EQ(t.Draw(0, 0, 1000, false), "line 10002 c8\nline 10001 c8\n");
}

TEST(MemoryControl, ARedrawErasesZonesThatLeftAndCompilesThoseThatEntered) {
    Pipelines t;
    t.AddLine(10000, 10000, 20000, 20000);
    t.AddLine(600000, 600000, 610000, 610000);
    t.Draw(0, 0, 1000, false);
    EXPECT_EQ(t.Draw(0, 0, 1000, true), "line 10001 c8\nreplay 10002\nreplay 10001\n")
        << "the first update names the zones that the draw compiled";
    LogLines log;
    EXPECT_EQ(t.Draw(600000, 600000, 1000, true), "line 10002 c8\nreplay 10002\nreplay 10001\n");
    EXPECT_FALSE(t.gl.IsItemList(10001));
    EXPECT_TRUE(t.gl.IsItemList(10002));
    EXPECT_TRUE(log.Holds(" of Zone 0 is erased from map.\n"));
    EXPECT_TRUE(log.Holds(" of Zone 21 is added to map.\n"));
    EXPECT_EQ(t.Draw(600000, 600000, 1000, true), "replay 10002\nreplay 10001\n");
    t.Draw(0, 0, 500000, true);
    EXPECT_FALSE(t.gl.IsItemList(10002)) << "the view is too wide";
}

TEST(MemoryControl, NothingInViewVanishesWhenAFullDrawComesBetweenRedraws) {
    Pipelines t;
    t.AddLine(10000, 10000, 20000, 20000);     // zone 0
    t.AddLine(600000, 600000, 610000, 610000); // zone 21
    t.Draw(0, 0, 1000, true);
    t.Draw(0, 0, 500000, false); // too wide for any zone: every list is gone
    EXPECT_EQ(t.Draw(0, 0, 1000, true), "line 10001 c8\nreplay 10002\nreplay 10001\n");
    EXPECT_TRUE(t.gl.IsItemList(10001));
    t.Draw(600000, 600000, 1000, false);
    EXPECT_EQ(t.Draw(0, 0, 1000, true), "line 10001 c8\nreplay 10002\nreplay 10001\n");
    EXPECT_TRUE(t.gl.IsItemList(10001));
}

TEST(MemoryControl, ZonesAreTheScreensAlone) {
    Pipelines t;
    t.AddLine(10000, 10000, 20000, 20000);
    t.Draw(0, 0, 1000, false);
    t.Draw(600000, 600000, 1000, true);
    zv::test::RecordingContext paper(CTX_OTHER);
    paper.traceTags = false;
    t.m.map.SetContext(&paper);
    t.m.map.Draw(L(15), 99, 99, ZV_CULTURE_ALL, true);
    EXPECT_EQ(paper.Take(), "open\nclose\n");
    t.m.map.Draw(L(15), 99, 99, ZV_CULTURE_ALL, false);
    EXPECT_EQ(paper.Take(), "open\nline 10000,10000 20000,20000 c8\nclose\n");
    t.m.map.SetContext(&t.gl);
}

TEST(MemoryControl, AnItemInTwoZonesSurvivesTheErasureOfOne) {
    Pipelines t;
    t.AddLine(100000, 10000, 200000, 10000); // zones 0 and 1, parted at 133,333
    t.Draw(130000, 0, 10000, false);
    EXPECT_EQ(t.Draw(130000, 0, 10000, true), "line 10001 c8\nreplay 10001\n")
        << "once for both zones";
    EXPECT_EQ(t.Draw(150000, 0, 10000, true), "line 10001 c8\nreplay 10001\n")
        << "zone 0 left and took the list with it";
    EXPECT_TRUE(t.gl.IsItemList(10001));
}

TEST(MemoryControl, APanReadsOnlyTheZonesThatEnter) {
    Pipelines t;
    for (int i = 0; i < 1000; ++i)
        t.AddLine(i * 1000, 10000, i * 1000 + 500, 10000);
    t.Draw(0, 0, 1000, false);
    t.Draw(0, 0, 1000, true);
    const std::string pan = t.Draw(133000, 0, 1000, true); // zone 1 enters, zone 0 stays
    const auto compiled = std::count(pan.begin(), pan.end(), 'l') - 1000; // "replay" has an l too
    EXPECT_GE(compiled, 183);
    EXPECT_LE(compiled, 185 + 18) << "with the shared cells, at most";
}

TEST(MemoryControl, AnItemOutsideTheGridIsLoggedAndDrawn) {
    Pipelines t;
    t.AddLine(2e6, 2e6, 3e6, 3e6);
    LogLines log;
    EXPECT_EQ(t.Draw(0, 0, 1000, false), "line 10001 c8\n");
    EXPECT_TRUE(log.Holds("Display item out of map boundry in Memory Control."));
}

TEST(MemoryControl, RemoveAllKeepsTheGridUntilTheNextFullDraw) {
    Pipelines t;
    t.AddLine(10000, 10000, 20000, 20000);
    t.Draw(0, 0, 1000, false);
    CZvDispMemCtrlExt control;
    control.SetMapPtr(&t.m.map);
    CZvDispCult& list =
        *t.m.map.GetDispLayer(L(15))->GetPost(1)->GetUSet(1)->GetCult(static_cast<ZVCulture>(52));
    const auto ids = [&] {
        std::vector<unsigned> found;
        list.GetVecZonePickIDs({0}, found, &control);
        return found;
    };
    EXPECT_EQ(ids(), std::vector<unsigned>{10001});
    list.RemoveAll();
    EXPECT_EQ(ids(), std::vector<unsigned>{10001});
    t.Draw(0, 0, 1000, false);
    EXPECT_TRUE(ids().empty());
}

TEST(MemoryControl, GivesThePickIDsOfZonesWithTheirDoubles) {
    Pipelines t;
    t.AddLine(10000, 10000, 30000, 10000); // cells of 18,333: two
    t.Draw(0, 0, 1000, false);
    CZvDispMemCtrlExt control;
    CZvDispCult& list =
        *t.m.map.GetDispLayer(L(15))->GetPost(1)->GetUSet(1)->GetCult(static_cast<ZVCulture>(52));
    std::vector<unsigned> found;
    list.GetVecZonePickIDs({0}, found, &control);
    EXPECT_EQ(found, (std::vector<unsigned>{10001, 10001}));
    found.clear();
    list.GetVecZonePickIDs({0}, found, nullptr);
    EXPECT_TRUE(found.empty());
}

TEST(MemoryControl, TheExtendedControlDrawsAllAndTakesAwayWhatIsOutOfView) {
    Pipelines t;
    const auto add = [&](double x) {
        t.m.map.AddItem(new CZvDispPolyLine({{x, x}, {x + 1, x + 1}}), L(3), 1, 1,
                        static_cast<ZVCulture>(11), false);
    };
    add(10000);
    add(600000);
    const auto draw = [&](double x, bool redraw) {
        t.m.map.SetViewPort(x, x, x + 1000, x + 1000, 0);
        t.m.map.Draw(L(3), 99, 99, ZV_CULTURE_ALL, redraw);
        return t.gl.Take();
    };
    EXPECT_EQ(draw(0, false), "line 10002 c8\nline 10001 c8\n");
    EXPECT_EQ(draw(0, true), "replay 10002\nreplay 10001\n");
    EXPECT_TRUE(t.gl.IsItemList(10001));
    EXPECT_FALSE(t.gl.IsItemList(10002));
    EXPECT_EQ(draw(600000, true), "line 10002 c8\nreplay 10002\nreplay 10001\n");
    EXPECT_FALSE(t.gl.IsItemList(10001));
}

/// The cultures from 0 to 999 that a layer's control manages.
std::vector<int> Managed(const CZvDispMemCtrl& control) {
    std::vector<int> cultures;
    for (int culture = 0; culture < 1000; ++culture)
        if (control.IsCulture(culture)) cultures.push_back(culture);
    return cultures;
}

std::vector<int> Numbers(std::initializer_list<std::pair<int, int>> ranges) {
    std::vector<int> numbers;
    for (const auto& [first, last] : ranges)
        for (int number = first; number <= last; ++number)
            numbers.push_back(number);
    return numbers;
}

TEST(MemoryControl, TheTableOfLayersThresholdsAndCultures) {
    const struct {
        int layer, threshold;
        std::vector<int> cultures;
    } table[] = {
        {3, 20, Numbers({{12, 12}})},
        {13, 20, Numbers({{141, 152}, {154, 164}})},
        {15, 10, Numbers({{51, 58}})},
        {25, 10, Numbers({{222, 222}, {231, 231}, {233, 235}, {240, 241}, {250, 259}})},
        {66, 10, Numbers({{401, 409}})},
        {67, 10, Numbers({{600, 604}})},
    };
    for (const auto& row : table) {
        MapHome m;
        zv::test::RecordingContext context;
        CZvMapBounds bounds;
        bounds.SetXY(0, 0, 1e6, 1e6);
        m.map.SetMapBoundPtr(&bounds);
        m.map.SetContext(&context);
        m.AddCircle(1, row.layer, 1, 1, 9999);
        m.map.Draw(L(row.layer), 99, 99, ZV_CULTURE_ALL, false);
        CZvDispMemCtrl* control = context.GetMemCtrl();
        ASSERT_NE(control, nullptr) << row.layer;
        std::vector<int> expected = row.cultures;
        if (row.layer == 13) std::erase(expected, 153);
        EXPECT_EQ(Managed(*control), expected) << row.layer;
        control->SetMapPtr(&m.map);
        m.map.SetViewPort(0, 0, row.threshold * 15840.0 + 15839, 1e9, 0);
        EXPECT_TRUE(control->IsViewInRange()) << row.layer;
        m.map.SetViewPort(0, 0, row.threshold * 15840.0 + 15840, 1e9, 0);
        EXPECT_FALSE(control->IsViewInRange()) << row.layer;
    }
}

TEST(GridIndex, ALineWithoutVerticesStandsInNoCell) {
    LogLines log;
    zv::GridIndex grid;
    CZvDispPolyLine line;
    EXPECT_TRUE(grid.Insert(line, {0, 0}, {60, 60}));
    EXPECT_EQ(grid.Cell(0), nullptr);
    EXPECT_TRUE(log.Get().empty());
}

TEST(GridIndex, ZonesThatAreNoneHaveNoCells) {
    int cells = 0;
    zv::ForEachCell({-1, 4, 2147483647, -2147483648}, 2, [&](int) { ++cells; });
    EXPECT_EQ(cells, 0);
    zv::ForEachCell({3}, 2, [&](int) { ++cells; });
    EXPECT_EQ(cells, 900);
}

TEST(MemoryControl, OnlyLeaseBlocksHaveAnExtendedControl) {
    for (int layer = 0; layer < 100; ++layer)
        EXPECT_EQ(CZvDispLayer(L(layer)).GetMemCtrlExt() != nullptr, layer == 3) << layer;
}

} // namespace
