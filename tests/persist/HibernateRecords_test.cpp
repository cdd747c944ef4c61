#include <cstring>
#include <gtest/gtest.h>
#include <memory>

#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispGroup.h"
#include "items/ZvDispPolygon.h"
#include "items/ZvDispSymbols.h"
#include "items/ZvDispText.h"
#include "persist/HibernateFormat.h"
#include "persist/RecordStream.h"

namespace {

using zv::RecordReader;
using zv::RecordWriter;

template<class T>
std::string Raw(T value) {
    std::string bytes(sizeof value, '\0');
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}
std::string I(int value) {
    return Raw(value);
}
std::string D(double value) {
    return Raw(value);
}
std::string B(int value) {
    return std::string(1, static_cast<char>(value));
}
std::string S(const std::string& text) {
    return I(static_cast<int>(text.size())) + text;
}
std::string P(double x, double y, double z, int down) {
    return D(x) + D(y) + D(z) + B(down);
}

/// Kind and common part of an item that was just made.
std::string NewCommon(int kind, int color = 8) {
    return I(kind) + B(0) + B(0) + B(0) + B(1) + B(color) + D(0.0) + B(0) + B(0) + I(0) +
           S("UNDEFINED") + I(-1) + D(1.0);
}

std::string Record(CZvDisplayItem& item) {
    RecordWriter writer;
    EXPECT_TRUE(item.Hibernate(writer));
    return {writer.Bytes().begin(), writer.Bytes().end()};
}

std::unique_ptr<CZvDisplayItem> Woken(const std::string& record) {
    RecordReader reader(record);
    std::unique_ptr<CZvDisplayItem> item(CZvDisplayItem::MakeNewItem(reader));
    if (item) item->Wake(reader);
    return item;
}

template<class Item>
std::unique_ptr<Item> ThereAndBack(Item& item) {
    std::unique_ptr<CZvDisplayItem> woken = Woken(Record(item));
    return std::unique_ptr<Item>(dynamic_cast<Item*>(woken.release()));
}

class File {
  public:
    explicit File(const std::string& bytes = "") {
        std::fwrite(bytes.data(), 1, bytes.size(), m_file);
        std::rewind(m_file);
    }
    ~File() { std::fclose(m_file); }
    operator std::FILE*() const { return m_file; }
    std::string All() const {
        std::rewind(m_file);
        std::string bytes;
        for (int c; (c = std::fgetc(m_file)) != EOF;)
            bytes += static_cast<char>(c);
        return bytes;
    }

