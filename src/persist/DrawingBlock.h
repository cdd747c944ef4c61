#pragma once

#include <memory>
#include <string>

class CZvDisplayItem;

namespace zv {

class DrawingReader;

/// The empty item of a record's code; null where the code makes none.
std::unique_ptr<CZvDisplayItem> MakeDrawingItem(int code);

/// Reads the rest of a description record behind "NUM:": the text, cut at the length that it tells.
int ReadDescription(DrawingReader& in, std::string& description);

} // namespace zv
