#include "context/OutlineFont.h"

#include <GL/gl.h>

#include "context/GlScene.h"
#include "context/ListNames.h"
#include "platform/win/MessageBox.h"

namespace zv {

namespace {

struct Style {
    int weight;
    bool italic;
};
constexpr std::array<Style, kFontStyles> kStyles = {
    {{100, false}, {700, false}, {100, true}, {700, true}}};
constexpr int kFirstStyle = 100;
constexpr float kDeviation = 0.0f, kExtrusion = 0.15f;

/// Names for all styles. Where the driver offers those of tomorrow's items, a place of our own is
/// taken.
unsigned GenFontLists() {
    constexpr unsigned count = kFontBlock * kFontStyles;
    const unsigned base = glGenLists(count);
    if (IsFreeForFonts(base)) return base;
    if (base != 0) glDeleteLists(base, count);
    return glIsList(kFontLists) ? kOtherFontLists : kFontLists;
}

} // namespace

OutlineFont::~OutlineFont() {
    if (m_base == 0 || wglGetCurrentContext() != m_rc) return;
    glDeleteLists(m_base, kFontBlock * kFontStyles);
    if (auto* scene = GlScene::Current(); scene->Lists().FontBase() == m_base)
        scene->Lists().SetFontBase(0);
}

bool OutlineFont::CreateLogFont(const std::string& face) {
    if (!wglGetCurrentDC()) {
        AfxMessageBox("CreateLogFont-wglGetCurrentDC() return NULL");
        return false;
    }
    for (std::size_t i = 0; i < kStyles.size(); ++i)
        m_fonts[i] = {face, kStyles[i].weight, kStyles[i].italic};
    return true;
}

bool OutlineFont::CreateGLList(std::size_t style) {
    const HDC dc = wglGetCurrentDC();
    if (!dc) {
        AfxMessageBox("CreateGLList-wglGetCurrentDC() return NULL");
        return false;
    }
    std::array<GLYPHMETRICSFLOAT, kFontBlock> metrics;
    const FontRequest former = SelectFont(dc, m_fonts[style]);
    const bool made =
        wglUseFontOutlinesA(dc, 0, kFontBlock, m_base + static_cast<unsigned>(style) * kFontBlock,
                            kDeviation, kExtrusion, WGL_FONT_POLYGONS, metrics.data());
    SelectFont(dc, former);
    return made;
}

bool OutlineFont::Create(const std::string& face) {
    if (!CreateLogFont(face)) return false;
    m_rc = wglGetCurrentContext();
    m_base = GenFontLists();
    for (std::size_t style = 0; style < kStyles.size(); ++style)
        if (!CreateGLList(style)) return false;
    auto& scene = *GlScene::Current();
    for (std::size_t style = 0; style < kStyles.size(); ++style)
        scene.Shapes().SetFont(style, m_fonts[style]);
    scene.Lists().SetFontBase(m_base);
    scene.Lists().ShapesChanged();
    return true;
}

void OutlineFont::DrawString(int style, std::string_view text, DrawSink& sink) const {
    if (!wglGetCurrentDC()) {
        AfxMessageBox("DrawString-wglGetCurrentDC() return NULL");
        return;
    }
    sink.OutlineText(style - kFirstStyle, text);
}

} // namespace zv
