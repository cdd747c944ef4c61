#include "platform/zvset/SettingsJson.h"

#include <nlohmann/json.hpp>
#include <utility>

#include "platform/JsonInput.h"

namespace zv {
namespace {

using Json = nlohmann::json;
using Value = SettingsTree::Value;

/// More than any store of settings holds; it keeps a wrong file from filling the memory.
constexpr std::size_t kMaxBytes = std::size_t(256) << 20;

Value ToValue(const JsonNode& node) {
    const Json& json = node.Value();
    switch (json.type()) {
    case Json::value_t::boolean: return json.get<bool>();
    case Json::value_t::string: return json.get<std::string>();
    case Json::value_t::number_integer: return json.get<std::int64_t>();
    case Json::value_t::number_unsigned:
        if (std::in_range<std::int64_t>(json.get<std::uint64_t>())) {
            return json.get<std::int64_t>();
        }
        [[fallthrough]];
    case Json::value_t::number_float: return json.get<double>();
    default: node.Fail("must be a text, a number, true or false");
    }
}

/// True when a value stands at a place above the path's end.
bool PassesValue(const SettingsTree& tree, std::string_view path) {
    for (std::size_t end = path.find('\\'); end != path.npos; end = path.find('\\', end + 1)) {
        const SettingsTree* above = tree.Find(path.substr(0, end));
        if (above && above->GetValue()) {
            return true;
        }
    }
    return false;
}

void Fill(const JsonNode& node, SettingsTree& tree, std::size_t depth) {
    for (const auto& [path, member] : node.Members()) {
        const std::size_t below = depth + SettingsTree::Depth(path);
        if (below > SettingsTree::kMaxDepth) {
            member.Fail("lies too deep");
        }
        const SettingsTree* known = tree.Find(path);
        const bool isBranch = member.Value().is_object();
        if (PassesValue(tree, path) || (known && (known->GetValue() || !isBranch))) {
            member.Fail("stands twice");
        }
        SettingsTree& place = tree.Make(path);
        if (isBranch) {
            Fill(member, place, below);
        } else {
            place.SetValue(ToValue(member));
        }
    }
}

Json ToJson(const SettingsTree& tree) {
    if (const Value* value = tree.GetValue()) {
        return std::visit([](const auto& held) { return Json(held); }, *value);
    }
    Json object = Json::object();
    for (const auto& [key, below] : tree.GetBranches()) {
        object[key] = ToJson(below);
    }
    return object;
}

} // namespace

SettingsTree ReadSettingsJson(std::string_view json, const std::string& name) {
    const JsonDocument document(json, name, kMaxBytes);
    SettingsTree tree;
    Fill(document.Root(), tree, 0);
    return tree;
}

std::string WriteSettingsJson(const SettingsTree& tree) {
    constexpr int kIndent = 2;
    return ToJson(tree).dump(kIndent, ' ', false, Json::error_handler_t::replace) + "\n";
}

} // namespace zv
