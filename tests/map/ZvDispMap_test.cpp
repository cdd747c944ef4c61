#include "map/ZvDispMap.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

#include "platform/zvcom/ZvLayerInfo.h"
#include "support/LogLines.h"
#include "support/MapHome.h"

namespace {

using zv::test::MapHome;
using zv::test::ReadText;
using zv::test::RecordingContext;

E_Layer L(int number) {
    return static_cast<E_Layer>(number);
}
ZVCulture Cu(int number) {
    return static_cast<ZVCulture>(number);
}

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

TEST(Map, DrawsNothingWithoutAContext) {
    MapHome m;
    m.AddCircle(5, 25, 1, 1, 220);
    int cursors = 0;
    zv::SetCursorListener([&](int) { ++cursors; });
    m.map.Draw(L(99), 99, 99, Cu(900), false);
    zv::SetCursorListener({});
    EXPECT_EQ(cursors, 0);
}

TEST(Map, OtherContextsGetOnePassInDrawOrderWithAllCultures) {
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

TEST(Map, TypesZeroToThreeGetTwoPassesWithTheCataloguesCultures) {
    for (const CTX_TYPE type : {CTX_CGM, CTX_METAFILE, CTX_OPENGL, CTX_DXF})
        ExpectTwoPasses(type);
    EXPECT_NE(CZvLayerInfo::S_GetLayerCultures(L(25), false, true),
              CZvLayerInfo::S_GetLayerCultures(L(25), true, true));
}

TEST(Map, ADrawOnceLayerDrawsWholeInTheSecondPass) {
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

TEST(Map, ADrawOnceLayerStandsInTheSecondPassAtItsPlaceInTheOrder) {
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

TEST(Map, ALayerSwitchedOffIsNotDrawn) {
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

TEST(Map, OpensInOrderViewCursorSettingsOpen) {
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

TEST(Map, AnExceptionLeavesTheWaitCursorOnAndNoDisplayInfo) {
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

TEST(Map, ARedrawReadsNothing) {
    MapHome m;
    RecordingContext context;
    context.traceTags = false;
    m.map.SetContext(&context);
    m.AddCircle(1, 25, 1, 1, 220);
    m.map.Redraw(L(99), 99, 99, Cu(900));
    EXPECT_EQ(context.Take(), "open\nclose\n")
        << "only display lists are replayed, and there are none";
}

TEST(Map, AContextForgetsTheMemoryControlsOfLayersThatGo) {
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

TEST(Map, PiecesOfTheTreeDrawAlone) {
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

TEST(Map, ACompositeCultureNamesAGroupsMemberForTheTimeOfItsDraw) {
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

TEST(MapDrawingFile, AMissingFileIsTold) {
    MapHome m;
    m.map.Read("nowhere\\map.drw");
    ASSERT_EQ(m.home.messages.GetShown().size(), 1u);
    EXPECT_EQ(m.home.messages.GetShown()[0].text, "Could not open file:\nnowhere\\map.drw");
    EXPECT_TRUE(m.map.GetLayerList().empty());
}

TEST(MapDrawingFile, OnlyLayer99WritesAnything) {
    MapHome m;
    m.AddCircle(1, 25, 1, 1, 220);
    const std::string path = m.home.TempFile("one.drw");
    m.map.Write(path, L(25), 1, 1, Cu(220));
    EXPECT_TRUE(std::filesystem::exists(path));
    EXPECT_EQ(ReadText(path), "");
    m.map.Write(path, L(99), 7, 7, Cu(7));
    const std::string text = ReadText(path);
    EXPECT_EQ(text.size(), 2u * 82u + 80u);
    EXPECT_EQ(text.substr(0, 13), "CIR:    2   0") << "every record carries zeroes";
    EXPECT_EQ(text.substr(2 * 82), "EOF:  120" + std::string(71, ' '));
}

TEST(MapDrawingFile, IsReadBackWithoutPolygonsAndCirclesOneColourLower) {
    MapHome m;
    m.AddCircle(1.5, 25, 1, 1, 220);
    auto* line = new CZvDispPolyLine(std::vector<CZvDispPoint>{{0, 0}, {1, 2}});
    line->SetColor(static_cast<ZVColor>(5), 0);
    m.map.AddItem(line, L(25), 1, 1, Cu(221), false);
    auto* hidden = new CZvDispPolyLine(std::vector<CZvDispPoint>{{9, 9}, {9, 9}});
    hidden->SetVisibility(false);
    m.map.AddItem(hidden, L(25), 1, 1, Cu(221), false);
    m.map.AddItem(new CZvDispPolygon(std::vector<CZvDispPoint>{{0, 0}, {1, 2}, {3, 3}}), L(25), 1,
                  1, Cu(222), false);
    auto* text = new CZvDispText;
    text->SetLabel("A 1");
    m.map.AddItem(text, L(25), 1, 1, Cu(250), false);
    const std::string path = m.home.TempFile("map.drw");
    m.map.Write(path, L(99), 99, 99, Cu(900));

    CZvDispMap again(nullptr);
    zv::test::LogLines log;
    again.SetDispFilePath("Again");
    again.Read(path);
    EXPECT_TRUE(log.Holds("1 polygons of the drawing file"));
    EXPECT_EQ(again.GetLayerList(), std::vector<int>{0});
    EXPECT_EQ(again.GetCultureCount(L(0), 0, 0, Cu(0)), 3);
    const auto item = [&](unsigned id) {
        return std::unique_ptr<CZvDisplayItem>(again.GetItem(L(0), 0, 0, Cu(0), id));
    };
    EXPECT_EQ(item(10001)->GetDispType(), ZV_DISP_CIRCLE);
    EXPECT_EQ(item(10001)->GetColor(), 7);
    EXPECT_EQ(item(10002)->GetDispType(), ZV_DISP_POLYLINE);
    EXPECT_EQ(item(10002)->GetColor(), 5);
    EXPECT_EQ(static_cast<CZvDispText&>(*item(10003)).GetLabel(), "A 1");
    EXPECT_EQ(item(10003)->GetLineWidth(), 1) << "a text's width is always read as 1";
    EXPECT_EQ(item(10003)->GetLineType(), 1);
}

TEST(MapDrawingFile, TakesPlacesFromTheRecordsAndTheLastTailWhereOneIsMissing) {
    MapHome m;
    const auto n = [](const char* value) { return CZvDisplayItem::PadBlankToFront(value, 21); };
    const auto line = [&](const std::string& tail) {
        return "COV:   13  25LW:  1LT:  0COL:  5X:" + n("1.0") + std::string(25, ' ') +
               "\r\nY:" + n("2.0") + CZvDisplayItem::PadBlankToBack(tail, 57) + "\r\n";
    };
    const std::string path = m.home.TempFile("places.drw");
    zv::test::WriteText(path, line("IB:POS:  2UST:  3CUL:220") + line("") + "TRI:   10  25" +
                                  std::string(67, ' ') + "\r\n" + "EOF:  120");
    m.map.Read(path);
    EXPECT_EQ(m.map.GetLayerList(), std::vector<int>{25});
    EXPECT_EQ(m.map.GetCultureCount(L(25), 2, 3, Cu(220)), 2);
    EXPECT_TRUE(m.home.messages.GetShown().empty());
}

TEST(MapDrawingFile, AFolderCannotBeOpened) {
    MapHome m;
    const std::string folder = std::filesystem::path(m.home.TempFile("x")).parent_path();
    m.map.Read(folder);
    ASSERT_EQ(m.home.messages.GetShown().size(), 1u);
    EXPECT_EQ(m.home.messages.GetShown()[0].text, "Could not open file:\n" + folder);
}

TEST(MapDrawingFile, IsWrittenInTheOrderOfTheTreesNumbers) {
    MapHome m;
    const int places[][4] = {
        {26, 1, 1, 5}, {25, 2, 1, 5}, {25, 1, 2, 5}, {25, 1, 1, 6}, {25, 1, 1, 5}};
    for (const auto& p : places)
        m.AddCircle(p[0] * 1000 + p[1] * 100 + p[2] * 10 + p[3], p[0], p[1], p[2], p[3]);
    const std::string path = m.home.TempFile("order.drw");
    m.map.Write(path, L(99), 99, 99, Cu(900));
    const std::string text = ReadText(path);
    std::vector<int> centers;
    for (std::size_t at = text.find("X:"); at != std::string::npos; at = text.find("X:", at + 1))
        centers.push_back(static_cast<int>(zv::ParseDouble(text.substr(at + 2, 21))));
    EXPECT_EQ(centers, (std::vector<int>{25115, 25116, 25125, 25215, 26115}));
}

TEST(MapDrawingFile, ReadsArcsAndTextsAndStepsOverDescriptionsAndStrangers) {
    MapHome m;
    CZvDispMap other(nullptr);
    const std::string path = m.home.TempFile("kinds.drw");
    m.map.AddItem(new CZvDispArc({1, 2}, 3.0, 10.0f, 100.0f), L(25), 1, 1, Cu(220), false);
    m.map.Write(path, L(99), 99, 99, Cu(900));
    std::string arc = ReadText(path);
    arc.resize(arc.find("EOF:"));
    zv::test::WriteText(path, "stranger without a colon\r\nODD:99 \r\nCTX: 5123NUM: 8" +
                                  std::string(65, ' ') + "\r\nOil well" + std::string(72, ' ') +
                                  "\r\n" + arc + arc.substr(0, 4) + "712" + arc.substr(7) +
                                  "EOF:  120");
    other.SetDispFilePath("Other");
    other.Read(path);
    ASSERT_EQ(other.GetCultureCount(L(0), 0, 0, Cu(0)), 2);
    const std::unique_ptr<CZvDisplayItem> item(other.GetItem(L(0), 0, 0, Cu(0), 10002));
    EXPECT_EQ(item->GetDispType(), ZV_DISP_ARC);
    EXPECT_EQ(static_cast<CZvDispArc&>(*item).GetEndAngle(), 100.0f);
}

TEST(MapDrawingFile, ACoordinateLineThatLooksLikeARecordIsTakenForOne) {
    MapHome m;
    m.map.AddItem(new CZvDispPolygon(std::vector<CZvDispPoint>{{0, 10234567.0}, {1, 10234567.0}}),
                  L(25), 1, 1, Cu(220), false);
    const std::string path = m.home.TempFile("north.drw");
    m.map.Write(path, L(99), 99, 99, Cu(900));
    CZvDispMap other(nullptr);
    other.SetDispFilePath("Other");
    other.Read(path);
    EXPECT_EQ(other.GetLayerList(), std::vector<int>{234})
        << "\"Y:   1023 4567...\" reads as an arc";
}

TEST(MapDrawingFile, AnUnwritablePathFailsQuietly) {
    MapHome m;
    m.AddCircle(1, 25, 1, 1, 220);
    m.map.Write(m.home.TempFile("no/such/folder/map.drw"), L(99), 99, 99, Cu(900));
    EXPECT_FALSE(std::filesystem::exists(m.home.TempFile("no")));
    EXPECT_TRUE(m.home.messages.GetShown().empty());
}

} // namespace
