#include <memory>

#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispPolygon.h"
#include "items/ZvDispText.h"
#include "persist/DrawingBlock.h"
#include "persist/DrawingFormat.h"
#include "persist/DrawingReader.h"
#include "persist/ZvDispFileParam.h"
#include "platform/win/MessageBox.h"

namespace zv {

std::unique_ptr<CZvDisplayItem> MakeDrawingItem(int code) {
    switch (code) {
    case drw::kArc: return std::make_unique<CZvDispArc>();
    case drw::kCircle: return std::make_unique<CZvDispCircle>();
    case drw::kPolygon:
    case drw::kTriangle: return std::make_unique<CZvDispPolygon>();
    case drw::kTwoPointLine:
    case drw::kPolyline: return std::make_unique<CZvDispPolyLine>();
    case drw::kText:
    case drw::kVariableText: return std::make_unique<CZvDispText>();
    default: return nullptr;
    }
}

namespace {

bool RefuseFile() {
    AfxMessageBox("This file is not a valid VELDOMAR drawing file."
                  "\nIf this is UNIX version of drawing file, "
                  "use unix2dos to convert it first",
                  MB_ICONEXCLAMATION);
    return false;
}

void ToZeroBased(std::list<CZvDisplayItem*>* items) {
    if (!items) return;
    for (CZvDisplayItem* item : *items)
        item->DrwConvertToPC();
}

/// Characters between a record's code and the attributes that the item itself reads.
int HeadRest(int code) {
    const bool text = code == drw::kText || code == drw::kVariableText;
    return drw::kLayerField + (text ? drw::kTextHeadBlanks : 0);
}

} // namespace
} // namespace zv

bool CZvDisplayItem::S_ReadDrawingFile(std::list<CZvDisplayItem*>* items,
                                       std::list<CZvDisplayItem*>* variableTexts,
                                       CZvDispFileParam& file, std::string& description) {
    using namespace zv;
    DrawingReader in(*file.GetInFile());
    for (;;) {
        in.Tag();
        const int code = in.Int(drw::kSymbolField, drw::kCodeField);
        if (code == drw::kEnd) {
            ToZeroBased(items);
            ToZeroBased(variableTexts);
            return true;
        }
        if (code == drw::kDescription) {
            in.Skip(4);
            description = in.CountedLine();
            continue;
        }
        std::unique_ptr<CZvDisplayItem> item = MakeDrawingItem(code);
        if (!item) return RefuseFile();
        in.Skip(HeadRest(code));
        item->ReadDrawingFile(file);
        std::list<CZvDisplayItem*>* to = code == drw::kVariableText ? variableTexts : items;
        if (to) to->push_back(item.release());
    }
}
