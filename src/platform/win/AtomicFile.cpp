#include "platform/win/AtomicFile.h"

#include <unistd.h>

#include <string>

#include "platform/win/Files.h"

namespace zv {

namespace {

/// What the path leads to, links followed.
std::filesystem::path Resolved(std::string_view path) {
    std::error_code error;
    std::filesystem::path target = std::filesystem::weakly_canonical(NativePath(path), error);
    return error ? NativePath(path) : target;
}

/// Devices and pipes are written in place: nothing could take their place by name.
bool IsInPlace(const std::filesystem::path& target) {
    std::error_code ignored;
    const auto status = std::filesystem::status(target, ignored);
    return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status);
}

std::filesystem::path Beside(const std::filesystem::path& target) {
    static unsigned count = 0;
    std::filesystem::path path = target;
    path += ".part" + std::to_string(::getpid()) + "-" + std::to_string(++count);
    return path;
}

} // namespace

AtomicFile::AtomicFile(std::string_view path)
    : m_target(Resolved(path)), m_temporary(IsInPlace(m_target) ? m_target : Beside(m_target)),
      m_out(m_temporary, std::ios::binary | std::ios::trunc) {}

AtomicFile::~AtomicFile() {
    if (m_committed || m_temporary == m_target) return;
    m_out.close();
    std::error_code ignored;
    std::filesystem::remove(m_temporary, ignored);
}

bool AtomicFile::Commit() {
    m_out.close();
    if (!m_out) return false;
    if (m_temporary == m_target) return m_committed = true;
    std::error_code error;
    std::filesystem::rename(m_temporary, m_target, error);
    m_committed = !error;
    return m_committed;
}

} // namespace zv
