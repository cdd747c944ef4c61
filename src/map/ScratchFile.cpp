#include "map/ScratchFile.h"

#include <algorithm>
#include <cerrno>

#include "platform/win/Files.h"

namespace zv {

namespace {

constexpr std::uint64_t kWriteSize = 256 * 1024;

/// The open files of the process, the one used last in front.
std::list<ScratchFile*>& Pool() {
    static auto& pool = *new std::list<ScratchFile*>; // outlives a map of a global
    return pool;
}

bool NoMoreHandles(int error) {
    return error == EMFILE || error == ENFILE;
}

} // namespace

ScratchFile::~ScratchFile() {
    Close();
}

bool ScratchFile::SetName(const std::string& name) {
    if (name == m_name) return true;
    const bool written = Close();
    m_name = name;
    return written;
}

bool ScratchFile::IsOpen() {
    if (m_file && !HasName(m_file)) Abandon();
    return m_file != nullptr;
}

bool ScratchFile::OpenForWrite() {
    if (!Ensure(true)) return false;
    m_made = true;
    return true;
}

// The file was deleted: what it held is gone with it, and so is what was to follow.
void ScratchFile::Abandon() {
    m_pending.Truncate(0);
    CloseHandle();
    m_written = 0;
    m_made = false;
}

// Gives the file a handle. One handle serves both ways: each transfer names its place.
bool ScratchFile::Ensure(bool create) {
    if (m_file && create && !m_made) CloseHandle(); // what a former file left is to be truncated
    if (m_file) {
        Pool().splice(Pool().begin(), Pool(), m_inPool);
        return true;
    }
    if (create && !m_made) {
        m_file = OpenHandle("w+b");
        m_written = 0;
    } else {
        m_file = OpenHandle("r+b");
        if (!m_file && create && errno == ENOENT && m_pending.Size() == 0) {
            m_file = OpenHandle("w+b"); // it was deleted, and what it held with it
            m_written = 0;
        }
    }
    if (!m_file) return false;
    std::setvbuf(m_file, nullptr, _IONBF, 0);
    m_inPool = Pool().insert(Pool().begin(), this);
    return true;
}

std::FILE* ScratchFile::OpenHandle(const char* mode) {
    while (Pool().size() >= kOpenFiles)
        Pool().back()->CloseHandle();
    for (;;) {
        std::FILE* const file = OpenFile(m_name, mode);
        if (file || !NoMoreHandles(errno) || Pool().empty()) return file;
        Pool().back()->CloseHandle();
    }
}

// Pending bytes that cannot be written now stay pending: their own list shall hear of it.
void ScratchFile::CloseHandle() {
    if (!m_file) return;
    if (WriteAt(m_written, m_pending.Bytes())) {
        m_written += m_pending.Size();
        m_pending.Release();
    }
    std::fclose(m_file);
    m_file = nullptr;
    Pool().erase(m_inPool);
}

bool ScratchFile::Close() {
    const bool written = Flush();
    CloseHandle();
    return written;
}

bool ScratchFile::Commit() {
    const std::uint64_t enough = std::max<std::uint64_t>(std::min(kWriteSize, m_written), 1);
    return m_pending.Size() < enough || WritePending();
}

bool ScratchFile::Flush() {
    const bool written = WritePending();
    m_pending.Release();
    return written;
}

bool ScratchFile::WritePending() {
    if (m_pending.Size() == 0) return true;
    const bool written = Ensure(true) && WriteAt(m_written, m_pending.Bytes());
    if (written) m_written += m_pending.Size();
    m_pending.Truncate(0);
    return written;
}

bool ScratchFile::Overwrite(std::uint64_t offset, std::span<const char> bytes) {
    return Ensure(false) && WriteAt(offset, bytes);
}

bool ScratchFile::WriteAt(std::uint64_t offset, std::span<const char> bytes) {
    return bytes.empty() || zv::WriteAt(m_file, offset, bytes);
}

std::size_t ScratchFile::ReadAt(std::uint64_t offset, char* to, std::size_t size) {
    return Ensure(false) ? zv::ReadAt(m_file, offset, {to, size}) : 0;
}

} // namespace zv
