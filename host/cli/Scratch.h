#pragma once

#include <csignal>
#include <filesystem>
#include <string>

namespace zv::host {

/// A folder for the scratch files of this process, private to its user: below the work folder, or,
/// where that cannot be written, below a work folder of its own in the folder for temporary files.
/// It is removed with this object, and when the process is interrupted or terminated.
/// Signals that the process was started to ignore stay ignored.
///
/// One at a time in a process. REQUIRES: made before any other thread starts, so that all of them
/// leave the signals to this object's.
class Scratch {
  public:
    /// Throws DataError when no folder can be made.
    Scratch();
    ~Scratch();
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    /// Name below the work folder, for CZvDispMap::SetDispFilePath.
    const std::string& Name() const { return m_name; }
    const std::filesystem::path& Folder() const { return m_folder; }

  private:
    bool MakeIn(const std::filesystem::path& parent);
    void MakeInTemporaries();
    void Watch(const sigset_t& ending) const;

    std::string m_name;
    std::filesystem::path m_folder;
    std::filesystem::path m_ownWork; ///< the work folder made for want of a better one
};

} // namespace zv::host
