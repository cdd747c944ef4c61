#pragma once

#include <filesystem>
#include <fstream>
#include <string_view>

#include "platform/Export.h"

namespace zv {

/// A binary output stream beside its target, which takes the target's place when it is committed.
/// Without a commit nothing of it stays and the target is as it was.
class ZVDISP_API AtomicFile {
  public:
    /// Opens the temporary file; Stream() is bad when that fails.
    explicit AtomicFile(std::string_view path);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    std::ostream& Stream() { return m_out; }
    /// Closes and renames; false when anything of it failed, and then the target stands as it was.
    bool Commit();

  private:
    std::filesystem::path m_target;
    std::filesystem::path m_temporary;
    std::ofstream m_out;
    bool m_committed = false;
};

} // namespace zv
