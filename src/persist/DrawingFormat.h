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
    // 8: a polygon's further vertex
    kTriangle = 10,     // read only
    kTwoPointLine = 12, // read only
    kPolyline = 13,
    // 14: a polyline's further vertex
    kText = 18,
    kVariableText = 19,
    kEnd = 20,
    kCharacters = 22,
    kDescription = 23,
};

inline constexpr std::string_view kTailTag = "IB:POS:";
// A line of a further vertex: its tag, and its code behind it.
inline constexpr std::string_view kPolygonVertexTag = "POL2:", kPolygonVertexCode = "   8";
inline constexpr std::string_view kPolylineVertexTag = "COV2:", kPolylineVertexCode = "  14";

// Widths of fields.
inline constexpr int kLine = 80;
inline constexpr int kSymbolField = 3, kCodeField = 2, kLayerField = 4;
inline constexpr int kSmall = 3;       // width, type, colour, post, user set, culture
inline constexpr int kCoordinate = 21; // "%.8f"
inline constexpr int kRadius = 15;     // "%.5f"
inline constexpr int kAngle = 9;       // "%.4f"
inline constexpr int kHeight = 15;     // "%.5f"
inline constexpr int kCount = 2;
inline constexpr int kSymbolNumber = 4;

// Blanks that fill a line up to 80 columns, on maps and in symbol definitions. An arc's second line
// runs to 92 on maps.
inline constexpr int kFirstLineBlanks = 20;  // behind X of arcs, circles and polygons
inline constexpr int kLineVertexBlanks = 25; // behind X of polylines and Y of further vertices
inline constexpr int kTriangleBlanks = 11;   // behind the second vertex
inline constexpr int kArcBlanks = 0, kArcBlanksInSymbol = 12;
inline constexpr int kCircleBlanks = 14, kCircleBlanksInSymbol = 38;
inline constexpr int kLineBlanks = 33, kLineBlanksInSymbol = 57;
inline constexpr int kTextBlanks = 10, kTextBlanksInSymbol = 34;
inline constexpr int kTextHeadBlanks = 12, kTextStyleBlanks = 9;
inline constexpr int kCountBlanks = 65, kEndBlanks = 71;

// What a reader takes of the tail's culture field and of what follows it, so that it stands at the
// next line.
inline constexpr int kNewline = 1;
inline constexpr int kCultureOfArc = kSmall + kArcBlanks + kNewline;
inline constexpr int kCultureOfCircle = kSmall + kCircleBlanks + kNewline;
inline constexpr int kCultureOfLine = kSmall + kLineBlanks + kNewline;
inline constexpr int kCultureOfText = kSmall + kTextBlanks + kNewline;
inline constexpr int kCultureOfTwoPointLine = kSmall;
inline constexpr int kCountLine = kCount + kCountBlanks + kNewline;
inline constexpr int kCharacterLine = kLine + kNewline;

} // namespace zv::drw
