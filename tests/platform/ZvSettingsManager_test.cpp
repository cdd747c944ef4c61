#include <gtest/gtest.h>

#include "platform/Error.h"
#include "platform/zvset/ZvSettings.h"
#include "platform/zvset/ZvSettingsManager.h"
#include "support/TempFolder.h"

namespace {

using zv::test::TempFolder;

/// The error that a text gives, place and reason in one line.
std::string Fault(const std::string& json) {
    CZvSettingsManager manager;
    try {
        manager.LoadText(json, "map.json");
    } catch (const zv::DataError& error) {
        EXPECT_EQ(error.GetError().file, "map.json");
        EXPECT_FALSE(error.GetError().reason.empty());
        return error.GetError().place + ": " + error.GetError().reason;
    }
    return "none";
}

int IntegerOf(CZvSettingsManager& manager, int layer, const std::string& key) {
    const CZvSettings* settings = manager.GetLayerSettings(static_cast<E_Layer>(layer));
    int value = -1;
    return settings && settings->GetInteger(key, value) ? value : -1;
}

} // namespace

TEST(ZvSettingsManager, HasNoSettingsForALayerAtFirst) {
    CZvSettingsManager manager;
    EXPECT_EQ(manager.GetLayerSettings(E_LAYER_WELLS), nullptr);
    CZvSettings& made = manager.MakeLayerSettings(E_LAYER_WELLS);
    EXPECT_EQ(manager.GetLayerSettings(E_LAYER_WELLS), &made);
    EXPECT_EQ(&manager.MakeLayerSettings(E_LAYER_WELLS), &made);
}

TEST(ZvSettingsManager, ClearForgetsEverything) {
    CZvSettingsManager manager;
    manager.MakeLayerSettings(E_LAYER_WELLS);
    manager.GetGlobalSettings().SetInteger("MEMORY_MANAGEMENT", 1);
    manager.Clear();
    EXPECT_EQ(manager.GetLayerSettings(E_LAYER_WELLS), nullptr);
    int value = 0;
    EXPECT_FALSE(manager.GetGlobalSettings().GetInteger("MEMORY_MANAGEMENT", value));
}

TEST(ZvSettingsManager, ReadsGlobalAndLayers) {
    CZvSettingsManager manager;
    manager.LoadText(R"({"global": {"MEMORY_MANAGEMENT": true},
                         "layers": {"25": {"Post#1": {"USET#1": {"COLOR": 7}}}, "-1": {}}})",
                     "map.json");
    bool managed = false;
    EXPECT_TRUE(manager.GetGlobalSettings().GetBoolean("MEMORY_MANAGEMENT", managed));
    EXPECT_TRUE(managed);
    EXPECT_EQ(IntegerOf(manager, 25, "Post#1\\USET#1\\COLOR"), 7);
    EXPECT_NE(manager.GetLayerSettings(E_LAYER_UNSET), nullptr) << "an empty layer is one";
    EXPECT_EQ(manager.GetLayerSettings(E_LAYER_CUSTOM), nullptr);
}

