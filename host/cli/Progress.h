#pragma once

#include <string>

namespace zv::host {

/// Progress on standard error: a bar that redraws itself where that is a terminal, nothing where it
/// is not, or when told to be quiet.
class Progress {
  public:
    explicit Progress(bool quiet);
    ~Progress();

    /// `total` -1: unknown.
    void Show(const std::string& what, long long done, long long total);
    void Clear();

  private:
    bool m_on;
    std::string m_shown;
};

} // namespace zv::host
