#include <gtest/gtest.h>
#include <png.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "support/TempFolder.h"

namespace zv::host {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using test::ReadText;
using test::TempFolder;
using test::WriteText;

const std::string kProgram = ZVDISP_TEST_BINARY "/bin/zvdisp";
const std::string kGulf = ZVDISP_TEST_SOURCE "/samples/gulf/gulf.json";
const std::string kShelf = ZVDISP_TEST_SOURCE "/samples/shelf/shelf.json";
const std::string kRealData = ZVDISP_TEST_SOURCE "/../shared/data";

struct Outcome {
    int code = -1;
    std::string out, err;
};

/// A home folder of its own for the program, and what it prints.
class CliTest : public ::testing::Test {
  protected:
    Outcome Run(const std::string& arguments, const std::string& work = "") {
        const std::string command = "env ZVDISP_WORK='" + (work.empty() ? folder / "work" : work) +
                                    "' TMPDIR='" + folder.Path().string() + "' '" + kProgram +
                                    "' " + arguments + " 2>'" + (folder / "err") + "'";
        Outcome outcome;
        FILE* pipe = popen(command.c_str(), "r");
        std::array<char, 4096> block{};
        while (const std::size_t size = fread(block.data(), 1, block.size(), pipe))
            outcome.out.append(block.data(), size);
        outcome.code = WEXITSTATUS(pclose(pipe));
        outcome.err = ReadText(folder / "err");
        return outcome;
    }

    std::size_t ScratchFolders() const {
        std::size_t count = 0;
        for (const auto& entry : fs::directory_iterator(folder / "work"))
            count += entry.path().filename().string().starts_with("zvdisp-");
        return count;
    }

    TempFolder folder;
};

struct Image {
    int width = 0, height = 0;
    std::vector<std::uint8_t> rgb;
    std::array<int, 3> At(int x, int y) const {
        const std::size_t at = (std::size_t(y) * std::size_t(width) + std::size_t(x)) * 3;
        return {rgb[at], rgb[at + 1], rgb[at + 2]};
    }
    /// Share of pixels of exactly this colour.
    double Share(const std::array<int, 3>& colour) const {
        std::size_t count = 0;
        for (std::size_t i = 0; i + 2 < rgb.size(); i += 3)
            count += rgb[i] == colour[0] && rgb[i + 1] == colour[1] && rgb[i + 2] == colour[2];
        return double(count) / (double(width) * height);
    }
    std::size_t Colours() const {
        std::set<std::array<int, 3>> seen;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                seen.insert(At(x, y));
        return seen.size();
    }
};

Image ReadPng(const std::string& path) {
    Image image;
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_file(&png, path.c_str())) return image;
    png.format = PNG_FORMAT_RGB;
    image.width = int(png.width);
    image.height = int(png.height);
    image.rgb.resize(PNG_IMAGE_SIZE(png));
    png_image_finish_read(&png, nullptr, image.rgb.data(), 0, nullptr);
    return image;
}

constexpr std::array<int, 3> kSea{0xEE, 0xF7, 0xFB}, kLand{0xE8, 0xDD, 0xBB},
    kPaper{0xFF, 0xFD, 0xF2}, kBlack{0, 0, 0};

TEST_F(CliTest, RendersTheSampleMap) {
    const Outcome outcome = Run("render '" + kGulf + "' -o '" + (folder / "g.png") + "'");
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    EXPECT_EQ(outcome.out, (folder / "g.png") + ": 2400 x 1460 pixels, 734 items loaded\n");
    const Image image = ReadPng(folder / "g.png");
    ASSERT_EQ(image.width, 2400);
    ASSERT_EQ(image.height, 1460);
    EXPECT_GT(image.Share(kSea), 0.10);
    EXPECT_GT(image.Share(kLand), 0.08);
    EXPECT_GT(image.Share(kPaper), 0.15);
    EXPECT_GT(image.Colours(), 500u);
    EXPECT_EQ(ScratchFolders(), 0u);
}

