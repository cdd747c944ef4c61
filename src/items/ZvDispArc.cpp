#include "items/ZvDispArc.h"

#include "clip/ZvDispMapClipper.h"
#include "context/ZvDispGL.h"
#include "items/ItemUpdate.h"
#include "platform/Numbers.h"
#include "platform/zvcom/ZvUtilGeo.h"

CZvDispArc::CZvDispArc(const CZvDispPoint& center, double radius, float startAngle, float endAngle)
    : m_radius(radius), m_center(center), m_endAngle(endAngle), m_startAngle(startAngle) {}

CZvDispArc::~CZvDispArc() = default;

CZvDispArc& CZvDispArc::operator=(const CZvDispArc& other) {
    CZvDisplayItem::operator=(other);
    m_radius = other.m_radius;
    m_center = other.m_center;
    m_endAngle = other.m_endAngle;
    m_startAngle = other.m_startAngle;
    return *this;
}

ZVDispType CZvDispArc::GetDispType() {
    return ZV_DISP_ARC;
}

bool CZvDispArc::Clip(CZvDispMapClipper* const clipper) {
    return clipper->ClipArc(this);
}

void CZvDispArc::Draw(CZvDisplayContext* const context) {
    if (IsDeleted()) return;
    DrawInCodeColor([&] { context->DrawArc(*this); });
}

void CZvDispArc::Erase(CZvDisplayContext* const context) {
    const ZVColor own = GetColor();
    StoreColor(ZV_COLOR_BLACK);
    context->DrawArc(*this);
    StoreColor(own);
}

void CZvDispArc::V_Rotate(const CZvDispPoint& origin, double degrees) {
    if (degrees == 0.0) return;
    CZvUtilGeo::RotatePoint(m_center, origin, degrees);
    m_endAngle = zv::ToFloat(m_endAngle + degrees);
    m_startAngle = zv::ToFloat(m_startAngle + degrees);
}

void CZvDispArc::V_Update(const void* record) {
    if (zv::UpdateCentered(*this, m_center, zv::AsUpdate(record))) CZvDisplayItem::V_Update(record);
}
