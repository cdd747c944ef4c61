#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "platform/Error.h"
#include "platform/zvset/ZvSettings.h"
#include "platform/zvset/ZvSettingsManager.h"

/// Whatever was read must be written and read again as the same store.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    CZvSettingsManager manager;
    try {
        manager.LoadText(std::string(reinterpret_cast<const char*>(data), size), "fuzz");
    } catch (const zv::DataError&) {
        return 0;
    }
    const std::string saved = manager.SaveText();
    CZvSettingsManager again;
    again.LoadText(saved, "saved");
    if (again.SaveText() != saved) {
        std::abort();
    }
    return 0;
}
