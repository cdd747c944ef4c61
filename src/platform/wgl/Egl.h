#pragma once

#include <cstdint>

namespace zv {

/// The EGL display behind all rendering contexts of the process: without a surface of its own, on a
/// software driver or on a graphics card. Each call gives 0 or an error number of the window
/// system.

/// A new OpenGL context with the compatibility profile.
std::uint32_t EglCreate(void*& context);
/// Null releases what is current on this thread.
std::uint32_t EglMakeCurrent(void* context);
void EglDestroy(void* context);

} // namespace zv
