#include "context/GlMap.h"

namespace zv::testing {
namespace {

// Where single precision is coarse: at a northing of ten million it knows whole units only.
constexpr double kEast = 1'500'000.0, kNorth = 10'000'000.0;

/// A map whose first window is a whole county, so that its origin is anywhere but at the vertex.
class FarMap : public GlMap {
  public:
    FarMap() : GlMap(101, 101) {
        View(kEast - 400'000, kNorth - 300'000, kEast + 500'000, kNorth + 600'000);
    }
    /// Zooms so that the point lies in the middle of the middle pixel.
    void ZoomTo(const CZvDispPoint& p, double unitsPerPixel) {
        const double half = 50.5 * unitsPerPixel;
        View(p.GetX() - half, p.GetY() - half, p.GetX() + half, p.GetY() + half);
    }
};

constexpr double kZooms[] = {1000, 100, 10, 1, 0.1, 0.01};

/// The corner of an angle drawn in one pixel wide lines.
void ExpectCornerInTheMiddle(const Picture& picture, double zoom) {
    const auto box = picture.BoxOfOther(kBlack);
    // The lines run to the right and upwards from the vertex.
    EXPECT_NEAR(box[0], 50, 0) << zoom;
    EXPECT_NEAR(box[3], 50, 0) << zoom;
}

TEST(ZvDispGLPrecision, AVertexMeetsItsPixelAtEveryZoomDownToAHundredthOfAUnit) {
    for (const double dx : {0.0, 123'456.78, -399'000.123}) {
        FarMap map;
        const CZvDispPoint corner(kEast + dx + 0.337, kNorth + dx / 2 + 0.711);
        CZvDispPolyLine line;
        line.SetPickID(10001);
        for (const double zoom : kZooms) {
            line.SetVertices({{corner.GetX() + 40 * zoom, corner.GetY()},
                              corner,
                              {corner.GetX(), corner.GetY() + 40 * zoom}});
            map.gl.DrawDispItem(&line);
            map.ZoomTo(corner, zoom);
            map.gl.Redraw(10001);
            ExpectCornerInTheMiddle(map.Show(), zoom);
        }
    }
}

TEST(ZvDispGLPrecision, ALongLineThatPassesThroughIsInPlace) {
    FarMap map;
    const CZvDispPoint middle(kEast + 0.337, kNorth + 0.711);
    CZvDispPolyLine line;
    line.SetPickID(10001);
    // From far outside to far outside, level, so that its row tells its place.
    line.SetVertices(
        {{middle.GetX() - 800'000, middle.GetY()}, {middle.GetX() + 900'000, middle.GetY()}});
    map.gl.DrawDispItem(&line);
    for (const double zoom : kZooms) {
        map.ZoomTo(middle, zoom);
        map.gl.Redraw(10001);
        EXPECT_EQ(map.Show().BoxOfOther(kBlack), (std::array{0, 50, 100, 50})) << zoom;
    }
}

TEST(ZvDispGLPrecision, TheEndOfALongLineIsInPlace) {
    FarMap map;
    const CZvDispPoint end(kEast + 0.337, kNorth + 0.711);
    CZvDispPolyLine line;
    line.SetPickID(10001);
    line.SetVertices({{end.GetX() - 800'000, end.GetY()}, end});
    map.gl.DrawDispItem(&line);
    for (const double zoom : kZooms) {
        map.ZoomTo(end, zoom);
        map.gl.Redraw(10001);
        const auto box = map.Show().BoxOfOther(kBlack);
        EXPECT_EQ(box[1], 50) << zoom;
        EXPECT_NEAR(box[2], 50, 1) << zoom;
    }
}

TEST(ZvDispGLPrecision, ADashedLineIsInPlaceToo) {
    FarMap map;
    const CZvDispPoint middle(kEast + 200'000.337, kNorth + 0.711);
    CZvDispPolyLine line;
    line.SetPickID(10001);
    line.SetLineType(1, 0);
    for (const double zoom : kZooms) {
        line.SetVertices({{middle.GetX() - 60 * zoom, middle.GetY()},
                          {middle.GetX() + 60 * zoom, middle.GetY()}});
        map.gl.DrawDispItem(&line);
        map.ZoomTo(middle, zoom);
        map.gl.Redraw(10001);
        const auto box = map.Show().BoxOfOther(kBlack);
        EXPECT_EQ(box[1], 50) << zoom;
        EXPECT_EQ(box[3], 50) << zoom;
    }
}

TEST(ZvDispGLPrecision, AFilledPolygonIsInPlace) {
    FarMap map;
    map.gl.SetPFBrightIndex(0);
    const CZvDispPoint c(kEast + 0.337, kNorth + 0.711);
    CZvDispPolygon polygon;
    polygon.SetFill(true);
    polygon.SetPickID(10001);
    for (const double zoom : kZooms) {
        const double x = c.GetX() - 20.5 * zoom, y = c.GetY() - 20.5 * zoom;
        polygon.SetVertices(Rectangle(x, y, x + 41 * zoom, y + 41 * zoom));
        map.gl.DrawDispItem(&polygon);
        map.ZoomTo(c, zoom);
        map.gl.Redraw(10001);
        const auto box = map.Show().BoxOfOther(kBlack);
        for (const auto& [side, place] : {std::pair{0, 30}, {1, 30}, {2, 70}, {3, 70}})
            EXPECT_NEAR(box[static_cast<std::size_t>(side)], place, 1) << zoom;
    }
}

TEST(ZvDispGLPrecision, SymbolsAndTextsAreInPlace) {
    FarMap map;
    auto* bar = new CZvDispPolyLine;
    bar->SetVertices({{0, 0}, {10, 0}});
    CZvDispSymbols::S_AddExternalSymbols(new std::list<CZvDisplayItem*>{bar}, 56);
    map.gl.CreateSymbolDisplayList();
    const CZvDispPoint c(kEast + 123'456.337, kNorth + 0.711);
    CZvDispSymbols symbol;
    symbol.SetSymbolNum(56);
    symbol.SetCenter(c);
    symbol.SetPickID(10001);
    CZvDispText text;
    text.SetLabel("I");
    text.SetHorzJustify('l');
    text.SetVertJustify('x');
    text.SetPoint(c);
    text.SetPickID(10002);
    for (const double zoom : kZooms) {
        symbol.SetScale(zoom);
        map.gl.DrawDispItem(&symbol);
        text.SetVertHeight(static_cast<float>(6 * 6 * zoom)); // 6 pixels to a unit of the font
        map.gl.DrawDispItem(&text);
        map.ZoomTo(c, zoom);
        map.gl.Redraw(10001);
        const auto bars = map.Show().BoxOfOther(kBlack);
        EXPECT_EQ(bars[1], 50) << zoom;
        EXPECT_NEAR(bars[0], 50, 1) << zoom;
        map.ZoomTo(c, zoom);
        map.gl.Redraw(10002);
        const auto letter = map.Show().BoxOfOther(kBlack);
        EXPECT_NEAR(letter[0], 50 + 6, 1) << zoom; // the letter's foot begins at (1, 2)
        EXPECT_NEAR(letter[3], 50 - 12, 1) << zoom;
    }
}

TEST(ZvDispGLPrecision, TemporariesStandWhereTheirItemsDo) {
    FarMap map;
    const CZvDispPoint corner(kEast + 123'456.337, kNorth + 0.711);
    CZvDispPolyLine line;
    line.SetVertices({{corner.GetX() + 0.4, corner.GetY()}, corner});
    for (const double zoom : {0.1, 0.01}) {
        map.ZoomTo(corner, zoom);
        map.gl.DrawDispItem(&line);
        const auto box = map.Show().BoxOfOther(kBlack);
        EXPECT_NEAR(box[0], 50, 1);
        EXPECT_EQ(box[1], 50);
    }
}

TEST(ZvDispGLPrecision, TheDriversListsAreRelativeToTheFirstWindowsMiddle) {
    GlMap map(101, 101);
    map.View(kEast - 50, kNorth - 50, kEast + 51, kNorth + 51);
    CZvDispPolyLine line;
    line.SetPickID(10001);
    line.SetVertices(
        {{kEast + 30, kNorth + 0.5}, {kEast + 0.5, kNorth + 0.5}, {kEast + 0.5, kNorth + 30}});
    map.gl.DrawDispItem(&line);
    for (const double zoom : {1.0, 0.1, 0.01}) {
        const double half = 50.5 * zoom;
        map.View(kEast + 0.5 - half, kNorth + 0.5 - half, kEast + 0.5 + half, kNorth + 0.5 + half);
        glCallList(10001);
        ExpectCornerInTheMiddle(map.Show(), zoom);
    }
}

TEST(ZvDispGLPrecision, AMapThatMovesWhenItIsEmptyTakesItsOriginAlong) {
    GlMap map(101, 101);
    map.View(kEast - 50, kNorth - 50, kEast + 51, kNorth + 51);
    CZvDispPolyLine line;
    line.SetPickID(10001);
    line.SetVertices({{kEast, kNorth}, {kEast + 10, kNorth}});
    map.gl.DrawDispItem(&line);
    map.gl.DeleteDispItem(&line);
    map.View(-50, -50, 51, 51);
    line.SetVertices({{30, 0.5}, {0.5, 0.5}, {0.5, 30}});
    map.gl.DrawDispItem(&line);
    map.View(0.5 - 0.505, 0.5 - 0.505, 0.5 + 0.505, 0.5 + 0.505);
    glCallList(10001);
    ExpectCornerInTheMiddle(map.Show(), 0.01);
}

TEST(ZvDispGLPrecision, CoordinatesOfAnySizeDoNoHarm) {
    FarMap map;
    CZvDispPolygon polygon;
    polygon.SetFill(true);
    polygon.SetVertices({{-1e300, -1e300}, {1e300, -1e300}, {1e300, 1e300}, {-1e300, 1e300}});
    polygon.SetPickID(10001);
    map.gl.DrawDispItem(&polygon);
    CZvDispPolyLine line;
    line.SetVertices({{-1e300, kNorth}, {1e300, kNorth}});
    line.SetPickID(10002);
    map.gl.DrawDispItem(&line);
    map.ZoomTo({kEast, kNorth}, 1);
    map.gl.Redraw(10001);
    map.gl.Redraw(10002);
    map.Show();
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
}

} // namespace
} // namespace zv::testing
