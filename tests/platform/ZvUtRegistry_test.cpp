#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/zvcom/ZvUtRegistry.h"
#include "support/LogLines.h"
#include "support/TempFolder.h"

namespace {

using zv::test::LogLines;
using zv::test::ScopedEnvironment;
using zv::test::TempFolder;

std::string Home() {
    return CZvUtRegistry::GetRegistry(CZvUtRegistry::S_GetHomePath(), CZvUtRegistry::S_GetHomeKey(),
                                      true);
}

std::string Work(bool create = false) {
    return CZvUtRegistry::GetRegistry(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                                      create);
}

void OverrideWork(const std::string& value) {
    CZvUtRegistry::S_Override(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(), value);
}

/// A user without any of the variables that name a root, and with a configuration of its own.
class ZvUtRegistry : public testing::Test {
  protected:
    void WriteRegistry(const std::string& json) {
        zv::test::WriteText(m_folder / "registry.json", json);
    }

    TempFolder m_folder;
    ScopedEnvironment m_home{"ZVDISP_HOME", nullptr};
    ScopedEnvironment m_work{"ZVDISP_WORK", nullptr};
    ScopedEnvironment m_data{"XDG_DATA_HOME", nullptr};
    ScopedEnvironment m_share{"ZVDISP_SHARE", "/somewhere/share"};
    ScopedEnvironment m_config{"ZVDISP_CONFIG", m_folder.Path().c_str()};
};

} // namespace

TEST_F(ZvUtRegistry, HomeIsTheShareFolderByDefault) {
    EXPECT_EQ(Home(), "/somewhere/share");
}

TEST_F(ZvUtRegistry, WorkIsInTheUsersDataFolderByDefault) {
    const ScopedEnvironment home("HOME", "/somewhere/me");
    EXPECT_EQ(Work(), "/somewhere/me/.local/share/zvdisp");
    const ScopedEnvironment data("XDG_DATA_HOME", "/somewhere/data");
    EXPECT_EQ(Work(), "/somewhere/data/zvdisp");
}

TEST_F(ZvUtRegistry, ARelativeDataFolderCountsAsNone) {
    const ScopedEnvironment home("HOME", "/somewhere/me");
    const ScopedEnvironment data("XDG_DATA_HOME", "data");
    EXPECT_EQ(Work(), "/somewhere/me/.local/share/zvdisp");
}

TEST_F(ZvUtRegistry, TheUsersFileGoesBeforeTheDefault) {
    WriteRegistry(R"({"Software\\ZvDisp\\User": {"Work": "/maps/\u00e4"},
                      "Software": {"ZvDisp": {"Install": {"Home": "/opt/maps"}}}})");
    EXPECT_EQ(Work(), "/maps/\xC3\xA4");
    EXPECT_EQ(Home(), "/opt/maps");
}

TEST_F(ZvUtRegistry, TheEnvironmentGoesBeforeTheUsersFile) {
    WriteRegistry(R"({"Software\\ZvDisp\\User": {"Work": "/maps"}})");
    const ScopedEnvironment work("ZVDISP_WORK", "/from/environment");
    const ScopedEnvironment home("ZVDISP_HOME", "/home/environment");
    EXPECT_EQ(Work(), "/from/environment");
    EXPECT_EQ(Home(), "/home/environment");
}

TEST_F(ZvUtRegistry, AnOverrideGoesBeforeEverythingUntilItIsTakenBack) {
    const ScopedEnvironment work("ZVDISP_WORK", "/from/environment");
    OverrideWork("/overridden");
    EXPECT_EQ(Work(), "/overridden");
    OverrideWork("");
    EXPECT_EQ(Work(), "/from/environment");
}

TEST_F(ZvUtRegistry, EveryOverrideMakesAGeneration) {
    const unsigned before = CZvUtRegistry::S_GetGeneration();
    OverrideWork("/overridden");
    EXPECT_EQ(CZvUtRegistry::S_GetGeneration(), before + 1);
    OverrideWork("");
    EXPECT_EQ(CZvUtRegistry::S_GetGeneration(), before + 2);
}

TEST_F(ZvUtRegistry, ABrokenFileIsToldAndCountsAsEmpty) {
    WriteRegistry("{\"Software");
    const LogLines log;
    EXPECT_EQ(Home(), "/somewhere/share");
    EXPECT_EQ(Home(), "/somewhere/share");
    ASSERT_EQ(log.Get().size(), 1u);
    EXPECT_TRUE(log.Holds((m_folder / "registry.json") + ": line 1, column"));
    EXPECT_EQ(log.Get()[0].level, 101);
}

TEST_F(ZvUtRegistry, UnknownKeysHaveOnlyWhatTheFileOrAnOverrideGives) {
    WriteRegistry(R"({"Software": {"ZvDisp": {"Fonts": {"Face": "Sans", "Size": 7}}}})");
    EXPECT_EQ(CZvUtRegistry::GetRegistry("Software\\ZvDisp\\Fonts", "Face", true), "Sans");
    EXPECT_EQ(CZvUtRegistry::GetRegistry("Software\\ZvDisp\\Fonts", "Size", true), "");
    EXPECT_EQ(CZvUtRegistry::GetRegistry("Software\\ZvDisp", "Fonts", true), "");
    EXPECT_EQ(CZvUtRegistry::GetRegistry("a", "b", true), "");
    CZvUtRegistry::S_Override("a", "b", "c");
    EXPECT_EQ(CZvUtRegistry::GetRegistry("a", "b", true), "c");
    CZvUtRegistry::S_Override("a", "b", "");
}

TEST_F(ZvUtRegistry, MakesTheWorkFolderOnlyWhenAsked) {
    const std::string folder = m_folder / "deep/work";
    const ScopedEnvironment work("ZVDISP_WORK", folder.c_str());
    EXPECT_EQ(Work(false), folder);
    EXPECT_FALSE(std::filesystem::exists(folder));
    EXPECT_EQ(Work(true), folder);
    struct stat made;
    ASSERT_EQ(stat(folder.c_str(), &made), 0);
    EXPECT_EQ(made.st_mode & 0777, 0700u);
}