TEST_F(CliTest, TheSameMapGivesTheSamePicture) {
    const std::string size = "' --size 600x365";
    ASSERT_EQ(Run("render '" + kGulf + "' -o '" + (folder / "a.png") + size).code, 0);
    ASSERT_EQ(Run("render '" + kGulf + "' -o '" + (folder / "b.png") + size).code, 0);
    EXPECT_EQ(ReadText(folder / "a.png"), ReadText(folder / "b.png"));
}

TEST_F(CliTest, DrawsOnlyTheLayersThatAreAskedFor) {
    ASSERT_EQ(
        Run("render '" + kGulf + "' --layer 6 25 -o '" + (folder / "l.png") + "' --size 600x365")
            .code,
        0);
    const Image image = ReadPng(folder / "l.png");
    EXPECT_GT(image.Share(kLand), 0.08);
    EXPECT_EQ(image.Share(kPaper), 0.0); // the page is furniture
}

TEST_F(CliTest, DrawsOnlyTheCultureThatIsAskedFor) {
    ASSERT_EQ(Run("render '" + kGulf + "' --layer 6 --culture 31 -o '" + (folder / "c.png") +
                  "' --size 600x365")
                  .code,
              0);
    const Image image = ReadPng(folder / "c.png");
    EXPECT_EQ(image.Share(kLand), 0.0);
    EXPECT_LT(image.Share(kSea), 1.0);
    EXPECT_GT(image.Share(kSea), 0.97);
}

TEST_F(CliTest, ANumberThatMatchesNothingOfTheMapIsRefusedWithWhatThereIs) {
    const std::pair<std::string, std::string> cases[] = {
        {"--layer 6 --layer 1", "zvdisp: --layer: there is no 1; the map has 2, 3, 4, 6, 10, 15, "
                                "16, 17, 18, 21, 25, 31, 66\n"},
        {"--post 2", "zvdisp: --post: there is no 2; the map has 1\n"},
        {"--uset 7", "zvdisp: --uset: there is no 7; the map has 1\n"},
        {"--layer 6 --culture 220", "zvdisp: --culture: there is no 220; the map has 30, 31\n"},
    };
    for (const auto& [option, error] : cases) {
        const Outcome outcome =
            Run("render '" + kGulf + "' " + option + " -o '" + (folder / "p.png") + "'");
        EXPECT_EQ(outcome.code, 1);
        EXPECT_EQ(outcome.err, error);
        EXPECT_FALSE(fs::exists(folder / "p.png"));
    }
    EXPECT_EQ(ScratchFolders(), 0u);
}

TEST_F(CliTest, BackgroundAndItsBrightnessComeFromTheCommandLine) {
    const std::string base =
        "render '" + kGulf + "' --layer 16 --size 64x64 -o '" + (folder / "b.png");
    ASSERT_EQ(Run(base + "' --background 0").code, 0);
    EXPECT_EQ(ReadPng(folder / "b.png").At(5, 5), kBlack);
    ASSERT_EQ(Run(base + "' --background 8 --background-brightness 5").code, 0);
    EXPECT_NEAR(ReadPng(folder / "b.png").At(5, 5)[0], 255 * 0.5, 1.0);
}

TEST_F(CliTest, BackgroundTakesTheNamesOfThePalette) {
    const std::string base =
        "render '" + kGulf + "' --layer 16 --size 64x64 -o '" + (folder / "n.png");
    ASSERT_EQ(Run(base + "' --background cream").code, 0);
    EXPECT_EQ(ReadPng(folder / "n.png").At(5, 5), kPaper);
    const Outcome outcome = Run(base + "' --background nosuch");
    EXPECT_EQ(outcome.code, 2);
    EXPECT_EQ(outcome.err, "zvdisp: --background: must be 0 to 255 or the name of a palette's "
                           "colour\n");
}

