#include "map/ZvDispCult.h"

#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <sstream>

#include "items/ZvDispGroup.h"
#include "items/ZvDispText.h"
#include "items/ZvDisplayItemPara.h"
#include "map/TextIndex.h"
#include "map/ZvDispMap.h"
#include "persist/ZvDispFileParam.h"
#include "support/CultureHome.h"
#include "support/LogLines.h"
#include "support/RecordingContext.h"
#include "support/RecordingGL.h"

namespace {

namespace fs = std::filesystem;
using zv::test::CultureHome;
using zv::test::LogLines;
using zv::test::ReadText;
using zv::test::RecordingContext;
using zv::test::RecordingGL;

std::string Drawn(CultureHome& home) {
    RecordingContext context;
    home.list.Draw(&context, false);
    return context.Take();
}

/// An item that counts its lives.
class Mortal : public CZvDispCircle {
  public:
    explicit Mortal(unsigned pickID) : CZvDispCircle({1, 2}, 3) {
        SetPickID(pickID);
        ++alive;
    }
    ~Mortal() override { --alive; }
    bool Clip(CZvDispMapClipper* const) override { return inside; }
    bool inside = true;
    static int alive;
};
int Mortal::alive = 0;

TEST(CultureList, DrawsInTheOrderOfTheKeyTableNotOfAdding) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.AddLine(10002, 2);
    home.AddLine(10016, 3); // bucket 14
    EXPECT_EQ(Drawn(home), "line 2,0 2,1 c8\nline 1,0 1,1 c8\nline 3,0 3,1 c8\n");
}

TEST(CultureList, AnEmptyListHasNothingAndOpensNoFile) {
    CultureHome home;
    EXPECT_EQ(home.list.GetItem(10001), nullptr);
    EXPECT_EQ(Drawn(home), "");
    EXPECT_TRUE(home.list.GetDispList().empty());
    EXPECT_EQ(home.list.GetCultureCount(), 0);
    EXPECT_EQ(home.work.CountEntries(), 0u);
}

TEST(CultureList, NamesItsFileAfterItsPlace) {
    CultureHome home(25, 220);
    home.AddLine(10001);
    home.list.CloseFiles();
    EXPECT_TRUE(fs::is_regular_file(home.work / "DispDefault/WELL_1_2_220"));
}

TEST(CultureList, TheMapGivesTheFolderOfTheFile) {
    CultureHome home;
    CZvDispMap map(nullptr);
    map.SetDispFilePath("Maps\\Gulf");
    home.list.SetMapPtr(&map);
    home.AddLine(10001);
    home.list.CloseFiles();
    EXPECT_TRUE(fs::is_regular_file(home.work / "Maps/Gulf/CUSTOM_1_2_551"));
}

TEST(CultureList, HoldsExactlyTheRecordsOfItsItems) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.AddLine(10002, 2);
    home.list.CloseFiles();
    std::FILE* const file = std::fopen((home.work / "DispDefault/CUSTOM_1_2_551").c_str(), "rb");
    ASSERT_TRUE(file);
    for (const unsigned pickID : {10001u, 10002u}) {
        const std::unique_ptr<CZvDisplayItem> item(CZvDisplayItem::S_MakeNewItem(file));
        ASSERT_TRUE(item && item->WakeDispItem(file));
        EXPECT_EQ(item->GetPickID(), pickID);
    }
    EXPECT_EQ(std::fgetc(file), EOF);
    std::fclose(file);
}

TEST(CultureList, TheFirstWriteTruncatesALeftoverAndLaterOnesAppend) {
    CultureHome home;
    fs::create_directories(home.work / "DispDefault");
    const std::string path = home.work / "DispDefault/CUSTOM_1_2_551";
    zv::test::WriteText(path, std::string(10000, 'x'));
    home.AddLine(10001, 1);
    home.list.CloseFiles();
    const auto one = fs::file_size(path);
    EXPECT_LT(one, 1000u);
    home.list.RemoveAll();
    home.AddLine(10002, 2);
    home.list.CloseFiles();
    EXPECT_EQ(fs::file_size(path), 2 * one) << "behind its dead records";
    EXPECT_EQ(Drawn(home), "line 2,0 2,1 c8\n");
}

