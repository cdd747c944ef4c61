#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/Error.h"
#include "platform/win/Files.h"
#include "platform/zvcom/ZvUtRegistry.h"
#include "support/TempFolder.h"

namespace {

namespace fs = std::filesystem;
using zv::test::ReadText;
using zv::test::TempFolder;
using zv::test::WriteText;

/// The temporary folder as the engine spells it.
std::string Engine(const TempFolder& folder, const std::string& below) {
    return folder.Path().string() + "\\" + below;
}

unsigned Mode(const fs::path& path) {
    struct stat found;
    return stat(path.c_str(), &found) == 0 ? found.st_mode & 07777 : 0;
}

/// The work folder of the registry for the scope.
class WorkFolder {
  public:
    explicit WorkFolder(const std::string& path) { Set(path); }
    ~WorkFolder() { Set(""); }

  private:
    static void Set(const std::string& path) {
        CZvUtRegistry::S_Override(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                                  path);
    }
};

/// No file may grow beyond this size in the scope, as on a full disk.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limited{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

  private:
    rlimit m_before;
    void (*m_handler)(int);
};

/// Takes the superuser's rights away for the scope.
class PlainUser {
  public:
    PlainUser() : m_wasRoot(geteuid() == 0 && seteuid(65534) == 0) {}
    ~PlainUser() {
        if (m_wasRoot) {
            EXPECT_EQ(seteuid(0), 0);
        }
    }

  private:
    bool m_wasRoot;
};

/// The reason why a file cannot be written; it must name the file as it was given.
std::string WriteFault(const std::string& path, std::string_view content) {
    try {
        zv::WriteFileAtomically(path, content);
    } catch (const zv::DataError& error) {
        EXPECT_EQ(error.GetError().file, path);
        return error.GetError().reason;
    }
    return "none";
}

} // namespace

TEST(NativePath, TurnsBackslashes) {
    EXPECT_EQ(zv::NativePath("a\\b\\c.dat"), fs::path("a/b/c.dat"));
    EXPECT_EQ(zv::NativePath("/root\\none\\x"), fs::path("/root/none/x"));
    EXPECT_EQ(zv::NativePath(""), fs::path());
    EXPECT_EQ(zv::NativePath("plain"), fs::path("plain"));
}

TEST(NativePath, PutsADriveUnderTheWorkFolder) {
    const TempFolder folder;
    const WorkFolder work(folder.Path());
    EXPECT_EQ(zv::NativePath("C:\\MAPS\\gulf.dat").string(), folder / "drive_c/MAPS/gulf.dat");
    EXPECT_EQ(zv::NativePath("d:\\x").string(), folder / "drive_d/x");
    EXPECT_EQ(zv::NativePath("1:\\x"), fs::path("1:/x"));
}

TEST(NativePath, TakesWhatExistsAsItIsSpelled) {
    const TempFolder folder;
    WriteText(folder / "Master.sym", "");
    WriteText(folder / "master.sym", "");
    EXPECT_EQ(zv::NativePath(Engine(folder, "master.sym")).string(), folder / "master.sym");
    EXPECT_EQ(zv::NativePath(Engine(folder, "Master.sym")).string(), folder / "Master.sym");
}

TEST(NativePath, FindsPiecesThatDifferInCase) {
    const TempFolder folder;
    fs::create_directories(folder / "Template/onshore");
    WriteText(folder / "Template/onshore/Wells.JIE", "");
    EXPECT_EQ(zv::NativePath(Engine(folder, "template\\ONSHORE\\wells.jie")).string(),
              folder / "Template/onshore/Wells.JIE");
}

TEST(NativePath, TakesTheFirstOfSeveralThatDifferInCase) {
    const TempFolder folder;
    WriteText(folder / "aB", "");
    WriteText(folder / "Ab", "");
    EXPECT_EQ(zv::NativePath(Engine(folder, "ab")).string(), folder / "Ab");
}

TEST(NativePath, KeepsThePiecesThatDoNotExist) {
    const TempFolder folder;
    fs::create_directories(folder / "Template");
    EXPECT_EQ(zv::NativePath(Engine(folder, "TEMPLATE\\New\\File.Dat")).string(),
              folder / "Template/New/File.Dat");
    EXPECT_EQ(zv::NativePath(Engine(folder, "template\\")).string(), folder / "Template/");
}

TEST(NativePath, FindsPiecesOfARelativePath) {
    const TempFolder folder;
    const fs::path before = fs::current_path();
    fs::current_path(folder.Path());
    WriteText("Here.dat", "");
    EXPECT_EQ(zv::NativePath("HERE.DAT"), fs::path("Here.dat"));
    EXPECT_EQ(zv::NativePath(".\\HERE.DAT"), fs::path("./Here.dat"));
    fs::current_path(before);
}

TEST(OpenFile, OpensThroughTheNativePath) {
    const TempFolder folder;
    WriteText(folder / "Data.TXT", "a\r\nb");
    std::FILE* file = zv::OpenFile(Engine(folder, "data.txt"), "r");
    ASSERT_NE(file, nullptr);
    char text[16] = {};
    EXPECT_EQ(std::fread(text, 1, sizeof text, file), 4u);
    EXPECT_STREQ(text, "a\r\nb");
    std::fclose(file);
}

TEST(OpenFile, WritesOverAFileThatDiffersInCase) {
    const TempFolder folder;
    WriteText(folder / "Data.TXT", "old");
    std::FILE* file = zv::OpenFile(Engine(folder, "data.txt"), "wb");
    ASSERT_NE(file, nullptr);
    std::fclose(file);
    EXPECT_EQ(folder.CountEntries(), 1u);
    EXPECT_EQ(ReadText(folder / "Data.TXT"), "");
}

