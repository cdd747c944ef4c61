#pragma once

#include <memory>
#include <ostream>
#include <string>
#include <string_view>

#include "platform/Export.h"

namespace zv {

/// An output stream beside its target, which takes the target's place, with its rights, when it is
/// committed. Without a commit nothing of it stays and the target is as it was. Links are followed;
/// devices and pipes are written in place.
class ZVDISP_API AtomicFile {
  public:
    /// Opens the file beside the target; Stream() is bad when that fails.
    explicit AtomicFile(std::string_view path);
    ~AtomicFile();
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;

    std::ostream& Stream();
    /// Brings everything to the disk and renames; false when anything of it failed, and then the
    /// target stands as it was.
    bool Commit();
    /// What failed, and the system's reason; empty while nothing has.
    const std::string& Reason() const;

  private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace zv
