#include "context/GlMap.h"
#include "support/LogLines.h"

namespace zv::testing {
namespace {

using Members = std::list<CZvDisplayItem*>;

/// A bar from x1 to x2 on the symbol's axis, in the symbol's own colour `color`.
CZvDispPolyLine* Bar(double x1, double x2, double y = 0.0, int color = 2) {
    auto* line = new CZvDispPolyLine;
    line->SetVertices({{x1, y}, {x2, y}});
    line->SetColor(static_cast<ZVColor>(color), 0);
    return line;
}

/// Puts a symbol into the library and compiles its list.
void AddSymbol(GlMap& map, int number, const Members& members) {
    CZvDispSymbols::S_AddExternalSymbols(new Members(members), number);
    map.gl.CreateSymbolDisplayList();
}

void MakeSymbol(CZvDispSymbols& symbol, int number, int color = 1) {
    symbol.SetSymbolNum(number);
    symbol.SetCenter({32.5, 20.5});
    symbol.SetScale(10);
    symbol.SetColor(static_cast<ZVColor>(color), 0);
}

TEST(ZvDispGLSymbols, ASymbolFromItsListTakesPlaceScaleAndColorOfTheItem) {
    GlMap map;
    AddSymbol(map, 56, {Bar(-1, 2)});
    EXPECT_TRUE(glIsList(2056));
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56);
    const auto picture = map.Draw(symbol);
    const auto box = picture.BoxOfOther(kBlack);
    EXPECT_NEAR(box[0], 22, 1);
    EXPECT_NEAR(box[2], 52, 1);
    EXPECT_EQ(picture.At(32, 43), Palette(1));
}

TEST(ZvDispGLSymbols, OneListServesEveryColor) {
    GlMap map;
    AddSymbol(map, 56, {Bar(-1, 2)});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56, 1);
    EXPECT_EQ(map.Draw(symbol).At(32, 43), Palette(1));
    MakeSymbol(symbol, 56, 5);
    EXPECT_EQ(map.Draw(symbol).At(32, 43), Palette(5));
    symbol.SetInActive(true);
    EXPECT_EQ(map.Draw(symbol).At(32, 43), Palette(5, 0.6));
}

TEST(ZvDispGLSymbols, ItsDegreeTurnsItCounterClockwise) {
    GlMap map;
    AddSymbol(map, 56, {Bar(0, 2)});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56);
    symbol.SetDegree(90);
    const auto box = map.Draw(symbol).BoxOfOther(kBlack);
    EXPECT_NEAR(box[0], 32, 1);
    EXPECT_NEAR(63 - box[1], 40, 1);
    EXPECT_NEAR(63 - box[3], 20, 1);
}

TEST(ZvDispGLSymbols, WidthAndLineTypeAreTheItems) {
    GlMap map;
    AddSymbol(map, 56, {Bar(-1, 2)});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56);
    symbol.SetLineWidth(2, 0);
    auto box = map.Draw(symbol).BoxOfOther(kBlack);
    EXPECT_EQ(box[3] - box[1] + 1, 3);
    symbol.SetLineWidth(0, 0);
    symbol.SetLineType(1, 0);
    const auto dashed = map.Draw(symbol);
    EXPECT_NEAR(dashed.CountOther(kBlack), 16, 3); // eight on, eight off, over 30 pixels
    EXPECT_FALSE(glIsEnabled(GL_LINE_STIPPLE));
}

TEST(ZvDispGLSymbols, FilledMembersTakeTheItemsColorWithoutBlending) {
    GlMap map;
    auto* area = new CZvDispPolygon;
    area->SetVertices(Rectangle(-1, -1, 1, 1));
    area->SetFill(true);
    AddSymbol(map, 56, {area});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56);
    const auto picture = map.Draw(symbol);
    EXPECT_EQ(picture.At(32, 43), Palette(1));
    EXPECT_EQ(picture.CountOf(Palette(1)), 400);
}

