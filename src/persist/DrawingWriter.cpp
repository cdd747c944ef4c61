#include "persist/DrawingWriter.h"

#include <algorithm>

#include "items/ZvDisplayItem.h"
#include "persist/DrawingFormat.h"
#include "persist/ZvDispFileParam.h"
#include "platform/Numbers.h"
#include "platform/zvlogs/ZvLog.h"

namespace zv {

namespace {
constexpr char kFileEnd = '\x1a';
}

DrawingWriter::DrawingWriter(const CZvDispFileParam& file)
    : m_file(file), m_out(*file.GetOutFile()), m_symbol(file.IsSymbol()) {}

DrawingWriter& DrawingWriter::Field(std::string_view text, int width) {
    const std::string padded = CZvDisplayItem::PadBlankToFront(std::string(text), width);
    m_out.write(padded.data(), width);
    return *this;
}

DrawingWriter& DrawingWriter::SymbolField() {
    return Field(m_symbol ? FormatInt(m_file.GetSymbolNum()) : "", drw::kSymbolField);
}

DrawingWriter& DrawingWriter::ShortHead(std::string_view tag, int code) {
    return Text(tag).SymbolField().Field(FormatInt(code), drw::kCodeField);
}

DrawingWriter& DrawingWriter::Head(std::string_view tag, int code) {
    ShortHead(tag, code);
    return Field(m_symbol ? "999" : FormatInt(m_file.GetLayerNum()), drw::kLayerField);
}

DrawingWriter& DrawingWriter::Text(std::string_view text) {
    m_out << text;
    return *this;
}

DrawingWriter& DrawingWriter::Int(std::string_view tag, int value, int width) {
    m_out << tag;
    return Field(FormatInt(value), width);
}

DrawingWriter& DrawingWriter::Fixed(std::string_view tag, double value, int decimals, int width) {
    m_out << tag;
    return Field(FormatFixed(value, decimals), width);
}

DrawingWriter& DrawingWriter::Coordinate(std::string_view tag, double value) {
    return Fixed(tag, value, 8, drw::kCoordinate);
}

DrawingWriter& DrawingWriter::Char(std::string_view tag, char value) {
    m_out << tag;
    m_out.put(value);
    return *this;
}

DrawingWriter& DrawingWriter::Blanks(int count) {
    return Field("", count);
}

DrawingWriter& DrawingWriter::Tail(int blanks, int blanksInSymbol) {
    if (m_symbol) return Blanks(blanksInSymbol);
    Int(drw::kTailTag, m_file.GetPostNum(), drw::kSmall);
    Int("UST:", m_file.GetUsetNum(), drw::kSmall);
    Int("CUL:", m_file.GetCulture(), drw::kSmall);
    return Blanks(blanks);
}

DrawingWriter& DrawingWriter::CountedLine(const std::string& text) {
    Int("NUM:", static_cast<int>(text.size()), drw::kCount).Blanks(drw::kCountBlanks).EndLine();
    for (const char c : CZvDisplayItem::PadBlankToBack(text, drw::kLine))
        c == '\n' ? void(m_out << "\r\n") : void(m_out.put(c));
    return EndLine();
}

DrawingWriter& DrawingWriter::EndLine() {
    m_out << "\r\n";
    return *this;
}

std::string FitCharacters(const std::string& text, std::string_view what) {
    std::string fit = text.substr(0, drw::kLine);
    std::replace(fit.begin(), fit.end(), kFileEnd, '?');
    if (fit != text)
        CZvLog::Output(std::string(what) + " of " + FormatInt(static_cast<long long>(text.size())) +
                           " characters changed to fit the drawing file: " + fit,
                       101, false);
    return fit;
}

} // namespace zv
