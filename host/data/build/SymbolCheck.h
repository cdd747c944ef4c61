#pragma once

#include <string>

#include "data/project/Project.h"

namespace zv::host {

/// Whether the library that is loaded has a symbol. An unknown name is none, even where the library
/// would put a stand-in.
bool SymbolIsThere(const SymbolRef& symbol);

/// Its number or its name, for messages.
std::string SymbolText(const SymbolRef& symbol);

/// Throws DataError (file, JSON pointer, reason) on a symbol that a project names and the library
/// lacks. REQUIRES: the project's own symbol files are loaded.
void CheckSymbols(const Project& project, const std::string& file);

} // namespace zv::host
