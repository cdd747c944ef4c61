#include <sstream>

#include "items/SymbolTable.h"
#include "items/ZvDispSymbols.h"
#include "persist/DrawingFormat.h"
#include "persist/DrawingWriter.h"
#include "persist/ZvDispFileParam.h"
#include "platform/Error.h"
#include "platform/Numbers.h"
#include "platform/win/Cursor.h"
#include "platform/win/Files.h"
#include "platform/zvlogs/ZvLog.h"

/// Symbols in symbol files: a head, the primitives, variable texts, a description, the end.

namespace {

using namespace zv;

void WriteVariableText(CZvDisplayItem& item, CZvDispFileParam& file) {
    const ZVColor color = item.GetColor();
    const unsigned char width = item.GetLineWidth(), type = item.GetLineType();
    item.DrwConvertToUnix();
    static_cast<CZvDispText&>(item).WriteVarTextToFile(file);
    item.SetColor(color, 0);
    item.SetLineWidth(width, 0);
    item.SetLineType(type, 0);
}

void WriteDescription(DrawingWriter& out, int number, const std::string& description) {
    const std::string text = FitCharacters(description, "Symbol description");
    out.ShortHead("CTX:", number, drw::kDescription);
    out.Int("NUM:", static_cast<int>(text.size()), drw::kCount).Blanks(65).EndLine();
    out.Characters(text);
}

void WriteOne(int number, CZvDispFileParam& file) {
    file.SetSymbolNum(number);
    CZvDispSymbols(CZvDispPoint(), number).DrwWrite(file);
}

} // namespace

void CZvDispSymbols::V_WriteToFile(CZvDispFileParam& file) {
    std::list<CZvDisplayItem*>* members = S_GetItemList(m_number);
    if (!members) return zv::LogSymbolNotFound(m_number);
    zv::DrawingWriter out(file);
    out.Text(" SYMBOL # ").Int("", m_number, drw::kSymbolNumber).EndLine();
    for (CZvDisplayItem* member : *members)
        member->DrwWrite(file);
    if (std::list<CZvDisplayItem*>* texts = S_GetVtxpItemList(m_number))
        for (CZvDisplayItem* text : *texts)
            WriteVariableText(*text, file);
    std::string description;
    if (S_GetSymDesc(m_number, description)) WriteDescription(out, m_number, description);
    out.ShortHead("EOF:", m_number, drw::kEnd).Blanks(71).EndLine();
}

void CZvDispSymbols::S_WriteSymbolsToFile(const std::string& path,
                                          std::vector<std::string>& numbers, bool all) {
    std::ostringstream out;
    CZvDispFileParam file;
    file.SetSymbol(true);
    file.SetOutFile(&out);
    if (all)
        for (const int number : CZvDispSymbolTable::Get().Ascending())
            WriteOne(number, file);
    else
        for (const std::string& number : numbers)
            if (CZvDispSymbolTable::Get().Has(zv::ParseInt(number)))
                WriteOne(zv::ParseInt(number), file);
            else
                CZvLog::Output(
                    "Symbol number " + number +
                        " has been removed from the memory and won't be saved to the file",
                    101, false);
    try {
        zv::WriteFileAtomically(path, out.str());
    } catch (const zv::DataError& error) {
        CZvLog::Output(error.what(), 101, false);
    }
    SetCursor(LoadCursor(nullptr, IDC_ARROW));
}
