#pragma once

#include <list>
#include <map>
#include <memory>
#include <optional>
#include <string>

class CZvDisplayItem;

namespace zv {

/// A list of items that is freed with what it holds.
struct FreeItemList {
    void operator()(std::list<CZvDisplayItem*>* items) const;
};
using SymbolItems = std::unique_ptr<std::list<CZvDisplayItem*>, FreeItemList>;

/// The log line of an item whose symbol the library does not hold.
void LogSymbolNotFound(int number);

} // namespace zv

/// The symbol library: from numbers to the primitives that draw them. One for the process; it owns
/// its items.
class CZvDispSymbolTable {
  public:
    static CZvDispSymbolTable& Get();

    /// Null when the number is unknown.
    std::list<CZvDisplayItem*>* Items(int number) const;
    std::list<CZvDisplayItem*>* VariableTexts(int number) const;
    const std::string* Description(int number) const;
    /// In order of loading.
    std::list<int>& Numbers() { return m_numbers; }
    bool Has(int number) const { return m_symbols.contains(number); }
    int NextAvailable(int from, int to) const;
    /// Numbers above 0, ascending.
    std::list<int> Ascending() const;

    /// REQUIRES: the number is not there yet.
    void Add(int number, zv::SymbolItems items, zv::SymbolItems variableTexts,
             std::optional<std::string> description);
    void Delete(int number);
    void Clear();

  private:
    CZvDispSymbolTable() = default;

    struct Symbol {
        zv::SymbolItems items;
        zv::SymbolItems variableTexts;
        std::optional<std::string> description;
    };
    const Symbol* Find(int number) const;

    std::list<int> m_numbers;
    std::map<int, Symbol> m_symbols;
};
