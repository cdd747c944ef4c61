#define GL_GLEXT_PROTOTYPES
#include "platform/wgl/Surface.h"

#include <GL/gl.h>
#include <GL/glext.h>

#include <algorithm>

namespace zv {

namespace {

/// Most samples of a pixel: more cost time and show no difference in lines and labels.
constexpr int kMostSamples = 4;

int UsableSamples(int wanted) {
    GLint most = 0;
    glGetIntegerv(GL_MAX_SAMPLES, &most);
    const int samples = std::min({wanted, kMostSamples, static_cast<int>(most)});
    return samples > 1 ? samples : 0;
}

unsigned MakeBuffer(GLenum format, const SurfaceSize& size, int samples) {
    GLuint name = 0;
    glGenRenderbuffers(1, &name);
    glBindRenderbuffer(GL_RENDERBUFFER, name);
    glRenderbufferStorageMultisample(GL_RENDERBUFFER, samples, format, size.width, size.height);
    return name;
}

void FlipRows(std::vector<std::uint8_t>& pixels, std::size_t rowBytes) {
    const std::size_t rows = pixels.size() / rowBytes;
    for (std::size_t i = 0; i < rows / 2; ++i) {
        auto* top = pixels.data() + i * rowBytes;
        std::swap_ranges(top, top + rowBytes, pixels.data() + (rows - 1 - i) * rowBytes);
    }
}

} // namespace

bool Surface::Make(Target& target, int samples) {
    glGenFramebuffers(1, &target.framebuffer);
    glBindFramebuffer(GL_FRAMEBUFFER, target.framebuffer);
    target.color = MakeBuffer(GL_RGBA8, m_size, samples);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_RENDERBUFFER, target.color);
    target.depth = MakeBuffer(GL_DEPTH24_STENCIL8, m_size, samples);
    glFramebufferRenderbuffer(GL_FRAMEBUFFER, GL_DEPTH_STENCIL_ATTACHMENT, GL_RENDERBUFFER,
                              target.depth);
    return glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

void Surface::Delete(Target& target) {
    glDeleteFramebuffers(1, &target.framebuffer);
    glDeleteRenderbuffers(1, &target.color);
    glDeleteRenderbuffers(1, &target.depth);
    target = {};
}

bool Surface::Bind(const SurfaceSize& size) {
    if (m_draw.framebuffer == 0 || !(m_size == size)) {
        Release();
        m_size = size;
        const int samples = UsableSamples(size.samples);
        const bool made = Make(m_draw, samples) && (samples == 0 || Make(m_resolved, 0));
        if (!made) {
            Release();
            glBindFramebuffer(GL_FRAMEBUFFER, 0);
            return false;
        }
    }
    glBindFramebuffer(GL_FRAMEBUFFER, m_draw.framebuffer);
    return true;
}

void Surface::Release() {
    Delete(m_draw);
    Delete(m_resolved);
}

void Surface::Read(std::vector<std::uint8_t>& bgra) const {
    const auto rowBytes = static_cast<std::size_t>(m_size.width) * 4;
    bgra.resize(rowBytes * static_cast<std::size_t>(m_size.height));
    if (m_resolved.framebuffer != 0) {
        glBindFramebuffer(GL_READ_FRAMEBUFFER, m_draw.framebuffer);
        glBindFramebuffer(GL_DRAW_FRAMEBUFFER, m_resolved.framebuffer);
        glBlitFramebuffer(0, 0, m_size.width, m_size.height, 0, 0, m_size.width, m_size.height,
                          GL_COLOR_BUFFER_BIT, GL_NEAREST);
        glBindFramebuffer(GL_FRAMEBUFFER, m_resolved.framebuffer);
    }
    glPushClientAttrib(GL_CLIENT_PIXEL_STORE_BIT);
    glPixelStorei(GL_PACK_ALIGNMENT, 1);
    glPixelStorei(GL_PACK_ROW_LENGTH, 0);
    glReadPixels(0, 0, m_size.width, m_size.height, GL_BGRA, GL_UNSIGNED_BYTE, bgra.data());
    glPopClientAttrib();
    glBindFramebuffer(GL_FRAMEBUFFER, m_draw.framebuffer);
    FlipRows(bgra, rowBytes);
}

} // namespace zv
