#include "persist/DrawingReader.h"

#include <algorithm>
#include <streambuf>

#include "persist/DrawingFormat.h"
#include "platform/Numbers.h"

namespace zv {

namespace {
constexpr int kEof = -1;
constexpr std::size_t kLongestToken = 100;
constexpr int kFileEnd = 0x1a;

bool IsSpace(int c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
} // namespace

int DrawingReader::Peek() {
    int c = kEof;
    try {
        if (m_in.good()) c = m_in.rdbuf()->sgetc();
    } catch (const std::ios_base::failure&) { // a folder, a disk that fails
        m_in.setstate(std::ios::badbit);
    }
    if (c != std::char_traits<char>::eof() && c != kFileEnd) return c;
    m_in.setstate(std::ios::eofbit);
    return kEof;
}

int DrawingReader::Next() {
    const int c = Peek();
    if (c == kEof) return kEof;
    m_in.rdbuf()->sbumpc();
    if (c != '\r' || Peek() != '\n') return c;
    m_in.rdbuf()->sbumpc();
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
    for (int i = 0; i < count; ++i)
        if (Next() == kEof) return;
}

std::string DrawingReader::Token() {
    while (IsSpace(Peek()))
        Next();
    std::string token;
    for (int c = Peek(); c != kEof && !IsSpace(c) && token.size() < kLongestToken; c = Peek()) {
        token.push_back(static_cast<char>(c));
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

bool DrawingReader::Tag() {
    const std::string token = Token();
    CutAtColon(token);
    return !token.empty();
}

void DrawingReader::SkipLine() {
    for (int c = Next(); c != kEof && c != '\n';)
        c = Next();
}

std::string DrawingReader::CountedLine() {
    const int count = Int(0, drw::kCountLine);
    return Chars(drw::kCharacterLine).substr(0, static_cast<std::size_t>(std::max(count, 0)));
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
