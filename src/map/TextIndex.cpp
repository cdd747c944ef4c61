#include "map/TextIndex.h"

#include <algorithm>

namespace zv {

unsigned TextIndex::BucketOf(std::string_view key) {
    std::uint32_t hash = 0;
    for (const char c : key)
        hash = hash * 33 + static_cast<unsigned char>(c);
    return hash % kBuckets;
}

void TextIndex::Add(std::string_view key, unsigned pickID) {
    if (const auto found = m_byKey.find(key); found != m_byKey.end()) {
        found->second->pickIDs.push_back(pickID);
        return;
    }
    Chain& chain = m_chains[BucketOf(key)];
    chain.push_front({CString(key), {pickID}});
    m_byKey.emplace(chain.front().key.Str(), chain.begin());
}

TextIndex::PickIDs* TextIndex::Find(std::string_view key) {
    const auto found = m_byKey.find(key);
    return found == m_byKey.end() ? nullptr : &found->second->pickIDs;
}

bool TextIndex::Remove(std::string_view key, unsigned pickID) {
    const auto found = m_byKey.find(key);
    if (found == m_byKey.end()) return false;
    const Chain::iterator node = found->second;
    std::erase(node->pickIDs, pickID);
    Chain& chain = m_chains[BucketOf(key)];
    chain.splice(chain.begin(), chain, node);
    return true;
}

void TextIndex::RemoveEverywhere(const std::vector<unsigned>& sorted) {
    for (Chain& chain : m_chains)
        for (Node& node : chain)
            std::erase_if(node.pickIDs, [&](unsigned pickID) {
                return std::binary_search(sorted.begin(), sorted.end(), pickID);
            });
}

void TextIndex::Clear() {
    m_byKey.clear();
    for (Chain& chain : m_chains)
        chain.clear();
}

std::vector<CString> TextIndex::Keys() const {
    std::vector<CString> keys;
    keys.reserve(m_byKey.size());
    for (const Chain& chain : m_chains)
        for (const Node& node : chain)
            keys.push_back(node.key);
    return keys;
}

} // namespace zv
