#include <array>

#include "context/Brightness.h"
#include "context/DrawSink.h"
#include "context/ZvDispGL.h"

/// Colours, widths and line types.

namespace {

constexpr int kPaletteSize = 256;
constexpr double kInactiveLine = 0.6, kInactiveFill = 0.4;

std::uint16_t StipplePattern(unsigned char lineType) {
    constexpr std::array<std::uint16_t, 5> kPatterns = {zv::kSolidLine, 255, 771, 783, 35103};
    return lineType < kPatterns.size() ? kPatterns[lineType] : zv::kSolidLine;
}

bool IsSymbol(CZvDisplayItem& item) {
    return item.GetDispType() == ZV_DISP_SYMBOL;
}

ZVColor Plus(ZVColor color, int more) {
    return static_cast<ZVColor>(color + more);
}

bool IsInPalette(ZVColor color) {
    return color >= 0 && color < kPaletteSize;
}

/// Whether the two are alike: equal, or the dark and the bright form of one colour.
bool AreAlike(ZVColor a, ZVColor b) {
    const long long difference = static_cast<long long>(a) - b;
    return difference == 0 || difference == 8 || difference == -8;
}

} // namespace

ZVColor CZvDispGL::DispOverrideColor(ZVColor color) const {
    const int b = m_background, c = color;
    if (c == ZV_COLOR_ERASE) return m_background;
    if (b == 8 || b == 16) {
        if (c == 8 || c == 16) return ZV_COLOR_BLACK;
        if (c == 3 || c == 11) return static_cast<ZVColor>(4);
    }
    if ((b == 0 || b == 8) && (c == 0 || c == 8)) return ZV_COLOR_WHITE;
    return AreAlike(m_background, color) ? Plus(color, 1) : color;
}

void CZvDispGL::GLGetRGBColor(ZVColor color, double& r, double& g, double& b) {
    int red = 255, green = 255, blue = 255;
    if (!GetRGBColor(IsInPalette(color) ? color : ZV_COLOR_WHITE, red, green, blue))
        red = green = blue = 255;
    r = red / 255.0;
    g = green / 255.0;
    b = blue / 255.0;
}

std::array<double, 3> CZvDispGL::ItemRGB(CZvDisplayItem& item, double inactive) {
    const ZVColor own = IsInPalette(item.GetColor()) ? item.GetColor() : ZV_COLOR_WHITE;
    const double factor = item.GetInActive() ? inactive : 1.0;
    std::array<double, 3> rgb{};
    GLGetRGBColor(DispOverrideColor(own), rgb[0], rgb[1], rgb[2]);
    for (double& channel : rgb)
        channel *= factor;
    return rgb;
}

bool CZvDispGL::GLSetColor(CZvDisplayItem& item) {
    if (m_buildingSymbols && !IsSymbol(item)) return false;
    const auto rgb = ItemRGB(item, kInactiveLine);
    const double bright = item.GetBrightness();
    Sink().Color(rgb[0] * bright, rgb[1] * bright, rgb[2] * bright, 1.0);
    return true;
}

bool CZvDispGL::GLSetFillColor(CZvDisplayItem& item) {
    if (m_buildingSymbols) return false;
    if (item.GetFillStyle() != E_FILL_SOLID) return true;
    const auto rgb = ItemRGB(item, kInactiveFill);
    Sink().Color(rgb[0], rgb[1], rgb[2], zv::Brightness(m_fillBright));
    return true;
}

bool CZvDispGL::GLSetLineWidth(CZvDisplayItem& item) {
    if (m_buildingSymbols && !IsSymbol(item)) return false;
    Sink().Width(item.GetLineWidth() + 1.0);
    return true;
}

bool CZvDispGL::GLSetLineType(CZvDisplayItem& item) {
    Sink().Stipple(StipplePattern(item.GetLineType()));
    return true;
}
