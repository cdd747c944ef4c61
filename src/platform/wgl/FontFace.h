#pragma once

#include <memory>
#include <string>

#include "platform/wgl/Wgl.h"

struct FT_FaceRec_;

namespace zv {

/// Closes a face of FreeType.
struct FaceCloser {
    void operator()(FT_FaceRec_* face) const;
};
using FacePtr = std::unique_ptr<FT_FaceRec_, FaceCloser>;

/// The scalable face that fontconfig finds for the request, or the nearest to it; null when there
/// is none at all.
FacePtr OpenFace(const FontRequest& request);

} // namespace zv
