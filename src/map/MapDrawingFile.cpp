#include <filesystem>
#include <fstream>

#include "items/ZvDisplayItemPara.h"
#include "map/ZvDispMap.h"
#include "persist/DrawingBlock.h"
#include "persist/DrawingFormat.h"
#include "persist/DrawingReader.h"
#include "persist/ZvDispFileParam.h"
#include "platform/Numbers.h"
#include "platform/win/AtomicFile.h"
#include "platform/win/Cursor.h"
#include "platform/win/Files.h"
#include "platform/win/MessageBox.h"
#include "platform/zvlogs/ZvLog.h"

/// Whole maps as drawing files.

namespace {

using namespace zv;

/// Only their records are to remain of the items that a file brings.
CZvDisplayItemPara& LoaderPara() {
    static CZvDisplayItemPara para(true);
    return para;
}

bool IsMapRecord(int code) {
    return code == drw::kArc || code == drw::kCircle || code == drw::kTwoPointLine ||
           code == drw::kPolyline || code == drw::kText;
}

bool IsArea(int code) {
    return code == drw::kPolygon || code == drw::kTriangle;
}

/// Goes through a drawing file record by record and hands the items over.
template<class Add>
int ReadRecords(std::istream& stream, Add&& add) {
    DrawingReader in(stream);
    CZvDispFileParam file;
    file.SetInFile(&stream);
    int areas = 0;
    while (in.Tag()) {
        const int code = in.Int(drw::kSymbolField, drw::kCodeField);
        const int layer = in.Int(0, drw::kLayerField);
        if (code == drw::kDescription) in.Skip(drw::kCountLine + drw::kCharacterLine);
        if (IsArea(code)) ++areas;
        if (!IsMapRecord(code)) continue;
        if (code == drw::kText) in.Skip(drw::kTextHeadBlanks);
        std::unique_ptr<CZvDisplayItem> item = MakeDrawingItem(code);
        item->ReadDrawingFile(file);
        add(std::move(item), layer, file);
    }
    return areas;
}

void LogAreas(int areas, const std::string& path) {
    if (areas > 0)
        CZvLog::Output(FormatInt(areas) + " polygons of the drawing file " + path +
                           " are not read into a map; their lines are stepped through token by "
                           "token, and one that looks like a record may be taken for one.",
                       103, false);
}

} // namespace

void CZvDispMap::Read(const std::string& path) {
    std::ifstream in(zv::NativePath(path), std::ios::binary);
    if (!in || std::filesystem::is_directory(zv::NativePath(path))) {
        AfxMessageBox("Could not open file:\n" + path);
        return;
    }
    const int areas = ReadRecords(
        in, [this](std::unique_ptr<CZvDisplayItem> item, int layer, const CZvDispFileParam& file) {
            item->SetPara(&LoaderPara());
            AddItem(item.get(), static_cast<E_Layer>(layer), file.GetPostNum(), file.GetUsetNum(),
                    static_cast<ZVCulture>(file.GetCulture()), false);
            item.release(); // the map's since it was added
        });
    LogAreas(areas, path);
}

void CZvDispMap::Write(const std::string& path, E_Layer layer, int, int, ZVCulture) {
    zv::AtomicFile target(path);
    CZvDispFileParam file;
    file.SetOutFile(&target.Stream());
    SetCursor(LoadCursor(nullptr, IDC_WAIT));
    if (layer == E_LAYER_ALL) {
        for (CZvDispLayer* l = GetFirstLayer(); l; l = GetNextLayer())
            for (CZvDispPost* p = l->GetFirstPost(); p; p = l->GetNextPost())
                for (CZvDispUSet* u = p->GetFirstUSet(); u; u = p->GetNextUSet())
                    for (CZvDispCult* c = u->GetFirstCult(); c; c = u->GetNextCult())
                        c->Write(file);
        target.Stream() << CZvDisplayItem::PadBlankToBack("EOF:  120", zv::drw::kLine);
    }
    if (!target.Commit())
        CZvLog::Output("Could not write the drawing file " + path + ": " + target.Reason(), 103,
                       false);
    SetCursor(LoadCursor(nullptr, IDC_ARROW));
}
