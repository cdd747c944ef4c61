#include <gtest/gtest.h>

#include <memory>
#include <sstream>

#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispGroup.h"
#include "items/ZvDispPolygon.h"
#include "items/ZvDispText.h"
#include "persist/ZvDispFileParam.h"
#include "platform/win/MessageBox.h"
#include "support/LogLines.h"

namespace {

constexpr const char* kInvalid =
    "This file is not a valid VELDOMAR drawing file."
    "\nIf this is UNIX version of drawing file, use unix2dos to convert it first";

ZVColor C(int index) {
    return static_cast<ZVColor>(index);
}

std::string Blanks(int count) {
    return std::string(static_cast<std::size_t>(count), ' ');
}

/// What an item writes with post 1, user set 2, culture 3 of layer 25; symbol number 51 in symbol
/// mode.
std::string Written(CZvDisplayItem& item, bool symbol = false) {
    std::ostringstream out;
    CZvDispFileParam file;
    file.SetOutFile(&out);
    file.SetLayerNum(25);
    file.SetPostNum(1);
    file.SetUsetNum(2);
    file.SetCulture(3);
    file.SetSymbol(symbol);
    file.SetSymbolNum(51);
    item.WriteDrawingFile(file);
    return out.str();
}

struct Read {
    std::list<CZvDisplayItem*> items, texts;
    std::string description;
    bool ok = false;
    CZvDispFileParam file;
    std::istringstream in;

    explicit Read(const std::string& text) : in(text) {
        file.SetInFile(&in);
        ok = CZvDisplayItem::S_ReadDrawingFile(&items, &texts, file, description);
    }
    ~Read() {
        for (CZvDisplayItem* item : items)
            delete item;
        for (CZvDisplayItem* item : texts)
            delete item;
    }
    template<class Item>
    Item& First() {
        return static_cast<Item&>(*items.front());
    }
};

/// Hears what message boxes say while a test runs.
class Messages : public testing::Test {
  protected:
    void SetUp() override { m_before = zv::SetMessageHost(&host); }
    void TearDown() override { zv::SetMessageHost(m_before); }
    zv::HeadlessMessageHost host;

