#include <algorithm>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/Error.h"
#include "platform/win/Files.h"

namespace zv {
namespace {

namespace fs = std::filesystem;

/// A fault told in errno, with what was tried.
[[noreturn]] void Fail(std::string_view target, const char* attempt) {
    const std::string reason = std::generic_category().message(errno);
    throw DataError(std::string(target), "", std::string(attempt) + ": " + reason);
}

/// An open file descriptor.
class Descriptor {
  public:
    Descriptor(const fs::path& path, int flags)
        : m_number(open(path.c_str(), flags | O_WRONLY | O_CLOEXEC, 0666)) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return m_number >= 0; }
    int Get() const { return m_number; }
    bool Close() { return m_number < 0 || close(std::exchange(m_number, -1)) == 0; }

    bool Write(std::string_view content) const {
        while (!content.empty()) {
            const ssize_t written = write(m_number, content.data(), content.size());
            if (written < 0 && errno != EINTR) {
                return false;
            }
            content.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(written, 0)));
        }
        return true;
    }

  private:
    int m_number;
};

/// A file that goes with this object unless it was renamed.
class TemporaryFile {
  public:
    explicit TemporaryFile(fs::path path)
        : m_path(std::move(path)), m_descriptor(m_path, O_CREAT | O_EXCL),
          m_stays(!m_descriptor.IsOpen()) {}
    ~TemporaryFile() {
        if (!m_stays) {
            unlink(m_path.c_str());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const Descriptor& Get() const { return m_descriptor; }
    /// Brings everything to the disk.
    bool Complete() { return fsync(m_descriptor.Get()) == 0 && m_descriptor.Close(); }
    bool RenameTo(const fs::path& target) {
        m_stays = std::rename(m_path.c_str(), target.c_str()) == 0;
        return m_stays;
    }

  private:
    fs::path m_path;
    Descriptor m_descriptor;
    bool m_stays; ///< it could not be made, or is the target now
};

/// A name beside the target that is this process's own, and short whatever the target's length.
fs::path NameBeside(const fs::path& target) {
    static std::atomic<unsigned> count = 0;
    return target.parent_path() /
           (".zvdisp-" + std::to_string(getpid()) + "-" + std::to_string(++count));
}

/// The file behind a link, so that the rename replaces the file and not the link.
fs::path BehindLinks(const fs::path& path) {
    std::error_code code;
    fs::path target = fs::is_symlink(path, code) ? fs::canonical(path, code) : path;
    return code ? path : target;
}

/// Devices and pipes hold nothing that could get lost, and must not be renamed away.
void WriteInPlace(std::string_view name, const fs::path& target, std::string_view content) {
    Descriptor file(target, 0);
    if (!file.IsOpen() || !file.Write(content) || !file.Close()) {
        Fail(name, "cannot write");
    }
}

void WriteBeside(std::string_view name, const fs::path& target, std::string_view content) {
    TemporaryFile file(NameBeside(target));
    if (!file.Get().IsOpen()) {
        Fail(name, "cannot write beside it");
    }
    struct stat old;
    const bool keepsRights = stat(target.c_str(), &old) == 0;
    if (keepsRights && fchmod(file.Get().Get(), old.st_mode & 07777) != 0) {
        Fail(name, "cannot keep its rights");
    }
    if (!file.Get().Write(content) || !file.Complete()) {
        Fail(name, "cannot write");
    }
    if (!file.RenameTo(target)) {
        Fail(name, "cannot replace");
    }
}

} // namespace

void WriteFileAtomically(std::string_view path, std::string_view content) {
    const fs::path target = BehindLinks(NativePath(path));
    std::error_code ignored;
    switch (fs::status(target, ignored).type()) {
    case fs::file_type::directory: errno = EISDIR; Fail(path, "cannot write");
    case fs::file_type::character:
    case fs::file_type::block:
    case fs::file_type::fifo:
    case fs::file_type::socket: WriteInPlace(path, target, content); break;
    default: WriteBeside(path, target, content);
    }
}

} // namespace zv
