#include "items/ZvDispSymbols.h"

#include <gtest/gtest.h>

#include <memory>

#include "context/ZvDispGL.h"
#include "items/ZvUpdateRecord.h"
#include "support/LogLines.h"
#include "support/RecordingContext.h"
#include "support/SymbolHome.h"

namespace {

using zv::test::LogLines;
using zv::test::RecordingContext;
using zv::test::SymbolHome;

ZVColor C(int index) {
    return static_cast<ZVColor>(index);
}

std::unique_ptr<CZvDispSymbols> Symbol(int number) {
    return std::make_unique<CZvDispSymbols>(CZvDispPoint(10, 20), number);
}

TEST(SymbolItem, AnUnknownNumberLogsALineForEachDraw) {
    SymbolHome home;
    home.WriteEmptyFiles();
    LogLines log;
    RecordingContext context;
    auto symbol = Symbol(333);
    symbol->Draw(&context);
    symbol->Draw(&context);
    EXPECT_EQ(context.Take(), "");
    ASSERT_EQ(log.Get().size(), 2u);
    EXPECT_EQ(log.Get()[0], (LogLines::Line{"Symbol 333 not found. skipped.", 101, false}));
    EXPECT_TRUE(context.DrawDispItem(symbol.get()));
    EXPECT_EQ(log.Get().size(), 3u);
}

/// A library of one symbol: a line, a filled polygon and a text.
void AddMixedSymbol(int number) {
    auto* line = new CZvDispPolyLine(std::vector<CZvDispPoint>{{0, 0}, {1, 0}});
    line->SetLineWidth(1, 0);
    auto* area = new CZvDispPolygon(std::vector<CZvDispPoint>{{0, 0}, {1, 0}, {1, 1}, {0, 0}});
    area->SetFill(true);
    auto* text = new CZvDispText;
    text->SetLabel("T");
    CZvDispSymbols::S_AddExternalSymbols(new std::list<CZvDisplayItem*>{line, area, text}, number);
}

TEST(SymbolItem, ItsOwnDrawKeepsTheTextColourForGood) {
    SymbolHome home;
    home.WriteEmptyFiles();
    RecordingContext context;
    auto symbol = Symbol(1001);
    AddMixedSymbol(1001);
    symbol->SetColor(C(5), 0);
    symbol->SetFillColor(C(20), 0);
    symbol->SetLineWidth(2, 0);
    symbol->SetLineType(3, 0);
    symbol->Draw(&context);
    EXPECT_EQ(context.Take(), "symbol 1001 10,20 c5 w2 t3\n"
                              "line 0,0 1,0 c5 w2 t3\n" // 1 + 2 - 1
                              "polygon 0,0 1,0 1,1 0,0 c20 w1 t3 filled\n"
                              "text \"T\" 0,0 c5\n");
    EXPECT_EQ(CZvDispSymbols::S_GetItemList(1001)->front()->GetLineWidth(), 1);
    EXPECT_EQ(symbol->GetTextColor(), 5);
    symbol->SetColor(C(6), 0);
    symbol->Draw(&context);
    EXPECT_NE(context.Take().find("text \"T\" 0,0 c5"), std::string::npos);
}

TEST(SymbolItem, TheFramesDrawRestoresAllButTheLineType) {
    SymbolHome home;
    home.WriteEmptyFiles();
    RecordingContext context;
    auto symbol = Symbol(1001);
    AddMixedSymbol(1001);
    symbol->SetColor(C(5), 0);
    symbol->SetLineWidth(2, 0);
    symbol->SetLineType(3, 0);
    EXPECT_TRUE(context.DrawDispItem(symbol.get()));
    EXPECT_EQ(context.Take(), "symbol 1001 10,20 c5 w2 t3\n"
                              "line 0,0 1,0 c5 w3 t3\n" // 1 + 2
                              "polygon 0,0 1,0 1,1 0,0 c5 w2 t3 filled\n"
                              "text \"T\" 0,0 c5\n");
    EXPECT_EQ(symbol->GetTextColor(), -1);
    for (CZvDisplayItem* member : *CZvDispSymbols::S_GetItemList(1001)) {
        EXPECT_EQ(member->GetColor(), 8);
        EXPECT_EQ(member->GetLineType(), member->GetDispType() == ZV_DISP_TEXT ? 0 : 3);
    }
    EXPECT_EQ(CZvDispSymbols::S_GetItemList(1001)->front()->GetLineWidth(), 1);
}

TEST(SymbolItem, OriginalColoursAreLeftToTheLibrary) {
    SymbolHome home;
    home.WriteEmptyFiles();
    RecordingContext context;
    auto symbol = Symbol(1001);
    AddMixedSymbol(1001);
    symbol->SetColor(C(5), 0);
    symbol->SetUseOrigColor(true);
    context.DrawDispItem(symbol.get());
    EXPECT_EQ(context.Take(), "symbol 1001 10,20 c5\nline 0,0 1,0 c8 w1\n"
                              "polygon 0,0 1,0 1,1 0,0 c8 filled\ntext \"T\" 0,0 c8\n");
}

TEST(SymbolItem, WidthsWrapAtEightBits) {
    SymbolHome home;
    home.WriteEmptyFiles();
    RecordingContext context;
    auto symbol = Symbol(1001);
    AddMixedSymbol(1001);
    symbol->SetLineWidth(255, 0);
    context.DrawDispItem(symbol.get());
    EXPECT_NE(context.Take().find("line 0,0 1,0 c8\n"), std::string::npos) << "1 + 255 is 0";
    EXPECT_EQ(CZvDispSymbols::S_GetItemList(1001)->front()->GetLineWidth(), 1);
    symbol->SetLineWidth(0, 0);
    symbol->Draw(&context);
    EXPECT_NE(context.Take().find("polygon 0,0 1,0 1,1 0,0 c8 w255"), std::string::npos) << "0 - 1";
}

TEST(SymbolItem, TurnsItsCentreAndTakesTheDegree) {
    SymbolHome home;
    home.WriteEmptyFiles();
    auto symbol = Symbol(51);
    symbol->SetDegree(45.0);
    symbol->V_Rotate({10, 10}, 90.0);
    EXPECT_EQ(symbol->GetCenter().GetX(), 0.0);
    EXPECT_EQ(symbol->GetCenter().GetY(), 10.0);
    EXPECT_EQ(symbol->GetDegree(), 90.0);
    symbol->V_Rotate({0, 0}, -0.0);
    EXPECT_EQ(symbol->GetDegree(), 90.0);
    EXPECT_EQ(symbol->GetCenterPt().GetX(), 0.0);
}

class SymbolScreen : public CZvDispGL {
  public:
    std::vector<std::string> trace;
    void DrawSymbol(CZvDispSymbols& symbol) override {
        trace.push_back("c" + std::to_string(symbol.GetColor()) + " t" +
                        std::to_string(symbol.GetTextColor()) + " f" +
                        std::to_string(symbol.GetFillColor()));
    }
};

TEST(SymbolItem, CopiesTakeAllFields) {
    SymbolHome home;
    home.WriteEmptyFiles();
    auto symbol = Symbol(77);
    symbol->SetScale(3.5);
    symbol->SetTextColor(C(4), 0);
    symbol->SetFillColor(C(5), 0);
    symbol->SetUseGroupColorFlg(true);
    symbol->SetUseOrigColor(true);
    symbol->SetID("API");
    const CZvDispSymbols copy(*symbol);
    EXPECT_EQ(copy.GetSymbolNum(), 77);
    EXPECT_EQ(copy.GetScale(), 3.5);
    EXPECT_EQ(copy.GetTextColor(), 4);
    EXPECT_EQ(copy.GetFillColor(), 5);
    EXPECT_TRUE(copy.GetUseGroupColorFlg());
    EXPECT_TRUE(copy.GetUseOrigColor());
    EXPECT_EQ(copy.GetID(), "API");
    EXPECT_EQ(copy.GetCenter().GetY(), 20.0);
}

TEST(SymbolItem, AMoveStepShiftsTheCentreAndMarksTheMembers) {
    SymbolHome home;
    home.WriteEmptyFiles();
    SymbolScreen screen;
    auto symbol = Symbol(1001);
    AddMixedSymbol(1001);
    T_ZV_STRUC_UPDATE step;
    step.code = 'm';
    step.context = &screen;
    step.deltaX = 1.0;
    step.deltaY = 2.0;
    symbol->V_Update(&step);
    EXPECT_EQ(symbol->GetCenter().GetX(), 11.0);
    EXPECT_EQ(symbol->GetCenter().GetY(), 22.0);
    EXPECT_FALSE(symbol->GetUseGroupColorFlg());
    EXPECT_TRUE(CZvDispSymbols::S_GetItemList(1001)->front()->IsCustomCode('m'));
    EXPECT_EQ(screen.trace, std::vector<std::string>{"c8 t-1 f-1"});
}

TEST(SymbolItem, InvisibleItIsNotDrawn) {
    SymbolHome home;
    home.WriteEmptyFiles();
    RecordingContext context;
    auto symbol = Symbol(1001);
    AddMixedSymbol(1001);
    symbol->SetVisibility(false);
    symbol->Draw(&context);
    EXPECT_EQ(context.Take(), "");
}

TEST(SymbolItem, IsErasedWithoutTheGroupColourFlagWhichComesBack) {
    struct FlagContext : RecordingContext {
        std::vector<bool> flags;
        void DrawSymbol(CZvDispSymbols& symbol) override {
            flags.push_back(symbol.GetUseGroupColorFlg());
        }
    };
    SymbolHome home;
    home.WriteEmptyFiles();
    FlagContext context;
    auto symbol = Symbol(1001);
    symbol->SetUseGroupColorFlg(true);
    symbol->Erase(&context);
    EXPECT_EQ(context.flags, std::vector<bool>{false});
    EXPECT_TRUE(symbol->GetUseGroupColorFlg());
}

TEST(SymbolItem, OtherStepsEraseItAndLeaveItsPlace) {
    SymbolHome home;
    home.WriteEmptyFiles();
    for (const char code : {'d', 'f', 'r', 'q'}) {
        SymbolScreen screen;
        auto symbol = Symbol(1001);
        AddMixedSymbol(1001);
        T_ZV_STRUC_UPDATE step;
        step.code = static_cast<unsigned char>(code);
        step.context = &screen;
        step.deltaX = 5.0;
        symbol->V_Update(&step);
        EXPECT_EQ(screen.trace, std::vector<std::string>{"c8 t-1 f-1"}) << code;
        EXPECT_EQ(symbol->GetCenter().GetX(), 10.0);
        EXPECT_EQ(symbol->IsCustomCode('c'), code != 'f');
    }
}

TEST(SymbolItem, ShownAgainItStandsInTheCodedColours) {
    SymbolHome home;
    home.WriteEmptyFiles();
    SymbolScreen screen;
    auto symbol = Symbol(1001);
    AddMixedSymbol(1001);
    symbol->SetColor(C(5), 0);
    T_ZV_STRUC_UPDATE step;
    step.code = 'v';
    step.context = &screen;
    symbol->V_Update(&step);
    EXPECT_EQ(screen.trace, (std::vector<std::string>{"c5 t-1 f-1", "c246 t246 f246"}));
    EXPECT_EQ(symbol->GetColor(), 5);
    EXPECT_EQ(symbol->GetTextColor(), -1);
}

} // namespace
