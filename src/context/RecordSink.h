#pragma once

#include <vector>

#include "context/Look.h"
#include "context/Recording.h"

namespace zv {

/// Writes drawing calls into a recording.
class RecordSink final : public DrawSink {
  public:
    explicit RecordSink(LookTable& looks) : m_looks(looks) {}

    /// Starts anew. `fixedOrigin`: the origin is (0, 0), else the first position that comes.
    void Reset(bool fixedOrigin);
    std::span<const std::uint32_t> Words() const { return m_words; }
    Point2 Origin() const { return m_origin; }

    void Color(double r, double g, double b, double alpha) override;
    void Width(double pixels) override;
    void Stipple(std::uint16_t pattern) override;
    void StippleOff() override;
    void BeginCompose(Compose compose) override;
    void EndCompose(Compose compose) override;
    void Begin(Figure figure) override;
    void Vertex(double x, double y) override;
    void End() override;
    void Push(const Affine& place) override;
    void Pop() override;
    void StrokeText(std::string_view text) override;
    void OutlineText(int style, std::string_view text) override;
    void SymbolShape(int number) override;

  private:
    void WriteLook();
    void WriteLines();
    void WriteTriangles();
    void WriteFigure(Call near, Call far, std::span<const Point2> vertices);
    bool IsPlaceFinite() const;
    void WritePlace();
    void WriteText(Call call, int style, std::string_view text);
    void Anchor(const Point2& p);
    template<class T>
    void Append(const T& value);

    LookTable& m_looks;
    std::vector<std::uint32_t> m_words;
    std::vector<Affine> m_places;
    std::vector<Point2> m_figure; // vertices since Begin
    std::vector<Point2> m_corners;
    Figure m_kind = Figure::LineStrip;
    Look m_look;
    std::uint32_t m_written = 0; // number of the look that the stream holds
    bool m_hasLook = false;
    Point2 m_origin;
    bool m_anchored = false;
};

} // namespace zv
