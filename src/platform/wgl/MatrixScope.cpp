#include "platform/wgl/MatrixScope.h"

#include <GL/gl.h>

namespace zv {

MatrixScope::MatrixScope(double x, double y, double z, double scale) {
    glPushMatrix();
    glTranslated(x, y, z);
    glScaled(scale, scale, 1.0);
}

MatrixScope::~MatrixScope() {
    glPopMatrix();
}

} // namespace zv
