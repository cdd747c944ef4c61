#include <gtest/gtest.h>
#include <string>

#include "platform/Text.h"

namespace {

struct Converted {
    std::string label;
    int lost = 0;
};

Converted Label(std::string_view utf8) {
    Converted result;
    result.label = zv::ToLabel(utf8, result.lost);
    return result;
}

} // namespace

TEST(ToLabel, KeepsPlainText) {
    const Converted plain = Label("EC 0261 #A-3\n\x7F");
    EXPECT_EQ(plain.label, "EC 0261 #A-3\n\x7F");
    EXPECT_EQ(plain.lost, 0);
    EXPECT_EQ(Label("").label, "");
}

TEST(ToLabel, MakesOneByteOfEveryCharacterOfTheCodePage) {
    // Degree sign, a with diaeresis, y with diaeresis, euro, dash, trade mark, Y with diaeresis.
    const Converted text =
        Label("\xC2\xB0\xC3\xA4\xC3\xBF\xE2\x82\xAC\xE2\x80\x93\xE2\x84\xA2\xC5\xB8");
    EXPECT_EQ(text.label, "\xB0\xE4\xFF\x80\x96\x99\x9F");
    EXPECT_EQ(text.lost, 0);
}

TEST(ToLabel, PutsAQuestionMarkForWhatDoesNotFit) {
    const Converted text = Label("\xCE\xA9-\xE4\xBA\x95-\xF0\x9F\x98\x80-\xC2\x81-\xEF\xBF\xBD");
    EXPECT_EQ(text.label, "?-?-?-?-?");
    EXPECT_EQ(text.lost, 5);
}

TEST(ToLabel, CountsOnTopOfWhatWasLostBefore) {
    int lost = 10;
    zv::ToLabel("\xCE\xA9", lost);
    EXPECT_EQ(lost, 11);
}

TEST(ToLabel, PutsOneQuestionMarkForAMalformedStretch) {
    EXPECT_EQ(Label("a\x80z").label, "a?z");       // follower without a lead
    EXPECT_EQ(Label("a\xE2\x82z").label, "a?z");   // cut short
    EXPECT_EQ(Label("a\xE2\x82").label, "a?");     // cut short by the end
    EXPECT_EQ(Label("a\xF4\x90z").label, "a??z");  // past the last character
    EXPECT_EQ(Label("\xC0\xAF").label, "??");      // overlong
    EXPECT_EQ(Label("\xED\xA0\x80").label, "???"); // surrogate
    EXPECT_EQ(Label("\xE2\x82\xE2\x82\xAC").label, "?\x80");
    EXPECT_EQ(Label("\xFF\xFE").lost, 2);
}

TEST(ToUtf8, IsTheWayBack) {
    EXPECT_EQ(zv::ToUtf8("45\xB0 N"), "45\xC2\xB0 N");
    EXPECT_EQ(zv::ToUtf8("\x80\x9F"), "\xE2\x82\xAC\xC5\xB8");
}

TEST(ToUtf8, ReplacesBytesWithoutACharacter) {
    EXPECT_EQ(zv::ToUtf8("\x81\x8D\x8F\x90\x9D"),
              "\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(Text, EveryByteWithACharacterComesBack) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string label(1, static_cast<char>(byte));
        const bool hasNone =
            byte == 0x81 || byte == 0x8D || byte == 0x8F || byte == 0x90 || byte == 0x9D;
        const Converted back = Label(zv::ToUtf8(label));
        EXPECT_EQ(back.label, hasNone ? "?" : label) << byte;
        EXPECT_EQ(back.lost, hasNone ? 1 : 0) << byte;
    }
}
