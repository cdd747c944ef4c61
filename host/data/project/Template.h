#pragma once

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zv::host {

/// Where each field of a source stands in its rows.
class FieldIndex {
  public:
    FieldIndex() = default;
    explicit FieldIndex(const std::vector<std::string>& names);

    /// -1 when there is no such field.
    int Find(const std::string& name) const;
    std::size_t Size() const { return m_places.size(); }

  private:
    std::unordered_map<std::string, int> m_places;
};

/// The attributes of one row of a source. Borrows both parts.
struct Row {
    const FieldIndex* fields;
    const std::vector<std::string>* values;

    /// Empty for a field that the row lacks.
    const std::string& Value(const std::string& field) const;
};

/// A text with attributes in it: "{AREA|trim}#{BLOCK}#". A field stands in braces; behind it, each
/// after a "|", filters that change its value; "{{" and "}}" stand for one brace each.
///
/// Filters: trim (blanks at both ends), upper, lower, left:N (the first N characters), right:N (the
/// last N), fixed:N (a number with N decimals), nozeros (leading blanks and zeros off; one zero
/// stays).
class Template {
  public:
    Template() = default;
    /// Throws std::invalid_argument with the reason.
    explicit Template(std::string_view text);

    std::string Expand(const Row& row) const;
    /// Names of the fields in it, in their order.
    std::vector<std::string> Fields() const;
    bool IsEmpty() const { return m_pieces.empty(); }

  private:
    struct Filter {
        enum class Kind { Trim, Upper, Lower, Left, Right, Fixed, NoZeros } kind;
        int count = 0;
    };
    struct Piece {
        std::string text; ///< field name where `isField`, else a text as it stands
        bool isField = false;
        std::vector<Filter> filters;
    };

    void AddText(char c);
    void AddField(std::string_view inside);
    static Filter ParseFilter(std::string_view word);
    static std::string Apply(const Filter& filter, std::string value);

    std::vector<Piece> m_pieces;
};

} // namespace zv::host
