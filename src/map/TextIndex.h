#pragma once

#include <array>
#include <cstddef>
#include <list>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/win/ZvString.h"

namespace zv {

/// The secondary index of a culture list: item ID to the pick IDs of the items that bear it.
///
/// The order of a walk is that of a chained hash table of 17 buckets that is never rehashed: bucket
/// by bucket from 0, and within a bucket the newest key first. The bucket of a key is its hash mod
/// 17; the hash begins at 0 and becomes hash * 33 + byte (unsigned 32 bits) with each byte.
class TextIndex {
  public:
    static constexpr unsigned kBuckets = 17;
    using PickIDs = std::vector<unsigned>;

    static unsigned BucketOf(std::string_view key);

    /// Appends a pick ID to those of a key; makes the key at need.
    void Add(std::string_view key, unsigned pickID);
    /// Owned by this, until the key is removed; null when there is no such key.
    PickIDs* Find(std::string_view key);
    /// Takes a pick ID out of those of a key. The key stays, even with none left, and counts as
    /// new: it stands first in its bucket. False when there is no such key.
    bool Remove(std::string_view key, unsigned pickID);
    /// Takes pick IDs out wherever they stand; keys keep their places. `sorted` ascends.
    void RemoveEverywhere(const std::vector<unsigned>& sorted);
    void Clear();
    /// All keys in the order of the walk.
    std::vector<CString> Keys() const;

  private:
    struct Node {
        CString key;
        PickIDs pickIDs;
    };
    using Chain = std::list<Node>;

    std::array<Chain, kBuckets> m_chains;                          // newest first
    std::unordered_map<std::string_view, Chain::iterator> m_byKey; // keys lie in the nodes
};

} // namespace zv
