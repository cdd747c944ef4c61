#include "context/RecordSink.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace zv {

namespace {

/// Greatest error of a vertex kept as floats, in map units: a tenth of a pixel at the nearest zoom
/// that is promised (0.01 units a pixel).
constexpr double kFloatError = 1.0 / 1024;
/// Vertices of one call; a longer line goes on in a further one.
constexpr std::size_t kMostVertices = std::size_t{1} << 20;

std::uint32_t Channel(double value) {
    return static_cast<std::uint32_t>(std::lround(std::clamp(value, 0.0, 1.0) * 255.0));
}

bool IsFinite(const Point2& p) {
    return std::isfinite(p.x) && std::isfinite(p.y);
}

double FloatError(double value) {
    const double error = std::fabs(static_cast<double>(static_cast<float>(value)) - value);
    return std::isfinite(error) ? error : HUGE_VAL;
}

} // namespace

void RecordSink::Reset(bool fixedOrigin) {
    m_words.clear();
    m_places.clear();
    m_figure.clear();
    m_look = {};
    m_hasLook = false;
    m_origin = {};
    m_anchored = fixedOrigin;
}

void RecordSink::Color(double r, double g, double b, double alpha) {
    m_look.rgba = Channel(r) | Channel(g) << 8 | Channel(b) << 16 | Channel(alpha) << 24;
    m_look.ownColor = true;
}

void RecordSink::Width(double pixels) {
    m_look.width = static_cast<std::uint16_t>(std::clamp(pixels, 1.0, 256.0));
    m_look.ownWidth = true;
}

void RecordSink::Stipple(std::uint16_t pattern) {
    m_look.stipple = pattern;
    m_look.ownStipple = true;
}

void RecordSink::StippleOff() {
    Stipple(kSolidLine);
}

void RecordSink::BeginCompose(Compose compose) {
    m_look.compose = compose;
}

void RecordSink::EndCompose(Compose) {
    m_look.compose = Compose::Replace;
}

void RecordSink::Begin(Figure figure) {
    m_kind = figure;
    m_figure.clear();
}

void RecordSink::Vertex(double x, double y) {
    Point2 p{x, y};
    if (!m_places.empty()) p = m_places.back()(x, y);
    if (!IsFinite(p)) return;
    Anchor(p);
    m_figure.push_back({p.x - m_origin.x, p.y - m_origin.y});
}

void RecordSink::End() {
    if (m_kind == Figure::LineStrip)
        WriteLines();
    else
        WriteTriangles();
    m_figure.clear();
}

void RecordSink::Push(const Affine& place) {
    m_places.push_back(m_places.empty() ? place : m_places.back() * place);
}

void RecordSink::Pop() {
    m_places.pop_back();
}

void RecordSink::StrokeText(std::string_view text) {
    WriteText(Call::StrokeText, 0, text);
}

void RecordSink::OutlineText(int style, std::string_view text) {
    WriteText(Call::OutlineText, style, text);
}

void RecordSink::SymbolShape(int number) {
    if (!IsPlaceFinite()) return;
    WriteLook();
    m_words.push_back(CallHead(Call::Symbol, 0));
    m_words.push_back(static_cast<std::uint32_t>(number));
    WritePlace();
}

void RecordSink::Anchor(const Point2& p) {
    if (m_anchored) return;
    m_origin = p;
    m_anchored = true;
}

template<class T>
void RecordSink::Append(const T& value) {
    const auto at = m_words.size();
    m_words.resize(at + sizeof(T) / sizeof(std::uint32_t));
    std::memcpy(m_words.data() + at, &value, sizeof(T));
}

void RecordSink::WriteLook() {
    const auto number = m_looks.NumberOf(m_look);
    if (m_hasLook && number == m_written) return;
    m_words.push_back(CallHead(Call::Look, 1));
    m_words.push_back(number);
    m_written = number;
    m_hasLook = true;
}

void RecordSink::WriteLines() {
    const std::span<const Point2> all(m_figure);
    for (std::size_t first = 0; first + 1 < all.size(); first += kMostVertices - 1)
        WriteFigure(Call::Lines, Call::FarLines,
                    all.subspan(first, std::min(kMostVertices, all.size() - first)));
}

void RecordSink::WriteTriangles() {
    const auto add = [&](std::size_t i, std::size_t j, std::size_t k) {
        m_corners.insert(m_corners.end(), {m_figure[i], m_figure[j], m_figure[k]});
    };
    m_corners.clear();
    if (m_kind == Figure::Triangles)
        for (std::size_t i = 2; i < m_figure.size(); i += 3)
            add(i - 2, i - 1, i);
    else if (m_kind == Figure::TriangleStrip)
        for (std::size_t i = 2; i < m_figure.size(); ++i)
            add(i - 2, i - 1, i);
    else
        for (std::size_t i = 2; i < m_figure.size(); ++i)
            add(0, i - 1, i);
    constexpr std::size_t most = kMostVertices / 3 * 3;
    const std::span<const Point2> all(m_corners);
    for (std::size_t first = 0; first < all.size(); first += most)
        WriteFigure(Call::Triangles, Call::FarTriangles,
                    all.subspan(first, std::min(most, all.size() - first)));
}

void RecordSink::WriteFigure(Call near, Call far, std::span<const Point2> vertices) {
    WriteLook();
    const bool isFar = std::ranges::any_of(vertices, [](const Point2& p) {
        return FloatError(p.x) > kFloatError || FloatError(p.y) > kFloatError;
    });
    m_words.push_back(CallHead(isFar ? far : near, vertices.size()));
    for (const auto& p : vertices) {
        if (isFar)
            Append(p);
        else
            Append(std::array{static_cast<float>(p.x), static_cast<float>(p.y)});
    }
}

bool RecordSink::IsPlaceFinite() const {
    if (m_places.empty()) return true;
    const Affine& p = m_places.back();
    return IsFinite({p.a, p.b}) && IsFinite({p.c, p.d}) && IsFinite({p.tx, p.ty});
}

void RecordSink::WritePlace() {
    const Affine place = m_places.empty() ? Affine{} : m_places.back();
    Anchor({place.tx, place.ty});
    Append(std::array{static_cast<float>(place.a), static_cast<float>(place.b),
                      static_cast<float>(place.c), static_cast<float>(place.d)});
    Append(std::array{place.tx - m_origin.x, place.ty - m_origin.y});
}

void RecordSink::WriteText(Call call, int style, std::string_view text) {
    if (!IsPlaceFinite()) return;
    text = text.substr(0, kMostInCall);
    WriteLook();
    m_words.push_back(CallHead(call, text.size()));
    m_words.push_back(static_cast<std::uint32_t>(style));
    WritePlace();
    const auto at = m_words.size();
    m_words.resize(at + (text.size() + 3) / 4);
    std::memcpy(m_words.data() + at, text.data(), text.size());
}

} // namespace zv
