// What one item costs in a culture list of 10,000 and of 1,000,000 five-vertex polylines: adding,
// walking, fetching at random, and memory beside the file. Items a second are in the column
// items_per_second; BM_OneWrite writes the bytes of the same records with one fwrite,
// BM_BareRead reads those of one record at random.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <malloc.h>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include "context/ZvDisplayContext.h"
#include "items/ZvDisplayItemPara.h"
#include "map/KeyTable.h"
#include "map/ZvDispCult.h"
#include "platform/zvcom/ZvUtRegistry.h"

namespace {

constexpr unsigned kFirstID = 10001;
constexpr std::size_t kRecordBytes = 39 + 9 + 4 + 5 * 25;

/// A target that takes everything and does nothing.
class NullContext : public CZvDisplayContext {
  public:
    void DrawCircle(CZvDispCircle&) override {}
    void DrawPolyLine(CZvDispPolyLine&) override { ++items; }
    void DrawPolygon(CZvDispPolygon&) override {}
    void DrawText(CZvDispText&) override {}
    void DrawArc(CZvDispArc&) override {}
    void DrawSymbol(CZvDispSymbols&) override {}
    std::int64_t items = 0;
};

class WorkFolder {
  public:
    WorkFolder() {
        std::string name = std::filesystem::temp_directory_path() / "zvbench-XXXXXX";
        m_path = mkdtemp(name.data());
        Set(m_path);
    }
    ~WorkFolder() {
        Set("");
        std::filesystem::remove_all(m_path);
    }
    std::string File() const { return m_path / "reference"; }

  private:
    static void Set(const std::string& value) {
        CZvUtRegistry::S_Override(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                                  value);
    }
    std::filesystem::path m_path;
};

std::vector<CZvDisplayItem*> Lines(unsigned first, unsigned count) {
    static CZvDisplayItemPara destroy(true);
    std::vector<CZvDisplayItem*> lines;
    for (unsigned i = first; i < first + count; ++i) {
        auto* const line = new CZvDispPolyLine;
        for (int k = 0; k < 5; ++k)
            line->AddPoint({1e6 + i, 2e6 + k});
        line->SetPickID(kFirstID + i);
        line->SetPara(&destroy);
        lines.push_back(line);
    }
    return lines;
}

double Seconds(std::chrono::steady_clock::time_point since) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - since).count();
}

/// Fills a list and gives the seconds that it took, without the making of the items.
double Fill(CZvDispCult& list, unsigned count) {
    constexpr unsigned kBatch = 1000;
    double seconds = 0.0;
    for (unsigned first = 0; first < count; first += kBatch) {
        const auto lines = Lines(first, std::min(kBatch, count - first));
        const auto start = std::chrono::steady_clock::now();
        for (CZvDisplayItem* const line : lines)
            list.AddItem(line, nullptr, false);
        seconds += Seconds(start);
    }
    const auto start = std::chrono::steady_clock::now();
    list.CloseFiles();
    return seconds + Seconds(start);
}

struct List {
    WorkFolder work;
    CZvDispCult cult{E_LAYER_CUSTOM, 1, 1, static_cast<ZVCulture>(551)};
};

std::size_t HeapBytes() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

void BM_Add(benchmark::State& state) {
    const auto count = static_cast<unsigned>(state.range(0));
    double bytes = 0.0;
    for (auto _ : state) {
        List list;
        const std::size_t before = HeapBytes();
        state.SetIterationTime(Fill(list.cult, count));
        bytes = static_cast<double>(HeapBytes() - before) / count;
    }
    state.counters["bytes_per_item"] = bytes;
    state.SetItemsProcessed(state.iterations() * count);
}

void BM_OneWrite(benchmark::State& state) {
    const std::vector<char> bytes(static_cast<std::size_t>(state.range(0)) * kRecordBytes, 'x');
    const WorkFolder work;
    for (auto _ : state) {
        std::FILE* const file = std::fopen(work.File().c_str(), "wb");
        std::fwrite(bytes.data(), 1, bytes.size(), file);
        std::fclose(file);
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_Draw(benchmark::State& state) {
    List list;
    Fill(list.cult, static_cast<unsigned>(state.range(0)));
    NullContext context;
    for (auto _ : state)
        list.cult.Draw(&context, false);
    state.SetItemsProcessed(context.items);
}

void BM_Fetch(benchmark::State& state) {
    const auto count = static_cast<unsigned>(state.range(0));
    List list;
    Fill(list.cult, count);
    std::mt19937 random(1);
    for (auto _ : state)
        delete list.cult.GetItem(kFirstID + random() % count);
    state.SetItemsProcessed(state.iterations());
}

// What the system alone takes for the bytes of one record, anywhere in a file of that many.
void BM_BareRead(benchmark::State& state) {
    const auto count = static_cast<unsigned>(state.range(0));
    const WorkFolder work;
    std::FILE* const file = std::fopen(work.File().c_str(), "w+b");
    std::setvbuf(file, nullptr, _IONBF, 0);
    std::vector<char> bytes(count * kRecordBytes, 'x');
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    bytes = std::vector<char>(kRecordBytes);
    std::mt19937 random(1);
    for (auto _ : state) {
        std::fseek(file, static_cast<long>(random() % count * kRecordBytes), SEEK_SET);
        benchmark::DoNotOptimize(std::fread(bytes.data(), 1, kRecordBytes, file));
    }
    std::fclose(file);
    state.SetItemsProcessed(state.iterations());
}

void BM_KeyTableFind(benchmark::State& state) {
    const auto count = static_cast<unsigned>(state.range(0));
    zv::KeyTable table;
    for (unsigned i = 0; i < count; ++i)
        table.Set(kFirstID + i, i * kRecordBytes);
    std::mt19937 random(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(table.Find(kFirstID + random() % count));
    state.counters["bytes_per_item"] = static_cast<double>(table.Bytes()) / count;
    state.SetItemsProcessed(state.iterations());
}

BENCHMARK(BM_Add)->Arg(10000)->Arg(1000000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(BM_OneWrite)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Draw)->Arg(10000)->Arg(1000000)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Fetch)->Arg(10000)->Arg(1000000);
BENCHMARK(BM_BareRead)->Arg(10000)->Arg(1000000);
BENCHMARK(BM_KeyTableFind)->Arg(10000)->Arg(1000000);

} // namespace