TEST_F(CliTest, FillBrightnessIsTheOpacityOfFills) {
    const std::string base = "render '" + kGulf +
                             "' --layer 3 --culture 12 --background 0 --size 400x300 " +
                             "--view 1889120,99200,1904960,115040 -o '" + (folder / "f.png");
    ASSERT_EQ(Run(base + "' --fill-brightness 0").code, 0);
    const auto full = ReadPng(folder / "f.png").At(200, 150);
    ASSERT_EQ(Run(base + "' --fill-brightness 5").code, 0);
    const auto half = ReadPng(folder / "f.png").At(200, 150);
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_NEAR(half[i], full[i] * 0.5, 1.5);
}

TEST_F(CliTest, OutlineTextDiffersFromStrokes) {
    const std::string base = "render '" + kGulf + "' --layer 2 --size 600x365 -o '";
    ASSERT_EQ(Run(base + (folder / "s.png") + "'").code, 0);
    ASSERT_EQ(Run(base + (folder / "t.png") + "' --font Arial").code, 0);
    EXPECT_NE(ReadPng(folder / "s.png").rgb, ReadPng(folder / "t.png").rgb);
}

TEST_F(CliTest, TakesAViewWithNegativeCorners) {
    EXPECT_EQ(
        Run("render '" + kGulf + "' --view -100,-200,100,200 -o '" + (folder / "v.png") + "'").code,
        0);
    const Image image = ReadPng(folder / "v.png");
    EXPECT_EQ(image.width, 800);
    EXPECT_EQ(image.height, 1600);
}

TEST_F(CliTest, ResultsCanBeJson) {
    const Outcome outcome =
        Run("render '" + kGulf + "' --json --size 64x64 -o '" + (folder / "j.png") + "'");
    const json result = json::parse(outcome.out);
    EXPECT_EQ(result["output"], folder / "j.png");
    EXPECT_EQ(result["loaded"], 734);
    EXPECT_EQ(result["sources"].size(), 12u);
}

TEST_F(CliTest, ADryRunListsTheFileAndWritesNone) {
    const Outcome outcome = Run("render '" + kGulf + "' --dry-run -o '" + (folder / "d.png") + "'");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_EQ(outcome.out, (folder / "d.png") + "\n");
    EXPECT_FALSE(fs::exists(folder / "d.png"));
    EXPECT_FALSE(fs::exists(folder / "work"));
}

/// Counts by layer and culture of an info tree.
std::map<std::pair<int, int>, int> Counts(const json& tree) {
    std::map<std::pair<int, int>, int> counts;
    for (const json& layer : tree["layers"])
        for (const json& post : layer["posts"])
            for (const json& uset : post["usets"])
                for (const json& culture : uset["cultures"])
                    counts[{layer["layer"], culture["culture"]}] += int(culture["count"]);
    return counts;
}

TEST_F(CliTest, InfoCountsWhatTheSamplesRuleMakes) {
    const Outcome outcome = Run("info '" + kGulf + "' --json");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const json tree = json::parse(outcome.out);
    EXPECT_EQ(tree["map"], "Heron Bank and Tern Shoal");
    auto counts = Counts(tree);
    EXPECT_EQ((counts[{25, 220}]), 120); // 76 wells at platforms, 44 wildcats
    EXPECT_EQ((counts[{25, 222}]), 120);
    EXPECT_EQ((counts[{25, 231}]), 120);
    EXPECT_EQ((counts[{3, 12}]), 84); // 2 areas of 7 by 6 blocks
    EXPECT_EQ((counts[{3, 11}]), 84);
    EXPECT_EQ((counts[{3, 10}]), 2);
    EXPECT_EQ((counts[{15, 50}]), 6);
    EXPECT_EQ((counts[{66, 400}]), 12);
    EXPECT_EQ((counts[{16, 658}]), 1);
    EXPECT_EQ((counts[{16, 659}]), 31); // every tenth of 301 shotpoints
    EXPECT_EQ((counts[{16, 664}]), 5);  // two ends, two rules, the number
    EXPECT_EQ((counts[{6, 30}]), 4);    // the mainland and three islands
    int sum = 0;
    for (const auto& [key, count] : counts)
        sum += count;
    EXPECT_EQ(tree["count"], sum);
}

