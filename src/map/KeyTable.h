#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace zv {

/// The items of a culture list: pick ID to file offset, in little more than 12 bytes an item.
///
/// The order of a walk is that of a chained hash table of 17 buckets that is never rehashed: bucket
/// by bucket from 0, and within a bucket the newest key first. The bucket of a key is (key >> 4)
/// mod 17. Setting the offset of a key that is there keeps its place.
///
/// Keys that ascend, as a map gives them out, are found by binary search. A bucket that gets a key
/// below its newest one builds a hash table on top, for about 40 bytes a key.
class KeyTable {
  public:
    static constexpr unsigned kBuckets = 17;

    struct Entry {
        std::uint32_t key;
        std::uint32_t low; ///< offset, in two halves: 12 bytes, not 16
        std::uint32_t high;

        std::uint64_t Offset() const { return std::uint64_t{high} << 32 | low; }
        void SetOffset(std::uint64_t offset) {
            low = static_cast<std::uint32_t>(offset);
            high = static_cast<std::uint32_t>(offset >> 32);
        }
    };

    /// A place in the walk, for Next.
    class Cursor {
        friend class KeyTable;
        unsigned m_bucket = 0;
        bool m_inBucket = false;
        std::size_t m_page = 0;  // of the bucket; those behind it are done
        std::size_t m_entry = 0; // of the page; this one and those behind it are done
        std::uint32_t m_key = 0; // given last in this bucket
        bool m_given = false;    // whether there is such a key
        std::uint64_t m_changes = 0;
    };

    static constexpr unsigned BucketOf(std::uint32_t key) { return (key >> 4) % kBuckets; }

    std::size_t Size() const { return m_size; }
    /// Enters a key or replaces its offset.
    void Set(std::uint32_t key, std::uint64_t offset);
    std::optional<std::uint64_t> Find(std::uint32_t key) const;
    /// False when there is no such key. The last one frees all memory.
    bool Remove(std::uint32_t key);
    void Clear();
    /// The next entry of the walk, the first one for a new cursor; null at the end. Borrowed until
    /// the table changes. Keys may be set and removed while a walk is under way: no key that stays
    /// is passed over or comes twice, and a new one comes when its place is still ahead. (In a
    /// bucket with a hash table, a walk whose last key was removed together with others that were
    /// still ahead may give keys a second time.)
    const Entry* Next(Cursor& cursor) const;
    /// Counts removals and new keys.
    std::uint64_t Changes() const { return m_changes; }
    /// Memory held, in bytes.
    std::size_t Bytes() const;

  private:
    struct Page {
        std::uint32_t firstKey;     // none of its keys lies below
        std::vector<Entry> entries; // oldest key first; never empty
    };
    struct Slot {
        std::uint32_t firstKey;
        std::unique_ptr<Page> page;
    };
    using Index = std::unordered_map<std::uint32_t, Page*>;
    struct Bucket {
        std::vector<Slot> pages;
        std::unique_ptr<Index> index; // once the keys do not ascend
    };
    static constexpr std::size_t kPageEntries = 512;

    static void Append(Bucket& bucket, const Entry& entry);
    static void BuildIndex(Bucket& bucket);
    static std::size_t PageOf(const Bucket& bucket, std::uint32_t key);
    static std::size_t PlaceOf(const Page& page, std::uint32_t key);
    static Page* PageThatHolds(const Bucket& bucket, std::uint32_t key);
    static Entry* EntryIn(const Bucket& bucket, Page* page, std::uint32_t key);
    static Entry* FindEntry(const Bucket& bucket, std::uint32_t key);
    static void DropEmptyPage(Bucket& bucket, const Page* page);
    static void Resume(const Bucket& bucket, Cursor& cursor);
    static const Entry* NextInBucket(const Bucket& bucket, Cursor& cursor);

    std::array<Bucket, kBuckets> m_buckets;
    std::size_t m_size = 0;
    std::uint64_t m_changes = 0;
};

} // namespace zv