  private:
    zv::MessageHost* m_before = nullptr;
};
using DrawingBlock = Messages;

const std::string kTail = "IB:POS:  1UST:  2CUL:  3";
const std::string kEndOfBlock = "EOF: 5120" + Blanks(71) + "\r\n";

TEST(DrawingRecord, AnArcStandsInTwoLinesTheSecondOf92Columns) {
    CZvDispArc arc({1.5, -2.25}, 3.0, 10.0f, 100.5f);
    arc.SetLineWidth(1, 0);
    arc.SetLineType(2, 0);
    arc.SetFill(true);
    EXPECT_EQ(Written(arc), "ARC:    1  25LW:  1LT:  2COL:  8FIL:TX:" + Blanks(11) + "1.50000000" +
                                Blanks(20) + "\r\nY:" + Blanks(10) + "-2.25000000RAD:" + Blanks(8) +
                                "3.00000DGS:  10.0000DGD:  90.5000" + kTail + "\r\n");
    const std::string second = Written(arc).substr(82);
    EXPECT_EQ(second.size(), 94u) << "92 columns and the line end";
}

TEST(DrawingRecord, InSymbolModeAnArcFillsUpWithBlanks) {
    CZvDispArc arc({1.5, -2.25}, 3.0, 10.0f, 100.5f);
    const std::string text = Written(arc, true);
    EXPECT_EQ(text.substr(0, 13), "ARC: 51 1 999");
    EXPECT_EQ(text.size(), 2u * 82u);
    EXPECT_EQ(text.substr(82 + 68), Blanks(12) + "\r\n");
}

TEST(DrawingRecord, ACircleStandsInTwoLinesOf80) {
    CZvDispCircle circle({0, 0}, 2.5);
    EXPECT_EQ(Written(circle), "CIR:    2  25LW:  0LT:  0COL:  8FIL:FX:" + Blanks(11) +
                                   "0.00000000" + Blanks(20) + "\r\nY:" + Blanks(11) +
                                   "0.00000000RAD:" + Blanks(8) + "2.50000" + kTail + Blanks(14) +
                                   "\r\n");
    const std::string symbol = Written(circle, true);
    EXPECT_EQ(symbol.substr(82 + 42), Blanks(38) + "\r\n");
}

TEST(DrawingRecord, APolygonWritesALineForEachFurtherVertex) {
    CZvDispPolygon polygon(std::vector<CZvDispPoint>{{0, 1}, {2, 3}, {4, 5}});
    polygon.SetFill(true);
    const std::string expected = "POL:    7  25LW:  0LT:  0COL:  8FIL:TX:" + Blanks(11) +
                                 "0.00000000" + Blanks(20) + "\r\nY:" + Blanks(11) + "1.00000000" +
                                 kTail + Blanks(33) + "\r\n" + "POL2:   8X:" + Blanks(11) +
                                 "2.00000000Y:" + Blanks(11) + "3.00000000" + Blanks(25) + "\r\n" +
                                 "POL2:   8X:" + Blanks(11) + "4.00000000Y:" + Blanks(11) +
                                 "5.00000000" + Blanks(25) + "\r\n";
    EXPECT_EQ(Written(polygon), expected);
    EXPECT_EQ(expected.size(), 4u * 82u);
}

TEST(DrawingRecord, APolylineHasNoFillAndOneVertexNoFurtherLines) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}});
    const std::string one = "COV:   13  25LW:  0LT:  0COL:  8X:" + Blanks(11) + "0.00000000" +
                            Blanks(25) + "\r\nY:" + Blanks(11) + "1.00000000" + kTail + Blanks(33) +
                            "\r\n";
    EXPECT_EQ(Written(line), one);
    line.AddPoint({2, 3});
    EXPECT_EQ(Written(line), one + "COV2:  14X:" + Blanks(11) + "2.00000000Y:" + Blanks(11) +
                                 "3.00000000" + Blanks(25) + "\r\n");
}

TEST(DrawingRecord, WithoutVerticesAndAsGroupNothingIsWritten) {
    CZvDispPolyLine line;
    CZvDispPolygon polygon;
    CZvDispGroup group;
    EXPECT_EQ(Written(line), "");
    EXPECT_EQ(Written(polygon), "");
    EXPECT_EQ(Written(group), "");
}

CZvDispText& Labelled(CZvDispText& text, const std::string& label) {
    text.SetLabel(label);
    text.SetPoint({7, 8});
    text.SetVertHeight(12.5f);
    text.SetDegree(30.0);
    text.SetHorzJustify('l');
    text.SetVertJustify('b');
    return text;
}

TEST(DrawingRecord, ATextStandsInFourLines) {
    CZvDispText text;
    Labelled(text, "A-1");
    const std::string expected =
        "TXP:   18  25" + Blanks(12) + "COL:  8ANG:  30.0000HT:" + Blanks(7) + "12.50000HJ:lVJ:b" +
        Blanks(9) + "\r\nX:" + Blanks(11) + "7.00000000Y:" + Blanks(11) + "8.00000000" + kTail +
        Blanks(10) + "\r\nTXT:   22NUM: 3" + Blanks(65) + "\r\nA-1" + Blanks(77) + "\r\n";
    EXPECT_EQ(Written(text), expected);
    EXPECT_EQ(expected.size(), 4u * 82u);
}

TEST(DrawingRecord, AVariableTextDiffersInTagAndCode) {
    CZvDispText text;
    Labelled(text, "A-1");
    std::ostringstream out;
    CZvDispFileParam file;
    file.SetOutFile(&out);
    file.SetSymbol(true);
    file.SetSymbolNum(51);
    text.WriteVarTextToFile(file);
    EXPECT_EQ(out.str().substr(0, 13), "VTX: 5119 999");
    EXPECT_EQ(out.str().substr(82 * 2, 15), "TXT: 5122NUM: 3");
}

