#pragma once

#include "platform/zvcom/ZvDispPoint.h"

class CZvDispGL;

/// The block that an edit session hands to CZvDisplayItem::Update.
struct T_ZV_STRUC_UPDATE {
    unsigned char code = 0; ///< d erased, f final, m move step, r rotation step, v shown again
    CZvDispPoint points[3]; ///< the first is the pivot of a rotation
    double angle = 0.0;     ///< rotation in degrees
    double spare[2] = {0.0, 0.0};
    double deltaX = 0.0; ///< of a move step, map units
    double deltaY = 0.0;
    double scale = 1.0;
    int color = 11;
    CZvDispGL* context = nullptr; ///< borrowed; items redraw themselves on it
};
