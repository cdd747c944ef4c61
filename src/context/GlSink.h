#pragma once

#include "context/DrawSink.h"

namespace zv {

/// Sends drawing calls to OpenGL: at once, or into the list that is open. Vertices are single
/// precision there, so map positions go in relative to an origin near them; the view's matrix holds
/// the difference.
class GlSink final : public DrawSink {
  public:
    /// `fontBase`: first list of the outline font, 0 for none. `apart`: lines are kept from being
    /// joined by the driver, so that dashes start anew.
    struct Setup {
        Point2 origin;
        unsigned fontBase = 0;
        bool apart = true;
    };
    explicit GlSink(const Setup& setup) : m_setup(setup) {}
    /// Holds from the next call on.
    void SetUp(const Setup& setup) {
        m_setup = setup;
        m_dashes = Dashes::Unknown;
    }
    /// Promises that no stipple is on, so that solid lines need no command: the driver takes the
    /// longer to keep a list the more commands there are.
    void AssumeSolid() { m_dashes = Dashes::Off; }

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

    /// Whether a placement holds.
    bool IsPlaced() const { return m_depth > 0; }

  private:
    Point2 Origin() const { return m_depth == 0 ? m_setup.origin : Point2{}; }

    Setup m_setup;
    int m_depth = 0;
    enum class Dashes { Unknown, Off, On };
    Dashes m_dashes = Dashes::Unknown;
    bool m_afterLine = false; // nothing stands between the last line and what comes
};

} // namespace zv
