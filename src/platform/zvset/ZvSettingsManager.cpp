#include "platform/zvset/ZvSettingsManager.h"

#include <charconv>
#include <filesystem>
#include <map>
#include <optional>
#include <utility>

#include "platform/Error.h"
#include "platform/Share.h"
#include "platform/win/Files.h"
#include "platform/zvset/SettingsImpl.h"
#include "platform/zvset/SettingsJson.h"

struct CZvSettingsManager::Impl {
    CZvSettings global;
    std::map<E_Layer, CZvSettings> layers;

    /// Takes what a file held; throws zv::DataError on what has no place here.
    void Take(zv::SettingsTree& file, const std::string& name);
    void TakeLayers(zv::SettingsTree& numbered, const std::string& name);
    zv::SettingsTree GetTree() const;
};

namespace {

constexpr const char* kGlobal = "global";
constexpr const char* kLayers = "layers";

std::optional<E_Layer> LayerNumber(const std::string& text) {
    std::int32_t number = 0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    const bool whole = read.ec == std::errc() && read.ptr == end;
    return whole ? std::optional(static_cast<E_Layer>(number)) : std::nullopt;
}

/// A branch moved out of where it was read. REQUIRES: `place` as a JSON pointer.
zv::SettingsTree TakeBranch(zv::SettingsTree& from, const std::string& name,
                            const std::string& place) {
    if (from.GetValue()) {
        throw zv::DataError(name, place, "not an object");
    }
    return std::move(from);
}

} // namespace

void CZvSettingsManager::Impl::Take(zv::SettingsTree& file, const std::string& name) {
    for (auto& [key, branch] : file.GetBranches()) {
        if (key == kGlobal) {
            global.m_impl->tree = TakeBranch(branch, name, "/global");
        } else if (key == kLayers) {
            zv::SettingsTree numbered = TakeBranch(branch, name, "/layers");
            TakeLayers(numbered, name);
        } else {
            throw zv::DataError(name, "/" + key, "neither \"global\" nor \"layers\"");
        }
    }
}

void CZvSettingsManager::Impl::TakeLayers(zv::SettingsTree& numbered, const std::string& name) {
    for (auto& [key, branch] : numbered.GetBranches()) {
        const std::string place = "/layers/" + key;
        const std::optional<E_Layer> layer = LayerNumber(key);
        if (!layer) {
            throw zv::DataError(name, place, "not the number of a layer");
        }
        const auto [settings, isNew] = layers.try_emplace(*layer);
        if (!isNew) {
            throw zv::DataError(name, place, "given twice");
        }
        settings->second.m_impl->tree = TakeBranch(branch, name, place);
    }
}

zv::SettingsTree CZvSettingsManager::Impl::GetTree() const {
    zv::SettingsTree tree;
    tree.Make(kGlobal) = global.m_impl->tree;
    zv::SettingsTree& numbered = tree.Make(kLayers);
    for (const auto& [layer, settings] : layers) {
        numbered.Make(std::to_string(layer)) = settings.m_impl->tree;
    }
    return tree;
}

CZvSettingsManager::CZvSettingsManager() : m_impl(std::make_unique<Impl>()) {}

CZvSettingsManager::~CZvSettingsManager() = default;

CZvSettings* CZvSettingsManager::GetLayerSettings(E_Layer layer) {
    const auto found = m_impl->layers.find(layer);
    return found == m_impl->layers.end() ? nullptr : &found->second;
}

CZvSettings& CZvSettingsManager::MakeLayerSettings(E_Layer layer) {
    return m_impl->layers[layer];
}

CZvSettings& CZvSettingsManager::GetGlobalSettings() {
    return m_impl->global;
}

void CZvSettingsManager::Clear() {
    m_impl = std::make_unique<Impl>();
}

void CZvSettingsManager::Load(const std::string& path) {
    const std::filesystem::path native = zv::NativePath(path);
    std::error_code ignored;
    const auto found = std::filesystem::symlink_status(native, ignored).type();
    if (found == std::filesystem::file_type::not_found) {
        Clear();
        return;
    }
    LoadText(zv::ReadWholeFile(native), path);
}

void CZvSettingsManager::LoadText(const std::string& json, const std::string& name) {
    zv::SettingsTree file = zv::ReadSettingsJson(json, name);
    auto taken = std::make_unique<Impl>();
    taken->Take(file, name);
    m_impl = std::move(taken);
}

void CZvSettingsManager::Save(const std::string& path) const {
    zv::WriteFileAtomically(path, SaveText());
}

std::string CZvSettingsManager::SaveText() const {
    return zv::WriteSettingsJson(m_impl->GetTree());
}
