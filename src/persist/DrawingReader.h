#pragma once

#include <istream>
#include <string>
#include <string_view>

namespace zv {

/// Reads a drawing file by characters and tokens. CR LF counts as one character, and so does a bare
/// LF; 0x1A ends the file. Holds no state beyond the stream's: one can be made at any place of a
/// transfer.
class DrawingReader {
  public:
    explicit DrawingReader(std::istream& in) : m_in(in) {}

    /// The next characters, fewer at the end of the file.
    std::string Chars(int count);
    void Skip(int count);
    /// Next run of characters between white space, at most 100 of them; empty at the end of the
    /// file.
    std::string Token();
    /// The tag of a record's head: a token up to and including its first colon. Where the symbol
    /// field stands glued behind the tag, the reader is put back behind the colon; of a token
    /// without a colon nothing is taken. False when there was no token at all.
    bool Tag();
    /// The tag's rule for a token that was read already: puts back what stands behind its colon.
    std::string CutAtColon(const std::string& token);
    /// Puts the last characters back; none of them may be a line end.
    void Back(std::size_t count);
    void SkipLine();
    /// The count line and the line of characters behind "NUM:": as many characters as the count
    /// tells.
    std::string CountedLine();

    /// A tag of that many characters is skipped, then a field is read.
    int Int(int tag, int width);
    double Double(int tag, int width);
    char Char(int tag);

  private:
    /// Next character as the counts see it, or -1. A stream that fails in the reading is at its
    /// end.
    int Next();
    /// The same without taking it, a line end as its first byte. Marks the stream at the file's
    /// end.
    int Peek();
    bool Good() const { return m_in.good(); }

    std::istream& m_in;
};

} // namespace zv
