#define GL_GLEXT_PROTOTYPES
#include "context/ScreenBatch.h"

#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>

namespace zv {

namespace {
/// Vertices that are gathered before they are drawn; a single figure may bring more.
constexpr std::size_t kMostGathered = 128 * 1024;

void Enable(GLenum what, bool on) {
    if (on)
        glEnable(what);
    else
        glDisable(what);
}
} // namespace

void ScreenBatch::Open(const ScreenMatrix& matrix) {
    m_open = true;
    m_region = {};
    m_grid.Reset(matrix);
    if (matrix.modelView)
        m_outer.modelView = *matrix.modelView;
    else
        glGetDoublev(GL_MODELVIEW_MATRIX, m_outer.modelView.data());
    m_outer.logicOp = glIsEnabled(GL_COLOR_LOGIC_OP);
    m_outer.blend = glIsEnabled(GL_BLEND);
    glGetIntegerv(GL_LOGIC_OP_MODE, &m_outer.operation);
}

void ScreenBatch::Close() {
    Flush();
    m_open = false;
}

ScreenBatch::State ScreenBatch::StateFor(Shape shape, const Look& look) {
    if (shape == Shape::Triangles) return {shape, 1, kSolidLine, look.compose};
    return {shape, look.width, look.stipple, Compose::Replace};
}

int ScreenBatch::FindBundle(const State& state, int first) const {
    for (int i = m_count - 1; i >= first; --i)
        if (m_bundles[static_cast<std::size_t>(i)].state == state) return i;
    return -1;
}

int ScreenBatch::BundleFor(const State& state) {
    const auto cells = m_grid.CellsOf(m_region, state.width / 2.0 + 1.0);
    int bundle = FindBundle(state, m_grid.FirstFor(cells));
    if (bundle < 0) {
        if (m_count == OverlapGrid::kMostBundles) Flush();
        bundle = m_count++;
        if (m_bundles.size() < static_cast<std::size_t>(m_count)) m_bundles.emplace_back();
        m_bundles[static_cast<std::size_t>(bundle)].state = state;
    }
    m_grid.Mark(cells, bundle);
    return bundle;
}

ScreenVertex* ScreenBatch::Reserve(Shape shape, const Look& look, std::size_t most) {
    if (m_gathered > kMostGathered) Flush();
    m_current = BundleFor(StateFor(shape, look));
    Bundle& bundle = m_bundles[static_cast<std::size_t>(m_current)];
    if (bundle.used + most > bundle.vertices.size())
        bundle.vertices.resize(std::max(bundle.used + most, 2 * bundle.vertices.size()));
    return bundle.vertices.data() + bundle.used;
}

void ScreenBatch::Commit(std::size_t used) {
    Bundle& bundle = m_bundles[static_cast<std::size_t>(m_current)];
    if (bundle.state.shape == Shape::LineStrips) {
        bundle.firsts.push_back(static_cast<int>(bundle.used));
        bundle.counts.push_back(static_cast<int>(used));
    }
    bundle.used += used;
    m_gathered += used;
}

void ScreenBatch::EnterState() const {
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadMatrixd(m_outer.modelView.data());
    Enable(GL_COLOR_LOGIC_OP, m_outer.logicOp);
    Enable(GL_BLEND, m_outer.blend);
    glLogicOp(static_cast<GLenum>(m_outer.operation));
    glBindBuffer(GL_ARRAY_BUFFER, 0);
    glEnableClientState(GL_VERTEX_ARRAY);
    glEnableClientState(GL_COLOR_ARRAY);
}

void ScreenBatch::Flush() {
    if (m_count == 0) return;
    glPushAttrib(GL_ENABLE_BIT | GL_LINE_BIT | GL_CURRENT_BIT | GL_COLOR_BUFFER_BIT |
                 GL_TRANSFORM_BIT);
    glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT);
    EnterState();
    DrawBundles();
    glPopMatrix();
    glPopClientAttrib();
    glPopAttrib();
    m_count = 0;
    m_gathered = 0;
    m_grid.Reset();
}

void ScreenBatch::DrawBundles() {
    for (int i = 0; i < m_count; ++i) {
        Bundle& bundle = m_bundles[static_cast<std::size_t>(i)];
        Apply(bundle.state);
        if (bundle.state.compose == Compose::Replace)
            Draw(bundle);
        else
            DrawComposed(bundle);
        bundle.used = 0;
        bundle.firsts.clear();
        bundle.counts.clear();
        if (bundle.vertices.size() > kMostGathered) bundle.vertices = {};
    }
}

void ScreenBatch::Apply(const State& state) {
    glLineWidth(state.width);
    if (state.stipple == kSolidLine) {
        glDisable(GL_LINE_STIPPLE);
    } else {
        glEnable(GL_LINE_STIPPLE);
        glLineStipple(1, state.stipple);
    }
}

void ScreenBatch::DrawComposed(const Bundle& bundle) {
    glPushAttrib(GL_ENABLE_BIT | GL_COLOR_BUFFER_BIT);
    if (bundle.state.compose == Compose::Blend) {
        glEnable(GL_BLEND);
        glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
    } else {
        glEnable(GL_COLOR_LOGIC_OP);
        glLogicOp(GL_XOR);
    }
    Draw(bundle);
    glPopAttrib();
}

void ScreenBatch::Draw(const Bundle& bundle) {
    const ScreenVertex* vertices = bundle.vertices.data();
    if (bundle.used == 0) return;
    glVertexPointer(2, GL_FLOAT, sizeof(ScreenVertex), &vertices->x);
    glColorPointer(4, GL_UNSIGNED_BYTE, sizeof(ScreenVertex), &vertices->rgba);
    if (bundle.state.shape == Shape::LineStrips)
        glMultiDrawArrays(GL_LINE_STRIP, bundle.firsts.data(), bundle.counts.data(),
                          static_cast<GLsizei>(bundle.counts.size()));
    else
        glDrawArrays(bundle.state.shape == Shape::Lines ? GL_LINES : GL_TRIANGLES, 0,
                     static_cast<GLsizei>(bundle.used));
}

} // namespace zv
