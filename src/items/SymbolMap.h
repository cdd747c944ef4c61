#pragma once

#include <iosfwd>
#include <map>
#include <optional>
#include <string>

/// Numbers of the symbols that have names: upper case, up to 6 characters. Read once from
/// "symmap.tab".
class CZvDispSymbolMap {
  public:
    using Names = std::map<std::string, int>;

    static CZvDispSymbolMap& Get();

    /// Looks a name up as it stands.
    std::optional<int> Find(const std::string& name);
    /// The next look-up reads the file anew.
    void Clear();

    /// Reads the lines of a name file: 6 characters name, 11 that have no meaning here, 3 number. A
    /// line that begins with "c" is a comment; one without a name is passed over.
    static void ReadNames(std::istream& in, Names& names);

  private:
    CZvDispSymbolMap() = default;
    void Load();

    bool m_loaded = false;
    Names m_names;
};
