#pragma once

#include <string>
#include <string_view>

#include "platform/zvset/SettingsTree.h"

namespace zv {

/// Reads a tree from JSON: objects, texts, numbers, true and false. A "\" in a name is as good as
/// an object within an object. Refused are null, arrays, a key given twice, and more than
/// SettingsTree::kMaxDepth levels. Throws zv::DataError with `name` as its file, a JSON pointer or
/// line and column, and the reason.
SettingsTree ReadSettingsJson(std::string_view json, const std::string& name);

/// The tree as JSON with one key on a line, in the order of the keys.
std::string WriteSettingsJson(const SettingsTree& tree);

} // namespace zv
