#include "platform/Share.h"

#include <dlfcn.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <system_error>

#ifndef ZVDISP_INSTALL_SHARE
#define ZVDISP_INSTALL_SHARE ""
#endif
#ifndef ZVDISP_SOURCE_SHARE
#define ZVDISP_SOURCE_SHARE ""
#endif

namespace zv {
namespace {

namespace fs = std::filesystem;

fs::path FromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value ? fs::path(value) : fs::path();
}

bool IsFolder(const fs::path& path) {
    std::error_code ignored;
    return !path.empty() && fs::is_directory(path, ignored);
}

/// File of the library, or of the program that it was linked into.
fs::path OwnFile() {
    Dl_info info{};
    if (!dladdr(reinterpret_cast<void*>(&ShareFolder), &info) || !info.dli_fname) return {};
    std::error_code error;
    fs::path file = fs::canonical(info.dli_fname, error);
    return error ? fs::path() : file;
}

/// "share/zvdisp" beside one of the folders above the library: an installed tree can be moved, and
/// one that is being worked on is never mixed up with an installed one.
fs::path BesideOwnFile() {
    constexpr int kLevels = 4; // <prefix>/lib/<machine>/libzvdisp.so
    fs::path folder = OwnFile().parent_path();
    for (int i = 0; i < kLevels && !folder.empty(); ++i, folder = folder.parent_path())
        if (const fs::path share = folder / "share" / "zvdisp"; IsFolder(share)) return share;
    return {};
}

struct CloseStream {
    void operator()(std::FILE* stream) const { std::fclose(stream); }
};
using Stream = std::unique_ptr<std::FILE, CloseStream>;

void RequireRegularFile(const fs::path& path) {
    std::error_code code;
    const fs::file_status status = fs::status(path, code);
    if (status.type() == fs::file_type::not_found)
        throw DataError(path.string(), "", std::strerror(ENOENT));
    if (code) throw DataError(path.string(), "", code.message());
    if (status.type() != fs::file_type::regular)
        throw DataError(path.string(), "", "not a regular file");
}

} // namespace

fs::path ShareFolder() {
    if (fs::path folder = FromEnvironment("ZVDISP_SHARE"); !folder.empty()) return folder;
    static const fs::path beside = BesideOwnFile();
    if (!beside.empty()) return beside;
    if (fs::path folder = ZVDISP_INSTALL_SHARE; IsFolder(folder)) return folder;
    return ZVDISP_SOURCE_SHARE;
}

fs::path UserConfigFolder() {
    if (fs::path folder = FromEnvironment("ZVDISP_CONFIG"); !folder.empty()) return folder;
    if (fs::path base = FromEnvironment("XDG_CONFIG_HOME"); base.is_absolute())
        return base / "zvdisp";
    if (fs::path home = FromEnvironment("HOME"); !home.empty()) return home / ".config" / "zvdisp";
    return {};
}

fs::path FindDataFile(std::string_view name) {
    if (const fs::path own = UserConfigFolder(); !own.empty()) {
        std::error_code ignored;
        if (fs::is_regular_file(own / name, ignored)) return own / name;
    }
    return ShareFolder() / name;
}

std::string ReadWholeFile(const fs::path& path) {
    RequireRegularFile(path);
    const Stream stream(std::fopen(path.c_str(), "rb"));
    if (!stream) throw DataError(path.string(), "", std::strerror(errno));
    std::string content;
    char block[1 << 16];
    while (const std::size_t got = std::fread(block, 1, sizeof block, stream.get()))
        content.append(block, got);
    if (std::ferror(stream.get())) throw DataError(path.string(), "", std::strerror(errno));
    return content;
}

} // namespace zv