TEST_F(CliTest, InfoAsTextNamesLayersAndCultures) {
    const Outcome outcome = Run("info '" + kGulf + "'");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_NE(outcome.out.find("layer 25 Wells"), std::string::npos);
    EXPECT_NE(outcome.out.find("culture 220 Well symbol"), std::string::npos);
}

TEST_F(CliTest, SymbolsAreListedAndDrawn) {
    const Outcome outcome = Run("symbols --json -o '" + (folder / "s.png") + "'");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    std::map<int, std::string> listed;
    for (const json& one : json::parse(outcome.out))
        listed[one["number"]] = one["description"];
    EXPECT_EQ(listed[54], "Dry and abandoned well");
    EXPECT_EQ(listed[56], "Oil well");
    EXPECT_GT(listed.size(), 100u);
    EXPECT_GT(ReadPng(folder / "s.png").Colours(), 20u);
}

TEST_F(CliTest, AnErrorIsOneLineWithFilePlaceAndReason) {
    struct Case {
        std::string arguments, error;
        int code;
    };
    WriteText(folder.Path() / "bad.json", "{\"scale\": 1,}");
    WriteText(folder.Path() / "key.json",
              R"({"units": "feet", "scale": 1, "bounds": {"xy": [0, 0, 1, 1]}, "x": 1})");
    WriteText(folder.Path() / "map.jie", "something");
    const std::string out = " -o '" + (folder / "x.png") + "'";
    const Case cases[] = {
        {"draw x", "zvdisp: there is no verb \"draw\" (render, info, symbols)\n", 2},
        {"render '" + kGulf + "'", "zvdisp: --output is required\n", 2},
        {"render gone.json" + out, "zvdisp: gone.json: No such file or directory\n", 1},
        {"render '" + (folder / "key.json") + "'" + out,
         "zvdisp: " + (folder / "key.json") + ": /x: there is no such member here\n", 1},
        {"render '" + (folder / "map.jie") + "'" + out,
         "zvdisp: " + (folder / "map.jie") +
             ": is neither a map project (.json) nor a drawing file\n",
         1},
        {"render '" + kGulf + "' --size 10x" + out,
         "zvdisp: --size: must be WIDTHxHEIGHT, as in 1600x1200\n", 2},
        {"render '" + kGulf + "' --view 5,0,1,9" + out,
         "zvdisp: --view: must be x1,y1,x2,y2 with x1 below x2 and y1 below y2\n", 1},
    };
    for (const Case& one : cases) {
        const Outcome outcome = Run(one.arguments);
        EXPECT_EQ(outcome.code, one.code) << one.arguments;
        EXPECT_EQ(outcome.err, one.error);
        EXPECT_EQ(outcome.out, "");
        EXPECT_FALSE(fs::exists(folder / "x.png"));
    }
    const Outcome broken = Run("info '" + (folder / "bad.json") + "'");
    EXPECT_EQ(broken.code, 1);
    EXPECT_NE(broken.err.find("bad.json: line 1, column 13: "), std::string::npos) << broken.err;
}

TEST_F(CliTest, AFontThatIsNotThereIsRefused) {
    const Outcome outcome =
        Run("render '" + kGulf + "' --font Comic -o '" + (folder / "x.png") + "'");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_NE(outcome.err.find("must be one of Stroke, Times, Helvetica"), std::string::npos);
    EXPECT_FALSE(fs::exists(folder / "x.png"));
}

