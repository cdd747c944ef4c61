#include "platform/zvcom/ZvUtRegistry.h"

#include <cstdlib>
#include <filesystem>
#include <map>
#include <optional>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "platform/Error.h"
#include "platform/Share.h"
#include "platform/win/Files.h"
#include "platform/zvlogs/ZvLog.h"
#include "platform/zvset/SettingsJson.h"

namespace {

namespace fs = std::filesystem;

using Place = std::pair<std::string, std::string>;

const Place kHome("Software\\ZvDisp\\Install", "Home");
const Place kWork("Software\\ZvDisp\\User", "Work");

std::map<Place, std::string>& Overrides() {
    static std::map<Place, std::string> overrides;
    return overrides;
}

unsigned generation = 0;

std::string FromEnvironment(const char* name) {
    const char* value = std::getenv(name);
    return value ? value : "";
}

std::string FromEnvironmentOf(const Place& place) {
    if (place == kHome) {
        return FromEnvironment("ZVDISP_HOME");
    }
    return place == kWork ? FromEnvironment("ZVDISP_WORK") : "";
}

zv::SettingsTree ReadUserRegistry(const fs::path& file) {
    std::error_code ignored;
    if (fs::status(file, ignored).type() == fs::file_type::not_found) {
        return {};
    }
    try {
        return zv::ReadSettingsJson(zv::ReadWholeFile(file), file);
    } catch (const zv::DataError& error) {
        CZvLog::Output(error.what(), 101, false);
        return {};
    }
}

/// The user's registry.json (paths are branches, keys are texts), read once for each place where it
/// is looked for.
const zv::SettingsTree& UserRegistry() {
    static std::optional<fs::path> readFrom;
    static zv::SettingsTree values;
    const fs::path folder = zv::UserConfigFolder();
    if (readFrom != folder) {
        readFrom = folder;
        values = folder.empty() ? zv::SettingsTree() : ReadUserRegistry(folder / "registry.json");
    }
    return values;
}

std::string FromUserRegistry(const Place& place) {
    const zv::SettingsTree* found = UserRegistry().Find(place.first + "\\" + place.second);
    const auto* value = found ? found->GetValue() : nullptr;
    const auto* text = value ? std::get_if<std::string>(value) : nullptr;
    return text ? *text : "";
}

/// $XDG_DATA_HOME/zvdisp; a relative one counts as not set.
std::string DefaultWork() {
    if (const fs::path data = FromEnvironment("XDG_DATA_HOME"); data.is_absolute()) {
        return data / "zvdisp";
    }
    if (const fs::path home = FromEnvironment("HOME"); !home.empty()) {
        return home / ".local" / "share" / "zvdisp";
    }
    std::error_code ignored;
    return fs::temp_directory_path(ignored) / ("zvdisp-" + std::to_string(getuid()));
}

std::string Default(const Place& place) {
    if (place == kHome) {
        return zv::ShareFolder();
    }
    return place == kWork ? DefaultWork() : "";
}

std::string Find(const Place& place) {
    const auto own = Overrides().find(place);
    if (own != Overrides().end()) {
        return own->second;
    }
    for (const auto source : {&FromEnvironmentOf, &FromUserRegistry, &Default}) {
        if (std::string value = source(place); !value.empty()) {
            return value;
        }
    }
    return "";
}

} // namespace

std::string CZvUtRegistry::S_GetHomePath() {
    return kHome.first;
}
std::string CZvUtRegistry::S_GetHomeKey() {
    return kHome.second;
}
std::string CZvUtRegistry::S_GetWorkPath() {
    return kWork.first;
}
std::string CZvUtRegistry::S_GetWorkKey() {
    return kWork.second;
}

std::string CZvUtRegistry::GetRegistry(const std::string& path, const std::string& key,
                                       bool create) {
    const Place place(path, key);
    std::string value = Find(place);
    if (create && place == kWork) {
        zv::MakeFolder(value);
    }
    return value;
}

void CZvUtRegistry::S_Override(const std::string& path, const std::string& key,
                               const std::string& value) {
    ++generation;
    if (value.empty()) {
        Overrides().erase({path, key});
    } else {
        Overrides()[{path, key}] = value;
    }
}

unsigned CZvUtRegistry::S_GetGeneration() {
    return generation;
}
