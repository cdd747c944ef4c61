#include "context/ZvDisplayContext.h"

#include <array>
#include <cstdint>

#include "clip/ZvDispClipper.h"
#include "platform/Numbers.h"
#include "platform/wgl/Wgl.h"
#include "platform/win/MessageBox.h"
#include "platform/zvcom/ZvColor.h"
#include "platform/zvlogs/ZvLog.h"

CZvDisplayContext::CZvDisplayContext() = default;
CZvDisplayContext::CZvDisplayContext(const CZvDisplayContext& other) = default;
CZvDisplayContext& CZvDisplayContext::operator=(const CZvDisplayContext& other) = default;
CZvDisplayContext::~CZvDisplayContext() = default;

void CZvDisplayContext::V_Close() {}
void CZvDisplayContext::V_Open() {}
void CZvDisplayContext::SetView(CZvDispPoint&, CZvDispPoint&) {}
void CZvDisplayContext::SetTransLate(double, double, double) {}
void CZvDisplayContext::SetRotate(double, double, double) {}
void CZvDisplayContext::SetSkewAngle(double degrees) {
    skewAngle = degrees;
}
void CZvDisplayContext::SetFontIndex(int) {}
bool CZvDisplayContext::GetProcessInvisible() {
    return false;
}
void CZvDisplayContext::SetLineType(unsigned char) {}
bool CZvDisplayContext::ReadTagInfo(int, void*) {
    return true;
}

std::string CZvDisplayContext::GetFontName(int index) {
    static constexpr std::array kNames = {"Stroke", "Times", "Helvetica",   "Courier",
                                          "Tahoma", "Arial", "Arial Black", "Arial Narrow",
                                          "Italic", "Impact"};
    return kNames[static_cast<std::size_t>(index)];
}

bool CZvDisplayContext::WriteTagInfo(int tag, const void* value) {
    const auto number = [value] { return *static_cast<const std::int32_t*>(value); };
    switch (tag) {
    case ZV_TAG_LAYER: layer = number(); break;
    case ZV_TAG_POST: post = number(); break;
    case ZV_TAG_USET: uset = number(); break;
    case ZV_TAG_CULTURE: culture = number(); break;
    default: break;
    }
    return true;
}

bool CZvDisplayContext::GetRGBColor(int index, int& r, int& g, int& b) {
    return CZvColor::GetRGBColor(index, r, g, b);
}

bool CZvDisplayContext::DrawDispItem(CZvDisplayItem* item) {
    if (!item) return false;
    switch (item->GetDispType()) {
    case ZV_DISP_TEXT: DrawText(static_cast<CZvDispText&>(*item)); return true;
    case ZV_DISP_POLYLINE: {
        auto& line = static_cast<CZvDispPolyLine&>(*item);
        if (line.GetSize() == 1)
            CZvLog::Output("Only one point found in polygline" + line.GetID() + " Skipped.", 103,
                           false);
        else
            DrawPolyLine(line);
        return true;
    }
    case ZV_DISP_POLYGON: DrawPolygon(static_cast<CZvDispPolygon&>(*item)); return true;
    case ZV_DISP_SYMBOL: CTXDrawSymbol(static_cast<CZvDispSymbols&>(*item)); return true;
    case ZV_DISP_CIRCLE: DrawCircle(static_cast<CZvDispCircle&>(*item)); return true;
    case ZV_DISP_GROUP: CTXDrawGroup(static_cast<CZvDispGroup&>(*item)); return true;
    case ZV_DISP_ARC: DrawArc(static_cast<CZvDispArc&>(*item)); return true;
    default: return false;
    }
}

namespace {

CZvDispClipper ClipperOf(std::vector<CZvDispPoint>& outline) {
    CZvDispClipper clipper;
    clipper.SetBoundsPolygon(outline);
    return clipper;
}

} // namespace

bool CZvDisplayContext::ClipText(CZvDispText& text) {
    return !clipOn || ClipperOf(boundPolygon).ClipText(&text);
}

bool CZvDisplayContext::ClipSymbol(CZvDispSymbols& symbol) {
    return !clipOn || ClipperOf(boundPolygon).ClipSymbol(&symbol);
}

bool CZvDisplayContext::IsInsideFinalBorder(CZvDispPoint point) {
    return ClipperOf(boundPolygon).IsInArea(point);
}

void CZvDisplayContext::LogError(int kind, double x, double y, std::string text) {
    static constexpr std::array kNames = {"POLYLINE", "POLYGON", "CIRCLE", "ARC",
                                          "SYMBOL",   "TEXT",    "SQUARE"};
    if (!IsInsideFinalBorder({x, y})) return;
    std::string line;
    if (kind >= ZV_CODE_POLYLINE && kind <= ZV_CODE_SQUARE) {
        const char* name = kNames[static_cast<std::size_t>(kind - ZV_CODE_POLYLINE)];
        line = std::string("Point Error, C_") + name + "_ATTR, eLayer=" + zv::FormatInt(layer) +
               ",eCul=" + zv::FormatInt(culture) + ",ePost=" + zv::FormatInt(post) +
               ",eUset=" + zv::FormatInt(uset) + ",X=" + zv::FormatFixed(x, 6) +
               ",Y=" + zv::FormatFixed(y, 6);
        if (kind == ZV_CODE_TEXT) line += ",\"" + text + "\"";
    }
    CZvLog::Output(line, 103, false);
}

void CZvDisplayContext::GetError(const char* title) {
    MessageBoxA(FormatMessageA(GetLastError()), title, MB_ICONINFORMATION);
}
