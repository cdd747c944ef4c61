#pragma once

#include <memory>

#include "platform/Export.h"
#include "platform/wgl/Wgl.h"

namespace zv {

/// What a user of a rendering context keeps with it; it dies with the context, which need not be
/// current then (the driver frees display lists by itself).
class ContextData {
  public:
    virtual ~ContextData() = default;
};

/// Borrowed; null when nothing is attached or `rc` is null.
ContextData* GetContextData(HGLRC rc);
/// Replaces what was attached. REQUIRES: rc is not null.
void SetContextData(HGLRC rc, std::unique_ptr<ContextData> data);

} // namespace zv
