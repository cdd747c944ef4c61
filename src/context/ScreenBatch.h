#pragma once

#include <cstdint>
#include <vector>

#include "context/Look.h"
#include "context/ScreenView.h"

namespace zv {

struct ScreenVertex {
    float x, y;
    std::uint32_t rgba;
};

/// Gathers figures that share their state and hands each bundle to OpenGL in one call. While it is
/// open the OpenGL state is its own.
class ScreenBatch {
  public:
    enum class Shape : std::uint8_t { Lines, LineStrips, Triangles };

    bool IsOpen() const { return m_open; }
    void Open(const ScreenMatrix& matrix);
    /// Draws what is gathered and puts the state back.
    void Close();

    /// Room for so many vertices of that shape and look, behind what came before.
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
    static State StateFor(Shape shape, const Look& look);
    void Flush();
    void Apply() const;
    void Draw() const;
    void DrawComposed() const;

    bool m_open = false;
    State m_state;
    std::vector<ScreenVertex> m_vertices;
    std::size_t m_used = 0;
    std::vector<int> m_firsts, m_counts;
};

} // namespace zv
