#include "platform/wgl/XorScope.h"

#include <GL/gl.h>

#include "platform/wgl/Wgl.h"

namespace zv {

XorScope::XorScope() : m_on(wglGetCurrentContext() != nullptr) {
    if (!m_on) return;
    glEnable(GL_COLOR_LOGIC_OP);
    glLogicOp(GL_XOR);
}

XorScope::~XorScope() {
    if (!m_on) return;
    glFlush();
    glDisable(GL_COLOR_LOGIC_OP);
}

} // namespace zv
