#include "items/ZvDispSymbols.h"

#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "persist/ZvDispFileParam.h"
#include "platform/win/Cursor.h"
#include "support/LogLines.h"
#include "support/SymbolHome.h"

namespace {

using zv::test::LineSymbol;
using zv::test::LogLines;
using zv::test::ReadText;
using zv::test::SymbolHome;

ZVColor C(int index) {
    return static_cast<ZVColor>(index);
}

std::unique_ptr<CZvDispSymbols> Symbol(int number) {
    return std::make_unique<CZvDispSymbols>(CZvDispPoint(10, 20), number);
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

} // namespace
