#include "platform/win/Files.h"

#include <algorithm>
#include <cerrno>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <utility>

#include "platform/zvcom/ZvUtRegistry.h"

namespace zv {
namespace {

namespace fs = std::filesystem;

char Lower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool IsLetter(char c) {
    return Lower(c) >= 'a' && Lower(c) <= 'z';
}

bool SameButCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Lower(x) == Lower(y); });
}

/// "C:\MAPS" under the work folder: "<work>/drive_c/MAPS".
std::string UnderDriveFolder(std::string_view path) {
    const std::string work = CZvUtRegistry::GetRegistry(CZvUtRegistry::S_GetWorkPath(),
                                                        CZvUtRegistry::S_GetWorkKey(), false);
    return work + "/drive_" + Lower(path[0]) + '/' + std::string(path.substr(2));
}

/// The path with this system's separators and without drive letter.
std::string WithoutDrive(std::string_view path) {
    const bool hasDrive = path.size() >= 2 && path[1] == ':' && IsLetter(path[0]);
    std::string native = hasDrive ? UnderDriveFolder(path) : std::string(path);
    std::replace(native.begin(), native.end(), '\\', '/');
    return native;
}

bool Exists(const fs::path& path) {
    struct stat ignored;
    return lstat(path.c_str(), &ignored) == 0;
}

/// The name in a folder that differs from `name` only in case, the first by byte order of several.
std::optional<fs::path> FindOtherCase(const fs::path& folder, const std::string& name) {
    std::optional<fs::path> found;
    std::error_code code;
    for (fs::directory_iterator at(folder.empty() ? "." : folder, code), end; !code && at != end;
         at.increment(code)) {
        const fs::path candidate = at->path().filename();
        if (SameButCase(candidate.native(), name) && (!found || candidate < *found)) {
            found = candidate;
        }
    }
    return found;
}

/// The path with each piece spelled as it stands on the disk, as far as it does.
fs::path WithSpellingOfDisk(const fs::path& path) {
    fs::path spelled;
    bool exists = true;
    for (const fs::path& piece : path) {
        fs::path next = spelled / piece;
        if (exists && !piece.empty() && !Exists(next)) {
            const std::optional<fs::path> other = FindOtherCase(spelled, piece.native());
            exists = other.has_value();
            next = spelled / other.value_or(piece);
        }
        spelled = std::move(next);
    }
    return spelled;
}

} // namespace

fs::path NativePath(std::string_view path) {
    fs::path native = WithoutDrive(path);
    return native.empty() || Exists(native) ? native : WithSpellingOfDisk(native);
}

std::FILE* OpenFile(std::string_view path, const char* mode) {
    if (path.find('\0') != std::string_view::npos) {
        errno = EINVAL;
        return nullptr;
    }
    std::string binary(mode);
    if (binary.find('b') == std::string::npos) {
        binary += 'b';
    }
    return std::fopen(NativePath(path).c_str(), binary.c_str());
}

bool MakeFolder(std::string_view path) {
    const fs::path native = NativePath(path);
    std::error_code ignored;
    if (fs::is_directory(native, ignored)) {
        return true;
    }
    constexpr mode_t kOwnerOnly = 0700;
    fs::path above;
    for (const fs::path& piece : native) {
        above /= piece;
        mkdir(above.c_str(), kOwnerOnly);
    }
    return fs::is_directory(native, ignored);
}

} // namespace zv
