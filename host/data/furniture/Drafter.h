#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "data/furniture/Sheet.h"
#include "data/project/Project.h"
#include "items/ZvDispGroup.h"

namespace zv::host {

/// How a line is drawn.
struct Pen {
    int colour = 17;
    int width = 0;
    int type = 0;
};

/// Draws a piece of map furniture in inches on the page; all of it becomes one group, which draws
/// in the order of the calls.
class Drafter {
  public:
    /// Borrows the sheet. `shift` in inches moves everything.
    explicit Drafter(const Sheet& sheet, std::pair<double, double> shift = {0.0, 0.0});

    void Line(const std::vector<std::pair<double, double>>& points, const Pen& pen);
    void Frame(const Area& area, const Pen& pen);
    /// Covers what lies below.
    void Fill(const Area& area, int colour);
    void FillShape(const std::vector<std::pair<double, double>>& points, int colour);
    /// Lets what lies below shine through, as far as the view's fill brightness says.
    void Wash(const Area& area, int colour);
    /// `x`, `y`: left end, middle or right end of the base line, as `justify` is l, c or r.
    void Text(double x, double y, double height, const std::string& utf8, char justify, int colour,
              int width = 0, double degrees = 0.0);
    void Symbol(double x, double y, double size, const SymbolRef& symbol, int colour,
                std::optional<int> fill = std::nullopt, double degrees = 0.0);

    /// Hands the group out, with its ID and its origin at a corner of the page.
    std::unique_ptr<CZvDispGroup> Finish(const std::string& id, double x, double y);

  private:
    CZvDispPoint Point(double x, double y) const;
    void Add(std::unique_ptr<CZvDisplayItem> item);
    void AddFill(const std::vector<std::pair<double, double>>& points, int colour, int style);

    const Sheet& m_sheet;
    std::pair<double, double> m_shift;
    std::unique_ptr<CZvDispGroup> m_group;
    int m_key = 0;
};

} // namespace zv::host