TEST(DrawingRecord, AValueWiderThanItsFieldLosesItsRightHand) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{1e300, 0}});
    line.SetColor(C(1234), 0);
    const std::string text = Written(line);
    EXPECT_EQ(text.substr(25, 7), "COL:123");
    EXPECT_EQ(text.substr(32, 23), "X:100000000000000005250");
    EXPECT_EQ(text.size(), 2u * 82u);
}

TEST(DrawingRecord, ALabelOf80FillsTheLineAndALongerOneIsCut) {
    CZvDispText text;
    const std::string label(80, 'x');
    Labelled(text, label);
    EXPECT_EQ(Written(text).substr(3 * 82), label + "\r\n");
    zv::test::LogLines log;
    Labelled(text, std::string(100000, 'x'));
    const std::string written = Written(text);
    EXPECT_EQ(written.substr(2 * 82, 15), "TXT:   22NUM:80");
    EXPECT_EQ(written.substr(3 * 82), label + "\r\n");
    EXPECT_EQ(log.Get().size(), 1u);
}

TEST_F(DrawingBlock, ReadsBackWhatSymbolModeWrote) {
    CZvDispPolygon polygon(std::vector<CZvDispPoint>{{0, 1}, {2, 3}, {4, 5}});
    polygon.SetFill(true);
    polygon.SetColor(C(7), 0);
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{9, 8, 5, false}, {7, 6}});
    CZvDispText text;
    Labelled(text, "A-1 B");
    Read read(Written(polygon, true) + Written(line, true) + Written(text, true) + kEndOfBlock);
    ASSERT_TRUE(read.ok);
    ASSERT_EQ(read.items.size(), 3u);
    auto at = read.items.begin();
    auto* p = static_cast<CZvDispPolygon*>(*at++);
    auto* l = static_cast<CZvDispPolyLine*>(*at++);
    auto* t = static_cast<CZvDispText*>(*at++);
    EXPECT_EQ(p->GetDispType(), ZV_DISP_POLYGON);
    EXPECT_EQ(p->GetSize(), 3);
    EXPECT_TRUE(p->GetFill());
    EXPECT_EQ(p->GetColor(), 6) << "7 is one-based in the file";
    EXPECT_EQ(p->GetPoint(2).GetY(), 5.0);
    EXPECT_EQ(l->GetPoint(0).GetX(), 9.0);
    EXPECT_EQ(l->GetPoint(0).GetZ(), 0.0) << "depth and pen flag are not written";
    EXPECT_TRUE(l->GetPoint(0).GetDown());
    EXPECT_EQ(t->GetLabel(), "A-1 B");
    EXPECT_EQ(t->GetDegree(), 30.0);
    EXPECT_EQ(t->GetVertHeight(), 12.5f);
    EXPECT_EQ(t->GetHorzJustify(), 'l');
    EXPECT_EQ(t->GetVertJustify(), 'b');
    EXPECT_EQ(t->GetPoint().GetY(), 8.0);
    EXPECT_EQ(t->GetLineWidth(), 0);
    EXPECT_EQ(t->GetLineType(), 0);
    EXPECT_TRUE(host.GetShown().empty());
}

TEST_F(DrawingBlock, ArcsAndCirclesComeBackOneColourLower) {
    CZvDispCircle circle({1, 2}, 3.0);
    CZvDispArc arc({1, 2}, 3.0, 10.0f, 100.5f);
    circle.SetColor(C(6), 0); // one-based 6 is 5, and the record's reader has taken one off before
    arc.SetColor(C(1), 0);    // read as 0, which stays 0
    Read read(Written(circle, true) + Written(arc, true) + kEndOfBlock);
    ASSERT_TRUE(read.ok);
    EXPECT_EQ(read.items.front()->GetColor(), 4);
    EXPECT_EQ(read.items.back()->GetColor(), 0);
    auto* back = static_cast<CZvDispArc*>(read.items.back());
    EXPECT_EQ(back->GetStartAngle(), 10.0f);
    EXPECT_EQ(back->GetEndAngle(), 100.5f);
    EXPECT_EQ(back->GetRadius(), 3.0);
    EXPECT_EQ(back->GetCenter().GetY(), 2.0);
}

