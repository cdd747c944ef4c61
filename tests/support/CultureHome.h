#pragma once

#include <memory>
#include <string>
#include <vector>

#include "items/ZvDispCircle.h"
#include "items/ZvDispPolyLine.h"
#include "map/ZvDispCult.h"
#include "platform/zvcom/ZvUtRegistry.h"
#include "support/TempFolder.h"

namespace zv::test {

/// A culture list in a work folder of its own.
struct CultureHome {
    explicit CultureHome(int layer = 90, int culture = 551)
        : list(static_cast<E_Layer>(layer), 1, 2, static_cast<ZVCulture>(culture)) {}

    struct WorkFolder : TempFolder {
        WorkFolder() { Set(Path()); }
        ~WorkFolder() { Set(""); }
        static void Set(const std::string& value) {
            CZvUtRegistry::S_Override(CZvUtRegistry::S_GetWorkPath(), CZvUtRegistry::S_GetWorkKey(),
                                      value);
        }
    };

    /// Adds a line of two vertices at (x, 0) and (x, 1).
    void AddLine(unsigned pickID, double x = 0.0, int color = 8, const std::string& id = "") {
        auto line = Line(pickID, x, color, id);
        list.AddItem(line.get(), nullptr, false);
        static_cast<void>(line.release()); // after a fault it stays ours
    }
    static std::unique_ptr<CZvDispPolyLine> Line(unsigned pickID, double x = 0.0, int color = 8,
                                                 const std::string& id = "") {
        auto line = std::make_unique<CZvDispPolyLine>(std::vector<CZvDispPoint>{{x, 0}, {x, 1}});
        line->SetPickID(pickID);
        line->SetColor(static_cast<ZVColor>(color), 0);
        line->SetID(id);
        return line;
    }
    std::unique_ptr<CZvDisplayItem> Get(unsigned pickID) {
        return std::unique_ptr<CZvDisplayItem>(list.GetItem(pickID));
    }
    /// The pick IDs of the items of an ID.
    std::vector<unsigned> LookUp(const char* id) {
        CString key(id);
        std::vector<unsigned>* found = nullptr;
        return list.LookUpItemPickID(key, found) ? *found : std::vector<unsigned>();
    }

    WorkFolder work;
    CZvDispCult list;
};

} // namespace zv::test