TEST(CultureList, AFullDrawLeavesTheFileUntouched) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.list.CloseFiles();
    const std::string path = home.work / "DispDefault/CUSTOM_1_2_551";
    const std::string bytes = ReadText(path);
    const auto longAgo = fs::last_write_time(path) - std::chrono::hours(1);
    fs::last_write_time(path, longAgo);
    Drawn(home);
    home.list.CloseFiles();
    EXPECT_EQ(ReadText(path), bytes);
    EXPECT_EQ(fs::last_write_time(path), longAgo);
}

TEST(CultureList, AnItemCanBeFetchedRightAfterItWasAdded) {
    CultureHome home;
    home.AddLine(10001, 7, 5, "L-7");
    const auto item = home.Get(10001);
    ASSERT_TRUE(item);
    EXPECT_EQ(item->GetDispType(), ZV_DISP_POLYLINE);
    EXPECT_EQ(item->GetID(), "L-7");
    EXPECT_EQ(item->GetPickID(), 10001u);
    EXPECT_EQ(item->GetCultureID(), 551);
    EXPECT_EQ(item->GetColor(), 5);
    home.AddLine(10002, 8);
    EXPECT_TRUE(home.Get(10002));
    EXPECT_EQ(home.list.GetItem(10003), nullptr);
}

TEST(CultureList, KnowsWhatItHolds) {
    CultureHome home;
    home.AddLine(10001);
    EXPECT_TRUE(home.list.IsItemPresent(10001));
    EXPECT_FALSE(home.list.IsItemPresent(10002));
    EXPECT_EQ(home.list.GetCultureCount(), 1);
}

TEST(CultureList, ADeletedItemIsGoneAndItsRecordStays) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.AddLine(10002, 2);
    home.list.CloseFiles();
    const std::string path = home.work / "DispDefault/CUSTOM_1_2_551";
    const auto size = fs::file_size(path);
    EXPECT_TRUE(home.list.DeleteItemFromList(home.Get(10001).get()));
    EXPECT_FALSE(home.list.IsItemPresent(10001));
    EXPECT_EQ(Drawn(home), "line 2,0 2,1 c8\n");
    EXPECT_EQ(fs::file_size(path), size);
}

TEST(CultureList, DeletingAnAbsentItemIsTrueAndChangesNothing) {
    CultureHome home;
    home.AddLine(10001);
    EXPECT_TRUE(home.list.DeleteItemFromList(CultureHome::Line(10009).get()));
    EXPECT_EQ(home.list.GetCultureCount(), 1);
}

TEST(CultureList, AnItemOutsideTheClipperIsDestroyedAndNotAdded) {
    CultureHome home;
    auto* const outside = new Mortal(10001);
    outside->inside = false;
    EXPECT_FALSE(home.list.AddItem(outside, nullptr, true));
    EXPECT_EQ(Mortal::alive, 0);
    EXPECT_EQ(home.list.GetCultureCount(), 0);
    EXPECT_TRUE(home.list.AddItem(new Mortal(10002), nullptr, true));
    auto* const unclipped = new Mortal(10003);
    unclipped->inside = false;
    EXPECT_TRUE(home.list.AddItem(unclipped, nullptr, false));
    EXPECT_EQ(home.list.GetCultureCount(), 2);
}

TEST(CultureList, AnItemWithoutParameterObjectLivesUntilFreeItems) {
    CultureHome home;
    home.list.AddItem(new Mortal(10001), nullptr, false);
    home.list.AddItem(new Mortal(10002), nullptr, false);
    EXPECT_EQ(Mortal::alive, 2);
    LogLines log;
    EXPECT_TRUE(home.list.FreeItems());
    EXPECT_EQ(Mortal::alive, 0);
    const LogLines::Line line{"2 display items has been deleted.", 103, false};
    EXPECT_EQ(log.Get(), std::vector{line});
    EXPECT_EQ(home.list.GetCultureCount(), 2) << "the records stay";
    home.list.FreeItems();
    EXPECT_EQ(log.Get().back().text, "0 display items has been deleted.");
}

TEST(CultureList, TheDestructorFreesWhatLives) {
    {
        CultureHome home;
        home.list.AddItem(new Mortal(10001), nullptr, false);
    }
    EXPECT_EQ(Mortal::alive, 0);
}

