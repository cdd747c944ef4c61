#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "context/Look.h"
#include "context/OverlapGrid.h"
#include "context/ScreenView.h"

namespace zv {

struct ScreenVertex {
    float x, y;
    std::uint32_t rgba;
};

/// Gathers figures that share their state and hands each bundle to OpenGL in one call. Figures that
/// overlap on the screen are drawn in the order in which they came; others need not be. They meet
/// the screen by the logic operation, the blending and the matrix of the moment at which the batch
/// was opened, whatever is set until it draws; the OpenGL state is left as it is found.
class ScreenBatch {
  public:
    enum class Shape : std::uint8_t { Lines, LineStrips, Triangles };

    bool IsOpen() const { return m_open; }
    void Open(const ScreenMatrix& matrix);
    /// Draws what is gathered.
    void Close();

    /// What the figures to come cover, relative to the matrix' center.
    void SetRegion(const Box& region) { m_region = region; }
    /// Room for so many vertices of that shape and look.
    ScreenVertex* Reserve(Shape shape, const Look& look, std::size_t most);
    /// Takes the first `used` of them; of line strips, as one strip.
    void Commit(std::size_t used);

  private:
    /// State that figures of one bundle share; colours go with the vertices.
    struct State {
        Shape shape = Shape::Lines;
        std::uint16_t width = 1;
        std::uint16_t stipple = kSolidLine;
        Compose compose = Compose::Replace;
        bool operator==(const State&) const = default;
    };
    struct Bundle {
        State state;
        std::vector<ScreenVertex> vertices; // room, of which `used` are taken
        std::size_t used = 0;
        std::vector<int> firsts, counts;
    };
    static State StateFor(Shape shape, const Look& look);
    static void Apply(const State& state);
    static void Draw(const Bundle& bundle);
    static void DrawComposed(const Bundle& bundle);
    int FindBundle(const State& state, int first) const;
    int BundleFor(const State& state);
    void Flush();
    void EnterState() const;
    void DrawBundles();

    /// What held as the batch was opened.
    struct Outer {
        std::array<double, 16> modelView{};
        bool logicOp = false, blend = false;
        int operation = 0;
    };
    bool m_open = false;
    Outer m_outer;
    Box m_region;
    OverlapGrid m_grid;
    std::vector<Bundle> m_bundles; // of which m_count are in use
    int m_count = 0;
    int m_current = 0;
    std::size_t m_gathered = 0; // vertices
};

} // namespace zv
