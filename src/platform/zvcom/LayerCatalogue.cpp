#include "platform/zvcom/LayerCatalogue.h"

#include <algorithm>

namespace zv {
namespace {

constexpr char Lower(char c) noexcept {
    return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

template<class Entry>
NumberIndex IndexOf(const std::vector<Entry>& entries) {
    NumberIndex index;
    for (std::size_t i = 0; i < entries.size(); ++i)
        index.Enter(entries[i].number, i);
    return index;
}

template<class Entry>
const Entry* At(const std::vector<Entry>& entries, int place) noexcept {
    return place < 0 ? nullptr : &entries[std::size_t(place)];
}

template<class Entry, class Test>
const Entry* FirstWhere(const std::vector<Entry>& entries, Test test) noexcept {
    const auto found = std::find_if(entries.begin(), entries.end(), test);
    return found == entries.end() ? nullptr : &*found;
}

} // namespace

void NumberIndex::Enter(int number, std::size_t place) {
    if (std::size_t(number) >= m_places.size()) m_places.resize(std::size_t(number) + 1, -1);
    m_places[std::size_t(number)] = std::int32_t(place);
}

LayerCatalogue::LayerCatalogue(std::vector<CultureEntry> cultures, std::vector<LayerEntry> layers,
                               std::vector<TemplateType> templates)
    : m_cultures(std::move(cultures)), m_layers(std::move(layers)),
      m_templates(std::move(templates)), m_cultureIndex(IndexOf(m_cultures)),
      m_layerIndex(IndexOf(m_layers)) {}

const CultureEntry* LayerCatalogue::FindCulture(int number) const noexcept {
    return At(m_cultures, m_cultureIndex.Find(number));
}

const LayerEntry* LayerCatalogue::FindLayer(int number) const noexcept {
    return At(m_layers, m_layerIndex.Find(number));
}

const TemplateType* LayerCatalogue::FindTemplate(int number) const noexcept {
    return FirstWhere(m_templates, [&](const TemplateType& t) { return t.number == number; });
}

const LayerEntry* LayerCatalogue::FindLayer(std::string_view word) const noexcept {
    return FirstWhere(m_layers, [&](const LayerEntry& layer) {
        return SameWord(layer.abbr, word) || SameWord(layer.title, word);
    });
}

const CultureEntry* LayerCatalogue::FindCulture(std::string_view word) const noexcept {
    return FirstWhere(m_cultures, [&](const CultureEntry& culture) {
        return SameWord(culture.name, word) || SameWord(culture.title, word);
    });
}

std::string AbbrOfUnlisted(int layer) {
    const long long number = layer;
    return number < 0 ? "LM" + std::to_string(-number) : "L" + std::to_string(number);
}

bool SameWord(std::string_view a, std::string_view b) noexcept {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return Lower(x) == Lower(y); });
}

} // namespace zv
