#pragma once

#include <string>
#include <vector>

#include "context/ZvDisplayContext.h"
#include "platform/Numbers.h"

namespace zv::test {

/// A context that writes down what reaches it, one line a call, in an order and spelling that do
/// not change. Groups and symbols go on through the frame, so that their members stand in the trace
/// too.
class RecordingContext : public CZvDisplayContext {
  public:
    explicit RecordingContext(CTX_TYPE kind = CTX_OTHER) { type = kind; }

    std::vector<std::string> trace;
    bool traceView = false;
    bool traceTags = true;

    /// The trace as one text, and an empty trace behind it.
    std::string Take() {
        std::string text;
        for (const std::string& line : trace)
            text += line + "\n";
        trace.clear();
        return text;
    }

    void V_Open() override { Say("open"); }
    void V_Close() override { Say("close"); }
    void SetView(CZvDispPoint& ll, CZvDispPoint& ur) override {
        if (traceView) Say("view " + XY(ll) + " " + XY(ur));
    }
    bool WriteTagInfo(int tag, const void* value) override {
        static const char* const names[] = {"",        "layer", "post", "uset",
                                            "culture", "posts", "usets"};
        if (traceTags && tag >= 1 && tag <= 6)
            Say(std::string(names[tag]) + " " + FormatInt(*static_cast<const int*>(value)));
        return CZvDisplayContext::WriteTagInfo(tag, value);
    }
    void DrawPolyLine(CZvDispPolyLine& line) override {
        Say("line" + Vertices(line) + Style(line));
    }
    void DrawPolygon(CZvDispPolygon& polygon) override {
        Say("polygon" + Vertices(polygon) + Style(polygon));
    }
    void DrawCircle(CZvDispCircle& circle) override {
        Say("circle " + XY(circle.GetCenter()) + " r " + FormatShortest(circle.GetRadius()) +
            Style(circle));
    }
    void DrawArc(CZvDispArc& arc) override {
        Say("arc " + XY(arc.GetCenter()) + " r " + FormatShortest(arc.GetRadius()) + " from " +
            FormatShortest(arc.GetStartAngle()) + " to " + FormatShortest(arc.GetEndAngle()) +
            Style(arc));
    }
    void DrawText(CZvDispText& text) override {
        Say("text \"" + text.GetLabel() + "\" " + XY(text.GetPoint()) + Style(text));
    }
    void DrawGroup(CZvDispGroup& group) override {
        Say("group " + group.GetID() + Style(group));
        CZvDisplayContext::DrawGroup(group);
    }
    void DrawSymbol(CZvDispSymbols& symbol) override {
        Say("symbol " + FormatInt(symbol.GetSymbolNum()) + " " + XY(symbol.GetCenter()) +
            Style(symbol));
        CZvDisplayContext::DrawSymbol(symbol);
    }

  private:
    void Say(std::string line) { trace.push_back(std::move(line)); }

    static std::string XY(const CZvDispPoint& point) {
        return FormatShortest(point.GetX()) + "," + FormatShortest(point.GetY());
    }
    static std::string Vertices(CZvDispPolyLine& line) {
        std::string text;
        for (const CZvDispPoint& vertex : line.GetVertices())
            text += (vertex.GetDown() ? " " : " ^") + XY(vertex);
        return text;
    }
    static std::string Style(CZvDisplayItem& item) {
        std::string text = " c" + FormatInt(item.GetColor());
        if (item.GetLineWidth() != 0) text += " w" + FormatInt(item.GetLineWidth());
        if (item.GetLineType() != 0) text += " t" + FormatInt(item.GetLineType());
        if (item.GetFill()) text += " filled";
        return text;
    }
};

} // namespace zv::test
