#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "platform/zvset/ZvSettings.h"
#include "platform/zvset/ZvSettingsManager.h"
#include "support/LogLines.h"

namespace {

const std::string kQualName = "Post#1\\USET#1\\QUAL_NAME";

/// Layer settings as a file gives them.
class Loaded {
  public:
    explicit Loaded(const std::string& json) {
        m_manager.LoadText(R"({"layers": {"25": )" + json + "}}", "test");
    }
    const CZvSettings* operator->() { return m_manager.GetLayerSettings(E_LAYER_WELLS); }

  private:
    CZvSettingsManager m_manager;
};

} // namespace

TEST(ZvSettings, GiveBackWhatWasSet) {
    CZvSettings settings;
    settings.SetBoolean("ON_OFF", false);
    settings.SetInteger("a\\COLOR", -7);
    settings.SetDouble("a\\XOFFSET", 2.25);
    settings.SetString(kQualName, "Gulf");
    bool on = true;
    int color = 0;
    double offset = 0.0;
    std::string name;
    EXPECT_TRUE(settings.GetBoolean("ON_OFF", on));
    EXPECT_TRUE(settings.GetInteger("a\\COLOR", color));
    EXPECT_TRUE(settings.GetDouble("a\\XOFFSET", offset));
    EXPECT_TRUE(settings.GetString(kQualName, name));
    EXPECT_FALSE(on);
    EXPECT_EQ(color, -7);
    EXPECT_EQ(offset, 2.25);
    EXPECT_EQ(name, "Gulf");
}

TEST(ZvSettings, LeaveTheArgumentAloneForAnAbsentKey) {
    CZvSettings settings;
    settings.SetInteger("a\\b", 1);
    bool on = true;
    int color = 5;
    double offset = 0.2;
    std::string name = "old";
    for (const char* key : {"", "a", "a\\", "a\\b\\c", "\\a\\b", "A\\B", "b"}) {
        EXPECT_FALSE(settings.GetBoolean(key, on));
        EXPECT_FALSE(settings.GetInteger(key, color)) << key;
        EXPECT_FALSE(settings.GetDouble(key, offset));
        EXPECT_FALSE(settings.GetString(key, name));
    }
    EXPECT_TRUE(on);
    EXPECT_EQ(color, 5);
    EXPECT_EQ(offset, 0.2);
    EXPECT_EQ(name, "old");
}

TEST(ZvSettings, LeaveTheArgumentAloneForAValueOfAnotherKind) {
    CZvSettings settings;
    settings.SetBoolean("flag", true);
    settings.SetString("text", "7 wells");
    settings.SetDouble("half", 0.5);
    bool on = false;
    int color = 5;
    double offset = 0.2;
    std::string name = "old";
    EXPECT_FALSE(settings.GetBoolean("text", on));
    EXPECT_FALSE(settings.GetBoolean("half", on));
    EXPECT_FALSE(settings.GetInteger("flag", color));
    EXPECT_FALSE(settings.GetInteger("text", color));
    EXPECT_FALSE(settings.GetInteger("half", color));
    EXPECT_FALSE(settings.GetDouble("flag", offset));
    EXPECT_FALSE(settings.GetDouble("text", offset));
    EXPECT_FALSE(settings.GetString("flag", name));
    EXPECT_FALSE(settings.GetString("half", name));
    EXPECT_FALSE(on);
    EXPECT_EQ(color, 5);
    EXPECT_EQ(offset, 0.2);
    EXPECT_EQ(name, "old");
}

TEST(ZvSettings, ReadNumbersFromText) {
    CZvSettings settings;
    settings.SetString("whole", "-12");
    settings.SetString("real", "2.5e3");
    settings.SetString("rest", "0.5");
    settings.SetString("infinite", "inf");
    int color = 0;
    double offset = 0.0;
    EXPECT_TRUE(settings.GetInteger("whole", color));
    EXPECT_EQ(color, -12);
    EXPECT_TRUE(settings.GetDouble("real", offset));
    EXPECT_EQ(offset, 2500.0);
    EXPECT_TRUE(settings.GetInteger("real", color));
    EXPECT_EQ(color, 2500);
    EXPECT_FALSE(settings.GetInteger("rest", color));
    EXPECT_FALSE(settings.GetDouble("infinite", offset));
}

