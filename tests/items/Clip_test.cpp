#include <gtest/gtest.h>

#include <memory>

#include "clip/ZvDispMapClipper.h"
#include "support/SymbolHome.h"

namespace {

/// Notes which operation an item asked for, and answers what a test says.
class RecordingClipper : public CZvDispMapClipper {
  public:
    std::vector<std::string> asked;
    bool answer = true;
    bool ClipText(CZvDispText*) override { return Say("text"); }
    bool ClipPolyline(CZvDispPolyLine*) override { return Say("line"); }
    bool ClipPolygon(CZvDispPolygon*) override { return Say("polygon"); }
    bool ClipCircle(CZvDispCircle*) override { return Say("circle"); }
    bool ClipArc(CZvDispArc*) override { return Say("arc"); }
    bool ClipSymbol(CZvDispSymbols*) override { return Say("symbol"); }

  private:
    bool Say(const char* what) {
        asked.push_back(what);
        return answer;
    }
};

std::vector<std::unique_ptr<CZvDisplayItem>> OneOfEach() {
    std::vector<std::unique_ptr<CZvDisplayItem>> items;
    items.push_back(std::make_unique<CZvDispText>());
    items.push_back(std::make_unique<CZvDispPolyLine>());
    items.push_back(std::make_unique<CZvDispPolygon>());
    items.push_back(std::make_unique<CZvDispSymbols>());
    items.push_back(std::make_unique<CZvDispCircle>());
    items.push_back(std::make_unique<CZvDispArc>());
    return items;
}

const std::vector<std::string> kKinds = {"text", "line", "polygon", "symbol", "circle", "arc"};

TEST(Clip, EveryItemAsksForTheOperationOfItsKindAndPassesTheAnswerOn) {
    zv::test::SymbolHome home;
    home.WriteEmptyFiles();
    for (const bool answer : {true, false}) {
        RecordingClipper clipper;
        clipper.answer = answer;
        for (const auto& item : OneOfEach())
            EXPECT_EQ(item->Clip(&clipper), answer);
        EXPECT_EQ(clipper.asked, kKinds);
    }
}

TEST(Clip, AGroupAsksForEachMemberAndPassesOverGaps) {
    zv::test::SymbolHome home;
    home.WriteEmptyFiles();
    RecordingClipper clipper;
    CZvDispGroup group;
    int key = 0;
    group.AddPrimitive(++key, nullptr);
    for (auto& item : OneOfEach())
        group.AddPrimitive(++key, item.release());
    EXPECT_TRUE(group.Clip(&clipper));
    EXPECT_EQ(clipper.asked, kKinds);
    clipper.answer = false;
    EXPECT_FALSE(group.Clip(&clipper));
}

} // namespace
