#include "persist/DrawingReader.h"

#include <streambuf>

#include "platform/Numbers.h"

namespace zv {

namespace {
constexpr int kEof = -1;
constexpr int kFileEnd = 0x1a;

bool IsSpace(int c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
} // namespace

int DrawingReader::Peek() {
    const int c = m_in.good() ? m_in.rdbuf()->sgetc() : kEof;
    if (c != std::char_traits<char>::eof() && c != kFileEnd) return c;
    m_in.setstate(std::ios::eofbit);
    return kEof;
}

int DrawingReader::Next() {
    const int c = Peek();
    if (c == kEof) return kEof;
    std::streambuf& buffer = *m_in.rdbuf();
    if (buffer.snextc() != '\n' || c != '\r') return c;
    buffer.sbumpc();
    return '\n';
}

std::string DrawingReader::Chars(int count) {
    std::string text;
    text.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        const int c = Next();
        if (c == kEof) break;
        text.push_back(static_cast<char>(c));
    }
    return text;
}

void DrawingReader::Skip(int count) {
    for (int i = 0; i < count && Next() != kEof;)
        ++i;
}

std::string DrawingReader::Token() {
    int c = Next();
    while (c != kEof && IsSpace(c))
        c = Next();
    std::string token;
    while (c != kEof) {
        token.push_back(static_cast<char>(c));
        c = Peek();
        if (c == kEof || IsSpace(c)) break;
        m_in.rdbuf()->sbumpc();
    }
    return token;
}

void DrawingReader::Back(std::size_t count) {
    if (count == 0) return;
    m_in.clear(m_in.rdstate() & ~std::ios::eofbit);
    m_in.seekg(-static_cast<std::streamoff>(count), std::ios::cur);
}

std::string DrawingReader::CutAtColon(const std::string& token) {
    const std::size_t colon = token.find(':');
    if (colon + 1 == token.size() || !Good()) return token;
    Back(token.size());
    return colon == std::string::npos ? std::string() : Chars(static_cast<int>(colon) + 1);
}

bool DrawingReader::Tag(std::string& tag) {
    const std::string token = Token();
    tag = CutAtColon(token);
    return !token.empty();
}

void DrawingReader::SkipLine() {
    for (int c = Next(); c != kEof && c != '\n';)
        c = Next();
}

int DrawingReader::Int(int tag, int width) {
    Skip(tag);
    return ParseInt(Chars(width));
}

double DrawingReader::Double(int tag, int width) {
    Skip(tag);
    return ParseDouble(Chars(width));
}

char DrawingReader::Char(int tag) {
    Skip(tag);
    const std::string c = Chars(1);
    return c.empty() ? '\0' : c[0];
}

} // namespace zv
