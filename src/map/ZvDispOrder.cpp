#include "map/ZvDispOrder.h"

#include <algorithm>
#include <array>
#include <limits>

namespace {

/// From the bottom of the picture to its top.
constexpr std::array kDefaultOrder = {31, 13, 70, 28, 71, 72, 73, 74, 26, 50, 51, 52, 53,
                                      66, 3,  54, 55, 25, 60, 61, 62, 63, 64, 65, 15, 16,
                                      4,  5,  6,  7,  8,  56, 57, 10, 17, 18, 19, 20, 21,
                                      30, 67, 68, 69, 22, 23, 91, 92, 93, 94, 90, 2};
static_assert(kDefaultOrder.size() == 51);

} // namespace

CZvDispOrder::CZvDispOrder() {
    for (int position = 0; const int layer : kDefaultOrder)
        SetLayerOrder(position++, static_cast<E_Layer>(layer));
    m_cursor = m_order.begin();
}

CZvDispOrder::CZvDispOrder(const CZvDispOrder& other)
    : m_order(other.m_order), m_cursor(m_order.begin()) {}

CZvDispOrder& CZvDispOrder::operator=(const CZvDispOrder& other) {
    m_order = other.m_order;
    m_cursor = m_order.begin();
    return *this;
}

CZvDispOrder::~CZvDispOrder() = default;

void CZvDispOrder::SetLayerOrder(int position, E_Layer layer) {
    m_order[position] = layer;
}

E_Layer CZvDispOrder::GetLayerFromOrder(int position) const {
    const auto found = m_order.find(position);
    return found == m_order.end() ? E_LAYER_UNSET : found->second;
}

void CZvDispOrder::ClearLayerOrderMap() {
    m_order.clear();
    m_cursor = m_order.end();
}

E_Layer CZvDispOrder::GetFirstLayer() {
    m_cursor = m_order.begin();
    return IsEndOfList() ? E_LAYER_UNSET : m_cursor->second;
}

E_Layer CZvDispOrder::GetNextLayer() {
    if (!IsEndOfList()) ++m_cursor;
    return IsEndOfList() ? E_LAYER_UNSET : m_cursor->second;
}

bool CZvDispOrder::IsEndOfList() const {
    return m_cursor == m_order.end();
}

void CZvDispOrder::AddLayer(E_Layer layer) {
    DeleteLayer(layer);
    if (!m_order.empty() && m_order.rbegin()->first == std::numeric_limits<int>::max()) Renumber();
    SetLayerOrder(m_order.empty() ? 0 : m_order.rbegin()->first + 1, layer);
}

void CZvDispOrder::Renumber() {
    std::map<int, E_Layer> dense;
    for (const auto& [position, layer] : m_order)
        dense.emplace_hint(dense.end(), static_cast<int>(dense.size()), layer);
    m_order = std::move(dense);
    m_cursor = m_order.begin();
}

bool CZvDispOrder::DeleteLayer(E_Layer layer) {
    const auto found = std::find_if(m_order.begin(), m_order.end(),
                                    [layer](const auto& entry) { return entry.second == layer; });
    if (found == m_order.end()) return false;
    if (m_cursor == found) ++m_cursor;
    m_order.erase(found);
    return true;
}
