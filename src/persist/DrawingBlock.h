#pragma once

#include <memory>

class CZvDisplayItem;

namespace zv {

/// The empty item of a record's code; null where the code makes none.
std::unique_ptr<CZvDisplayItem> MakeDrawingItem(int code);

} // namespace zv