TEST(ZvSettings, ReadWholeNumbersFromDoublesAndTheOtherWayRound) {
    CZvSettings settings;
    settings.SetDouble("whole", 11.0);
    settings.SetInteger("integer", 3);
    settings.SetDouble("large", 2147483648.0);
    int color = 0;
    double offset = 0.0;
    EXPECT_TRUE(settings.GetInteger("whole", color));
    EXPECT_EQ(color, 11);
    EXPECT_TRUE(settings.GetDouble("integer", offset));
    EXPECT_EQ(offset, 3.0);
    EXPECT_FALSE(settings.GetInteger("large", color));
    EXPECT_EQ(color, 11);
}

TEST(ZvSettings, TakeTheLastValueOfAKey) {
    CZvSettings settings;
    settings.SetString("a", "text");
    settings.SetInteger("a", 1);
    settings.SetInteger("a\\b", 2);
    int value = 0;
    EXPECT_FALSE(settings.GetInteger("a", value)) << "the branch took the value's place";
    EXPECT_TRUE(settings.GetInteger("a\\b", value));
    EXPECT_EQ(value, 2);
    settings.SetInteger("a", 3);
    EXPECT_FALSE(settings.GetInteger("a\\b", value));
    EXPECT_TRUE(settings.GetInteger("a", value));
    EXPECT_EQ(value, 3);
}

TEST(ZvSettings, RemoveTakesAllBelow) {
    CZvSettings settings;
    settings.SetInteger("a\\b\\c", 1);
    settings.SetInteger("a\\d", 2);
    EXPECT_FALSE(settings.Remove("a\\x"));
    EXPECT_FALSE(settings.Remove("x\\b"));
    EXPECT_TRUE(settings.Remove("a\\b"));
    int value = 0;
    EXPECT_FALSE(settings.GetInteger("a\\b\\c", value));
    EXPECT_TRUE(settings.GetInteger("a\\d", value));
    EXPECT_TRUE(settings.Remove("a"));
    EXPECT_FALSE(settings.Remove("a"));
}

TEST(ZvSettings, RefuseANumberThatIsNotFinite) {
    CZvSettings settings;
    const zv::test::LogLines log;
    settings.SetDouble("XOFFSET", 1.5);
    settings.SetDouble("XOFFSET", std::nan(""));
    settings.SetDouble("XOFFSET", std::numeric_limits<double>::infinity());
    double value = 0.0;
    EXPECT_TRUE(settings.GetDouble("XOFFSET", value));
    EXPECT_EQ(value, 1.5);
    EXPECT_EQ(log.Get().size(), 2u);
}

TEST(ZvSettings, RefuseAKeyOfTooManyLevels) {
    CZvSettings settings;
    const zv::test::LogLines log;
    settings.SetInteger(std::string(13, '\\'), 1);
    settings.SetInteger(std::string(14, '\\'), 1);
    int value = 0;
    EXPECT_TRUE(settings.GetInteger(std::string(13, '\\'), value));
    EXPECT_FALSE(settings.GetInteger(std::string(14, '\\'), value));
    EXPECT_EQ(log.Get().size(), 1u);
}

TEST(ZvSettings, GiveTextInOneByteACharacter) {
    Loaded settings(R"({"angle": "45°", "Länge": "井"})");
    std::string text;
    EXPECT_TRUE(settings->GetString("angle", text));
    EXPECT_EQ(text, "45\xB0");
    const zv::test::LogLines log;
    EXPECT_TRUE(settings->GetString("L\xE4nge", text));
    EXPECT_EQ(text, "?");
    EXPECT_EQ(log.Get().size(), 1u);
}

TEST(ZvSettings, HaveAColourKeyForEachCulture) {
    const ZVCulture wells = static_cast<ZVCulture>(220);
    const ZVCulture outlines = static_cast<ZVCulture>(11);
    const auto key = CZvSettings::S_GetCultureColorSettingString(E_LAYER_WELLS, wells);
    EXPECT_NE(key, CZvSettings::S_GetCultureColorSettingString(E_LAYER_WELLS, outlines));
    CZvSettings settings;
    settings.SetInteger(key, 4);
    int color = 0;
    EXPECT_TRUE(settings.GetInteger("CULTURE#220\\COLOR", color));
    EXPECT_EQ(color, 4);
}
