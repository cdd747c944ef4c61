#include "context/ItemLists.h"

#include "context/CutLine.h"
#include "context/GlTestSurface.h"
#include "context/ListNames.h"

namespace zv::testing {
namespace {

/// Lists on a context of their own, one map unit to a pixel.
class ItemListsTest : public ::testing::Test {
  protected:
    ItemListsTest() : lists(m_view, m_shapes, m_looks) {
        glLoadIdentity();
        m_view.Ortho({0, 0}, {64, 64}, true);
    }
    void DrawRow(double row, double x1 = 10, double x2 = 50) {
        auto& sink = lists.Sink();
        sink.Color(1, 1, 1, 1);
        sink.Width(1);
        sink.Begin(Figure::LineStrip);
        sink.Vertex(x1, row + 0.5);
        sink.Vertex(x2, row + 0.5);
        sink.End();
    }
    void Compile(unsigned id, double row) {
        lists.NewList(id);
        DrawRow(row);
        lists.EndList();
    }
    Picture Show() {
        const auto picture = m_context.Swap();
        glClear(GL_COLOR_BUFFER_BIT);
        return picture;
    }

  private:
    BareContext m_context;
    ScreenView m_view;
    ShapeLibrary m_shapes;
    LookTable m_looks;

  protected:
    ItemLists lists;
};

TEST_F(ItemListsTest, AListIsNewCalledAndDeletedByItsPickID) {
    EXPECT_FALSE(lists.IsList(10001));
    EXPECT_FALSE(lists.CallList(10001));
    Compile(10001, 20);
    EXPECT_TRUE(lists.IsList(10001));
    EXPECT_EQ(lists.Count(), 1u);
    EXPECT_TRUE(lists.CallList(10001));
    EXPECT_EQ(Show().At(30, 43), kWhite);
    lists.DeleteList(10001);
    EXPECT_FALSE(lists.IsList(10001));
    EXPECT_EQ(lists.Count(), 0u);
}

TEST_F(ItemListsTest, PickIDsMayLieAnywhere) {
    for (const unsigned id : {1u, 10001u, 5'000'000u, 0xFFFFFFFEu}) {
        Compile(id, 20);
        EXPECT_TRUE(lists.IsList(id));
        EXPECT_TRUE(lists.CallList(id));
        EXPECT_EQ(Show().CountOf(kWhite), 40);
    }
    EXPECT_EQ(lists.Count(), 4u);
}

TEST_F(ItemListsTest, AnEmptyListIsAListThatDrawsNothing) {
    lists.NewList(10001);
    lists.EndList();
    EXPECT_TRUE(lists.IsList(10001));
    EXPECT_TRUE(lists.CallList(10001));
    EXPECT_EQ(Show().CountOther(kBlack), 0);
}

TEST_F(ItemListsTest, MembersGoIntoTheListThatIsOpen) {
    lists.NewList(10001);
    DrawRow(20);
    lists.NewList(10002);
    DrawRow(30);
    lists.EndList();
    lists.NewList(kNoPickID);
    DrawRow(40);
    lists.EndList();
    lists.EndList();
    EXPECT_FALSE(lists.IsList(10002));
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    lists.CallList(10001);
    EXPECT_EQ(Show().CountOf(kWhite), 120);
}

TEST_F(ItemListsTest, NamesOfSymbolsAndCharactersAreNotTakenFromTheDriver) {
    glNewList(4065, GL_COMPILE);
    glEndList();
    Compile(4065, 20);
    EXPECT_TRUE(lists.IsList(4065));
    lists.CallList(4065);
    EXPECT_EQ(Show().CountOf(kWhite), 40);
    lists.DeleteList(4065);
    lists.DeleteList(4065);
    EXPECT_EQ(lists.Count(), 0u);
    EXPECT_TRUE(glIsList(4065));
}

TEST_F(ItemListsTest, AReplayGathersAndDrawsAtItsEnd) {
    Compile(10001, 20);
    Compile(10002, 30);
    lists.BeginReplay();
    lists.CallList(10001);
    lists.CallList(10002);
    EXPECT_EQ(Show().CountOf(kWhite), 0);
    lists.EndReplay();
    EXPECT_EQ(Show().CountOf(kWhite), 80);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

TEST_F(ItemListsTest, ReplayLeavesTheStateOfOpenGLAsItWas) {
    lists.NewList(10001);
    auto& sink = lists.Sink();
    sink.Color(1, 0, 0, 1);
    sink.Width(5);
    sink.Stipple(255);
    sink.BeginCompose(Compose::Xor);
    sink.Begin(Figure::Triangles);
    for (const Point2 p : {Point2{0, 0}, {20, 0}, {0, 20}})
        sink.Vertex(p.x, p.y);
    sink.End();
    sink.EndCompose(Compose::Xor);
    DrawRow(20);
    lists.EndList();
    glColor3f(0, 1, 0);
    glLineWidth(2);
    GLfloat before[16], after[16];
    glGetFloatv(GL_MODELVIEW_MATRIX, before);
    lists.CallList(10001);
    glGetFloatv(GL_MODELVIEW_MATRIX, after);
    EXPECT_TRUE(std::equal(before, before + 16, after));
    GLfloat color[4], width;
    glGetFloatv(GL_CURRENT_COLOR, color);
    glGetFloatv(GL_LINE_WIDTH, &width);
    EXPECT_EQ(color[1], 1.0f);
    EXPECT_EQ(width, 2.0f);
    EXPECT_FALSE(glIsEnabled(GL_LINE_STIPPLE));
    EXPECT_FALSE(glIsEnabled(GL_COLOR_LOGIC_OP));
    EXPECT_FALSE(glIsEnabled(GL_VERTEX_ARRAY));
}

TEST_F(ItemListsTest, MemoryOfDeletedListsIsUsedAgain) {
    for (int round = 0; round < 20; ++round) {
        for (unsigned id = 10001; id < 30001; ++id)
            Compile(id, 20);
        for (unsigned id = 10001; id < 30001; ++id)
            lists.DeleteList(id);
    }
    EXPECT_LE(lists.RecordBytes(), 8u << 20);
    EXPECT_EQ(lists.DriverLists(), 0u);
}

TEST_F(ItemListsTest, RedefiningOneItemOverAndOverHoldsNoMoreMemory) {
    for (unsigned id = 10001; id < 11001; ++id)
        Compile(id, 20);
    for (int i = 0; i < 200'000; ++i) {
        lists.NewList(10500);
        DrawRow(i % 60);
        lists.EndList();
    }
    EXPECT_EQ(lists.Count(), 1000u);
    EXPECT_LE(lists.RecordBytes(), 3u << 20);
}

TEST_F(ItemListsTest, MemoryOfIDsThatRiseForeverIsUsedAgain) {
    for (unsigned id = 10001; id < 60001; ++id) {
        Compile(id, 20);
        if (id >= 10011) lists.DeleteList(id - 10);
    }
    EXPECT_EQ(lists.Count(), 10u);
    EXPECT_LE(lists.Pages(), 2u);
    EXPECT_TRUE(lists.IsList(60000));
    EXPECT_FALSE(lists.IsList(59990));
    for (unsigned id = 59991; id < 60001; ++id)
        lists.DeleteList(id);
    EXPECT_EQ(lists.Pages(), 0u);
    EXPECT_FALSE(lists.IsList(60000));
}

TEST_F(ItemListsTest, OnlyListsStandOnTheOriginAndOnlyAsLongAsTheyExist) {
    EXPECT_FALSE(lists.StandsOnOrigin());
    lists.NewList(kNoPickID, KeepBy::DriverOnly);
    DrawRow(20);
    lists.EndList();
    EXPECT_FALSE(lists.StandsOnOrigin());
    lists.NewList(10001, KeepBy::DriverOnly);
    DrawRow(20);
    lists.EndList();
    EXPECT_TRUE(lists.StandsOnOrigin());
    lists.DeleteList(10001);
    EXPECT_FALSE(lists.StandsOnOrigin());
    Compile(10002, 20);
    EXPECT_TRUE(lists.StandsOnOrigin());
    lists.DeleteList(10002);
    EXPECT_FALSE(lists.StandsOnOrigin());
}

TEST_F(ItemListsTest, WhatIsDrawnIntoAHostsListStandsOnTheOriginToo) {
    glNewList(50000, GL_COMPILE);
    lists.NewList(kNoPickID);
    DrawRow(20);
    lists.EndList();
    glEndList();
    EXPECT_TRUE(lists.StandsOnOrigin());
    lists.CallList(50000);
    EXPECT_EQ(Show().CountOf(kWhite), 40);
    lists.DeleteList(50000);
    EXPECT_FALSE(lists.StandsOnOrigin());
}

TEST_F(ItemListsTest, AnItemKeptByTheDriverOnlyTakesNoNameOfOthersEither) {
    glNewList(4065, GL_COMPILE);
    glEndList();
    lists.NewList(4065, KeepBy::DriverOnly);
    DrawRow(20);
    lists.EndList();
    EXPECT_EQ(Show().CountOf(kWhite), 40); // drawn at once
    lists.CallList(4065);
    EXPECT_EQ(Show().CountOf(kWhite), 0);
    EXPECT_TRUE(glIsList(4065));
}

TEST(CutLine, KeepsWhatLiesInside) {
    const Box box{-10, -10, 10, 10};
    struct {
        Point2 from, to;
        bool meets;
        Point2 cutFrom, cutTo;
    } const cases[] = {
        {{-5, 0}, {5, 0}, true, {-5, 0}, {5, 0}},
        {{-100, 0}, {100, 0}, true, {-10, 0}, {10, 0}},
        {{0, 0}, {100, 0}, true, {0, 0}, {10, 0}},
        {{-20, -20}, {20, 20}, true, {-10, -10}, {10, 10}},
        {{-20, 0}, {0, 20}, true, {-10, 10}, {-10, 10}}, // touches the corner
        {{-30, 0}, {0, 30}, false, {}, {}},
        {{-100, 11}, {100, 11}, false, {}, {}},
        {{-100, 10}, {100, 10}, true, {-10, 10}, {10, 10}}, // along the border
        {{3, 3}, {3, 3}, true, {3, 3}, {3, 3}},
        {{30, 3}, {30, 3}, false, {}, {}},
    };
    for (const auto& c : cases) {
        Point2 from = c.from, to = c.to;
        EXPECT_EQ(CutLine(from, to, box), c.meets);
        if (!c.meets) continue;
        EXPECT_NEAR(from.x, c.cutFrom.x, 1e-12);
        EXPECT_NEAR(from.y, c.cutFrom.y, 1e-12);
        EXPECT_NEAR(to.x, c.cutTo.x, 1e-12);
        EXPECT_NEAR(to.y, c.cutTo.y, 1e-12);
    }
}

TEST(Affine, AppliesTheInnerPlacementFirst) {
    const Affine place = Affine::Shift(10, 20) * Affine::Turn(90) * Affine::Stretch(2, 3);
    const Point2 p = place(1, 1); // (2, 3), turned to (-3, 2)
    EXPECT_DOUBLE_EQ(p.x, 7.0);
    EXPECT_DOUBLE_EQ(p.y, 22.0);
}

TEST(RecordSink, KeepsDoublesWhereFloatsAreTooCoarse) {
    LookTable looks;
    RecordSink sink(looks);
    const auto callsOf = [&](double length) {
        sink.Reset(false);
        sink.Begin(Figure::LineStrip);
        sink.Vertex(1e7, 1e7);
        sink.Vertex(1e7 + length + 0.3, 1e7);
        sink.End();
        RecordWalk walk(sink.Words());
        RecordedCall call;
        EXPECT_TRUE(walk.Next(call));
        EXPECT_EQ(call.call, Call::Look);
        EXPECT_TRUE(walk.Next(call));
        EXPECT_NEAR(call.At(1).x, length + 0.3, 1.0 / 1024);
        RecordedCall end;
        EXPECT_FALSE(walk.Next(end));
        return call.call;
    };
    EXPECT_EQ(callsOf(100), Call::Lines);
    EXPECT_EQ(callsOf(1e6), Call::FarLines);
}

TEST(RecordSink, WritesALookOnlyWhereItChanges) {
    LookTable looks;
    RecordSink sink(looks);
    sink.Reset(true);
    for (int i = 0; i < 3; ++i) {
        sink.Color(1, 1, 1, 1);
        sink.Begin(Figure::LineStrip);
        sink.Vertex(0, 0);
        sink.Vertex(1, 1);
        sink.End();
    }
    EXPECT_EQ(sink.Words().size(), 2u + 3 * (1 + 4));
}

TEST(RecordSink, TurnsFansAndStripsIntoTriangles) {
    LookTable looks;
    RecordSink sink(looks);
    for (const Figure figure : {Figure::Polygon, Figure::TriangleFan, Figure::TriangleStrip}) {
        sink.Reset(true);
        sink.Begin(figure);
        for (int i = 0; i < 5; ++i)
            sink.Vertex(i, i * i);
        sink.End();
        RecordWalk walk(sink.Words());
        RecordedCall call;
        walk.Next(call);
        walk.Next(call);
        EXPECT_TRUE(call.IsTriangles());
        EXPECT_EQ(call.count, 9u);
    }
}

TEST(ListNames, SymbolsCollideWithCharactersAndItems) {
    EXPECT_FALSE(CollidesWithOthers(1999));
    EXPECT_TRUE(CollidesWithOthers(2000));
    EXPECT_TRUE(CollidesWithOthers(2177));
    EXPECT_FALSE(CollidesWithOthers(2178));
    EXPECT_FALSE(CollidesWithOthers(8000));
    EXPECT_TRUE(CollidesWithOthers(8001));
    EXPECT_TRUE(CollidesWithOthers(2147483647));
    EXPECT_TRUE(CollidesWithOthers(-1));
}

TEST(ListNames, ItemsKeepAwayFromFontsSymbolsAndCharacters) {
    for (const unsigned id : {0u, 976u, 1999u, 2000u, 10000u, 0x7F000000u, 0xFFFFFFFEu})
        EXPECT_TRUE(IsReservedForShapes(id)) << id;
    for (const unsigned id : {1u, 975u, 10001u, 0x7EFFFFFFu})
        EXPECT_FALSE(IsReservedForShapes(id)) << id;
}

} // namespace
} // namespace zv::testing
