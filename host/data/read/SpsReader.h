#pragma once

#include <istream>

#include "data/read/FeatureReader.h"

namespace zv::host {

/// Columns of one field, the first counted as 1.
struct SpsColumns {
    std::size_t first, last;
};

/// Where the fields of a point record stand. Releases of the form differ in this.
struct SpsLayout {
    SpsColumns record, line, point, index, code, easting, northing, elevation, day, time;
};

/// Reads the shotpoints and receiver stations of a survey in SEG SPS form (lines of fixed columns).
///
/// Records of "S" and "R" are rows; those of "H" (headers), "X" (relations) and blank lines are
/// passed over; any other line is a row with a problem. Fields: RECORD, LINE, POINT, INDEX, CODE,
/// ELEVATION, DAY, TIME. Which columns hold: those of the first release, of release 2.1 where the
/// header says so, and a wide form (records behind one blank, easting and northing 10 and 12
/// columns wide) where a line begins with a blank.
class SpsReader : public FeatureReader {
  public:
    explicit SpsReader(std::unique_ptr<std::istream> in);

    const std::vector<std::string>& Fields() const override;
    bool Next(Feature& feature) override;
    std::string Crs() const override { return {}; }
    long long Count() const override { return -1; }

  private:
    bool NextPointLine(std::string& line);
    const SpsLayout& LayoutOf(const std::string& line) const;

    std::unique_ptr<std::istream> m_in;
    bool m_release21 = false;
};

} // namespace zv::host