  private:
    std::FILE* m_file = std::tmpfile();
};

void SetCommon(CZvDisplayItem& item) {
    item.SetFill(true);
    item.SetInActive(true);
    item.SetSmooth(true);
    item.SetVisibility(false);
    item.SetColor(static_cast<ZVColor>(0x1234), 0);
    item.SetDegree(30.5);
    item.SetLineWidth(3, 0);
    item.SetLineType(4, 0);
    item.SetFillStyle(static_cast<E_FILL_STYLE>(7));
    item.SetID("17-705-40001");
    item.SetPickID(10001);
    item.SetBrightness(0.25);
}

const std::string kCommonBlocks = B(1) + B(1) + B(1) + B(0) + B(0x34) + D(30.5) + B(3) + B(4) +
                                  I(7) + S("17-705-40001") + I(10001) + D(0.25);

TEST(HibernateCommon, HoldsTheTwelveFieldsInTheirOrder) {
    CZvDispPolyLine line;
    SetCommon(line);
    EXPECT_EQ(Record(line), I(2) + kCommonBlocks + I(0));
}

TEST(HibernateCommon, ComesBackWhole) {
    CZvDispCircle circle;
    SetCommon(circle);
    const auto woken = ThereAndBack(circle);
    ASSERT_TRUE(woken);
    EXPECT_TRUE(woken->GetFill());
    EXPECT_TRUE(woken->GetInActive());
    EXPECT_TRUE(woken->GetSmooth());
    EXPECT_FALSE(woken->GetVisibility());
    EXPECT_EQ(woken->GetDegree(), 30.5);
    EXPECT_EQ(woken->GetLineWidth(), 3);
    EXPECT_EQ(woken->GetLineType(), 4);
    EXPECT_EQ(woken->GetFillStyle(), 7);
    EXPECT_EQ(woken->GetID(), "17-705-40001");
    EXPECT_EQ(woken->GetPickID(), 10001u);
    EXPECT_EQ(woken->GetBrightness(), 0.25);
}

TEST(HibernateCommon, OfAColourOnlyTheLowByteComesBack) {
    CZvDispCircle circle;
    circle.SetColor(static_cast<ZVColor>(0x1234), 0);
    EXPECT_EQ(ThereAndBack(circle)->GetColor(), 0x34);
    circle.SetColor(ZV_COLOR_NONE, 0);
    EXPECT_EQ(ThereAndBack(circle)->GetColor(), 255);
}

TEST(HibernateCommon, AWokenItemIsUncodedAndHasNoPlace) {
    CZvDispCircle circle;
    circle.SetCustomCode('m');
    circle.SetUseOffsetFlag(true);
    circle.SetLayerID(E_LAYER_WELLS);
    circle.SetPost(1);
    circle.SetUSet(2);
    circle.SetCultureID(static_cast<ZVCulture>(220));
    const auto woken = ThereAndBack(circle);
    EXPECT_FALSE(woken->IsCustomCode('c'));
    EXPECT_FALSE(woken->IsCustomCode('m'));
    EXPECT_FALSE(woken->GetUseOffsetFlag());
    EXPECT_EQ(woken->GetLayerID(), -1);
    EXPECT_EQ(woken->GetPost(), -1);
    EXPECT_EQ(woken->GetUSet(), -1);
    EXPECT_EQ(woken->GetCultureID(), -1);
    EXPECT_EQ(woken->GetPara(), nullptr);
}

TEST(HibernateCommon, TheConstantsAddUpToTheRecordsOfEmptyItems) {
    CZvDispText text;
    text.SetID("");
    text.SetFont("");
    text.SetLabel("");
    text.SetOffsetID("");
    EXPECT_EQ(Record(text).size(), zv::kCommonBytes + zv::kTextBytes);
    const auto size = [](auto&& item) {
        item.SetID("");
        return Record(item).size();
    };
    EXPECT_EQ(size(CZvDispPolyLine()), zv::kCommonBytes + zv::kPolyLineBytes);
    EXPECT_EQ(size(CZvDispPolygon()), zv::kCommonBytes + zv::kPolygonBytes);
    EXPECT_EQ(size(CZvDispSymbols()), zv::kCommonBytes + zv::kSymbolBytes);
    EXPECT_EQ(size(CZvDispCircle()), zv::kCommonBytes + zv::kCircleBytes);
    EXPECT_EQ(size(CZvDispGroup()), zv::kCommonBytes + zv::kGroupBytes);
    EXPECT_EQ(size(CZvDispArc()), zv::kCommonBytes + zv::kArcBytes);
}

TEST(HibernateText, HoldsJustificationHeightPositionAndThreeStrings) {
    CZvDispText text;
    text.SetID("ID 1");
    text.SetHorzJustify('r');
    text.SetVertJustify('b');
    text.SetVertHeight(0.1f);
    text.SetPoint({1, 2, 3, false});
    text.SetFont("Arial");
    text.SetLabel("A-1");
    text.SetOffsetID("O 1");
    text.SetOffsetPoint({50, 60});
    const std::string own = B('r') + B('b') + D(static_cast<double>(0.1f)) + P(1, 2, 3, 0) +
                            S("Arial") + S("A-1") + S("O-1");
    const std::string record = Record(text);
    EXPECT_EQ(record.substr(record.size() - own.size()), own);
    EXPECT_EQ(record.size(), zv::kCommonBytes + 4 + own.size());
}

TEST(HibernateText, LosesItsOffsetPointAndKeepsItsOffsetID) {
    CZvDispText text;
    text.SetLabel("A-1");
    text.SetVertHeight(0.1f);
    text.SetOffsetID("25-1-1");
    text.SetOffsetPoint({50, 60});
    text.SetUseOffsetFlag(true);
    const auto woken = ThereAndBack(text);
    EXPECT_EQ(woken->GetOffsetID(), "25-1-1");
    EXPECT_EQ(woken->GetOffsetPoint().GetX(), 0.0);
    EXPECT_FALSE(woken->GetUseOffsetFlag());
    EXPECT_EQ(woken->GetVertHeight(), 0.1f) << "single precision comes back exactly";
    EXPECT_EQ(woken->GetLabel(), "A-1");
}

TEST(HibernateText, AnEmptyLabelTakesFourBytesAndComesBackEmpty) {
    CZvDispText text;
    text.SetLabel("");
    const std::size_t empty = Record(text).size();
    text.SetLabel("x");
    EXPECT_EQ(Record(text).size(), empty + 1);
    text.SetLabel("");
    EXPECT_EQ(ThereAndBack(text)->GetLabel(), "");
}

TEST(HibernateText, ALabelEndsAtItsFirstZeroByte) {
    CZvDispText text;
    text.SetLabel(std::string("ab\0cd", 5));
    text.SetOffsetID("behind");
    const auto woken = ThereAndBack(text);
    EXPECT_EQ(woken->GetLabel(), "ab");
    EXPECT_EQ(woken->GetOffsetID(), "behind");
}

TEST(HibernatePolyLine, HoldsItsVerticesAsFourArrays) {
    CZvDispPolyLine line({{1, 2, 3, true}, {4, 5, 6, false}});
    EXPECT_EQ(Record(line),
              NewCommon(2) + I(2) + D(1) + D(4) + D(2) + D(5) + D(3) + D(6) + B(1) + B(0));
    const auto woken = ThereAndBack(line);
    ASSERT_EQ(woken->GetSize(), 2);
    EXPECT_EQ(woken->GetPoint(1).GetX(), 4);
    EXPECT_EQ(woken->GetPoint(1).GetY(), 5);
    EXPECT_EQ(woken->GetPoint(1).GetZ(), 6);
    EXPECT_FALSE(woken->GetPoint(1).GetDown());
    EXPECT_TRUE(woken->GetPoint(0).GetDown());
}

TEST(HibernatePolyLine, WithoutVerticesTakesFourBytesBehindTheCommonPart) {
    CZvDispPolyLine line;
    EXPECT_EQ(Record(line), NewCommon(2) + I(0));
    EXPECT_EQ(ThereAndBack(line)->GetSize(), 0);
}

TEST(HibernatePolyLine, AnyDownByteButZeroIsDown) {
    const auto woken = Woken(NewCommon(2) + I(1) + D(1) + D(2) + D(3) + B(77));
    EXPECT_TRUE(static_cast<CZvDispPolyLine&>(*woken).GetPoint(0).GetDown());
}

TEST(HibernatePolygon, HoldsFlagsAndDepthsBehindItsVertices) {
    CZvDispPolygon polygon({{1, 2, 3, true}});
    polygon.SetSpecialPolygonFlag(true);
    polygon.SetMinDepth(-100.0);
    polygon.SetMaxDepth(-50.0);
    polygon.SetDifferentZPolygonFlag(true);
    EXPECT_EQ(Record(polygon),
              NewCommon(3) + I(1) + D(1) + D(2) + D(3) + B(1) + B(1) + D(-100.0) + D(-50.0) + B(1));
    const auto woken = ThereAndBack(polygon);
    EXPECT_TRUE(woken->GetSpecialPolygonFlag());
    EXPECT_TRUE(woken->GetDifferentZPolygonFlag());
    EXPECT_EQ(woken->GetMinDepth(), -100.0);
    EXPECT_EQ(woken->GetMaxDepth(), -50.0);
}

TEST(HibernatePolygon, WritesDepthsThatWereNeverSetAsZero) {
    CZvDispPolygon polygon;
    EXPECT_EQ(Record(polygon), NewCommon(3) + I(0) + B(0) + D(0.0) + D(0.0) + B(0));
}

TEST(HibernateSymbol, HoldsCentreScaleNumberColoursAndOneFlag) {
    CZvDispSymbols symbol({1, 2, 3, true}, 56);
    symbol.SetScale(1.5);
    symbol.SetTextColor(static_cast<ZVColor>(5), 0);
    symbol.SetUseOrigColor(true);
    EXPECT_EQ(Record(symbol), NewCommon(4) + P(1, 2, 3, 1) + D(1.5) + I(56) + I(5) + I(-1) + B(1));
}

TEST(HibernateSymbol, LosesItsUseGroupColourFlag) {
    CZvDispSymbols symbol({1, 2}, 56);
    symbol.SetUseOrigColor(true);
    symbol.SetUseGroupColorFlg(true);
    const auto woken = ThereAndBack(symbol);
    EXPECT_TRUE(woken->GetUseOrigColor());
    EXPECT_FALSE(woken->GetUseGroupColorFlg());
    EXPECT_EQ(woken->GetSymbolNum(), 56);
    EXPECT_EQ(woken->GetFillColor(), -1);
}

TEST(HibernateCircle, HoldsCentreAndRadius) {
    CZvDispCircle circle({1, 2, 3, true}, 4.5);
    EXPECT_EQ(Record(circle), NewCommon(5) + P(1, 2, 3, 1) + D(4.5));
    EXPECT_EQ(ThereAndBack(circle)->GetRadius(), 4.5);
}

TEST(HibernateArc, HoldsTheEndAngleBeforeTheStartAngle) {
    CZvDispArc arc({1, 2}, 4.5, 10.1f, 90.7f);
    EXPECT_EQ(Record(arc), NewCommon(7) + P(1, 2, 0, 1) + D(4.5) + D(static_cast<double>(90.7f)) +
                               D(static_cast<double>(10.1f)));
    const auto woken = ThereAndBack(arc);
    EXPECT_EQ(woken->GetStartAngle(), 10.1f);
    EXPECT_EQ(woken->GetEndAngle(), 90.7f);
}

TEST(HibernateGroup, HoldsOriginKeysAndWholeRecordsInKeyOrder) {
    CZvDispGroup group;
    group.SetOrigin({1, 2, 3, true});
    auto* const line = new CZvDispPolyLine;
    auto* const circle = new CZvDispCircle({7, 8}, 9);
    auto* const first = new CZvDispPolyLine({{5, 5}});
    group.AddPrimitive(4, line);
    group.AddPrimitive(0, circle);
    group.AddPrimitive(4, first);
    EXPECT_EQ(Record(group), NewCommon(6, 255) + P(1, 2, 3, 1) + I(3) + I(0) + I(4) + I(4) +
                                 Record(*circle) + Record(*line) + Record(*first));
}

TEST(HibernateGroup, ComesBackInKeyOrder) {
    CZvDispGroup group;
    group.AddPrimitive(4, new CZvDispPolyLine);
    group.AddPrimitive(0, new CZvDispCircle({7, 8}, 9));
    const auto woken = ThereAndBack(group);
    ASSERT_TRUE(woken);
    ASSERT_EQ(woken->GetGroupList()->size(), 2u);
    EXPECT_EQ(woken->GetGroupList()->front()->GetDispType(), ZV_DISP_CIRCLE);
    EXPECT_EQ(woken->GetGroupItem(4)->GetDispType(), ZV_DISP_POLYLINE);
    EXPECT_TRUE(woken->GetGroupItem(4)->IsCustomCode('g'));
}

TEST(HibernateGroup, EmptyItHoldsACountOfZeroAndNothingBehind) {
    CZvDispGroup group;
    EXPECT_EQ(Record(group), NewCommon(6, 255) + P(0, 0, 0, 1) + I(0));
    EXPECT_TRUE(ThereAndBack(group)->GetGroupMap().empty());
}

TEST(HibernateGroup, LeavesMissingMembersOut) {
    CZvDispGroup group;
    group.AddPrimitive(1, new CZvDispCircle);
    group.GetGroupMap().emplace(0, nullptr);
    const auto woken = ThereAndBack(group);
    EXPECT_EQ(woken->GetGroupMap().size(), 1u);
    EXPECT_NE(woken->GetGroupItem(1), nullptr);
}

std::unique_ptr<CZvDispGroup> Nested(int levels) {
    auto group = std::make_unique<CZvDispGroup>();
    for (int level = 1; level < levels; ++level) {
        auto outer = std::make_unique<CZvDispGroup>();
        outer->AddPrimitive(0, group.release());
        group = std::move(outer);
    }
    return group;
}

int Levels(CZvDispGroup* group) {
    int levels = 0;
    for (; group; group = static_cast<CZvDispGroup*>(group->GetGroupItem(0)))
        ++levels;
    return levels;
}

TEST(HibernateGroup, NestsUpTo64Levels) {
    EXPECT_EQ(Levels(ThereAndBack(*Nested(64)).get()), 64);
    EXPECT_EQ(Levels(ThereAndBack(*Nested(65)).get()), 64);
}

TEST(HibernateGroup, ARecordNestedDeeperEndsAtTheLastLevel) {
    std::string record;
    for (int level = 0; level < 5000; ++level)
        record += NewCommon(6, 255) + P(0, 0, 0, 1) + I(1) + I(0);
    const auto woken = Woken(record);
    EXPECT_EQ(Levels(static_cast<CZvDispGroup*>(woken.get())), 64);
}

TEST(HibernateGroup, EndsAtAMemberOfNoKnownKind) {
    const std::string head = NewCommon(6, 255) + P(0, 0, 0, 1) + I(2) + I(1) + I(2);
    const auto woken = Woken(head + NewCommon(2) + I(0) + I(99));
    auto& group = static_cast<CZvDispGroup&>(*woken);
    EXPECT_NE(group.GetGroupItem(1), nullptr);
    EXPECT_EQ(group.GetGroupItem(2), nullptr);
}

TEST(HibernateStream, ANullStreamIsRefused) {
    CZvDispCircle circle;
    EXPECT_FALSE(circle.HibDispItem(nullptr));
    EXPECT_FALSE(circle.WakeDispItem(nullptr));
    EXPECT_EQ(CZvDisplayItem::S_MakeNewItem(nullptr), nullptr);
}

TEST(HibernateStream, RecordsStandOneBehindTheOther) {
    const File file;
    CZvDispCircle circle({1, 2}, 3);
    CZvDispText text;
    text.SetLabel("second");
    EXPECT_TRUE(circle.HibDispItem(file));
    EXPECT_TRUE(text.HibDispItem(file));
    EXPECT_EQ(file.All(), Record(circle) + Record(text));
    std::rewind(file);
    std::unique_ptr<CZvDisplayItem> item(CZvDisplayItem::S_MakeNewItem(file));
    ASSERT_TRUE(item && item->WakeDispItem(file));
    EXPECT_EQ(static_cast<CZvDispCircle&>(*item).GetRadius(), 3);
    item.reset(CZvDisplayItem::S_MakeNewItem(file));
    ASSERT_TRUE(item && item->WakeDispItem(file));
    EXPECT_EQ(static_cast<CZvDispText&>(*item).GetLabel(), "second");
}

TEST(HibernateStream, KindsOutsideOneToSevenGiveNullHavingTakenFourBytes) {
    for (const int kind : {0, 8, -1, 1 << 20}) {
        const File file(I(kind) + "rest");
        EXPECT_EQ(CZvDisplayItem::S_MakeNewItem(file), nullptr) << kind;
        EXPECT_EQ(std::ftell(file), 4);
    }
}

TEST(HibernateStream, MakesTheItemOfEachKind) {
    for (int kind = 1; kind <= 7; ++kind) {
        const File file(I(kind));
        const std::unique_ptr<CZvDisplayItem> item(CZvDisplayItem::S_MakeNewItem(file));
        ASSERT_TRUE(item);
        EXPECT_EQ(item->GetDispType(), kind);
    }
}

TEST(HibernateStream, TheSetEndOfFileFlagGivesNull) {
    const File file(I(2));
    std::fseek(file, 0, SEEK_END);
    std::fgetc(file);
    ASSERT_TRUE(std::feof(file));
    EXPECT_EQ(CZvDisplayItem::S_MakeNewItem(file), nullptr);
}

TEST(HibernateStream, AWriteThatFailsIsStillTrue) {
    std::FILE* const full = std::fopen("/dev/full", "wb");
    ASSERT_TRUE(full);
    CZvDispCircle circle;
    EXPECT_TRUE(circle.HibDispItem(full));
    std::fclose(full);
}

TEST(HibernateShort, EveryCutRecordWakesWithoutAReport) {
    CZvDispGroup group;
    CZvDispText* const text = new CZvDispText;
    text->SetLabel("label");
    group.AddPrimitive(1, text);
    group.AddPrimitive(2, new CZvDispPolygon({{1, 2}, {3, 4}, {5, 6}}));
    group.AddPrimitive(3, new CZvDispSymbols({1, 2}, 56));
    group.AddPrimitive(4, new CZvDispArc);
    const std::string record = Record(group);
    for (std::size_t size = 0; size < record.size(); ++size) {
        const File file(record.substr(0, size));
        const std::unique_ptr<CZvDisplayItem> item(CZvDisplayItem::S_MakeNewItem(file));
        ASSERT_EQ(item != nullptr, size >= 4);
        EXPECT_TRUE(!item || item->WakeDispItem(file)) << size;
        const auto woken = Woken(record.substr(0, size));
        ASSERT_EQ(woken != nullptr, size >= 4);
    }
}

TEST(HibernateShort, NumbersBecomeZeroAndStringsEmpty) {
    const auto woken = Woken(I(5) + B(1));
    auto& circle = static_cast<CZvDispCircle&>(*woken);
    EXPECT_TRUE(circle.GetFill());
    EXPECT_TRUE(circle.GetVisibility()) << "a bool keeps its value";
    EXPECT_EQ(circle.GetColor(), 8) << "so does a byte";
    EXPECT_EQ(circle.GetDegree(), 0.0);
    EXPECT_EQ(circle.GetID(), "");
    EXPECT_EQ(circle.GetPickID(), 0u);
    EXPECT_EQ(circle.GetBrightness(), 0.0);
    EXPECT_EQ(circle.GetRadius(), 0.0);
}

TEST(HibernateShort, MoreVerticesThanTheFileHoldsAreNone) {
    const std::string head = NewCommon(2);
    for (const std::string& rest : {I(0x7FFFFFFF), I(-1), I(2) + std::string(49, 'x')}) {
        const auto woken = Woken(head + rest);
        EXPECT_EQ(static_cast<CZvDispPolyLine&>(*woken).GetSize(), 0);
    }
}

/// Opens the blocks of the base for the tests.
class Blocks : public CZvDispPolyLine {
  public:
    using CZvDispPolyLine::DispIn;
    using CZvDispPolyLine::DispOut;
};

/// The blocks that `write` puts out on a stream that a transfer left behind.
template<class Write>
std::string BlockBytes(Write&& write) {
    const File file;
    Blocks item;
    item.HibDispItem(file);
    const std::size_t head = static_cast<std::size_t>(std::ftell(file));
    write(item);
    return file.All().substr(head);
}

TEST(HibernateBlocks, SpellListsAsCountAndElements) {
    EXPECT_EQ(BlockBytes([](Blocks& to) {
                  to.DispOut(std::vector<double>{1.5, 2.5});
              }),
              I(2) + D(1.5) + D(2.5));
    EXPECT_EQ(BlockBytes([](Blocks& to) {
                  to.DispOut(std::vector<int>{-1, 7});
              }),
              I(2) + I(-1) + I(7));
    EXPECT_EQ(BlockBytes([](Blocks& to) {
                  to.DispOut(std::vector<bool>{true, false});
              }),
              I(2) + B(1) + B(0));
    EXPECT_EQ(BlockBytes([](Blocks& to) {
                  to.DispOut(std::vector<std::string>{"a", ""});
              }),
              I(2) + S("a") + S(""));
    EXPECT_EQ(BlockBytes([](Blocks& to) { to.DispOut(CZvDispPoint(1, 2, 3, false)); }),
              P(1, 2, 3, 0));
}

TEST(HibernateBlocks, ListsOfNumbersAreAppendedToAndOthersEmptied) {
    const File file(NewCommon(2).substr(4) + I(0) + I(1) + D(2.5) + I(1) + I(7) + I(1) + B(1) +
                    I(1) + S("new"));
    Blocks item;
    item.WakeDispItem(file);
    std::vector<double> doubles{1.5};
    std::vector<int> ints{6};
    std::vector<bool> bools{false, false};
    std::vector<std::string> strings{"old"};
    item.DispIn(doubles);
    item.DispIn(ints);
    item.DispIn(bools);
    item.DispIn(strings);
    EXPECT_EQ(doubles, (std::vector<double>{1.5, 2.5}));
    EXPECT_EQ(ints, (std::vector<int>{6, 7}));
    EXPECT_EQ(bools, std::vector<bool>{true});
    EXPECT_EQ(strings, std::vector<std::string>{"new"});
}

TEST(HibernateBlocks, VerticesAreEmptiedBeforeTheyAreRead) {
    const File file(NewCommon(2).substr(4) + I(0) + I(1) + D(1) + D(2) + D(3) + B(1));
    Blocks item;
    item.WakeDispItem(file);
    std::vector<CZvDispPoint> vertices(4);
    item.DispIn(vertices);
    ASSERT_EQ(vertices.size(), 1u);
    EXPECT_EQ(vertices[0].GetZ(), 3.0);
}

TEST(HibernateBlocks, WithoutATransferNothingHappens) {
    Blocks item;
    item.DispOut(std::vector<double>{1.5});
    int value = 5;
    item.DispIn(value);
    EXPECT_EQ(value, 5);
}

} // namespace