TEST(ZvDispGLSymbols, TextMembersAreDrawnInStrokes) {
    GlMap map;
    auto* text = new CZvDispText;
    text->SetLabel("I");
    text->SetHorzJustify('l');
    text->SetVertJustify('x');
    text->SetVertHeight(3); // half a unit of the font
    AddSymbol(map, 56, {text});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56);
    const auto box = map.Draw(symbol).BoxOfOther(kBlack);
    EXPECT_NEAR(box[0], 32 + 5, 1); // 1 unit, half a symbol unit, 10 pixels each
    EXPECT_NEAR(box[2], 32 + 15, 1);
    EXPECT_NEAR(63 - box[1], 20 + 40, 1);
    EXPECT_NEAR(63 - box[3], 20 + 10, 1);
}

TEST(ZvDispGLSymbols, InvisibleMembersAreLeftOut) {
    GlMap map;
    auto* hidden = Bar(-3, 3, 1);
    hidden->SetVisibility(false);
    AddSymbol(map, 56, {Bar(-1, 2), hidden});
    AddSymbol(map, 600, {Bar(-1, 2), new CZvDispPolyLine});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56);
    EXPECT_NEAR(map.Draw(symbol).CountOther(kBlack), 30, 1);
}

class DrawnByMembers : public ::testing::TestWithParam<std::pair<int, bool>> {};

TEST_P(DrawnByMembers, KeepsTheColorsOfItsMembersWhenAsked) {
    const auto [number, byMembers] = GetParam();
    GlMap map;
    AddSymbol(map, number, {Bar(-1, 2, 0, 2)});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, number, 1);
    symbol.SetUseOrigColor(true);
    EXPECT_EQ(map.Draw(symbol).At(32, 43), Palette(byMembers ? 2 : 1));
    symbol.SetUseOrigColor(false);
    EXPECT_EQ(map.Draw(symbol).At(32, 43), Palette(1));
}

INSTANTIATE_TEST_SUITE_P(
    Ranges, DrawnByMembers,
    ::testing::Values(std::pair{22, false}, std::pair{23, true}, std::pair{26, true},
                      std::pair{27, false}, std::pair{499, false}, std::pair{500, true},
                      std::pair{501, true}, std::pair{502, false}, std::pair{599, false},
                      std::pair{600, true}, std::pair{700, true}, std::pair{701, true},
                      std::pair{799, true}, std::pair{800, false}, std::pair{999, false},
                      std::pair{1000, true}, std::pair{2100, true}));

TEST(ZvDispGLSymbols, ASymbolCompilesIntoItsItemsList) {
    for (const int number : {56, 24}) {
        GlMap map;
        AddSymbol(map, number, {Bar(-1, 2)});
        CZvDispSymbols symbol;
        MakeSymbol(symbol, number);
        symbol.SetDegree(20);
        const auto direct = map.Draw(symbol);
        symbol.SetPickID(10001);
        map.gl.DrawDispItem(&symbol);
        EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
        EXPECT_EQ(map.Redraw({10001}), direct) << number;
        EXPECT_NEAR(map.CallLists({10001}).CountOther(kBlack), direct.CountOther(kBlack), 2);
    }
}

TEST(ZvDispGLSymbols, ASymbolWhoseListWouldBeACharactersOrAnItemsHasNone) {
    GlMap map;
    CZvDispSymbols::S_AddExternalSymbols(new Members{Bar(-1, 2)}, 2065);
    CZvDispSymbols::S_AddExternalSymbols(new Members{Bar(-1, 2)}, 8001);
    CZvDispSymbols::S_AddExternalSymbols(new Members{Bar(-1, 2)}, 8000);
    const test::LogLines log;
    map.gl.CreateSymbolDisplayList();
    EXPECT_EQ(log.Get().size(), 2u);
    EXPECT_TRUE(log.Holds("Symbol 2065 "));
    EXPECT_TRUE(log.Holds("Symbol 8001 "));
    EXPECT_FALSE(glIsList(10001));
    EXPECT_TRUE(glIsList(10000));
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 2065);
    EXPECT_NEAR(map.Draw(symbol).CountOther(kBlack), 30, 1); // member by member
    map.Clear();
    glLoadIdentity();
    glOrtho(0, 8, 0, 8, -1, 1);
    glCallList(4065);
    EXPECT_GT(map.Show().CountOther(kBlack), 40); // still the letter A
}

