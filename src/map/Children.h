#pragma once

namespace zv {

/// The first/next walk of a level of the map's tree: the child that an iterator stands on, or null
/// at the end. Entries without a child are passed over.
template<class Map>
auto* ChildAt(const Map& children, typename Map::const_iterator& cursor) {
    while (cursor != children.end() && !cursor->second)
        ++cursor;
    return cursor == children.end() ? nullptr : cursor->second.get();
}

template<class Map>
auto* NextChild(const Map& children, typename Map::const_iterator& cursor) {
    if (cursor != children.end()) ++cursor;
    return ChildAt(children, cursor);
}

/// The child of a number, or null.
template<class Map>
auto* FindChild(const Map& children, typename Map::key_type number) {
    const auto found = children.find(number);
    return found == children.end() ? nullptr : found->second.get();
}

} // namespace zv
