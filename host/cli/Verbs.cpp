#include "cli/Verbs.h"

#include <cstdio>

#include "cli/Progress.h"
#include "platform/Error.h"
#include "platform/Numbers.h"
#include "platform/zvlogs/ZvLog.h"

namespace zv::host {

namespace {

constexpr std::size_t kMaxReasons = 20; ///< told of one source

void Tell(const SourceReport& source) {
    std::size_t told = 0;
    for (const auto& [reason, count] : source.reasons) {
        if (++told > kMaxReasons) break;
        std::fprintf(stderr, "zvdisp: %s: %lld of %lld rows: %s\n", source.name.c_str(), count,
                     source.rows, reason.c_str());
    }
    if (source.reasons.size() > kMaxReasons)
        std::fprintf(stderr, "zvdisp: %s: and %zu reasons more\n", source.name.c_str(),
                     source.reasons.size() - kMaxReasons);
}

} // namespace

void SetLog(bool quiet) {
    CZvLog::S_SetConsole(!quiet);
}

void TellRejected(const LoadReport& report, bool quiet) {
    if (quiet) return;
    for (const SourceReport& source : report.sources)
        Tell(source);
}

void PutOut(const std::string& text) {
    if (std::fwrite(text.data(), 1, text.size(), stdout) != text.size() || std::fflush(stdout) != 0)
        throw DataError("standard output", "", "cannot be written");
}

std::unique_ptr<MapDocument> OpenMap(const std::string& path, const std::string& data,
                                     const std::string& scratch, bool quiet) {
    Progress progress(quiet);
    return MapDocument::Open({path, data, scratch,
                              [&progress](const std::string& what, long long done,
                                          long long total) { progress.Show(what, done, total); }});
}

} // namespace zv::host
