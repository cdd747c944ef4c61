#include "platform/Numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <locale.h>
#include <system_error>

namespace zv {
namespace {

/// Text of a number that has no digits.
const char* NonFiniteText(double value) {
    if (std::isnan(value)) {
        return "nan";
    }
    return value < 0 ? "-inf" : "inf";
}

/// The text behind leading blanks and one plus sign, which std::from_chars does not take.
std::string_view Head(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
    text.remove_prefix(std::min(first, text.size()));
    if (text.starts_with('+')) {
        text.remove_prefix(1);
        return text.starts_with('-') ? std::string_view() : text;
    }
    return text;
}

/// strtod in the C locale: tells too large (infinite) from too small (zero), which std::from_chars
/// does not.
double ParseOutOfRange(const std::string& number) {
    static const locale_t c = newlocale(LC_ALL_MASK, "C", nullptr);
    return strtod_l(number.c_str(), nullptr, c);
}

} // namespace

std::string FormatInt(long long value) {
    std::array<char, std::numeric_limits<long long>::digits10 + 3> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return std::string(digits.data(), end);
}

std::string FormatFixed(double value, int decimals) {
    if (!std::isfinite(value)) {
        return NonFiniteText(value);
    }
    decimals = std::max(decimals, 0);
    constexpr std::size_t kSignDigitsAndPoint = std::numeric_limits<double>::max_exponent10 + 3;
    std::string text(kSignDigitsAndPoint + static_cast<std::size_t>(decimals), '\0');
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    text.resize(static_cast<std::size_t>(end - text.data()));
    return text;
}

std::string FormatShortest(double value) {
    if (!std::isfinite(value)) {
        return NonFiniteText(value);
    }
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return std::string(digits.data(), end);
}

int ParseInt(std::string_view text) {
    text = Head(text);
    int value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        return text.starts_with('-') ? std::numeric_limits<int>::min()
                                     : std::numeric_limits<int>::max();
    }
    return value;
}

double ParseDouble(std::string_view text) {
    text = Head(text);
    double value = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        return ParseOutOfRange(std::string(text.data(), result.ptr));
    }
    return value;
}

float ToFloat(double value) {
    using Float = std::numeric_limits<float>;
    if (value > Float::max()) return Float::infinity();
    if (value < Float::lowest()) return -Float::infinity();
    return static_cast<float>(value);
}

} // namespace zv
