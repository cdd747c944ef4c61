#include "data/build/SymbolCheck.h"

#include "items/ZvDispSymbols.h"
#include "platform/Error.h"
#include "platform/Numbers.h"

namespace zv::host {
namespace {

/// A key as a piece of a JSON pointer.
std::string Escaped(const std::string& key) {
    std::string piece;
    for (const char c : key)
        piece += c == '~' ? std::string("~0") : c == '/' ? std::string("~1") : std::string(1, c);
    return piece;
}

/// Checks the symbols of one project, which it borrows.
class Checker {
  public:
    explicit Checker(const std::string& file) : m_file(file) {}

    void Check(const SymbolRef& symbol, const std::string& pointer) const {
        if (!SymbolIsThere(symbol))
            throw DataError(m_file, pointer, "there is no symbol " + SymbolText(symbol));
    }

    void Check(const SymbolChoice& choice, const std::string& pointer) const {
        if (!choice.by) return Check(choice.fallback, pointer);
        for (const auto& [key, symbol] : choice.table)
            Check(symbol, pointer + "/table/" + Escaped(key));
        if (!choice.byName) Check(choice.fallback, pointer + "/default");
    }

    void Check(const Furniture& furniture) const {
        if (furniture.north > 0) Check(SymbolRef{furniture.north, {}}, "/furniture/north");
        for (std::size_t i = 0; i < furniture.legends.size(); ++i)
            Check(furniture.legends[i], "/furniture/legends/" + std::to_string(i) + "/rows/");
    }

  private:
    void Check(const LegendStyle& legend, const std::string& rows) const {
        for (std::size_t i = 0; i < legend.rows.size(); ++i)
            if (legend.rows[i].kind == LegendRow::Kind::Symbol)
                Check(legend.rows[i].symbol, rows + std::to_string(i) + "/symbol");
    }

    const std::string& m_file;
};

} // namespace

bool SymbolIsThere(const SymbolRef& symbol) {
    int number = symbol.number;
    const bool byName = !symbol.name.empty() || number == 0;
    if (byName && !CZvDispSymbols::S_FindSymbolNum(symbol.name, number)) return false;
    return CZvDispSymbols::S_GetItemList(number) != nullptr;
}

std::string SymbolText(const SymbolRef& symbol) {
    return symbol.number > 0 && symbol.name.empty() ? FormatInt(symbol.number)
                                                    : "\"" + symbol.name + "\"";
}

void CheckSymbols(const Project& project, const std::string& file) {
    const Checker checker(file);
    for (const Source& source : project.sources)
        for (const ItemRule& rule : source.items)
            if (rule.kind == ItemKind::Symbol) checker.Check(rule.symbol, rule.pointer + "/symbol");
    if (project.furniture) checker.Check(*project.furniture);
}

} // namespace zv::host
