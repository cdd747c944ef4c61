#include <cstddef>
#include <cstdint>
#include <string_view>

#include "data/project/Project.h"
#include "platform/Error.h"

/// A project is read or refused with its file, place and reason; its templates work on any row.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace zv::host;
    Project project;
    try {
        project = ParseProject({reinterpret_cast<const char*>(data), size}, "fuzz");
    } catch (const zv::DataError&) {
        return 0;
    }
    const FieldIndex fields({"A", "B", "LEASE"});
    const std::vector<std::string> values{" 0012 ", "\xC3\xA9", ""};
    const Row row{&fields, &values};
    for (const Source& source : project.sources)
        for (const ItemRule& rule : source.items) {
            rule.id.Expand(row);
            rule.label.Expand(row);
            rule.where.Holds(row);
        }
    return 0;
}