TEST(OpenFile, GivesNullWithTheReason) {
    const TempFolder folder;
    errno = 0;
    EXPECT_EQ(zv::OpenFile(Engine(folder, "none\\x"), "w"), nullptr);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(zv::OpenFile("", "r"), nullptr);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(zv::OpenFile(std::string_view("/dev/null\0x", 11), "r"), nullptr);
    EXPECT_EQ(errno, EINVAL);
}

TEST(MakeFolder, MakesWhatIsMissingForTheUserAlone) {
    const TempFolder folder;
    fs::create_directory(folder / "Old");
    const unsigned before = Mode(folder / "Old");
    EXPECT_TRUE(zv::MakeFolder(Engine(folder, "old\\a\\b")));
    EXPECT_EQ(Mode(folder / "Old"), before);
    EXPECT_EQ(Mode(folder / "Old/a"), 0700u);
    EXPECT_EQ(Mode(folder / "Old/a/b"), 0700u);
}

TEST(MakeFolder, IsContentWithAFolderThatExists) {
    const TempFolder folder;
    EXPECT_TRUE(zv::MakeFolder(folder.Path().string()));
    EXPECT_TRUE(zv::MakeFolder(Engine(folder, "")));
    EXPECT_TRUE(zv::MakeFolder(Engine(folder, "x\\")));
    EXPECT_TRUE(fs::is_directory(folder / "x"));
}

TEST(MakeFolder, TellsWhenAFileIsInTheWay) {
    const TempFolder folder;
    WriteText(folder / "file", "");
    EXPECT_FALSE(zv::MakeFolder(Engine(folder, "file")));
    EXPECT_FALSE(zv::MakeFolder(Engine(folder, "file\\below")));
    EXPECT_FALSE(zv::MakeFolder(""));
}

TEST(WriteFileAtomically, MakesAFile) {
    const TempFolder folder;
    const std::string content("a\0b\r\n", 5);
    zv::WriteFileAtomically(Engine(folder, "new.dat"), content);
    EXPECT_EQ(ReadText(folder / "new.dat"), content);
    EXPECT_EQ(folder.CountEntries(), 1u);
}

TEST(WriteFileAtomically, GivesANewFileTheUsualRights) {
    const TempFolder folder;
    const mode_t before = umask(022);
    zv::WriteFileAtomically(folder / "new.dat", "x");
    umask(before);
    EXPECT_EQ(Mode(folder / "new.dat"), 0644u);
}

TEST(WriteFileAtomically, ReplacesAFileAndKeepsItsRights) {
    const TempFolder folder;
    WriteText(folder / "Old.dat", "a longer old text");
    fs::permissions(folder / "Old.dat", fs::perms(0640));
    zv::WriteFileAtomically(Engine(folder, "old.DAT"), "new");
    EXPECT_EQ(ReadText(folder / "Old.dat"), "new");
    EXPECT_EQ(Mode(folder / "Old.dat"), 0640u);
    EXPECT_EQ(folder.CountEntries(), 1u);
}

TEST(WriteFileAtomically, ReplacesTheFileBehindALink) {
    const TempFolder folder;
    WriteText(folder / "real", "old");
    fs::create_symlink("real", folder / "link");
    zv::WriteFileAtomically(folder / "link", "new");
    EXPECT_TRUE(fs::is_symlink(folder / "link"));
    EXPECT_EQ(ReadText(folder / "real"), "new");
}

TEST(WriteFileAtomically, TakesTheLongestNames) {
    const TempFolder folder;
    const std::string name(255, 'n');
    zv::WriteFileAtomically(folder / name, "x");
    EXPECT_EQ(ReadText(folder / name), "x");
}

TEST(WriteFileAtomically, LeavesTheOldFileWhenTheDiskIsFull) {
    const TempFolder folder;
    WriteText(folder / "old.dat", "old");
    std::string reason;
    {
        const FileSizeLimit limit(1000);
        reason = WriteFault(folder / "old.dat", std::string(5000, 'x'));
    }
    EXPECT_EQ(reason, "cannot write: File too large");
    EXPECT_EQ(ReadText(folder / "old.dat"), "old");
    EXPECT_EQ(folder.CountEntries(), 1u);
}

TEST(WriteFileAtomically, LeavesTheOldFileInAFolderWithoutRights) {
    const TempFolder folder;
    WriteText(folder / "old.dat", "old");
    fs::permissions(folder.Path(), fs::perms(0555));
    std::string reason;
    {
        const PlainUser user;
        reason = WriteFault(folder / "old.dat", "new");
    }
    fs::permissions(folder.Path(), fs::perms(0700));
    EXPECT_EQ(reason, "cannot write beside it: Permission denied");
    EXPECT_EQ(ReadText(folder / "old.dat"), "old");
    EXPECT_EQ(folder.CountEntries(), 1u);
}

TEST(WriteFileAtomically, TellsOfAMissingFolder) {
    const TempFolder folder;
    EXPECT_EQ(WriteFault(Engine(folder, "none\\x"), "x"),
              "cannot write beside it: No such file or directory");
}

TEST(WriteFileAtomically, RefusesAFolder) {
    const TempFolder folder;
    fs::create_directory(folder / "sub");
    EXPECT_EQ(WriteFault(folder / "sub", "x"), "cannot write: Is a directory");
    EXPECT_TRUE(fs::is_directory(folder / "sub"));
    EXPECT_EQ(folder.CountEntries(), 1u);
}

TEST(WriteFileAtomically, WritesADeviceInPlace) {
    zv::WriteFileAtomically("/dev/null", "x");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
    EXPECT_EQ(WriteFault("/dev/full", "x"), "cannot write: No space left on device");
    EXPECT_TRUE(fs::is_character_file("/dev/full"));
}
