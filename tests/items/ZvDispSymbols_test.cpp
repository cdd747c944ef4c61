#include "items/ZvDispSymbols.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <sstream>

#include "context/ZvDispGL.h"
#include "items/SymbolMap.h"
#include "items/ZvUpdateRecord.h"
#include "persist/ZvDispFileParam.h"
#include "platform/win/Cursor.h"
#include "support/LogLines.h"
#include "support/RecordingContext.h"
#include "support/SymbolHome.h"

namespace {

using zv::test::DrawingLines;
using zv::test::LogLines;
using zv::test::ReadText;
using zv::test::RecordingContext;
using zv::test::SymbolHome;

ZVColor C(int index) {
    return static_cast<ZVColor>(index);
}

/// A symbol of one line from (0, 0) to (1, 2), zero-based colour 4, width 0, type 0.
std::string LineSymbol(int number, const std::string& description = "") {
    const std::string n = CZvDisplayItem::PadBlankToFront(std::to_string(number), 3);
    std::vector<std::string> lines = {
        "COV:" + n + "13 999LW:  1LT:  1COL:  5X:           0.00000000",
        "Y:           0.00000000",
        "COV2:  14X:           1.00000000Y:           2.00000000",
    };
    if (!description.empty()) {
        lines.push_back("CTX:" + n + "23NUM:" +
                        CZvDisplayItem::PadBlankToFront(std::to_string(description.size()), 2));
        lines.push_back(description);
    }
    // The end of a symbol: EOF and its number, with code 20 and 71 blanks: 80 columns.
    lines.push_back("EOF:" + n + "20");
    return " SYMBOL # " + CZvDisplayItem::PadBlankToFront(std::to_string(number), 4) + "\r\n" +
           DrawingLines(lines);
}

std::unique_ptr<CZvDispSymbols> Symbol(int number) {
    return std::make_unique<CZvDispSymbols>(CZvDispPoint(10, 20), number);
}

TEST(SymbolLibrary, LoadsOnTheFirstSymbolMade) {
    SymbolHome home;
    home.WriteEmptyFiles();
    home.Write("welsym.tab", LineSymbol(51) + LineSymbol(56, "Oil well"));
    home.WriteWork("user.tab", LineSymbol(901));
    EXPECT_EQ(CZvDispSymbols::S_GetItemList(51), nullptr);
    CZvDispSymbols symbol;
    EXPECT_EQ(symbol.GetSymbolNum(), 51);
    ASSERT_NE(CZvDispSymbols::S_GetItemList(51), nullptr);
    EXPECT_EQ(*CZvDispSymbols::S_GetSymbolNumList(), (std::list<int>{51, 56, 901}));
    std::string description = "kept";
    EXPECT_FALSE(CZvDispSymbols::S_GetSymDesc(51, description));
    EXPECT_FALSE(CZvDispSymbols::S_GetSymDesc(77, description));
    EXPECT_EQ(description, "kept");
    EXPECT_TRUE(CZvDispSymbols::S_GetSymDesc(56, description));
    EXPECT_EQ(description, "Oil well");
    EXPECT_TRUE(home.messages.GetShown().empty()) << "user files are optional";
    auto* line = static_cast<CZvDispPolyLine*>(CZvDispSymbols::S_GetItemList(51)->front());
    EXPECT_EQ(line->GetColor(), 4);
    EXPECT_EQ(line->GetLineWidth(), 0);
    EXPECT_EQ(line->GetPoint(1).GetY(), 2.0);
    ASSERT_NE(CZvDispSymbols::S_GetVtxpItemList(51), nullptr);
    EXPECT_TRUE(CZvDispSymbols::S_GetVtxpItemList(51)->empty());
    EXPECT_EQ(CZvDispSymbols::S_GetVtxpItemList(77), nullptr);
}

TEST(SymbolLibrary, AMissingFileIsToldOnce) {
    SymbolHome empty; // its folders stand without any file in them
    CZvDispSymbols first, second;
    std::vector<std::string> texts;
    for (const auto& shown : empty.messages.GetShown())
        texts.push_back(shown.text);
    const std::string path = empty.HomeTemplate();
    EXPECT_EQ(texts,
              (std::vector<std::string>{"Could not open symbol file:\n" + path +
                                            "welsym.tab\nSymbols will not display properly.",
                                        "Could not open symbol file:\n" + path +
                                            "shotsym.tab\nSymbols will not display properly.",
                                        "Could not open symbol file:\n" + path +
                                            "master.sym\nSymbols will not display properly."}));
}

TEST(SymbolLibrary, AFileIsLoadedOnce) {
    SymbolHome home;
    home.WriteEmptyFiles();
    home.Write("extra.sym", LineSymbol(70));
    CZvDispSymbols symbol;
    EXPECT_TRUE(CZvDispSymbols::S_LoadSymbols("extra.sym", "-1", false, "", true));
    EXPECT_FALSE(CZvDispSymbols::S_LoadSymbols("extra.sym", "-1", false, "", false));
    EXPECT_TRUE(home.messages.GetShown().empty());
    EXPECT_FALSE(CZvDispSymbols::S_LoadSymbols("extra.sym", "-1", false, "", true));
    ASSERT_EQ(home.messages.GetShown().size(), 1u);
    EXPECT_EQ(home.messages.GetShown()[0].text,
              "Could not load the symbols\nSame file may already been loaded");
}

TEST(SymbolLibrary, ASingleBlockIsLoadedUnderItsNumberAsOftenAsAsked) {
    SymbolHome home;
    home.WriteEmptyFiles();
    const std::string block = LineSymbol(3);
    home.WriteWork("one.sym", block.substr(block.find("COV:")));
    CZvDispSymbols symbol;
    const std::string path = home.WorkTemplate() + "one.sym";
    EXPECT_TRUE(CZvDispSymbols::S_LoadSymbols(path, "1200", true, "From outside", true));
    std::string description;
    EXPECT_TRUE(CZvDispSymbols::S_GetSymDesc(1200, description));
    EXPECT_EQ(description, "From outside");
    EXPECT_TRUE(CZvDispSymbols::S_LoadSymbols(path, "1201", true, "", true));
    EXPECT_EQ(*CZvDispSymbols::S_GetSymbolNumList(), (std::list<int>{1200, 1201}));
    CZvDispSymbols::S_DeleteExternalSymbols();
    EXPECT_TRUE(CZvDispSymbols::S_GetSymbolNumList()->empty());
}

TEST(SymbolLibrary, AnExistingNumberIsReplacedOrKeptAsTheUserSays) {
    SymbolHome home;
    home.WriteEmptyFiles();
    home.Write("welsym.tab", LineSymbol(51, "first"));
    home.Write("again.sym", LineSymbol(51, "second"));
    CZvDispSymbols symbol;
    home.messages.Script({IDNO});
    EXPECT_TRUE(CZvDispSymbols::S_LoadSymbols("again.sym", "-1", false, "", true));
    std::string description;
    CZvDispSymbols::S_GetSymDesc(51, description);
    EXPECT_EQ(description, "first");
    ASSERT_EQ(home.messages.GetShown().size(), 1u);
    EXPECT_EQ(
        home.messages.GetShown()[0].text,
        "Same symbol number(51) already found from the list.\nDo you want to replace existing "
        "one?\nClick Yes to replace existing,\n click No if you want to Keep existing one");
    EXPECT_EQ(home.messages.GetShown()[0].style, 4u);
    home.Write("again2.sym", LineSymbol(51, "third"));
    home.messages.Script({IDYES});
    EXPECT_TRUE(CZvDispSymbols::S_LoadSymbols("again2.sym", "-1", false, "", true));
    CZvDispSymbols::S_GetSymDesc(51, description);
    EXPECT_EQ(description, "third");
    EXPECT_EQ(CZvDispSymbols::S_GetSymbolNumList()->size(), 1u);
}

TEST(SymbolLibrary, ABlockWithoutItsEndShowsTheInvalidFileMessage) {
    SymbolHome home;
    home.WriteEmptyFiles();
    const std::string good = LineSymbol(51), bad = LineSymbol(52);
    home.Write("cut.sym", good + bad.substr(0, bad.find("EOF:")));
    CZvDispSymbols symbol;
    EXPECT_FALSE(CZvDispSymbols::S_LoadSymbols("cut.sym", "-1", false, "", true));
    ASSERT_EQ(home.messages.GetShown().size(), 1u);
    EXPECT_EQ(home.messages.GetShown()[0].text,
              "This file is not a valid VELDOMAR drawing file."
              "\nIf this is UNIX version of drawing file, use unix2dos to convert it first");
    EXPECT_EQ(home.messages.GetShown()[0].style, 48u);
    EXPECT_NE(CZvDispSymbols::S_GetItemList(51), nullptr) << "what was stored before stays";
    EXPECT_EQ(CZvDispSymbols::S_GetItemList(52), nullptr);
}

TEST(SymbolLibrary, LoadsTheUsersFilesLastAndAnewWhenTheFoldersMove) {
    SymbolHome home;
    home.WriteEmptyFiles();
    home.Write("master.sym", LineSymbol(51));
    home.Write("symmap.tab", "OIL              56\r\n");
    home.WriteWork("UserTitle.tab", LineSymbol(902));
    home.WriteWork("user.tab", LineSymbol(901));
    EXPECT_EQ(CZvDispSymbols::S_GetGlobalSymFilePath(), home.WorkTemplate() + "user.tab");
    CZvDispSymbols symbol;
    symbol.SetSymbolNum("OIL");
    EXPECT_EQ(symbol.GetSymbolNum(), 56);
    EXPECT_EQ(*CZvDispSymbols::S_GetSymbolNumList(), (std::list<int>{51, 901, 902}));

    zv::test::TempFolder other;
    std::filesystem::create_directories(other.Path() / "Template");
    for (const char* file : {"welsym.tab", "shotsym.tab"})
        zv::test::WriteText(other.Path() / "Template" / file, "");
    zv::test::WriteText(other.Path() / "Template" / "master.sym", LineSymbol(51, "other"));
    zv::test::WriteText(other.Path() / "Template" / "symmap.tab", "OIL              99\r\n");
    CZvUtRegistry::S_Override(CZvUtRegistry::S_GetHomePath(), CZvUtRegistry::S_GetHomeKey(),
                              other.Path());
    symbol.SetSymbolNum("OIL");
    EXPECT_EQ(symbol.GetSymbolNum(), 99);
    std::string description;
    EXPECT_TRUE(CZvDispSymbols::S_GetSymDesc(51, description));
    EXPECT_EQ(description, "other");
    EXPECT_TRUE(home.messages.GetShown().empty()) << "the old folder's symbols are gone first";
}

TEST(SymbolLibrary, AFolderInPlaceOfAFileCannotBeOpened) {
    SymbolHome home;
    home.WriteEmptyFiles();
    CZvDispSymbols symbol;
    EXPECT_FALSE(CZvDispSymbols::S_LoadSymbols(home.HomeTemplate(), "-1", true, "", false));
    ASSERT_EQ(home.messages.GetShown().size(), 1u);
    EXPECT_TRUE(home.messages.GetShown()[0].text.starts_with("Could not open symbol file:\n"));
}

TEST(SymbolLibrary, TakesAListTwiceAndListsWithGaps) {
    SymbolHome home;
    home.WriteEmptyFiles();
    CZvDispSymbols symbol;
    auto* list = new std::list<CZvDisplayItem*>{nullptr, new CZvDispPolyLine, nullptr};
    CZvDispSymbols::S_AddExternalSymbols(list, 1500);
    CZvDispSymbols::S_AddExternalSymbols(list, 1500);
    ASSERT_EQ(CZvDispSymbols::S_GetItemList(1500), list);
    EXPECT_EQ(list->size(), 1u);
    CZvDispSymbols::S_AddExternalSymbols(nullptr, 1501);
    EXPECT_TRUE(CZvDispSymbols::S_GetItemList(1501)->empty());
}

TEST(SymbolLibrary, AControlZEndsAFile) {
    SymbolHome home;
    home.WriteEmptyFiles();
    home.Write("z.sym", LineSymbol(51) + "\x1a garbage behind the end");
    CZvDispSymbols symbol;
    EXPECT_TRUE(CZvDispSymbols::S_LoadSymbols("z.sym", "-1", false, "", true));
    EXPECT_EQ(CZvDispSymbols::S_GetSymbolNumList()->size(), 1u);
}

TEST(SymbolLibrary, TheNextFreeNumber) {
    SymbolHome home;
    home.WriteEmptyFiles();
    EXPECT_EQ(CZvDispSymbols::S_GetNextAvailableSymbolNum(5, 4), -1);
    EXPECT_EQ(CZvDispSymbols::S_GetNextAvailableSymbolNum(5, 9), 5);
    CZvDispSymbols symbol;
    CZvDispSymbols::S_AddExternalSymbols(new std::list<CZvDisplayItem*>, 5);
    CZvDispSymbols::S_AddExternalSymbols(new std::list<CZvDisplayItem*>, 6);
    EXPECT_EQ(CZvDispSymbols::S_GetNextAvailableSymbolNum(5, 9), 7);
    EXPECT_EQ(CZvDispSymbols::S_GetNextAvailableSymbolNum(5, 6), -1);
}

TEST(SymbolLibrary, AnExternalSymbolTakesThePlaceOfItsNumber) {
    SymbolHome home;
    home.WriteEmptyFiles();
    CZvDispSymbols symbol;
    auto* first = new std::list<CZvDisplayItem*>{new CZvDispPolyLine};
    auto* second = new std::list<CZvDisplayItem*>{new CZvDispPolyLine, new CZvDispPolyLine};
    EXPECT_EQ(CZvDispSymbols::S_AddExternalSymbols(first, 1500), 1500);
    EXPECT_EQ(CZvDispSymbols::S_AddExternalSymbols(second, 1500), 1500);
    EXPECT_EQ(CZvDispSymbols::S_GetItemList(1500), second);
    EXPECT_EQ(*CZvDispSymbols::S_GetSymbolNumList(), std::list<int>{1500});
    EXPECT_EQ(CZvDispSymbols::S_GetVtxpItemList(1500), nullptr);
}

TEST(SymbolNames, AreReadFromFixedColumns) {
    std::istringstream in(
        "comment line\r\noilwel  rest      56 more\r\nDRY              54\r\n"
        "\r\nGAS              6\nLAST             7\x1aIGN\r\nIGN              1\r\n");
    CZvDispSymbolMap::Names names;
    CZvDispSymbolMap::ReadNames(in, names);
    EXPECT_EQ(names,
              (CZvDispSymbolMap::Names{{"OILWEL", 56}, {"DRY", 54}, {"GAS", 6}, {"LAST", 7}}));
}

TEST(SymbolNames, AnUnknownNameGives68) {
    SymbolHome home;
    home.WriteEmptyFiles();
    home.Write("symmap.tab", "OIL              56\r\n");
    CZvDispSymbols symbol({1, 2}, std::string("OIL"));
    EXPECT_EQ(symbol.GetSymbolNum(), 56);
    symbol.SetSymbolNum("oil");
    EXPECT_EQ(symbol.GetSymbolNum(), 68) << "names are looked up as they stand";
    symbol.SetSymbolNum("NOTHING");
    EXPECT_EQ(symbol.GetSymbolNum(), 68);
}

TEST(SymbolNames, AMissingNameFileIsTold) {
    SymbolHome home;
    for (const char* file : {"welsym.tab", "shotsym.tab", "master.sym"})
        home.Write(file, "");
    CZvDispSymbols symbol;
    symbol.SetSymbolNum("OIL");
    symbol.SetSymbolNum("OIL");
    ASSERT_EQ(home.messages.GetShown().size(), 1u);
    EXPECT_EQ(home.messages.GetShown()[0].text,
              "Could not open symbol map file:\n" + home.HomeTemplate() +
                  "symmap.tab\nSymbols will not display properly.");
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

class SymbolScreen : public CZvDispGL {
  public:
    std::vector<std::string> trace;
    void DrawSymbol(CZvDispSymbols& symbol) override {
        trace.push_back("c" + std::to_string(symbol.GetColor()) + " t" +
                        std::to_string(symbol.GetTextColor()) + " f" +
                        std::to_string(symbol.GetFillColor()));
    }
};

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

TEST(SymbolFile, OneFileAloneIsWrittenAgainByteForByte) {
    SymbolHome home;
    home.WriteEmptyFiles();
    const std::string text = LineSymbol(51) + LineSymbol(56, "Oil well");
    home.Write("welsym.tab", text);
    CZvDispSymbols symbol;
    std::vector<std::string> none;
    int cursor = 0;
    zv::SetCursorListener([&](int number) { cursor = number; });
    CZvDispSymbols::S_WriteSymbolsToFile(home.TempFile("out.sym"), none, true);
    zv::SetCursorListener({});
    EXPECT_EQ(ReadText(home.TempFile("out.sym")), text);
    EXPECT_EQ(cursor, 32512);
}

TEST(SymbolFile, TheInstallationsFilesAreWrittenAgainByteForByte) {
    for (const char* file : {"welsym.tab", "shotsym.tab", "master.sym"}) {
        SymbolHome home;
        home.WriteEmptyFiles();
        const std::string text =
            ReadText(std::filesystem::path(ZVDISP_TEST_SHARE) / "Template" / file);
        ASSERT_FALSE(text.empty());
        home.Write(file, text);
        CZvDispSymbols symbol;
        std::vector<std::string> none;
        CZvDispSymbols::S_WriteSymbolsToFile(home.TempFile("out.sym"), none, true);
        EXPECT_TRUE(ReadText(home.TempFile("out.sym")) == text) << file;
        EXPECT_TRUE(home.messages.GetShown().empty());
    }
}

TEST(SymbolFile, NamedSymbolsAreWrittenAndMissingOnesTold) {
    SymbolHome home;
    home.WriteEmptyFiles();
    home.Write("welsym.tab", LineSymbol(51) + LineSymbol(56));
    CZvDispSymbols symbol;
    LogLines log;
    std::vector<std::string> numbers{"56", "99"};
    CZvDispSymbols::S_WriteSymbolsToFile(home.TempFile("out.sym"), numbers, false);
    EXPECT_EQ(ReadText(home.TempFile("out.sym")), LineSymbol(56));
    ASSERT_EQ(log.Get().size(), 1u);
    EXPECT_EQ(
        log.Get()[0],
        (LogLines::Line{
            "Symbol number 99 has been removed from the memory and won't be saved to the file", 101,
            false}));
}

TEST(SymbolFile, WhatCannotBeWrittenIsLogged) {
    SymbolHome home;
    home.WriteEmptyFiles();
    CZvDispSymbols symbol;
    LogLines log;
    std::vector<std::string> none;
    CZvDispSymbols::S_WriteSymbolsToFile(home.TempFile("no/such/folder.sym"), none, true);
    ASSERT_EQ(log.Get().size(), 1u);
    EXPECT_EQ(log.Get()[0].level, 103);
    EXPECT_NE(log.Get()[0].text.find("folder.sym"), std::string::npos);
}

TEST(SymbolFile, VariableTextsKeepTheirAttributes) {
    SymbolHome home;
    for (const char* file : {"welsym.tab", "master.sym", "symmap.tab"})
        home.Write(file, "");
    home.Write("shotsym.tab",
               ReadText(std::filesystem::path(ZVDISP_TEST_SHARE) / "Template" / "shotsym.tab"));
    CZvDispSymbols symbol;
    std::list<CZvDisplayItem*>* texts = CZvDispSymbols::S_GetVtxpItemList(217);
    ASSERT_NE(texts, nullptr);
    ASSERT_FALSE(texts->empty());
    texts->front()->SetColor(C(6), 0);
    std::vector<std::string> none;
    CZvDispSymbols::S_WriteSymbolsToFile(home.TempFile("a.sym"), none, true);
    CZvDispSymbols::S_WriteSymbolsToFile(home.TempFile("b.sym"), none, true);
    EXPECT_TRUE(ReadText(home.TempFile("a.sym")) == ReadText(home.TempFile("b.sym")));
    EXPECT_EQ(texts->front()->GetColor(), 6);
    EXPECT_EQ(texts->front()->GetLineWidth(), 0);
}

TEST(SymbolFile, ADeletedSymbolWritesItsLogLineAlone) {
    SymbolHome home;
    home.WriteEmptyFiles();
    home.Write("welsym.tab", LineSymbol(51));
    auto symbol = Symbol(51);
    CZvDispSymbols::S_DeleteSymbol(51);
    LogLines log;
    std::ostringstream out;
    CZvDispFileParam file;
    file.SetOutFile(&out);
    symbol->WriteDrawingFile(file);
    EXPECT_EQ(out.str(), "");
    ASSERT_EQ(log.Get().size(), 1u);
    EXPECT_EQ(log.Get()[0].text, "Symbol 51 not found. skipped.");
}

TEST(SymbolFile, TheInstallationsFilesLoadWithoutAWord) {
    SymbolHome home;
    for (const char* file : {"welsym.tab", "shotsym.tab", "master.sym", "symmap.tab"})
        home.Write(file, ReadText(std::filesystem::path(ZVDISP_TEST_SHARE) / "Template" / file));
    CZvDispSymbols symbol;
    EXPECT_TRUE(home.messages.GetShown().empty());
    for (const int number : {23,  24,  25,  26,  51,  54,  56,  68,  200, 201,
                             202, 203, 204, 205, 206, 207, 500, 501, 600, 701})
        EXPECT_NE(CZvDispSymbols::S_GetItemList(number), nullptr) << number;
    for (const int number : *CZvDispSymbols::S_GetSymbolNumList()) {
        EXPECT_TRUE(number < 1000 || number > 1999) << number;
        EXPECT_FALSE(CZvDispSymbols::S_GetItemList(number)->empty()) << number;
    }
}

struct ListDeleter {
    void operator()(std::list<CZvDisplayItem*>* list) const {
        for (CZvDisplayItem* item : *list)
            delete item;
        delete list;
    }
};
using Label = std::unique_ptr<std::list<CZvDisplayItem*>, ListDeleter>;

TEST(LineNumber, AnUnknownKindGivesNothing) {
    CZvDispPoint position(0, 0);
    EXPECT_EQ(CZvDispSymbols::S_BuildLineNumberSymbol(9, 1, 1, 10, 10, 5, 0, position, 0, 0),
              nullptr);
    EXPECT_EQ(CZvDispSymbols::S_BuildLineNumberSymbol(0, 1, 1, 10, 10, 5, 0, position, 0, 0),
              nullptr);
}

TEST(LineNumber, KindsGiveTheirPairsAndRules) {
    SymbolHome home;
    home.WriteEmptyFiles();
    const int pairs[][3] = {{201, 200, 4}, {201, 200, 2}, {205, 204, 4}, {205, 204, 2},
                            {203, 202, 4}, {203, 202, 2}, {207, 206, 4}, {207, 206, 2}};
    for (int kind = 1; kind <= 8; ++kind) {
        CZvDispPoint position(0, 0);
        const Label label(
            CZvDispSymbols::S_BuildLineNumberSymbol(kind, 1, 1, 10, 10, 5, 0, position, 0, 0));
        const auto& expected = pairs[kind - 1];
        ASSERT_EQ(label->size(), static_cast<std::size_t>(expected[2])) << kind;
        EXPECT_EQ(static_cast<CZvDispSymbols*>(label->front())->GetSymbolNum(), expected[0]);
        EXPECT_EQ(static_cast<CZvDispSymbols*>(label->back())->GetSymbolNum(), expected[1]);
    }
}

TEST(LineNumber, StandsWhereTheFormulasPutIt) {
    SymbolHome home;
    home.WriteEmptyFiles();
    CZvDispPoint position(1000, 500);
    // size 10, characters 10 wide, 5 of them: Q = 1000 - ((4 + 10) * 0.5 + 10) = 983,
    // length = (5 + 4) * 10 = 90, R = 983 - 14 - 90 = 879, half = 7; rules from 976 to 886.
    const Label label(
        CZvDispSymbols::S_BuildLineNumberSymbol(1, 2, 4, 10, 10, 5, 0, position, 0, 0));
    auto at = label->begin();
    auto* first = static_cast<CZvDispSymbols*>(*at++);
    auto* upper = static_cast<CZvDispPolyLine*>(*at++);
    auto* lower = static_cast<CZvDispPolyLine*>(*at++);
    auto* second = static_cast<CZvDispSymbols*>(*at++);
    EXPECT_DOUBLE_EQ(first->GetCenter().GetX(), 983.0);
    EXPECT_DOUBLE_EQ(first->GetCenter().GetY(), 500.0);
    EXPECT_DOUBLE_EQ(first->GetScale(), 7.0); // 2 * 14 / 4
    EXPECT_DOUBLE_EQ(second->GetCenter().GetX(), 879.0);
    EXPECT_DOUBLE_EQ(upper->GetPoint(0).GetX(), 976.0);
    EXPECT_DOUBLE_EQ(upper->GetPoint(0).GetY(), 507.0);
    EXPECT_DOUBLE_EQ(upper->GetPoint(1).GetX(), 886.0);
    EXPECT_DOUBLE_EQ(lower->GetPoint(0).GetY(), 493.0);
    EXPECT_EQ(position.GetX(), 1000.0);
}

TEST(LineNumber, SidesTurnTheWholeAboutItsPosition) {
    SymbolHome home;
    home.WriteEmptyFiles();
    EXPECT_EQ(CZvDispSymbols::S_GetRotationAngle(10, 0), 10.0);
    EXPECT_EQ(CZvDispSymbols::S_GetRotationAngle(10, 1), 190.0);
    EXPECT_EQ(CZvDispSymbols::S_GetRotationAngle(10, 2), 280.0);
    EXPECT_EQ(CZvDispSymbols::S_GetRotationAngle(10, 3), 100.0);
    CZvDispPoint position(1000, 500);
    const Label label(
        CZvDispSymbols::S_BuildLineNumberSymbol(1, 2, 4, 10, 10, 5, 0, position, 3, 0));
    auto* first = static_cast<CZvDispSymbols*>(label->front());
    auto* second = static_cast<CZvDispSymbols*>(label->back());
    EXPECT_EQ(first->GetDegree(), 90.0);
    EXPECT_DOUBLE_EQ(first->GetCenter().GetX(), 1000.0);
    EXPECT_DOUBLE_EQ(first->GetCenter().GetY(), 483.0);
    EXPECT_DOUBLE_EQ(second->GetCenter().GetY(), 379.0);
    auto* upper = static_cast<CZvDispPolyLine*>(*std::next(label->begin()));
    EXPECT_DOUBLE_EQ(upper->GetPoint(0).GetX(), 993.0); // (-7, 7) turned by 90 about (1000, 483)
    EXPECT_DOUBLE_EQ(upper->GetPoint(0).GetY(), 476.0);
}

TEST(LineNumber, TheMiddleOfTheRulesIsHandedBack) {
    CZvDispPoint point(100, 50);
    std::list<CZvDisplayItem*> list;
    CZvDispSymbols::S_BuildMidLine(10, 10, 5, 0, point, &list, false);
    EXPECT_TRUE(list.empty());
    EXPECT_DOUBLE_EQ(point.GetX(), 48.0); // (93 + 3) / 2
    EXPECT_DOUBLE_EQ(point.GetY(), 50.0);
    CZvDispPoint turned(100, 50);
    CZvDispSymbols::S_BuildMidLine(10, 10, 5, 90, turned, &list, false);
    EXPECT_DOUBLE_EQ(turned.GetX(), 100.0);
    EXPECT_DOUBLE_EQ(turned.GetY(), -2.0);
}

TEST(LineNumber, SizesBecomeMapUnits) {
    EXPECT_DOUBLE_EQ(CZvDispSymbols::S_ConvertToXY(2000, 0, 0.5), 1000.0);
    EXPECT_DOUBLE_EQ(CZvDispSymbols::S_ConvertToXY(2000, 1, 0.5), 0.5 / 39.36999996 * 2000);
    EXPECT_DOUBLE_EQ(CZvDispSymbols::S_ConvertToXY(2000, 7, 0.5), 0.5);
}

} // namespace
