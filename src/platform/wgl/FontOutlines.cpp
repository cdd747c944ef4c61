#include <GL/gl.h>

#include "platform/wgl/GlyphMesh.h"
#include "platform/wgl/Wgl.h"
#include "platform/wgl/WglObjects.h"

namespace zv {

namespace {

void CompileGlyph(unsigned list, const GlyphMesh& mesh) {
    glNewList(list, GL_COMPILE);
    if (!mesh.triangles.empty()) {
        glBegin(GL_TRIANGLES);
        for (std::size_t i = 0; i + 1 < mesh.triangles.size(); i += 2)
            glVertex2f(mesh.triangles[i], mesh.triangles[i + 1]);
        glEnd();
    }
    glTranslatef(mesh.advance, 0.0f, 0.0f);
    glEndList();
}

GLYPHMETRICSFLOAT MetricsOf(const GlyphMesh& mesh) {
    return {mesh.maxX - mesh.minX, mesh.maxY - mesh.minY, mesh.minX, mesh.maxY, mesh.advance, 0};
}

} // namespace

} // namespace zv

using namespace zv;

bool wglUseFontOutlinesA(HDC dc, unsigned first, unsigned count, unsigned base, float deviation,
                         float, int, GLYPHMETRICSFLOAT* metrics) {
    if (RefusesStep(WglStep::UseFontOutlines)) return false;
    if (!dc || !Current().rc) return FailWith(kErrorInvalidHandle);
    if (first > 256 || count > 256 - first) return FailWith(kErrorInvalidParameter);
    const auto meshes = LoadGlyphMeshes(dc->font, deviation);
    if (!meshes) return FailWith(kErrorInvalidFunction);
    for (unsigned i = 0; i < count; ++i) {
        const auto& mesh = (*meshes)[first + i];
        CompileGlyph(base + i, mesh);
        if (metrics) metrics[i] = MetricsOf(mesh);
    }
    return true;
}
