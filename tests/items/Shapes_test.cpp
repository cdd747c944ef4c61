#include <gtest/gtest.h>

#include <cmath>

#include "context/ZvDispGL.h"
#include "items/ItemUpdate.h"
#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispPolygon.h"
#include "support/LogLines.h"
#include "support/RecordingContext.h"

namespace {

using zv::test::RecordingContext;

std::vector<CZvDispPoint> SquareVertices() {
    return {{0, 0}, {4, 0}, {4, 4}, {0, 4}};
}

TEST(PolyLine, DrawsWhereVisible) {
    RecordingContext context;
    CZvDispPolyLine line({{0, 0}, {3, 4, 0, true}, {5, 5, 0, false}});
    line.Draw(&context);
    EXPECT_EQ(context.Take(), "line 0,0 3,4 ^5,5 c8\n");
    line.SetVisibility(false);
    line.Draw(&context);
    EXPECT_EQ(context.Take(), "");
}

TEST(PolyLine, ACodedLineDrawsInTheColourOfItsCodeAndKeepsItsOwn) {
    RecordingContext context;
    CZvDispPolyLine line({{0, 0}, {1, 1}});
    line.SetColor(static_cast<ZVColor>(5), 0);
    for (const auto& [code, color] :
         {std::pair{'m', "11"}, {'r', "11"}, {'d', "246"}, {'v', "246"}}) {
        line.SetCustomCode(static_cast<unsigned char>(code));
        line.Draw(&context);
        EXPECT_EQ(context.Take(), std::string("line 0,0 1,1 c") + color + "\n") << code;
        EXPECT_EQ(line.GetColor(), 5);
    }
}

TEST(PolyLine, EraseDrawsInTheBackgroundsColourAndKeepsTheOwn) {
    struct Watched : CZvDispPolyLine {
        using CZvDispPolyLine::CZvDispPolyLine;
        std::vector<int> set;
        void SetColor(ZVColor color, int key) override {
            set.push_back(color);
            CZvDispPolyLine::SetColor(color, key);
        }
    };
    RecordingContext context;
    Watched line({{0, 0}, {1, 1}});
    line.Erase(&context);
    EXPECT_EQ(context.Take(), "line 0,0 1,1 c99\n");
    EXPECT_EQ(line.GetColor(), 8);
    EXPECT_EQ(line.set, std::vector<int>{99}) << "the old colour goes straight into the field";
}

TEST(PolyLine, CenterIsThatOfTheClosedFigure) {
    CZvDispPolyLine line(SquareVertices());
    const CZvDispPoint center = line.GetCenterPt();
    EXPECT_DOUBLE_EQ(center.GetX(), 2.0);
    EXPECT_DOUBLE_EQ(center.GetY(), 2.0);
    CZvDispPolyLine empty;
    EXPECT_EQ(empty.GetCenterPt().GetX(), 0.0);
    EXPECT_EQ(empty.GetCenterPt().GetY(), 0.0);
}

TEST(PolyLine, ItsOwnVerticesAsArgumentLeaveItEmpty) {
    CZvDispPolyLine line(SquareVertices());
    line.SetVertices(line.GetVertices());
    EXPECT_EQ(line.GetSize(), 0);
}

TEST(PolyLine, AZeroTurnChangesNoBit) {
    CZvDispPolyLine line({{0.1, 0.2, 0.3, false}, {1e-300, -0.0}});
    for (const double zero : {0.0, -0.0}) {
        line.V_Rotate({7, 7}, zero);
        EXPECT_EQ(line.GetPoint(0).GetX(), 0.1);
        EXPECT_EQ(line.GetPoint(0).GetY(), 0.2);
        EXPECT_FALSE(line.GetPoint(0).GetDown());
        EXPECT_EQ(line.GetPoint(1).GetX(), 1e-300);
        EXPECT_TRUE(std::signbit(line.GetPoint(1).GetY()));
    }
}

TEST(PolyLine, TurnsCounterClockwiseAboutTheOrigin) {
    CZvDispPolyLine line({{2, 1}, {1, 1}});
    line.V_Rotate({1, 1}, 90.0);
    EXPECT_EQ(line.GetPoint(0).GetX(), 1.0);
    EXPECT_EQ(line.GetPoint(0).GetY(), 2.0);
    EXPECT_EQ(line.GetPoint(1).GetX(), 1.0);
}

TEST(PolyLine, ClearingKeepsTheCapacity) {
    CZvDispPolyLine line(SquareVertices());
    const std::size_t capacity = line.GetVertices().capacity();
    line.ClearVerticesVector();
    EXPECT_EQ(line.GetSize(), 0);
    EXPECT_EQ(line.GetVertices().capacity(), capacity);
}

TEST(CircleAndArc, AZeroTurnChangesNoBit) {
    CZvDispCircle circle({0.1, -0.0, 0.3}, 2.5);
    CZvDispArc arc({0.1, -0.0, 0.3}, 2.5, 0.7f, -0.0f);
    for (const double zero : {0.0, -0.0}) {
        circle.V_Rotate({7, 7}, zero);
        arc.V_Rotate({7, 7}, zero);
        for (const CZvDispPoint& center : {circle.GetCenter(), arc.GetCenter()}) {
            EXPECT_EQ(center.GetX(), 0.1);
            EXPECT_TRUE(std::signbit(center.GetY()));
            EXPECT_EQ(center.GetZ(), 0.3);
        }
        EXPECT_EQ(circle.GetRadius(), 2.5);
        EXPECT_EQ(arc.GetStartAngle(), 0.7f);
        EXPECT_TRUE(std::signbit(arc.GetEndAngle()));
    }
}

TEST(CircleAndArc, DrawInTheColourOfTheirCode) {
    RecordingContext context;
    CZvDispCircle circle({1, 2}, 3.0);
    CZvDispArc arc({1, 2}, 3.0, 0.0f, 90.0f);
    for (const auto& [code, color] : {std::pair{'m', "11"}, {'r', "11"}, {'v', "246"}}) {
        for (CZvDisplayItem* item : std::initializer_list<CZvDisplayItem*>{&circle, &arc}) {
            item->SetCustomCode(static_cast<unsigned char>(code));
            item->SetVisibility(false);
            item->Draw(&context);
            const std::string trace = context.Take();
            EXPECT_TRUE(trace.ends_with(std::string(" c") + color + "\n")) << trace;
            EXPECT_EQ(item->GetColor(), 8);
        }
    }
    arc.Erase(&context);
    EXPECT_EQ(context.Take(), "arc 1,2 r 3 from 0 to 90 c0\n");
    EXPECT_EQ(arc.GetColor(), 8);
}

TEST(Polygon, IsDrawnEvenWhenDeletedAndInvisible) {
    RecordingContext context;
    CZvDispPolygon polygon(SquareVertices());
    polygon.SetCustomCode('d');
    polygon.SetVisibility(false);
    polygon.Draw(&context);
    EXPECT_EQ(context.Take(), "polygon 0,0 4,0 4,4 0,4 c8\n") << "no code colour either";
}

TEST(Polygon, ErasesByDrawingItselfOnceMore) {
    RecordingContext context;
    CZvDispPolygon polygon(SquareVertices());
    polygon.Erase(&context);
    EXPECT_EQ(context.Take(), "polygon 0,0 4,0 4,4 0,4 c8\n");
}

TEST(Polygon, ACopyIsEmptyAndAnAssignmentTakesDepthsAndFlags) {
    CZvDispPolygon polygon(SquareVertices());
    polygon.SetSpecialPolygonFlag(true);
    polygon.SetMinDepth(100.0);
    polygon.SetMaxDepth(250.0);
    polygon.SetDifferentZPolygonFlag(true);
    CZvDispPolygon copy(polygon);
    EXPECT_EQ(copy.GetSize(), 0);
    EXPECT_FALSE(copy.GetSpecialPolygonFlag());
    copy = polygon;
    EXPECT_EQ(copy.GetSize(), 4);
    EXPECT_TRUE(copy.GetSpecialPolygonFlag());
    EXPECT_EQ(copy.GetMinDepth(), 100.0);
    EXPECT_EQ(copy.GetMaxDepth(), 250.0);
    EXPECT_TRUE(copy.GetDifferentZPolygonFlag());
}

TEST(Circle, DrawAsksOnlyWhetherItIsDeleted) {
    RecordingContext context;
    CZvDispCircle circle({5, 5}, 2.0);
    circle.SetVisibility(false);
    circle.Draw(&context);
    EXPECT_EQ(context.Take(), "circle 5,5 r 2 c8\n");
    circle.SetCustomCode('d');
    circle.Draw(&context);
    EXPECT_EQ(context.Take(), "");
}

TEST(Circle, DefaultsEraseAndAssignment) {
    RecordingContext context;
    CZvDispCircle circle;
    EXPECT_EQ(circle.GetRadius(), 1.0);
    circle.SetColor(static_cast<ZVColor>(7), 0);
    circle.Erase(&context);
    EXPECT_EQ(context.Take(), "circle 0,0 r 1 c0\n");
    EXPECT_EQ(circle.GetColor(), 7);
    CZvDispCircle other({1, 2}, 3.0);
    other.SetColor(static_cast<ZVColor>(4), 0);
    circle = other;
    EXPECT_EQ(circle.GetColor(), 7) << "assigning keeps the target's colour";
    EXPECT_EQ(circle.GetRadius(), 3.0);
    EXPECT_EQ(circle.GetCenter().GetY(), 2.0);
    CZvDispCircle copy(other);
    EXPECT_EQ(copy.GetColor(), 8);
    EXPECT_EQ(copy.GetRadius(), 3.0);
}

TEST(Circle, AnswersTheOriginForItsCenterPoint) {
    CZvDispCircle circle({5, 5}, 1.0);
    EXPECT_EQ(circle.GetCenterPt().GetX(), 0.0);
    EXPECT_EQ(circle.GetCenterPt().GetY(), 0.0);
}

TEST(Arc, TurnsAboutItsOwnCenterByItsAnglesAlone) {
    CZvDispArc arc({3, 4}, 2.0, 10.0f, 50.0f);
    arc.V_Rotate({3, 4}, 90.0);
    EXPECT_EQ(arc.GetCenter().GetX(), 3.0);
    EXPECT_EQ(arc.GetCenter().GetY(), 4.0);
    EXPECT_EQ(arc.GetStartAngle(), 100.0f);
    EXPECT_EQ(arc.GetEndAngle(), 140.0f);
    EXPECT_EQ(arc.GetRadius(), 2.0);
    arc.V_Rotate({0, 0}, -0.0);
    EXPECT_EQ(arc.GetStartAngle(), 100.0f);
    EXPECT_EQ(arc.GetCenter().GetX(), 3.0);
}

TEST(Arc, AssignmentTakesTheBaseAndTheShape) {
    CZvDispArc from({3, 4}, 2.0, 10.0f, 50.0f), to;
    EXPECT_EQ(to.GetRadius(), 1.0);
    from.SetColor(static_cast<ZVColor>(6), 0);
    to = from;
    EXPECT_EQ(to.GetColor(), 6);
    EXPECT_EQ(to.GetStartAngle(), 10.0f);
    EXPECT_EQ(to.GetEndAngle(), 50.0f);
    RecordingContext context;
    to.SetCustomCode('d');
    to.Draw(&context);
    EXPECT_EQ(context.Take(), "");
}

/// A screen without a rendering context that writes down what items draw on it.
class RecordingScreen : public CZvDispGL {
  public:
    std::vector<std::string> trace;
    bool traceCoded = false;
    void DrawPolyLine(CZvDispPolyLine& line) override { Say("line", line); }
    void DrawPolygon(CZvDispPolygon& polygon) override { Say("polygon", polygon); }
    void DrawCircle(CZvDispCircle& circle) override { Say("circle", circle); }
    void DrawArc(CZvDispArc& arc) override { Say("arc", arc); }
    void DrawText(CZvDispText& text) override { Say("text", text); }

