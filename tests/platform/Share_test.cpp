#include "platform/Share.h"

#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <optional>

namespace {

namespace fs = std::filesystem;

/// Sets or unsets a variable of the environment and puts it back.
class ScopedVariable {
  public:
    ScopedVariable(const char* name, std::optional<std::string> value) : m_name(name) {
        if (const char* old = std::getenv(name)) m_old = old;
        Put(value);
    }
    ~ScopedVariable() { Put(m_old); }

  private:
    void Put(const std::optional<std::string>& value) const {
        if (value)
            setenv(m_name, value->c_str(), 1);
        else
            unsetenv(m_name);
    }
    const char* m_name;
    std::optional<std::string> m_old;
};

/// A folder of this test's own, gone afterwards.
class ShareTest : public testing::Test {
  protected:
    ShareTest() {
        std::string name = (fs::temp_directory_path() / "zvshareXXXXXX").string();
        m_folder = mkdtemp(name.data());
        fs::create_directories(m_folder / "shared");
        fs::create_directories(m_folder / "own");
    }
    ~ShareTest() override { fs::remove_all(m_folder); }

    static void Write(const fs::path& path, std::string_view text) {
        std::ofstream(path, std::ios::binary) << text;
    }

    fs::path m_folder;
};

zv::Error ErrorOfReading(const fs::path& path) {
    try {
        zv::ReadWholeFile(path);
    } catch (const zv::DataError& error) {
        return error.GetError();
    }
    return {};
}

TEST(Error, TextJoinsFilePlaceAndReason) {
    EXPECT_EQ((zv::Error{"a.json", "/layers/3", "is empty"}.Text()), "a.json: /layers/3: is empty");
    EXPECT_EQ((zv::Error{"a.json", "", "is empty"}.Text()), "a.json: is empty");
    EXPECT_EQ((zv::Error{"", "", "is empty"}.Text()), "is empty");
}

TEST(Error, DataErrorSaysItsText) {
    const zv::DataError error("a.json", "/b", "is empty");
    EXPECT_STREQ(error.what(), "a.json: /b: is empty");
    EXPECT_EQ(error.GetError().place, "/b");
}

TEST_F(ShareTest, TheEnvironmentNamesTheShareFolder) {
    const ScopedVariable share("ZVDISP_SHARE", (m_folder / "shared").string());
    EXPECT_EQ(zv::ShareFolder(), m_folder / "shared");
}

TEST_F(ShareTest, WithoutTheEnvironmentTheShareFolderHoldsTheCatalogue) {
    const ScopedVariable share("ZVDISP_SHARE", std::nullopt);
    EXPECT_TRUE(fs::exists(zv::ShareFolder() / "layers.json")) << zv::ShareFolder();
}

TEST_F(ShareTest, AnEmptyVariableCountsAsUnset) {
    const ScopedVariable share("ZVDISP_SHARE", "");
    EXPECT_FALSE(zv::ShareFolder().empty());
}

TEST_F(ShareTest, TheConfigFolderIsTheFirstThatTheEnvironmentNames) {
    const ScopedVariable home("HOME", "/home/jo");
    {
        const ScopedVariable xdg("XDG_CONFIG_HOME", "/etc/jo");
        {
            const ScopedVariable own("ZVDISP_CONFIG", "/srv/zv");
            EXPECT_EQ(zv::UserConfigFolder(), "/srv/zv");
        }
        const ScopedVariable none("ZVDISP_CONFIG", std::nullopt);
        EXPECT_EQ(zv::UserConfigFolder(), "/etc/jo/zvdisp");
    }
    const ScopedVariable none("ZVDISP_CONFIG", std::nullopt);
    const ScopedVariable relative("XDG_CONFIG_HOME", "not/absolute");
    EXPECT_EQ(zv::UserConfigFolder(), "/home/jo/.config/zvdisp");
}

TEST_F(ShareTest, WithoutAnyVariableThereIsNoConfigFolder) {
    const ScopedVariable own("ZVDISP_CONFIG", std::nullopt);
    const ScopedVariable xdg("XDG_CONFIG_HOME", std::nullopt);
    const ScopedVariable home("HOME", std::nullopt);
    EXPECT_TRUE(zv::UserConfigFolder().empty());
    EXPECT_EQ(zv::FindDataFile("layers.json"), zv::ShareFolder() / "layers.json");
}

TEST_F(ShareTest, TheUsersFileStandsBeforeTheSharedOne) {
    const ScopedVariable share("ZVDISP_SHARE", (m_folder / "shared").string());
    const ScopedVariable own("ZVDISP_CONFIG", (m_folder / "own").string());
    Write(m_folder / "shared" / "a.json", "shared");
    EXPECT_EQ(zv::FindDataFile("a.json"), m_folder / "shared" / "a.json");
    Write(m_folder / "own" / "a.json", "own");
    EXPECT_EQ(zv::FindDataFile("a.json"), m_folder / "own" / "a.json");
    EXPECT_EQ(zv::FindDataFile("absent.json"), m_folder / "shared" / "absent.json");
}

TEST_F(ShareTest, AFolderOfTheFilesNameDoesNotStandBeforeTheSharedFile) {
    const ScopedVariable share("ZVDISP_SHARE", (m_folder / "shared").string());
    const ScopedVariable own("ZVDISP_CONFIG", (m_folder / "own").string());
    fs::create_directory(m_folder / "own" / "a.json");
    EXPECT_EQ(zv::FindDataFile("a.json"), m_folder / "shared" / "a.json");
}

TEST_F(ShareTest, AWholeFileIsReadByteForByte) {
    std::string content("\r\n\0\x1A\xFF", 5);
    content.append(100000, 'x');
    Write(m_folder / "bytes", content);
    EXPECT_EQ(zv::ReadWholeFile(m_folder / "bytes"), content);
    Write(m_folder / "empty", "");
    EXPECT_EQ(zv::ReadWholeFile(m_folder / "empty"), "");
}

TEST_F(ShareTest, AMissingFileIsNamedWithTheReason) {
    const zv::Error error = ErrorOfReading(m_folder / "absent");
    EXPECT_EQ(error.file, (m_folder / "absent").string());
    EXPECT_EQ(error.place, "");
    EXPECT_EQ(error.reason, "No such file or directory");
}

TEST_F(ShareTest, AFolderIsNotReadAsAFile) {
    EXPECT_EQ(ErrorOfReading(m_folder).reason, "not a regular file");
}

TEST_F(ShareTest, APathThroughAFileIsNamedWithTheReason) {
    Write(m_folder / "file", "");
    const zv::Error error = ErrorOfReading(m_folder / "file" / "below");
    EXPECT_EQ(error.file, (m_folder / "file" / "below").string());
    EXPECT_FALSE(error.reason.empty());
}

} // namespace
