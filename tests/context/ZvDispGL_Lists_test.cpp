#include "context/GlMap.h"

namespace zv::testing {
namespace {

TEST(ZvDispGLLists, AnItemWithoutAPickIDDrawsAtOnceAndLeavesNoList) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    ASSERT_EQ(line.GetPickID(), 0xFFFFFFFFu);
    EXPECT_EQ(map.Draw(line).At(30, 43), kWhite);
    EXPECT_FALSE(map.gl.IsItemList(0xFFFFFFFFu));
    EXPECT_FALSE(glIsList(0xFFFFFFFFu));
}

TEST(ZvDispGLLists, AnItemWithAPickIDIsCompiledAndShowsWithItsRedraw) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetPickID(10001);
    EXPECT_EQ(map.Draw(line).CountOther(kBlack), 0);
    EXPECT_TRUE(glIsList(10001));
    EXPECT_TRUE(map.gl.IsItemList(10001));
    EXPECT_EQ(map.Redraw({10001}).CountOf(kWhite), 40);
}

TEST(ZvDispGLLists, TheDriversListDrawsTheSame) {
    GlMap map;
    CZvDispGroup group;
    auto* line = new CZvDispPolyLine;
    MakeRow(*line, 10, 50, 20);
    auto* polygon = new CZvDispPolygon;
    polygon->SetVertices(Rectangle(20, 30, 40, 60));
    polygon->SetFill(true);
    polygon->SetFillStyle(static_cast<E_FILL_STYLE>(1));
    auto* text = new CZvDispText;
    text->SetLabel("A1");
    text->SetPoint({32, 2});
    text->SetVertHeight(10);
    group.AddPrimitive(1, line);
    group.AddPrimitive(1, polygon);
    group.AddPrimitive(1, text);
    group.SetPickID(10001);
    map.gl.DrawDispItem(&group);
    const auto own = map.Redraw({10001}), drivers = map.CallLists({10001});
    EXPECT_GT(own.CountOther(kBlack), 640);
    EXPECT_EQ(own, drivers);
}

TEST(ZvDispGLLists, RedrawOutsideAMapsDrawShowsAtOnce) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetPickID(10001);
    map.gl.DrawDispItem(&line);
    map.gl.Redraw(10001);
    GLubyte bytes[4];
    glReadPixels(30, 20, 1, 1, GL_RGBA, GL_UNSIGNED_BYTE, bytes);
    EXPECT_EQ(bytes[0], 255);
}

TEST(ZvDispGLLists, RedrawTellsWhetherThereIsAList) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetPickID(10001);
    map.gl.DrawDispItem(&line);
    EXPECT_TRUE(map.gl.V_Redraw(10001));
    EXPECT_FALSE(map.gl.V_Redraw(10002));
    EXPECT_FALSE(map.gl.V_Redraw(0xFFFFFFFFu));
}

TEST(ZvDispGLLists, DrawingAnItemAgainReplacesItsList) {
    GlMap map;
    CZvDispPolyLine line;
    line.SetPickID(10001);
    MakeRow(line, 10, 50, 20);
    map.gl.DrawDispItem(&line);
    MakeRow(line, 10, 50, 40);
    map.gl.DrawDispItem(&line);
    const auto picture = map.Redraw({10001});
    EXPECT_EQ(picture.At(30, 63 - 20), kBlack);
    EXPECT_EQ(picture.At(30, 63 - 40), kWhite);
    EXPECT_EQ(map.CallLists({10001}), picture);
}

TEST(ZvDispGLLists, ADeletedItemHasNoList) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetPickID(10001);
    map.gl.DrawDispItem(&line);
    EXPECT_TRUE(map.gl.DeleteDispItem(&line));
    EXPECT_FALSE(glIsList(10001));
    EXPECT_FALSE(map.gl.IsItemList(10001));
    EXPECT_TRUE(map.gl.DeleteDispItem(&line)); // also without a list
    EXPECT_EQ(map.Redraw({10001}).CountOther(kBlack), 0);
}

TEST(ZvDispGLLists, AListThatAHostDeletesIsGone) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetPickID(10001);
    map.gl.DrawDispItem(&line);
    glDeleteLists(10001, 1);
    EXPECT_FALSE(map.gl.IsItemList(10001));
    EXPECT_FALSE(map.gl.V_Redraw(10001));
}

TEST(ZvDispGLLists, AListThatAHostMadeIsCalled) {
    GlMap map;
    glNewList(50000, GL_COMPILE);
    glClearColor(1, 0, 0, 1);
    glClear(GL_COLOR_BUFFER_BIT);
    glEndList();
    EXPECT_TRUE(map.gl.V_Redraw(50000));
    EXPECT_EQ(map.Show().At(1, 1), kRed);
}

