#pragma once

#include <charconv>
#include <cmath>
#include <string_view>

namespace zv::host {

/// The text without blanks at its ends; borrowed from the argument.
inline std::string_view Trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The number that a text is, blanks at its ends aside; false for anything else, infinities among
/// it.
inline bool ParseCoordinate(std::string_view text, double& value) {
    std::string_view number = Trimmed(text);
    if (number.size() > 1 && number.front() == '+' && number[1] != '-') number.remove_prefix(1);
    const char* const end = number.data() + number.size();
    const auto result = std::from_chars(number.data(), end, value);
    return result.ec == std::errc() && result.ptr == end && std::isfinite(value);
}

} // namespace zv::host
