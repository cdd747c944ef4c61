#include "context/StrokeFont.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace zv {
namespace {

/// A glyph as it is drawn on the grid: points "xy" parted by blanks, strokes parted by "|".
struct Glyph {
    unsigned char code;
    std::string_view strokes;
};

struct GridPoint {
    int x, y;
};

constexpr unsigned char kLineFeed = 10;
constexpr GridPoint kNextCell{6, 0};
constexpr GridPoint kNextLine{0, -9};

constexpr Glyph kGlyphs[] = {
    // Signs of maps and logs, on the control characters.
    {1, "24 28|06 46|03 43"},                      // plus-minus
    {2, "07 18 27 26 04 24"},                      // superscript two
    {3, "08 28 16 25 14 04"},                      // superscript three
    {4, "05 08|02 48|34 44 43 33 32 42"},          // one half
    {5, "05 08|02 48|34 33 43|44 42"},             // one quarter
    {6, "08 18 16 06|07 17|02 48|34 33 43|44 42"}, // three quarters
    {7, "24 33 44 35 24 44|33 35"},                // bullet
    {8, "03 47|07 43"},                            // multiplication sign
    {9, "15 25 36 37 28 18 07 06 15"},             // degree sign
    {kLineFeed, ""},
    {11, "05 45|27 28|22 23"},                   // division sign
    {12, "05 16 34 45|03 14 32 43"},             // nearly equal
    {14, "48 05 42|01 41"},                      // less than or equal
    {15, "08 45 02|01 41"},                      // greater than or equal
    {16, "04 44|06 46|12 38"},                   // not equal
    {17, "22 28|06 28 46"},                      // arrow up
    {18, "28 22|04 22 44"},                      // arrow down
    {19, "45 05|27 05 23"},                      // arrow to the left
    {20, "05 45|27 45 23"},                      // arrow to the right
    {21, "38 15"},                               // foot mark
    {22, "28 05|48 25"},                         // inch mark
    {23, "13 04 06 17 37 46 44 33 13|02 48"},    // diameter
    {24, "02 28 42 02"},                         // delta
    {25, "03 07 47 43 03"},                      // square
    {26, "23 05 27 45 23"},                      // diamond
    {27, "05 22 48"},                            // check mark
    {28, "22 28|06 46"},                         // dagger
    {29, "02 12 13 05 07 18 38 47 45 33 32 42"}, // ohm
    {30, "00 06|03 12 22 34|36 33 42"},          // micro
    {31, "06 13 28 48"},                         // root

    {' ', ""},
    {'!', "28 24|23 22"},
    {'"', "16 18|36 38"},
    {'#', "13 17|33 37|04 44|06 46"},
    {'$', "46 37 17 06 15 35 44 33 13 04|22 28"},
    {'%', "02 48|07 17 18 08 07|32 42 43 33 32"},
    {'&', "42 06 07 18 28 37 36 03 12 22 44"},
    {'\'', "26 28"},
    {'(', "38 26 24 32"},
    {')', "18 26 24 12"},
    {'*', "23 27|04 46|06 44"},
    {'+', "23 27|05 45"},
    {',', "12 22 10"},
    {'-', "05 45"},
    {'.', "12 22"},
    {'/', "02 48"},
    {'0', "12 32 44 46 38 18 06 04 12"},
    {'1', "17 28 22|12 32"},
    {'2', "07 18 38 47 46 02 42"},
    {'3', "07 18 38 47 46 35 15|35 44 43 32 12 03"},
    {'4', "32 38 04 44"},
    {'5', "48 08 05 16 36 45 43 32 12 03"},
    {'6', "47 38 18 07 03 12 32 43 44 35 05"},
    {'7', "08 48 24 22"},
    {'8', "15 06 07 18 38 47 46 35 15 04 03 12 32 43 44 35"},
    {'9', "03 12 32 43 47 38 18 07 06 15 45"},
    {':', "12 22|16 26"},
    {';', "12 22 10|16 26"},
    {'<', "47 05 43"},
    {'=', "04 44|06 46"},
    {'>', "07 45 03"},
    {'?', "07 18 38 47 46 24|23 22"},
    {'@', "32 12 03 07 18 38 47 44 24 26 46"},
    {'A', "02 07 18 38 47 42|05 45"},
    {'B', "02 08 38 47 46 35 05|35 44 43 32 02"},
    {'C', "47 38 18 07 03 12 32 43"},
    {'D', "02 08 28 46 44 22 02"},
    {'E', "48 08 02 42|05 35"},
    {'F', "48 08 02|05 35"},
    {'G', "47 38 18 07 03 12 32 43 45 25"},
    {'H', "02 08|48 42|05 45"},
    {'I', "12 32|22 28|18 38"},
    {'J', "03 12 32 43 48"},
    {'K', "02 08|48 04|15 42"},
    {'L', "08 02 42"},
    {'M', "02 08 26 48 42"},
    {'N', "02 08 42 48"},
    {'O', "12 03 07 18 38 47 43 32 12"},
    {'P', "02 08 38 47 46 35 05"},
    {'Q', "12 03 07 18 38 47 43 32 12|24 42"},
    {'R', "02 08 38 47 46 35 05|15 42"},
    {'S', "47 38 18 07 06 15 35 44 43 32 12 03"},
    {'T', "22 28|08 48"},
    {'U', "08 03 12 32 43 48"},
    {'V', "08 22 48"},
    {'W', "08 12 26 32 48"},
    {'X', "02 48|08 42"},
    {'Y', "08 25 48|25 22"},
    {'Z', "08 48 02 42"},
    {'[', "38 18 12 32"},
    {'\\', "08 42"},
    {']', "18 38 32 12"},
    {'^', "06 28 46"},
    {'_', "01 41"},
    {'`', "18 26"},
    {'a', "16 36 45 42|44 14 03 12 32 43"},
    {'b', "08 02|05 16 36 45 43 32 12 03"},
    {'c', "45 36 16 05 03 12 32 43"},
    {'d', "48 42|45 36 16 05 03 12 32 43"},
    {'e', "04 44 45 36 16 05 03 12 32"},
    {'f', "48 38 27 22|06 46"},
    {'g', "46 41 30 10 01|45 36 16 05 03 12 32 43"},
    {'h', "08 02|05 16 36 45 42"},
    {'i', "16 26 22|12 32|18 28"},
    {'j', "26 36 31 20 10|28 38"},
    {'k', "08 02|36 03|14 32"},
    {'l', "18 28 23 32"},
    {'m', "02 06|05 16 25 22|25 36 45 42"},
    {'n', "02 06|05 16 36 45 42"},
    {'o', "12 03 05 16 36 45 43 32 12"},
    {'p', "00 06|05 16 36 45 43 32 12 03"},
    {'q', "40 46|45 36 16 05 03 12 32 43"},
    {'r', "02 06|04 26 36 45"},
    {'s', "45 36 16 05 14 34 43 32 12 03"},
    {'t', "18 13 22 32|06 36"},
    {'u', "06 03 12 32 43|46 42"},
    {'v', "06 22 46"},
    {'w', "06 12 25 32 46"},
    {'x', "02 46|06 42"},
    {'y', "06 22|46 10"},
    {'z', "06 46 02 42"},
    {'{', "38 27 26 15 24 23 32"},
    {'|', "20 28"},
    {'}', "18 27 26 35 24 23 12"},
    {'~', "05 16 34 45"},
};

/// A row under construction. Running over its end, or off the grid, does not compile.
struct Row {
    std::array<StrokeStep, kStrokeSteps> steps{};
    std::size_t count = 0;
    GridPoint pen{0, 0};

