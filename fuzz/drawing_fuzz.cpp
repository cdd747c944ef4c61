#include <cstdint>
#include <sstream>

#include "items/ZvDisplayItem.h"
#include "persist/ZvDispFileParam.h"

/// Any bytes as a block of drawing records: readers take what is there and the items are sound.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream in(std::string(reinterpret_cast<const char*>(data), size));
    std::ostringstream out;
    CZvDispFileParam file;
    file.SetInFile(&in);
    file.SetOutFile(&out);
    std::list<CZvDisplayItem*> items, texts;
    std::string description;
    CZvDisplayItem::S_ReadDrawingFile(&items, &texts, file, description);
    for (std::list<CZvDisplayItem*>* list : {&items, &texts})
        for (CZvDisplayItem* item : *list) {
            item->WriteDrawingFile(file);
            item->GetCenterPt();
            delete item;
        }
    return 0;
}
