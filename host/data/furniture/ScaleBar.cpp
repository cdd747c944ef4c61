#include <cmath>

#include "data/furniture/FurnitureBuilder.h"
#include "platform/Numbers.h"

namespace zv::host {
namespace {

constexpr double kFeetPerMile = 5280.0;
constexpr double kBarHeight = 0.08;
constexpr double kTextHeight = 0.09;
constexpr int kCells = 4;

/// The largest of 1, 2, 5, 10, ... (or a decimal part of them) not above the value.
double RoundDown(double value) {
    const double power = std::pow(10.0, std::floor(std::log10(value)));
    for (const double step : {5.0, 2.0, 1.0})
        if (step * power <= value) return step * power;
    return power;
}

std::string Count(double value) {
    return FormatShortest(std::round(value * 1000.0) / 1000.0);
}

/// One bar of four cells, the first at (x, y); `unit` in inches on paper.
void DrawBar(Drafter& drafter, double x, double y, double unit, double step,
             const std::string& name, const Furniture& style) {
    const double cell = unit * step;
    for (int i = 0; i < kCells; ++i) {
        const Area area{x + i * cell, y, x + (i + 1) * cell, y + kBarHeight};
        drafter.Fill(area, i % 2 == 0 ? style.ink : style.paper);
        drafter.Frame(area, {style.ink});
    }
    for (int i = 0; i <= kCells; i += 2)
        drafter.Text(x + i * cell, y + kBarHeight + 0.05, kTextHeight, Count(i * step), 'c',
                     style.ink);
    drafter.Text(x, y - 0.05 - kTextHeight, kTextHeight, name, 'l', style.ink);
}

/// A number with a comma before each three digits.
std::string Grouped(long long value) {
    const std::string digits = FormatInt(value);
    std::string text;
    for (std::size_t i = 0; i < digits.size(); ++i) {
        if (i > 0 && (digits.size() - i) % 3 == 0) text += ',';
        text += digits[i];
    }
    return text;
}

std::string ScaleText(const MapFrame& frame) {
    if (!frame.IsFeet()) return "Scale 1:" + Grouped(frame.Scale());
    return "1 inch = " + Grouped(frame.Scale()) + " feet  (1:" + Grouped(frame.Scale() * 12LL) +
           ")";
}

} // namespace

double FurnitureBuilder::AddScaleBar(double bottom) {
    const Area inside = PanelInside();
    const MapFrame& frame = m_context.frame;
    Drafter drafter(m_sheet, Sheet::Shift(m_settings, "SCALE_TEXT_DETAIL"));
    const double unitsPerInch = frame.Inches(1.0);
    const double mile = (frame.IsFeet() ? kFeetPerMile : 1609.344) / unitsPerInch;
    const double kilometre = (frame.IsFeet() ? 3280.8333333 : 1000.0) / unitsPerInch;
    const double widest = (inside.Width() - 0.3) / kCells;
    const double lower = bottom + 0.16;
    const double upper = lower + 0.58;
    DrawBar(drafter, inside.x1 + 0.1, lower, kilometre, RoundDown(widest / kilometre), "Kilometres",
            m_style);
    DrawBar(drafter, inside.x1 + 0.1, upper, mile, RoundDown(widest / mile), "Statute miles",
            m_style);
    const std::string text = ScaleText(frame);
    const double height = FittingHeight(text, inside.Width(), 0.1);
    const double base = upper + kBarHeight + 0.05 + kTextHeight + 0.16;
    drafter.Text(inside.x1, base, height, text, 'l', m_style.ink);
    Put(drafter, "SCALE_TEXT_DETAIL", 451, inside.x1, bottom);
    return base + height + 0.25;
}

} // namespace zv::host
