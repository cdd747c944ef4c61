#include "map/KeyTable.h"

#include <algorithm>

namespace zv {

namespace {

bool KeyBelow(const KeyTable::Entry& entry, std::uint32_t key) {
    return entry.key < key;
}

// Number of the key among all keys that its bucket could hold.
std::uint32_t Rank(std::uint32_t key) {
    return (key >> 4) / KeyTable::kBuckets * 16 + (key & 15);
}

// How many keys of the same bucket lie from one up to before another; 0 when that is not above.
std::size_t RankBehind(std::uint32_t first, std::uint32_t key) {
    return key > first ? Rank(key) - Rank(first) : 0;
}

} // namespace

void KeyTable::Set(std::uint32_t key, std::uint64_t offset) {
    Bucket& bucket = m_buckets[BucketOf(key)];
    const bool newest = bucket.pages.empty() || bucket.pages.back().page->entries.back().key < key;
    if (!newest || bucket.index) {
        if (Entry* const entry = FindEntry(bucket, key)) return entry->SetOffset(offset);
        if (!newest && !bucket.index) BuildIndex(bucket);
    }
    Entry entry{key, 0, 0};
    entry.SetOffset(offset);
    Append(bucket, entry);
    ++m_size;
    ++m_changes;
}

void KeyTable::Append(Bucket& bucket, const Entry& entry) {
    if (bucket.pages.empty() || bucket.pages.back().page->entries.size() == kPageEntries)
        bucket.pages.push_back({entry.key, std::make_unique<Page>(Page{entry.key, {}})});
    Page& page = *bucket.pages.back().page;
    page.entries.push_back(entry);
    if (bucket.index) bucket.index->emplace(entry.key, &page);
}

void KeyTable::BuildIndex(Bucket& bucket) {
    bucket.index = std::make_unique<Index>();
    for (const Slot& slot : bucket.pages)
        for (const Entry& entry : slot.page->entries)
            bucket.index->emplace(entry.key, slot.page.get());
}

// Of ascending keys: the last page that begins at or below the key, 0 if there is none. Where no
// pick ID is left out, its rank tells the page.
std::size_t KeyTable::PageOf(const Bucket& bucket, std::uint32_t key) {
    const std::vector<Slot>& pages = bucket.pages;
    const std::size_t guess = RankBehind(pages.front().firstKey, key) / kPageEntries;
    if (guess < pages.size() && pages[guess].firstKey <= key &&
        (guess + 1 == pages.size() || key < pages[guess + 1].firstKey))
        return guess;
    const auto behind =
        std::upper_bound(pages.begin(), pages.end(), key,
                         [](std::uint32_t k, const Slot& slot) { return k < slot.firstKey; });
    return behind == pages.begin() ? 0 : static_cast<std::size_t>(behind - pages.begin()) - 1;
}

// Of ascending keys: the first entry at or above the key. It stands no further back than the keys
// of the bucket between it and the first one could fill.
std::size_t KeyTable::PlaceOf(const Page& page, std::uint32_t key) {
    const std::vector<Entry>& entries = page.entries;
    const std::size_t most = std::min(RankBehind(page.firstKey, key), entries.size());
    if (most < entries.size() && entries[most].key == key) return most;
    const auto end = entries.begin() + static_cast<std::ptrdiff_t>(most);
    return static_cast<std::size_t>(std::lower_bound(entries.begin(), end, key, KeyBelow) -
                                    entries.begin());
}

KeyTable::Page* KeyTable::PageThatHolds(const Bucket& bucket, std::uint32_t key) {
    if (bucket.pages.empty()) return nullptr;
    if (!bucket.index) return bucket.pages[PageOf(bucket, key)].page.get();
    const auto found = bucket.index->find(key);
    return found == bucket.index->end() ? nullptr : found->second;
}

KeyTable::Entry* KeyTable::EntryIn(const Bucket& bucket, Page* page, std::uint32_t key) {
    if (!page) return nullptr;
    std::vector<Entry>& entries = page->entries;
    const std::size_t place =
        bucket.index ? static_cast<std::size_t>(std::ranges::find(entries, key, &Entry::key) -
                                                entries.begin())
                     : PlaceOf(*page, key);
    return place < entries.size() && entries[place].key == key ? &entries[place] : nullptr;
}

KeyTable::Entry* KeyTable::FindEntry(const Bucket& bucket, std::uint32_t key) {
    return EntryIn(bucket, PageThatHolds(bucket, key), key);
}

std::optional<std::uint64_t> KeyTable::Find(std::uint32_t key) const {
    const Entry* const entry = FindEntry(m_buckets[BucketOf(key)], key);
    return entry ? std::optional(entry->Offset()) : std::nullopt;
}

bool KeyTable::Remove(std::uint32_t key) {
    Bucket& bucket = m_buckets[BucketOf(key)];
    Page* const page = PageThatHolds(bucket, key);
    Entry* const entry = EntryIn(bucket, page, key);
    if (!entry) return false;
    if (m_size == 1) {
        Clear();
        return true;
    }
    page->entries.erase(page->entries.begin() + (entry - page->entries.data()));
    if (bucket.index) bucket.index->erase(key);
    if (page->entries.empty()) DropEmptyPage(bucket, page);
    --m_size;
    ++m_changes;
    return true;
}

void KeyTable::DropEmptyPage(Bucket& bucket, const Page* page) {
    const auto slot =
        std::ranges::find_if(bucket.pages, [&](const Slot& s) { return s.page.get() == page; });
    bucket.pages.erase(slot);
    if (bucket.pages.empty()) bucket.index.reset();
}

void KeyTable::Clear() {
    m_buckets = {};
    m_size = 0;
    ++m_changes;
}

const KeyTable::Entry* KeyTable::Next(Cursor& cursor) const {
    if (cursor.m_changes != m_changes) {
        if (cursor.m_bucket < kBuckets) Resume(m_buckets[cursor.m_bucket], cursor);
        cursor.m_changes = m_changes;
    }
    for (; cursor.m_bucket < kBuckets; ++cursor.m_bucket) {
        const Bucket& bucket = m_buckets[cursor.m_bucket];
        if (!cursor.m_inBucket) {
            cursor.m_inBucket = true;
            cursor.m_given = false;
            cursor.m_page = bucket.pages.size();
            cursor.m_entry = 0;
        }
        if (const Entry* const entry = NextInBucket(bucket, cursor)) return entry;
        cursor.m_inBucket = false;
    }
    return nullptr;
}

const KeyTable::Entry* KeyTable::NextInBucket(const Bucket& bucket, Cursor& cursor) {
    if (cursor.m_entry == 0) {
        if (cursor.m_page == 0) return nullptr;
        cursor.m_entry = bucket.pages[--cursor.m_page].page->entries.size();
    }
    const Entry& entry = bucket.pages[cursor.m_page].page->entries[--cursor.m_entry];
    cursor.m_key = entry.key;
    cursor.m_given = true;
    return &entry;
}

// Finds the cursor's place again after a change.
void KeyTable::Resume(const Bucket& bucket, Cursor& cursor) {
    if (!cursor.m_given) {
        cursor.m_inBucket = false;
        return;
    }
    if (bucket.pages.empty()) {
        cursor.m_page = cursor.m_entry = 0;
        return;
    }
    if (!bucket.index) {
        cursor.m_page = PageOf(bucket, cursor.m_key);
        cursor.m_entry = PlaceOf(*bucket.pages[cursor.m_page].page, cursor.m_key);
        return;
    }
    if (Page* const page = PageThatHolds(bucket, cursor.m_key)) {
        const auto slot =
            std::ranges::find_if(bucket.pages, [&](const Slot& s) { return s.page.get() == page; });
        cursor.m_page = static_cast<std::size_t>(slot - bucket.pages.begin());
        cursor.m_entry =
            static_cast<std::size_t>(EntryIn(bucket, page, cursor.m_key) - page->entries.data());
        return;
    }
    cursor.m_page = std::min(cursor.m_page, bucket.pages.size() - 1);
    cursor.m_entry = std::min(cursor.m_entry, bucket.pages[cursor.m_page].page->entries.size());
}

std::size_t KeyTable::Bytes() const {
    std::size_t bytes = sizeof *this;
    for (const Bucket& bucket : m_buckets) {
        bytes += bucket.pages.capacity() * sizeof(Slot);
        for (const Slot& slot : bucket.pages)
            bytes += sizeof(Page) + slot.page->entries.capacity() * sizeof(Entry);
        if (bucket.index) bytes += bucket.index->size() * 40;
    }
    return bytes;
}

} // namespace zv
