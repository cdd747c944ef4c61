#include <clocale>
#include <cmath>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <locale>
#include <string>

#include "platform/Numbers.h"

namespace {

/// Commas for points, points between thousands, in streams and, where the system has such a locale,
/// in the C library too.
class CommaLocale {
  public:
    CommaLocale() : m_before(std::locale::global(std::locale(std::locale::classic(), new Commas))) {
        for (const char* name : {"de_DE.UTF-8", "de_DE.utf8", "fr_FR.UTF-8", "de_DE"}) {
            if (std::setlocale(LC_ALL, name)) {
                return;
            }
        }
    }
    ~CommaLocale() {
        std::locale::global(m_before);
        std::setlocale(LC_ALL, "C");
    }

  private:
    struct Commas : std::numpunct<char> {
        char do_decimal_point() const override { return ','; }
        char do_thousands_sep() const override { return '.'; }
        std::string do_grouping() const override { return "\3"; }
    };
    std::locale m_before;
};

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Numbers, NarrowingGoesToInfinityBeyondTheRange) {
    EXPECT_EQ(zv::ToFloat(1.5), 1.5f);
    EXPECT_EQ(zv::ToFloat(1e300), std::numeric_limits<float>::infinity());
    EXPECT_EQ(zv::ToFloat(-1e300), -std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(zv::ToFloat(std::nan(""))));
}

} // namespace

TEST(FormatInt, WritesEveryNumber) {
    EXPECT_EQ(zv::FormatInt(0), "0");
    EXPECT_EQ(zv::FormatInt(-17), "-17");
    EXPECT_EQ(zv::FormatInt(std::numeric_limits<long long>::min()), "-9223372036854775808");
    EXPECT_EQ(zv::FormatInt(std::numeric_limits<long long>::max()), "9223372036854775807");
}

TEST(FormatFixed, WritesTheAskedDecimals) {
    EXPECT_EQ(zv::FormatFixed(1234567.891, 2), "1234567.89");
    EXPECT_EQ(zv::FormatFixed(-0.125, 8), "-0.12500000");
    EXPECT_EQ(zv::FormatFixed(2.5, 0), "2");
    EXPECT_EQ(zv::FormatFixed(3.5, 0), "4");
    EXPECT_EQ(zv::FormatFixed(1.0, -3), "1");
}

TEST(FormatFixed, HoldsTheLargestNumbers) {
    const std::string text = zv::FormatFixed(1e300, 8);
    EXPECT_EQ(text.size(), 301u + 1u + 8u);
    EXPECT_EQ(text.substr(0, 16), "1000000000000000");
    EXPECT_TRUE(text.ends_with(".00000000"));
    EXPECT_EQ(zv::FormatFixed(-std::numeric_limits<double>::max(), 20).size(), 1u + 309 + 1 + 20);
}

TEST(FormatFixed, NamesWhatIsNotFinite) {
    EXPECT_EQ(zv::FormatFixed(kInfinity, 2), "inf");
    EXPECT_EQ(zv::FormatFixed(-kInfinity, 2), "-inf");
    EXPECT_EQ(zv::FormatFixed(std::nan(""), 2), "nan");
    EXPECT_EQ(zv::FormatFixed(-std::nan(""), 2), "nan");
}

TEST(FormatShortest, ReadsBackAsTheSameNumber) {
    EXPECT_EQ(zv::FormatShortest(0.1), "0.1");
    EXPECT_EQ(zv::FormatShortest(-2.0), "-2");
    for (const double value : {1.0 / 3.0, 1e300, 5e-324, -745284.65789588}) {
        EXPECT_EQ(zv::ParseDouble(zv::FormatShortest(value)), value);
    }
    EXPECT_EQ(zv::FormatShortest(-kInfinity), "-inf");
}

TEST(ParseInt, ReadsTheNumberAtTheHead) {
    EXPECT_EQ(zv::ParseInt("42"), 42);
    EXPECT_EQ(zv::ParseInt(" \t\r\n-42abc"), -42);
    EXPECT_EQ(zv::ParseInt("+7 8"), 7);
    EXPECT_EQ(zv::ParseInt("12.9"), 12);
}

TEST(ParseInt, GivesZeroForWhatIsNoNumber) {
    for (const char* text : {"", "   ", "abc", "-", "+", "+-5", "--5", ".5"}) {
        EXPECT_EQ(zv::ParseInt(text), 0) << text;
    }
}

TEST(ParseInt, Saturates) {
    EXPECT_EQ(zv::ParseInt("2147483647"), 2147483647);
    EXPECT_EQ(zv::ParseInt("2147483648"), 2147483647);
    EXPECT_EQ(zv::ParseInt("+99999999999999999999"), 2147483647);
    EXPECT_EQ(zv::ParseInt("-99999999999999999999x"), std::numeric_limits<int>::min());
}

TEST(ParseDouble, ReadsTheNumberAtTheHead) {
    EXPECT_EQ(zv::ParseDouble(" 1.5e3ft"), 1500.0);
    EXPECT_EQ(zv::ParseDouble("+.25"), 0.25);
    EXPECT_EQ(zv::ParseDouble("-7."), -7.0);
    EXPECT_EQ(zv::ParseDouble("3e"), 3.0);
    EXPECT_EQ(zv::ParseDouble("1,5"), 1.0);
}

TEST(ParseDouble, GivesZeroForWhatIsNoNumber) {
    for (const char* text : {"", "  ", "x", "-", "+-1", "e5", "."}) {
        EXPECT_EQ(zv::ParseDouble(text), 0.0) << text;
    }
}

TEST(ParseDouble, SaturatesUpwardAndDownward) {
    EXPECT_EQ(zv::ParseDouble("1e999"), kInfinity);
    EXPECT_EQ(zv::ParseDouble("-1e999 rest"), -kInfinity);
    EXPECT_EQ(zv::ParseDouble("1e-999"), 0.0);
    EXPECT_EQ(zv::ParseDouble("1" + std::string(400, '0')), kInfinity);
}

TEST(ParseDouble, ReadsNoFurtherThanItsText) {
    EXPECT_EQ(zv::ParseDouble(std::string_view("12345").substr(0, 3)), 123.0);
    EXPECT_EQ(zv::ParseInt(std::string_view("12345").substr(0, 2)), 12);
}

TEST(Numbers, KnowNothingOfTheLocale) {
    const CommaLocale locale;
    EXPECT_EQ(zv::FormatInt(1234567), "1234567");
    EXPECT_EQ(zv::FormatFixed(1234.5, 2), "1234.50");
    EXPECT_EQ(zv::FormatShortest(0.5), "0.5");
    EXPECT_EQ(zv::ParseDouble("1.5"), 1.5);
    EXPECT_EQ(zv::ParseDouble("1.5e999"), kInfinity);
}
