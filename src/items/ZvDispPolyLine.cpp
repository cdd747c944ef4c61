#include "items/ZvDispPolyLine.h"

#include "clip/ZvDispMapClipper.h"
#include "context/ZvDispGL.h"
#include "items/ItemUpdate.h"
#include "platform/zvcom/ZvUtilGeo.h"
#include "platform/zvlogs/ZvLog.h"

CZvDispPolyLine::CZvDispPolyLine(const std::vector<CZvDispPoint>& vertices)
    : m_vertices(vertices) {}

CZvDispPolyLine::~CZvDispPolyLine() = default;

CZvDispPolyLine& CZvDispPolyLine::operator=(const CZvDispPolyLine& other) {
    CZvDisplayItem::operator=(other);
    m_vertices = other.m_vertices;
    return *this;
}

ZVDispType CZvDispPolyLine::GetDispType() {
    return ZV_DISP_POLYLINE;
}

bool CZvDispPolyLine::Clip(CZvDispMapClipper* const clipper) {
    return clipper->ClipPolyline(this);
}

void CZvDispPolyLine::SetVertices(const std::vector<CZvDispPoint>& vertices) {
    if (&vertices == &m_vertices)
        m_vertices.clear();
    else
        m_vertices = vertices;
}

void CZvDispPolyLine::Draw(CZvDisplayContext* const context) {
    if (!GetVisibility()) return;
    DrawInCodeColor([&] { context->DrawPolyLine(*this); });
}

void CZvDispPolyLine::Erase(CZvDisplayContext* const context) {
    const ZVColor own = GetColor();
    SetColor(ZV_COLOR_ERASE, 0);
    context->DrawPolyLine(*this);
    StoreColor(own);
}

CZvDispPoint CZvDispPolyLine::GetCenterPt() {
    if (m_vertices.empty()) return {};
    std::vector<CZvDispPoint> closed = m_vertices;
    closed.push_back(closed.front());
    return CZvUtilGeo::S_FindPolylineCenter(closed);
}

void CZvDispPolyLine::V_Rotate(const CZvDispPoint& origin, double degrees) {
    if (degrees == 0.0) return;
    std::vector<CZvDispPoint> turned = m_vertices;
    CZvUtilGeo::RotatePolyline(turned, origin, degrees);
    SetVertices(turned);
}

void CZvDispPolyLine::V_Update(const void* record) {
    const T_ZV_STRUC_UPDATE& update = zv::AsUpdate(record);
    SetCustomCode(update.code);
    Erase(update.context);
    switch (update.code) {
    case 'm':
        for (CZvDispPoint& vertex : m_vertices)
            zv::MoveBy(vertex, update);
        break;
    case 'r': CZvLog::Output("can't rotate this object", 101, false); break;
    case 'd':
    case 'f':
    case 'v': break;
    default: return;
    }
    CZvDisplayItem::V_Update(record);
}
