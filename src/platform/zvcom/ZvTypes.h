#pragma once

#include <cstdint>

/// Kinds of display item. The same numbers start a hibernate record.
enum ZVDispType : std::int32_t {
    ZV_DISP_NONE = 0,
    ZV_DISP_TEXT = 1,
    ZV_DISP_POLYLINE = 2,
    ZV_DISP_POLYGON = 3,
    ZV_DISP_SYMBOL = 4,
    ZV_DISP_CIRCLE = 5,
    ZV_DISP_GROUP = 6,
    ZV_DISP_ARC = 7,
};

/// Index into the 256-entry palette of CZvColor. Any 32-bit number is a valid value.
enum ZVColor : std::int32_t {
    ZV_COLOR_NONE = -1, ///< in a symbol's text or fill colour: take the item's colour
    ZV_COLOR_BLACK = 0,
    ZV_COLOR_WHITE = 8,    ///< colour of a new item
    ZV_COLOR_INACTIVE = 9, ///< the grey of inactive items
    ZV_COLOR_MOVED = 11,   ///< marks a moved or rotated item
    ZV_COLOR_ERASE = 99,   ///< stands for the background
    ZV_COLOR_CODED = 246,  ///< marks an item that the editor touched
    ZV_COLOR_GROUP = 255,  ///< colour of a new group
};

/// Number of a map layer. Any 32-bit number is a valid value; titles come from CZvLayerInfo.
enum E_Layer : std::int32_t {
    E_LAYER_UNSET = -1,
    E_LAYER_FURNITURE = 2,
    E_LAYER_LEASE_BLOCKS = 3,
    E_LAYER_LEASES = 13,
    E_LAYER_WELLS = 25,
    E_LAYER_LATLON_GRID = 31,
    E_LAYER_CUSTOM = 90,
    E_LAYER_EXTERNAL = 94,
    E_LAYER_ALL = 99,
    E_LAYER_SYMBOLS = 999,
};

/// Number of a feature kind inside a layer. Any 32-bit number is a valid value. A value above
/// 65535 packs a culture in its high 16 bits and a sub-value in its low 16 bits.
enum ZVCulture : std::int32_t {
    ZV_CULTURE_UNSET = -1,
    ZV_CULTURE_ALL = 900,
};

/// Fill style of an item; its values belong to the contexts that draw it. 0 is a plain fill.
enum E_FILL_STYLE : std::int32_t {
    E_FILL_SOLID = 0,
};

/// Post and user-set number that stands for all of them.
inline constexpr int kAllPosts = 99;
inline constexpr int kAllUserSets = 99;
