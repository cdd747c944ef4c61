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

} // namespace zv
