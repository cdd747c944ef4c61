#include "context/StrokeFont.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace zv {
namespace {

using Triple = std::tuple<int, int, int>;

std::vector<Triple> Triples(unsigned char c) {
    std::vector<Triple> out;
    for (const StrokeStep& step : StrokeGlyph(c))
        out.emplace_back(step.op, step.dx, step.dy);
    return out;
}

/// The pen's places from the origin to the last step.
std::vector<std::pair<int, int>> PenPlaces(unsigned char c) {
    std::vector<std::pair<int, int>> out{{0, 0}};
    for (const StrokeStep& step : StrokeGlyph(c))
        out.emplace_back(out.back().first + step.dx, out.back().second + step.dy);
    return out;
}

bool IsEmptyRow(int c) {
    return c == 0 || c == 13 || c == 127;
}

} // namespace

TEST(StrokeFont, TheTellingRowsAreExact) {
    EXPECT_EQ(Triples('.'), (std::vector<Triple>{{3, 1, 2}, {2, 1, 0}, {3, 4, -2}}));
    EXPECT_EQ(Triples('A'), (std::vector<Triple>{{3, 0, 2},
                                                 {2, 0, 5},
                                                 {2, 1, 1},
                                                 {2, 2, 0},
                                                 {2, 1, -1},
                                                 {2, 0, -5},
                                                 {3, -4, 3},
                                                 {2, 4, 0},
                                                 {3, 2, -5}}));
    EXPECT_EQ(Triples('I'),
              (std::vector<Triple>{
                  {3, 1, 2}, {2, 2, 0}, {3, -1, 0}, {2, 0, 6}, {3, -1, 0}, {2, 2, 0}, {3, 3, -8}}));
    EXPECT_EQ(Triples(' '), (std::vector<Triple>{{3, 6, 0}}));
}

TEST(StrokeFont, OnlyRows0And13And127AreEmpty) {
    for (int c = 0; c < kStrokeRows; ++c)
        EXPECT_EQ(StrokeGlyph(static_cast<unsigned char>(c)).empty(), IsEmptyRow(c)) << c;
}

TEST(StrokeFont, BytesAbove127HaveNoRow) {
    for (int c = 128; c < 256; ++c)
        EXPECT_TRUE(StrokeGlyph(static_cast<unsigned char>(c)).empty()) << c;
}

TEST(StrokeFont, NoRowHasMoreThan18Steps) {
    for (int c = 0; c < kStrokeRows; ++c)
        EXPECT_LE(StrokeGlyph(static_cast<unsigned char>(c)).size(), 18U) << c;
}

TEST(StrokeFont, LineFeedGoesDownNineWithoutReturn) {
    EXPECT_EQ(Triples('\n'), (std::vector<Triple>{{3, 0, -9}}));
}

TEST(StrokeFont, EveryOtherGlyphEndsAtTheNextCell) {
    for (int c = 0; c < kStrokeRows; ++c) {
        if (IsEmptyRow(c) || c == '\n') continue;
        EXPECT_EQ(PenPlaces(static_cast<unsigned char>(c)).back(), std::make_pair(6, 0)) << c;
    }
}

TEST(StrokeFont, EveryStepDrawsOrMovesAndTheLastOneLiftsThePen) {
    for (int c = 0; c < kStrokeRows; ++c) {
        const auto glyph = StrokeGlyph(static_cast<unsigned char>(c));
        for (const StrokeStep& step : glyph)
            EXPECT_TRUE(step.op == kStrokeDraw || step.op == kStrokeMove) << c;
        if (!glyph.empty()) {
            EXPECT_EQ(glyph.back().op, kStrokeMove) << c;
        }
    }
}

TEST(StrokeFont, GlyphsStayWithinTheirBounds) {
    for (int c = 0; c < kStrokeRows; ++c) {
        for (const auto& [x, y] : PenPlaces(static_cast<unsigned char>(c))) {
            EXPECT_TRUE(x >= 0 && x <= 8) << c;
            EXPECT_TRUE(y >= -9 && y <= 9) << c;
        }
    }
}

TEST(StrokeFont, LettersAndDigitsStandOnTheBaselineOfTheCapitals) {
    const std::string tall = "ABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    for (const char c : tall) {
        auto places = PenPlaces(static_cast<unsigned char>(c));
        places.erase(places.begin());
        places.pop_back();
        const auto [low, high] =
            std::minmax_element(places.begin(), places.end(),
                                [](const auto& a, const auto& b) { return a.second < b.second; });
        EXPECT_EQ(low->second, 2) << c;
        EXPECT_EQ(high->second, 8) << c;
    }
}

TEST(StrokeFont, NoTwoVisibleGlyphsLookTheSame) {
    for (int a = 1; a < kStrokeRows; ++a) {
        for (int b = a + 1; b < kStrokeRows; ++b) {
            if (IsEmptyRow(a) || IsEmptyRow(b)) continue;
            EXPECT_NE(Triples(static_cast<unsigned char>(a)),
                      Triples(static_cast<unsigned char>(b)))
                << a << " and " << b;
        }
    }
}

TEST(StrokeFont, TabIsTheRingOfTheDegreeSign) {
    auto places = PenPlaces('\t');
    places.erase(places.begin());
    places.pop_back();
    EXPECT_EQ(places.front(), places.back());
    for (const auto& [x, y] : places) {
        EXPECT_TRUE(x >= 0 && x <= 3);
        EXPECT_TRUE(y >= 5 && y <= 8);
    }
}

} // namespace zv
