#include "map/KeyTable.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <list>
#include <random>
#include <vector>

namespace {

using zv::KeyTable;

std::vector<std::uint32_t> Walk(const KeyTable& table) {
    std::vector<std::uint32_t> keys;
    KeyTable::Cursor cursor;
    while (const KeyTable::Entry* entry = table.Next(cursor))
        keys.push_back(entry->key);
    return keys;
}

using Keys = std::vector<std::uint32_t>;

TEST(KeyTable, BucketIsTheKeyWithoutItsLowFourBitsModulo17) {
    EXPECT_EQ(KeyTable::BucketOf(10001), 13u); // 625 mod 17
    EXPECT_EQ(KeyTable::BucketOf(10002), 13u);
    EXPECT_EQ(KeyTable::BucketOf(10016), 14u);
    EXPECT_EQ(KeyTable::BucketOf(0), 0u);
    EXPECT_EQ(KeyTable::BucketOf(17 * 16), 0u);
}

TEST(KeyTable, WithinABucketTheNewestKeyComesFirst) {
    KeyTable table;
    table.Set(10001, 0);
    table.Set(10002, 100);
    EXPECT_EQ(Walk(table), (Keys{10002, 10001}));
}

TEST(KeyTable, WalksTheBucketsFromZeroUp) {
    KeyTable table;
    table.Set(16, 1);  // bucket 1
    table.Set(0, 2);   // bucket 0
    table.Set(32, 3);  // bucket 2
    table.Set(272, 4); // bucket 0 again
    EXPECT_EQ(Walk(table), (Keys{272, 0, 16, 32}));
}

TEST(KeyTable, ReplacingAnOffsetKeepsThePlace) {
    KeyTable table;
    table.Set(1, 10);
    table.Set(2, 20);
    table.Set(1, 30);
    EXPECT_EQ(table.Size(), 2u);
    EXPECT_EQ(Walk(table), (Keys{2, 1}));
    EXPECT_EQ(table.Find(1), 30u);
}

TEST(KeyTable, KeepsOffsetsOf64Bits) {
    KeyTable table;
    table.Set(5, 0x1234567890ABCDEFu);
    EXPECT_EQ(table.Find(5), 0x1234567890ABCDEFu);
}

TEST(KeyTable, FindsNothingInAnEmptyTableAndBesideItsKeys) {
    KeyTable table;
    EXPECT_EQ(table.Find(1), std::nullopt);
    table.Set(1, 0);
    EXPECT_EQ(table.Find(2), std::nullopt);
    EXPECT_EQ(table.Find(0), std::nullopt);
    EXPECT_EQ(table.Find(1 + 272), std::nullopt);
}

TEST(KeyTable, RemovingAnAbsentKeyChangesNothing) {
    KeyTable table;
    table.Set(1, 7);
    EXPECT_FALSE(table.Remove(2));
    EXPECT_EQ(table.Find(1), 7u);
}

TEST(KeyTable, TheLastRemovalFreesTheMemory) {
    KeyTable table;
    const std::size_t empty = table.Bytes();
    for (unsigned key = 1; key <= 5000; ++key)
        table.Set(key, key);
    EXPECT_GT(table.Bytes(), empty);
    for (unsigned key = 1; key <= 5000; ++key)
        EXPECT_TRUE(table.Remove(key));
    EXPECT_EQ(table.Size(), 0u);
    EXPECT_EQ(table.Bytes(), empty);
    EXPECT_TRUE(Walk(table).empty());
}

TEST(KeyTable, AKeyOutOfOrderStandsFirstInItsBucket) {
    KeyTable table;
    table.Set(9, 1);
    table.Set(5, 2);
    table.Set(7, 3);
    EXPECT_EQ(Walk(table), (Keys{7, 5, 9}));
    EXPECT_EQ(table.Find(5), 2u);
    EXPECT_TRUE(table.Remove(5));
    EXPECT_EQ(Walk(table), (Keys{7, 9}));
}

TEST(KeyTable, AWalkSurvivesTheRemovalOfTheKeyItGave) {
    KeyTable table;
    for (unsigned key = 1; key <= 3000; ++key)
        table.Set(key, key);
    const Keys before = Walk(table);
    Keys walked;
    KeyTable::Cursor cursor;
    while (const KeyTable::Entry* entry = table.Next(cursor)) {
        walked.push_back(entry->key);
        if (entry->key % 3 == 0) table.Remove(entry->key);
    }
    EXPECT_EQ(walked, before);
    EXPECT_EQ(table.Size(), 2000u);
}

TEST(KeyTable, AWalkSkipsKeysRemovedAheadAndGivesNoneTwice) {
    KeyTable table;
    for (unsigned key = 0; key < 16; ++key)
        table.Set(key, key);
    KeyTable::Cursor cursor;
    EXPECT_EQ(table.Next(cursor)->key, 15u);
    EXPECT_EQ(table.Next(cursor)->key, 14u);
    table.Remove(14);
    table.Remove(13);
    table.Remove(3);
    Keys rest;
    while (const KeyTable::Entry* entry = table.Next(cursor))
        rest.push_back(entry->key);
    EXPECT_EQ(rest, (Keys{12, 11, 10, 9, 8, 7, 6, 5, 4, 2, 1, 0}));
}

TEST(KeyTable, AWalkGivesNewKeysOfTheBucketsAhead) {
    KeyTable table;
    table.Set(0, 0);
    table.Set(16, 0);
    KeyTable::Cursor cursor;
    EXPECT_EQ(table.Next(cursor)->key, 0u);
    table.Set(1, 0);  // in front of the place in bucket 0: passed
    table.Set(32, 0); // bucket 2: ahead
    EXPECT_EQ(table.Next(cursor)->key, 16u);
    EXPECT_EQ(table.Next(cursor)->key, 32u);
    EXPECT_EQ(table.Next(cursor), nullptr);
    EXPECT_EQ(table.Next(cursor), nullptr) << "the end stays the end";
}

TEST(KeyTable, AWalkEndsWhenTheTableIsCleared) {
    KeyTable table;
    table.Set(1, 0);
    table.Set(2, 0);
    KeyTable::Cursor cursor;
    ASSERT_NE(table.Next(cursor), nullptr);
    table.Clear();
    EXPECT_EQ(table.Next(cursor), nullptr);
}

TEST(KeyTable, TakesAtMost16BytesAnItemAtAMillion) {
    KeyTable table;
    for (unsigned key = 10001; key <= 1010000; ++key)
        table.Set(key, std::uint64_t{key} * 200);
    EXPECT_LE(table.Bytes(), 16'000'000u);
}

/// What the order is defined by: 17 chains, a new node at the head.
class Chains {
  public:
    void Set(std::uint32_t key, std::uint64_t offset) {
        if (auto* entry = Find(key))
            entry->second = offset;
        else
            m_chains[(key >> 4) % 17].push_front({key, offset});
    }
    bool Remove(std::uint32_t key) {
        return std::erase_if(m_chains[(key >> 4) % 17],
                             [&](const auto& entry) { return entry.first == key; }) > 0;
    }
    std::pair<std::uint32_t, std::uint64_t>* Find(std::uint32_t key) {
        for (auto& entry : m_chains[(key >> 4) % 17])
            if (entry.first == key) return &entry;
        return nullptr;
    }
    Keys Walk() const {
        Keys keys;
        for (const auto& chain : m_chains)
            for (const auto& entry : chain)
                keys.push_back(entry.first);
        return keys;
    }

