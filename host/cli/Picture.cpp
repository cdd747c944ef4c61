#include "cli/Picture.h"

#include "map/ZvDispUtil.h"
#include "platform/Error.h"

namespace zv::host {
namespace {

constexpr int kFonts = 10;

bool SameWord(const std::string& a, const std::string& b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
    if (a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (lower(a[i]) != lower(b[i])) return false;
    return true;
}

void FitView(CZvDispMap& map, const PictureStyle& style) {
    const CZvDispPoint ll(style.view[0], style.view[1]), ur(style.view[2], style.view[3]);
    CZvDispPoint outLL = ll, outUR = ur;
    CZvDispUtil::S_FitMapIntoView(CRect(0, 0, style.width, style.height), ll, ur, outLL, outUR);
    map.SetViewPort(outLL, outUR);
}

} // namespace

int FontIndex(const std::string& name) {
    CZvDispGL context;
    std::string known;
    for (int i = 0; i < kFonts; ++i) {
        const std::string font = context.GetFontName(i);
        if (SameWord(font, name)) return i;
        known += (i == 0 ? "" : ", ") + font;
    }
    throw DataError("font \"" + name + "\"", "", "must be one of " + known);
}

Picture::Picture(const PictureStyle& style)
    : m_style(style), m_dc(CreateDeviceContext({style.width, style.height, 96, 4})) {
    const int font = FontIndex(style.font);
    m_gl.Create(m_dc.get());
    m_gl.Resize(0, 0, style.width, style.height);
    m_gl.SetBKColor(ZVColor(style.background));
    m_gl.SetBKBrightIndex(style.backgroundBrightness);
    m_gl.SetPFBrightIndex(style.fillBrightness);
    if (font > 0) m_gl.SetFontIndex(font);
}

Picture::~Picture() {
    m_gl.Destroy();
}

void Picture::Draw(CZvDispMap& map) {
    FitView(map, m_style);
    map.SetContext(&m_gl);
    // A full draw compiles display lists; the pixels come from their replay.
    map.Draw(E_LAYER_ALL, m_style.post, m_style.uset, ZV_CULTURE_ALL, false);
    map.Redraw(E_LAYER_ALL, m_style.post, m_style.uset, ZV_CULTURE_ALL);
    m_gl.Render();
    map.SetContext(nullptr);
}

void Picture::Save(const std::string& path) const {
    WritePng(path, DevicePixels(m_dc.get()), m_style.width, m_style.height);
}

} // namespace zv::host
