#pragma once

#include "items/ZvDisplayItemPara.h"
#include "map/ZvDispMap.h"
#include "platform/win/Cursor.h"
#include "platform/zvset/ZvSettings.h"
#include "platform/zvset/ZvSettingsManager.h"
#include "support/RecordingContext.h"
#include "support/SymbolHome.h"

namespace zv::test {

/// Numbers as layers and cultures.
inline E_Layer L(int number) {
    return static_cast<E_Layer>(number);
}
inline ZVCulture Cu(int number) {
    return static_cast<ZVCulture>(number);
}

/// A map with settings, work folder and symbol library of its own.
struct MapHome {
    MapHome() { home.WriteEmptyFiles(); }

    SymbolHome home;
    CZvSettingsManager settings;
    CZvDispMap map{&settings};

    /// Adds a circle at (x, 0), which the trace shows by its centre.
    bool AddCircle(double x, int layer, int post, int uset, int culture, bool clip = false) {
        return map.AddItem(new CZvDispCircle({x, 0}, 1.0), static_cast<E_Layer>(layer), post, uset,
                           static_cast<ZVCulture>(culture), clip);
    }
};

} // namespace zv::test
