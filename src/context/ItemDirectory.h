#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <unordered_map>

#include "context/Affine.h"
#include "context/RecordArena.h"

namespace zv {

/// What is kept of an item's list besides its recording.
struct ItemEntry {
    bool present = false;
    bool hasDriverList = false;
    bool refersToShapes = false; ///< its box changes with the symbols and the font
    RecordArena::Place record;
    Point2 origin;
    std::array<float, 4> box{}; ///< minX, minY, maxX, maxY on the map, rounded outward

    void SetBox(const Box& relative);
    bool Meets(const Box& visible) const {
        return box[0] <= visible.maxX && box[2] >= visible.minX && box[1] <= visible.maxY &&
               box[3] >= visible.minY;
    }
    Box MapBox() const { return {box[0], box[1], box[2], box[3]}; }
};

/// Entries by pick ID. Neighbouring IDs lie side by side, since a walk meets them together.
class ItemDirectory {
  public:
    /// Null when no item of that ID or of its neighbours is there.
    ItemEntry* Find(unsigned id);
    /// Makes room for the entry; what is entered must be counted up.
    ItemEntry& At(unsigned id);
    std::size_t Count() const { return m_count; }
    /// Neighbourhoods of IDs that take memory.
    std::size_t Pages() const { return m_pages.size(); }
    /// The entry of that ID is present from now on. REQUIRES: At was called for it.
    void CountUp(unsigned id);
    /// It is present no more; it is gone with its neighbourhood when it was the last one there.
    void CountDown(unsigned id);
    /// Calls act(id, entry) for every present entry, in no particular order.
    template<class Act>
    void ForEach(Act&& act) {
        for (auto& [number, page] : m_pages)
            for (unsigned i = 0; i < kPage; ++i)
                if (page->entries[i].present) act(number * kPage + i, page->entries[i]);
    }

  private:
    static constexpr unsigned kPage = 1024;
    struct Page {
        std::array<ItemEntry, kPage> entries;
        unsigned present = 0;
    };
    Page* FindPage(unsigned number);

    std::unordered_map<unsigned, std::unique_ptr<Page>> m_pages;
    unsigned m_lastNumber = 0;
    Page* m_lastPage = nullptr;
    std::size_t m_count = 0;
};

} // namespace zv
