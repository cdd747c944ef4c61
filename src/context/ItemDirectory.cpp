#include "context/ItemDirectory.h"

#include <limits>

namespace zv {

namespace {

float RoundedDown(double value) {
    return std::nextafterf(static_cast<float>(value), -std::numeric_limits<float>::infinity());
}

float RoundedUp(double value) {
    return std::nextafterf(static_cast<float>(value), std::numeric_limits<float>::infinity());
}

} // namespace

void ItemEntry::SetBox(const Box& relative) {
    box = {RoundedDown(relative.minX + origin.x), RoundedDown(relative.minY + origin.y),
           RoundedUp(relative.maxX + origin.x), RoundedUp(relative.maxY + origin.y)};
}

ItemDirectory::Page* ItemDirectory::FindPage(unsigned number) {
    if (m_lastPage && number == m_lastNumber) return m_lastPage;
    const auto found = m_pages.find(number);
    if (found == m_pages.end()) return nullptr;
    m_lastPage = found->second.get();
    m_lastNumber = number;
    return m_lastPage;
}

ItemEntry* ItemDirectory::Find(unsigned id) {
    Page* page = FindPage(id / kPage);
    return page ? &page->entries[id % kPage] : nullptr;
}

ItemEntry& ItemDirectory::At(unsigned id) {
    if (ItemEntry* entry = Find(id)) return *entry;
    auto& page = m_pages[id / kPage];
    page = std::make_unique<Page>();
    m_lastNumber = id / kPage;
    m_lastPage = page.get();
    return page->entries[id % kPage];
}

void ItemDirectory::CountUp(unsigned id) {
    ++m_count;
    ++FindPage(id / kPage)->present;
}

void ItemDirectory::CountDown(unsigned id) {
    --m_count;
    if (--FindPage(id / kPage)->present > 0) return;
    m_pages.erase(id / kPage);
    m_lastPage = nullptr;
}

} // namespace zv
