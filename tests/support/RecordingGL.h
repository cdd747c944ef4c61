#pragma once

#include <string>
#include <vector>

#include "context/ZvDispGL.h"
#include "platform/Numbers.h"

namespace zv::test {

/// An OpenGL context that writes down which items it is to compile and which lists to replay.
/// Without Create it has no rendering context and so no lists.
class RecordingGL : public CZvDispGL {
  public:
    std::string Take() {
        std::string text = m_trace;
        m_trace.clear();
        return text;
    }

    void DrawPolyLine(CZvDispPolyLine& line) override {
        Say("line", line);
        if (GetRenderContext()) CZvDispGL::DrawPolyLine(line);
    }
    void DrawPolygon(CZvDispPolygon& polygon) override {
        Say("polygon", polygon);
        if (GetRenderContext()) CZvDispGL::DrawPolygon(polygon);
    }
    void DrawCircle(CZvDispCircle& circle) override {
        Say("circle", circle);
        if (GetRenderContext()) CZvDispGL::DrawCircle(circle);
    }
    void DrawText(CZvDispText& text) override { Say("text", text); }
    void DrawSymbol(CZvDispSymbols& symbol) override { Say("symbol", symbol); }
    void DrawGroup(CZvDispGroup& group) override { Say("group", group); }
    bool V_Redraw(unsigned id) override {
        m_trace += "replay " + FormatInt(id) + "\n";
        return true;
    }

  private:
    void Say(const char* kind, const CZvDisplayItem& item) {
        m_trace += std::string(kind) + " " + FormatInt(item.GetPickID()) + " c" +
                   FormatInt(item.GetColor()) + "\n";
    }
    std::string m_trace;
};

} // namespace zv::test
