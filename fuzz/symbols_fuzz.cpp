#include <cstdint>
#include <sstream>

#include "items/SymbolFiles.h"
#include "items/ZvDispSymbols.h"

/// Any bytes as a symbol file: the library stays sound and can be emptied.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    zv::ReadSymbolBlocks(in, size % 5 == 0 ? "1001" : "-1", "");
    for (const int number : std::list<int>(*CZvDispSymbols::S_GetSymbolNumList()))
        CZvDispSymbols::S_DeleteSymbol(number);
    return 0;
}
