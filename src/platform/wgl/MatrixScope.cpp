#include "platform/wgl/MatrixScope.h"

#include <GL/gl.h>

namespace zv {

MatrixScope::MatrixScope(double x, double y, double scale) {
    glPushMatrix();
    glTranslated(x, y, 0.0);
    glScaled(scale, scale, 1.0);
}

MatrixScope::~MatrixScope() {
    glPopMatrix();
}

} // namespace zv
