#include "platform/zvcom/ZvColor.h"

#include <algorithm>

#include "platform/Share.h"
#include "platform/zvcom/Palette.h"

namespace {

constexpr int kTargetSmt = 0;
constexpr int kTargetLandmark = 1;
constexpr int kTargetAutoCad = 2;

zv::Palette LoadPalette() {
    const std::filesystem::path path = zv::FindDataFile("palette.json");
    return zv::ParsePalette(zv::ReadWholeFile(path), path.string());
}

const zv::Palette& ThePalette() {
    static const zv::Palette palette = LoadPalette();
    return palette;
}

bool IsInside(int index) {
    return index >= 0 && index < zv::kPaletteSize;
}

/// The entry of an index; that of black for one outside the palette.
const zv::PaletteEntry& EntryOf(int index) {
    return ThePalette().entries[IsInside(index) ? std::size_t(index) : 0];
}

} // namespace

bool CZvColor::GetRGBColor(int index, int& r, int& g, int& b) {
    r = g = b = 0;
    if (!IsInside(index)) return false;
    const auto& rgb = EntryOf(index).rgb;
    r = rgb[0], g = rgb[1], b = rgb[2];
    return true;
}

bool CZvColor::GetCGMColor(int index, double& r, double& g, double& b) {
    int red, green, blue;
    const bool inside = GetRGBColor(index, red, green, blue);
    r = red / 255.0, g = green / 255.0, b = blue / 255.0;
    return inside;
}

std::string CZvColor::GetEXPColor(int index, int target) {
    switch (target) {
    case kTargetSmt: return EntryOf(index).smt;
    case kTargetLandmark: return EntryOf(index).landmark;
    case kTargetAutoCad: return std::to_string(EntryOf(index).acad);
    default: return {};
    }
}

int CZvColor::Convert256To40(int index) {
    return IsInside(index) ? ThePalette().old[std::size_t(index)] : 0;
}

int CZvColor::Get256CrossIndexRGB(int oldIndex, int& r, int& g, int& b) {
    const int index = oldIndex >= 0 && oldIndex < zv::kOldPaletteSize ? oldIndex : 0;
    GetRGBColor(index, r, g, b);
    return index;
}

std::string CZvColor::S_GetName(int index) {
    return IsInside(index) ? EntryOf(index).name : std::string();
}

int CZvColor::S_Find(std::string_view name) {
    const auto& entries = ThePalette().entries;
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&](const auto& entry) { return entry.name == name; });
    return found == entries.end() ? -1 : int(found - entries.begin());
}
