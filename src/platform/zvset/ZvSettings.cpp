#include "platform/zvset/ZvSettings.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "platform/Text.h"
#include "platform/zvcom/ZvLayerInfo.h"
#include "platform/zvlogs/ZvLog.h"
#include "platform/zvset/SettingsImpl.h"

namespace {

using Value = zv::SettingsTree::Value;

/// Two levels stand above a layer's keys in the file.
constexpr std::size_t kMaxKeyDepth = zv::SettingsTree::kMaxDepth - 2;

/// The whole of a text as a finite number.
std::optional<double> NumberInText(const std::string& text) {
    double number = 0.0;
    const char* end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, number);
    const bool whole = read.ec == std::errc() && read.ptr == end && std::isfinite(number);
    return whole ? std::optional(number) : std::nullopt;
}

std::optional<double> Number(const Value& value) {
    if (const auto* integer = std::get_if<std::int64_t>(&value)) {
        return static_cast<double>(*integer);
    }
    if (const auto* real = std::get_if<double>(&value)) {
        return *real;
    }
    const auto* text = std::get_if<std::string>(&value);
    return text ? NumberInText(*text) : std::nullopt;
}

/// The number as an int when it is one, without rest.
std::optional<int> Whole(std::optional<double> number) {
    using Limits = std::numeric_limits<int>;
    const bool fits = number && *number >= Limits::min() && *number <= Limits::max() &&
                      *number == std::trunc(*number);
    return fits ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

const Value* Find(const zv::SettingsTree& tree, const std::string& key) {
    const zv::SettingsTree* place = tree.Find(zv::ToUtf8(key));
    return place ? place->GetValue() : nullptr;
}

void Put(zv::SettingsTree& tree, const std::string& key, Value value) {
    const std::string path = zv::ToUtf8(key);
    if (zv::SettingsTree::Depth(path) > kMaxKeyDepth) {
        CZvLog::Output("Setting of too many levels left out: " + key, 101, false);
        return;
    }
    tree.Make(path).SetValue(std::move(value));
}

template<class T>
bool Take(const std::optional<T>& found, T& value) {
    value = found.value_or(value);
    return found.has_value();
}

} // namespace

CZvSettings::CZvSettings() : m_impl(std::make_unique<Impl>()) {}

CZvSettings::~CZvSettings() = default;

bool CZvSettings::GetBoolean(const std::string& key, bool& value) const {
    const Value* found = Find(m_impl->tree, key);
    const bool* flag = found ? std::get_if<bool>(found) : nullptr;
    value = flag ? *flag : value;
    return flag != nullptr;
}

bool CZvSettings::GetInteger(const std::string& key, int& value) const {
    const Value* found = Find(m_impl->tree, key);
    return found && Take(Whole(Number(*found)), value);
}

bool CZvSettings::GetDouble(const std::string& key, double& value) const {
    const Value* found = Find(m_impl->tree, key);
    return found && Take(Number(*found), value);
}

bool CZvSettings::GetString(const std::string& key, std::string& value) const {
    const Value* found = Find(m_impl->tree, key);
    const std::string* text = found ? std::get_if<std::string>(found) : nullptr;
    if (!text) {
        return false;
    }
    int lost = 0;
    value = zv::ToLabel(*text, lost);
    if (lost > 0) {
        CZvLog::Output("Setting " + key + " holds characters that labels cannot show: " + value,
                       101, false);
    }
    return true;
}

void CZvSettings::SetBoolean(const std::string& key, bool value) {
    Put(m_impl->tree, key, value);
}

void CZvSettings::SetInteger(const std::string& key, int value) {
    Put(m_impl->tree, key, std::int64_t{value});
}

void CZvSettings::SetDouble(const std::string& key, double value) {
    if (!std::isfinite(value)) {
        CZvLog::Output("Setting " + key + " left as it is: the new value is no number", 101, false);
        return;
    }
    Put(m_impl->tree, key, value);
}

void CZvSettings::SetString(const std::string& key, const std::string& value) {
    Put(m_impl->tree, key, zv::ToUtf8(value));
}

bool CZvSettings::Remove(const std::string& key) {
    return m_impl->tree.Remove(zv::ToUtf8(key));
}

std::string CZvSettings::S_GetCultureColorSettingString(E_Layer layer, ZVCulture culture) {
    return zv::CultureColorKey(layer, culture);
}
