#include "items/ZvDisplayItem.h"

#include <gtest/gtest.h>

#include <memory>

#include "items/ZvDispGroup.h"
#include "items/ZvDispPolyLine.h"
#include "items/ZvDisplayItemPara.h"
#include "support/RecordingContext.h"

namespace {

using zv::test::RecordingContext;

TEST(DisplayItem, StartsWithTheDefaultsOfANewItem) {
    CZvDisplayItem item;
    EXPECT_EQ(item.GetColor(), 8);
    EXPECT_EQ(item.GetBrightness(), 1.0);
    EXPECT_EQ(item.GetPickID(), 4294967295u);
    EXPECT_EQ(item.GetID(), "UNDEFINED");
    EXPECT_EQ(item.GetLayerID(), -1);
    EXPECT_EQ(item.GetPost(), -1);
    EXPECT_EQ(item.GetUSet(), -1);
    EXPECT_EQ(item.GetCultureID(), -1);
    EXPECT_TRUE(item.GetVisibility());
    EXPECT_FALSE(item.GetFill());
    EXPECT_FALSE(item.GetSmooth());
    EXPECT_FALSE(item.GetInActive());
    EXPECT_EQ(item.GetLineWidth(), 0);
    EXPECT_EQ(item.GetLineType(), 0);
    EXPECT_EQ(item.GetDegree(), 0.0);
    EXPECT_EQ(item.GetFillStyle(), 0);
    EXPECT_EQ(item.GetPara(), nullptr);
    EXPECT_EQ(item.GetDispType(), 0);
}

TEST(DisplayItem, CustomCodesExcludeEachOther) {
    CZvDisplayItem item;
    item.SetCustomCode('m');
    EXPECT_TRUE(item.IsCustomCode('m'));
    item.SetCustomCode('d');
    EXPECT_TRUE(item.IsCustomCode('c'));
    EXPECT_FALSE(item.IsCustomCode('m'));
    EXPECT_FALSE(item.IsCustomCode('d')) << "asked for d and r, an item always says no";
    item.SetCustomCode('g');
    EXPECT_TRUE(item.IsCustomCode('g'));
    item.SetCustomCode('v');
    EXPECT_TRUE(item.IsCustomCode('c'));
    EXPECT_FALSE(item.IsCustomCode('g'));
}

TEST(DisplayItem, FinalAndZeroLeaveTheItemUncoded) {
    CZvDisplayItem item;
    for (const unsigned char code :
         {static_cast<unsigned char>('f'), static_cast<unsigned char>(0)}) {
        item.SetCustomCode('r');
        EXPECT_TRUE(item.IsCustomCode('c'));
        item.SetCustomCode(code);
        EXPECT_FALSE(item.IsCustomCode('c'));
    }
}

TEST(DisplayItem, AnUnknownLetterCodesTheItemAndNothingElse) {
    CZvDisplayItem item;
    item.SetCustomCode('x');
    EXPECT_TRUE(item.IsCustomCode('c'));
    for (const unsigned char letter : {'g', 'm', 'o', 'x'})
        EXPECT_FALSE(item.IsCustomCode(letter));
}

TEST(DisplayItem, TheOffsetFlagStandsAloneUntilTheNextCode) {
    CZvDisplayItem item;
    item.SetUseOffsetFlag(true);
    EXPECT_TRUE(item.IsCustomCode('o'));
    EXPECT_TRUE(item.GetUseOffsetFlag());
    EXPECT_FALSE(item.IsCustomCode('c'));
    item.SetCustomCode('v');
    EXPECT_FALSE(item.IsCustomCode('o'));
    item.SetCustomCode('m');
    item.SetUseOffsetFlag(true);
    EXPECT_TRUE(item.IsCustomCode('m'));
    item.SetUseOffsetFlag(false);
    EXPECT_TRUE(item.IsCustomCode('m'));
    EXPECT_FALSE(item.GetUseOffsetFlag());
}

TEST(DisplayItem, AssignmentLeavesLineTypePlaceAndParaOfTheTarget) {
    CZvDisplayItem from, to;
    from.SetLineType(3, 0);
    from.SetLineWidth(2, 0);
    from.SetColor(static_cast<ZVColor>(20), 0);
    from.SetID("42-001");
    from.SetDegree(15.0);
    from.SetPickID(10005);
    from.SetBrightness(0.5);
    from.SetFill(true);
    from.SetSmooth(true);
    from.SetVisibility(false);
    from.SetFillStyle(static_cast<E_FILL_STYLE>(4));
    from.SetInActive(true);
    from.SetLayerID(E_LAYER_WELLS);
    from.SetPost(1);
    from.SetUSet(2);
    from.SetCultureID(static_cast<ZVCulture>(220));
    CZvDisplayItemPara para;
    from.SetPara(&para);
    from.SetCustomCode('m');
    to.SetLineType(1, 0);
    to = from;
    EXPECT_EQ(to.GetLineType(), 1);
    EXPECT_FALSE(to.GetInActive());
    EXPECT_EQ(to.GetLayerID(), -1);
    EXPECT_EQ(to.GetPost(), -1);
    EXPECT_EQ(to.GetUSet(), -1);
    EXPECT_EQ(to.GetCultureID(), -1);
    EXPECT_EQ(to.GetPara(), nullptr);
    CZvDisplayItem& same = to;
    to = same;
    EXPECT_EQ(to.GetID(), "42-001");
    EXPECT_EQ(to.GetLineWidth(), 2);
    EXPECT_EQ(to.GetColor(), 20);
    EXPECT_EQ(to.GetID(), "42-001");
    EXPECT_EQ(to.GetDegree(), 15.0);
    EXPECT_EQ(to.GetPickID(), 10005u);
    EXPECT_EQ(to.GetBrightness(), 0.5);
    EXPECT_TRUE(to.GetFill());
    EXPECT_TRUE(to.GetSmooth());
    EXPECT_FALSE(to.GetVisibility());
    EXPECT_EQ(to.GetFillStyle(), 4);
    EXPECT_TRUE(to.IsCustomCode('m'));
}

TEST(DisplayItem, LineTypesKeepTheirLowEightBits) {
    CZvDisplayItem item;
    item.SetLineType(-1, 0);
    EXPECT_EQ(item.GetLineType(), 255);
    item.SetLineType(256 + 3, 0);
    EXPECT_EQ(item.GetLineType(), 3);
}

TEST(DisplayItem, BaseOperationsAnswerAsAnItemWithoutShape) {
    CZvDisplayItem item;
    EXPECT_FALSE(item.Clip(nullptr));
    const CZvDispPoint center = item.GetCenterPt();
    EXPECT_EQ(center.GetX(), 0.0);
    EXPECT_EQ(center.GetY(), 0.0);
    EXPECT_EQ(center.GetZ(), 0.0);
    EXPECT_TRUE(center.GetDown());
    EXPECT_TRUE(item.OpenFile());
    RecordingContext context;
    item.Draw(&context);
    EXPECT_EQ(context.Take(), "");
}

TEST(DisplayItem, PaddingReachesTheWidthAndNeverShortens) {
    EXPECT_EQ(CZvDisplayItem::PadBlankToFront("12", 4), "  12");
    EXPECT_EQ(CZvDisplayItem::PadBlankToBack("12", 4), "12  ");
    EXPECT_EQ(CZvDisplayItem::PadBlankToFront("12345", 3), "12345");
    EXPECT_EQ(CZvDisplayItem::PadBlankToBack("1", 0), "1");
    EXPECT_EQ(CZvDisplayItem::PadBlankToFront("1", -3), "1");
}

TEST(DisplayItem, OneBasedAttributesAndBack) {
    CZvDispPolyLine line;
    line.SetColor(static_cast<ZVColor>(4), 0);
    line.SetLineWidth(0, 0);
    line.SetLineType(2, 0);
    EXPECT_TRUE(line.DrwConvertToUnix());
    EXPECT_EQ(line.GetColor(), 5);
    EXPECT_EQ(line.GetLineWidth(), 1);
    EXPECT_EQ(line.GetLineType(), 3);
    EXPECT_TRUE(line.DrwConvertToPC());
    EXPECT_EQ(line.GetColor(), 4);
    EXPECT_EQ(line.GetLineWidth(), 0);
    EXPECT_EQ(line.GetLineType(), 2);
}

TEST(DisplayItem, OneBasedConversionLeavesWhatWrapsToZero) {
    CZvDispPolyLine line;
    line.SetColor(ZV_COLOR_NONE, 0); // -1 + 1 is 0: kept
    line.SetLineWidth(255, 0);       // wraps to 0: kept
    line.SetLineType(255, 0);
    line.DrwConvertToUnix();
    EXPECT_EQ(line.GetColor(), -1);
    EXPECT_EQ(line.GetLineWidth(), 255);
    EXPECT_EQ(line.GetLineType(), 255);
}

TEST(DisplayItem, AOneBasedTypeOfAHundredComesOutAs255) {
    CZvDispPolyLine line;
    for (const int type : {100, 200}) {
        line.SetLineType(type, 0);
        line.DrwConvertToPC();
        EXPECT_EQ(line.GetLineType(), 255);
    }
}

TEST(DisplayItem, ATextsOneBasedColourGrowsByEightForEachWidth) {
    CZvDispText text;
    text.SetColor(static_cast<ZVColor>(3), 0);
    text.SetLineWidth(0, 0);
    text.DrwConvertToUnix();
    EXPECT_EQ(text.GetColor(), 4);
    text.SetColor(static_cast<ZVColor>(3), 0);
    text.SetLineWidth(2, 0); // one-based 3: 4 + 24 - 8
    text.DrwConvertToUnix();
    EXPECT_EQ(text.GetColor(), 20);
}

} // namespace