TEST_F(CliTest, AFolderThatIsNotThereLeavesNothing) {
    const Outcome outcome = Run("render '" + kGulf + "' -o '" + (folder / "gone/x.png") + "'");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_NE(outcome.err.find("gone/x.png"), std::string::npos);
    EXPECT_FALSE(fs::exists(folder / "work")); // nothing was loaded
}

TEST_F(CliTest, WorksInTheFolderForTemporariesWhereTheWorkFolderCannotBeMade) {
    const std::string arguments =
        "render '" + kGulf + "' --size 64x64 -o '" + (folder / "t.png") + "'";
    const Outcome outcome = Run(arguments, "/dev/null/work");
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(folder.CountEntries(), 2u); // the picture, and the test's own list of errors
}

TEST_F(CliTest, HelpIsNoError) {
    const Outcome outcome = Run("--help");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_NE(outcome.out.find("render"), std::string::npos);
}

/// A run on a source that never ends, so that a signal meets it at work.
class InterruptedCliTest : public CliTest {
  protected:
    InterruptedCliTest() {
        mkfifo((folder / "pipe.sps").c_str(), 0600);
        WriteText(folder.Path() / "wait.json",
                  R"({"units": "feet", "scale": 1, "bounds": {"xy": [0, 0, 1, 1]}, "sources": [
                  {"file": "pipe.sps", "format": "sps", "items": []}]})");
    }

    /// Starts the program with a signal as it is to find it.
    pid_t Start(int number, void (*disposition)(int)) {
        const pid_t child = fork();
        if (child == 0) {
            setenv("ZVDISP_WORK", (folder / "work").c_str(), 1);
            std::signal(number, disposition);
            execl(kProgram.c_str(), "zvdisp", "info", (folder / "wait.json").c_str(), nullptr);
            _exit(99);
        }
        for (int i = 0; i < 200 && (!fs::exists(folder / "work") || ScratchFolders() == 0); ++i)
            usleep(50000);
        EXPECT_EQ(ScratchFolders(), 1u);
        return child;
    }

    /// The signal that ended it.
    static int EndOf(pid_t child) {
        int status = 0;
        waitpid(child, &status, 0);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }
};

TEST_F(InterruptedCliTest, AnInterruptedRunRemovesItsScratchFolder) {
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        const pid_t child = Start(number, SIG_DFL);
        kill(child, number);
        EXPECT_EQ(EndOf(child), number);
        EXPECT_EQ(ScratchFolders(), 0u);
    }
}

TEST_F(InterruptedCliTest, ASignalThatItsStarterHadIgnoredDoesNotEndARun) {
    for (const int number : {SIGHUP, SIGINT}) {
        const pid_t child = Start(number, SIG_IGN);
        kill(child, number);
        usleep(200000);
        EXPECT_EQ(waitpid(child, nullptr, WNOHANG), 0) << "the run has ended";
        EXPECT_EQ(ScratchFolders(), 1u);
        kill(child, SIGTERM);
        EXPECT_EQ(EndOf(child), SIGTERM);
        EXPECT_EQ(ScratchFolders(), 0u);
    }
}

TEST_F(CliTest, AClosedStandardOutputIsAnError) {
    for (const std::string& verb : {"info '" + kGulf + "'", std::string("--help")}) {
        const std::string command = "( sleep 0.2; env ZVDISP_WORK='" + (folder / "work") + "' '" +
                                    kProgram + "' " + verb + " 2>'" + (folder / "err") +
                                    "'; echo $? >'" + (folder / "code") + "' ) | true; while [ ! " +
                                    "-s '" + (folder / "code") + "' ]; do sleep 0.05; done";
        ASSERT_EQ(std::system(command.c_str()), 0);
        EXPECT_EQ(ReadText(folder / "code"), "1\n");
        EXPECT_EQ(ReadText(folder / "err"), "zvdisp: standard output: cannot be written\n");
        fs::remove(folder.Path() / "code");
    }
    EXPECT_EQ(ScratchFolders(), 0u);
}

