#include "items/ZvDispText.h"

#include <algorithm>

#include "clip/ZvDispMapClipper.h"
#include "context/ZvDispGL.h"
#include "items/ItemUpdate.h"
#include "platform/zvcom/ZvUtilGeo.h"

CZvDispText::CZvDispText() {
    SetUseOffsetFlag(false);
}

CZvDispText::~CZvDispText() = default;

CZvDispText& CZvDispText::operator=(const CZvDispText& other) {
    CZvDisplayItem::operator=(other);
    m_offsetID = other.m_offsetID;
    m_font = other.m_font;
    m_label = other.m_label;
    m_vertical = other.m_vertical;
    m_horizontal = other.m_horizontal;
    m_point = other.m_point;
    m_height = other.m_height;
    m_offset = other.m_offset;
    return *this;
}

ZVDispType CZvDispText::GetDispType() {
    return ZV_DISP_TEXT;
}

bool CZvDispText::Clip(CZvDispMapClipper* const clipper) {
    return clipper->ClipText(this);
}

void CZvDispText::SetID(std::string id) {
    CZvDisplayItem::SetID(id);
    SetOffsetID(std::move(id));
}

void CZvDispText::SetOffsetID(std::string id) {
    std::replace(id.begin(), id.end(), ' ', '-');
    m_offsetID = std::move(id);
}

double CZvDispText::GetTextLength(int extra) const {
    const auto characters = static_cast<double>(m_label.substr(0, m_label.find('\0')).size());
    return (characters + extra) * m_height;
}

CZvDispPoint CZvDispText::GetJustCenter() const {
    CZvDispPoint center(m_point);
    const double half = GetTextLength(0) * 0.5;
    if (m_horizontal == 'l') center.SetX(center.GetX() + half);
    if (m_horizontal == 'r') center.SetX(center.GetX() - half);
    if (m_vertical == 'a') center.SetY(center.GetY() + m_height * 0.5);
    if (m_vertical == 'b') center.SetY(center.GetY() - m_height * 0.5);
    CZvUtilGeo::RotatePoint(center, m_point, GetDegree());
    return center;
}

void CZvDispText::Draw(CZvDisplayContext* const context) {
    if (!GetVisibility()) return;
    DrawInCodeColor([&] { context->DrawText(*this); });
}

void CZvDispText::Erase(CZvDisplayContext* const context) {
    const ZVColor own = GetColor();
    SetColor(ZV_COLOR_ERASE, 0);
    context->DrawText(*this);
    SetColor(own, 0);
}

void CZvDispText::V_Rotate(const CZvDispPoint& origin, double degrees) {
    if (degrees == 0.0) return;
    SetDegree(degrees);
    CZvDispPoint turned = m_point;
    CZvUtilGeo::RotatePoint(turned, origin, degrees);
    SetPoint(turned);
}

void CZvDispText::V_Update(const void* record) {
    const T_ZV_STRUC_UPDATE& update = zv::AsUpdate(record);
    SetCustomCode(update.code);
    Erase(update.context);
    SetUseOffsetFlag(false);
    switch (update.code) {
    case 'd': SetVisibility(false); break;
    case 'f':
    case 'v': break;
    case 'm':
        zv::MoveBy(m_point, update);
        zv::MoveBy(m_offset, update);
        SetCustomCode('o');
        SetUseOffsetFlag(true);
        break;
    case 'r': SetDegree(update.angle); break;
    default: SetVisibility(true); return;
    }
    CZvDisplayItem::V_Update(record);
}
