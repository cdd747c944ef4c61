#include <cstdint>
#include <string_view>

#include "platform/Error.h"
#include "platform/zvcom/LayerCatalogue.h"

/// Any bytes as a layer catalogue: a catalogue or an error, never anything else.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        zv::ParseLayerCatalogue({reinterpret_cast<const char*>(data), size}, "fuzz");
    } catch (const zv::DataError&) {
        return 0;
    }
    return 0;
}
