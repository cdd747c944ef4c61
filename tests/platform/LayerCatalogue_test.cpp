#include "platform/zvcom/LayerCatalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "platform/zvcom/UserCultures.h"

namespace {

/// A sound catalogue in which single pieces can be replaced.
const std::string kSound = R"({
  "version": 1,
  "about": "two layers",
  "cultures": [
    {"number": 1, "name": "Area", "title": "An area", "managed": true},
    {"number": 2, "name": "Line", "title": "A line"},
    {"number": 3, "name": "Hidden", "title": "Never drawn"}
  ],
  "layers": [
    {"number": 4, "title": "Four", "abbr": "FOUR", "secondaryIndex": true,
     "cultures": [1, 2, 3],
     "screen": {"first": [1], "then": [2]},
     "paper": {"first": [], "then": [2, 1]}},
    {"number": 5, "title": "Five", "abbr": "FIVE", "like": 4}
  ],
  "templates": [
    {"number": 2, "title": "Alaska", "folder": "alaska\\", "zones": ["z1", "z2"]}
  ]
})";

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
    const std::size_t at = text.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    return text.replace(at, what.size(), with);
}

zv::Error ErrorOf(const std::string& json) {
    try {
        zv::ParseLayerCatalogue(json, "l.json");
    } catch (const zv::DataError& error) {
        return error.GetError();
    }
    return {"", "", "(no error)"};
}

/// "place: reason" of the sound catalogue with one piece replaced.
std::string Fault(const std::string& what, const std::string& with) {
    const zv::Error error = ErrorOf(Replaced(kSound, what, with));
    EXPECT_EQ(error.file, "l.json") << error.reason;
    return error.place + ": " + error.reason;
}

TEST(LayerCatalogue, HoldsWhatTheFileSays) {
    const zv::LayerCatalogue catalogue = zv::ParseLayerCatalogue(kSound, "l.json");
    ASSERT_EQ(catalogue.Layers().size(), 2u);
    const zv::LayerEntry* four = catalogue.FindLayer(4);
    ASSERT_NE(four, nullptr);
    EXPECT_EQ(four->title, "Four");
    EXPECT_EQ(four->screen.first, std::vector<int>({1}));
    EXPECT_EQ(four->screen.then, std::vector<int>({2}));
    EXPECT_EQ(four->paper.first, std::vector<int>());
    EXPECT_EQ(four->paper.then, std::vector<int>({2, 1}));
    EXPECT_TRUE(four->secondaryIndex);
    EXPECT_FALSE(four->drawOnce);
    ASSERT_NE(catalogue.FindCulture(1), nullptr);
    EXPECT_TRUE(catalogue.FindCulture(1)->managed);
    EXPECT_FALSE(catalogue.FindCulture(2)->managed);
    ASSERT_NE(catalogue.FindTemplate(2), nullptr);
    EXPECT_EQ(catalogue.FindTemplate(2)->folder, "alaska\\");
    EXPECT_EQ(catalogue.FindTemplate(2)->zones, std::vector<std::string>({"z1", "z2"}));
}

TEST(LayerCatalogue, LikeTakesAllButNumberTitleAndAbbreviation) {
    const zv::LayerCatalogue catalogue = zv::ParseLayerCatalogue(kSound, "l.json");
    const zv::LayerEntry* five = catalogue.FindLayer(5);
    ASSERT_NE(five, nullptr);
    EXPECT_EQ(five->title, "Five");
    EXPECT_EQ(five->abbr, "FIVE");
    EXPECT_EQ(five->cultures, catalogue.FindLayer(4)->cultures);
    EXPECT_EQ(five->paper.then, std::vector<int>({2, 1}));
    EXPECT_TRUE(five->secondaryIndex);
}

TEST(LayerCatalogue, PaperIsAsTheScreenWhenItIsNotTold) {
    const std::string json = Replaced(kSound, R"(,
     "paper": {"first": [], "then": [2, 1]})",
                                      "");
    const zv::LayerCatalogue catalogue = zv::ParseLayerCatalogue(json, "l.json");
    EXPECT_EQ(catalogue.FindLayer(4)->paper.first, std::vector<int>({1}));
    EXPECT_EQ(catalogue.FindLayer(4)->paper.then, std::vector<int>({2}));
}

