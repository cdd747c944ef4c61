#include "cli/Progress.h"

#include <unistd.h>

#include <algorithm>
#include <cstdio>

#include "platform/Numbers.h"

namespace zv::host {
namespace {

constexpr long long kBarWidth = 30;

std::string Bar(long long done, long long total) {
    const long long filled = std::min(kBarWidth, done * kBarWidth / std::max(total, 1LL));
    return "[" + std::string(std::size_t(filled), '#') +
           std::string(std::size_t(kBarWidth - filled), ' ') + "]";
}

} // namespace

Progress::Progress(bool quiet) : m_on(!quiet && isatty(STDERR_FILENO) == 1) {}

Progress::~Progress() {
    Clear();
}

void Progress::Show(const std::string& what, long long done, long long total) {
    if (!m_on) return;
    std::string line = what + " " + FormatInt(done);
    if (total > 0) line = Bar(done, total) + " " + line;
    if (line == m_shown) return;
    m_shown = line;
    std::fprintf(stderr, "\r\x1b[K%s", line.c_str());
    std::fflush(stderr);
}

void Progress::Clear() {
    if (m_shown.empty()) return;
    std::fputs("\r\x1b[K", stderr);
    std::fflush(stderr);
    m_shown.clear();
}

} // namespace zv::host
