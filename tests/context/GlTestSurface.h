#pragma once

#include <GL/gl.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string>

#include "platform/wgl/Wgl.h"

/// Off-screen surfaces for tests, and questions about their pixels.
namespace zv::testing {

struct Rgb {
    int r = 0, g = 0, b = 0;
    bool operator==(const Rgb&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Rgb& c) {
        return out << '(' << c.r << ", " << c.g << ", " << c.b << ')';
    }
};

inline constexpr Rgb kBlack{0, 0, 0}, kWhite{255, 255, 255}, kRed{255, 0, 0};

/// A picture as a device context shows it.
class Picture {
  public:
    Picture(std::span<const std::uint8_t> bgra, int width, int height)
        : m_bgra(bgra.begin(), bgra.end()), m_width(width), m_height(height) {}

    /// Pixel in column x, row y from the top.
    Rgb At(int x, int y) const {
        const auto i = (static_cast<std::size_t>(y) * static_cast<std::size_t>(m_width) +
                        static_cast<std::size_t>(x)) *
                       4;
        return {m_bgra[i + 2], m_bgra[i + 1], m_bgra[i]};
    }
    /// Number of pixels of which the question is true.
    int Count(const std::function<bool(const Rgb&)>& is) const {
        int count = 0;
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                count += is(At(x, y));
        return count;
    }
    int CountOf(const Rgb& color) const {
        return Count([&](const Rgb& c) { return c == color; });
    }
    int CountOther(const Rgb& color) const { return m_width * m_height - CountOf(color); }
    /// left, top, right, bottom of what is not of that colour; right and bottom inside.
    std::array<int, 4> BoxOfOther(const Rgb& color) const {
        std::array<int, 4> box{m_width, m_height, -1, -1};
        for (int y = 0; y < m_height; ++y)
            for (int x = 0; x < m_width; ++x)
                if (!(At(x, y) == color))
                    box = {std::min(box[0], x), std::min(box[1], y), std::max(box[2], x),
                           std::max(box[3], y)};
        return box;
    }
    void Save(const std::string& path) const { WritePng(path, m_bgra, m_width, m_height); }
    bool operator==(const Picture& other) const { return m_bgra == other.m_bgra; }

  private:
    std::vector<std::uint8_t> m_bgra;
    int m_width, m_height;
};

/// A device context without antialiasing, so that colours are exact.
class TestSurface {
  public:
    explicit TestSurface(int width = 64, int height = 64, int samples = 0)
        : m_dc(CreateDeviceContext({width, height, 96, samples})) {}
    ~TestSurface() { DeleteDeviceContext(m_dc); }
    TestSurface(const TestSurface&) = delete;
    TestSurface& operator=(const TestSurface&) = delete;

    HDC Dc() const { return m_dc; }
    /// Pixels of the last SwapBuffers.
    Picture Shown() const { return {DevicePixels(m_dc), DeviceWidth(m_dc), DeviceHeight(m_dc)}; }

  private:
    HDC m_dc;
};

/// A rendering context of the bare window system on a surface of its own, current while it lives.
class BareContext : public TestSurface {
  public:
    explicit BareContext(int width = 64, int height = 64, int samples = 0)
        : TestSurface(width, height, samples) {
        const PIXELFORMATDESCRIPTOR format;
        SetPixelFormat(Dc(), ChoosePixelFormat(Dc(), &format), &format);
        m_rc = wglCreateContext(Dc());
        wglMakeCurrent(Dc(), m_rc);
        glViewport(0, 0, width, height);
    }
    ~BareContext() { wglDeleteContext(m_rc); }
    HGLRC Rc() const { return m_rc; }
    Picture Swap() const {
        SwapBuffers(Dc());
        return Shown();
    }

  private:
    HGLRC m_rc;
};

} // namespace zv::testing
