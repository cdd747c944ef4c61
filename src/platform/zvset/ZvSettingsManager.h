#pragma once

#include <memory>
#include <string>

#include "platform/Export.h"
#include "platform/zvcom/ZvTypes.h"

class CZvSettings;

/// The settings of all layers, kept in one JSON file: {"global": {...}, "layers": {"25": {...}}}.
/// Owned by the host; the map borrows it.
class ZVDISP_API CZvSettingsManager {
  public:
    CZvSettingsManager();
    ~CZvSettingsManager();
    CZvSettingsManager(const CZvSettingsManager&) = delete;
    CZvSettingsManager& operator=(const CZvSettingsManager&) = delete;

    /// Settings of a layer, or null when it has none. Owned by this, valid until Load or Clear.
    CZvSettings* GetLayerSettings(E_Layer layer);
    /// The same, made when missing.
    CZvSettings& MakeLayerSettings(E_Layer layer);
    /// Settings that belong to no layer ("MEMORY_MANAGEMENT" and the like).
    CZvSettings& GetGlobalSettings();
    void Clear();

    /// Replaces everything by the file's content. A missing file is an empty store. Throws
    /// zv::DataError (file, place, reason) on a file that cannot be read, and then keeps what it
    /// had.
    void Load(const std::string& path);
    /// The same from text; `name` stands for the file in errors.
    void LoadText(const std::string& json, const std::string& name);
    /// Writes beside the target and renames. Throws zv::DataError; the old file then stands.
    void Save(const std::string& path) const;
    std::string SaveText() const;

  private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
