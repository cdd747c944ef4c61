#pragma once

#include <cstdint>
#include <string_view>

#include "context/Affine.h"

namespace zv {

/// How an area meets what was drawn before.
enum class Compose : std::uint8_t { Replace, Blend, Xor };

/// Figures that a sink takes: consecutive vertices joined by lines, or filled areas.
enum class Figure : std::uint8_t { LineStrip, Polygon, Triangles, TriangleFan, TriangleStrip };

/// Pattern of a line without gaps.
inline constexpr std::uint16_t kSolidLine = 0xFFFF;

/// Where the drawing calls of the items go: into OpenGL, into a recording, or into both. Positions
/// are in map units until the first Push, and in the units of the placement inside it.
class DrawSink {
  public:
    virtual ~DrawSink() = default;

    /// Channels and alpha from 0 to 1; values outside are cut when they are drawn.
    virtual void Color(double r, double g, double b, double alpha) = 0;
    /// Pixels.
    virtual void Width(double pixels) = 0;
    virtual void Stipple(std::uint16_t pattern) = 0;
    virtual void StippleOff() = 0;
    /// Compose of the areas between the two calls.
    virtual void BeginCompose(Compose compose) = 0;
    virtual void EndCompose(Compose compose) = 0;

    virtual void Begin(Figure figure) = 0;
    virtual void Vertex(double x, double y) = 0;
    virtual void End() = 0;

    /// Places what follows, up to the Pop, inside the placement that holds now.
    virtual void Push(const Affine& place) = 0;
    virtual void Pop() = 0;

    /// A text with the pen at the origin, in cells of the stroke font.
    virtual void StrokeText(std::string_view text) = 0;
    /// The same in the outline font's style (0 to 3), in ems.
    virtual void OutlineText(int style, std::string_view text) = 0;
    /// The shape of a symbol of the library that has a list.
    virtual void SymbolShape(int number) = 0;
};

/// Keeps a placement for as long as it lives.
class PlaceScope {
  public:
    PlaceScope(DrawSink& sink, const Affine& place) : m_sink(sink) { m_sink.Push(place); }
    ~PlaceScope() { m_sink.Pop(); }
    PlaceScope(const PlaceScope&) = delete;
    PlaceScope& operator=(const PlaceScope&) = delete;

  private:
    DrawSink& m_sink;
};

} // namespace zv
