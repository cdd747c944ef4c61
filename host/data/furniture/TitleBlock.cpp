#include <cmath>

#include "data/furniture/FurnitureBuilder.h"

namespace zv::host {
namespace {

constexpr double kTitleHeight = 0.3;
constexpr double kSubtitleHeight = 0.13;
constexpr double kLineHeight = 0.1;
constexpr double kNoteHeight = 0.085;
constexpr double kLeading = 1.75; ///< distance of base lines over the height of the letters

double HeightOfLine(std::size_t index) {
    if (index == 0) return kTitleHeight;
    return index == 1 ? kSubtitleHeight : kLineHeight;
}

} // namespace

double FurnitureBuilder::AddTitleBlock(double top) {
    if (m_style.title.empty()) return top;
    const Area inside = PanelInside();
    Drafter drafter(m_sheet, Sheet::Shift(m_settings, "TITLE_BLOCK_DETAIL"));
    double y = top;
    for (std::size_t i = 0; i < m_style.title.size(); ++i) {
        const std::string& line = m_style.title[i];
        const double height = FittingHeight(line, inside.Width(), HeightOfLine(i));
        y -= height;
        drafter.Text(inside.x1, y, height, line, 'l', m_style.ink, i < 2 ? 1 : 0);
        y -= i < 2 ? 0.13 : 0.09;
    }
    y -= 0.1;
    drafter.Line({{inside.x1, y}, {inside.x2, y}}, {m_style.ink, 1});
    Put(drafter, "TITLE_BLOCK_DETAIL", 451, inside.x1, y);
    return y - 0.3;
}

double FurnitureBuilder::AddProjectionText(double bottom) {
    if (m_style.projection.empty()) return bottom;
    const Area inside = PanelInside();
    Drafter drafter(m_sheet, Sheet::Shift(m_settings, "PROJ_TEXT_DETAIL"));
    double y = bottom;
    for (std::size_t i = m_style.projection.size(); i-- > 0;) {
        const std::string& line = m_style.projection[i];
        const double height = FittingHeight(line, inside.Width(), kNoteHeight);
        drafter.Text(inside.x1, y, height, line, 'l', m_style.ink);
        y += height * kLeading;
    }
    Put(drafter, "PROJ_TEXT_DETAIL", 451, inside.x1, bottom);
    return y + 0.2;
}

} // namespace zv::host
