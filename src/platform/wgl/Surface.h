#pragma once

#include <cstdint>
#include <vector>

namespace zv {

struct SurfaceSize {
    int width = 1, height = 1; ///< pixels
    int samples = 0;           ///< 0 or 1: none

    bool operator==(const SurfaceSize&) const = default;
};

/// A framebuffer object with colour, depth and stencil, off-screen. It belongs to one rendering
/// context, which must be current in every call.
class Surface {
  public:
    /// Makes it, or remakes it where the size changed, and binds it for drawing and reading. Its
    /// viewport is left as it is. False when the driver cannot; nothing is bound then.
    bool Bind(const SurfaceSize& size);
    /// Deletes the driver's objects.
    void Release();
    /// The pixels as BGRA, top row first. The drawing buffer keeps its content.
    void Read(std::vector<std::uint8_t>& bgra) const;

  private:
    struct Target {
        unsigned framebuffer = 0, color = 0, depth = 0;
    };
    bool Make(Target& target, int samples);
    static void Delete(Target& target);

    SurfaceSize m_size;
    Target m_draw;
    Target m_resolved; // only with samples
};

} // namespace zv
