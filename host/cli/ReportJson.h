#pragma once

#include <nlohmann/json.hpp>

#include "data/build/LoadReport.h"

namespace zv::host {

/// What became of each source's rows, as the verbs print it.
nlohmann::ordered_json SourcesJson(const LoadReport& report);

/// JSON as text, bytes that are no UTF-8 replaced.
std::string JsonText(const nlohmann::ordered_json& json);

} // namespace zv::host
