#pragma once

#include <map>
#include <memory>
#include <optional>

#include "items/ZvDisplayItem.h"
#include "map/GridIndex.h"
#include "map/ItemStore.h"
#include "map/TextIndex.h"
#include "map/ZvDispCult.h"

class CZvDispGL;
class CZvDisplayContext;

/// What a culture list is made of. Shared by the sources of CZvDispCult alone.
struct CZvDispCult::Impl {
    explicit Impl(const zv::ListPlace& place);

    zv::ItemStore store;
    zv::TextIndex ids;  // in layers that have a secondary index
    zv::GridIndex grid; // under memory control
    std::map<unsigned, std::unique_ptr<CZvDisplayItem>> retained;
    CZvDisplayContext* context = nullptr;
    bool visible = true;
    std::optional<bool> hasIDs; // whether the layer has a secondary index; asked once
};

namespace zv {

/// The context as the OpenGL context that its flag says it is; null for any other.
CZvDispGL* AsOpenGL(CZvDisplayContext* context);

} // namespace zv
