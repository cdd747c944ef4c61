#include "data/read/SpsReader.h"

#include "data/project/Words.h"

namespace zv::host {
namespace {

constexpr SpsLayout kRelease1{{1, 1},   {2, 17},  {18, 25}, {26, 26}, {27, 28},
                              {47, 55}, {56, 65}, {66, 71}, {72, 74}, {75, 80}};
constexpr SpsLayout kRelease21{{1, 1},   {2, 11},  {12, 21}, {24, 24}, {25, 26},
                               {47, 55}, {56, 65}, {66, 71}, {72, 74}, {75, 80}};
constexpr SpsLayout kWide{{2, 2},   {3, 18},  {19, 28}, {29, 29}, {30, 31},
                          {57, 66}, {67, 78}, {79, 86}, {90, 92}, {93, 96}};

std::string Cut(const std::string& line, SpsColumns columns) {
    if (line.size() < columns.first) return {};
    const std::string_view field(line);
    return std::string(Trimmed(field.substr(columns.first - 1, columns.last - columns.first + 1)));
}

std::vector<std::string> Values(const std::string& line, const SpsLayout& at) {
    return {Cut(line, at.record), Cut(line, at.line),      Cut(line, at.point), Cut(line, at.index),
            Cut(line, at.code),   Cut(line, at.elevation), Cut(line, at.day),   Cut(line, at.time)};
}

} // namespace

SpsReader::SpsReader(std::unique_ptr<std::istream> in) : m_in(std::move(in)) {}

const std::vector<std::string>& SpsReader::Fields() const {
    static const std::vector<std::string> fields = {"RECORD", "LINE",      "POINT", "INDEX",
                                                    "CODE",   "ELEVATION", "DAY",   "TIME"};
    return fields;
}

bool SpsReader::NextPointLine(std::string& line) {
    while (std::getline(*m_in, line)) {
        if (!line.empty() && line.back() == 0x1A) line.pop_back();
        if (Trimmed(line).empty() || line[0] == 'X') continue;
        if (line[0] != 'H') return true;
        if (line.compare(0, 3, "H00") == 0 && line.find("2.1") != std::string::npos)
            m_release21 = true;
    }
    return false;
}

const SpsLayout& SpsReader::LayoutOf(const std::string& line) const {
    if (line[0] == ' ') return kWide;
    return m_release21 ? kRelease21 : kRelease1;
}

bool SpsReader::Next(Feature& feature) {
    std::string line;
    if (!NextPointLine(line)) return false;
    const SpsLayout& layout = LayoutOf(line);
    feature = {};
    feature.values = Values(line, layout);
    const std::string& record = feature.values[0];
    CZvDispPoint point;
    if (record != "S" && record != "R")
        feature.problem = "not a record of a shotpoint or station";
    else if (const char* fault =
                 ParsePosition(Cut(line, layout.easting), Cut(line, layout.northing), point))
        feature.problem = fault;
    else
        feature.parts = {{Shape::Point, {{point}}}};
    return true;
}

} // namespace zv::host
