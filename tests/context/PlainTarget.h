#pragma once

#include <string>
#include <vector>

#include "support/RecordingContext.h"

namespace zv::test {

/// A target that has lines and polygons only: everything else comes through the frame's fallbacks.
class PlainTarget : public RecordingContext {
  public:
    std::vector<std::vector<CZvDispPoint>> shapes;
    int color = 0, width = 0;
    bool filled = false, inactive = false;
    void DrawCircle(CZvDispCircle& circle) override { CZvDisplayContext::DrawCircle(circle); }
    void DrawArc(CZvDispArc& arc) override { CZvDisplayContext::DrawArc(arc); }
    void DrawText(CZvDispText& text) override { DrawStrokeFontText(text); }
    void DrawPolygon(CZvDispPolygon& polygon) override {
        shapes.push_back(polygon.GetVertices());
        color = polygon.GetColor();
        width = polygon.GetLineWidth();
        filled = polygon.GetFill();
        inactive = polygon.GetInActive();
    }
    void DrawPolyLine(CZvDispPolyLine& line) override { shapes.push_back(line.GetVertices()); }

    using CZvDisplayContext::boundPolygon;
    using CZvDisplayContext::BuildExportFileMoniker;
    using CZvDisplayContext::clipOn;
    using CZvDisplayContext::ClipSymbol;
    using CZvDisplayContext::ClipText;
    using CZvDisplayContext::CopyTextItem;
    using CZvDisplayContext::culture;
    using CZvDisplayContext::GetXYPos;
    using CZvDisplayContext::inSymbol;
    using CZvDisplayContext::IsInsideFinalBorder;
    using CZvDisplayContext::layer;
    using CZvDisplayContext::placeRotate;
    using CZvDisplayContext::placeScale;
    using CZvDisplayContext::placeX;
    using CZvDisplayContext::placeY;
    using CZvDisplayContext::post;
    using CZvDisplayContext::strokeFont;
    using CZvDisplayContext::uset;
    using CZvDisplayContext::ValidateStringAsFileName;
};

} // namespace zv::test
