#pragma once

/// Names of display lists in one rendering context.
namespace zv {

inline constexpr unsigned kSymbolLists = 2000;    ///< + symbol number
inline constexpr unsigned kCharacterLists = 4000; ///< + character code
inline constexpr unsigned kCharacterCount = 178;  ///< the last ones are empty
inline constexpr unsigned kFirstPickID = 10001;   ///< items: their pick ID
/// + character code: a character and the step to the next. Their place, far above all pick IDs,
/// also makes the driver give out new names up there.
inline constexpr unsigned kSteppingLists = 0x7F000000u;
inline constexpr unsigned kNoPickID = 0xFFFFFFFFu;
inline constexpr unsigned kFontBlock = 256; ///< lists of one style of the outline font
inline constexpr unsigned kFontStyles = 4;
/// Where the outline font's blocks lie when the driver offers names that others use. A new font is
/// made before the former one goes, so there are two places.
inline constexpr unsigned kFontLists = kSymbolLists - kFontBlock * kFontStyles;
inline constexpr unsigned kOtherFontLists = kSteppingLists + 0x1000u;

/// Whether a block of names that the driver offers lies far above symbols, characters and items.
constexpr bool IsFreeForFonts(unsigned base) {
    return base >= kSteppingLists;
}

/// Whether the symbol's list would bear the name of a character's or an item's list.
constexpr bool CollidesWithOthers(int symbol) {
    const long long name = static_cast<long long>(kSymbolLists) + symbol;
    return name < kSymbolLists ||
           (name >= kCharacterLists && name < kCharacterLists + kCharacterCount) ||
           name >= kFirstPickID;
}

/// Whether an item's list may not bear its pick ID, since fonts, symbols and characters lie there.
constexpr bool IsReservedForShapes(unsigned pickID) {
    return pickID == 0 || (pickID >= kFontLists && pickID < kFirstPickID) ||
           pickID >= kSteppingLists;
}

} // namespace zv
