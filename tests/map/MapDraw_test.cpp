#include "map/ZvDispMap.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

#include "platform/zvcom/ZvLayerInfo.h"
#include "support/MapHome.h"

namespace {

using zv::test::Cu;
using zv::test::L;
using zv::test::MapHome;
using zv::test::RecordingContext;

TEST(MapDraw, DrawsNothingWithoutAContext) {
    MapHome m;
    m.AddCircle(5, 25, 1, 1, 220);
    int cursors = 0;
    zv::SetCursorListener([&](int) { ++cursors; });
    m.map.Draw(L(99), 99, 99, Cu(900), false);
    zv::SetCursorListener({});
    EXPECT_EQ(cursors, 0);
}

TEST(MapDraw, OtherContextsGetOnePassInDrawOrderWithAllCultures) {
    MapHome m;
    RecordingContext context;
    context.traceView = true;
    m.map.SetContext(&context);
    m.map.SetViewPort(0, 1, 100, 101, 0);
    m.AddCircle(1, 25, 2, 1, 221);
    m.AddCircle(2, 25, 1, 1, 220);
    m.AddCircle(3, 31, 1, 1, 350);
    m.AddCircle(4, 13, 1, 1, 145);
    std::vector<int> cursors;
    zv::SetCursorListener([&](int number) { cursors.push_back(number); });
    m.map.Draw(L(99), 99, 99, Cu(900), false);
    zv::SetCursorListener({});
    EXPECT_EQ(context.Take(), "view 0,1 100,101\nopen\n"
                              "layer 13\nposts 1\npost 1\nusets 1\nuset 1\nculture 145\n"
                              "circle 4,0 r 1 c8\n"
                              "layer 25\nposts 2\npost 1\nusets 1\nuset 1\nculture 220\n"
                              "circle 2,0 r 1 c8\n"
                              "posts 2\npost 2\nusets 1\nuset 1\nculture 221\ncircle 1,0 r 1 c8\n"
                              "layer 31\nposts 1\npost 1\nusets 1\nuset 1\nculture 350\n"
                              "circle 3,0 r 1 c8\nclose\n");
    EXPECT_EQ(cursors, (std::vector<int>{32514, 32512}));
    EXPECT_EQ(context.GetSettingsMgr(), &m.settings);
}

/// Draws a map with an item in every culture that any pass names for some layers, and in one that
/// none names, and expects what the catalogue says for the target.
void ExpectTwoPasses(CTX_TYPE type) {
    const bool screen = type == CTX_OPENGL;
    const int layers[] = {13, 3, 25, 15}; // 3 stands between 13 and 25 in draw order
    MapHome m;
    RecordingContext context(type);
    context.traceTags = false;
    std::map<std::pair<int, int>, double> at;
    for (const int layer : layers)
        for (const int pass : {0, 1, 2, 3})
            for (const int culture : CZvLayerInfo::S_GetLayerCultures(L(layer), pass % 2, pass / 2))
                if (at.emplace(std::pair{layer, culture}, at.size() + 1).second)
                    m.AddCircle(at[{layer, culture}], layer, 1, 1, culture);
    m.AddCircle(999, 25, 1, 1, 64999);
    std::string expected = "open\n";
    for (const bool first : {true, false})
        for (const int layer : layers)
            for (const int culture : CZvLayerInfo::S_GetLayerCultures(L(layer), first, screen))
                expected += "circle " + zv::FormatShortest(at[{layer, culture}]) + ",0 r 1 c8\n";
    m.map.SetContext(&context);
    m.map.Draw(L(99), 99, 99, Cu(5), false);
    EXPECT_EQ(context.Take(), expected + "close\n") << type;
    EXPECT_GT(at.size(), 10u);
}

TEST(MapDraw, TypesZeroToThreeGetTwoPassesWithTheCataloguesCultures) {
    for (const CTX_TYPE type : {CTX_CGM, CTX_METAFILE, CTX_OPENGL, CTX_DXF})
        ExpectTwoPasses(type);
    EXPECT_NE(CZvLayerInfo::S_GetLayerCultures(L(25), false, true),
              CZvLayerInfo::S_GetLayerCultures(L(25), true, true));
}

TEST(MapDraw, ADrawOnceLayerDrawsWholeInTheSecondPass) {
    MapHome m;
    ASSERT_TRUE(CZvLayerInfo::DrawOnce(L(31)));
    RecordingContext context(CTX_DXF);
    m.map.SetContext(&context);
    m.AddCircle(1, 31, 1, 1, 350);
    m.AddCircle(2, 31, 1, 1, 64999);
    m.map.Draw(L(31), 99, 99, Cu(900), false);
    EXPECT_EQ(context.Take(), "open\nlayer 31\nposts 1\npost 1\nusets 1\nuset 1\n"
                              "culture 350\ncircle 1,0 r 1 c8\n"
                              "culture 64999\ncircle 2,0 r 1 c8\nclose\n");
}

TEST(MapDraw, ADrawOnceLayerStandsInTheSecondPassAtItsPlaceInTheOrder) {
    MapHome m;
    RecordingContext context(CTX_OPENGL);
    context.traceTags = false;
    m.map.SetContext(&context);
    const auto backgrounds = CZvLayerInfo::S_GetLayerCultures(L(13), true, true);
    const auto tops = CZvLayerInfo::S_GetLayerCultures(L(13), false, true);
    ASSERT_FALSE(backgrounds.empty() || tops.empty());
    ASSERT_TRUE(CZvLayerInfo::DrawOnce(L(2)));
    m.AddCircle(1, 2, 1, 1, 450);
    m.AddCircle(2, 13, 1, 1, tops.front());
    m.AddCircle(3, 13, 1, 1, backgrounds.front());
    m.map.Draw(L(99), 99, 99, Cu(900), false);
    EXPECT_EQ(context.Take(),
              "open\ncircle 3,0 r 1 c8\ncircle 2,0 r 1 c8\ncircle 1,0 r 1 c8\nclose\n");
}

TEST(MapDraw, ALayerSwitchedOffIsNotDrawn) {
    for (const CTX_TYPE type : {CTX_OTHER, CTX_OPENGL}) {
        MapHome m;
        RecordingContext context(type);
        m.map.SetContext(&context);
        m.AddCircle(1, 25, 1, 1, CZvLayerInfo::S_GetLayerCultures(L(25), false, true).front());
        EXPECT_TRUE(m.map.GetLayerOn(L(25)));
        m.settings.MakeLayerSettings(L(25)).SetBoolean("ON_OFF", false);
        EXPECT_FALSE(m.map.GetLayerOn(L(25)));
        for (const int layer : {99, 25}) {
            m.map.Draw(L(layer), 99, 99, Cu(900), false);
            EXPECT_EQ(context.Take(), "open\nclose\n");
        }
        m.map.SetSettingsMgr(nullptr);
        EXPECT_TRUE(m.map.GetLayerOn(L(25)));
    }
}

TEST(MapDraw, OpensInOrderViewCursorSettingsOpen) {
    struct Watching : RecordingContext {
        void V_Open() override {
            trace.push_back(GetSettingsMgr() ? "open with settings" : "open without");
        }
    };
    MapHome m;
    Watching context;
    context.traceView = true;
    m.map.SetContext(&context);
    zv::SetCursorListener([&](int number) { context.trace.push_back(zv::FormatInt(number)); });
    m.map.Draw(L(99), 99, 99, Cu(900), false);
    EXPECT_EQ(context.Take(), "view 0,0 0,0\n32514\nopen with settings\nclose\n32512\n");
    m.map.SetUseWaitCursor(false);
    m.map.Draw(L(99), 99, 99, Cu(900), false);
    zv::SetCursorListener({});
    EXPECT_EQ(context.Take(), "view 0,0 0,0\nopen with settings\nclose\n");
}

TEST(MapDraw, AnExceptionLeavesTheWaitCursorOnAndNoDisplayInfo) {
    struct Throwing : RecordingContext {
        void DrawCircle(CZvDispCircle&) override { throw std::runtime_error("full"); }
    };
    MapHome m;
    Throwing context;
    m.map.SetContext(&context);
    auto* group = new CZvDispGroup;
    group->AddPrimitive(7, new CZvDispCircle);
    m.map.AddItem(group, L(2), 1, 1, Cu(3), false);
    std::vector<int> cursors;
    zv::SetCursorListener([&](int number) { cursors.push_back(number); });
    EXPECT_THROW(m.map.Draw(L(2), 1, 1, Cu(3 * 65536 + 7), false), std::runtime_error);
    zv::SetCursorListener({});
    EXPECT_EQ(cursors, std::vector<int>{32514});
    EXPECT_EQ(context.GetDispInfo(), nullptr);
}

TEST(MapDraw, ARedrawReadsNothing) {
    MapHome m;
    RecordingContext context;
    context.traceTags = false;
    m.map.SetContext(&context);
    m.AddCircle(1, 25, 1, 1, 220);
    m.map.Redraw(L(99), 99, 99, Cu(900));
    EXPECT_EQ(context.Take(), "open\nclose\n")
        << "only display lists are replayed, and there are none";
}

TEST(MapDraw, AContextForgetsTheMemoryControlsOfLayersThatGo) {
    MapHome m;
    RecordingContext context;
    m.map.SetContext(&context);
    m.AddCircle(1, 25, 1, 1, 231);
    m.AddCircle(1, 26, 1, 1, 658);
    m.map.Draw(L(25), 99, 99, Cu(900), false);
    EXPECT_NE(context.GetMemCtrl(), nullptr);
    m.map.Clear(L(25));
    EXPECT_EQ(context.GetMemCtrl(), nullptr);
    m.map.SetLayerVisibility(L(26), true);
    m.AddCircle(1, 3, 1, 1, 11);
    m.map.Draw(L(3), 99, 99, Cu(900), false);
    EXPECT_NE(context.GetMemCtrlExt(), nullptr);
    m.map.Clear();
    EXPECT_EQ(context.GetMemCtrlExt(), nullptr);
    m.AddCircle(1, 3, 1, 1, 11);
    m.map.Draw(L(3), 99, 99, Cu(900), false);
    CZvDispMap other(nullptr);
    other.SetContext(&context);
    EXPECT_EQ(context.GetMemCtrl(), nullptr);
}

TEST(MapDraw, PiecesOfTheTreeDrawAlone) {
    MapHome m;
    RecordingContext context;
    m.map.SetContext(&context);
    m.AddCircle(1, 25, 1, 1, 220);
    m.AddCircle(2, 25, 1, 2, 220);
    m.AddCircle(3, 25, 2, 1, 221);
    context.traceTags = false;
    m.map.Draw(L(25), 1, 2, Cu(900), false);
    EXPECT_EQ(context.Take(), "open\ncircle 2,0 r 1 c8\nclose\n");
    m.map.Draw(L(25), 99, 99, Cu(221), false);
    EXPECT_EQ(context.Take(), "open\ncircle 3,0 r 1 c8\nclose\n");
    m.map.Draw(L(25), 7, 99, Cu(900), false);
    m.map.Draw(L(26), 99, 99, Cu(900), false);
    EXPECT_EQ(context.Take(), "open\nclose\nopen\nclose\n");
}

TEST(MapDraw, ACompositeCultureNamesAGroupsMemberForTheTimeOfItsDraw) {
    MapHome m;
    RecordingContext context;
    m.map.SetContext(&context);
    auto* group = new CZvDispGroup;
    group->AddPrimitive(7, new CZvDispCircle({7, 0}, 1.0));
    group->AddPrimitive(8, new CZvDispCircle({8, 0}, 1.0));
    m.map.AddItem(group, L(2), 1, 1, Cu(3), false);
    context.traceTags = false;
    m.map.Draw(L(2), 1, 1, Cu(3 * 65536 + 7), false);
    EXPECT_EQ(context.Take(), "open\ngroup UNDEFINED c255\ncircle 7,0 r 1 c8\nclose\n");
    EXPECT_EQ(context.GetDispInfo(), nullptr);
}

} // namespace
