#pragma once

#include <ostream>
#include <string>
#include <string_view>

class CZvDispFileParam;

namespace zv {

/// Spells the fields of drawing records. Knows no items.
class DrawingWriter {
  public:
    /// REQUIRES: the parameter block has an out-file and outlives this.
    explicit DrawingWriter(const CZvDispFileParam& file);

    /// Tag, symbol field, code and layer: the first 13 columns of a record.
    DrawingWriter& Head(std::string_view tag, int code);
    /// Tag, symbol field and code alone, for records that belong to a symbol or a text.
    DrawingWriter& ShortHead(std::string_view tag, int code);
    DrawingWriter& Text(std::string_view text);
    DrawingWriter& Int(std::string_view tag, int value, int width);
    DrawingWriter& Fixed(std::string_view tag, double value, int decimals, int width);
    DrawingWriter& Coordinate(std::string_view tag, double value);
    DrawingWriter& Char(std::string_view tag, char value);
    DrawingWriter& Blanks(int count);
    /// Post, user set and culture and then blanks; in symbol mode other blanks alone.
    DrawingWriter& Tail(int blanks, int blanksInSymbol);
    /// "NUM:" with the length of a text, and the text on a line of its own. REQUIRES: the text
    /// fits.
    DrawingWriter& CountedLine(const std::string& text);
    DrawingWriter& EndLine();

  private:
    DrawingWriter& SymbolField();
    DrawingWriter& Field(std::string_view text, int width);

    const CZvDispFileParam& m_file;
    std::ostream& m_out;
    bool m_symbol;
};

/// The characters that a line of a drawing file can hold of a text: at most 80, and none that would
/// end the file. Logs what it changes.
std::string FitCharacters(const std::string& text, std::string_view what);

} // namespace zv
