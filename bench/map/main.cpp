#include <sys/resource.h>

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

/// One job for each run, so that each has its own peak of memory. Prints lines "name value".

namespace {

using namespace zv::bench;

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

void Add(long count) {
    const double memory = PeakMegabytes();
    std::unique_ptr<LineMap> lines;
    const double seconds = Seconds([&] { lines = std::make_unique<LineMap>(count); });
    const double grown = PeakMegabytes() - memory;
    const double prepare = Seconds([&] {
        for (long i = 0; i < count; ++i)
            delete new CZvDispPolyLine(Vertices(i, count));
    });
    const auto bytes = std::filesystem::file_size(lines->ScratchFile());
    Say("add_ns", (seconds - prepare) / static_cast<double>(count) * 1e9);
    Say("add_seconds", seconds - prepare);
    Say("fwrite_seconds", WriteOnce(lines->ScratchFile() + ".copy", bytes));
    Say("file_bytes_per_item", static_cast<double>(bytes) / static_cast<double>(count));
    Say("memory_bytes_per_item", grown * 1024 * 1024 / static_cast<double>(count));
}

void Walk(long count) {
    LineMap lines(count);
    NullContext context;
    lines.Map().SetContext(&context);
    const auto draw = [&] { lines.Map().Draw(kLayer, 1, 1, ZV_CULTURE_ALL, false); };
    draw();
    context.items = 0;
    const double seconds = Seconds(draw);
    Say("walk_ns", seconds / static_cast<double>(count) * 1e9);
    Say("items_per_second", static_cast<double>(context.items) / seconds);
    lines.Map().SetContext(nullptr);
}

void Fetch(long count) {
    LineMap lines(count);
    std::mt19937_64 random(4711);
    std::uniform_int_distribution<unsigned> pick(10001, 10000 + static_cast<unsigned>(count));
    constexpr int kFetches = 20000;
    const auto fetch = [&] { delete lines.Map().GetItem(kLayer, 1, 1, kCulture, pick(random)); };
    for (int i = 0; i < 1000; ++i)
        fetch();
    Say("fetch_ns", Seconds([&] {
                        for (int i = 0; i < kFetches; ++i)
                            fetch();
                    }) / kFetches *
                        1e9);
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
        ReadShapefile(path);
        Say("read_seconds", Seconds([&] { ReadShapefile(path); }));
    } else {
        std::fputs("zvbench_map add|walk|fetch|memory|screen|write-shapefile|read-shapefile COUNT "
                   "[PATH]\n",
                   stderr);
        return 1;
    }
    return 0;
}