TEST(ZvDispGLLists, OverlappingItemsKeepTheOrderOfTheirRedraw) {
    GlMap map;
    CZvDispPolyLine thick, thin;
    MakeRow(thick, 10, 50, 20);
    thick.SetLineWidth(6, 0);
    thick.SetColor(static_cast<ZVColor>(1), 0);
    thick.SetPickID(10001);
    MakeRow(thin, 0, 64, 20);
    thin.SetPickID(10002);
    map.gl.DrawDispItem(&thick);
    map.gl.DrawDispItem(&thin);
    EXPECT_EQ(map.Redraw({10001, 10002}).At(30, 43), kWhite);
    EXPECT_EQ(map.Redraw({10002, 10001}).At(30, 43), Palette(1));
    EXPECT_EQ(map.Redraw({10001, 10002, 10001}).At(30, 43), Palette(1));
    EXPECT_EQ(map.Redraw({10002, 10001, 10002}).At(30, 43), kWhite);
}

TEST(ZvDispGLLists, ManyItemsOfManyStatesComeOutAsDrawnOneByOne) {
    GlMap map(128, 128);
    std::vector<unsigned> ids;
    unsigned seed = 1;
    const auto next = [&](int most) {
        seed = seed * 1103515245 + 12345;
        return static_cast<int>(seed >> 16) % most;
    };
    for (unsigned id = 10001; id < 10401; ++id) {
        CZvDispPolyLine line;
        const double x = next(120), y = next(120);
        line.SetVertices({{x, y}, {x + next(30), y + next(30)}, {x + next(30), y}});
        line.SetColor(static_cast<ZVColor>(1 + next(7)), 0);
        line.SetLineWidth(static_cast<unsigned char>(next(4)), 0);
        line.SetLineType(next(5), 0);
        line.SetPickID(id);
        map.gl.DrawDispItem(&line);
        ids.push_back(id);
    }
    map.Clear();
    for (const unsigned id : ids)
        map.gl.Redraw(id);
    const auto oneByOne = map.Show();
    EXPECT_EQ(map.Redraw(ids), oneByOne);
}

TEST(ZvDispGLLists, SelectionNamesTheItemUnderTheCursor) {
    GlMap map;
    CZvDispPolyLine low, high;
    MakeRow(low, 10, 50, 10);
    low.SetPickID(10001);
    MakeRow(high, 10, 50, 50);
    high.SetPickID(10002);
    map.gl.DrawDispItem(&low);
    map.gl.DrawDispItem(&high);
    GLuint hits[64] = {};
    GLint viewport[4];
    glGetIntegerv(GL_VIEWPORT, viewport);
    glSelectBuffer(64, hits);
    glRenderMode(GL_SELECT);
    glInitNames();
    glPushName(0);
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    // gluPickMatrix about pixel (30, 10), 8 by 8
    glTranslatef((64.0f - 2 * 30) / 8, (64.0f - 2 * 10) / 8, 0);
    glScalef(64.0f / 8, 64.0f / 8, 1);
    glMatrixMode(GL_MODELVIEW);
    map.gl.V_Open(); // as a map does around its walk
    for (const unsigned id : {10001u, 10002u}) {
        glLoadName(id);
        EXPECT_TRUE(map.gl.V_Redraw(id));
    }
    map.gl.V_Close();
    const int count = glRenderMode(GL_RENDER);
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
    ASSERT_EQ(count, 1);
    EXPECT_EQ(hits[3], 10001u);
}

TEST(ZvDispGLLists, AHostsOwnMatrixHoldsForTheItems) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 30, 20);
    line.SetPickID(10001);
    map.gl.DrawDispItem(&line);
    map.Clear();
    glTranslatef(10, 5, 0);
    map.gl.Redraw(10001);
    EXPECT_EQ(map.Show().BoxOfOther(kBlack), (std::array{20, 63 - 25, 39, 63 - 25}));
}

TEST(ZvDispGLLists, OtherDrawingBetweenRedrawsKeepsItsPlaceInTheOrder) {
    GlMap map;
    CZvDispPolyLine thick;
    MakeRow(thick, 10, 50, 20);
    thick.SetLineWidth(6, 0);
    thick.SetPickID(10001);
    map.gl.DrawDispItem(&thick);
    CZvDispPolyLine temporary;
    MakeRow(temporary, 0, 64, 20);
    temporary.SetColor(static_cast<ZVColor>(1), 0);
    map.gl.V_Open();
    map.gl.Redraw(10001);
    map.gl.DrawDispItem(&temporary);
    map.gl.V_Close();
    EXPECT_EQ(map.Show().At(30, 43), Palette(1));
}

