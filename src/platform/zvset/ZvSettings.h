#pragma once

#include <memory>
#include <string>

#include "platform/Export.h"
#include "platform/zvcom/ZvTypes.h"

/// Settings of one layer: a tree of keys, joined by "\" ("Post#1\USET#1\QUAL_NAME").
/// Every getter leaves its argument as it is, and answers false, when the key is absent or its
/// value is of another kind (numbers are also read from text, whole numbers from doubles without
/// rest). Keys and texts are single-byte (code page 1252); a character that the file holds beyond
/// it reads as "?" with a log line, and stays in the file.
/// A place of the tree holds a value or a branch: the last one set takes the place of what is in
/// its way. A key of more than 14 levels and a number that is not finite are refused with a log
/// line.
class ZVDISP_API CZvSettings {
  public:
    CZvSettings();
    ~CZvSettings();
    CZvSettings(const CZvSettings&) = delete;
    CZvSettings& operator=(const CZvSettings&) = delete;

    bool GetBoolean(const std::string& key, bool& value) const;
    bool GetInteger(const std::string& key, int& value) const;
    bool GetDouble(const std::string& key, double& value) const;
    bool GetString(const std::string& key, std::string& value) const;

    void SetBoolean(const std::string& key, bool value);
    void SetInteger(const std::string& key, int value);
    void SetDouble(const std::string& key, double value);
    void SetString(const std::string& key, const std::string& value);
    /// Takes a key and everything below it out; false when it is absent.
    bool Remove(const std::string& key);

    /// Key under which a layer's settings hold the colour of a culture.
    static std::string S_GetCultureColorSettingString(E_Layer layer, ZVCulture culture);

  private:
    friend class CZvSettingsManager;
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};