TEST(ZvSettingsManager, ReadsJoinedKeysAsNestedOnes) {
    CZvSettingsManager manager;
    manager.LoadText(R"({"layers": {"25": {"Post#1\\USET#1\\COLOR": 7, "Post#1": {"B": 8}}}})", "");
    EXPECT_EQ(IntegerOf(manager, 25, "Post#1\\USET#1\\COLOR"), 7);
    EXPECT_EQ(IntegerOf(manager, 25, "Post#1\\B"), 8);
}

TEST(ZvSettingsManager, TellsPlaceAndReasonOfWhatItCannotRead) {
    EXPECT_TRUE(Fault("").starts_with("line 1, column 1: ")) << Fault("");
    EXPECT_TRUE(Fault("{\n  \"global\": {x}}").starts_with("line 2, column 14: "))
        << Fault("{\n  \"global\": {x}}");
    EXPECT_TRUE(Fault("{} {}").starts_with("line 1, column 4: ")) << Fault("{} {}");
    EXPECT_EQ(Fault("[]"), ": must be an object");
    EXPECT_EQ(Fault("7"), ": must be an object");
    EXPECT_EQ(Fault(R"({"map": {}})"), "/map: neither \"global\" nor \"layers\"");
    EXPECT_EQ(Fault(R"({"global": 7})"), "/global: not an object");
    EXPECT_EQ(Fault(R"({"layers": "all"})"), "/layers: not an object");
    EXPECT_EQ(Fault(R"({"layers": {"wells": {}}})"), "/layers/wells: not the number of a layer");
    EXPECT_EQ(Fault(R"({"layers": {"25x": {}}})"), "/layers/25x: not the number of a layer");
    EXPECT_EQ(Fault(R"({"layers": {"9999999999": {}}})"),
              "/layers/9999999999: not the number of a layer");
    EXPECT_EQ(Fault(R"({"layers": {"25": true}})"), "/layers/25: not an object");
    EXPECT_EQ(Fault(R"({"layers": {"25": {}, "025": {}}})"), "/layers/25: given twice");
}

TEST(ZvSettingsManager, RefusesValuesThatAreNoSettings) {
    const std::string reason = ": must be a text, a number, true or false";
    EXPECT_EQ(Fault(R"({"global": {"a/b": null}})"), "/global/a~1b" + reason);
    EXPECT_EQ(Fault(R"({"global": {"a": {"b": [1]}}})"), "/global/a/b" + reason);
    EXPECT_NE(Fault(R"({"global": {"a": 1e999}})"), "none");
    EXPECT_NE(Fault("{\"global\": {\"a\": \"\xFF\"}}"), "none");
}

TEST(ZvSettingsManager, RefusesAKeyGivenTwice) {
    EXPECT_TRUE(Fault(R"({"global": {"a": 1, "a": 2}})").starts_with("/global/a: "));
    EXPECT_EQ(Fault(R"({"global": {"a": 1, "a\\b": 2}})"), "/global/a\\b: stands twice");
    EXPECT_EQ(Fault(R"({"global": {"a": {"b": 1}, "a\\b": 2}})"), "/global/a\\b: stands twice");
    EXPECT_EQ(Fault(R"({"global": {"a": {"b": 1}, "a\\b": {}}})"), "/global/a\\b: stands twice");
}

TEST(ZvSettingsManager, RefusesTooManyLevels) {
    std::string deep;
    for (int i = 0; i < 100'000; ++i) {
        deep += "{\"global\": ";
    }
    EXPECT_NE(Fault(deep + "1" + std::string(100'000, '}')), "none");
    EXPECT_NE(Fault("{\"global\": {\"" + std::string(40, '\\') + "\": 1}}"), "none");
}

TEST(ZvSettingsManager, ReadsBackTheDeepestKeyThatItTakes) {
    CZvSettingsManager manager;
    const std::string deepest(13, '\\');
    manager.MakeLayerSettings(E_LAYER_WELLS).SetInteger(deepest, 5);
    CZvSettingsManager again;
    again.LoadText(manager.SaveText(), "again");
    EXPECT_EQ(IntegerOf(again, 25, deepest), 5);
}

TEST(ZvSettingsManager, KeepsWhatItHadWhenAFileCannotBeRead) {
    CZvSettingsManager manager;
    manager.MakeLayerSettings(E_LAYER_WELLS).SetInteger("COLOR", 3);
    EXPECT_THROW(manager.LoadText(R"({"layers": {"25": {"COLOR": 4}}, "map": 1})", "bad"),
                 zv::DataError);
    EXPECT_EQ(IntegerOf(manager, 25, "COLOR"), 3);
}

TEST(ZvSettingsManager, LoadReplacesEverything) {
    CZvSettingsManager manager;
    manager.MakeLayerSettings(E_LAYER_WELLS);
    manager.LoadText(R"({"layers": {"2": {"COLOR": 4}}})", "map.json");
    EXPECT_EQ(manager.GetLayerSettings(E_LAYER_WELLS), nullptr);
    EXPECT_EQ(IntegerOf(manager, 2, "COLOR"), 4);
}

TEST(ZvSettingsManager, SavesWhatItReadsBack) {
    const TempFolder folder;
    CZvSettingsManager manager;
    CZvSettings& wells = manager.MakeLayerSettings(E_LAYER_WELLS);
    wells.SetDouble("Post#1\\XOFFSET", 0.1);
    wells.SetDouble("whole", 2.0);
    wells.SetString("Post#1\\USET#1\\QUAL_NAME", "45\xB0 \"North\" \\ 1");
    manager.GetGlobalSettings().SetBoolean("ON_OFF", false);
    manager.Save(folder / "settings.json");

    CZvSettingsManager again;
    again.Load(folder / "settings.json");
    double offset = 0.0;
    std::string name;
    bool on = true;
    EXPECT_TRUE(again.GetLayerSettings(E_LAYER_WELLS)->GetDouble("Post#1\\XOFFSET", offset));
    EXPECT_TRUE(
        again.GetLayerSettings(E_LAYER_WELLS)->GetString("Post#1\\USET#1\\QUAL_NAME", name));
    EXPECT_TRUE(again.GetGlobalSettings().GetBoolean("ON_OFF", on));
    EXPECT_EQ(offset, 0.1);
    EXPECT_EQ(name, "45\xB0 \"North\" \\ 1");
    EXPECT_FALSE(on);
    EXPECT_EQ(again.SaveText(), manager.SaveText());
}

TEST(ZvSettingsManager, WritesOneKeyOnALine) {
    CZvSettingsManager manager;
    manager.MakeLayerSettings(E_LAYER_WELLS).SetInteger("COLOR", 3);
    EXPECT_EQ(manager.SaveText(), R"({
  "global": {},
  "layers": {
    "25": {
      "COLOR": 3
    }
  }
}
)");
}

TEST(ZvSettingsManager, TakesAMissingFileAsAnEmptyStore) {
    const TempFolder folder;
    CZvSettingsManager manager;
    manager.MakeLayerSettings(E_LAYER_WELLS);
    manager.Load(folder / "none.json");
    EXPECT_EQ(manager.GetLayerSettings(E_LAYER_WELLS), nullptr);
}

TEST(ZvSettingsManager, RefusesAFolderAsFile) {
    const TempFolder folder;
    CZvSettingsManager manager;
    manager.MakeLayerSettings(E_LAYER_WELLS);
    EXPECT_THROW(manager.Load(folder.Path()), zv::DataError);
    EXPECT_THROW(manager.Save(folder.Path()), zv::DataError);
    EXPECT_NE(manager.GetLayerSettings(E_LAYER_WELLS), nullptr);
}
