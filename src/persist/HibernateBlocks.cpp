// The building blocks of hibernate records: DispOut and DispIn of the items.
#include "items/ZvDispPolyLine.h"
#include "items/ZvDisplayItem.h"
#include "persist/HibernateFormat.h"
#include "persist/ItemTransfer.h"

using zv::RecordReader;
using zv::RecordWriter;

void CZvDisplayItem::DispOut(bool value) {
    zv::Emit(m_out, m_stream, [&](RecordWriter& out) { out.Bool(value); });
}

void CZvDisplayItem::DispOut(unsigned char value) {
    zv::Emit(m_out, m_stream, [&](RecordWriter& out) { out.Byte(value); });
}

void CZvDisplayItem::DispOut(int value) {
    zv::Emit(m_out, m_stream, [&](RecordWriter& out) { out.Int(value); });
}

void CZvDisplayItem::DispOut(unsigned value) {
    zv::Emit(m_out, m_stream, [&](RecordWriter& out) { out.Unsigned(value); });
}

void CZvDisplayItem::DispOut(double value) {
    zv::Emit(m_out, m_stream, [&](RecordWriter& out) { out.Double(value); });
}

void CZvDisplayItem::DispOut(const std::string& text) {
    zv::Emit(m_out, m_stream, [&](RecordWriter& out) { out.String(text); });
}

void CZvDisplayItem::DispOut(const CZvDispPoint& point) {
    DispOut(point.GetX());
    DispOut(point.GetY());
    DispOut(point.GetZ());
    DispOut(point.GetDown());
}

void CZvDisplayItem::DispOut(const std::vector<double>& values) {
    DispOut(static_cast<int>(values.size()));
    for (const double value : values)
        DispOut(value);
}

void CZvDisplayItem::DispOut(const std::vector<int>& values) {
    DispOut(static_cast<int>(values.size()));
    for (const int value : values)
        DispOut(value);
}

void CZvDisplayItem::DispOut(const std::vector<bool>& values) {
    DispOut(static_cast<int>(values.size()));
    for (const bool value : values)
        DispOut(value);
}

void CZvDisplayItem::DispOut(const std::vector<std::string>& values) {
    DispOut(static_cast<int>(values.size()));
    for (const std::string& value : values)
        DispOut(value);
}

void CZvDisplayItem::DispIn(bool& value) {
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) { in.Bool(value); });
}

void CZvDisplayItem::DispIn(unsigned char& value) {
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) { in.Byte(value); });
}

void CZvDisplayItem::DispIn(int& value) {
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) { value = in.Int(); });
}

void CZvDisplayItem::DispIn(unsigned& value) {
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) { value = in.Unsigned(); });
}

void CZvDisplayItem::DispIn(double& value) {
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) { value = in.Double(); });
}

void CZvDisplayItem::DispIn(std::string& text) {
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) { in.String(text); });
}

void CZvDisplayItem::DispIn(CZvDispPoint& point) {
    double x = 0.0, y = 0.0, z = 0.0;
    bool down = point.GetDown();
    DispIn(x);
    DispIn(y);
    DispIn(z);
    DispIn(down);
    point = {x, y, z, down};
}

void CZvDisplayItem::DispIn(std::vector<double>& values) {
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) {
        const std::size_t count = in.Count(zv::kDoubleBytes);
        values.reserve(values.size() + count);
        for (std::size_t i = 0; i < count; ++i)
            values.push_back(in.Double());
    });
}

void CZvDisplayItem::DispIn(std::vector<int>& values) {
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) {
        const std::size_t count = in.Count(zv::kIntBytes);
        values.reserve(values.size() + count);
        for (std::size_t i = 0; i < count; ++i)
            values.push_back(in.Int());
    });
}

void CZvDisplayItem::DispIn(std::vector<bool>& values) {
    values.clear();
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) {
        const std::size_t count = in.Count(zv::kBoolBytes);
        values.reserve(count);
        for (std::size_t i = 0; i < count; ++i) {
            bool value = false;
            in.Bool(value);
            values.push_back(value);
        }
    });
}

void CZvDisplayItem::DispIn(std::vector<std::string>& values) {
    values.clear();
    zv::Fetch(m_in, m_stream, [&](RecordReader& in) {
        const std::size_t count = in.Count(zv::kStringBytes);
        for (std::size_t i = 0; i < count && !in.AtEnd(); ++i)
            in.String(values.emplace_back());
    });
}

namespace {

// The four arrays of a vertex list, one behind the other.
void PutVertices(char* to, const std::vector<CZvDispPoint>& vertices) {
    const std::size_t n = vertices.size();
    char* const x = to;
    char* const y = x + n * zv::kDoubleBytes;
    char* const z = y + n * zv::kDoubleBytes;
    char* const down = z + n * zv::kDoubleBytes;
    for (std::size_t i = 0; i < n; ++i) {
        const double at[] = {vertices[i].GetX(), vertices[i].GetY(), vertices[i].GetZ()};
        std::memcpy(x + i * zv::kDoubleBytes, &at[0], zv::kDoubleBytes);
        std::memcpy(y + i * zv::kDoubleBytes, &at[1], zv::kDoubleBytes);
        std::memcpy(z + i * zv::kDoubleBytes, &at[2], zv::kDoubleBytes);
        down[i] = vertices[i].GetDown() ? 1 : 0;
    }
}

double DoubleAt(const char* bytes) {
    double value;
    std::memcpy(&value, bytes, sizeof value);
    return value;
}

void TakeVertices(const char* from, std::size_t n, std::vector<CZvDispPoint>& vertices) {
    const char* const x = from;
    const char* const y = x + n * zv::kDoubleBytes;
    const char* const z = y + n * zv::kDoubleBytes;
    const char* const down = z + n * zv::kDoubleBytes;
    vertices.reserve(n);
    for (std::size_t i = 0; i < n; ++i) {
        const std::size_t at = i * zv::kDoubleBytes;
        vertices.emplace_back(DoubleAt(x + at), DoubleAt(y + at), DoubleAt(z + at), down[i] != 0);
    }
}

void ReadVertices(RecordReader& in, std::vector<CZvDispPoint>& vertices) {
    const std::size_t n = in.Count(zv::kVertexBytes);
    if (n == 0) return;
    const std::size_t size = n * zv::kVertexBytes;
    if (const char* const bytes = in.InPlace(size)) return TakeVertices(bytes, n, vertices);
    const auto buffer = std::make_unique_for_overwrite<char[]>(size);
    if (in.Get(buffer.get(), size)) TakeVertices(buffer.get(), n, vertices);
}

} // namespace

void CZvDispPolyLine::DispOut(const std::vector<CZvDispPoint>& vertices) {
    zv::Emit(Out(), Stream(), [&](RecordWriter& out) {
        out.Int(static_cast<int>(vertices.size()));
        PutVertices(out.Extend(vertices.size() * zv::kVertexBytes), vertices);
    });
}

void CZvDispPolyLine::DispIn(std::vector<CZvDispPoint>& vertices) {
    vertices.clear();
    zv::Fetch(In(), Stream(), [&](RecordReader& in) { ReadVertices(in, vertices); });
}
