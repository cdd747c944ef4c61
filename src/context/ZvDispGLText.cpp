#include <GL/gl.h>

#include <cmath>

#include "context/DrawSink.h"
#include "context/GlListScope.h"
#include "context/GlScene.h"
#include "context/ListNames.h"
#include "context/OutlineFont.h"
#include "context/StrokeShapes.h"
#include "platform/win/MessageBox.h"

/// Text in the stroke font and in outline fonts.

namespace {

constexpr int kFonts = 10;
constexpr char kDegreeSign = '\xB0';

/// Start of a stroke text in the font's units, from its justification.
double StrokeStartX(char justify, double characters) {
    switch (justify) {
    case 'c': return (2.0 - zv::kStrokeCell * characters) * 0.5;
    case 'r': return 2.0 - zv::kStrokeCell * characters;
    default: return 0.0;
    }
}

double StrokeStartY(char justify) {
    switch (justify) {
    case 'a': return -2.0;
    case 'b': return -8.0;
    case 'o': return 5.0;
    default: return 0.0;
    }
}

/// The first tab inside the label stands for a degree sign; the first line feed is left out.
std::string OutlineLabel(std::string label) {
    if (const auto tab = label.find('\t'); tab != std::string::npos && tab > 0)
        label[tab] = kDegreeSign;
    if (const auto feed = label.find('\n'); feed != std::string::npos && feed > 0)
        label.erase(feed, 1);
    return label;
}

/// The list of a character and the step to the next; without a row it neither draws nor steps.
void CompileStep(unsigned code) {
    glNewList(zv::kSteppingLists + code, GL_COMPILE);
    if (zv::StrokeShapeOf(static_cast<unsigned char>(code)).hasRow) {
        glCallList(zv::kCharacterLists + code);
        glTranslatef(static_cast<float>(zv::kStrokeCell), 0.0f, 0.0f);
    }
    glEndList();
}

zv::Affine At(const CZvDispPoint& p) {
    return zv::Affine::Shift(p.GetX(), p.GetY());
}

} // namespace

void CZvDispGL::DrawText(CZvDispText& text) {
    const ListScope list(*this, text);
    V_GLText(text);
}

void CZvDispGL::V_GLText(CZvDispText& text) {
    strokeFont = m_nFontIndex <= 0;
    if (!strokeFont)
        V_GLTrueTypeText(text);
    else
        V_GLStrokeText(text);
}

void CZvDispGL::V_GLStrokeText(CZvDispText& text) {
    const double scale = text.GetVertHeight() / zv::kStrokeCell;
    GLSetColor(text);
    GLSetLineWidth(text);
    const double x = StrokeStartX(text.GetHorzJustify(), static_cast<double>(text.Label().size()));
    const double y = StrokeStartY(text.GetVertJustify());
    const zv::PlaceScope place(Sink(), At(text.GetPoint()) * zv::Affine::Turn(text.GetDegree()) *
                                           zv::Affine::Stretch(scale, scale) *
                                           zv::Affine::Shift(x, y));
    if (m_buildingSymbols)
        DrawStrokeCharacters(text.Label());
    else
        Sink().StrokeText(text.Label());
}

void CZvDispGL::DrawStrokeCharacters(const std::string& label) {
    double x = 0.0;
    for (const char c : label) {
        if (!zv::StrokeShapeOf(static_cast<unsigned char>(c)).hasRow) continue;
        const zv::PlaceScope place(Sink(), zv::Affine::Shift(x, 0.0));
        DrawStrokeFontLetter(c);
        x += zv::kStrokeCell;
    }
}

void CZvDispGL::DrawStrokeFontLetter(char c) {
    auto& sink = Sink();
    zv::WalkStrokes(
        static_cast<unsigned char>(c), [&] { sink.Begin(zv::Figure::LineStrip); },
        [&](double x, double y) { sink.Vertex(x, y); }, [&] { sink.End(); });
}

void CZvDispGL::V_GLTrueTypeText(CZvDispText& text) {
    const std::string label = OutlineLabel(text.Label());
    if (label.empty()) return;
    if (!m_outlineFont) {
        V_GLStrokeText(text); // better a plain text than none
        return;
    }
    // The frame gives the start of a text; that of one justified right lies a width to the left.
    const char justify = text.GetHorzJustify();
    text.SetHorzJustify('r');
    const double width = -GetTextPostion(text).GetX();
    text.SetHorzJustify(justify);
    const double start = justify == 'c' ? -0.5 * width : justify == 'r' ? -width : 0.0;
    const int dpi = GetDeviceCaps(m_dc ? m_dc : wglGetCurrentDC(), LOGPIXELSY);
    const double size = text.GetVertHeight() * 12.0 * dpi * (1.0 / 72) * 0.1;
    charScaleX = charScaleY = charScaleZ = size;
    GLSetColor(text);
    // The start is a step along the map's x axis in map units, taken before the text is turned: a
    // turned text that is not justified left keeps its start beside its point.
    const zv::PlaceScope place(Sink(), At(text.GetPoint()) * zv::Affine::Shift(start, 0.0) *
                                           zv::Affine::Turn(text.GetDegree()) *
                                           zv::Affine::Stretch(size, size));
    m_outlineFont->DrawString(zv::OutlineStyle(text.GetLineWidth()), label, Sink());
}

void CZvDispGL::CreateCharDisplayList() {
    auto* scene = zv::GlScene::Current();
    for (unsigned i = 0; scene && i < zv::kCharacterCount; ++i) {
        scene->BeginShapeList(zv::kCharacterLists + i, false);
        DrawStrokeFontLetter(static_cast<char>(static_cast<unsigned char>(i)));
        scene->EndShapeList();
    }
    for (unsigned i = 0; scene && i < zv::kCharacterCount; ++i)
        CompileStep(i);
    if (m_nFontIndex <= 0) return;
    if (!wglGetCurrentDC())
        AfxMessageBox("wglGetCurrentDC() return NULL");
    else if (!ReplaceOutlineFont(m_nFontIndex))
        AfxMessageBox("Unable to use true type Font");
}

/// A face that fails leaves the former font, or strokes where there is none.
bool CZvDispGL::ReplaceOutlineFont(int index) {
    if (m_outlineFontContext != wglGetCurrentContext()) m_outlineFont.reset();
    m_outlineFontContext = wglGetCurrentContext();
    m_outlineFontIndex = index;
    const std::string face = GetFontName(index);
    auto font = std::make_unique<zv::OutlineFont>();
    if (!zv::FontExists(face) || !font->Create(face)) return false;
    m_outlineFont = std::move(font);
    return true;
}

/// The index is common to all contexts, but each has a font of its own. A failure is told once.
void CZvDispGL::FollowFontIndex() {
    if (m_nFontIndex <= 0) return;
    if (m_nFontIndex == m_outlineFontIndex && m_outlineFontContext == wglGetCurrentContext())
        return;
    if (!ReplaceOutlineFont(m_nFontIndex)) AfxMessageBox("Unable to use true type Font");
}

void CZvDispGL::SetFontIndex(int index) {
    if (index <= 0 || index >= kFonts || index == m_nFontIndex) return;
    m_nFontIndex = index;
    const std::string face = GetFontName(index);
    if (!wglGetCurrentDC())
        AfxMessageBox("SetFontIndex-wglGetCurrentDC() return NULL");
    else if (!ReplaceOutlineFont(index))
        AfxMessageBox(zv::FontExists(face) ? "SetFontIndex-Unable to use true type Font"
                                           : face + " - Unable to use this Font");
}
