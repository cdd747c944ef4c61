#include "platform/win/AtomicFile.h"

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <fcntl.h>
#include <streambuf>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

#include "platform/Error.h"
#include "platform/win/Files.h"

namespace zv {
namespace {

namespace fs = std::filesystem;

/// An open file descriptor.
class Descriptor {
  public:
    Descriptor(const fs::path& path, int flags)
        : m_number(open(path.c_str(), flags | O_WRONLY | O_CLOEXEC, 0666)),
          m_openError(m_number < 0 ? errno : 0) {}
    ~Descriptor() { Close(); }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool IsOpen() const { return m_number >= 0; }
    int Get() const { return m_number; }
    /// The system's number for why it is not open, 0 for nothing.
    int OpenError() const { return m_openError; }
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
    int m_openError;
};

/// A file that goes with this object unless it was renamed.
class TemporaryFile {
  public:
    /// `stays`: the file is there already and is written in place.
    TemporaryFile(fs::path path, bool stays)
        : m_path(std::move(path)), m_descriptor(m_path, stays ? 0 : O_CREAT | O_EXCL),
          m_inPlace(stays), m_stays(stays || !m_descriptor.IsOpen()) {}
    ~TemporaryFile() {
        if (!m_stays) {
            unlink(m_path.c_str());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    const Descriptor& Get() const { return m_descriptor; }
    /// Brings everything to the disk.
    bool Complete() {
        return (m_inPlace || fsync(m_descriptor.Get()) == 0) && m_descriptor.Close();
    }
    bool RenameTo(const fs::path& target) {
        m_stays = std::rename(m_path.c_str(), target.c_str()) == 0;
        return m_stays;
    }

  private:
    fs::path m_path;
    Descriptor m_descriptor;
    bool m_inPlace;
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

/// Writes blocks to a descriptor; after a failure everything more fails.
class DescriptorBuffer : public std::streambuf {
  public:
    explicit DescriptorBuffer(const Descriptor& file) : m_file(file), m_block(1 << 16) {
        setp(m_block.data(), m_block.data() + m_block.size());
    }

    /// The system's number for what failed, 0 for nothing.
    int Error() const { return m_error; }

  protected:
    int_type overflow(int_type c) override {
        if (sync() != 0) return traits_type::eof();
        if (!traits_type::eq_int_type(c, traits_type::eof())) sputc(traits_type::to_char_type(c));
        return traits_type::not_eof(c);
    }
    int sync() override {
        const std::string_view pending(pbase(), static_cast<std::size_t>(pptr() - pbase()));
        setp(m_block.data(), m_block.data() + m_block.size());
        if (m_error == 0 && !m_file.Write(pending)) m_error = errno;
        return m_error == 0 ? 0 : -1;
    }

  private:
    const Descriptor& m_file;
    std::vector<char> m_block;
    int m_error = 0;
};

/// Devices and pipes hold nothing that could get lost, and must not be renamed away.
bool IsWrittenInPlace(const fs::path& target) {
    std::error_code ignored;
    const fs::file_status status = fs::status(target, ignored);
    return fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status);
}

} // namespace

struct AtomicFile::Impl {
    explicit Impl(std::string_view path)
        : target(BehindLinks(NativePath(path))), inPlace(IsWrittenInPlace(target)),
          file(inPlace ? target : NameBeside(target), inPlace), buffer(file.Get()),
          stream(&buffer) {
        if (!file.Get().IsOpen()) {
            errno = file.Get().OpenError();
            Fail(inPlace ? "cannot write" : "cannot write beside it");
        }
        if (std::error_code ignored; fs::is_directory(target, ignored)) {
            errno = EISDIR;
            Fail("cannot write");
        }
        KeepRights();
    }

    bool Fail(const char* attempt) {
        if (reason.empty())
            reason = std::string(attempt) + ": " + std::generic_category().message(errno);
        stream.setstate(std::ios::badbit);
        return false;
    }

    void KeepRights() {
        struct stat old;
        if (inPlace || stat(target.c_str(), &old) != 0 || !file.Get().IsOpen()) return;
        if (fchmod(file.Get().Get(), old.st_mode & 07777) != 0) Fail("cannot keep its rights");
    }

    bool Commit() {
        if (!reason.empty()) return false;
        stream.flush();
        errno = buffer.Error();
        if (errno != 0 || !file.Complete()) return Fail("cannot write");
        return inPlace || file.RenameTo(target) || Fail("cannot replace");
    }

    fs::path target;
    bool inPlace;
    TemporaryFile file;
    DescriptorBuffer buffer;
    std::ostream stream;
    std::string reason;
};

AtomicFile::AtomicFile(std::string_view path) : m_impl(std::make_unique<Impl>(path)) {}
AtomicFile::~AtomicFile() = default;
std::ostream& AtomicFile::Stream() {
    return m_impl->stream;
}
bool AtomicFile::Commit() {
    return m_impl->Commit();
}
const std::string& AtomicFile::Reason() const {
    return m_impl->reason;
}

void WriteFileAtomically(std::string_view path, std::string_view content) {
    AtomicFile file(path);
    file.Stream().write(content.data(), static_cast<std::streamsize>(content.size()));
    if (!file.Commit()) throw DataError(std::string(path), "", file.Reason());
}

} // namespace zv
