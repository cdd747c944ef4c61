#include <gtest/gtest.h>

#include "platform/Error.h"
#include "platform/zvlogs/ZvLog.h"
#include "support/LogLines.h"
#include "support/TempFolder.h"

using zv::test::LogLines;
using zv::test::TempFolder;

TEST(ZvLog, TellsListenersTextLevelAndFlag) {
    const LogLines log;
    CZvLog::Output("Drawing {0} 100%", 104, false);
    CZvLog::Output("", 101, true);
    const std::vector<LogLines::Line> expected = {{"Drawing {0} 100%", 104, false},
                                                  {"", 101, true}};
    EXPECT_EQ(log.Get(), expected);
}

TEST(ZvLog, TellsEveryListenerUntilItIsRemoved) {
    const LogLines outer;
    {
        const LogLines inner;
        CZvLog::Output("both", 103, false);
        EXPECT_EQ(inner.Get().size(), 1u);
    }
    CZvLog::Output("outer", 103, false);
    EXPECT_EQ(outer.Get().size(), 2u);
}

TEST(ZvLog, LetsAListenerRemoveItselfAndLog) {
    int heard = 0;
    int number = 0;
    number = CZvLog::S_AddListener([&](const std::string&, int, bool) {
        ++heard;
        CZvLog::S_RemoveListener(number);
        CZvLog::Output("from within", 103, false);
    });
    CZvLog::Output("first", 103, false);
    CZvLog::Output("second", 103, false);
    EXPECT_EQ(heard, 1);
}

TEST(ZvLog, TakesTheRemovalOfAnUnknownListener) {
    const LogLines log;
    CZvLog::S_RemoveListener(-5);
    CZvLog::Output("still heard", 101, false);
    EXPECT_EQ(log.Get().size(), 1u);
}

TEST(ZvLog, KeepsTheConsoleQuietUntilItIsAsked) {
    testing::internal::CaptureStderr();
    CZvLog::Output("unseen", 101, false);
    CZvLog::S_SetConsole(true);
    CZvLog::Output("a warning {}", 101, false);
    CZvLog::Output("a note", 103, false);
    CZvLog::Output("progress", 104, false);
    CZvLog::S_SetConsole(false);
    CZvLog::Output("unseen", 101, false);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a warning {}\n");
}

TEST(ZvLog, WritesEveryLevelToItsFileAtOnce) {
    const TempFolder folder;
    CZvLog::S_SetFile(folder / "zvdisp.log");
    CZvLog::Output("bad item", 101, false);
    CZvLog::Output("read", 103, false);
    CZvLog::Output("half way", 104, false);
    const std::string text = zv::test::ReadText(folder / "zvdisp.log");
    CZvLog::S_SetFile("");
    CZvLog::Output("unseen", 101, false);
    EXPECT_NE(text.find(" W bad item\n"), std::string::npos) << text;
    EXPECT_NE(text.find(" I read\n"), std::string::npos) << text;
    EXPECT_NE(text.find(" D half way\n"), std::string::npos) << text;
    EXPECT_EQ(zv::test::ReadText(folder / "zvdisp.log"), text);
}

TEST(ZvLog, TurnsItsFileOverAndKeepsTwoOlderOnes) {
    const TempFolder folder;
    CZvLog::S_SetFile(folder / "zvdisp.log");
    const std::string line(1'000'000, 'x');
    for (int i = 0; i < 22; ++i) {
        CZvLog::Output(line, 103, false);
    }
    CZvLog::S_SetFile("");
    EXPECT_EQ(folder.CountEntries(), 3u);
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
        EXPECT_LE(entry.file_size(), 5'000'000u) << entry.path();
    }
}

TEST(ZvLog, NamesAFileThatItCannotOpenAndKeepsTheOneBefore) {
    const TempFolder folder;
    CZvLog::S_SetFile(folder / "zvdisp.log");
    const std::string bad = folder / "zvdisp.log/below";
    try {
        CZvLog::S_SetFile(bad);
        ADD_FAILURE();
    } catch (const zv::DataError& error) {
        EXPECT_EQ(error.GetError().file, bad);
        EXPECT_FALSE(error.GetError().reason.empty());
    }
    CZvLog::Output("still here", 101, false);
    CZvLog::S_SetFile("");
    EXPECT_NE(zv::test::ReadText(folder / "zvdisp.log").find("still here"), std::string::npos);
}
