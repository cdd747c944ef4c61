#include "items/ZvDispSymbols.h"

#include "clip/ZvDispMapClipper.h"
#include "context/ZvDispGL.h"
#include "items/ItemUpdate.h"
#include "items/SymbolFiles.h"
#include "items/SymbolMap.h"
#include "items/SymbolTable.h"
#include "platform/wgl/XorScope.h"
#include "platform/zvcom/ZvUtilGeo.h"

CZvDispSymbols::CZvDispSymbols() {
    zv::LoadSymbolFilesOnce();
}

CZvDispSymbols::CZvDispSymbols(const CZvDispPoint& center, int number) : CZvDispSymbols() {
    m_center = center;
    m_number = number;
}

CZvDispSymbols::CZvDispSymbols(const CZvDispPoint& center, const std::string& name)
    : CZvDispSymbols() {
    m_center = center;
    SetSymbolNum(name);
}

CZvDispSymbols::CZvDispSymbols(const CZvDispSymbols& other) : CZvDispSymbols() {
    *this = other;
}

CZvDispSymbols& CZvDispSymbols::operator=(const CZvDispSymbols& other) {
    CZvDisplayItem::operator=(other);
    m_textColor = other.m_textColor;
    m_fillColor = other.m_fillColor;
    m_useGroupColor = other.m_useGroupColor;
    m_useOrigColor = other.m_useOrigColor;
    m_scale = other.m_scale;
    m_center = other.m_center;
    m_number = other.m_number;
    return *this;
}

CZvDispSymbols::~CZvDispSymbols() = default;

ZVDispType CZvDispSymbols::GetDispType() {
    return ZV_DISP_SYMBOL;
}

bool CZvDispSymbols::Clip(CZvDispMapClipper* const clipper) {
    return clipper->ClipSymbol(this);
}

void CZvDispSymbols::SetTextColor(ZVColor color, int) {
    m_textColor = color;
}

void CZvDispSymbols::SetFillColor(ZVColor color, int) {
    m_fillColor = color;
}

void CZvDispSymbols::SetSymbolNum(const std::string& name) {
    constexpr int kUnknownName = 68;
    m_number = CZvDispSymbolMap::Get().Find(name).value_or(kUnknownName);
}

void CZvDispSymbols::Draw(CZvDisplayContext* const context) {
    if (!GetVisibility()) return;
    std::list<CZvDisplayItem*>* members = S_GetItemList(m_number);
    if (!members) return zv::LogSymbolNotFound(m_number);
    for (CZvDisplayItem* member : *members) {
        if (member->GetDispType() == ZV_DISP_TEXT) {
            if (m_textColor == ZV_COLOR_NONE) m_textColor = GetColor();
            member->SetColor(m_textColor, 0);
            continue;
        }
        const bool filled = member->GetFill() && m_fillColor != ZV_COLOR_NONE;
        member->SetColor(filled ? m_fillColor : GetColor(), 0);
        member->SetLineWidth(
            static_cast<unsigned char>(member->GetLineWidth() + GetLineWidth() - 1), 0);
        member->SetLineType(GetLineType(), 0);
    }
    context->DrawSymbol(*this);
    for (CZvDisplayItem* member : *members)
        if (member->GetDispType() != ZV_DISP_TEXT)
            member->SetLineWidth(
                static_cast<unsigned char>(member->GetLineWidth() + 1 - GetLineWidth()), 0);
}

void CZvDispSymbols::Erase(CZvDisplayContext* const context) {
    const bool useGroupColor = m_useGroupColor;
    m_useGroupColor = false;
    {
        zv::XorScope xorScope;
        context->DrawSymbol(*this);
    }
    m_useGroupColor = useGroupColor;
}

void CZvDispSymbols::V_Rotate(const CZvDispPoint& origin, double degrees) {
    if (degrees == 0.0) return;
    CZvUtilGeo::RotatePoint(m_center, origin, degrees);
    SetDegree(degrees);
}

void CZvDispSymbols::V_Update(const void* record) {
    const T_ZV_STRUC_UPDATE& update = zv::AsUpdate(record);
    SetCustomCode(update.code);
    if (std::list<CZvDisplayItem*>* members = S_GetItemList(m_number))
        for (CZvDisplayItem* member : *members)
            member->SetCustomCode(update.code);
    Erase(update.context);
    if (!zv::IsKnownStep(update.code)) return;
    if (update.code == 'm') zv::MoveBy(m_center, update);
    if (update.code == 'm' || update.code == 'v') m_useGroupColor = true;
    const ZVColor fill = m_fillColor, text = m_textColor, own = GetColor();
    const auto setColors = [this](ZVColor f, ZVColor t, ZVColor c) {
        SetFillColor(f, 0);
        SetTextColor(t, 0);
        SetColor(c, 0);
    };
    if (m_useGroupColor) setColors(ZV_COLOR_CODED, ZV_COLOR_CODED, ZV_COLOR_CODED);
    CZvDisplayItem::V_Update(record);
    if (!m_useGroupColor) return;
    setColors(fill, text, own);
    m_useGroupColor = false;
}

std::list<CZvDisplayItem*>* CZvDispSymbols::S_GetItemList(int number) {
    return CZvDispSymbolTable::Get().Items(number);
}

std::list<CZvDisplayItem*>* CZvDispSymbols::S_GetVtxpItemList(int number) {
    return CZvDispSymbolTable::Get().VariableTexts(number);
}

std::list<int>* CZvDispSymbols::S_GetSymbolNumList() {
    return &CZvDispSymbolTable::Get().Numbers();
}

bool CZvDispSymbols::S_FindSymbolNum(const std::string& name, int& number) {
    const std::optional<int> found = CZvDispSymbolMap::Get().Find(name);
    if (found) number = *found;
    return found.has_value();
}

bool CZvDispSymbols::S_GetSymDesc(int number, std::string& description) {
    const std::string* found = CZvDispSymbolTable::Get().Description(number);
    if (!found) return false;
    description = *found;
    return true;
}

int CZvDispSymbols::S_GetNextAvailableSymbolNum(int from, int to) {
    return CZvDispSymbolTable::Get().NextAvailable(from, to);
}

int CZvDispSymbols::S_AddExternalSymbols(std::list<CZvDisplayItem*>* items, int number) {
    if (!items) items = new std::list<CZvDisplayItem*>;
    if (items == S_GetItemList(number)) return number;
    items->remove(nullptr);
    S_DeleteSymbol(number);
    CZvDispSymbolTable::Get().Add(number, zv::SymbolItems(items), nullptr, std::nullopt);
    return number;
}

void CZvDispSymbols::S_DeleteSymbol(int number) {
    CZvDispSymbolTable::Get().Delete(number);
}

void CZvDispSymbols::S_DeleteExternalSymbols() {
    for (int number = 1000; number <= 1999; ++number)
        S_DeleteSymbol(number);
}

void CZvDispSymbols::S_ClearSymbolsMap() {
    CZvDispSymbolTable::Get().Clear();
    CZvDispSymbolMap::Get().Clear();
    zv::ForgetLoadedSymbolFiles();
}
