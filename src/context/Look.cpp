#include "context/Look.h"

namespace zv {

std::size_t LookTable::Hash::operator()(const Look& look) const {
    std::uint64_t bits = look.rgba;
    bits = bits << 32 | std::uint64_t{look.width} << 16 | look.stipple;
    bits ^= static_cast<std::uint64_t>(look.compose) << 48;
    bits ^= std::uint64_t{look.ownColor} << 50 | std::uint64_t{look.ownWidth} << 51 |
            std::uint64_t{look.ownStipple} << 52;
    return std::hash<std::uint64_t>{}(bits * 0x9E3779B97F4A7C15u);
}

std::uint32_t LookTable::NumberOf(const Look& look) {
    if (m_last < m_looks.size() && m_looks[m_last] == look) return m_last;
    const auto [entry, isNew] =
        m_numbers.try_emplace(look, static_cast<std::uint32_t>(m_looks.size()));
    if (isNew) m_looks.push_back(look);
    return m_last = entry->second;
}

} // namespace zv