TEST(CultureList, TheParameterObjectDecidesAboutItsItems) {
    CultureHome home;
    CZvDisplayItemPara destroy(true), keep(false);
    auto* const gone = new Mortal(10001);
    gone->SetPara(&destroy);
    home.list.AddItem(gone, nullptr, false);
    EXPECT_EQ(Mortal::alive, 0);
    const auto kept = std::make_unique<Mortal>(10002);
    kept->SetPara(&keep);
    home.list.AddItem(kept.get(), nullptr, false);
    home.list.FreeItems();
    EXPECT_EQ(Mortal::alive, 1) << "it stays with the holder of the parameter object";
    EXPECT_TRUE(home.list.IsItemPresent(10001));
    EXPECT_TRUE(home.list.IsItemPresent(10002));
}

TEST(CultureList, DrawFreesTheLiveItemsFirst) {
    CultureHome home;
    home.list.AddItem(new Mortal(10001), nullptr, false);
    EXPECT_EQ(Drawn(home), "circle 1,2 r 3 c8\n");
    EXPECT_EQ(Mortal::alive, 0);
}

TEST(CultureList, AListThatIsNotVisibleDrawsNothing) {
    CultureHome home;
    home.AddLine(10001);
    home.list.SetVisibility(false);
    EXPECT_EQ(Drawn(home), "");
    home.list.SetVisibility(true);
    EXPECT_NE(Drawn(home), "");
}

TEST(CultureList, InvisibleItemsAreDrawnOnlyWhereTheContextWantsThem) {
    class All : public RecordingContext {
        bool GetProcessInvisible() override { return true; }
    };
    CultureHome home;
    auto line = CultureHome::Line(10001, 1);
    line->SetVisibility(false);
    home.list.AddItem(line.release(), nullptr, false);
    EXPECT_EQ(Drawn(home), "");
    All all;
    home.list.Draw(&all, false);
    EXPECT_EQ(all.Take(), "line 1,0 1,1 c8\n");
}

TEST(CultureList, TitlesAndFramesOfColour3AreDrawnIn4OnPaper) {
    for (const int culture : {450, 451}) {
        CultureHome home(2, culture);
        home.AddLine(10001, 1, 3);
        home.AddLine(10002, 2, 5);
        EXPECT_EQ(Drawn(home), "line 2,0 2,1 c5\nline 1,0 1,1 c4\n");
        EXPECT_EQ(home.Get(10001)->GetColor(), 3);
        RecordingGL screen;
        home.list.Draw(&screen, false);
        EXPECT_EQ(screen.Take(), "line 10002 c5\nline 10001 c3\n");
    }
    CultureHome other(2, 452);
    other.AddLine(10001, 1, 3);
    EXPECT_EQ(Drawn(other), "line 1,0 1,1 c3\n");
}

TEST(CultureList, ARedrawReplaysTheListsInWalkOrderWithoutTheFile) {
    CultureHome home;
    home.AddLine(10001);
    home.AddLine(10002);
    home.AddLine(10016);
    home.list.CloseFiles();
    fs::remove_all(home.work.Path());
    RecordingGL gl;
    home.list.Draw(&gl, true);
    EXPECT_EQ(gl.Take(), "replay 10002\nreplay 10001\nreplay 10016\n");
    RecordingContext paper;
    home.list.Draw(&paper, true);
    EXPECT_EQ(paper.Take(), "") << "only OpenGL has lists";
}

TEST(CultureList, TurningVisibilityOnWithAContextRedrawsAtOnce) {
    CultureHome home;
    home.AddLine(10001);
    RecordingGL gl;
    CZvDispFileParam none;
    home.list.SetPara(none, static_cast<CZvDisplayContext*>(&gl));
    home.list.SetVisibility(false);
    EXPECT_EQ(gl.Take(), "") << "turning it off erases nothing";
    home.list.SetVisibility(true);
    EXPECT_EQ(gl.Take(), "replay 10001\n");
}

TEST(CultureList, AttributesChangeInTheFile) {
    CultureHome home;
    home.AddLine(10001, 1, 5);
    home.list.SetColor(static_cast<ZVColor>(7), 0);
    home.list.SetLineWidth(2.9, 0);
    home.list.SetLineType(3, 0);
    EXPECT_EQ(Drawn(home), "line 1,0 1,1 c7 w2 t3\n");
}

