#pragma once

#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "platform/wgl/ContextData.h"
#include "platform/wgl/Surface.h"
#include "platform/wgl/Wgl.h"
#include "platform/wgl/WglFailure.h"

namespace zv {

/// Error numbers of the window system that these calls leave behind.
inline constexpr std::uint32_t kErrorInvalidFunction = 1, kErrorInvalidHandle = 6,
                               kErrorInvalidParameter = 87, kErrorInvalidPixelFormat = 2000;

struct DeviceContext {
    std::uint64_t serial = 0; ///< unique for the life of the process, unlike the address
    SurfaceSize size;
    int dpi = 96;
    int pixelFormat = 0;
    PIXELFORMATDESCRIPTOR asked;      ///< what SetPixelFormat was given
    std::vector<std::uint8_t> pixels; ///< BGRA of the last SwapBuffers, top row first
    FontRequest font;
};

struct RenderingContext {
    void* egl = nullptr;
    std::map<std::uint64_t, Surface> surfaces; ///< by the device context's serial
    std::unique_ptr<ContextData> data;
};

/// The pair that is current on this thread.
struct CurrentPair {
    DeviceContext* dc = nullptr;
    RenderingContext* rc = nullptr;
};
CurrentPair& Current();

/// Whether a device context of that serial still exists.
bool IsDeviceAlive(std::uint64_t serial);

/// Stores the error of a failed call; always false.
bool FailWith(std::uint32_t error);
/// True when a test asked this step to fail; the error is then stored.
bool RefusesStep(WglStep step);

} // namespace zv
