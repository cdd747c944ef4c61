#include "data/project/Template.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace zv::host {
namespace {

std::string Expand(const std::string& text, const std::vector<std::string>& values) {
    const FieldIndex fields({"A", "B", "C D"});
    return Template(text).Expand({&fields, &values});
}

TEST(Template, PutsFieldsBetweenItsText) {
    EXPECT_EQ(Expand("{A}#{B}#", {"EI", "  323", ""}), "EI#  323#");
}

TEST(Template, TakesFieldNamesWithBlanks) {
    EXPECT_EQ(Expand("<{C D}>", {"", "", "x y"}), "<x y>");
}

TEST(Template, AppliesFiltersInTheirOrder) {
    EXPECT_EQ(Expand("{A|trim|upper|left:2}", {"  abc ", "", ""}), "AB");
    EXPECT_EQ(Expand("{A|right:3|lower}", {"XYZABC", "", ""}), "abc");
}

TEST(Template, FixedRoundsNumbersInTheCLocale) {
    EXPECT_EQ(Expand("{A|fixed:2}", {"3.14159", "", ""}), "3.14");
    EXPECT_EQ(Expand("{A|fixed:0}", {"2040.6", "", ""}), "2041");
}

TEST(Template, NoZerosKeepsOneZeroOfZeros) {
    EXPECT_EQ(Expand("{A|nozeros}/{B|nozeros}", {"  001", "000", ""}), "1/0");
    EXPECT_EQ(Expand("{A|nozeros}", {"B003", "", ""}), "B003");
    EXPECT_EQ(Expand("[{A|nozeros}]", {"   ", "", ""}), "[]");
}

TEST(Template, DoubledBracesStandForOne) {
    EXPECT_EQ(Expand("{{{A}}}", {"x", "", ""}), "{x}");
}

TEST(Template, ARightLongerThanTheValueKeepsTheValue) {
    EXPECT_EQ(Expand("{A|right:9}", {"ab", "", ""}), "ab");
}

TEST(Template, NamesItsFields) {
    EXPECT_EQ(Template("{B}-{A|trim}").Fields(), (std::vector<std::string>{"B", "A"}));
    EXPECT_TRUE(Template("").IsEmpty());
}

TEST(Template, ValuesOfShortRowsAreEmpty) {
    const FieldIndex fields({"A", "B"});
    const std::vector<std::string> values{"only"};
    EXPECT_EQ(Template("{A},{B}").Expand({&fields, &values}), "only,");
}

std::string Fault(const std::string& text) {
    try {
        const Template parsed(text);
    } catch (const std::invalid_argument& fault) {
        return fault.what();
    }
    return "none";
}

TEST(Template, SaysWhatIsWrongWithIt) {
    EXPECT_EQ(Fault("{A"), "a \"{\" is not closed");
    EXPECT_EQ(Fault("A}"), "a \"}\" has no \"{\" before it");
    EXPECT_EQ(Fault("{}"), "braces without a field name");
    EXPECT_EQ(Fault("{A|shout}"), "there is no filter \"shout\"");
    EXPECT_EQ(Fault("{A|left}"), "there is no filter \"left\"");
    EXPECT_EQ(Fault("{A|left:x}"), "the filter \"left:x\" needs a number from 0 to 99");
}

} // namespace
} // namespace zv::host
