#include "items/ZvDispCircle.h"

#include "clip/ZvDispMapClipper.h"
#include "context/ZvDispGL.h"
#include "items/ItemUpdate.h"
#include "platform/zvcom/ZvUtilGeo.h"

CZvDispCircle::CZvDispCircle(const CZvDispPoint& center, double radius)
    : m_center(center), m_radius(radius) {}

CZvDispCircle::CZvDispCircle(const CZvDispCircle& other)
    : CZvDisplayItem(), m_center(other.m_center), m_radius(other.m_radius) {}

CZvDispCircle::~CZvDispCircle() = default;

CZvDispCircle& CZvDispCircle::operator=(const CZvDispCircle& other) {
    m_center = other.m_center;
    m_radius = other.m_radius;
    return *this;
}

ZVDispType CZvDispCircle::GetDispType() {
    return ZV_DISP_CIRCLE;
}

bool CZvDispCircle::Clip(CZvDispMapClipper* const clipper) {
    return clipper->ClipCircle(this);
}

void CZvDispCircle::Draw(CZvDisplayContext* const context) {
    if (IsDeleted()) return;
    DrawInCodeColor([&] { context->DrawCircle(*this); });
}

void CZvDispCircle::Erase(CZvDisplayContext* const context) {
    const ZVColor own = GetColor();
    StoreColor(ZV_COLOR_BLACK);
    context->DrawCircle(*this);
    StoreColor(own);
}

void CZvDispCircle::V_Rotate(const CZvDispPoint& origin, double degrees) {
    if (degrees == 0.0) return;
    CZvUtilGeo::RotatePoint(m_center, origin, degrees);
}

void CZvDispCircle::V_Update(const void* record) {
    if (zv::UpdateCentered(*this, m_center, zv::AsUpdate(record))) CZvDisplayItem::V_Update(record);
}
