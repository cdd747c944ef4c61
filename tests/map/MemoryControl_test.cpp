#include "map/ZvDispMemCtrl.h"

#include <gtest/gtest.h>

#include "context/GlTestSurface.h"
#include "support/LogLines.h"
#include "support/MapHome.h"
#include "support/RecordingGL.h"

namespace {

using zv::test::L;
using zv::test::LogLines;
using zv::test::MapHome;
using zv::test::RecordingGL;

using Zones = std::vector<int>;

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

TEST(MemoryControl, OnlyLeaseBlocksHaveAnExtendedControl) {
    for (int layer = 0; layer < 100; ++layer)
        EXPECT_EQ(CZvDispLayer(L(layer)).GetMemCtrlExt() != nullptr, layer == 3) << layer;
}

} // namespace