TEST_F(CliTest, ADrawingSurfaceThatCannotBeMadeIsAnErrorOfOneLine) {
    const Outcome outcome =
        Run("render '" + kGulf + "' --size 16384x16384 -o '" + (folder / "x.png") + "'");
    // Software renderers refuse it; a large graphics card may not, and then there is no error to
    // see.
    if (outcome.code == 0) GTEST_SKIP() << "a surface of this size can be made here";
    EXPECT_EQ(outcome.code, 1);
    EXPECT_TRUE(outcome.err.starts_with("zvdisp: drawing surface: cannot be made; a smaller --size "
                                        "may help"))
        << outcome.err;
    EXPECT_EQ(outcome.err.find('\n'), outcome.err.size() - 1);
    EXPECT_FALSE(fs::exists(folder / "x.png"));
    EXPECT_EQ(ScratchFolders(), 0u);
}

TEST_F(CliTest, APictureIsNotWrittenOverWhatItsMapReads) {
    WriteText(folder.Path() / "w.csv", "X,Y\n1,1\n");
    WriteText(folder.Path() / "m.json",
              R"({"units": "feet", "scale": 1, "bounds": {"xy": [0, 0, 1, 1]}, "sources": [
                  {"file": "w.csv", "position": ["X", "Y"], "items": []}]})");
    fs::create_symlink("w.csv", folder.Path() / "link.png");
    const std::string map = "render '" + (folder / "m.json") + "' -o '";
    for (const std::string name : {"m.json", "w.csv", "link.png"}) {
        const std::string before = ReadText(folder / name);
        for (const std::string more : {"", " --dry-run"}) {
            const Outcome outcome = Run(map + (folder / name) + "'" + more);
            EXPECT_EQ(outcome.code, 1);
            EXPECT_EQ(outcome.err, "zvdisp: " + (folder / name) +
                                       ": is read by this map, so no picture is written over it\n");
            EXPECT_EQ(ReadText(folder / name), before);
        }
    }
}

TEST_F(CliTest, TheSourcesArchiveIsNotWrittenOver) {
    WriteText(folder.Path() / "a.zip", "PK");
    WriteText(folder.Path() / "m.json",
              R"({"units": "feet", "scale": 1, "bounds": {"xy": [0, 0, 1, 1]}, "sources": [
                  {"archive": "a.zip", "member": "w.csv", "position": ["X", "Y"], "items": []}]})");
    const Outcome outcome =
        Run("render '" + (folder / "m.json") + "' --dry-run -o '" + (folder / "a.zip") + "'");
    EXPECT_EQ(outcome.code, 1);
    EXPECT_NE(outcome.err.find("is read by this map"), std::string::npos) << outcome.err;
}

TEST_F(CliTest, AnOutputThatIsNoPngIsRefused) {
    for (const std::string name : {"", "x.jpg", "x", ".png"}) {
        for (const std::string& verb : {"render '" + kGulf + "'", std::string("symbols")}) {
            const Outcome outcome = Run(verb + " --dry-run -o '" + name + "'");
            EXPECT_EQ(outcome.code, 1);
            EXPECT_EQ(outcome.err, "zvdisp: --output: \"" + name + "\" does not end in .png\n");
        }
    }
}

TEST_F(CliTest, ADryRunFindsWhatARunWouldRefuse) {
    const std::string base = "render '" + kGulf + "' --dry-run -o '";
    const std::pair<std::string, std::string> cases[] = {
        {base + (folder / "gone/x.png") + "'", "its folder cannot be found"},
        {base + (folder / "x.png") + "' --font Comic", "must be one of Stroke"},
        {base + (folder / "x.png") + "' --view 5,0,1,9", "--view: must be x1,y1,x2,y2"},
    };
    for (const auto& [arguments, error] : cases) {
        const Outcome outcome = Run(arguments);
        EXPECT_EQ(outcome.code, 1);
        EXPECT_NE(outcome.err.find(error), std::string::npos) << outcome.err;
        EXPECT_FALSE(fs::exists(folder / "work")); // nothing was loaded
    }
}

