#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/Export.h"

/// Rendering contexts of the window system, under its names. Behind them stands an off-screen
/// OpenGL surface (EGL, compatibility profile) for each device context; a window only shows its
/// pixels.

namespace zv {
struct DeviceContext;
struct RenderingContext;
} // namespace zv

using HDC = zv::DeviceContext*;
using HGLRC = zv::RenderingContext*;

struct PIXELFORMATDESCRIPTOR {
    std::uint16_t nVersion = 1;
    std::uint32_t dwFlags = 0;
    std::uint8_t iPixelType = 0; ///< 0: RGBA
    std::uint8_t cColorBits = 0;
    std::uint8_t cDepthBits = 0;
};

inline constexpr std::uint32_t PFD_DOUBLEBUFFER = 1, PFD_DRAW_TO_WINDOW = 4,
                               PFD_SUPPORT_OPENGL = 32;
inline constexpr int LOGPIXELSY = 90;
inline constexpr std::uint32_t ERROR_NOT_ENOUGH_MEMORY = 8;

/// A pixel format number above 0, or 0 on failure.
ZVDISP_API int ChoosePixelFormat(HDC dc, const PIXELFORMATDESCRIPTOR* format);
ZVDISP_API bool SetPixelFormat(HDC dc, int number, const PIXELFORMATDESCRIPTOR* format);
/// A new rendering context that the caller deletes; null on failure.
ZVDISP_API HGLRC wglCreateContext(HDC dc);
/// Makes the context current with the device context's surface bound as framebuffer; null and null
/// releases. Remakes the surface when the device context changed its size; lists stay.
ZVDISP_API bool wglMakeCurrent(HDC dc, HGLRC rc);
ZVDISP_API HGLRC wglGetCurrentContext();
ZVDISP_API HDC wglGetCurrentDC();
ZVDISP_API bool wglDeleteContext(HGLRC rc);
/// Hands the drawn pixels over to the device context.
ZVDISP_API bool SwapBuffers(HDC dc);
/// Pixels per inch in y for LOGPIXELSY, 0 otherwise.
ZVDISP_API int GetDeviceCaps(HDC dc, int what);
/// Number and text of the last failure of one of these calls on this thread; 0 for none.
ZVDISP_API std::uint32_t GetLastError();
ZVDISP_API std::string FormatMessageA(std::uint32_t error);

/// Metrics of one glyph in units of the font's em (cell advances).
struct GLYPHMETRICSFLOAT {
    float gmfBlackBoxX = 0, gmfBlackBoxY = 0, gmfOriginX = 0, gmfOriginY = 0;
    float gmfCellIncX = 0, gmfCellIncY = 0;
};
inline constexpr int WGL_FONT_LINES = 0, WGL_FONT_POLYGONS = 1;

namespace zv {

/// An outline face as the library asks for it.
struct FontRequest {
    std::string face; ///< "Arial", "Times", ...: resolved through fontconfig
    int weight = 400; ///< 100 to 900
    bool italic = false;
};

struct DeviceContextRequest {
    int width = 1, height = 1; ///< pixels
    int dpi = 96;
    int samples = 4; ///< antialiasing samples, 0 or 1 for none; at most 4 are used
};

/// A device context with a surface of its own. The caller releases it with DeleteDeviceContext.
ZVDISP_API HDC CreateDeviceContext(const DeviceContextRequest& request);
ZVDISP_API void DeleteDeviceContext(HDC dc);
/// New size in pixels; takes effect at the next wglMakeCurrent. The pixels shown are kept till
/// then.
ZVDISP_API void ResizeDeviceContext(HDC dc, int width, int height);
ZVDISP_API int DeviceWidth(HDC dc);
ZVDISP_API int DeviceHeight(HDC dc);
/// Pixels of the last SwapBuffers, BGRA, top row first; empty before the first.
ZVDISP_API std::span<const std::uint8_t> DevicePixels(HDC dc);
/// Selects the face that wglUseFontOutlinesA compiles; the former one is given back.
ZVDISP_API FontRequest SelectFont(HDC dc, const FontRequest& font);
/// Whether fontconfig finds a scalable face of that family (or its metric-compatible replacement).
ZVDISP_API bool FontExists(const std::string& face);

/// Writes BGRA pixels, top row first, as PNG, atomically. Throws zv::DataError.
ZVDISP_API void WritePng(const std::string& path, std::span<const std::uint8_t> bgra, int width,
                         int height);

} // namespace zv

/// Compiles the glyphs of `count` characters of code page 1252 from `first` into display lists
/// base, base + 1 ... of the current context: filled outlines in units of the em (1.0 is the font's
/// height), each followed by the advance to the next character. `deviation` is the greatest
/// distance of the polygon from the true outline as a fraction of the em (0: the default).
/// `extrusion` is not drawn. `metrics` takes `count` entries and may be null. False when the face
/// has no outlines.
ZVDISP_API bool wglUseFontOutlinesA(HDC dc, unsigned first, unsigned count, unsigned base,
                                    float deviation, float extrusion, int format,
                                    GLYPHMETRICSFLOAT* metrics);
