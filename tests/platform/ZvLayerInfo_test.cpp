#include "platform/zvcom/ZvLayerInfo.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

#include "platform/Share.h"
#include "platform/zvcom/LayerCatalogue.h"

namespace {

struct Range {
    int from, to;
};

std::vector<int> Spread(std::initializer_list<Range> ranges) {
    std::vector<int> numbers;
    for (const Range& range : ranges)
        for (int number = range.from; number <= range.to; ++number)
            numbers.push_back(number);
    return numbers;
}

/// The layers of the draw order, in that order, with the grid at its end.
std::vector<int> DrawOrder() {
    return Spread({{13, 13}, {70, 70}, {28, 28}, {71, 74}, {26, 26}, {50, 53}, {66, 66}, {3, 3},
                   {54, 55}, {25, 25}, {60, 65}, {15, 16}, {4, 8},   {56, 57}, {10, 10}, {17, 21},
                   {30, 30}, {67, 69}, {22, 23}, {91, 94}, {90, 90}, {2, 2},   {31, 31}});
}

/// The cultures that can be picked for editing.
std::vector<int> EditCultures() {
    return Spread({{12, 12},   {18, 18},   {21, 21},   {51, 51},   {53, 58},   {71, 71},
                   {73, 73},   {87, 91},   {101, 101}, {103, 103}, {107, 107}, {112, 112},
                   {141, 152}, {154, 164}, {202, 202}, {207, 208}, {220, 220}, {222, 222},
                   {231, 235}, {250, 259}, {352, 352}, {354, 354}, {358, 361}, {401, 409},
                   {502, 502}, {505, 505}, {508, 508}, {511, 511}, {550, 558}, {570, 576},
                   {600, 603}, {627, 629}, {632, 634}, {639, 639}, {642, 644}, {652, 666},
                   {672, 672}, {675, 675}, {677, 677}, {679, 679}, {681, 681}, {683, 683},
                   {700, 707}, {750, 751}, {764, 776}, {850, 852}});
}

/// The cultures that can be picked for reports.
std::vector<int> ReportCultures() {
    return Spread({{12, 13},   {15, 16},   {50, 51},   {53, 58},   {70, 73},   {80, 91},
                   {137, 137}, {139, 139}, {141, 152}, {154, 164}, {202, 202}, {207, 208},
                   {220, 222}, {231, 235}, {240, 241}, {250, 259}, {400, 400}, {402, 409},
                   {500, 511}, {570, 576}, {600, 603}, {605, 605}, {652, 666}});
}

/// The cultures that memory control shows zone by zone, by layer.
std::map<int, std::vector<int>> ManagedCultures() {
    return {{3, {11, 12}},
            {13, Spread({{141, 152}, {154, 164}})},
            {15, Spread({{51, 58}})},
            {25, Spread({{222, 222}, {231, 231}, {233, 235}, {240, 241}, {250, 259}})},
            {66, Spread({{401, 409}})},
            {67, Spread({{600, 604}})}};
}

/// What the rest of the system addresses by layer and culture.
std::map<int, std::vector<int>> NamedCultures() {
    std::map<int, std::vector<int>> named = {
        {2, {450, 451, 452}},       {3, {10, 11, 12}},
        {15, Spread({{51, 58}})},   {66, Spread({{400, 409}})},
        {67, Spread({{600, 605}})}, {90, {550, 551, 552, 553, 554, 557, 558}},
        {94, {850, 851, 852}},
    };
    for (const int wells : {25, 60, 61, 62, 63, 64, 65})
        named[wells] = Spread({{68, 68}, {25, 25}, {220, 222}, {231, 235}, {240, 241}, {250, 259}});
    for (const int leases : {13, 50, 51, 52})
        named[leases] = Spread({{141, 152}, {154, 164}});
    for (const int lines : {16, 26})
        named[lines] = Spread({{652, 666}});
    return named;
}

std::vector<int> AllPasses(int layer, bool screen) {
    std::vector<int> all = CZvLayerInfo::S_GetLayerCultures(E_Layer(layer), true, screen);
    const std::vector<int> then = CZvLayerInfo::S_GetLayerCultures(E_Layer(layer), false, screen);
    all.insert(all.end(), then.begin(), then.end());
    return all;
}

bool Holds(const std::vector<int>& numbers, int number) {
    return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

std::set<int> HousedCultures() {
    std::set<int> housed;
    for (const int layer : CZvLayerInfo::S_GetLayers())
        for (const int culture : CZvLayerInfo::S_GetCultures(E_Layer(layer)))
            housed.insert(culture);
    return housed;
}

std::string LowerCase(std::string text) {
    for (char& c : text)
        c = char(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

bool IsWord(const std::string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(),
                                        [](unsigned char c) { return std::isalnum(c) != 0; });
}

TEST(ZvLayerInfo, ListsTheDrawOrdersLayersAndTwoMore) {
    std::vector<int> expected = DrawOrder();
    ASSERT_EQ(expected.size(), 51u);
    expected.push_back(0);
    expected.push_back(999);
    std::sort(expected.begin(), expected.end());
    EXPECT_EQ(CZvLayerInfo::S_GetLayers(), expected);
}

TEST(ZvLayerInfo, TitlesAndAbbreviationsAreUniqueInAnyCase) {
    std::set<std::string> titles, abbrs;
    std::vector<int> layers = CZvLayerInfo::S_GetLayers();
    layers.insert(layers.end(), {-2147483647 - 1, -5, -1, 1, 5, 9, 99, 1000, 4711, 2147483647});
    std::sort(layers.begin(), layers.end());
    layers.erase(std::unique(layers.begin(), layers.end()), layers.end());
    for (const int layer : layers) {
        const std::string abbr = CZvLayerInfo::GetLayerAbbr(E_Layer(layer));
        EXPECT_TRUE(IsWord(abbr)) << abbr;
        EXPECT_TRUE(abbrs.insert(LowerCase(abbr)).second) << abbr;
        const std::string title = CZvLayerInfo::GetLayerTitle(E_Layer(layer));
        EXPECT_FALSE(title.empty());
        EXPECT_TRUE(titles.insert(LowerCase(title)).second) << title;
    }
}

TEST(ZvLayerInfo, AnUnlistedLayerHasARule) {
    const E_Layer layer = E_Layer(4711);
    EXPECT_EQ(CZvLayerInfo::GetLayerTitle(layer), "Layer 4711");
    EXPECT_EQ(CZvLayerInfo::GetLayerAbbr(layer), "L4711");
    EXPECT_EQ(CZvLayerInfo::GetLayerAbbr(E_Layer(-1)), "LM1");
    EXPECT_TRUE(CZvLayerInfo::DrawOnce(layer));
    EXPECT_FALSE(CZvLayerInfo::S_BuildSecondaryIndex(layer));
    EXPECT_FALSE(CZvLayerInfo::S_CheckWhiteConvert(layer));
    EXPECT_TRUE(CZvLayerInfo::S_GetLayerCultures(layer, true, true).empty());
    EXPECT_TRUE(CZvLayerInfo::S_GetCultures(layer).empty());
}

TEST(ZvLayerInfo, ThePassesOfOneTargetAreDisjointAndWithinTheLayer) {
    for (const int layer : CZvLayerInfo::S_GetLayers()) {
        const std::vector<int> cultures = CZvLayerInfo::S_GetCultures(E_Layer(layer));
        for (const bool screen : {true, false}) {
            std::set<int> seen;
            for (const int culture : AllPasses(layer, screen)) {
                EXPECT_TRUE(seen.insert(culture).second) << layer << " " << culture;
                EXPECT_TRUE(Holds(cultures, culture)) << layer << " " << culture;
            }
        }
    }
}

TEST(ZvLayerInfo, ScreenAndPaperShowTheSameCultures) {
    for (const int layer : CZvLayerInfo::S_GetLayers()) {
        std::vector<int> screen = AllPasses(layer, true), paper = AllPasses(layer, false);
        std::sort(screen.begin(), screen.end());
        std::sort(paper.begin(), paper.end());
        EXPECT_EQ(screen, paper) << layer;
    }
}

TEST(ZvLayerInfo, TheRetiredProspectCultureIsNeverDrawn) {
    EXPECT_TRUE(Holds(CZvLayerInfo::S_GetCultures(E_Layer(54)), 202));
    EXPECT_FALSE(Holds(AllPasses(54, true), 202));
    EXPECT_FALSE(Holds(AllPasses(54, false), 202));
}

TEST(ZvLayerInfo, EveryPickableCultureHasAHomeAndATitle) {
    const std::set<int> housed = HousedCultures();
    ASSERT_EQ(EditCultures().size(), 160u);
    ASSERT_EQ(ReportCultures().size(), 124u);
    for (const auto& table : {EditCultures(), ReportCultures(), std::vector<int>{451, 452}})
        for (const int culture : table) {
            EXPECT_TRUE(housed.contains(culture)) << culture;
            EXPECT_NE(CZvLayerInfo::GetCultureTitle(ZVCulture(culture), true),
                      "Culture " + std::to_string(culture));
        }
}

TEST(ZvLayerInfo, CulturesThatAreAddressedByNumberAreDrawnInTheirLayers) {
    for (const auto& [layer, cultures] : NamedCultures())
        for (const int culture : cultures)
            EXPECT_TRUE(Holds(AllPasses(layer, true), culture)) << layer << " " << culture;
}

TEST(ZvLayerInfo, OnlyManagedCulturesAreBoundToFourKinds) {
    std::set<int> managed;
    for (const auto& [layer, cultures] : ManagedCultures())
        for (const int culture : cultures) {
            EXPECT_TRUE(Holds(CZvLayerInfo::S_GetCultures(E_Layer(layer)), culture)) << culture;
            managed.insert(culture);
        }
    for (const int number : HousedCultures()) {
        const ZVCulture culture = ZVCulture(number);
        for (const ZVDispType kind :
             {ZV_DISP_TEXT, ZV_DISP_POLYLINE, ZV_DISP_POLYGON, ZV_DISP_CIRCLE})
            EXPECT_TRUE(CZvLayerInfo::S_CultureHolds(culture, kind));
        for (const ZVDispType kind : {ZV_DISP_SYMBOL, ZV_DISP_GROUP, ZV_DISP_ARC})
            EXPECT_EQ(CZvLayerInfo::S_CultureHolds(culture, kind), !managed.contains(number))
                << number;
    }
    EXPECT_TRUE(CZvLayerInfo::S_CultureHolds(ZVCulture(220), ZV_DISP_SYMBOL));
    EXPECT_TRUE(CZvLayerInfo::S_CultureHolds(ZVCulture(12345), ZV_DISP_GROUP));
}

TEST(ZvLayerInfo, FillsAreBackgroundAndLabelsAreNot) {
    const auto first = [](int layer) {
        return CZvLayerInfo::S_GetLayerCultures(E_Layer(layer), true, true);
    };
    EXPECT_EQ(first(3), std::vector<int>({14, 12}));
    EXPECT_EQ(first(13), std::vector<int>({145}));
    EXPECT_EQ(first(90), std::vector<int>({557, 558}));
    EXPECT_EQ(first(94), std::vector<int>({852}));
    EXPECT_TRUE(first(25).empty());
    EXPECT_TRUE(first(15).empty());
}

TEST(ZvLayerInfo, WellSymbolsLieOnTheirLabelsOnTheScreenAndUnderThemOnPaper) {
    const auto place = [](bool screen, int culture) {
        const auto order = CZvLayerInfo::S_GetLayerCultures(E_LAYER_WELLS, false, screen);
        return std::find(order.begin(), order.end(), culture) - order.begin();
    };
    EXPECT_LT(place(true, 222), place(true, 220));
    EXPECT_GT(place(false, 222), place(false, 220));
}

TEST(ZvLayerInfo, TheGridAndTheFurnitureAreDrawnOnce) {
    std::vector<int> once;
    for (const int layer : CZvLayerInfo::S_GetLayers())
        if (CZvLayerInfo::DrawOnce(E_Layer(layer))) once.push_back(layer);
    EXPECT_EQ(once, std::vector<int>({0, 2, 31, 999}));
}

TEST(ZvLayerInfo, WellsLeasesAndSeismicLinesHaveTheSecondaryIndex) {
    std::vector<int> indexed;
    for (const int layer : CZvLayerInfo::S_GetLayers())
        if (CZvLayerInfo::S_BuildSecondaryIndex(E_Layer(layer))) indexed.push_back(layer);
    EXPECT_EQ(indexed, std::vector<int>({13, 16, 25, 26, 50, 51, 52, 60, 61, 62, 63, 64, 65}));
}

TEST(ZvLayerInfo, WhiteFillsTurnBlackWhereSymbolsStand) {
    for (const int layer : {25, 60, 65, 66, 67, 16, 26})
        EXPECT_TRUE(CZvLayerInfo::S_CheckWhiteConvert(E_Layer(layer))) << layer;
    for (const int layer : {2, 3, 13, 90})
        EXPECT_FALSE(CZvLayerInfo::S_CheckWhiteConvert(E_Layer(layer))) << layer;
}

TEST(ZvLayerInfo, CultureTitlesComeInWordsOrAsOneWord) {
    EXPECT_EQ(CZvLayerInfo::GetCultureTitle(ZVCulture(222), true), "Well label");
    EXPECT_EQ(CZvLayerInfo::GetCultureTitle(ZVCulture(222), false), "WellLabel");
    EXPECT_EQ(CZvLayerInfo::GetCultureTitle(ZVCulture(12345), true), "Culture 12345");
    EXPECT_EQ(CZvLayerInfo::GetCultureTitle(ZVCulture(12345), false), "Culture12345");
    EXPECT_EQ(CZvLayerInfo::GetCultureTitle(ZVCulture(222 * 65536 + 7), false), "WellLabel-7");
    EXPECT_EQ(CZvLayerInfo::GetCultureTitle(ZVCulture(-1), false), "Culture65535-65535");
}

TEST(ZvLayerInfo, LayerNamesOfOtherFormatsStayApartInTwentyFiveCharacters) {
    for (const int layer : CZvLayerInfo::S_GetLayers())
        for (const int culture : CZvLayerInfo::S_GetCultures(E_Layer(layer))) {
            const std::string word = CZvLayerInfo::GetCultureTitle(ZVCulture(culture), false);
            const std::string name = CZvLayerInfo::GetLayerAbbr(E_Layer(layer)) + "-" + word;
            EXPECT_TRUE(IsWord(word)) << word;
            EXPECT_LE(name.size(), 25u) << name;
        }
}

TEST(ZvLayerInfo, LayersAndCulturesAreFoundByTheirWords) {
    E_Layer layer = E_LAYER_UNSET;
    EXPECT_TRUE(CZvLayerInfo::S_FindLayer("wells", layer));
    EXPECT_EQ(layer, E_LAYER_WELLS);
    EXPECT_TRUE(CZvLayerInfo::S_FindLayer("Lease", layer));
    EXPECT_EQ(layer, E_LAYER_LEASES);
    EXPECT_FALSE(CZvLayerInfo::S_FindLayer("nowhere", layer));
    EXPECT_EQ(layer, E_LAYER_LEASES);
    ZVCulture culture = ZV_CULTURE_UNSET;
    EXPECT_TRUE(CZvLayerInfo::S_FindCulture("wellsymbol", culture));
    EXPECT_EQ(culture, 220);
    EXPECT_FALSE(CZvLayerInfo::S_FindCulture("", culture));
}

TEST(ZvLayerInfo, ASampleMapFindsItsCultures) {
    const std::map<int, std::vector<int>> wanted = {
        {6, {30, 31}},         {18, {102}},      {17, {100}},     {3, {10, 11, 12, 13}},
        {13, {141, 145, 154}}, {25, {220, 222}}, {15, {50}},      {66, {400, 401}},
        {16, {658, 659, 654}}, {2, {450, 451}},  {31, {350, 352}}};
    for (const auto& [layer, cultures] : wanted)
        for (const int culture : cultures)
            EXPECT_TRUE(Holds(AllPasses(layer, true), culture)) << layer << " " << culture;
}

TEST(ZvLayerInfo, TemplateTypesHaveFoldersAndZones) {
    EXPECT_EQ(CZvLayerInfo::S_GetTemplateFolder(0), "");
    EXPECT_EQ(CZvLayerInfo::S_GetTemplateFolder(1), "onshore\\");
    EXPECT_EQ(CZvLayerInfo::S_GetTemplateFolder(2), "alaska\\");
    EXPECT_EQ(CZvLayerInfo::S_GetTemplateFolder(3), "");
    EXPECT_EQ(CZvLayerInfo::S_GetTemplateZones(2).size(), 10u);
    EXPECT_TRUE(CZvLayerInfo::S_GetTemplateZones(1).empty());
}

TEST(ZvLayerInfo, TheColorKeyNamesTheCulture) {
    EXPECT_EQ(zv::CultureColorKey(E_LAYER_WELLS, ZVCulture(220)), "CULTURE#220\\COLOR");
}

/// A user's folder of its own while a test runs.
class UserTitles : public testing::Test {
  protected:
    UserTitles() {
        namespace fs = std::filesystem;
        if (const char* old = std::getenv("ZVDISP_CONFIG")) m_old = old;
        std::string name = (fs::temp_directory_path() / "zvtitlesXXXXXX").string();
        m_folder = mkdtemp(name.data());
        setenv("ZVDISP_CONFIG", m_folder.c_str(), 1);
    }
    ~UserTitles() override {
        std::filesystem::remove_all(m_folder);
        CZvLayerInfo::S_LoadUserCultDesc();
        if (m_old.empty())
            unsetenv("ZVDISP_CONFIG");
        else
            setenv("ZVDISP_CONFIG", m_old.c_str(), 1);
    }

    void Write(std::string_view text) const {
        std::ofstream(m_folder / "cultures.json", std::ios::binary) << text;
    }

    std::filesystem::path m_folder;
    std::string m_old;
};

TEST_F(UserTitles, AreTheCatalogueWordsWithoutAFile) {
    EXPECT_FALSE(CZvLayerInfo::S_LoadUserCultDesc());
    EXPECT_EQ(CZvLayerInfo::S_GetUserCultTitle(ZVCulture(220)), "WellSymbol");
}

TEST_F(UserTitles, StandInPlaceOfTheCatalogueWords) {
    Write(R"({"version": 1, "titles": {"220": "Our wells"}})");
    EXPECT_TRUE(CZvLayerInfo::S_LoadUserCultDesc());
    EXPECT_EQ(CZvLayerInfo::S_GetUserCultTitle(ZVCulture(220)), "Our_wells");
    EXPECT_EQ(CZvLayerInfo::S_GetUserCultTitle(ZVCulture(222)), "WellLabel");
}

TEST_F(UserTitles, StayWhenABrokenFileComes) {
    Write(R"({"version": 1, "titles": {"220": "Our wells"}})");
    ASSERT_TRUE(CZvLayerInfo::S_LoadUserCultDesc());
    Write(R"({"version": 1, "titles": {"well": "x"}})");
    try {
        CZvLayerInfo::S_LoadUserCultDesc();
        FAIL() << "the broken file was taken";
    } catch (const zv::DataError& error) {
        EXPECT_EQ(error.GetError().file, (m_folder / "cultures.json").string());
        EXPECT_EQ(error.GetError().place, "/titles/well");
    }
    EXPECT_EQ(CZvLayerInfo::S_GetUserCultTitle(ZVCulture(220)), "Our_wells");
}

} // namespace
