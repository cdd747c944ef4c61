#pragma once

#include <cstdint>

#include "platform/Export.h"

/// Lets a test see what happens when the window system refuses a step.
namespace zv {

enum class WglStep {
    ChoosePixelFormat,
    SetPixelFormat,
    CreateContext,
    MakeCurrent,
    SwapBuffers,
    UseFontOutlines,
};

/// The next call of that step on this thread fails with that error number; later ones work again.
ZVDISP_API void FailNextWgl(WglStep step, std::uint32_t error);

} // namespace zv
