#include "context/GlScene.h"

#include <GL/gl.h>

namespace zv {

GlScene* GlScene::Current() {
    const HGLRC rc = wglGetCurrentContext();
    if (!rc) return nullptr;
    if (!GetContextData(rc)) SetContextData(rc, std::make_unique<GlScene>());
    return static_cast<GlScene*>(GetContextData(rc));
}

void GlScene::Ortho(const Point2& lowerLeft, const Point2& upperRight) {
    m_view.Ortho(lowerLeft, upperRight, !m_lists.StandsOnOrigin());
}

void GlScene::BeginShapeList(unsigned name, bool apart) {
    m_recorder.Reset(true);
    m_gl.emplace(GlSink::Setup{{}, m_lists.FontBase(), apart});
    m_tee.emplace(*m_gl, m_recorder);
    m_lists.BeginShape(*m_tee);
    glNewList(name, GL_COMPILE);
}

void GlScene::EndShapeList() {
    glEndList();
    m_lists.EndShape();
}

} // namespace zv