TEST_F(CliTest, ADryRunOfTheSymbolsCanBeJson) {
    const Outcome outcome = Run("symbols --dry-run --json -o '" + (folder / "s.png") + "'");
    EXPECT_EQ(json::parse(outcome.out), (json{{"writes", {folder / "s.png"}}}));
    EXPECT_EQ(json::parse(Run("symbols --json --dry-run").out)["writes"], json::array());
    EXPECT_FALSE(fs::exists(folder / "s.png"));
}

TEST_F(CliTest, TellsHowManyRowsGaveNothingOrLess) {
    WriteText(folder.Path() / "w.csv", "X,Y,U,V\n1,1,2,2\n1,1,,\n,,,\n1,1,*,*\n");
    WriteText(folder.Path() / "m.json",
              R"({"units": "feet", "scale": 1, "bounds": {"xy": [0, 0, 9, 9]}, "sources": [
                  {"file": "w.csv", "position": ["X", "Y"], "items": [
                   {"kind": "symbol", "layer": 25, "culture": 220, "symbol": 56},
                   {"kind": "line", "layer": 25, "culture": 231,
                    "path": [["X", "Y"], ["U", "V"]]}]}]})");
    const Outcome outcome =
        Run("render '" + (folder / "m.json") + "' --size 64x64 -o '" + (folder / "r.png") + "'");
    EXPECT_EQ(outcome.code, 0) << outcome.err;
    EXPECT_EQ(outcome.out, (folder / "r.png") + ": 64 x 64 pixels, 4 items loaded, 1 row gave no "
                                                "item, 2 gave less than asked\n");
}

TEST_F(CliTest, TellsItsVersion) {
    const Outcome outcome = Run("--version");
    EXPECT_EQ(outcome.code, 0);
    EXPECT_TRUE(outcome.out.starts_with("zvdisp ")) << outcome.out;
    EXPECT_GE(std::count(outcome.out.begin(), outcome.out.end(), '.'), 2);
}

TEST_F(CliTest, TheRealDataGiveTheirCounts) {
    // Public data that the tree does not hold; whoever has them beside it runs this too.
    if (!fs::exists(kRealData + "/wells")) GTEST_SKIP() << "the real data are not beside the tree";
    const Outcome outcome = Run("info '" + kShelf + "' --data '" + kRealData + "' --json");
    ASSERT_EQ(outcome.code, 0) << outcome.err;
    const json tree = json::parse(outcome.out);
    auto counts = Counts(tree);
    EXPECT_EQ((counts[{25, 220}]), 57217);
    EXPECT_EQ((counts[{3, 12}]), 2599); // 2,591 leases, some in several parts
    EXPECT_EQ((counts[{66, 400}]), 100);
    EXPECT_EQ((counts[{6, 31}]), 4114);
    for (const json& source : tree["sources"]) {
        if (source["name"] == "boreholes") {
            EXPECT_EQ(source["rows"], 57219);
            EXPECT_EQ(source["rejected"], 2); // without a surface position
            EXPECT_EQ(source["fewer"], 901);
            EXPECT_EQ(source["reasons"]["no position (BOTM_LONGITUDE, BOTM_LATITUDE)"], 386);
            EXPECT_EQ(source["reasons"]["position is no number (BOTM_LONGITUDE, BOTM_LATITUDE)"],
                      515); // starred
        }
        if (source["name"] == "leases") {
            EXPECT_EQ(source["rows"], 2591);
        }
    }
    EXPECT_NE(outcome.err.find("boreholes: 2 of 57219 rows: no position"), std::string::npos);
}

} // namespace
} // namespace zv::host
