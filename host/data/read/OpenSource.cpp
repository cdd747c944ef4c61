#include <filesystem>
#include <fstream>

#include "data/read/CoastReader.h"
#include "data/read/FeatureReader.h"
#include "data/read/OgrReader.h"
#include "data/read/SpsReader.h"
#include "platform/Error.h"

namespace zv::host {

std::string SourcePath(const std::string& file, const std::string& member,
                       const std::string& folder) {
    const std::string path = (std::filesystem::path(folder) / file).lexically_normal().string();
    if (member.empty()) return path;
    return "/vsizip/{" + path + "}/" + member;
}

std::unique_ptr<FeatureReader> OpenSource(const Source& source, const std::string& folder) {
    const std::string path = SourcePath(source.file, source.member, folder);
    if (source.coast)
        return std::make_unique<CoastReader>(std::make_unique<OgrReader>(source, path),
                                             *source.coast, source.where);
    if (!source.sps) return std::make_unique<OgrReader>(source, path);
    auto in = std::make_unique<std::ifstream>(path, std::ios::binary);
    if (!*in) throw DataError(path, "", "cannot be opened");
    return std::make_unique<SpsReader>(std::move(in));
}

} // namespace zv::host
