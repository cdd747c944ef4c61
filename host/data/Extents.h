#pragma once

#include <array>
#include <map>
#include <tuple>

#include "context/ZvDisplayContext.h"

class CZvDispMap;

namespace zv::host {

/// A box of map units that grows by what it is given.
struct Extent {
    double x1 = 0.0, y1 = 0.0, x2 = 0.0, y2 = 0.0;
    bool empty = true;

    void Add(double x, double y);
    void Add(const Extent& other);
};

/// A context that draws nothing and notes where the items of each culture list lie, invisible ones
/// included. A text counts with its anchor, a symbol with its size.
class ExtentContext : public CZvDisplayContext {
  public:
    using Key = std::tuple<int, int, int, int>; ///< layer, post, user set, culture

    /// Walks every layer of a map, whatever the map's order says. The map has no context after.
    void Measure(CZvDispMap& map);
    /// Of every list whose numbers agree where they are not negative.
    Extent Of(int layerNumber = -1, int postNumber = -1, int usetNumber = -1,
              int cultureNumber = -1) const;

    bool GetProcessInvisible() override { return true; }
    void DrawGroup(CZvDispGroup& group) override;
    void DrawCircle(CZvDispCircle& circle) override;
    void DrawPolyLine(CZvDispPolyLine& line) override;
    void DrawPolygon(CZvDispPolygon& polygon) override;
    void DrawText(CZvDispText& text) override;
    void DrawArc(CZvDispArc& item) override;
    void DrawSymbol(CZvDispSymbols& symbol) override;

  private:
    Extent& Here();
    void AddRound(const CZvDispPoint& center, double radius);

    std::map<Key, Extent> m_lists;
};

} // namespace zv::host
