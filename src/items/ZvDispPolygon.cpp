#include "items/ZvDispPolygon.h"

#include "clip/ZvDispMapClipper.h"
#include "context/ZvDisplayContext.h"

CZvDispPolygon::CZvDispPolygon(const std::vector<CZvDispPoint>& vertices)
    : CZvDispPolyLine(vertices) {}

CZvDispPolygon::CZvDispPolygon(const CZvDispPolygon&) : CZvDispPolyLine() {}

CZvDispPolygon::~CZvDispPolygon() = default;

CZvDispPolygon& CZvDispPolygon::operator=(const CZvDispPolygon& other) {
    CZvDispPolyLine::operator=(other);
    m_special = other.m_special;
    m_minDepth = other.m_minDepth;
    m_maxDepth = other.m_maxDepth;
    m_differentZ = other.m_differentZ;
    return *this;
}

ZVDispType CZvDispPolygon::GetDispType() {
    return ZV_DISP_POLYGON;
}

bool CZvDispPolygon::Clip(CZvDispMapClipper* const clipper) {
    return clipper->ClipPolygon(this);
}

void CZvDispPolygon::Draw(CZvDisplayContext* const context) {
    context->DrawPolygon(*this);
}

void CZvDispPolygon::Erase(CZvDisplayContext* const context) {
    CZvDisplayItem::Erase(context);
}
