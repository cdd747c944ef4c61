// The hibernate record of each kind of item: the kind, the common part, the kind's own part. What
// is written and what is read stand side by side; the grammar is docs/hibernate-record.md.
#include "items/ZvDispArc.h"
#include "items/ZvDispCircle.h"
#include "items/ZvDispGroup.h"
#include "items/ZvDispPolygon.h"
#include "items/ZvDispSymbols.h"
#include "items/ZvDispText.h"
#include "persist/ItemTransfer.h"
#include "persist/ZvDispFileParam.h"
#include "platform/Numbers.h"

bool CZvDisplayItem::Hibernate(zv::RecordWriter& to) {
    const zv::TransferScope scope(m_out, to);
    CZvDispFileParam file;
    return V_DispHib(file);
}

bool CZvDisplayItem::Wake(zv::RecordReader& from) {
    const zv::TransferScope scope(m_in, from);
    CZvDispFileParam file;
    return V_DispWake(file);
}

bool CZvDisplayItem::HibDispItem(std::FILE* stream) {
    if (!stream) return false;
    m_stream = stream;
    zv::RecordWriter record;
    const bool done = Hibernate(record);
    std::fwrite(record.Bytes().data(), 1, record.Size(), stream);
    return done;
}

bool CZvDisplayItem::WakeDispItem(std::FILE* stream) {
    if (!stream) return false;
    m_stream = stream;
    zv::RecordReader record(stream);
    return Wake(record);
}

CZvDisplayItem* CZvDisplayItem::S_MakeNewItem(std::FILE* stream) {
    if (!stream) return nullptr;
    zv::RecordReader record(stream);
    return MakeNewItem(record);
}

CZvDisplayItem* CZvDisplayItem::MakeNewItem(zv::RecordReader& from) {
    if (from.AtEnd()) return nullptr;
    switch (from.Int()) {
    case ZV_DISP_TEXT: return new CZvDispText;
    case ZV_DISP_POLYLINE: return new CZvDispPolyLine;
    case ZV_DISP_POLYGON: return new CZvDispPolygon;
    case ZV_DISP_SYMBOL: return new CZvDispSymbols;
    case ZV_DISP_CIRCLE: return new CZvDispCircle;
    case ZV_DISP_GROUP: return new CZvDispGroup;
    case ZV_DISP_ARC: return new CZvDispArc;
    default: return nullptr;
    }
}

// Every record of a map goes through these two: one look at the transfer, then block after block.
bool CZvDisplayItem::V_DispHib(CZvDispFileParam&) {
    const int kind = GetDispType();
    zv::Emit(m_out, m_stream, [&](zv::RecordWriter& out) {
        out.Int(kind);
        out.Bool(m_fill);
        out.Bool(m_inactive);
        out.Bool(m_smooth);
        out.Bool(m_visible);
        out.Byte(static_cast<unsigned char>(m_color));
        out.Double(m_degree);
        out.Byte(m_lineWidth);
        out.Byte(m_lineType);
        out.Int(m_fillStyle);
        out.String(m_id);
        out.Unsigned(m_pickID);
        out.Double(m_brightness);
    });
    return true;
}

bool CZvDisplayItem::V_DispWake(CZvDispFileParam&) {
    zv::Fetch(m_in, m_stream, [&](zv::RecordReader& in) {
        auto color = static_cast<unsigned char>(m_color);
        in.Bool(m_fill);
        in.Bool(m_inactive);
        in.Bool(m_smooth);
        in.Bool(m_visible);
        in.Byte(color);
        m_degree = in.Double();
        in.Byte(m_lineWidth);
        in.Byte(m_lineType);
        m_fillStyle = static_cast<E_FILL_STYLE>(in.Int());
        in.String(m_id);
        m_pickID = in.Unsigned();
        m_brightness = in.Double();
        m_color = static_cast<ZVColor>(color);
    });
    return true;
}

bool CZvDispText::V_DispHib(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispHib(file);
    DispOut(static_cast<unsigned char>(m_horizontal));
    DispOut(static_cast<unsigned char>(m_vertical));
    DispOut(static_cast<double>(m_height));
    DispOut(m_point);
    DispOut(m_font);
    DispOut(m_label);
    DispOut(m_offsetID);
    return true;
}

bool CZvDispText::V_DispWake(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispWake(file);
    auto horizontal = static_cast<unsigned char>(m_horizontal);
    auto vertical = static_cast<unsigned char>(m_vertical);
    double height = 0.0;
    DispIn(horizontal);
    DispIn(vertical);
    DispIn(height);
    DispIn(m_point);
    DispIn(m_font);
    DispIn(m_label);
    DispIn(m_offsetID);
    m_horizontal = static_cast<char>(horizontal);
    m_vertical = static_cast<char>(vertical);
    m_height = zv::ToFloat(height);
    return true;
}

bool CZvDispPolyLine::V_DispHib(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispHib(file);
    DispOut(m_vertices);
    return true;
}

bool CZvDispPolyLine::V_DispWake(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispWake(file);
    DispIn(m_vertices);
    return true;
}

bool CZvDispPolygon::V_DispHib(CZvDispFileParam& file) {
    CZvDispPolyLine::V_DispHib(file);
    DispOut(m_special);
    DispOut(m_minDepth);
    DispOut(m_maxDepth);
    DispOut(m_differentZ);
    return true;
}

bool CZvDispPolygon::V_DispWake(CZvDispFileParam& file) {
    CZvDispPolyLine::V_DispWake(file);
    DispIn(m_special);
    DispIn(m_minDepth);
    DispIn(m_maxDepth);
    DispIn(m_differentZ);
    return true;
}

bool CZvDispSymbols::V_DispHib(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispHib(file);
    DispOut(m_center);
    DispOut(m_scale);
    DispOut(m_number);
    DispOut(static_cast<int>(m_textColor));
    DispOut(static_cast<int>(m_fillColor));
    DispOut(m_useOrigColor);
    return true;
}

bool CZvDispSymbols::V_DispWake(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispWake(file);
    int textColor = 0, fillColor = 0;
    DispIn(m_center);
    DispIn(m_scale);
    DispIn(m_number);
    DispIn(textColor);
    DispIn(fillColor);
    DispIn(m_useOrigColor);
    m_textColor = static_cast<ZVColor>(textColor);
    m_fillColor = static_cast<ZVColor>(fillColor);
    return true;
}

bool CZvDispCircle::V_DispHib(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispHib(file);
    DispOut(m_center);
    DispOut(m_radius);
    return true;
}

bool CZvDispCircle::V_DispWake(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispWake(file);
    DispIn(m_center);
    DispIn(m_radius);
    return true;
}

bool CZvDispArc::V_DispHib(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispHib(file);
    DispOut(m_center);
    DispOut(m_radius);
    DispOut(static_cast<double>(m_endAngle));
    DispOut(static_cast<double>(m_startAngle));
    return true;
}

bool CZvDispArc::V_DispWake(CZvDispFileParam& file) {
    CZvDisplayItem::V_DispWake(file);
    double endAngle = 0.0, startAngle = 0.0;
    DispIn(m_center);
    DispIn(m_radius);
    DispIn(endAngle);
    DispIn(startAngle);
    m_endAngle = zv::ToFloat(endAngle);
    m_startAngle = zv::ToFloat(startAngle);
    return true;
}
