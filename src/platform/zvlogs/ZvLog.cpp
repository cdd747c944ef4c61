#include "platform/zvlogs/ZvLog.h"

#include <algorithm>
#include <memory>
#include <spdlog/logger.h>
#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/stdout_sinks.h>
#include <utility>
#include <vector>

#include "platform/Error.h"
#include "platform/win/Files.h"

namespace {

constexpr int kWarning = 101;
constexpr int kNote = 103;
constexpr std::size_t kFileBytes = 5'000'000;
constexpr std::size_t kOlderFiles = 2;

struct Heard {
    int number;
    CZvLog::Listener listener;
};

/// Where lines go.
struct Targets {
    std::shared_ptr<spdlog::logger> console, file;
    std::vector<std::shared_ptr<const Heard>> listeners;
    int lastListener = 0;
};

Targets& GetTargets() {
    // Never destroyed: objects that die at the end of the process still log.
    static Targets& targets = *new Targets;
    return targets;
}

std::shared_ptr<spdlog::logger> MakeLogger(spdlog::sink_ptr sink, const char* pattern) {
    auto logger = std::make_shared<spdlog::logger>("zvdisp", std::move(sink));
    logger->set_pattern(pattern);
    logger->set_level(spdlog::level::trace);
    logger->flush_on(spdlog::level::trace);
    return logger;
}

spdlog::level::level_enum Severity(int level) {
    if (level == kWarning) {
        return spdlog::level::warn;
    }
    return level == kNote ? spdlog::level::info : spdlog::level::debug;
}

} // namespace

void CZvLog::Output(const std::string& text, int level, bool flag) {
    Targets& targets = GetTargets();
    if (targets.console && level == kWarning) {
        targets.console->log(Severity(level), text);
    }
    if (targets.file) {
        targets.file->log(Severity(level), text);
    }
    if (targets.listeners.empty()) {
        return;
    }
    // A listener may attach or remove listeners.
    for (const auto listeners = targets.listeners; const auto& heard : listeners) {
        heard->listener(text, level, flag);
    }
}

int CZvLog::S_AddListener(Listener listener) {
    Targets& targets = GetTargets();
    const int number = ++targets.lastListener;
    targets.listeners.push_back(std::make_shared<const Heard>(Heard{number, std::move(listener)}));
    return number;
}

void CZvLog::S_RemoveListener(int number) {
    std::erase_if(GetTargets().listeners,
                  [number](const auto& heard) { return heard->number == number; });
}

void CZvLog::S_SetConsole(bool on) {
    GetTargets().console =
        on ? MakeLogger(std::make_shared<spdlog::sinks::stderr_sink_st>(), "%v") : nullptr;
}

void CZvLog::S_SetFile(const std::string& path) {
    if (path.empty()) {
        GetTargets().file = nullptr;
        return;
    }
    try {
        const std::string native = zv::NativePath(path).string();
        GetTargets().file = MakeLogger(
            std::make_shared<spdlog::sinks::rotating_file_sink_st>(native, kFileBytes, kOlderFiles),
            "%Y-%m-%d %H:%M:%S.%e %L %v");
    } catch (const spdlog::spdlog_ex& fault) {
        throw zv::DataError(path, "", fault.what());
    }
}
