#include <sstream>

#include "items/AttributeScope.h"
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
    AttributeScope own(item);
    item.DrwConvertToUnix();
    static_cast<CZvDispText&>(item).WriteVarTextToFile(file);
}

void WriteDescription(DrawingWriter& out, int number, const std::string& description) {
    const std::string text = FitCharacters(description, "Symbol description");
    out.Text("CTX:").Int("", number, drw::kSymbolField);
    out.Int("", drw::kDescription, drw::kCodeField).CountedLine(text);
}

void WriteOne(int number, CZvDispFileParam& file) {
    file.SetSymbolNum(number);
    CZvDispSymbols(CZvDispPoint(), number).DrwWrite(file);
}

void WriteNamed(const std::string& number, CZvDispFileParam& file) {
    if (CZvDispSymbolTable::Get().Has(ParseInt(number))) return WriteOne(ParseInt(number), file);
    CZvLog::Output("Symbol number " + number +
                       " has been removed from the memory and won't be saved to the file",
                   101, false);
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
    out.Text("EOF:").Int("", m_number, drw::kSymbolField);
    out.Int("", drw::kEnd, drw::kCodeField).Blanks(drw::kEndBlanks).EndLine();
}

void CZvDispSymbols::S_WriteSymbolsToFile(const std::string& path,
                                          std::vector<std::string>& numbers, bool all) {
    std::ostringstream out;
    CZvDispFileParam file;
    file.SetSymbol(true);
    file.SetOutFile(&out);
    if (all) {
        for (const int number : CZvDispSymbolTable::Get().Ascending())
            WriteOne(number, file);
    } else {
        for (const std::string& number : numbers)
            WriteNamed(number, file);
    }
    try {
        zv::WriteFileAtomically(path, out.str());
    } catch (const zv::DataError& error) {
        CZvLog::Output(error.what(), 103, false);
    }
    SetCursor(LoadCursor(nullptr, IDC_ARROW));
}
