#pragma once

#include "context/DrawSink.h"

namespace zv {

/// Sends every call to two sinks.
class TeeSink final : public DrawSink {
  public:
    TeeSink(DrawSink& first, DrawSink& second) : m_first(first), m_second(second) {}

    void Color(double r, double g, double b, double alpha) override {
        Both([=](DrawSink& sink) { sink.Color(r, g, b, alpha); });
    }
    void Width(double pixels) override {
        Both([=](DrawSink& sink) { sink.Width(pixels); });
    }
    void Stipple(std::uint16_t pattern) override {
        Both([=](DrawSink& sink) { sink.Stipple(pattern); });
    }
    void StippleOff() override {
        Both([](DrawSink& sink) { sink.StippleOff(); });
    }
    void BeginCompose(Compose compose) override {
        Both([=](DrawSink& sink) { sink.BeginCompose(compose); });
    }
    void EndCompose(Compose compose) override {
        Both([=](DrawSink& sink) { sink.EndCompose(compose); });
    }
    void Begin(Figure figure) override {
        Both([=](DrawSink& sink) { sink.Begin(figure); });
    }
    void Vertex(double x, double y) override {
        Both([=](DrawSink& sink) { sink.Vertex(x, y); });
    }
    void End() override {
        Both([](DrawSink& sink) { sink.End(); });
    }
    void Push(const Affine& place) override {
        Both([&](DrawSink& sink) { sink.Push(place); });
    }
    void Pop() override {
        Both([](DrawSink& sink) { sink.Pop(); });
    }
    void StrokeText(std::string_view text) override {
        Both([=](DrawSink& sink) { sink.StrokeText(text); });
    }
    void OutlineText(int style, std::string_view text) override {
        Both([=](DrawSink& sink) { sink.OutlineText(style, text); });
    }
    void SymbolShape(int number) override {
        Both([=](DrawSink& sink) { sink.SymbolShape(number); });
    }

  private:
    template<class Act>
    void Both(Act&& act) {
        act(m_first);
        act(m_second);
    }

    DrawSink& m_first;
    DrawSink& m_second;
};

} // namespace zv