TEST(LayerCatalogue, NumbersThatItLacksAreNotFound) {
    const zv::LayerCatalogue catalogue = zv::ParseLayerCatalogue(kSound, "l.json");
    for (const int number : {-1, 0, 6, 99, 1000, 2147483647, -2147483647 - 1}) {
        EXPECT_EQ(catalogue.FindLayer(number), nullptr) << number;
        EXPECT_EQ(catalogue.FindCulture(number), nullptr) << number;
        EXPECT_EQ(catalogue.FindTemplate(number), nullptr) << number;
    }
    EXPECT_EQ(zv::LayerCatalogue().FindLayer(4), nullptr);
}

TEST(LayerCatalogue, WordsAreFoundInAnyCase) {
    const zv::LayerCatalogue catalogue = zv::ParseLayerCatalogue(kSound, "l.json");
    EXPECT_EQ(catalogue.FindLayer("four"), catalogue.FindLayer(4));
    EXPECT_EQ(catalogue.FindCulture("AN AREA"), catalogue.FindCulture(1));
    EXPECT_EQ(catalogue.FindCulture("area"), catalogue.FindCulture(1));
    EXPECT_EQ(catalogue.FindLayer("fou"), nullptr);
    EXPECT_EQ(catalogue.FindLayer(""), nullptr);
}

TEST(LayerCatalogue, TextThatIsNotJsonIsToldByLineAndColumn) {
    const zv::Error error = ErrorOf("{\n  \"version\": 1,\n  oops\n}");
    EXPECT_EQ(error.file, "l.json");
    EXPECT_EQ(error.place, "line 3, column 3");
    EXPECT_EQ(error.reason.rfind("syntax error", 0), 0u) << error.reason;
    EXPECT_EQ(ErrorOf("").place, "line 1, column 1");
    EXPECT_EQ(ErrorOf("{\"version\": 1} x").place, "line 1, column 16");
    EXPECT_EQ(ErrorOf("\"\xFF\"").place, "line 1, column 2");
}

TEST(LayerCatalogue, TheRootMustBeAnObjectOfKnownMembers) {
    EXPECT_EQ(ErrorOf("[]").reason, "must be an object");
    EXPECT_EQ(ErrorOf("{}").reason, "lacks the member \"version\"");
    EXPECT_EQ(Fault("\"about\"", "\"abuot\""), "/abuot: there is no such member here");
    EXPECT_EQ(Fault("\"about\": \"two layers\"", "\"about\": 2"), "/about: must be a text");
    EXPECT_EQ(Fault("\"version\": 1", "\"version\": 2"), "/version: must be from 1 to 1");
}

TEST(LayerCatalogue, AMemberMustNotStandTwice) {
    EXPECT_EQ(Fault("\"about\": \"two layers\"", "\"version\": 1"),
              "/version: member stands twice");
    EXPECT_EQ(Fault("\"title\": \"A line\"", "\"title\": \"A\", \"title\": \"B\""),
              "/cultures/1/title: member stands twice");
}

TEST(LayerCatalogue, DeepNestingIsRefused) {
    const zv::Error error = ErrorOf(std::string(100000, '['));
    EXPECT_EQ(error.reason, "nested too deep");
    EXPECT_EQ(error.place.rfind("/0/0", 0), 0u);
}

TEST(LayerCatalogue, EndlessTextIsRefused) {
    EXPECT_EQ(ErrorOf(std::string(5000000, ' ')).reason, "longer than 4194304 bytes");
}

TEST(LayerCatalogue, HugeNumbersAreRefused) {
    EXPECT_EQ(Fault("\"number\": 2, \"name\"", "\"number\": 1e400, \"name\"").substr(0, 2), ": ");
    EXPECT_EQ(Fault("\"number\": 2, \"name\"", "\"number\": 99999999999999999999, \"name\""),
              "/cultures/1/number: must be a whole number");
    EXPECT_EQ(Fault("\"number\": 2, \"name\"", "\"number\": 18446744073709551615, \"name\""),
              "/cultures/1/number: must be from 0 to 65535");
}

