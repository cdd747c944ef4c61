#include "platform/wgl/Egl.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>

#include <array>

#include "platform/wgl/Wgl.h"
#include "platform/wgl/WglObjects.h"

#ifndef EGL_PLATFORM_SURFACELESS_MESA
#define EGL_PLATFORM_SURFACELESS_MESA 0x31DD
#endif

namespace zv {

namespace {

template<class Function>
Function Lookup(const char* name) {
    return reinterpret_cast<Function>(eglGetProcAddress(name));
}

EGLDisplay Initialized(EGLDisplay display) {
    if (display == EGL_NO_DISPLAY) return EGL_NO_DISPLAY;
    return eglInitialize(display, nullptr, nullptr) ? display : EGL_NO_DISPLAY;
}

EGLDisplay PlatformDisplay(EGLenum platform, void* native) {
    const auto get = Lookup<PFNEGLGETPLATFORMDISPLAYEXTPROC>("eglGetPlatformDisplayEXT");
    return get ? Initialized(get(platform, native, nullptr)) : EGL_NO_DISPLAY;
}

/// The first graphics card that EGL can reach without a window system.
EGLDisplay DeviceDisplay() {
    const auto query = Lookup<PFNEGLQUERYDEVICESEXTPROC>("eglQueryDevicesEXT");
    std::array<EGLDeviceEXT, 16> devices{};
    EGLint count = 0;
    if (!query || !query(static_cast<EGLint>(devices.size()), devices.data(), &count))
        return EGL_NO_DISPLAY;
    for (EGLint i = 0; i < count; ++i) {
        const auto display =
            PlatformDisplay(EGL_PLATFORM_DEVICE_EXT, devices[static_cast<std::size_t>(i)]);
        if (display != EGL_NO_DISPLAY) return display;
    }
    return EGL_NO_DISPLAY;
}

EGLDisplay OpenDisplay() {
    auto display = PlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY);
    if (display == EGL_NO_DISPLAY) display = DeviceDisplay();
    if (display == EGL_NO_DISPLAY) display = Initialized(eglGetDisplay(EGL_DEFAULT_DISPLAY));
    return display;
}

/// Opened once and kept to the end of the process.
EGLDisplay Display() {
    static const EGLDisplay display = OpenDisplay();
    return display;
}

EGLConfig AnyConfig() {
    constexpr EGLint wanted[] = {EGL_RENDERABLE_TYPE, EGL_OPENGL_BIT, EGL_SURFACE_TYPE, 0,
                                 EGL_NONE};
    EGLConfig config = nullptr;
    EGLint count = 0;
    if (!eglChooseConfig(Display(), wanted, &config, 1, &count) || count == 0) return nullptr;
    return config;
}

std::uint32_t LastError() {
    return eglGetError() == EGL_BAD_ALLOC ? ERROR_NOT_ENOUGH_MEMORY : kErrorInvalidFunction;
}

} // namespace

std::uint32_t EglCreate(void*& context) {
    if (Display() == EGL_NO_DISPLAY || !eglBindAPI(EGL_OPENGL_API)) return LastError();
    context = eglCreateContext(Display(), nullptr, EGL_NO_CONTEXT, nullptr);
    if (!context) context = eglCreateContext(Display(), AnyConfig(), EGL_NO_CONTEXT, nullptr);
    return context ? 0 : LastError();
}

std::uint32_t EglMakeCurrent(void* context) {
    if (Display() == EGL_NO_DISPLAY) return kErrorInvalidFunction;
    eglBindAPI(EGL_OPENGL_API);
    return eglMakeCurrent(Display(), EGL_NO_SURFACE, EGL_NO_SURFACE, context) ? 0 : LastError();
}

void EglDestroy(void* context) {
    eglDestroyContext(Display(), context);
}

} // namespace zv
