#pragma once

#include <istream>
#include <string>

/// The files that fill the symbol library.
namespace zv {

/// Folder of the installation's symbol files, with a "\" behind it.
std::string SymbolHomePath();

/// Runs the load sequence of the installation's and the user's symbol files. It runs again only
/// after ForgetLoadedSymbolFiles or when the registry's folders have changed.
void LoadSymbolFilesOnce();

void ForgetLoadedSymbolFiles();

/// Reads the blocks of a symbol file into the library: all of them, each behind its head, or with a
/// number one block without a head. False on a bad record, which has been shown to the user; what
/// was stored before stays.
bool ReadSymbolBlocks(std::istream& in, const std::string& number, const std::string& description);

} // namespace zv
