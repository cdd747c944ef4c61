#include "context/GlMap.h"

namespace zv::testing {
namespace {

/// Writes down which of its slots are called, each in the depth of the calls around it.
class Steps : public OpenGL {
  public:
    /// What was called since the last time, one slot a line.
    std::string Take() { return std::exchange(m_text, {}); }

    void CreateCharDisplayList() override {
        Say("CreateCharDisplayList", [&] { CZvDispGL::CreateCharDisplayList(); });
    }
    void DrawPolyLine(CZvDispPolyLine& line) override {
        Say("DrawPolyLine", [&] { CZvDispGL::DrawPolyLine(line); });
    }
    void DrawText(CZvDispText& text) override {
        Say("DrawText", [&] { CZvDispGL::DrawText(text); });
    }
    void V_GLSymbol(CZvDispSymbols& symbol) override {
        Say("V_GLSymbol", [&] { CZvDispGL::V_GLSymbol(symbol); });
    }
    void V_GLArc(CZvDispArc& arc) override {
        Say("V_GLArc", [&] { CZvDispGL::V_GLArc(arc); });
    }
    void V_GLGroup(CZvDispGroup& group) override {
        Say(m_inGroup ? "V_GLGroup in group" : "V_GLGroup", [&] { CZvDispGL::V_GLGroup(group); });
    }
    void V_GLCircle(CZvDispCircle& circle) override {
        Say("V_GLCircle", [&] { CZvDispGL::V_GLCircle(circle); });
    }
    void V_GLPolyline(CZvDispPolyLine& line) override {
        Say("V_GLPolyline", [&] { CZvDispGL::V_GLPolyline(line); });
    }
    void V_GLPolygon(CZvDispPolygon& polygon) override {
        Say("V_GLPolygon", [&] { CZvDispGL::V_GLPolygon(polygon); });
    }
    void V_GLText(CZvDispText& text) override {
        Say("V_GLText", [&] { CZvDispGL::V_GLText(text); });
    }
    void V_GLStrokeText(CZvDispText& text) override {
        Say("V_GLStrokeText", [&] { CZvDispGL::V_GLStrokeText(text); });
    }
    void V_GLTrueTypeText(CZvDispText& text) override {
        Say("V_GLTrueTypeText", [&] { CZvDispGL::V_GLTrueTypeText(text); });
    }
    void V_GLVertice(const CZvDispPoint& point) override {
        ++vertices;
        CZvDispGL::V_GLVertice(point);
    }
    bool V_Redraw(unsigned id) override {
        bool there = false;
        Say("V_Redraw", [&] { there = CZvDispGL::V_Redraw(id); });
        return there;
    }
    bool InGroup() const { return m_inGroup; }

    int vertices = 0;

  private:
    template<class Act>
    void Say(const std::string& slot, Act&& act) {
        m_text += std::string(m_depth * 2, ' ') + slot + "\n";
        ++m_depth;
        act();
        --m_depth;
    }
    std::string m_text;
    std::size_t m_depth = 0;
};

class GlOrder : public ::testing::Test {
  protected:
    GlOrder() {
        CZvDispGL::m_nFontIndex = 0;
        m_home.WriteEmptyFiles();
        m_home.Write("master.sym", test::LineSymbol(56));
    }
    ~GlOrder() override {
        gl.Destroy();
        CZvDispGL::m_nFontIndex = 0;
    }
    void Create() {
        gl.Create(m_surface.Dc());
        gl.Take();
    }
    /// The slots that drawing the item calls.
    std::string Draw(CZvDisplayItem& item) {
        gl.DrawDispItem(&item);
        return gl.Take();
    }
    HDC Dc() const { return m_surface.Dc(); }

  private:
    test::SymbolHome m_home;
    TestSurface m_surface;

  protected:
    Steps gl;
};

TEST_F(GlOrder, CreateMakesTheCharactersBeforeTheSymbols) {
    EXPECT_TRUE(gl.Create(Dc()));
    EXPECT_EQ(gl.Take(), "CreateCharDisplayList\n"
                         "DrawPolyLine\n"
                         "  V_GLPolyline\n");
}

TEST_F(GlOrder, EachKindGoesThroughItsSlot) {
    Create();
    CZvDispPolyLine line;
    MakeRow(line, 1, 5, 2);
    EXPECT_EQ(Draw(line), "DrawPolyLine\n  V_GLPolyline\n");
    EXPECT_EQ(gl.vertices, 4); // the symbol's two, and these
    CZvDispCircle circle;
    EXPECT_EQ(Draw(circle), "V_GLCircle\n");
    CZvDispArc arc;
    EXPECT_EQ(Draw(arc), "V_GLArc\n");
    CZvDispText text;
    text.SetLabel("A");
    EXPECT_EQ(Draw(text), "DrawText\n  V_GLText\n    V_GLStrokeText\n");
    CZvDispSymbols symbol;
    symbol.SetSymbolNum(56);
    EXPECT_EQ(Draw(symbol), "V_GLSymbol\n"); // from its list
}

TEST_F(GlOrder, AFilledPolygonIsTessellatedAndAnUnfilledOneGoesThroughTheLinesSlot) {
    Create();
    CZvDispPolygon polygon;
    polygon.SetVertices(Rectangle(1, 1, 5, 5));
    EXPECT_EQ(Draw(polygon), "V_GLPolygon\n"
                             "  DrawPolyLine\n"
                             "    V_GLPolyline\n");
    polygon.SetFill(true);
    EXPECT_EQ(Draw(polygon), "V_GLPolygon\n");
}

TEST_F(GlOrder, AGroupGoesThroughItsSlotAndItsMembersThroughTheirs) {
    Create();
    CZvDispGroup group;
    auto* line = new CZvDispPolyLine;
    MakeRow(*line, 1, 5, 2);
    auto* hidden = new CZvDispCircle;
    hidden->SetVisibility(false);
    group.AddPrimitive(1, line);
    group.AddPrimitive(1, hidden);
    EXPECT_EQ(Draw(group), "V_GLGroup in group\n"
                           "  DrawPolyLine\n"
                           "    V_GLPolyline\n");
    EXPECT_FALSE(gl.InGroup());
}

TEST_F(GlOrder, AnOutlineTextGoesThroughTheSameSlotFirst) {
    Create();
    gl.SetFontIndex(5);
    CZvDispText text;
    text.SetLabel("A");
    EXPECT_EQ(Draw(text), "DrawText\n  V_GLText\n    V_GLTrueTypeText\n");
}

TEST_F(GlOrder, RedrawGoesThroughItsSlotAndCallsNoOther) {
    Create();
    CZvDispPolyLine line;
    MakeRow(line, 1, 5, 2);
    line.SetPickID(10001);
    gl.DrawDispItem(&line);
    gl.Take();
    gl.Redraw(10001);
    EXPECT_EQ(gl.Take(), "V_Redraw\n");
}

} // namespace
} // namespace zv::testing
