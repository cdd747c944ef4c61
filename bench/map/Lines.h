#pragma once

#include <memory>
#include <string>
#include <vector>

#include "items/ZvDispPolyLine.h"
#include "items/ZvDisplayItemPara.h"
#include "map/ZvDispMap.h"

/// The map that is measured: lines of five vertices, spread over a square by a rule.
namespace zv::bench {

inline constexpr E_Layer kLayer = static_cast<E_Layer>(15);
inline constexpr ZVCulture kCulture = static_cast<ZVCulture>(50);

/// Side of the square, in map units, that holds `count` lines in cells of 100.
double Side(long count);
/// Vertices of the line of that number.
std::vector<CZvDispPoint> Vertices(long number, long count);

/// A map with `count` lines in one list, on scratch files in a folder of its own.
class LineMap {
  public:
    explicit LineMap(long count);
    ~LineMap();
    LineMap(const LineMap&) = delete;
    LineMap& operator=(const LineMap&) = delete;

    CZvDispMap& Map() { return *m_map; }
    std::string ScratchFile() const;

  private:
    std::string m_folder;
    CZvDisplayItemPara m_para{true};
    std::unique_ptr<CZvDispMap> m_map;
};

} // namespace zv::bench
