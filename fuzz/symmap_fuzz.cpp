#include <cstdint>
#include <cstdlib>
#include <sstream>

#include "items/SymbolMap.h"

/// Any bytes as a file of symbol names: names are short, upper case and never empty.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    CZvDispSymbolMap::Names names;
    CZvDispSymbolMap::ReadNames(in, names);
    for (const auto& [name, number] : names)
        if (name.empty() || name.size() > 6) std::abort();
    return 0;
}
