#include "data/project/Template.h"

#include <algorithm>
#include <stdexcept>

#include "data/project/Words.h"
#include "platform/Numbers.h"

namespace zv::host {
namespace {

std::string WithoutZeros(const std::string& text) {
    const std::size_t first = text.find_first_not_of(" \t0");
    if (first != std::string::npos) return text.substr(first);
    return text.find('0') == std::string::npos ? "" : "0";
}

/// ASCII only: other bytes belong to characters of UTF-8.
std::string Mapped(std::string text, char from, char to, int shift) {
    for (char& c : text)
        if (c >= from && c <= to) c = static_cast<char>(c + shift);
    return text;
}

int ParseCount(std::string_view word, std::string_view digits) {
    if (digits.empty() || digits.size() > 2 ||
        digits.find_first_not_of("0123456789") != std::string_view::npos)
        throw std::invalid_argument("the filter \"" + std::string(word) +
                                    "\" needs a number from 0 to 99");
    return ParseInt(digits);
}

} // namespace

FieldIndex::FieldIndex(const std::vector<std::string>& names) {
    for (std::size_t i = 0; i < names.size(); ++i)
        m_places.try_emplace(names[i], int(i));
}

int FieldIndex::Find(const std::string& name) const {
    const auto found = m_places.find(name);
    return found == m_places.end() ? -1 : found->second;
}

const std::string& Row::Value(const std::string& field) const {
    static const std::string none;
    const int place = fields->Find(field);
    return place < 0 || std::size_t(place) >= values->size() ? none : (*values)[std::size_t(place)];
}

Template::Template(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        const bool doubled = i + 1 < text.size() && text[i + 1] == c;
        if ((c == '{' || c == '}') && doubled) {
            AddText(c);
            ++i;
        } else if (c == '{') {
            const std::size_t end = text.find('}', i);
            if (end == std::string_view::npos) throw std::invalid_argument("a \"{\" is not closed");
            AddField(text.substr(i + 1, end - i - 1));
            i = end;
        } else if (c == '}') {
            throw std::invalid_argument("a \"}\" has no \"{\" before it");
        } else {
            AddText(c);
        }
    }
}

void Template::AddText(char c) {
    if (m_pieces.empty() || m_pieces.back().isField) m_pieces.push_back({{}, false, {}});
    m_pieces.back().text += c;
}

void Template::AddField(std::string_view inside) {
    Piece piece{{}, true, {}};
    std::size_t bar = inside.find('|');
    piece.text = inside.substr(0, bar);
    if (piece.text.empty()) throw std::invalid_argument("braces without a field name");
    while (bar != std::string_view::npos) {
        const std::size_t next = inside.find('|', bar + 1);
        piece.filters.push_back(ParseFilter(inside.substr(bar + 1, next - bar - 1)));
        bar = next;
    }
    m_pieces.push_back(std::move(piece));
}

Template::Filter Template::ParseFilter(std::string_view word) {
    using Kind = Filter::Kind;
    struct Known {
        std::string_view name;
        Kind kind;
        bool counted;
    };
    static constexpr Known kKnown[] = {
        {"trim", Kind::Trim, false},   {"upper", Kind::Upper, false},
        {"lower", Kind::Lower, false}, {"nozeros", Kind::NoZeros, false},
        {"left", Kind::Left, true},    {"right", Kind::Right, true},
        {"fixed", Kind::Fixed, true},
    };
    const std::size_t colon = word.find(':');
    const std::string_view name = word.substr(0, colon);
    for (const Known& known : kKnown)
        if (known.name == name && known.counted == (colon != std::string_view::npos))
            return {known.kind, known.counted ? ParseCount(word, word.substr(colon + 1)) : 0};
    throw std::invalid_argument("there is no filter \"" + std::string(word) + "\"");
}

std::string Template::Apply(const Filter& filter, std::string value) {
    const auto count = std::size_t(filter.count);
    switch (filter.kind) {
    case Filter::Kind::Trim: return std::string(Trimmed(value));
    case Filter::Kind::Upper: return Mapped(std::move(value), 'a', 'z', 'A' - 'a');
    case Filter::Kind::Lower: return Mapped(std::move(value), 'A', 'Z', 'a' - 'A');
    case Filter::Kind::Left: return value.substr(0, count);
    case Filter::Kind::Right: return value.substr(value.size() - std::min(count, value.size()));
    case Filter::Kind::Fixed: return FormatFixed(ParseDouble(value), filter.count);
    case Filter::Kind::NoZeros: return WithoutZeros(value);
    }
    return value;
}

std::string Template::Expand(const Row& row) const {
    std::string text;
    for (const Piece& piece : m_pieces) {
        std::string value = piece.isField ? row.Value(piece.text) : piece.text;
        for (const Filter& filter : piece.filters)
            value = Apply(filter, std::move(value));
        text += value;
    }
    return text;
}

std::vector<std::string> Template::Fields() const {
    std::vector<std::string> names;
    for (const Piece& piece : m_pieces)
        if (piece.isField) names.push_back(piece.text);
    return names;
}

} // namespace zv::host
