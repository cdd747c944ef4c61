// What a culture list does when its scratch file fails.
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include "map/ZvDispMap.h"
#include "platform/zvcom/ZvUvException.h"
#include "support/CultureHome.h"
#include "support/LogLines.h"
#include "support/MapHome.h"
#include "support/RecordingContext.h"

namespace {

namespace fs = std::filesystem;
using zv::test::CultureHome;
using zv::test::RecordingContext;

/// Runs `act` and checks that it raises the exception of a scratch file.
template<class Act>
void ExpectFault(Act&& act, const std::string& message, int line) {
    try {
        act();
        ADD_FAILURE() << "no exception";
    } catch (const CZvUvException& fault) {
        EXPECT_EQ(fault.GetKind(), 6);
        EXPECT_EQ(fault.GetMessage(), message);
        EXPECT_EQ(fault.GetSource(), "ZvDisplayList");
        EXPECT_EQ(fault.GetLine(), line);
    }
}

std::string Message(const CultureHome& home, const char* what, const char* file) {
    return std::string("Can't ") + what + " File " + home.work.Path().string() + "\\DispDefault\\" +
           file + ". Please check you disk space or access right.";
}

/// A limit on the size of files for the time of a scope.
class DiskLimit {
  public:
    explicit DiskLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~DiskLimit() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    DiskLimit(const DiskLimit&) = delete;
    DiskLimit& operator=(const DiskLimit&) = delete;

  private:
    rlimit m_before{};
    void (*m_signal)(int);
};

TEST(CultureFaults, AFileThatCannotBeMadeRaisesTheWriteException) {
    CultureHome home;
    zv::test::WriteText(home.work / "DispDefault", "a file where the folder should be");
    auto line = CultureHome::Line(10001);
    ExpectFault([&] { home.list.AddItem(line.get(), nullptr, false); },
                Message(home, "Write", "CUSTOM_1_2_551"), 1125);
    EXPECT_EQ(line->GetPickID(), 10001u) << "the item stays the caller's";
    EXPECT_EQ(home.list.GetCultureCount(), 0);
    fs::remove(home.work / "DispDefault");
    EXPECT_TRUE(home.list.AddItem(line.release(), nullptr, false));
    EXPECT_TRUE(home.Get(10001));
}

TEST(CultureFaults, AFileThatIsGoneRaisesTheReadException) {
    CultureHome home;
    home.AddLine(10001);
    home.list.CloseFiles();
    fs::remove(home.work / "DispDefault/CUSTOM_1_2_551");
    const std::string message = Message(home, "Read", "CUSTOM_1_2_551");
    ExpectFault([&] { home.list.GetItem(10001); }, message, 973);
    RecordingContext context;
    ExpectFault([&] { home.list.Draw(&context, false); }, message, 973);
    ExpectFault([&] { home.list.OpenAndUpdateItem(CultureHome::Line(10001).get()); }, message, 973);
    ExpectFault([&] { home.list.SetColor(static_cast<ZVColor>(1), 0); }, message, 973);
    EXPECT_EQ(home.list.GetCultureCount(), 1) << "the list's state is what it was";
}

TEST(CultureFaults, AnItemCanBeAddedAfterTheFileWasDeleted) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.list.CloseFiles();
    fs::remove_all(home.work / "DispDefault");
    home.AddLine(10002, 2);
    EXPECT_TRUE(home.Get(10002));
    EXPECT_EQ(home.Get(10001), nullptr);
}

TEST(CultureFaults, WhatADeletedFileHeldIsToldAndForgotten) {
    for (const bool closed : {true, false}) {
        CultureHome home;
        home.AddLine(10001, 1);
        home.AddLine(10002, 2);
        if (closed)
            home.list.CloseFiles();
        else
            home.list.GetItem(99999);
        RecordingContext context;
        home.list.Draw(&context, false);
        fs::remove(home.work / "DispDefault/CUSTOM_1_2_551");
        zv::test::LogLines log;
        home.list.FreeItems();
        if (!closed) home.list.CloseFiles();
        home.AddLine(10003, 3);
        EXPECT_TRUE(log.Holds("is gone. 2 items are lost."));
        EXPECT_EQ(home.list.GetCultureCount(), 1);
        context.Take();
        home.list.Draw(&context, false);
        EXPECT_EQ(context.Take(), "line 3,0 3,1 c8\n");
    }
}

TEST(CultureFaults, RecordsThatNobodyAsksForAnyMoreAreNotMissed) {
    CultureHome home;
    for (unsigned id = 10001; id < 10020; ++id)
        home.AddLine(id, 1);
    home.list.RemoveAll();
    const DiskLimit limit(10);
    EXPECT_NO_THROW(home.list.CloseFiles());
}

