#include "map/KeyTable.h"

#include <algorithm>

namespace zv {

namespace {

bool KeyBelow(const KeyTable::Entry& entry, std::uint32_t key) {
    return entry.key < key;
}

} // namespace

void KeyTable::Set(std::uint32_t key, std::uint64_t offset) {
    Bucket& bucket = m_buckets[BucketOf(key)];
    const bool newest = bucket.pages.empty() || bucket.pages.back().page->back().key < key;
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
    if (bucket.pages.empty() || bucket.pages.back().page->size() == kPageEntries)
        bucket.pages.push_back({entry.key, std::make_unique<Page>()});
    Page& page = *bucket.pages.back().page;
    page.push_back(entry);
    if (bucket.index) bucket.index->emplace(entry.key, &page);
}

void KeyTable::BuildIndex(Bucket& bucket) {
    bucket.index = std::make_unique<Index>();
    for (const Slot& slot : bucket.pages)
        for (const Entry& entry : *slot.page)
            bucket.index->emplace(entry.key, slot.page.get());
}

// Of ascending keys: the last page that begins at or below the key, 0 if there is none.
std::size_t KeyTable::PageOf(const Bucket& bucket, std::uint32_t key) {
    const auto behind =
        std::upper_bound(bucket.pages.begin(), bucket.pages.end(), key,
                         [](std::uint32_t k, const Slot& slot) { return k < slot.firstKey; });
    return behind == bucket.pages.begin()
               ? 0
               : static_cast<std::size_t>(behind - bucket.pages.begin()) - 1;
}

KeyTable::Page* KeyTable::PageThatHolds(const Bucket& bucket, std::uint32_t key) {
    if (bucket.pages.empty()) return nullptr;
    if (!bucket.index) return bucket.pages[PageOf(bucket, key)].page.get();
    const auto found = bucket.index->find(key);
    return found == bucket.index->end() ? nullptr : found->second;
}

KeyTable::Entry* KeyTable::EntryIn(const Bucket& bucket, Page* page, std::uint32_t key) {
    if (!page) return nullptr;
    const auto found = bucket.index ? std::ranges::find(*page, key, &Entry::key)
                                    : std::lower_bound(page->begin(), page->end(), key, KeyBelow);
    return found != page->end() && found->key == key ? &*found : nullptr;
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
    page->erase(page->begin() + (entry - page->data()));
    if (bucket.index) bucket.index->erase(key);
    if (page->empty()) DropEmptyPage(bucket, page);
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
        cursor.m_entry = bucket.pages[--cursor.m_page].page->size();
    }
    const Entry& entry = (*bucket.pages[cursor.m_page].page)[--cursor.m_entry];
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
        const Page& page = *bucket.pages[cursor.m_page].page;
        const auto place = std::lower_bound(page.begin(), page.end(), cursor.m_key, KeyBelow);
        cursor.m_entry = static_cast<std::size_t>(place - page.begin());
        return;
    }
    if (Page* const page = PageThatHolds(bucket, cursor.m_key)) {
        const auto slot =
            std::ranges::find_if(bucket.pages, [&](const Slot& s) { return s.page.get() == page; });
        cursor.m_page = static_cast<std::size_t>(slot - bucket.pages.begin());
        cursor.m_entry =
            static_cast<std::size_t>(EntryIn(bucket, page, cursor.m_key) - page->data());
        return;
    }
    cursor.m_page = std::min(cursor.m_page, bucket.pages.size() - 1);
    cursor.m_entry = std::min(cursor.m_entry, bucket.pages[cursor.m_page].page->size());
}

std::size_t KeyTable::Bytes() const {
    std::size_t bytes = sizeof *this;
    for (const Bucket& bucket : m_buckets) {
        bytes += bucket.pages.capacity() * sizeof(Slot);
        for (const Slot& slot : bucket.pages)
            bytes += sizeof(Page) + slot.page->capacity() * sizeof(Entry);
        if (bucket.index) bytes += bucket.index->size() * 40;
    }
    return bytes;
}

} // namespace zv
