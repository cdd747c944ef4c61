#include "platform/zvcom/UserCultures.h"

#include <algorithm>
#include <charconv>

#include "platform/JsonInput.h"
#include "platform/zvcom/LayerCatalogue.h"

namespace zv {
namespace {

constexpr int kVersion = 1;
constexpr std::size_t kMaxTitle = 80;

/// The number that a member's name spells, without sign or leading zeros: each has one spelling.
int CultureOf(const std::string& name, const JsonNode& node) {
    int number = 0;
    const char* const end = name.data() + name.size();
    const auto result = std::from_chars(name.data(), end, number);
    if (result.ec != std::errc() || result.ptr != end || std::to_string(number) != name ||
        number < 0 || number > kMaxCultureNumber)
        node.Fail("its name must be a culture number from 0 to 65535");
    return number;
}

std::string ReadUserTitle(const JsonNode& node) {
    std::string title = node.Text(kMaxTitle);
    if (title.empty()) node.Fail("is empty");
    std::replace(title.begin(), title.end(), ' ', '_');
    return title;
}

} // namespace

UserCultures ParseUserCultures(std::string_view json, const std::string& name) {
    const JsonDocument document(json, name);
    const JsonNode root = document.Root();
    root.AllowOnly({"version", "titles"});
    root.At("version").Int(kVersion, kVersion);
    UserCultures titles;
    for (const auto& [member, node] : root.At("titles").Members())
        titles.emplace(CultureOf(member, node), ReadUserTitle(node));
    return titles;
}

} // namespace zv