    constexpr void Go(std::int16_t op, GridPoint to) {
        steps.at(count++) = {op, static_cast<std::int16_t>(to.x - pen.x),
                             static_cast<std::int16_t>(to.y - pen.y)};
        pen = to;
    }
};

constexpr int GridCoordinate(char digit) {
    return digit >= '0' && digit <= '8' ? digit - '0' : throw "a point lies off the grid";
}

constexpr Row MakeRow(const Glyph& glyph) {
    Row row;
    for (std::size_t i = 0; i < glyph.strokes.size(); i += 3) {
        const bool startsStroke = i == 0 || glyph.strokes[i - 1] == '|';
        row.Go(startsStroke ? kStrokeMove : kStrokeDraw,
               {GridCoordinate(glyph.strokes[i]), GridCoordinate(glyph.strokes[i + 1])});
    }
    row.Go(kStrokeMove, glyph.code == kLineFeed ? kNextLine : kNextCell);
    return row;
}

constexpr std::array<Row, kStrokeRows> MakeRows() {
    std::array<Row, kStrokeRows> rows{};
    for (const Glyph& glyph : kGlyphs)
        rows.at(glyph.code) = MakeRow(glyph);
    return rows;
}

constexpr std::array<Row, kStrokeRows> kRows = MakeRows();

} // namespace

std::span<const StrokeStep> StrokeGlyph(unsigned char c) {
    if (c >= kStrokeRows) return {};
    return {kRows[c].steps.data(), kRows[c].count};
}

} // namespace zv