TEST_F(DrawingBlock, ACutNumberReadsBackAsAnother) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}});
    line.SetColor(C(1234), 0);
    Read read(Written(line, true) + kEndOfBlock);
    EXPECT_EQ(read.items.front()->GetColor(), 122) << "123 in the file, one-based";
}

TEST_F(DrawingBlock, ATypeOf100Or200ComesOutAs255) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}});
    for (const int type : {100, 200}) {
        line.SetLineType(type, 0);
        Read read(Written(line, true) + kEndOfBlock);
        EXPECT_EQ(read.items.front()->GetLineType(), 255);
    }
}

TEST_F(DrawingBlock, AFileEndMarkInALabelIsReplacedAndTold) {
    zv::test::LogLines log;
    CZvDispText text;
    Labelled(text, "A\x1a"
                   "B");
    Read read(Written(text, true) + kEndOfBlock);
    ASSERT_TRUE(read.ok);
    EXPECT_EQ(read.First<CZvDispText>().GetLabel(), "A?B");
    EXPECT_EQ(log.Get().size(), 1u);
}

TEST_F(DrawingBlock, ATextsWidthIsWrittenIntoItsOneBasedColour) {
    CZvDispText text;
    Labelled(text, "L");
    text.SetColor(C(3), 0);
    text.SetLineWidth(2, 0);
    std::ostringstream out;
    CZvDispFileParam file;
    file.SetOutFile(&out);
    text.DrwWrite(file);
    EXPECT_EQ(out.str().substr(25, 7), "COL: 20") << "4 + 8 * 3 - 8";
    EXPECT_EQ(text.GetColor(), 3);
    EXPECT_EQ(text.GetLineWidth(), 2);
}

TEST_F(DrawingBlock, AnArcsEndIsItsStartAndTheRoundedSweep) {
    CZvDispArc arc({0, 0}, 1.0, 0.0f, 1.23456f);
    Read read(Written(arc, true) + kEndOfBlock);
    EXPECT_EQ(read.First<CZvDispArc>().GetEndAngle(), 1.2346f);
}

TEST_F(DrawingBlock, ABlankFillIsTrueForACircleAndFalseForAPolygon) {
    CZvDispCircle circle({0, 0}, 1.0);
    CZvDispPolygon polygon(std::vector<CZvDispPoint>{{0, 1}, {2, 3}});
    const auto withBlankFill = [](std::string text) {
        text[text.find("FIL:") + 4] = ' ';
        return text;
    };
    Read read(withBlankFill(Written(circle, true)) + withBlankFill(Written(polygon, true)) +
              kEndOfBlock);
    EXPECT_TRUE(read.items.front()->GetFill());
    EXPECT_FALSE(read.items.back()->GetFill());
}

TEST_F(DrawingBlock, TheTailFillsTheParametersAndLastsUntilTheNext) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}, {2, 3}});
    Read read(Written(line) + Written(line, true) + kEndOfBlock);
    ASSERT_TRUE(read.ok);
    EXPECT_EQ(read.items.size(), 2u);
    EXPECT_EQ(read.file.GetPostNum(), 1);
    EXPECT_EQ(read.file.GetUsetNum(), 2);
    EXPECT_EQ(read.file.GetCulture(), 3);
}

TEST_F(DrawingBlock, EveryKindsTailLeavesTheReaderAtTheNextRecord) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}, {2, 3}});
    CZvDispPolygon polygon(std::vector<CZvDispPoint>{{0, 1}, {2, 3}});
    CZvDispCircle circle({1, 2}, 3.0);
    CZvDispArc arc({1, 2}, 3.0, 0.0f, 90.0f);
    CZvDispText text;
    Labelled(text, "L");
    std::string all;
    for (CZvDisplayItem* item :
         std::initializer_list<CZvDisplayItem*>{&line, &polygon, &circle, &arc, &text, &line})
        all += Written(*item);
    Read read(all + kEndOfBlock);
    ASSERT_TRUE(read.ok);
    EXPECT_EQ(read.items.size(), 6u);
    EXPECT_EQ(read.file.GetCulture(), 3);
}

