#pragma once

#include <string_view>

/// The drawing file: fixed 80-column lines in records of one or more lines. Writer, readers and
/// docs/drawing-file.md share these numbers. A count includes one for each line end, which is CR LF
/// in the file.
namespace zv::drw {

/// Codes of the records, in columns 8 and 9 of the first line.
enum Code : int {
    kArc = 1,
    kCircle = 2,
    kPolygon = 7,
    kPolygonVertex = 8,
    kTriangle = 10,     // read only
    kTwoPointLine = 12, // read only
    kPolyline = 13,
    kPolylineVertex = 14,
    kText = 18,
    kVariableText = 19,
    kEnd = 20,
    kCharacters = 22,
    kDescription = 23,
    kFirstCode = kArc,
    kLastCode = kDescription,
};

inline constexpr std::string_view kTailTag = "IB:POS:";
inline constexpr std::string_view kPolygonVertexTag = "POL2:";
inline constexpr std::string_view kPolylineVertexTag = "COV2:";

// Widths of fields.
inline constexpr int kLine = 80;
inline constexpr int kSymbolField = 3, kCodeField = 2, kLayerField = 4;
inline constexpr int kSmall = 3;       // width, type, colour, post, user set, culture
inline constexpr int kCoordinate = 21; // "%.8f"
inline constexpr int kRadius = 15;     // "%.5f"
inline constexpr int kAngle = 9;       // "%.4f"
inline constexpr int kHeight = 15;     // "%.5f"
inline constexpr int kCount = 2;
inline constexpr int kTail = 7 + kSmall + 4 + kSmall + 4 + kSmall;
inline constexpr int kSymbolNumber = 4;

// What a reader takes beyond a field, so that it stands at the next line.
inline constexpr int kNewline = 1;
inline constexpr int kFirstLineBlanks = 20;  // behind X of arcs, circles and polygons
inline constexpr int kLineVertexBlanks = 25; // behind X of polylines and Y of further vertices
inline constexpr int kCultureOfArc = kSmall + kNewline;
inline constexpr int kCultureOfCircle = kSmall + 14 + kNewline;
inline constexpr int kCultureOfLine = kSmall + 33 + kNewline;
inline constexpr int kCultureOfText = kSmall + 10 + kNewline;
inline constexpr int kCultureOfTwoPointLine = kSmall;
inline constexpr int kCountLine = kCount + 65 + kNewline;
inline constexpr int kCharacterLine = kLine + kNewline;

} // namespace zv::drw
