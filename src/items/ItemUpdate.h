#pragma once

#include "items/ZvUpdateRecord.h"

/// What the items' edit steps share.
namespace zv {

inline const T_ZV_STRUC_UPDATE& AsUpdate(const void* record) {
    return *static_cast<const T_ZV_STRUC_UPDATE*>(record);
}

inline void MoveBy(CZvDispPoint& point, const T_ZV_STRUC_UPDATE& update) {
    point.SetX(point.GetX() + update.deltaX);
    point.SetY(point.GetY() + update.deltaY);
}

/// Codes that end in the base's edit step for circles and arcs, a move among them.
inline bool IsKnownStep(unsigned char code) {
    return code == 'd' || code == 'f' || code == 'v' || code == 'r' || code == 'm';
}

/// The edit step of circles and arcs: the item is erased before it is coded, and a move shifts its
/// centre. False when the step ends without the base's.
template<class Item>
bool UpdateCentered(Item& item, CZvDispPoint& center, const T_ZV_STRUC_UPDATE& update) {
    item.Erase(update.context);
    item.SetCustomCode(update.code);
    if (update.code == 'm') MoveBy(center, update);
    return IsKnownStep(update.code);
}

} // namespace zv