TEST(CultureList, AttributesOfGroupsReachTheMembersOfTheSubValue) {
    CultureHome home;
    auto group = std::make_unique<CZvDispGroup>();
    group->SetPickID(10001);
    group->SetID("G");
    group->AddPrimitive(1, CultureHome::Line(1, 1, 5).release());
    group->AddPrimitive(2, CultureHome::Line(2, 2, 5).release());
    home.list.AddItem(group.release(), nullptr, false);
    home.list.SetColor(static_cast<ZVColor>(7), 2);
    EXPECT_EQ(Drawn(home), "group G c255\nline 1,0 1,1 c5\nline 2,0 2,1 c7\n");
}

TEST(CultureList, AnAttributeDrawsTheVisibleItemsAgainOnItsScreen) {
    CultureHome home;
    home.AddLine(10001, 1);
    auto hidden = CultureHome::Line(10002, 2);
    hidden->SetVisibility(false);
    home.list.AddItem(hidden.release(), nullptr, false);
    RecordingGL gl;
    CZvDispFileParam none;
    home.list.SetPara(none, static_cast<CZvDisplayContext*>(&gl));
    home.list.SetColor(static_cast<ZVColor>(7), 0);
    EXPECT_EQ(gl.Take(), "line 10001 c7\n");
    EXPECT_EQ(home.Get(10002)->GetColor(), 7);
}

TEST(CultureList, GetDispListIsOneListForAllAndIsNeverEmptied) {
    CultureHome first(90, 551), second(90, 552);
    first.AddLine(10001);
    second.AddLine(10002);
    std::list<CZvDisplayItem*>& items = first.list.GetDispList();
    const std::size_t before = items.size();
    EXPECT_EQ(&second.list.GetDispList(), &items);
    EXPECT_EQ(items.size(), before + 1);
    EXPECT_EQ(items.back()->GetPickID(), 10002u);
    EXPECT_EQ((*std::prev(items.end(), 2))->GetPickID(), 10001u);
    for (CZvDisplayItem* const item : items)
        delete item;
    items.clear();
}

TEST(CultureList, WritesTheVisibleItemsAsDrawingRecords) {
    CultureHome home;
    home.AddLine(10001, 1);
    auto hidden = CultureHome::Line(10002, 2);
    hidden->SetVisibility(false);
    home.list.AddItem(hidden.release(), nullptr, false);
    std::ostringstream all, one;
    CZvDispFileParam file;
    file.SetOutFile(&all);
    home.list.Write(file);
    file.SetOutFile(&one);
    home.Get(10001)->WriteDrawingFile(file);
    EXPECT_FALSE(one.str().empty());
    EXPECT_EQ(all.str(), one.str());
}

TEST(CultureList, AnUpdateReplacesTheRecordInPlace) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.AddLine(10002, 2);
    home.list.CloseFiles();
    const auto size = fs::file_size(home.work / "DispDefault/CUSTOM_1_2_551");
    EXPECT_TRUE(home.list.OpenAndUpdateItem(CultureHome::Line(10001, 9).get()));
    EXPECT_EQ(Drawn(home), "line 2,0 2,1 c8\nline 9,0 9,1 c8\n");
    EXPECT_EQ(fs::file_size(home.work / "DispDefault/CUSTOM_1_2_551"), size);
}

TEST(CultureList, AnUpdateThatGrewDoesNotDestroyItsNeighbour) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.AddLine(10002, 2);
    const auto longer = CultureHome::Line(10001, 9);
    longer->AddPoint({9, 2});
    EXPECT_TRUE(home.list.OpenAndUpdateItem(longer.get()));
    EXPECT_EQ(Drawn(home), "line 2,0 2,1 c8\nline 9,0 9,1 9,2 c8\n") << "in its old place";
    EXPECT_EQ(static_cast<CZvDispPolyLine&>(*home.Get(10001)).GetSize(), 3);
    EXPECT_EQ(home.list.GetCultureCount(), 2);
}

TEST(CultureList, AnUpdateOfAnAbsentItemIsFalse) {
    CultureHome home;
    EXPECT_FALSE(home.list.OpenAndUpdateItem(CultureHome::Line(10001).get()));
    home.AddLine(10001);
    EXPECT_FALSE(home.list.OpenAndUpdateItem(CultureHome::Line(10002).get()));
}

TEST(CultureList, RemoveAllEmptiesListAndIndex) {
    CultureHome home(25, 220);
    home.AddLine(10001, 1, 8, "17-705");
    home.list.RemoveAll();
    EXPECT_EQ(home.list.GetCultureCount(), 0);
    EXPECT_EQ(home.Get(10001), nullptr);
    EXPECT_TRUE(home.list.GetApiSndIdxVec().empty());
    EXPECT_EQ(Drawn(home), "");
}