  private:
    void Say(const char* what, CZvDisplayItem& item) {
        trace.push_back(std::string(what) + " c" + std::to_string(item.GetColor()) +
                        (traceCoded && item.IsCustomCode('c') ? " coded" : ""));
    }
};

struct Step : T_ZV_STRUC_UPDATE {
    Step(char letter, RecordingScreen& screen, double dx = 0.0, double dy = 0.0) {
        code = static_cast<unsigned char>(letter);
        context = &screen;
        deltaX = dx;
        deltaY = dy;
    }
};

using Trace = std::vector<std::string>;

TEST(EditStep, MovingALineErasesItAndShiftsEveryVertex) {
    RecordingScreen screen;
    CZvDispPolyLine line(SquareVertices());
    const Step step('m', screen, 10.0, -1.0);
    line.V_Update(&step);
    EXPECT_EQ(screen.trace, Trace{"line c99"}) << "a moved line is drawn again by its owner";
    EXPECT_EQ(line.GetPoint(2).GetX(), 14.0);
    EXPECT_EQ(line.GetPoint(2).GetY(), 3.0);
    EXPECT_TRUE(line.IsCustomCode('m'));
}

TEST(EditStep, MovingALineWithoutVerticesOnlyRedraws) {
    RecordingScreen screen;
    CZvDispPolyLine line;
    const Step step('m', screen, 10.0, -1.0);
    line.V_Update(&step);
    EXPECT_EQ(line.GetSize(), 0);
    EXPECT_EQ(screen.trace.size(), 1u);
}

TEST(EditStep, ALineRefusesToTurn) {
    zv::test::LogLines log;
    RecordingScreen screen;
    CZvDispPolyLine line(SquareVertices());
    const Step step('r', screen);
    line.V_Update(&step);
    ASSERT_EQ(log.Get().size(), 1u);
    EXPECT_EQ(log.Get()[0], (zv::test::LogLines::Line{"can't rotate this object", 101, false}));
}

TEST(EditStep, ShowingAgainDrawsInTheCodedColour) {
    RecordingScreen screen;
    CZvDispPolyLine line(SquareVertices());
    line.SetColor(static_cast<ZVColor>(5), 0);
    const Step step('v', screen);
    line.V_Update(&step);
    EXPECT_EQ(screen.trace, (Trace{"line c99", "line c246"}));
    EXPECT_EQ(line.GetColor(), 5);
}

TEST(EditStep, FinishingDrawsNothingMoreSinceItUncodesTheItem) {
    RecordingScreen screen;
    CZvDispPolyLine line(SquareVertices());
    const Step step('f', screen);
    line.V_Update(&step);
    EXPECT_EQ(screen.trace, Trace{"line c99"});
    EXPECT_FALSE(line.IsCustomCode('c'));
}

TEST(EditStep, ACircleIsErasedBeforeItIsCoded) {
    RecordingScreen screen;
    CZvDispCircle circle({1, 1}, 2.0);
    const Step step('m', screen, 3.0, 4.0);
    circle.V_Update(&step);
    EXPECT_EQ(screen.trace, Trace{"circle c0"});
    EXPECT_EQ(circle.GetCenter().GetX(), 4.0);
    EXPECT_EQ(circle.GetCenter().GetY(), 5.0);
    CZvDispArc arc({1, 1}, 2.0, 0.0f, 90.0f);
    arc.V_Update(&step);
    EXPECT_EQ(arc.GetCenter().GetX(), 4.0);
}

TEST(EditStep, LinesAreCodedBeforeTheyAreErasedCirclesAndArcsAfterwards) {
    RecordingScreen screen;
    screen.traceCoded = true;
    const Step step('d', screen);
    CZvDispPolyLine line(SquareVertices());
    CZvDispPolygon polygon(SquareVertices());
    CZvDispCircle circle;
    CZvDispArc arc;
    for (CZvDisplayItem* item :
         std::initializer_list<CZvDisplayItem*>{&line, &polygon, &circle, &arc})
        item->V_Update(&step);
    EXPECT_EQ(screen.trace, (Trace{"line c99 coded", "polygon c8 coded", "circle c0", "arc c0"}));
}

TEST(EditStep, UpdateDoesNotRedrawAnItemThatIsOnlyCoded) {
    RecordingScreen screen;
    CZvDispPolyLine line(SquareVertices());
    const Step step('v', screen);
    line.Update(&step);
    EXPECT_EQ(screen.trace, (Trace{"line c99", "line c246"})) << "both by the edit step itself";
}

TEST(EditStep, AnUnknownLetterStopsBeforeTheBase) {
    RecordingScreen screen;
    CZvDispCircle circle({1, 1}, 2.0);
    const Step step('q', screen, 3.0, 4.0);
    circle.V_Update(&step);
    EXPECT_EQ(circle.GetCenter().GetX(), 1.0);
    EXPECT_TRUE(circle.IsCustomCode('c'));
    EXPECT_EQ(screen.trace.size(), 1u);
}

TEST(EditStep, UpdateRedrawsUncodedItemsInTheirOwnColourAndTurnedOnesInTheCoded) {
    RecordingScreen screen;
    CZvDispPolygon polygon(SquareVertices());
    polygon.SetColor(static_cast<ZVColor>(5), 0);
    const Step final('f', screen);
    polygon.Update(&final);
    EXPECT_EQ(screen.trace, (Trace{"polygon c5", "polygon c5"})) << "erase, then the redraw";
    screen.trace.clear();
    const Step turn('r', screen);
    polygon.Update(&turn);
    EXPECT_EQ(screen.trace, (Trace{"polygon c5", "polygon c246"}));
    EXPECT_EQ(polygon.GetColor(), 5);
    screen.trace.clear();
    const Step move('m', screen);
    polygon.Update(&move);
    EXPECT_EQ(screen.trace, Trace{"polygon c5"}) << "a moved item is left to its owner";
}

TEST(EditStep, UpdateLeavesInvisibleItemsAlone) {
    RecordingScreen screen;
    CZvDispPolyLine line(SquareVertices());
    line.SetVisibility(false);
    const Step step('v', screen);
    line.Update(&step);
    EXPECT_EQ(screen.trace, Trace{"line c99"});
}

} // namespace