TEST(ZvDispGLSymbols, AContextWithoutSymbolListsMakesThemAtItsFirstSymbol) {
    GlMap map;
    TestSurface surface(64, 64);
    OpenGL bare;
    const PIXELFORMATDESCRIPTOR format;
    SetPixelFormat(surface.Dc(), 1, &format);
    bare.SetDispContext(surface.Dc());
    bare.SetRenderContext(wglCreateContext(surface.Dc()));
    bare.Resize(0, 0, 64, 64);
    CZvDispPoint lowerLeft(0, 0), upperRight(64, 64);
    bare.SetView(lowerLeft, upperRight);
    CZvDispSymbols::S_AddExternalSymbols(new Members{Bar(-1, 2)}, 56);
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56);
    symbol.SetPickID(10001);
    bare.DrawDispItem(&symbol);
    EXPECT_EQ(glGetError(), static_cast<GLenum>(GL_NO_ERROR));
    EXPECT_TRUE(glIsList(2056));
    bare.Redraw(10001);
    bare.Render();
    EXPECT_NEAR(surface.Shown().CountOther(kBlack), 30, 1);
    bare.Destroy();
    map.gl.Start();
}

TEST(ZvDispGLSymbols, SymbolsMadeAnewChangeTheItemsThatShowThem) {
    GlMap map;
    AddSymbol(map, 56, {Bar(-1, 0)});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56);
    symbol.SetPickID(10001);
    map.gl.DrawDispItem(&symbol);
    AddSymbol(map, 56, {Bar(-3, 3)});
    EXPECT_NEAR(map.Redraw({10001}).CountOther(kBlack), 60, 1);
}

TEST(ZvDispGLSymbols, ATemporarySymbolFillsItsPolygonsAtOnce) {
    GlMap map;
    map.gl.SetPFBrightIndex(0);
    auto* area = new CZvDispPolygon;
    area->SetVertices(Rectangle(-1, -1, 1, 1)); // not filled
    area->SetColor(static_cast<ZVColor>(2), 0);
    AddSymbol(map, 56, {area, Bar(-1, 2, 1.5, 3)});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 56);
    map.Clear();
    map.gl.V_OnTempSymbols(symbol);
    const auto picture = map.Show();
    EXPECT_EQ(picture.CountOf(Palette(2)), 400);
    EXPECT_EQ(picture.At(40, 63 - 35), Palette(3));
}

TEST(ZvDispGLSymbols, AnUnknownSymbolDrawsNothing) {
    GlMap map;
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 777);
    EXPECT_EQ(map.Draw(symbol).CountOther(kBlack), 0);
    map.gl.DrawSymbol(symbol);
    symbol.SetSymbolNum(57);
    map.gl.DrawSymbol(symbol);
    EXPECT_EQ(map.Show().CountOther(kBlack), 0);
}

TEST(ZvDispGLSymbols, DrawnOutsideAListItStandsInItsPlaceFarFromTheOrigin) {
    GlMap map;
    AddSymbol(map, 600, {Bar(-1, 2)});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 600);
    symbol.SetCenter({1.5e6 + 32.5, 1e7 + 20.5});
    const auto view = [&] { map.View(1.5e6, 1e7, 1.5e6 + 64, 1e7 + 64); };
    view();
    map.gl.DrawDispItem(&symbol);
    const auto listed = map.Show();
    EXPECT_NEAR(listed.CountOther(kBlack), 30, 1);
    view();
    map.gl.V_GLSymbol(symbol);
    EXPECT_NEAR(map.Show().CountOther(kBlack), 30, 1);
    EXPECT_EQ(map.Show().BoxOfOther(kBlack), listed.BoxOfOther(kBlack));
}

TEST(ZvDispGLSymbols, ANegativeNumberHasNoListAndIsDrawnMemberByMember) {
    GlMap map;
    AddSymbol(map, -5, {Bar(-1, 2, 0, 2)});
    EXPECT_FALSE(glIsList(1995));
    CZvDispSymbols symbol;
    MakeSymbol(symbol, -5, 1);
    EXPECT_NEAR(map.Draw(symbol).CountOther(kBlack), 30, 1);
}

TEST(ZvDispGLSymbols, ItsMembersBelongToAllAndStayActive) {
    GlMap map;
    auto* bar = Bar(-1, 2, 0, 2);
    AddSymbol(map, 600, {bar});
    CZvDispSymbols symbol;
    MakeSymbol(symbol, 600);
    symbol.SetInActive(true);
    map.Draw(symbol);
    EXPECT_FALSE(bar->GetInActive());
}

} // namespace
} // namespace zv::testing
