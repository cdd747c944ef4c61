#pragma once

#include <string_view>

namespace zv::host {

/// The text without blanks at its ends; borrowed from the argument.
inline std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace zv::host
