#include "platform/wgl/Wgl.h"

#include <array>
#include <cstdio>
#include <optional>

#include "platform/wgl/Egl.h"
#include "platform/wgl/WglObjects.h"

namespace zv {

namespace {

thread_local std::uint32_t t_error = 0;
thread_local std::array<std::optional<std::uint32_t>, 6> t_refusals;

/// The only pixel format there is: what every surface has.
constexpr int kPixelFormat = 1;

struct ErrorText {
    std::uint32_t error;
    const char* text;
};
constexpr ErrorText kErrorTexts[] = {
    {0, "The operation completed successfully."},
    {kErrorInvalidFunction, "The OpenGL driver refused the operation."},
    {kErrorInvalidHandle, "The handle is invalid."},
    {ERROR_NOT_ENOUGH_MEMORY, "Not enough memory resources are available."},
    {kErrorInvalidParameter, "The parameter is incorrect."},
    {kErrorInvalidPixelFormat, "The pixel format is invalid."},
};

/// Surfaces of device contexts that are gone; their rendering context must be current.
void ReleaseDeadSurfaces(RenderingContext& rc) {
    for (auto entry = rc.surfaces.begin(); entry != rc.surfaces.end();) {
        if (IsDeviceAlive(entry->first)) {
            ++entry;
        } else {
            entry->second.Release();
            entry = rc.surfaces.erase(entry);
        }
    }
}

bool MakePairCurrent(DeviceContext* dc, RenderingContext* rc) {
    if (dc->pixelFormat == 0) return FailWith(kErrorInvalidPixelFormat);
    if (const auto error = EglMakeCurrent(rc->egl)) return FailWith(error);
    Current() = {dc, rc};
    ReleaseDeadSurfaces(*rc);
    if (rc->surfaces[dc->serial].Bind(dc->size)) return true;
    rc->surfaces.erase(dc->serial);
    EglMakeCurrent(nullptr);
    Current() = {};
    return FailWith(ERROR_NOT_ENOUGH_MEMORY);
}

} // namespace

CurrentPair& Current() {
    thread_local CurrentPair current;
    return current;
}

bool FailWith(std::uint32_t error) {
    t_error = error;
    return false;
}

bool RefusesStep(WglStep step) {
    auto& refusal = t_refusals[static_cast<std::size_t>(step)];
    if (!refusal) return false;
    FailWith(*refusal);
    refusal.reset();
    return true;
}

void FailNextWgl(WglStep step, std::uint32_t error) {
    t_refusals[static_cast<std::size_t>(step)] = error;
}

ContextData* GetContextData(HGLRC rc) {
    return rc ? rc->data.get() : nullptr;
}

void SetContextData(HGLRC rc, std::unique_ptr<ContextData> data) {
    rc->data = std::move(data);
}

} // namespace zv

using namespace zv;

int ChoosePixelFormat(HDC dc, const PIXELFORMATDESCRIPTOR* format) {
    if (RefusesStep(WglStep::ChoosePixelFormat)) return 0;
    if (!dc || !format) return FailWith(kErrorInvalidHandle);
    return kPixelFormat;
}

bool SetPixelFormat(HDC dc, int number, const PIXELFORMATDESCRIPTOR* format) {
    if (RefusesStep(WglStep::SetPixelFormat)) return false;
    if (!dc) return FailWith(kErrorInvalidHandle);
    if (number != kPixelFormat) return FailWith(kErrorInvalidPixelFormat);
    dc->pixelFormat = number;
    if (format) dc->asked = *format;
    return true;
}

HGLRC wglCreateContext(HDC dc) {
    if (RefusesStep(WglStep::CreateContext)) return nullptr;
    if (!dc || dc->pixelFormat == 0) {
        FailWith(dc ? kErrorInvalidPixelFormat : kErrorInvalidHandle);
        return nullptr;
    }
    auto rc = std::make_unique<RenderingContext>();
    if (const auto error = EglCreate(rc->egl)) {
        FailWith(error);
        return nullptr;
    }
    return rc.release();
}

bool wglMakeCurrent(HDC dc, HGLRC rc) {
    if (!rc) {
        if (Current().rc) EglMakeCurrent(nullptr);
        Current() = {};
        return true;
    }
    if (RefusesStep(WglStep::MakeCurrent)) return false;
    if (!dc) return FailWith(kErrorInvalidHandle);
    return MakePairCurrent(dc, rc);
}

HGLRC wglGetCurrentContext() {
    return Current().rc;
}

HDC wglGetCurrentDC() {
    return Current().dc;
}

bool wglDeleteContext(HGLRC rc) {
    if (!rc) return FailWith(kErrorInvalidHandle);
    if (Current().rc == rc) wglMakeCurrent(nullptr, nullptr);
    EglDestroy(rc->egl);
    delete rc;
    return true;
}

bool SwapBuffers(HDC dc) {
    if (RefusesStep(WglStep::SwapBuffers)) return false;
    if (!dc || Current().dc != dc) return FailWith(kErrorInvalidHandle);
    const auto surface = Current().rc->surfaces.find(dc->serial);
    if (surface == Current().rc->surfaces.end()) return FailWith(kErrorInvalidHandle);
    surface->second.Read(dc->pixels);
    return true;
}

std::uint32_t GetLastError() {
    return t_error;
}

std::string FormatMessageA(std::uint32_t error) {
    for (const auto& row : kErrorTexts)
        if (row.error == error) return row.text;
    return "Error " + std::to_string(error) + ".";
}