TEST(LayerCatalogue, CultureFaultsAreTold) {
    EXPECT_EQ(Fault("\"number\": 2, \"name\"", "\"number\": 1, \"name\""),
              "/cultures/1/number: stands twice");
    EXPECT_EQ(Fault("\"number\": 2, \"name\"", "\"number\": -2, \"name\""),
              "/cultures/1/number: must be from 0 to 65535");
    EXPECT_EQ(Fault("\"number\": 2, \"name\"", "\"number\": 2.5, \"name\""),
              "/cultures/1/number: must be a whole number");
    EXPECT_EQ(Fault("\"number\": 2, \"name\"", "\"number\": \"2\", \"name\""),
              "/cultures/1/number: must be a whole number");
    EXPECT_EQ(Fault("\"number\": 2, \"name\"", "\"number\": 900, \"name\""),
              "/cultures/1/number: 900 stands for all cultures");
    EXPECT_EQ(Fault("\"number\": 2, \"name\"", "\"name\""),
              "/cultures/1: lacks the member \"number\"");
    EXPECT_EQ(Fault("\"Line\"", "\"AREA\""), "/cultures/1/name: stands twice");
    EXPECT_EQ(Fault("\"Line\"", "\"A line\""),
              "/cultures/1/name: may hold letters and digits only");
    EXPECT_EQ(Fault("\"A line\"", "\"\""), "/cultures/1/title: is empty");
    EXPECT_EQ(Fault("\"A line\"", "\"A\\nline\""), "/cultures/1/title: holds a control character");
    EXPECT_EQ(Fault("\"A line\"", "\"" + std::string(81, 'x') + "\""),
              "/cultures/1/title: is longer than 80 bytes");
    EXPECT_EQ(Fault("\"managed\": true", "\"managed\": 1"),
              "/cultures/0/managed: must be true or false");
    EXPECT_EQ(Fault("\"cultures\": [1, 2, 3]", "\"cultures\": [1, 2]"),
              "/cultures/2: no layer holds this culture");
}

TEST(LayerCatalogue, LayerNumbersAndTitlesAreChecked) {
    EXPECT_EQ(Fault("\"number\": 5,", "\"number\": 4,"), "/layers/1/number: stands twice");
    EXPECT_EQ(Fault("\"number\": 5,", "\"number\": 1000,"),
              "/layers/1/number: must be from 0 to 999");
    EXPECT_EQ(Fault("\"number\": 5,", "\"number\": 99,"),
              "/layers/1/number: 99 stands for all layers");
    EXPECT_EQ(Fault("\"title\": \"Five\"", "\"title\": \"FOUR\""), "/layers/1/title: stands twice");
}

TEST(LayerCatalogue, AbbreviationsAreUniqueAndNameFiles) {
    EXPECT_EQ(Fault("\"FIVE\"", "\"four\""), "/layers/1/abbr: stands twice");
    EXPECT_EQ(Fault("\"FIVE\"", "\"\""), "/layers/1/abbr: is empty");
    EXPECT_EQ(Fault("\"FIVE\"", "\"A/B\""), "/layers/1/abbr: may hold letters and digits only");
    EXPECT_EQ(Fault("\"FIVE\"", "\"..\""), "/layers/1/abbr: may hold letters and digits only");
    for (const char* kept : {"\"L5\"", "\"l77\"", "\"LM5\"", "\"lm1\""})
        EXPECT_EQ(Fault("\"FIVE\"", kept),
                  "/layers/1/abbr: is kept for layers that no catalogue lists");
    EXPECT_EQ(ErrorOf(Replaced(kSound, "\"FIVE\"", "\"L5A\"")).reason, "(no error)");
}

