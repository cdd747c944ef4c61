#include "map/GridIndex.h"

#include <gtest/gtest.h>

#include "items/ZvDispGroup.h"
#include "items/ZvDispText.h"
#include "support/LogLines.h"
#include "support/MapHome.h"

namespace {

using zv::test::LogLines;

TEST(GridIndex, HoldsPointsBoxesAndNothingElse) {
    const CZvDispPoint ll{0, 0}, ur{60, 60};
    zv::GridIndex grid;
    CZvDispText text;
    text.SetPickID(1);
    text.SetPoint({2.5, 1.5});
    CZvDispPolyLine line({{0.5, 0.5}, {1.5, 1.5}});
    line.SetPickID(2);
    CZvDispCircle circle({59.5, 0}, 1);
    circle.SetPickID(3);
    CZvDispGroup group;
    EXPECT_TRUE(grid.Insert(text, ll, ur));
    EXPECT_TRUE(grid.Insert(line, ll, ur));
    EXPECT_TRUE(grid.Insert(circle, ll, ur));
    EXPECT_TRUE(grid.Insert(group, ll, ur));
    using Cell = std::vector<unsigned>;
    EXPECT_EQ(*grid.Cell(62), Cell{1});
    for (const int cell : {0, 1, 60, 61})
        EXPECT_EQ(*grid.Cell(cell), Cell{2}) << cell;
    EXPECT_EQ(*grid.Cell(59), Cell{3});
    EXPECT_EQ(grid.Cell(2), nullptr);
}

TEST(GridIndex, ABorderBelongsToTheLowerCellAndTheUpperEdgeToTheLast) {
    const CZvDispPoint ll{0.1, -0.7}, ur{0.9, 7.3};
    int column, row;
    LogLines log;
    EXPECT_TRUE(zv::GridIndex::FindGridIndex(ur, ll, ur, column, row));
    EXPECT_EQ(column, 59);
    EXPECT_EQ(row, 59);
    EXPECT_TRUE(zv::GridIndex::FindGridIndex(ll, ll, ur, column, row));
    EXPECT_EQ(column, 0);
    EXPECT_EQ(row, 0);
    EXPECT_TRUE(zv::GridIndex::FindGridIndex({2, 3}, {0, 0}, {60, 60}, column, row));
    EXPECT_EQ(column, 1);
    EXPECT_EQ(row, 2);
    EXPECT_TRUE(log.Get().empty());
}

TEST(GridIndex, APointBeyondTheEdgeIsLogged) {
    LogLines log;
    int column, row;
    EXPECT_FALSE(zv::GridIndex::FindGridIndex({60.001, 5.5}, {0, 0}, {60, 60}, column, row));
    EXPECT_EQ(column, -1);
    EXPECT_EQ(row, 5);
    const LogLines::Line line{"Display item out of map boundry in Memory Control.", 101, true};
    EXPECT_EQ(log.Get(), std::vector{line});
}

TEST(GridIndex, ABoxFitsWhenItsUpperRightCornerDoes) {
    const CZvDispPoint ll{0, 0}, ur{60, 60};
    zv::GridIndex grid;
    CZvDispPolyLine lowOutside({{-1, 5}, {5, 6}}), highOutside({{55, 5}, {61, 6}});
    EXPECT_TRUE(grid.Insert(lowOutside, ll, ur)) << "it stands in no cell";
    EXPECT_FALSE(grid.Insert(highOutside, ll, ur));
    for (int cell = 0; cell < 3600; ++cell)
        ASSERT_EQ(grid.Cell(cell), nullptr);
}

TEST(GridIndex, ALineWithoutVerticesStandsInNoCell) {
    LogLines log;
    zv::GridIndex grid;
    CZvDispPolyLine line;
    EXPECT_TRUE(grid.Insert(line, {0, 0}, {60, 60}));
    EXPECT_EQ(grid.Cell(0), nullptr);
    EXPECT_TRUE(log.Get().empty());
}

TEST(GridIndex, ZonesThatAreNoneHaveNoCells) {
    int cells = 0;
    zv::ForEachCell({-1, 4, 2147483647, -2147483648}, 2, [&](int) { ++cells; });
    EXPECT_EQ(cells, 0);
    zv::ForEachCell({3}, 2, [&](int) { ++cells; });
    EXPECT_EQ(cells, 900);
}

} // namespace
