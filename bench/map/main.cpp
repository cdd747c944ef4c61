#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "context/ZvDisplayContext.h"
#include "map/Lines.h"
#include "map/Screen.h"
#include "map/Shapefile.h"
#include "platform/win/Files.h"

/// One job for each run, so that each has its own peak of memory. Prints lines "name value".

namespace {

using namespace zv::bench;
using zv::ReadAt;

/// A target that takes everything and does nothing.
class NullContext : public CZvDisplayContext {
  public:
    long items = 0;
    void DrawCircle(CZvDispCircle&) override { ++items; }
    void DrawPolyLine(CZvDispPolyLine&) override { ++items; }
    void DrawPolygon(CZvDispPolygon&) override { ++items; }
    void DrawText(CZvDispText&) override { ++items; }
    void DrawArc(CZvDispArc&) override { ++items; }
    void DrawSymbol(CZvDispSymbols&) override { ++items; }
};

double Seconds(const std::function<void()>& job) {
    const auto start = std::chrono::steady_clock::now();
    job();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double PeakMegabytes() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<double>(usage.ru_maxrss) / 1024.0;
}

void Say(const char* name, double value) {
    std::printf("%s %.6g\n", name, value);
}

/// Time of writing that many bytes with one fwrite.
double WriteOnce(const std::string& path, std::size_t bytes) {
    const std::vector<char> data(bytes, 'x');
    return Seconds([&] {
        std::FILE* file = std::fopen(path.c_str(), "wb");
        std::fwrite(data.data(), 1, data.size(), file);
        std::fclose(file);
    });
}

/// The least of some runs: what the machine does besides only ever adds.
double Least(int runs, const std::function<double()>& run) {
    double least = run();
    for (int i = 1; i < runs; ++i)
        least = std::min(least, run());
    return least;
}

void Add(long count) {
    LineMap warmUp(1000); // catalogue and registry are read once for a process
    const double memory = PeakMegabytes();
    const int runs = static_cast<int>(std::clamp(5'000'000L / count, 5L, 100L));
    std::uintmax_t bytes = 0;
    double grown = 0, once = 1e9;
    const double whole = Least(runs, [&] {
        std::unique_ptr<LineMap> lines;
        const double seconds = Seconds([&] { lines = std::make_unique<LineMap>(count); });
        if (grown == 0) grown = PeakMegabytes() - memory;
        bytes = std::filesystem::file_size(lines->ScratchFile());
        once = std::min(once, WriteOnce(lines->ScratchFile() + ".copy", bytes));
        return seconds;
    });
    const double making = Least(runs, [&] {
        return Seconds([&] {
            for (long i = 0; i < count; ++i)
                delete new CZvDispPolyLine(Vertices(i, count));
        });
    });
    Say("add_ns", (whole - making) / static_cast<double>(count) * 1e9);
    Say("fwrite_over_add", once / (whole - making));
    Say("file_bytes_per_item", static_cast<double>(bytes) / static_cast<double>(count));
    Say("memory_bytes_per_item", grown * 1024 * 1024 / static_cast<double>(count));
}

void Walk(long count) {
    LineMap lines(count);
    NullContext context;
    lines.Map().SetContext(&context);
    const int runs = static_cast<int>(std::clamp(10'000'000L / count, 5L, 200L));
    const double seconds = Least(runs, [&] {
        return Seconds([&] { lines.Map().Draw(kLayer, 1, 1, ZV_CULTURE_ALL, false); });
    });
    if (context.items != count * runs) std::abort();
    Say("walk_ns", seconds / static_cast<double>(count) * 1e9);
    Say("items_per_second", static_cast<double>(count) / seconds);
    lines.Map().SetContext(nullptr);
}

/// Nanoseconds of one of many random accesses.
double RandomAccess(long count, const std::function<void(unsigned)>& access) {
    std::mt19937_64 random(4711);
    std::uniform_int_distribution<unsigned> pick(0, static_cast<unsigned>(count) - 1);
    constexpr int kAccesses = 20000;
    return Least(5, [&] {
        return Seconds([&] {
                   for (int i = 0; i < kAccesses; ++i)
                       access(pick(random));
               }) /
               kAccesses * 1e9;
    });
}

void Fetch(long count) {
    LineMap lines(count);
    Say("fetch_ns", RandomAccess(count, [&](unsigned i) {
            delete lines.Map().GetItem(kLayer, 1, 1, kCulture, 10001 + i);
        }));
    const long length = static_cast<long>(std::filesystem::file_size(lines.ScratchFile())) / count;
    std::FILE* file = std::fopen(lines.ScratchFile().c_str(), "rb");
    std::vector<char> record(static_cast<std::size_t>(length));
    Say("bare_read_ns", RandomAccess(count, [&](unsigned i) {
            if (ReadAt(file, static_cast<std::uint64_t>(length) * i, record) != record.size())
                std::abort();
        }));
    std::fclose(file);
}

void Memory(long count) {
    LineMap lines(count);
    NullContext context;
    lines.Map().SetContext(&context);
    lines.Map().Draw(kLayer, 1, 1, ZV_CULTURE_ALL, false);
    lines.Map().SetContext(nullptr);
    Say("items_drawn", static_cast<double>(context.items));
    Say("peak_megabytes", PeakMegabytes());
}

void Screen(long count, const std::string& prefix) {
    const ScreenTimes times = DrawOnScreen(count, prefix);
    Say("full_draw_seconds", times.fullDraw);
    Say("redraw_seconds", times.redraw);
    Say("redraw_zoomed_seconds", times.redrawZoomed);
}

} // namespace

int main(int argc, char** argv) {
    const std::string job = argc > 1 ? argv[1] : "";
    const long count = argc > 2 ? std::atol(argv[2]) : 1000000;
    const std::string path = argc > 3 ? argv[3] : "";
    if (job == "add")
        Add(count);
    else if (job == "walk")
        Walk(count);
    else if (job == "fetch")
        Fetch(count);
    else if (job == "memory")
        Memory(count);
    else if (job == "screen")
        Screen(count, path);
    else if (job == "write-shapefile")
        WriteShapefile(path, count);
    else if (job == "read-shapefile") {
        Say("read_seconds", Least(5, [&] { return Seconds([&] { ReadShapefile(path); }); }));
    } else {
        std::fputs("zvbench_map add|walk|fetch|memory|screen|write-shapefile|read-shapefile COUNT "
                   "[PATH]\n",
                   stderr);
        return 1;
    }
    return 0;
}
