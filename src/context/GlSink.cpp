#include "context/GlSink.h"

#include <GL/gl.h>

#include <string>

#include "context/ListNames.h"
#include "context/StrokeFont.h"

namespace zv {

namespace {

GLenum ModeOf(Figure figure) {
    switch (figure) {
    case Figure::LineStrip: return GL_LINE_STRIP;
    case Figure::Polygon: return GL_POLYGON;
    case Figure::Triangles: return GL_TRIANGLES;
    case Figure::TriangleFan: return GL_TRIANGLE_FAN;
    case Figure::TriangleStrip: return GL_TRIANGLE_STRIP;
    }
    return GL_POINTS;
}

void CallCharacters(unsigned base, std::string_view text) {
    glPushAttrib(GL_LIST_BIT);
    glListBase(base);
    glCallLists(static_cast<GLsizei>(text.size()), GL_UNSIGNED_BYTE, text.data());
    glPopAttrib();
}

} // namespace

void GlSink::Color(double r, double g, double b, double alpha) {
    m_afterLine = false;
    glColor4f(static_cast<float>(r), static_cast<float>(g), static_cast<float>(b),
              static_cast<float>(alpha));
}

void GlSink::Width(double pixels) {
    m_afterLine = false;
    glLineWidth(static_cast<float>(pixels));
}

void GlSink::Stipple(std::uint16_t pattern) {
    if (pattern == kSolidLine && m_dashes == Dashes::Off) return;
    m_dashes = Dashes::On;
    m_afterLine = false;
    glEnable(GL_LINE_STIPPLE);
    glLineStipple(1, pattern);
}

void GlSink::StippleOff() {
    if (m_dashes == Dashes::Off) return;
    m_dashes = Dashes::Off;
    m_afterLine = false;
    glDisable(GL_LINE_STIPPLE);
}

void GlSink::BeginCompose(Compose compose) {
    if (compose == Compose::Xor) {
        glEnable(GL_COLOR_LOGIC_OP);
        glLogicOp(GL_XOR);
    } else if (compose == Compose::Blend) {
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    }
}

void GlSink::EndCompose(Compose compose) {
    if (compose == Compose::Xor) {
        glDisable(GL_COLOR_LOGIC_OP);
    } else if (compose == Compose::Blend) {
        glDisable(GL_BLEND);
    }
}

void GlSink::Begin(Figure figure) {
    // Mesa joins two neighbouring strips of one list when no command stands between them, and then
    // restarts the stipple at each vertex: dashes would turn solid. This command does nothing else.
    if (figure == Figure::LineStrip && m_afterLine && m_setup.apart) glPassThrough(0.0f);
    m_afterLine = figure == Figure::LineStrip;
    glBegin(ModeOf(figure));
}

void GlSink::Vertex(double x, double y) {
    const Point2 origin = Origin();
    glVertex2f(static_cast<float>(x - origin.x), static_cast<float>(y - origin.y));
}

void GlSink::End() {
    glEnd();
}

void GlSink::Push(const Affine& place) {
    const Point2 origin = Origin();
    glPushMatrix();
    if (place.b == 0.0 && place.c == 0.0) {
        glTranslatef(static_cast<float>(place.tx - origin.x),
                     static_cast<float>(place.ty - origin.y), 0.0f);
        glScalef(static_cast<float>(place.a), static_cast<float>(place.d), 1.0f);
    } else {
        const GLdouble matrix[16] = {place.a,
                                     place.b,
                                     0,
                                     0,
                                     place.c,
                                     place.d,
                                     0,
                                     0,
                                     0,
                                     0,
                                     1,
                                     0,
                                     place.tx - origin.x,
                                     place.ty - origin.y,
                                     0,
                                     1};
        glMultMatrixd(matrix);
    }
    ++m_depth;
    m_afterLine = false;
}

void GlSink::Pop() {
    glPopMatrix();
    --m_depth;
    m_afterLine = false;
}

void GlSink::StrokeText(std::string_view text) {
    // One command for the whole text: the driver takes the longer to keep a list the more there
    // are.
    std::string known(text);
    std::erase_if(known, [](char c) { return StrokeGlyph(static_cast<unsigned char>(c)).empty(); });
    CallCharacters(kSteppingLists, known);
}

void GlSink::OutlineText(int style, std::string_view text) {
    if (m_setup.fontBase == 0) return;
    CallCharacters(m_setup.fontBase + static_cast<unsigned>(style) * kFontBlock, text);
}

void GlSink::SymbolShape(int number) {
    glCallList(kSymbolLists + static_cast<unsigned>(number));
}

} // namespace zv
