#include <gtest/gtest.h>
#include <vector>

#include "platform/win/Cursor.h"

TEST(Cursor, HandlesOfSystemCursorsAreStableAndDifferent) {
    const HCURSOR arrow = LoadCursor(nullptr, IDC_ARROW);
    const HCURSOR wait = LoadCursor(nullptr, IDC_WAIT);
    ASSERT_NE(arrow, nullptr);
    ASSERT_NE(wait, nullptr);
    EXPECT_NE(arrow, wait);
    EXPECT_EQ(LoadCursor(nullptr, IDC_ARROW), arrow);
    EXPECT_EQ(zv::CursorNumber(arrow), IDC_ARROW);
    EXPECT_EQ(zv::CursorNumber(wait), IDC_WAIT);
}

TEST(Cursor, UnknownNumbersHaveNoHandle) {
    EXPECT_EQ(LoadCursor(nullptr, 7), nullptr);
    EXPECT_EQ(zv::CursorNumber(nullptr), 0);
    const int stranger = 0;
    EXPECT_EQ(zv::CursorNumber(&stranger), 0);
}

TEST(Cursor, SettingOneGivesTheOneBefore) {
    const HCURSOR first = SetCursor(LoadCursor(nullptr, IDC_WAIT));
    EXPECT_EQ(SetCursor(LoadCursor(nullptr, IDC_ARROW)), LoadCursor(nullptr, IDC_WAIT));
    EXPECT_EQ(SetCursor(first), LoadCursor(nullptr, IDC_ARROW));
}

TEST(Cursor, TellsItsListenerEveryChange) {
    std::vector<int> heard;
    zv::SetCursorListener([&](int number) { heard.push_back(number); });
    SetCursor(LoadCursor(nullptr, IDC_WAIT));
    SetCursor(LoadCursor(nullptr, IDC_ARROW));
    SetCursor(nullptr);
    zv::SetCursorListener({});
    SetCursor(LoadCursor(nullptr, IDC_ARROW));
    EXPECT_EQ(heard, (std::vector<int>{IDC_WAIT, IDC_ARROW, 0}));
}
