#include "cli/Scratch.h"

#include <csignal>
#include <cstdlib>
#include <thread>

#include "platform/Error.h"
#include "platform/win/Files.h"
#include "platform/zvcom/ZvUtRegistry.h"

namespace zv::host {
namespace {

namespace fs = std::filesystem;

bool IsIgnored(int number) {
    struct sigaction action {};
    return sigaction(number, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

/// The signals that end this process: one that its starter had it ignore does not.
sigset_t EndingSignals() {
    sigset_t set;
    sigemptyset(&set);
    for (const int number : {SIGINT, SIGTERM, SIGHUP})
        if (!IsIgnored(number)) sigaddset(&set, number);
    return set;
}

void RemoveQuietly(const fs::path& folder) {
    std::error_code fault;
    if (!folder.empty()) fs::remove_all(folder, fault);
}

fs::path WorkFolder() {
    return NativePath(CZvUtRegistry::GetRegistry(CZvUtRegistry::S_GetWorkPath(),
                                                 CZvUtRegistry::S_GetWorkKey(), true));
}

/// A new folder with a name of its own in `parent`; empty when it cannot be made.
fs::path MakeUnique(const fs::path& parent) {
    std::string pattern = (parent / "zvdisp-XXXXXX").string();
    return mkdtemp(pattern.data()) ? fs::path(pattern) : fs::path();
}

} // namespace

Scratch::Scratch() {
    const sigset_t ending = EndingSignals();
    pthread_sigmask(SIG_BLOCK, &ending, nullptr);
    if (!MakeIn(WorkFolder())) MakeInTemporaries();
    Watch(ending);
}

void Scratch::MakeInTemporaries() {
    std::error_code fault;
    const fs::path temporaries = fs::temp_directory_path(fault);
    m_ownWork = MakeUnique(temporaries);
    if (m_ownWork.empty() || !MakeIn(m_ownWork)) {
        RemoveQuietly(m_ownWork);
        throw DataError(temporaries.string(), "", "no folder for scratch files can be made");
    }
    CZvUtRegistry::S_Override(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                              m_ownWork.string());
}

Scratch::~Scratch() {
    RemoveQuietly(m_folder);
    RemoveQuietly(m_ownWork);
}

bool Scratch::MakeIn(const fs::path& parent) {
    if (parent.empty()) return false;
    m_folder = MakeUnique(parent);
    m_name = m_folder.filename().string();
    return !m_folder.empty();
}

/// The signals that end a process wait for a thread of their own, which may do what a handler may
/// not: remove the folders, then end the process the way the signal would have.
void Scratch::Watch(const sigset_t& set) const {
    std::thread([folder = m_folder, work = m_ownWork, set] {
        int number = 0;
        if (sigwait(&set, &number) != 0) return;
        RemoveQuietly(folder);
        RemoveQuietly(work);
        std::signal(number, SIG_DFL);
        sigset_t one;
        sigemptyset(&one);
        sigaddset(&one, number);
        pthread_sigmask(SIG_UNBLOCK, &one, nullptr);
        raise(number);
    }).detach();
}

} // namespace zv::host
