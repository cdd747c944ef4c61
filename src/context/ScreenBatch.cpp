#define GL_GLEXT_PROTOTYPES
#include "context/ScreenBatch.h"

#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>

namespace zv {

namespace {
/// Vertices of a bundle; a single figure may bring more.
constexpr std::size_t kBundle = 96 * 1024;
} // namespace

void ScreenBatch::Open(const ScreenMatrix& matrix) {
    m_open = true;
    glPushAttrib(GL_ENABLE_BIT | GL_LINE_BIT | GL_CURRENT_BIT | GL_COLOR_BUFFER_BIT |
                 GL_TRANSFORM_BIT);
    glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    if (matrix.modelView) glLoadMatrixd(matrix.modelView->data());
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
}

void ScreenBatch::Close() {
    Flush();
    glMatrixMode(GL_MODELVIEW);
    glPopMatrix();
    glPopClientAttrib();
    glPopAttrib();
    m_open = false;
}

ScreenBatch::State ScreenBatch::StateFor(Shape shape, const Look& look) {
    if (shape == Shape::Triangles) return {shape, 1, kSolidLine, look.compose};
    return {shape, look.width, look.stipple, Compose::Replace};
}

ScreenVertex* ScreenBatch::Reserve(Shape shape, const Look& look, std::size_t most) {
    const State state = StateFor(shape, look);
    if (!(state == m_state) || m_used + most > m_vertices.size()) {
        Flush();
        m_state = state;
        if (m_vertices.size() < most) m_vertices.resize(std::max(most, kBundle));
    }
    return m_vertices.data() + m_used;
}

void ScreenBatch::Commit(std::size_t used) {
    if (m_state.shape == Shape::LineStrips) {
        m_firsts.push_back(static_cast<int>(m_used));
        m_counts.push_back(static_cast<int>(used));
    }
    m_used += used;
}

void ScreenBatch::Flush() {
    if (m_used == 0) return;
    Apply();
    if (m_state.compose == Compose::Replace)
        Draw();
    else
        DrawComposed();
    m_used = 0;
    m_firsts.clear();
    m_counts.clear();
    if (m_vertices.size() > kBundle) m_vertices = {};
}

void ScreenBatch::Apply() const {
    glLineWidth(m_state.width);
    if (m_state.stipple == kSolidLine) {
        glDisable(GL_LINE_STIPPLE);
    } else {
        glEnable(GL_LINE_STIPPLE);
        glLineStipple(1, m_state.stipple);
    }
}

void ScreenBatch::DrawComposed() const {
    glPushAttrib(GL_ENABLE_BIT | GL_COLOR_BUFFER_BIT);
    if (m_state.compose == Compose::Blend) {
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    } else if (m_state.compose == Compose::Xor) {
        glEnable(GL_COLOR_LOGIC_OP);
        glLogicOp(GL_XOR);
    }
    Draw();
    glPopAttrib();
}

void ScreenBatch::Draw() const {
    glVertexPointer(2, GL_FLOAT, sizeof(ScreenVertex), &m_vertices.data()->x);
    glColorPointer(4, GL_UNSIGNED_BYTE, sizeof(ScreenVertex), &m_vertices.data()->rgba);
    if (m_state.shape == Shape::LineStrips)
        glMultiDrawArrays(GL_LINE_STRIP, m_firsts.data(), m_counts.data(),
                          static_cast<GLsizei>(m_counts.size()));
    else
        glDrawArrays(m_state.shape == Shape::Lines ? GL_LINES : GL_TRIANGLES, 0,
                     static_cast<GLsizei>(m_used));
}

} // namespace zv