TEST(ZvDispGLLists, AContextThatCallsOpenGLItselfKeepsDriverListsOnly) {
    class Direct : public OpenGL {
      public:
        Direct() { SetItemRecording(false); }
        void V_GLVertice(const CZvDispPoint& p) override {
            const CZvDispPoint origin = GLOrigin();
            glVertex3f(static_cast<float>(p.GetX() - origin.GetX()),
                       static_cast<float>(p.GetY() - origin.GetY()), 0.0f);
        }
    };
    GlMap map;
    Direct direct;
    direct.SetDispContext(map.Dc());
    direct.SetRenderContext(map.gl.GetRenderContext());
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    line.SetPickID(10001);
    direct.DrawDispItem(&line);
    EXPECT_TRUE(glIsList(10001));
    EXPECT_EQ(map.Redraw({10001}).CountOf(kWhite), 40);
    direct.DeleteDispItem(&line);
    EXPECT_FALSE(glIsList(10001));
}

TEST(ZvDispGLLists, ItemsBeyondTheDriversShareAreKeptAllTheSame) {
    GlMap map;
    CZvDispPolyLine line;
    MakeRow(line, 10, 50, 20);
    for (unsigned i = 0; i < 100'010; ++i) {
        line.SetPickID(10001 + i);
        map.gl.DrawDispItem(&line);
    }
    const unsigned last = 10001 + 100'009;
    EXPECT_TRUE(glIsList(10001 + 99'999));
    EXPECT_FALSE(glIsList(last));
    EXPECT_TRUE(map.gl.IsItemList(last));
    EXPECT_EQ(map.Redraw({last}).CountOf(kWhite), 40);
    MakeRow(line, 10, 30, 20); // redefined
    map.gl.DrawDispItem(&line);
    EXPECT_EQ(map.Redraw({last}).CountOf(kWhite), 20);
    map.gl.DeleteItemList(last);
    EXPECT_FALSE(map.gl.IsItemList(last));
    EXPECT_FALSE(map.gl.V_Redraw(last));
    map.gl.DeleteItemList(10001); // makes room for another
    line.SetPickID(last);
    map.gl.DrawDispItem(&line);
    EXPECT_TRUE(glIsList(last));
}

TEST(ZvDispGLLists, ATemporaryByExclusiveOrLeavesWhatWasGatheredAsItIs) {
    GlMap map;
    map.gl.SetBKColor(static_cast<ZVColor>(4));
    CZvDispPolyLine line, temporary;
    MakeRow(line, 10, 50, 20);
    line.SetColor(static_cast<ZVColor>(1), 0);
    line.SetPickID(10001);
    map.gl.DrawDispItem(&line);
    MakeRow(temporary, 10, 50, 40);
    temporary.SetColor(static_cast<ZVColor>(1), 0);
    map.Clear();
    map.gl.V_Open();
    map.gl.Redraw(10001);
    glEnable(GL_COLOR_LOGIC_OP);
    glLogicOp(GL_XOR);
    map.gl.DrawDispItem(&temporary);
    EXPECT_TRUE(glIsEnabled(GL_COLOR_LOGIC_OP));
    glDisable(GL_COLOR_LOGIC_OP);
    map.gl.V_Close();
    const auto picture = map.Show();
    const Rgb c = Palette(1), b = Palette(4);
    EXPECT_EQ(picture.At(30, 63 - 20), c);
    EXPECT_EQ(picture.At(30, 63 - 40), (Rgb{c.r ^ b.r, c.g ^ b.g, c.b ^ b.b}));
}

TEST(ZvDispGLLists, PositionsAreRelativeToTheViewUntilAPlacementHolds) {
    class Direct : public OpenGL {
      public:
        Direct() { SetItemRecording(false); }
        void V_GLVertice(const CZvDispPoint&) override { origins.push_back(GLOrigin()); }
        std::vector<CZvDispPoint> origins;
    };
    GlMap map;
    TestSurface surface(64, 64);
    Direct direct;
    direct.Create(surface.Dc());
    direct.Resize(0, 0, 64, 64);
    CZvDispPoint lowerLeft(1000, 2000), upperRight(1064, 2064);
    direct.SetView(lowerLeft, upperRight);
    CZvDispPolyLine line;
    line.SetVertices({{1010, 2010}, {1020, 2010}});
    direct.DrawDispItem(&line);
    auto* member = new CZvDispPolyLine;
    member->SetVertices({{1, 1}, {2, 2}});
    CZvDispSymbols::S_AddExternalSymbols(new std::list<CZvDisplayItem*>{member}, 600);
    CZvDispSymbols symbol(CZvDispPoint(1020, 2020), 600);
    direct.DrawDispItem(&symbol);
    direct.CreateSymbolDisplayList();
    ASSERT_EQ(direct.origins.size(), 6u); // two vertices each
    EXPECT_EQ(direct.origins[0].GetX(), 1032.0);
    EXPECT_EQ(direct.origins[0].GetY(), 2032.0);
    EXPECT_EQ(direct.origins[2].GetX(), 0.0); // inside the symbol's placement
    EXPECT_EQ(direct.origins[4].GetX(), 0.0); // inside the symbol's shape
    direct.Destroy();
    map.gl.Start();
}

} // namespace
} // namespace zv::testing
