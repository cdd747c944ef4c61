#include "cli/ReportJson.h"

namespace zv::host {

nlohmann::ordered_json SourcesJson(const LoadReport& report) {
    auto list = nlohmann::ordered_json::array();
    for (const SourceReport& source : report.sources) {
        nlohmann::ordered_json one{{"name", source.name},
                                   {"rows", source.rows},
                                   {"filtered", source.filtered},
                                   {"items", source.items},
                                   {"rejected", source.rejected},
                                   {"fewer", source.fewer},
                                   {"reasons", nlohmann::ordered_json::object()}};
        for (const auto& [reason, count] : source.reasons)
            one["reasons"][reason] = count;
        list.push_back(std::move(one));
    }
    return list;
}

std::string JsonText(const nlohmann::ordered_json& json) {
    return json.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + "\n";
}

} // namespace zv::host
