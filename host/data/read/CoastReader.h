#pragma once

#include <array>

#include "data/read/FeatureReader.h"

namespace zv::host {

/// Makes areas of land from the lines of a coast that was cut to a box: land lies to the left of
/// every line, and a line that ends on the box's border goes on along the border, with the box's
/// inside to its left, to where the next one begins. Closed lines are areas of their own.
///
/// A row of a line that neither is closed nor begins and ends on the border has a problem.
class CoastReader : public FeatureReader {
  public:
    /// `lines` is the source of the lines; the condition chooses among its rows.
    CoastReader(std::unique_ptr<FeatureReader> lines, const std::array<double, 4>& box,
                const Condition& where);

    const std::vector<std::string>& Fields() const override { return m_lines->Fields(); }
    bool Next(Feature& feature) override;
    std::string Crs() const override { return m_lines->Crs(); }
    long long Count() const override { return m_lines->Count(); }

  private:
    /// A line with both ends on the border.
    struct Shore {
        std::vector<std::string> values;
        Points points;
        double start, end; ///< on the border, from 0 to 4 counter-clockwise from its lower left
        bool used = false;
    };

    bool Keep(Feature& feature);
    bool NextJoined(Feature& feature);
    bool PlaceOnBorder(const CZvDispPoint& point, double& place) const;
    void WalkBorder(double from, double to, Points& ring) const;
    Shore* NextShore(double from);

    std::unique_ptr<FeatureReader> m_lines;
    std::array<double, 4> m_box;
    Condition m_where;
    FieldIndex m_index;
    std::vector<Shore> m_shores;
};

} // namespace zv::host
