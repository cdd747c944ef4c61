#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "platform/win/Files.h"

namespace zv {

namespace {

/// Goes on after a signal; what a call gave otherwise, 0 at an end and negative on a fault.
template<class Call>
ssize_t Uninterrupted(Call&& call) {
    ssize_t done = call();
    while (done < 0 && errno == EINTR)
        done = call();
    return done;
}

} // namespace

std::size_t ReadAt(std::FILE* file, std::uint64_t offset, std::span<char> to) {
    std::size_t got = 0;
    while (got < to.size()) {
        const ssize_t more = Uninterrupted([&] {
            return pread(fileno(file), to.data() + got, to.size() - got,
                         static_cast<off_t>(offset + got));
        });
        if (more <= 0) break;
        got += static_cast<std::size_t>(more);
    }
    return got;
}

bool WriteAt(std::FILE* file, std::uint64_t offset, std::span<const char> bytes) {
    std::size_t done = 0;
    while (done < bytes.size()) {
        const ssize_t more = Uninterrupted([&] {
            return pwrite(fileno(file), bytes.data() + done, bytes.size() - done,
                          static_cast<off_t>(offset + done));
        });
        if (more <= 0) return false;
        done += static_cast<std::size_t>(more);
    }
    return true;
}

bool HasName(std::FILE* file) {
    struct stat state;
    return fstat(fileno(file), &state) == 0 && state.st_nlink > 0;
}

} // namespace zv
