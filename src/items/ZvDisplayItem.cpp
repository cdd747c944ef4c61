#include "items/ZvDisplayItem.h"

#include "context/ZvDispGL.h"
#include "context/ZvDisplayContext.h"
#include "items/AttributeScope.h"
#include "items/ItemUpdate.h"
#include "platform/wgl/XorScope.h"

CZvDisplayItem::CZvDisplayItem() = default;

CZvDisplayItem::CZvDisplayItem(const CZvDisplayItem&) : m_id() {}

CZvDisplayItem::~CZvDisplayItem() = default;

CZvDisplayItem& CZvDisplayItem::operator=(const CZvDisplayItem& other) {
    if (this == &other) return *this;
    m_visible = other.m_visible;
    m_id = other.m_id;
    m_lineWidth = other.m_lineWidth;
    m_color = other.m_color;
    m_degree = other.m_degree;
    m_fillStyle = other.m_fillStyle;
    m_fill = other.m_fill;
    m_smooth = other.m_smooth;
    m_pickID = other.m_pickID;
    m_brightness = other.m_brightness;
    m_custom = other.m_custom;
    return *this;
}

void CZvDisplayItem::V_Rotate(const CZvDispPoint&, double) {}

bool CZvDisplayItem::Clip(CZvDispMapClipper* const) {
    return false;
}

void CZvDisplayItem::Draw(CZvDisplayContext* const context) {
    context->DrawDispItem(this);
}

void CZvDisplayItem::Erase(CZvDisplayContext* const context) {
    zv::XorScope xorScope;
    context->DrawDispItem(this);
}

CZvDispPoint CZvDisplayItem::GetCenterPt() {
    return {};
}

void CZvDisplayItem::SetColor(ZVColor color, int) {
    m_color = color;
}

void CZvDisplayItem::SetLineWidth(unsigned char width, int) {
    m_lineWidth = width;
}

void CZvDisplayItem::SetLineType(int type, int) {
    m_lineType = static_cast<unsigned char>(type);
}

void CZvDisplayItem::SetID(std::string id) {
    m_id = std::move(id);
}

ZVDispType CZvDisplayItem::GetDispType() {
    return ZV_DISP_NONE;
}

void CZvDisplayItem::V_ReadFromFile(CZvDispFileParam&) {}

void CZvDisplayItem::V_WriteToFile(CZvDispFileParam&) {}

void CZvDisplayItem::SetCustomCode(unsigned char code) {
    m_custom &=
        static_cast<std::uint16_t>(~(kCoded | kDeleted | kMoved | kRotated | kOffset | kInGroup));
    if (code == 0 || code == 'f') return;
    m_custom |= kCoded;
    switch (code) {
    case 'd': m_custom |= kDeleted; break;
    case 'm': m_custom |= kMoved; break;
    case 'r': m_custom |= kRotated; break;
    case 'o': m_custom |= kOffset; break;
    case 'g': m_custom |= kInGroup; break;
    default: break;
    }
}

bool CZvDisplayItem::IsCustomCode(unsigned char code) const {
    switch (code) {
    case 'c': return m_custom & kCoded;
    case 'g': return m_custom & kInGroup;
    case 'm': return m_custom & kMoved;
    case 'o': return m_custom & kOffset;
    default: return false;
    }
}

bool CZvDisplayItem::GetUseOffsetFlag() const {
    return m_custom & kOffset;
}

void CZvDisplayItem::SetUseOffsetFlag(bool on) {
    if (on)
        m_custom |= kOffset;
    else
        m_custom &= static_cast<std::uint16_t>(~kOffset);
}

void CZvDisplayItem::Update(const void* record) {
    CZvDispGL* context = zv::AsUpdate(record).context;
    context->Start();
    V_Update(record);
    if (!m_visible) return;
    const ZVColor own = m_color;
    if (IsCoded()) {
        if (IsMoved() || !IsRotated()) return;
        m_color = ZV_COLOR_CODED;
    }
    context->DrawDispItem(this);
    if (IsCoded()) m_color = own;
}

void CZvDisplayItem::V_Update(const void* record) {
    const T_ZV_STRUC_UPDATE& update = zv::AsUpdate(record);
    if (update.code != 'f' && update.code != 'v') return;
    if (!m_visible || !IsCoded()) return;
    const ZVColor own = m_color;
    if (IsMoved() || !IsRotated()) m_color = ZV_COLOR_CODED;
    update.context->DrawDispItem(this);
    if (IsCoded()) m_color = own;
}

bool CZvDisplayItem::DrwWrite(CZvDispFileParam& file) {
    zv::AttributeScope own(*this);
    DrwConvertToUnix();
    V_WriteToFile(file);
    return true;
}

bool CZvDisplayItem::DrwConvertToUnix() {
    long long color = static_cast<long long>(GetColor()) + 1;
    const auto width = static_cast<unsigned char>(GetLineWidth() + 1);
    const auto type = static_cast<unsigned char>(GetLineType() + 1);
    if (GetDispType() == ZV_DISP_TEXT && width >= 1) color += 8 * width - 8;
    if (color != 0) SetColor(static_cast<ZVColor>(color), 0);
    if (width != 0) SetLineWidth(width, 0);
    if (type != 0) SetLineType(type % 100, 0);
    return true;
}

bool CZvDisplayItem::DrwConvertToPC() {
    ConvertAttrValues();
    return true;
}

void CZvDisplayItem::ConvertAttrValues() {
    const int color = GetColor() <= 0 ? 1 : GetColor();
    const int width = GetLineWidth() == 0 ? 1 : GetLineWidth();
    const int type = GetLineType() == 0 ? 1 : GetLineType();
    SetColor(static_cast<ZVColor>(color - 1), 0);
    SetLineWidth(static_cast<unsigned char>(width - 1), 0);
    SetLineType(type % 100 - 1, 0);
}

namespace {
std::string Blanks(int count) {
    return std::string(count > 0 ? static_cast<std::size_t>(count) : 0, ' ');
}

int Missing(const std::string& text, int width) {
    return width - static_cast<int>(text.size());
}
} // namespace

std::string CZvDisplayItem::PadBlankToFront(std::string text, int width) {
    return Blanks(Missing(text, width)) + text;
}

std::string CZvDisplayItem::PadBlankToBack(std::string text, int width) {
    return text + Blanks(Missing(text, width));
}