  private:
    std::list<std::pair<std::uint32_t, std::uint64_t>> m_chains[17];
};

void CompareWithChains(unsigned seed, unsigned range, bool ascending) {
    SCOPED_TRACE("seed " + std::to_string(seed) + ", keys below " + std::to_string(range));
    std::mt19937 random(seed);
    KeyTable table;
    Chains chains;
    std::uint32_t newest = 0;
    for (int step = 0; step < 6000; ++step) {
        const std::uint32_t key = random() % range;
        switch (random() % 4) {
        case 0: ASSERT_EQ(table.Remove(key), chains.Remove(key)); break;
        case 1: {
            const auto* expected = chains.Find(key);
            ASSERT_EQ(table.Find(key), expected ? std::optional(expected->second) : std::nullopt);
            break;
        }
        default: {
            const std::uint32_t entered = ascending ? newest += random() % 3 : key;
            table.Set(entered, std::uint64_t{random()} << 8);
            chains.Set(entered, *table.Find(entered));
        }
        }
    }
    EXPECT_EQ(Walk(table), chains.Walk());
    EXPECT_EQ(table.Size(), chains.Walk().size());
}

TEST(KeyTable, AgreesWith17ChainsUnderRandomUse) {
    const unsigned seed = std::random_device{}();
    CompareWithChains(seed, 40, false);
    CompareWithChains(seed + 1, 3000, false);
    CompareWithChains(seed + 2, 100000, false);
    CompareWithChains(seed + 3, 4000, true);
}

} // namespace
