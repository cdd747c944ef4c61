#include "context/ZvDisplayContext.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "PlainTarget.h"
#include "platform/Numbers.h"
#include "support/SymbolHome.h"

namespace {

using zv::test::PlainTarget;
using zv::test::RecordingContext;

/// Notes where the frame has placed the member that it draws.
class PlacementTarget : public PlainTarget {
  public:
    std::vector<std::string> places;
    bool throwing = false;
    void DrawPolyLine(CZvDispPolyLine& line) override { Note(line); }
    void DrawText(CZvDispText& text) override { Note(text); }
    using PlainTarget::itemKind;

  private:
    void Note(CZvDisplayItem& item) {
        if (throwing) throw std::runtime_error("full");
        places.push_back(zv::FormatShortest(placeX) + "," + zv::FormatShortest(placeY) + " x" +
                         zv::FormatShortest(placeScale) + " r" + zv::FormatShortest(placeRotate) +
                         " d" + zv::FormatShortest(item.GetDegree()) + " k" +
                         zv::FormatInt(itemKind) + (item.GetInActive() ? " inactive" : "") +
                         (inSymbol ? "" : " outside") + " c" + zv::FormatInt(item.GetColor()));
    }
};

CZvDispSymbols& PlacedSymbol(CZvDispSymbols& symbol) {
    auto* line = new CZvDispPolyLine(std::vector<CZvDispPoint>{{0, 0}, {1, 0}});
    line->SetDegree(5.0);
    auto* text = new CZvDispText;
    text->SetDegree(10.0);
    auto* hidden = new CZvDispPolyLine;
    hidden->SetVisibility(false);
    CZvDispSymbols::S_AddExternalSymbols(new std::list<CZvDisplayItem*>{line, text, hidden}, 1900);
    symbol.SetSymbolNum(1900);
    symbol.SetCenter({50, 60});
    symbol.SetScale(3.0);
    symbol.SetDegree(90.0);
    symbol.SetInActive(true);
    symbol.SetColor(static_cast<ZVColor>(5), 0);
    symbol.SetTextColor(static_cast<ZVColor>(6), 0);
    return symbol;
}

TEST(ContextSymbol, PlacesItsMembersAndTurnsItsTexts) {
    zv::test::SymbolHome home;
    home.WriteEmptyFiles();
    PlacementTarget target;
    CZvDispSymbols symbol;
    target.DrawDispItem(&PlacedSymbol(symbol));
    EXPECT_EQ(target.places, (std::vector<std::string>{"50,60 x3 r90 d5 k15 inactive c5",
                                                       "50,60 x3 r90 d100 k15 inactive c6"}));
    EXPECT_EQ(target.placeX, 0.0);
    EXPECT_EQ(target.placeScale, 1.0);
    EXPECT_FALSE(target.inSymbol);
}

TEST(ContextSymbol, LiesWhereItsCentreLies) {
    zv::test::SymbolHome home;
    home.WriteEmptyFiles();
    PlacementTarget target;
    target.clipOn = true;
    target.boundPolygon = {{0, 0}, {0, 10}, {10, 10}, {10, 0}};
    CZvDispSymbols symbol;
    PlacedSymbol(symbol);
    EXPECT_FALSE(target.ClipSymbol(symbol));
    target.DrawDispItem(&symbol);
    EXPECT_TRUE(target.places.empty());
    EXPECT_EQ(target.itemKind, 15);
    symbol.SetCenter({5, 5});
    EXPECT_TRUE(target.ClipSymbol(symbol));
    target.DrawDispItem(&symbol);
    EXPECT_EQ(target.places.size(), 2u);
}

TEST(ContextSymbol, ATargetThatThrowsLeavesNothingBehind) {
    zv::test::SymbolHome home;
    home.WriteEmptyFiles();
    PlacementTarget target;
    target.throwing = true;
    CZvDispSymbols symbol;
    EXPECT_THROW(target.DrawDispItem(&PlacedSymbol(symbol)), std::runtime_error);
    EXPECT_FALSE(target.inSymbol);
    EXPECT_EQ(target.placeX, 0.0);
    EXPECT_EQ(CZvDispSymbols::S_GetItemList(1900)->front()->GetColor(), 8);
}

TEST(ContextSymbol, FilledMembersTakeTheFillColour) {
    zv::test::SymbolHome home;
    home.WriteEmptyFiles();
    RecordingContext context;
    auto* area = new CZvDispPolygon(std::vector<CZvDispPoint>{{0, 0}, {1, 0}, {0, 0}});
    area->SetFill(true);
    CZvDispSymbols symbol;
    CZvDispSymbols::S_AddExternalSymbols(new std::list<CZvDisplayItem*>{area, new CZvDispCircle},
                                         1901);
    symbol.SetSymbolNum(1901);
    symbol.SetFillColor(static_cast<ZVColor>(20), 0);
    context.DrawDispItem(&symbol);
    EXPECT_EQ(context.Take(),
              "symbol 1901 0,0 c8\npolygon 0,0 1,0 0,0 c20 filled\ncircle 0,0 r 1 c8\n");
}

TEST(ContextPlacement, OutsideASymbolAVertexStandsAsItIs) {
    PlainTarget target;
    double x = 0, y = 0;
    target.placeX = 50;
    target.GetXYPos(1, 2, &x, &y, false);
    EXPECT_EQ(x, 1.0);
    EXPECT_EQ(y, 2.0);
    target.inSymbol = true;
    target.placeY = 60;
    target.placeScale = 3;
    target.placeRotate = 90;
    target.GetXYPos(1, 2, &x, &y, false); // (1, 2) turns to (-2, 1)
    EXPECT_EQ(x, 44.0);
    EXPECT_EQ(y, 63.0);
    target.GetXYPos(1, 2, &x, &y, true);
    EXPECT_EQ(x, 53.0);
    EXPECT_EQ(y, 66.0);
    target.placeRotate = -270;
    target.GetXYPos(1, 2, &x, &y, false);
    EXPECT_EQ(x, 44.0);
}

} // namespace