TEST_F(DrawingBlock, BareLineFeedsAreReadToo) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}, {2, 3}});
    std::string text = Written(line, true) + kEndOfBlock;
    std::erase(text, '\r');
    Read read(text);
    ASSERT_TRUE(read.ok);
    EXPECT_EQ(read.First<CZvDispPolyLine>().GetPoint(1).GetX(), 2.0);
}

TEST_F(DrawingBlock, ATriangleIsClosedToFourVertices) {
    const auto n = [](const char* value) { return CZvDisplayItem::PadBlankToFront(value, 21); };
    Read read("POL: 5110 999LW:  1LT:  1COL:  5FIL:TX:" + n("1.0") + Blanks(20) + "\r\n" +
              "Y:" + n("2.0") + "X:" + n("3.0") + "Y:" + n("4.0") + Blanks(11) + "\r\n" +
              "X:" + n("5.0") + "Y:" + n("6.0") + Blanks(34) + "\r\n" + kEndOfBlock);
    ASSERT_TRUE(read.ok);
    auto& triangle = read.First<CZvDispPolygon>();
    ASSERT_EQ(triangle.GetSize(), 4);
    EXPECT_EQ(triangle.GetPoint(1).GetY(), 4.0);
    EXPECT_EQ(triangle.GetPoint(2).GetX(), 5.0);
    EXPECT_EQ(triangle.GetPoint(3).GetX(), 1.0);
    EXPECT_EQ(triangle.GetPoint(3).GetY(), 2.0);
}

TEST_F(DrawingBlock, ATwoPointLineStandsInOneRecord) {
    const auto n = [](const char* value) { return CZvDisplayItem::PadBlankToFront(value, 21); };
    const std::string head = "LIN:   12  25LW:  1LT:  1COL:  5X:" + n("1.0") + Blanks(25) + "\r\n" +
                             "Y:" + n("2.0") + "X:" + n("3.0") + "Y:" + n("4.0");
    Read read(head + kTail + "\r\n" + head + kTail + "\r\n" + kEndOfBlock);
    ASSERT_TRUE(read.ok);
    ASSERT_EQ(read.items.size(), 2u);
    auto& line = read.First<CZvDispPolyLine>();
    ASSERT_EQ(line.GetSize(), 2);
    EXPECT_EQ(line.GetPoint(0).GetY(), 2.0);
    EXPECT_EQ(line.GetPoint(1).GetX(), 3.0);
    EXPECT_EQ(line.GetPoint(1).GetY(), 4.0);
    EXPECT_EQ(read.file.GetCulture(), 3);
}

TEST_F(DrawingBlock, VariableTextsAndDescriptionsGoToPlacesOfTheirOwn) {
    CZvDispText text;
    Labelled(text, "VAR");
    std::ostringstream out;
    CZvDispFileParam file;
    file.SetOutFile(&out);
    file.SetSymbol(true);
    file.SetSymbolNum(51);
    text.WriteVarTextToFile(file);
    Read read(out.str() + "CTX: 5123NUM: 8" + Blanks(65) + "\r\nOil well" + Blanks(72) + "\r\n" +
              kEndOfBlock);
    ASSERT_TRUE(read.ok);
    EXPECT_TRUE(read.items.empty());
    ASSERT_EQ(read.texts.size(), 1u);
    EXPECT_EQ(static_cast<CZvDispText*>(read.texts.front())->GetLabel(), "VAR");
    EXPECT_EQ(read.description, "Oil well");
}

