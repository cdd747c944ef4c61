#include "items/SymbolTable.h"

#include <algorithm>

#include "items/ZvDisplayItem.h"
#include "platform/Numbers.h"
#include "platform/zvlogs/ZvLog.h"

void zv::FreeItemList::operator()(std::list<CZvDisplayItem*>* items) const {
    for (CZvDisplayItem* item : *items)
        delete item;
    delete items;
}

void zv::LogSymbolNotFound(int number) {
    CZvLog::Output("Symbol " + FormatInt(number) + " not found. skipped.", 101, false);
}

CZvDispSymbolTable& CZvDispSymbolTable::Get() {
    static auto* table = new CZvDispSymbolTable; // outlives every item that may still look at it
    return *table;
}

const CZvDispSymbolTable::Symbol* CZvDispSymbolTable::Find(int number) const {
    const auto found = m_symbols.find(number);
    return found == m_symbols.end() ? nullptr : &found->second;
}

std::list<CZvDisplayItem*>* CZvDispSymbolTable::Items(int number) const {
    const Symbol* symbol = Find(number);
    return symbol ? symbol->items.get() : nullptr;
}

std::list<CZvDisplayItem*>* CZvDispSymbolTable::VariableTexts(int number) const {
    const Symbol* symbol = Find(number);
    return symbol ? symbol->variableTexts.get() : nullptr;
}

const std::string* CZvDispSymbolTable::Description(int number) const {
    const Symbol* symbol = Find(number);
    return symbol && symbol->description ? &*symbol->description : nullptr;
}

int CZvDispSymbolTable::NextAvailable(int from, int to) const {
    for (long long number = from; number <= to; ++number)
        if (!Has(static_cast<int>(number))) return static_cast<int>(number);
    return -1;
}

std::list<int> CZvDispSymbolTable::Ascending() const {
    std::list<int> numbers;
    for (const auto& [number, symbol] : m_symbols)
        if (number > 0) numbers.push_back(number);
    return numbers;
}

void CZvDispSymbolTable::Add(int number, zv::SymbolItems items, zv::SymbolItems variableTexts,
                             std::optional<std::string> description) {
    m_symbols[number] = {std::move(items), std::move(variableTexts), std::move(description)};
    m_numbers.push_back(number);
}

void CZvDispSymbolTable::Delete(int number) {
    m_symbols.erase(number);
    m_numbers.remove(number);
}

void CZvDispSymbolTable::Clear() {
    m_symbols.clear();
    m_numbers.clear();
}
