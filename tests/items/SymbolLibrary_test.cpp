#include "items/ZvDispSymbols.h"

#include <gtest/gtest.h>

#include <sstream>

#include "items/SymbolMap.h"
#include "support/SymbolHome.h"

namespace {

using zv::test::LineSymbol;
using zv::test::ReadText;
using zv::test::SymbolHome;

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
    int number = 7;
    EXPECT_FALSE(CZvDispSymbols::S_FindSymbolNum("NOTHING", number));
    EXPECT_EQ(number, 7);
    EXPECT_TRUE(CZvDispSymbols::S_FindSymbolNum("OIL", number));
    EXPECT_EQ(number, 56);
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

} // namespace
