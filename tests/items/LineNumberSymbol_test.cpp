#include "items/ZvDispSymbols.h"

#include <gtest/gtest.h>

#include <memory>

#include "support/SymbolHome.h"

namespace {

using zv::test::SymbolHome;

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
