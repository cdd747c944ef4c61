#include "items/ZvDispPolygon.h"
#include "persist/DrawingStyle.h"
#include "persist/DrawingTail.h"
#include "persist/ZvDispFileParam.h"

/// Polylines and polygons in drawing records: a record for the first vertex, a line for each
/// further one.

namespace {

using namespace zv;

void WriteFirstVertex(DrawingWriter& out, const CZvDispPoint& vertex, int blanks) {
    out.Coordinate("X:", vertex.GetX()).Blanks(blanks).EndLine();
    out.Coordinate("Y:", vertex.GetY()).Tail(drw::kLineBlanks, drw::kLineBlanksInSymbol).EndLine();
}

void WriteFurtherVertices(DrawingWriter& out, const std::vector<CZvDispPoint>& vertices,
                          std::string_view tag, std::string_view code) {
    for (std::size_t i = 1; i < vertices.size(); ++i) {
        out.Text(tag)
            .Text(code)
            .Coordinate("X:", vertices[i].GetX())
            .Coordinate("Y:", vertices[i].GetY());
        out.Blanks(drw::kLineVertexBlanks).EndLine();
    }
}

/// Puts the reader back on the record's code, which decides the shape, and takes it again.
int ReadCode(DrawingReader& in) {
    in.Back(drw::kCodeField + drw::kLayerField);
    const int code = in.Int(0, drw::kCodeField);
    in.Skip(drw::kLayerField);
    return code;
}

CZvDispPoint ReadVertex(DrawingReader& in, int xWidth, int yWidth) {
    CZvDispPoint vertex;
    vertex.SetX(in.Double(2, xWidth));
    vertex.SetY(in.Double(2, yWidth));
    return vertex;
}

/// Appends the vertex lines of that tag that follow.
void ReadFurtherVertices(DrawingReader& in, CZvDispPolyLine& line, std::string_view tag) {
    for (;;) {
        std::string token = in.Token();
        if (token.size() > tag.size()) token = in.CutAtColon(token);
        if (token != tag) {
            in.Back(token.size());
            return;
        }
        in.Skip(static_cast<int>(drw::kPolylineVertexCode.size()));
        line.AddPoint(ReadVertex(in, drw::kCoordinate,
                                 drw::kCoordinate + drw::kLineVertexBlanks + drw::kNewline));
    }
}

} // namespace

void CZvDispPolyLine::V_WriteToFile(CZvDispFileParam& file) {
    if (m_vertices.empty()) return;
    DrawingWriter out(file);
    out.Head("COV:", drw::kPolyline);
    WriteStyle(out, *this);
    WriteFirstVertex(out, m_vertices.front(), drw::kLineVertexBlanks);
    WriteFurtherVertices(out, m_vertices, drw::kPolylineVertexTag, drw::kPolylineVertexCode);
}

void CZvDispPolyLine::V_ReadFromFile(CZvDispFileParam& file) {
    DrawingReader in(*file.GetInFile());
    const int code = ReadCode(in);
    if (code != drw::kTwoPointLine && code != drw::kPolyline) return;
    ClearVerticesVector();
    ReadStyle(in, *this);
    AddPoint(ReadVertex(in, drw::kCoordinate + drw::kLineVertexBlanks + drw::kNewline,
                        drw::kCoordinate));
    if (code == drw::kTwoPointLine) {
        AddPoint(ReadVertex(in, drw::kCoordinate, drw::kCoordinate));
        ReadTail(in, file, drw::kCultureOfTwoPointLine);
        return;
    }
    ReadTail(in, file, drw::kCultureOfLine);
    ReadFurtherVertices(in, *this, drw::kPolylineVertexTag);
}

void CZvDispPolygon::V_WriteToFile(CZvDispFileParam& file) {
    const std::vector<CZvDispPoint>& vertices = GetVertices();
    if (vertices.empty()) return;
    DrawingWriter out(file);
    out.Head("POL:", drw::kPolygon);
    WriteStyle(out, *this);
    WriteFill(out, *this);
    WriteFirstVertex(out, vertices.front(), drw::kFirstLineBlanks);
    WriteFurtherVertices(out, vertices, drw::kPolygonVertexTag, drw::kPolygonVertexCode);
}

void CZvDispPolygon::V_ReadFromFile(CZvDispFileParam& file) {
    DrawingReader in(*file.GetInFile());
    const int code = ReadCode(in);
    ClearVerticesVector();
    ReadStyle(in, *this);
    SetFill(in.Char(4) == 'T');
    const double x = in.Double(2, drw::kCoordinate + drw::kFirstLineBlanks + drw::kNewline);
    if (code != drw::kPolygon && code != drw::kTriangle) return;
    AddPoint({x, in.Double(2, drw::kCoordinate)});
    if (code == drw::kTriangle) {
        AddPoint(ReadVertex(in, drw::kCoordinate,
                            drw::kCoordinate + drw::kTriangleBlanks + drw::kNewline));
        AddPoint(ReadVertex(in, drw::kCoordinate, drw::kCoordinate));
        AddPoint(GetPoint(0));
        ReadTail(in, file, drw::kCultureOfText);
        return;
    }
    ReadTail(in, file, drw::kCultureOfLine);
    ReadFurtherVertices(in, *this, drw::kPolygonVertexTag);
}
