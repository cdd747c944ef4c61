#include "platform/zvcom/ZvColor.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <set>
#include <string>

#include "platform/Share.h"
#include "platform/zvcom/Palette.h"

namespace {

/// Relative luminance after the sRGB transfer curve, 0 (black) to 1 (white).
double Luminance(int index) {
    double r, g, b;
    CZvColor::GetCGMColor(index, r, g, b);
    const auto linear = [](double v) {
        return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(r) + 0.7152 * linear(g) + 0.0722 * linear(b);
}

/// How well one colour reads on another: 1 (not at all) to 21.
double Contrast(int a, int b) {
    const double la = Luminance(a), lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

/// Largest less smallest channel.
int Vividness(int index) {
    int r, g, b;
    CZvColor::GetRGBColor(index, r, g, b);
    return std::max({r, g, b}) - std::min({r, g, b});
}

zv::Error ErrorOf(const std::string& json) {
    try {
        zv::ParsePalette(json, "p.json");
    } catch (const zv::DataError& error) {
        return error.GetError();
    }
    return {};
}

std::string ShippedPalette() {
    return zv::ReadWholeFile(std::filesystem::path(ZVDISP_TEST_SHARE) / "palette.json");
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), with);
}

TEST(ZvColor, ZeroIsBlackAndEightIsWhite) {
    int r, g, b;
    ASSERT_TRUE(CZvColor::GetRGBColor(0, r, g, b));
    EXPECT_EQ(r + g + b, 0);
    ASSERT_TRUE(CZvColor::GetRGBColor(8, r, g, b));
    EXPECT_EQ(r + g + b, 3 * 255);
}

TEST(ZvColor, NineIsGray) {
    int r, g, b;
    ASSERT_TRUE(CZvColor::GetRGBColor(9, r, g, b));
    EXPECT_EQ(r, g);
    EXPECT_EQ(g, b);
    EXPECT_GT(r, 96);
    EXPECT_LT(r, 192);
}

TEST(ZvColor, SixteenIsLightLikeEight) {
    EXPECT_LT(Contrast(16, 8), 1.1);
}

TEST(ZvColor, ThreeAndElevenVanishOnWhiteAndFourReads) {
    EXPECT_LT(Contrast(3, 8), 2.0);
    EXPECT_LT(Contrast(11, 8), 2.0);
    EXPECT_GT(Contrast(4, 8), 7.0);
    EXPECT_GT(Contrast(4, 16), 7.0);
}

TEST(ZvColor, TheYellowBackgroundsOfTheLightMarkerAreYellow) {
    for (const int index : {3, 11, 128}) {
        int r, g, b;
        ASSERT_TRUE(CZvColor::GetRGBColor(index, r, g, b));
        EXPECT_GT(r, 240) << index;
        EXPECT_GT(g, 200) << index;
        EXPECT_LT(b, 100) << index;
    }
}

TEST(ZvColor, MarksOfTheEditorAreVivid) {
    EXPECT_GT(Vividness(11), 150);
    for (const int mark : {246, 255}) {
        EXPECT_GT(Vividness(mark), 200) << mark;
        EXPECT_GT(Contrast(mark, 8), 3.0) << mark;
        EXPECT_GT(Contrast(mark, 0), 3.0) << mark;
    }
}

TEST(ZvColor, AColorAndTheOneEightUpAreAlike) {
    for (int color = 1; color <= 7; ++color)
        EXPECT_LT(Contrast(color, color + 8), 2.5) << color;
}

TEST(ZvColor, NeighboursAreApartSoThatTheNextColorReadsOnTheBackground) {
    for (int color = 1; color <= 7; ++color) {
        int r, g, b, nextR, nextG, nextB;
        CZvColor::GetRGBColor(color, r, g, b);
        CZvColor::GetRGBColor(color + 1, nextR, nextG, nextB);
        EXPECT_GT(std::abs(r - nextR) + std::abs(g - nextG) + std::abs(b - nextB), 100) << color;
    }
}

TEST(ZvColor, AnIndexOutsideThePaletteIsBlackAndFalse) {
    for (const int index : {-1, 256, 2147483647, -2147483647 - 1}) {
        int r = 1, g = 2, b = 3;
        EXPECT_FALSE(CZvColor::GetRGBColor(index, r, g, b)) << index;
        EXPECT_EQ(r + g + b, 0);
        double x = 1, y = 1, z = 1;
        EXPECT_FALSE(CZvColor::GetCGMColor(index, x, y, z)) << index;
        EXPECT_EQ(x + y + z, 0.0);
        EXPECT_EQ(CZvColor::GetEXPColor(index, 2), CZvColor::GetEXPColor(0, 2));
        EXPECT_EQ(CZvColor::Convert256To40(index), 0);
        EXPECT_EQ(CZvColor::S_GetName(index), "");
    }
}

TEST(ZvColor, ThePageColorsAreTheScreenColorsOverTwoHundredFiftyFive) {
    for (int index = 0; index < 256; ++index) {
        int r, g, b;
        double x, y, z;
        ASSERT_TRUE(CZvColor::GetRGBColor(index, r, g, b));
        ASSERT_TRUE(CZvColor::GetCGMColor(index, x, y, z));
        EXPECT_EQ(std::floor(x * 255.0 + 0.5), r);
        EXPECT_EQ(std::floor(y * 255.0 + 0.5), g);
        EXPECT_EQ(std::floor(z * 255.0 + 0.5), b);
    }
}

TEST(ZvColor, FormatsKnowTheBaseColors) {
    EXPECT_EQ(CZvColor::GetEXPColor(0, 0), "black");
    EXPECT_EQ(CZvColor::GetEXPColor(8, 0), "white");
    EXPECT_EQ(CZvColor::GetEXPColor(4, 0), "blue");
    EXPECT_EQ(CZvColor::GetEXPColor(1, 1), "RED");
    EXPECT_EQ(CZvColor::GetEXPColor(8, 1), "WHITE");
    EXPECT_EQ(CZvColor::GetEXPColor(1, 2), "1");
    EXPECT_EQ(CZvColor::GetEXPColor(3, 2), "2");
    EXPECT_EQ(CZvColor::GetEXPColor(2, 2), "3");
    EXPECT_EQ(CZvColor::GetEXPColor(6, 2), "4");
    EXPECT_EQ(CZvColor::GetEXPColor(4, 2), "5");
    EXPECT_EQ(CZvColor::GetEXPColor(5, 2), "6");
    EXPECT_EQ(CZvColor::GetEXPColor(8, 2), "7");
    EXPECT_EQ(CZvColor::GetEXPColor(8, 3), "");
}

TEST(ZvColor, WhiteIsTheNameOfTheTwoWhitesOnly) {
    for (int index = 0; index < 256; ++index)
        EXPECT_EQ(CZvColor::GetEXPColor(index, 0) == "white", index == 8 || index == 16) << index;
}

TEST(ZvColor, WordsOfFormatsHoldNoBlankOrComma) {
    for (int index = 0; index < 256; ++index) {
        for (int target = 0; target <= 2; ++target) {
            const std::string word = CZvColor::GetEXPColor(index, target);
            EXPECT_FALSE(word.empty());
            EXPECT_EQ(word.find_first_of(" ,\t'\""), std::string::npos) << word;
        }
        const int acad = std::stoi(CZvColor::GetEXPColor(index, 2));
        EXPECT_GE(acad, 1);
        EXPECT_LE(acad, 255);
    }
}

TEST(ZvColor, TheFirstFortyColorsAreTheOldOnes) {
    for (int index = 0; index < 40; ++index) {
        int r, g, b, oldR, oldG, oldB;
        CZvColor::GetRGBColor(index, r, g, b);
        EXPECT_EQ(CZvColor::Convert256To40(index), index);
        EXPECT_EQ(CZvColor::Get256CrossIndexRGB(index, oldR, oldG, oldB), index);
        EXPECT_EQ(oldR, r);
        EXPECT_EQ(oldG, g);
        EXPECT_EQ(oldB, b);
    }
}

TEST(ZvColor, EveryColorHasAnOldOne) {
    for (int index = 40; index < 256; ++index)
        EXPECT_LT(CZvColor::Convert256To40(index), 40);
    EXPECT_EQ(CZvColor::Convert256To40(128), 3);  // yellow
    EXPECT_EQ(CZvColor::Convert256To40(190), 26); // orange
}

TEST(ZvColor, AnOldColorOutsideTheFortyIsBlack) {
    int r = 1, g = 1, b = 1;
    EXPECT_EQ(CZvColor::Get256CrossIndexRGB(40, r, g, b), 0);
    EXPECT_EQ(r + g + b, 0);
    EXPECT_EQ(CZvColor::Get256CrossIndexRGB(-1, r, g, b), 0);
}

TEST(ZvColor, NamesLeadBackToTheirColors) {
    for (int index = 0; index < 256; ++index)
        EXPECT_EQ(CZvColor::S_Find(CZvColor::S_GetName(index)), index);
    EXPECT_EQ(CZvColor::S_Find("no such colour"), -1);
}

TEST(ZvColor, LeaseFillsAreLightAndDifferent) {
    std::set<std::array<std::uint8_t, 3>> seen;
    const zv::Palette palette = zv::ParsePalette(ShippedPalette(), "palette.json");
    for (int index = 40; index < 56; ++index) {
        EXPECT_GT(Luminance(index), 0.45) << index;
        EXPECT_TRUE(seen.insert(palette.entries[std::size_t(index)].rgb).second);
    }
}

TEST(Palette, AFaultIsToldWithFilePlaceAndReason) {
    const zv::Error rgb = ErrorOf(Replaced(ShippedPalette(), "#c8281e", "#c8281"));
    EXPECT_EQ(rgb.file, "p.json");
    EXPECT_EQ(rgb.place, "/colors/1/rgb");
    EXPECT_EQ(rgb.reason, "must be \"#\" and six hexadecimal digits");

    const zv::Error digit = ErrorOf(Replaced(ShippedPalette(), "#c8281e", "#-8281e"));
    EXPECT_EQ(digit.place, "/colors/1/rgb");

    const zv::Error acad = ErrorOf(Replaced(ShippedPalette(), "\"acad\": 7", "\"acad\": 256"));
    EXPECT_EQ(acad.place, "/colors/0/acad");
    EXPECT_EQ(acad.reason, "must be from 1 to 255");

    const zv::Error blank = ErrorOf(Replaced(ShippedPalette(), "\"BLACK\"", "\"JET BLACK\""));
    EXPECT_EQ(blank.place, "/colors/0/landmark");
    EXPECT_EQ(blank.reason, "may hold letters and digits only");

    const zv::Error twice =
        ErrorOf(Replaced(ShippedPalette(), "\"name\": \"red\"", "\"name\": \"black\""));
    EXPECT_EQ(twice.place, "/colors/1/name");
    EXPECT_EQ(twice.reason, "stands twice");
}

TEST(Palette, TwoHundredFiftySixColorsAreAsked) {
    const zv::Error error = ErrorOf(R"({"version": 1, "colors": []})");
    EXPECT_EQ(error.place, "/colors");
    EXPECT_EQ(error.reason, "must hold 256 colours, not 0");
}

TEST(Palette, AnotherVersionIsRefused) {
    EXPECT_EQ(ErrorOf(R"({"version": 2, "colors": []})").place, "/version");
}

} // namespace
