#include "map/Lines.h"

#include <cmath>
#include <filesystem>

#include "platform/zvcom/ZvLayerInfo.h"
#include "platform/zvcom/ZvUtRegistry.h"

namespace zv::bench {

namespace {
constexpr double kCell = 100.0;

long Columns(long count) {
    return static_cast<long>(std::ceil(std::sqrt(double(count))));
}
} // namespace

double Side(long count) {
    return kCell * static_cast<double>(Columns(count));
}

std::vector<CZvDispPoint> Vertices(long number, long count) {
    const double x = kCell * static_cast<double>(number % Columns(count));
    const double y = kCell * static_cast<double>(number / Columns(count));
    const double slant = static_cast<double>((number * 7919) % 41);
    return {{x + 5, y + 10},
            {x + 25, y + 60 + slant / 2},
            {x + 50, y + 20 + slant},
            {x + 70, y + 80 - slant},
            {x + 95, y + 30 + slant / 3}};
}

LineMap::LineMap(long count) {
    std::string folder = std::filesystem::temp_directory_path() / "zvbench-XXXXXX";
    m_folder = mkdtemp(folder.data());
    CZvUtRegistry::S_Override(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                              m_folder);
    m_map = std::make_unique<CZvDispMap>(nullptr);
    m_map->SetUseWaitCursor(false);
    for (long i = 0; i < count; ++i) {
        auto* line = new CZvDispPolyLine(Vertices(i, count));
        line->SetPara(&m_para);
        m_map->AddItem(line, kLayer, 1, 1, kCulture, false);
    }
    m_map->CloseFiles(kLayer, 1, 1);
}

LineMap::~LineMap() {
    m_map.reset();
    std::filesystem::remove_all(m_folder);
}

std::string LineMap::ScratchFile() const {
    return m_folder + "/DispDefault/" + CZvLayerInfo::GetLayerAbbr(kLayer) + "_1_1_" +
           std::to_string(kCulture);
}

} // namespace zv::bench
