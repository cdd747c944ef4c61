#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <list>
#include <span>
#include <string>

#include "persist/RecordStream.h"

namespace zv {

/// A file that grows at its end by records, is overwritten in place and read by large pieces. It
/// lasts as long as this object: the first opening for writing truncates what a former file of that
/// name left.
///
/// Records are gathered in memory. A young file writes each time it has doubled, so that a full
/// disk shows at the first record; later it writes 256 KiB at a time.
///
/// Of all scratch files of the process at most kOpenFiles are really open. Others are closed and
/// opened again behind the caller's back, so a map may have more lists than the process may have
/// files. Not for use from two threads.
class ScratchFile {
  public:
    static constexpr std::size_t kOpenFiles = 16;

    ScratchFile() = default;
    /// Writes what is pending, as far as that works, and closes. The file stays on disk.
    ~ScratchFile();
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;

    /// Names the file, in the engine's spelling; another name closes the one before. False when
    /// what was pending for that one could not be written and was dropped.
    bool SetName(const std::string& name);
    const std::string& Name() const { return m_name; }

    /// Whether the file is open and still there under its name. One that was deleted is closed and
    /// counts as never made: nothing is written or pending, and the next opening for writing starts
    /// it anew.
    bool IsOpen();
    /// Makes sure that the file can be written; the first call truncates it. False when it cannot
    /// be opened. One that is gone is made anew.
    bool OpenForWrite();
    /// Makes sure that the file can be read; false when it does not exist.
    bool OpenForRead() { return Ensure(false); }
    /// Closes the file itself; false when pending bytes could not be written and were dropped.
    bool Close();

    /// Where the next record goes: bytes written and bytes pending.
    std::uint64_t Size() const { return m_written + m_pending.Size(); }
    /// Bytes that a write has reached.
    std::uint64_t Written() const { return m_written; }
    /// Append records here, then Commit.
    RecordWriter& Pending() { return m_pending; }
    /// Writes the pending bytes if there are enough of them; Flush in any case, and frees their
    /// memory. False when they cannot be written in full: all that is pending is dropped, and Size
    /// is Written again. REQUIRES: OpenForWrite was true.
    bool Commit();
    bool Flush();
    /// Replaces bytes; false when they could not be written in full.
    /// REQUIRES: they lie before Written().
    bool Overwrite(std::uint64_t offset, std::span<const char> bytes);
    /// Reads up to `size` bytes, fewer at the end of the file or on a fault.
    std::size_t ReadAt(std::uint64_t offset, char* to, std::size_t size);

  private:
    bool Ensure(bool create);
    std::FILE* OpenHandle(const char* mode);
    void CloseHandle();
    void Abandon();
    bool WritePending();
    bool WriteAt(std::uint64_t offset, std::span<const char> bytes);

    std::string m_name;
    std::FILE* m_file = nullptr;
    std::list<ScratchFile*>::iterator m_inPool; // while m_file is open
    RecordWriter m_pending;
    std::uint64_t m_written = 0;
    bool m_made = false; // the first opening for writing is done
};

} // namespace zv
