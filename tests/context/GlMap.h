#pragma once

#include <cmath>
#include <numbers>
#include <vector>

#include "context/GlTestSurface.h"
#include "context/ZvDispGL.h"
#include "platform/zvcom/ZvColor.h"
#include "support/SymbolHome.h"

namespace zv::testing {

/// The display context with its helpers within reach.
class OpenGL : public CZvDispGL {
  public:
    using CZvDispGL::CZvDispGL;
    using CZvDispGL::DispOverrideColor;
    using CZvDispGL::DrawStrokeFontLetter;
    using CZvDispGL::GLSetFillColor;
    using CZvDispGL::SetItemRecording;
    double CharScale() const { return charScaleX; }
};

/// A display context on a surface without antialiasing, one map unit to a pixel: the window is
/// (0, 0) to (width, height), and the point (x + 0.5, y + 0.5) is the centre of a pixel.
class GlMap {
  public:
    explicit GlMap(int width = 64, int height = 64, int samples = 0)
        : m_surface(width, height, samples), m_width(width), m_height(height) {
        m_home.WriteEmptyFiles();
        CZvDispGL::m_nFontIndex = 0;
        gl.Create(m_surface.Dc());
        gl.Resize(0, 0, width, height);
        View(0, 0, width, height);
    }
    ~GlMap() {
        gl.Destroy();
        CZvDispGL::m_nFontIndex = 0;
    }
    GlMap(const GlMap&) = delete;
    GlMap& operator=(const GlMap&) = delete;

    void View(double x1, double y1, double x2, double y2) {
        CZvDispPoint lowerLeft(x1, y1), upperRight(x2, y2);
        gl.SetView(lowerLeft, upperRight);
    }
    /// Clears to the background and shows the same window again.
    void Clear() { View(0, 0, m_width, m_height); }
    /// What is drawn so far; the context is current afterwards.
    Picture Show() {
        gl.Render();
        gl.Start();
        return m_surface.Shown();
    }
    /// What the lists of these items leave on a cleared screen, called as a map calls them.
    Picture Redraw(const std::vector<unsigned>& ids) {
        Clear();
        gl.V_Open();
        for (const unsigned id : ids)
            gl.Redraw(id);
        gl.V_Close();
        return Show();
    }
    /// The same through the driver's own lists.
    Picture CallLists(const std::vector<unsigned>& ids) {
        Clear();
        for (const unsigned id : ids)
            glCallList(id);
        return Show();
    }
    Picture Draw(CZvDisplayItem& item) {
        Clear();
        gl.DrawDispItem(&item);
        return Show();
    }

    HeadlessMessageHost& Messages() { return m_home.messages; }
    HDC Dc() const { return m_surface.Dc(); }

  private:
    test::SymbolHome m_home;
    TestSurface m_surface;
    int m_width, m_height;

  public:
    OpenGL gl;
};

/// A palette colour, its channels times a factor.
inline Rgb Palette(int index, double factor = 1.0) {
    Rgb c;
    CZvColor::GetRGBColor(index, c.r, c.g, c.b);
    const auto part = [factor](int channel) {
        return static_cast<int>(std::lround(channel * factor));
    };
    return {part(c.r), part(c.g), part(c.b)};
}

inline std::vector<CZvDispPoint> Rectangle(double x1, double y1, double x2, double y2) {
    return {{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}, {x1, y1}};
}

/// A line along the middle of a row of pixels.
inline void MakeRow(CZvDispPolyLine& line, double x1, double x2, double row) {
    line.SetVertices({{x1, row + 0.5}, {x2, row + 0.5}});
}

} // namespace zv::testing
