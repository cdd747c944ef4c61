#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace zv {
namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// Characters of the bytes 0x80 to 0x9F; the other bytes are their own number. Five bytes have
/// none.
constexpr std::array<char32_t, 32> kHighControls = {
    0x20AC,       kReplacement, 0x201A, 0x0192, 0x201E, 0x2026,       0x2020, 0x2021,
    0x02C6,       0x2030,       0x0160, 0x2039, 0x0152, kReplacement, 0x017D, kReplacement,
    kReplacement, 0x2018,       0x2019, 0x201C, 0x201D, 0x2022,       0x2013, 0x2014,
    0x02DC,       0x2122,       0x0161, 0x203A, 0x0153, kReplacement, 0x017E, 0x0178};

/// What a lead byte promises: how many bytes follow, its own bits, and the range that the first
/// follower must be in (it keeps out overlong forms, surrogates and numbers past the last one).
struct Lead {
    int followers;
    char32_t bits;
    unsigned char low, high;
};

constexpr Lead ReadLead(unsigned char byte) {
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {1, byte & 0x1Fu, 0x80, 0xBF};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        const unsigned char low = byte == 0xE0 ? 0xA0 : 0x80;
        const unsigned char high = byte == 0xED ? 0x9F : 0xBF;
        return {2, byte & 0x0Fu, low, high};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        const unsigned char low = byte == 0xF0 ? 0x90 : 0x80;
        const unsigned char high = byte == 0xF4 ? 0x8F : 0xBF;
        return {3, byte & 0x07u, low, high};
    }
    return {0, kReplacement, 0, 0};
}

/// Takes one character off the text; a malformed stretch comes off as one U+FFFD.
char32_t TakeCharacter(std::string_view& utf8) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(utf8[i]); };
    const unsigned char first = byte(0);
    Lead lead = first < 0x80 ? Lead{0, first, 0, 0} : ReadLead(first);
    char32_t character = lead.bits;
    std::size_t length = 1;
    for (; lead.followers > 0; --lead.followers, ++length) {
        if (length == utf8.size() || byte(length) < lead.low || byte(length) > lead.high) {
            character = kReplacement;
            break;
        }
        character = character << 6 | (byte(length) & 0x3Fu);
        lead.low = 0x80, lead.high = 0xBF;
    }
    utf8.remove_prefix(length);
    return character;
}

/// Byte of a character in the code page; -1 when it has none.
int LabelByte(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character <= 0xFF)) {
        return static_cast<int>(character);
    }
    if (character == kReplacement) {
        return -1;
    }
    const auto found = std::find(kHighControls.begin(), kHighControls.end(), character);
    return found == kHighControls.end() ? -1
                                        : 0x80 + static_cast<int>(found - kHighControls.begin());
}

/// REQUIRES: a character of the code page, so no more than three bytes.
void AppendUtf8(char32_t character, std::string& utf8) {
    if (character < 0x80) {
        utf8 += static_cast<char>(character);
    } else if (character < 0x800) {
        utf8 += static_cast<char>(0xC0 | character >> 6);
        utf8 += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        utf8 += static_cast<char>(0xE0 | character >> 12);
        utf8 += static_cast<char>(0x80 | (character >> 6 & 0x3F));
        utf8 += static_cast<char>(0x80 | (character & 0x3F));
    }
}

} // namespace

std::string ToLabel(std::string_view utf8, int& lost) {
    std::string label;
    label.reserve(utf8.size());
    while (!utf8.empty()) {
        const int byte = LabelByte(TakeCharacter(utf8));
        lost += byte < 0 ? 1 : 0;
        label += byte < 0 ? '?' : static_cast<char>(byte);
    }
    return label;
}

std::string ToUtf8(std::string_view label) {
    std::string utf8;
    utf8.reserve(label.size());
    for (const char c : label) {
        const auto byte = static_cast<unsigned char>(c);
        AppendUtf8(byte >= 0x80 && byte < 0xA0 ? kHighControls[byte - 0x80] : byte, utf8);
    }
    return utf8;
}

} // namespace zv