TEST(LayerCatalogue, PassesHoldTheLayersCulturesOnceEach) {
    EXPECT_EQ(Fault("\"then\": [2]", "\"then\": [9]"),
              "/layers/0/screen/then/0: is not among the layer's cultures");
    EXPECT_EQ(Fault("\"then\": [2]", "\"then\": [2, 1]"), "/layers/0/screen/then/1: stands twice");
    EXPECT_EQ(Fault("\"then\": [2, 1]", "\"then\": [2, 2]"),
              "/layers/0/paper/then/1: stands twice");
    EXPECT_EQ(Fault("\"then\": [2]", "\"then\": 2"), "/layers/0/screen/then: must be an array");
    EXPECT_EQ(Fault("\"then\": [2]}", "\"last\": [2]}"),
              "/layers/0/screen/last: there is no such member here");
    EXPECT_EQ(Fault("\"screen\": {\"first\": [1], \"then\": [2]}", "\"screen\": {\"first\": [1]}"),
              "/layers/0/screen: lacks the member \"then\"");
    EXPECT_EQ(Fault("\"cultures\": [1, 2, 3]", "\"cultures\": [1, 2, 3, 4]"),
              "/layers/0/cultures/3: there is no culture of that number");
    EXPECT_EQ(Fault("\"cultures\": [1, 2, 3]", "\"cultures\": [1, 2, 3, 1]"),
              "/layers/0/cultures/3: stands twice");
}

TEST(LayerCatalogue, LikeNamesALayerAboveAndStandsAlone) {
    EXPECT_EQ(Fault("\"like\": 4", "\"like\": 5"),
              "/layers/1/like: no layer of that number stands above");
    EXPECT_EQ(Fault("\"like\": 4", "\"like\": 4, \"drawOnce\": true"),
              "/layers/1/drawOnce: cannot stand beside \"like\"");
    EXPECT_EQ(Fault(", \"like\": 4", ""), "/layers/1: lacks the member \"cultures\"");
}

TEST(LayerCatalogue, TemplateFaultsAreTold) {
    EXPECT_EQ(
        Fault("alaska\\\\", "..\\\\"),
        "/templates/0/folder: must be words of letters and digits, each with \"\\\" behind it");
    EXPECT_EQ(
        Fault("alaska\\\\", "\\\\alaska\\\\"),
        "/templates/0/folder: must be words of letters and digits, each with \"\\\" behind it");
    EXPECT_EQ(Fault("alaska\\\\", "alaska"), "/templates/0/folder: must end with \"\\\"");
    EXPECT_EQ(Fault("\"z2\"", "\"Z1\""), "/templates/0/zones/1: stands twice");
    EXPECT_EQ(Fault("\"z2\"", "\"\""), "/templates/0/zones/1: is empty");
}

TEST(LayerCatalogue, UnlistedLayersHaveAbbreviationsOfTheirOwn) {
    EXPECT_EQ(zv::AbbrOfUnlisted(1234), "L1234");
    EXPECT_EQ(zv::AbbrOfUnlisted(-1), "LM1");
    EXPECT_EQ(zv::AbbrOfUnlisted(-2147483647 - 1), "LM2147483648");
}

zv::Error UserErrorOf(const std::string& json) {
    try {
        zv::ParseUserCultures(json, "u.json");
    } catch (const zv::DataError& error) {
        return error.GetError();
    }
    return {};
}

TEST(UserCultures, TitlesComeWithoutBlanks) {
    const zv::UserCultures titles =
        zv::ParseUserCultures(R"({"version": 1, "titles": {"220": "Our wells", "0": "x"}})", "u");
    EXPECT_EQ(titles, (zv::UserCultures{{0, "x"}, {220, "Our_wells"}}));
}

TEST(UserCultures, FaultsAreToldWithFilePlaceAndReason) {
    for (const char* name : {"-1", "007", "", "65536", "2x", "99999999999"}) {
        const zv::Error error =
            UserErrorOf(R"({"version": 1, "titles": {")" + std::string(name) + R"(": "x"}})");
        EXPECT_EQ(error.file, "u.json");
        EXPECT_EQ(error.place, "/titles/" + std::string(name));
        EXPECT_EQ(error.reason, "its name must be a culture number from 0 to 65535");
    }
    EXPECT_EQ(UserErrorOf(R"({"version": 1, "titles": {"1": ""}})").reason, "is empty");
    EXPECT_EQ(UserErrorOf(R"({"version": 1, "titles": []})").place, "/titles");
}

} // namespace