TEST(CultureList, ThousandsOfItemsComeBackFromTheirWindows) {
    CultureHome home;
    const CZvDisplayItemPara destroy(true);
    for (unsigned i = 0; i < 5000; ++i) {
        auto line = CultureHome::Line(10001 + i, i);
        // Some records are larger than any window.
        if (i % 1000 == 7) line->GetVertices().resize(20000, CZvDispPoint(i, 5));
        line->SetPara(const_cast<CZvDisplayItemPara*>(&destroy));
        home.list.AddItem(line.release(), nullptr, false);
    }
    class Sum : public RecordingContext {
      public:
        void DrawPolyLine(CZvDispPolyLine& line) override {
            ++count;
            vertices += line.GetSize();
            right += line.GetPoint(0).GetX() == line.GetPickID() - 10001;
        }
        int count = 0, vertices = 0, right = 0;
    } sum;
    home.list.Draw(&sum, false);
    EXPECT_EQ(sum.count, 5000);
    EXPECT_EQ(sum.right, 5000);
    EXPECT_EQ(sum.vertices, 4995 * 2 + 5 * 20000);
    EXPECT_EQ(static_cast<CZvDispPolyLine&>(*home.Get(10008)).GetSize(), 20000);
}

TEST(CultureList, AWalkStopsAtTheFirstUnreadableRecord) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.AddLine(10002, 2);
    home.list.CloseFiles();
    const std::string path = home.work / "DispDefault/CUSTOM_1_2_551";
    fs::resize_file(path, fs::file_size(path) / 2); // the second record, which draws first
    EXPECT_EQ(Drawn(home), "");
    EXPECT_TRUE(home.Get(10001));
    EXPECT_EQ(home.Get(10002), nullptr);
}

// The secondary index.

TEST(CultureIndex, IsKeptForWellsAndNotForCustomGraphics) {
    CultureHome wells(25, 220), custom(90, 551);
    wells.AddLine(10001, 1, 8, "17-705");
    custom.AddLine(10001, 1, 8, "17-705");
    EXPECT_EQ(wells.LookUp("17-705"), std::vector<unsigned>{10001});
    EXPECT_TRUE(custom.LookUp("17-705").empty());
    CString absent("17-706");
    std::vector<unsigned>* out = nullptr;
    EXPECT_FALSE(wells.list.LookUpItemPickID(absent, out));
    EXPECT_EQ(out, nullptr);
}

TEST(CultureIndex, ItemsOfOneIDShareAnEntryThatOutlivesThem) {
    CultureHome home(25, 220);
    home.AddLine(10001, 1, 8, "17-705");
    home.AddLine(10002, 2, 8, "17-705");
    EXPECT_EQ(home.LookUp("17-705"), (std::vector<unsigned>{10001, 10002}));
    home.list.DeleteItemFromList(home.Get(10001).get());
    EXPECT_EQ(home.LookUp("17-705"), std::vector<unsigned>{10002});
    home.list.DeleteItemFromList(home.Get(10002).get());
    CString key("17-705");
    std::vector<unsigned>* out = nullptr;
    EXPECT_TRUE(home.list.LookUpItemPickID(key, out));
    EXPECT_TRUE(out->empty());
}

TEST(CultureIndex, WalksItsKeysLikeATableOf17Buckets) {
    // One-letter keys: the hash is the letter itself. 'a' is 97, bucket 12; 'r' is 114, bucket 12;
    // 'D' is 68, bucket 0.
    EXPECT_EQ(zv::TextIndex::BucketOf("a"), 12u);
    EXPECT_EQ(zv::TextIndex::BucketOf("ab"), (97u * 33 + 98) % 17);
    CultureHome home(25, 220);
    home.AddLine(10001, 1, 8, "a");
    home.AddLine(10002, 2, 8, "r");
    home.AddLine(10003, 3, 8, "D");
    const std::vector<CString> keys{CString("D"), CString("r"), CString("a")};
    EXPECT_EQ(home.list.GetApiSndIdxVec(), keys);
    home.list.DeleteItemFromList(home.Get(10001).get());
    const std::vector<CString> entered{CString("D"), CString("a"), CString("r")};
    EXPECT_EQ(home.list.GetApiSndIdxVec(), entered) << "the shortened entry is entered anew";
}

} // namespace
