#include <algorithm>
#include <set>
#include <utility>

#include "platform/wgl/Wgl.h"
#include "platform/wgl/WglObjects.h"

namespace zv {

namespace {

/// Serials of the device contexts that exist.
std::set<std::uint64_t>& Alive() {
    static std::set<std::uint64_t> alive;
    return alive;
}

SurfaceSize Positive(int width, int height, int samples) {
    return {std::max(width, 1), std::max(height, 1), samples};
}

} // namespace

bool IsDeviceAlive(std::uint64_t serial) {
    return Alive().contains(serial);
}

HDC CreateDeviceContext(const DeviceContextRequest& request) {
    static std::uint64_t serial = 0;
    auto dc = std::make_unique<DeviceContext>();
    dc->serial = ++serial;
    dc->size = Positive(request.width, request.height, request.samples);
    dc->dpi = request.dpi;
    Alive().insert(dc->serial);
    return dc.release();
}

void DeleteDeviceContext(HDC dc) {
    if (!dc) return;
    if (wglGetCurrentDC() == dc) wglMakeCurrent(nullptr, nullptr);
    Alive().erase(dc->serial);
    delete dc;
}

void ResizeDeviceContext(HDC dc, int width, int height) {
    if (dc) dc->size = Positive(width, height, dc->size.samples);
}

int DeviceWidth(HDC dc) {
    return dc ? dc->size.width : 0;
}

int DeviceHeight(HDC dc) {
    return dc ? dc->size.height : 0;
}

std::span<const std::uint8_t> DevicePixels(HDC dc) {
    if (!dc) return {};
    return dc->pixels;
}

FontRequest SelectFont(HDC dc, const FontRequest& font) {
    return dc ? std::exchange(dc->font, font) : FontRequest{};
}

} // namespace zv

int GetDeviceCaps(HDC dc, int what) {
    return dc && what == LOGPIXELSY ? dc->dpi : 0;
}
