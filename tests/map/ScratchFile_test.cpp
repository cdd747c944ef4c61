#include "map/ScratchFile.h"

#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <sys/resource.h>
#include <vector>

#include "support/TempFolder.h"

namespace {

namespace fs = std::filesystem;
using zv::ScratchFile;
using zv::test::ReadText;
using zv::test::TempFolder;

void Append(ScratchFile& file, const std::string& bytes) {
    file.Pending().Put(bytes.data(), bytes.size());
}

std::string Read(ScratchFile& file, std::uint64_t offset, std::size_t size) {
    std::string bytes(size, '?');
    bytes.resize(file.ReadAt(offset, bytes.data(), size));
    return bytes;
}

/// Lowers a limit of the process for the time of a scope.
class Limit {
  public:
    Limit(int resource, rlim_t value) : m_resource(resource) {
        getrlimit(resource_(), &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = value;
        setrlimit(resource_(), &limit);
    }
    ~Limit() { setrlimit(resource_(), &m_before); }

  private:
    __rlimit_resource resource_() const { return static_cast<__rlimit_resource>(m_resource); }
    int m_resource;
    rlimit m_before{};
};

TEST(ScratchFile, TheFirstOpeningForWritingTruncatesALeftover) {
    const TempFolder folder;
    zv::test::WriteText(folder / "list", "leftover");
    ScratchFile file;
    file.SetName(folder / "list");
    ASSERT_TRUE(file.OpenForWrite());
    EXPECT_EQ(fs::file_size(folder / "list"), 0u);
    EXPECT_EQ(file.Size(), 0u);
}

TEST(ScratchFile, LaterOpeningsGoOnAtTheEnd) {
    const TempFolder folder;
    ScratchFile file;
    file.SetName(folder / "list");
    ASSERT_TRUE(file.OpenForWrite());
    Append(file, "one");
    ASSERT_TRUE(file.Close());
    ASSERT_TRUE(file.OpenForWrite());
    EXPECT_EQ(file.Size(), 3u);
    Append(file, "two");
    ASSERT_TRUE(file.Close());
    EXPECT_EQ(ReadText(folder / "list"), "onetwo");
}

TEST(ScratchFile, TheFirstRecordIsWrittenAtOnceAndLaterOnesInLargePieces) {
    const TempFolder folder;
    ScratchFile file;
    file.SetName(folder / "list");
    ASSERT_TRUE(file.OpenForWrite());
    Append(file, "0123456789");
    ASSERT_TRUE(file.Commit());
    EXPECT_EQ(file.Written(), 10u);
    Append(file, "012345678");
    ASSERT_TRUE(file.Commit());
    EXPECT_EQ(file.Written(), 10u) << "less than the file holds";
    EXPECT_EQ(file.Size(), 19u);
    Append(file, "9");
    ASSERT_TRUE(file.Commit());
    EXPECT_EQ(file.Written(), 20u) << "the file has doubled";
}

TEST(ScratchFile, NeverHoldsBackMoreThan256KiB) {
    const TempFolder folder;
    ScratchFile file;
    file.SetName(folder / "list");
    ASSERT_TRUE(file.OpenForWrite());
    const std::string record(1000, 'r');
    for (int i = 0; i < 5000; ++i) {
        Append(file, record);
        ASSERT_TRUE(file.Commit());
        ASSERT_LT(file.Size() - file.Written(), 256u * 1024);
    }
    ASSERT_TRUE(file.Flush());
    EXPECT_EQ(fs::file_size(folder / "list"), 5'000'000u);
}

TEST(ScratchFile, OverwritesInPlaceAndReadsPieces) {
    const TempFolder folder;
    ScratchFile file;
    file.SetName(folder / "list");
    ASSERT_TRUE(file.OpenForWrite());
    Append(file, "abcdefgh");
    ASSERT_TRUE(file.Flush());
    ASSERT_TRUE(file.Overwrite(2, std::string("XY")));
    EXPECT_EQ(Read(file, 1, 4), "bXYe");
    EXPECT_EQ(Read(file, 6, 100), "gh");
    EXPECT_EQ(Read(file, 100, 10), "");
}

TEST(ScratchFile, ReadingNeedsAFile) {
    const TempFolder folder;
    ScratchFile file;
    file.SetName(folder / "none");
    EXPECT_FALSE(file.OpenForRead());
    EXPECT_FALSE(fs::exists(folder / "none"));
}

TEST(ScratchFile, CannotBeWrittenInAFolderThatIsNotThere) {
    const TempFolder folder;
    ScratchFile file;
    file.SetName(folder / "no/where");
    EXPECT_FALSE(file.OpenForWrite());
}

TEST(ScratchFile, ForgetsAFileThatWasDeletedBehindItsBack) {
    const TempFolder folder;
    ScratchFile file;
    file.SetName(folder / "list");
    ASSERT_TRUE(file.OpenForWrite());
    EXPECT_TRUE(file.IsOpen());
    fs::remove(folder / "list");
    EXPECT_FALSE(file.IsOpen());
    EXPECT_FALSE(file.OpenForRead());
}

TEST(ScratchFile, KeepsItsFileOnDisk) {
    const TempFolder folder;
    {
        ScratchFile file;
        file.SetName(folder / "list");
        ASSERT_TRUE(file.OpenForWrite());
        Append(file, "kept");
    }
    EXPECT_EQ(ReadText(folder / "list"), "kept");
}

TEST(ScratchFile, AFullDeviceShowsAtTheFirstRecord) {
    const TempFolder folder;
    fs::create_symlink("/dev/full", folder / "list");
    ScratchFile file;
    file.SetName(folder / "list");
    ASSERT_TRUE(file.OpenForWrite());
    Append(file, "record");
    EXPECT_FALSE(file.Commit());
    EXPECT_EQ(file.Size(), 0u) << "what was pending is dropped";
}

TEST(ScratchFile, AFullDeviceShowsWhenTheRestIsFlushed) {
    const TempFolder folder;
    fs::create_symlink("/dev/full", folder / "list");
    ScratchFile file;
    file.SetName(folder / "list");
    ASSERT_TRUE(file.OpenForWrite());
    Append(file, "record");
    EXPECT_FALSE(file.Close());
}

TEST(ScratchFile, AShortWriteIsAFailureAndTheNextOneGoesOverIt) {
    const TempFolder folder;
    ScratchFile file;
    file.SetName(folder / "list");
    ASSERT_TRUE(file.OpenForWrite());
    Append(file, "first ");
    ASSERT_TRUE(file.Flush());
    {
        std::signal(SIGXFSZ, SIG_IGN);
        const Limit limit(RLIMIT_FSIZE, 10);
        Append(file, "too long a record");
        EXPECT_FALSE(file.Flush());
    }
    EXPECT_EQ(file.Size(), 6u);
    Append(file, "second");
    ASSERT_TRUE(file.Flush());
    EXPECT_EQ(Read(file, 0, 12), "first second");
}

TEST(ScratchFile, AThousandFilesWorkWhereOnly64MayBeOpen) {
    const TempFolder folder;
    const Limit limit(RLIMIT_NOFILE, 64);
    std::vector<std::unique_ptr<ScratchFile>> files;
    for (int i = 0; i < 1000; ++i) {
        files.push_back(std::make_unique<ScratchFile>());
        files.back()->SetName(folder / ("list" + std::to_string(i)));
    }
    for (int round = 0; round < 3; ++round)
        for (auto& file : files) {
            ASSERT_TRUE(file->OpenForWrite());
            Append(*file, "round " + std::to_string(round) + ";");
            ASSERT_TRUE(file->Commit());
        }
    for (auto& file : files) {
        ASSERT_TRUE(file->Flush());
        ASSERT_EQ(Read(*file, 0, 100), "round 0;round 1;round 2;");
    }
}

TEST(ScratchFile, GivesWayWhenTheHostHasUsedUpTheHandles) {
    const TempFolder folder;
    ScratchFile first, second;
    first.SetName(folder / "first");
    second.SetName(folder / "second");
    ASSERT_TRUE(first.OpenForWrite());
    Append(first, "pending");

    const Limit limit(RLIMIT_NOFILE, 64);
    std::vector<std::FILE*> hosts;
    while (std::FILE* const file = std::fopen("/dev/null", "r"))
        hosts.push_back(file);
    const bool opened = second.OpenForWrite();
    for (std::FILE* const file : hosts)
        std::fclose(file);
    EXPECT_TRUE(opened);
    EXPECT_EQ(ReadText(folder / "first"), "pending") << "written before its handle was given away";
}

TEST(ScratchFile, AReadingBeforeTheFirstWriteDoesNotKeepALeftover) {
    zv::test::TempFolder folder;
    zv::test::WriteText(folder.Path() / "list", "leftover");
    zv::ScratchFile file;
    file.SetName(folder / "list");
    EXPECT_TRUE(file.OpenForRead());
    EXPECT_TRUE(file.OpenForWrite());
    char byte = 0;
    EXPECT_EQ(file.ReadAt(0, &byte, 1), 0u);
}

} // namespace