TEST(CultureFaults, AFaultInTheMiddleOfAnUpdateClosesTheReading) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.list.CloseFiles();
    auto longer = CultureHome::Line(10001, 1);
    for (int i = 0; i < 100; ++i)
        longer->AddPoint({1.0 * i, 1});
    {
        const DiskLimit limit(300);
        EXPECT_THROW(home.list.OpenAndUpdateItem(longer.get()), CZvUvException);
    }
    home.list.CloseFiles();
    fs::remove(home.work / "DispDefault/CUSTOM_1_2_551");
    ExpectFault([&] { home.list.GetItem(10001); }, Message(home, "Read", "CUSTOM_1_2_551"), 973);
}

TEST(CultureFaults, AFullDeviceRaisesTheExceptionAndDropsTheKey) {
    CultureHome home(25, 220);
    fs::create_directories(home.work / "DispDefault");
    fs::create_symlink("/dev/full", home.work / "DispDefault/WELL_1_2_220");
    const auto line = CultureHome::Line(10001, 1, 8, "17-705");
    ExpectFault([&] { home.list.AddItem(line.get(), nullptr, false); },
                Message(home, "Write", "WELL_1_2_220"), 1125);
    EXPECT_FALSE(home.list.IsItemPresent(10001));
    EXPECT_TRUE(home.LookUp("17-705").empty());
    EXPECT_EQ(line->GetID(), "17-705") << "the item stays the caller's";
}

TEST(CultureFaults, ADiskThatFillsLaterDropsExactlyTheItemsWhoseRecordsAreLost) {
    CultureHome home(25, 220);
    home.AddLine(10001, 1, 8, "first");
    unsigned pickID = 10001;
    {
        const DiskLimit limit(2000); // some ten records
        EXPECT_THROW(while (pickID < 10100) home.AddLine(++pickID, 1, 8, "more"), CZvUvException);
    }
    EXPECT_GT(home.list.GetCultureCount(), 0);
    EXPECT_LT(home.list.GetCultureCount(), 20);
    EXPECT_FALSE(home.list.IsItemPresent(pickID));
    unsigned readable = 0;
    for (unsigned id = 10001; id <= pickID; ++id) {
        EXPECT_EQ(home.list.IsItemPresent(id), home.Get(id) != nullptr) << id;
        readable += home.list.IsItemPresent(id);
    }
    EXPECT_EQ(readable, static_cast<unsigned>(home.list.GetCultureCount()));
    for (const unsigned id : home.LookUp("more"))
        EXPECT_TRUE(home.list.IsItemPresent(id)) << "the index lost them too";
    home.AddLine(20000, 1);
    EXPECT_TRUE(home.Get(20000)) << "the list works on once there is room";
}

TEST(CultureFaults, WhatIsPendingAtCloseIsMissedToo) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.AddLine(10002, 2);
    home.AddLine(10003, 3); // pending: the file holds two, of 93 bytes each
    {
        const DiskLimit limit(250);
        EXPECT_THROW(home.list.CloseFiles(), CZvUvException);
    }
    EXPECT_EQ(home.list.GetCultureCount(), 2);
    EXPECT_FALSE(home.list.IsItemPresent(10003));
}

TEST(CultureFaults, AnUpdateThatFindsNoRoomLeavesTheOldRecord) {
    CultureHome home;
    home.AddLine(10001, 1);
    home.list.CloseFiles();
    const auto longer = CultureHome::Line(10001, 9);
    longer->GetVertices().resize(100);
    {
        const DiskLimit limit(300);
        ExpectFault([&] { home.list.OpenAndUpdateItem(longer.get()); },
                    Message(home, "Write", "CUSTOM_1_2_551"), 1125);
    }
    const auto item = home.Get(10001);
    ASSERT_TRUE(item);
    EXPECT_EQ(static_cast<CZvDispPolyLine&>(*item).GetSize(), 2);
}

TEST(CultureFaults, AThousandListsWorkWhereOnly64FilesMayBeOpen) {
    zv::test::MapHome m;
    rlimit before{};
    getrlimit(RLIMIT_NOFILE, &before);
    const rlimit limit{64, before.rlim_max};
    setrlimit(RLIMIT_NOFILE, &limit);
    for (int round = 0; round < 2; ++round)
        for (int post = 0; post < 1000; ++post)
            ASSERT_TRUE(m.AddCircle(post, 90, post + 1000, 1, 554));
    RecordingContext context;
    context.traceTags = false;
    m.map.SetContext(&context);
    m.map.Draw(E_LAYER_ALL, 99, 99, ZV_CULTURE_ALL, false);
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_EQ(context.trace.size(), 2002u) << "open, 2000 circles, close";
    m.map.SetContext(nullptr);
}

} // namespace
