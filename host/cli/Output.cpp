#include "cli/Output.h"

#include <unistd.h>

#include <filesystem>

#include "data/MapDocument.h"
#include "platform/Error.h"

namespace zv::host {
namespace {

namespace fs = std::filesystem;

void CheckFolder(const fs::path& output) {
    std::error_code fault;
    const fs::path parent = output.parent_path();
    const fs::path folder = parent.empty() ? fs::path(".") : parent;
    if (!fs::is_directory(folder, fault))
        throw DataError(output.string(), "", "its folder cannot be found");
    if (access(folder.c_str(), W_OK | X_OK) != 0)
        throw DataError(output.string(), "", "its folder cannot be written");
    if (fs::is_directory(output, fault))
        throw DataError(output.string(), "", "is a folder, not a file");
}

} // namespace

void CheckOutput(const std::string& output, const std::vector<std::string>& inputs) {
    const fs::path path(output);
    for (const std::string& input : inputs) {
        std::error_code fault;
        if (fs::equivalent(path, input, fault))
            throw DataError(output, "", "is read by this map, so no picture is written over it");
    }
    if (path.extension() != ".png")
        throw DataError("--output", "", "\"" + output + "\" does not end in .png");
    CheckFolder(path);
}

std::vector<std::string> InputsOf(const std::string& map, const std::string& data) {
    std::vector<std::string> inputs;
    if (KindOf(map) == MapKind::Project) inputs = CheckFiles(ReadProject(map), map, data);
    inputs.push_back(map);
    return inputs;
}

} // namespace zv::host
