#pragma once

#include <array>
#include <memory>
#include <string>

#include "context/ZvDispGL.h"
#include "data/MapDocument.h"

namespace zv::host {

/// How a map is drawn off-screen.
struct PictureStyle {
    int width = 1600, height = 1200; ///< pixels
    std::array<double, 4> view{};    ///< x1, y1, x2, y2 in map units, grown to the picture's shape
    std::string font = "stroke";
    int background = 8;
    int backgroundBrightness = 0;
    int fillBrightness = 3;
    int post = 99, uset = 99;
};

/// An off-screen surface with a rendering context on it.
class Picture {
  public:
    /// Throws DataError on a font that is not there.
    explicit Picture(const PictureStyle& style);
    ~Picture();
    Picture(const Picture&) = delete;
    Picture& operator=(const Picture&) = delete;

    /// Full draw of all layers in the map's order.
    void Draw(CZvDispMap& map);
    /// Writes what was drawn last. Throws DataError; no part of a file is left then.
    void Save(const std::string& path) const;

  private:
    struct Release {
        void operator()(zv::DeviceContext* dc) const { DeleteDeviceContext(dc); }
    };

    PictureStyle m_style;
    std::unique_ptr<zv::DeviceContext, Release> m_dc;
    CZvDispGL m_gl;
};

/// Index of a font for CZvDispGL::SetFontIndex: 0 for "stroke". Throws DataError naming the fonts
/// there are.
int FontIndex(const std::string& name);

} // namespace zv::host