TEST_F(DrawingBlock, AThreeDigitSymbolNumberGluedToItsTagIsRead) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}, {2, 3}});
    std::string text = Written(line, true);
    text.replace(4, 3, "712");
    Read read(text + "EOF:71220" + Blanks(71) + "\r\n");
    ASSERT_TRUE(read.ok);
    EXPECT_EQ(read.First<CZvDispPolyLine>().GetSize(), 2);
}

TEST_F(DrawingBlock, AnUnknownCodeShowsTheMessageAndKeepsWhatWasReadOneBased) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}, {2, 3}});
    for (const char* code : {" 8", " 3", "24", " 0", "22", "xx"}) {
        host.Clear();
        Read read(Written(line, true) + "BAD: 51" + code + " 999" + Blanks(67) + "\r\n");
        EXPECT_FALSE(read.ok);
        ASSERT_EQ(host.GetShown().size(), 1u) << code;
        EXPECT_EQ(host.GetShown()[0].text, kInvalid);
        EXPECT_EQ(host.GetShown()[0].style, 48u);
        ASSERT_EQ(read.items.size(), 1u);
        EXPECT_EQ(read.items.front()->GetColor(), 8) << "still one-based";
    }
}

TEST_F(DrawingBlock, AFileCutAnywhereEndsInTheMessageWithoutHarm) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}, {2, 3}});
    CZvDispText text;
    Labelled(text, "LABEL");
    const std::string whole = Written(line, true) + Written(text, true);
    for (std::size_t length = 0; length <= whole.size(); ++length) {
        host.Clear();
        Read read(whole.substr(0, length));
        EXPECT_FALSE(read.ok) << length;
        EXPECT_EQ(host.GetShown().size(), 1u) << length;
    }
}

TEST_F(DrawingBlock, DrwWriteWritesOneBasedAndPutsTheAttributesBack) {
    CZvDispPolyLine line(std::vector<CZvDispPoint>{{0, 1}});
    line.SetColor(C(4), 0);
    line.SetLineWidth(2, 0);
    line.SetLineType(1, 0);
    std::ostringstream out;
    CZvDispFileParam file;
    file.SetOutFile(&out);
    EXPECT_TRUE(line.DrwWrite(file));
    EXPECT_EQ(out.str().substr(13, 19), "LW:  3LT:  2COL:  5");
    EXPECT_EQ(line.GetColor(), 4);
    EXPECT_EQ(line.GetLineWidth(), 2);
    EXPECT_EQ(line.GetLineType(), 1);
}

TEST(DrawingParameters, StartAtZeroAndCopyWhole) {
    CZvDispFileParam file;
    EXPECT_FALSE(file.IsSymbol());
    EXPECT_EQ(file.GetCulture(), 0);
    EXPECT_EQ(file.GetUsetNum(), 0);
    EXPECT_EQ(file.GetPostNum(), 0);
    EXPECT_EQ(file.GetLayerNum(), 0);
    EXPECT_EQ(file.GetSymbolNum(), 0);
    EXPECT_EQ(file.GetInFile(), nullptr);
    EXPECT_EQ(file.GetOutFile(), nullptr);
    file.SetSymbol(true);
    file.SetCulture(3);
    file.SetSymbolNum(51);
    file.SetUsetNum(4);
    file.SetPostNum(5);
    file.SetLayerNum(6);
    std::istringstream in;
    file.SetInFile(&in);
    CZvDispFileParam assigned;
    assigned = file;
    for (const CZvDispFileParam& copy : {CZvDispFileParam(file), assigned}) {
        EXPECT_TRUE(copy.IsSymbol());
        EXPECT_EQ(copy.GetCulture(), 3);
        EXPECT_EQ(copy.GetSymbolNum(), 51);
        EXPECT_EQ(copy.GetUsetNum(), 4);
        EXPECT_EQ(copy.GetPostNum(), 5);
        EXPECT_EQ(copy.GetLayerNum(), 6);
        EXPECT_EQ(copy.GetInFile(), &in);
        EXPECT_EQ(copy.GetOutFile(), nullptr);
    }
}

} // namespace
