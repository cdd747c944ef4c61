#pragma once

#include <array>
#include <optional>

#include "context/Affine.h"

namespace zv {

/// How map positions reach the screen at one moment.
struct ScreenMatrix {
    /// Map position that vertices are given relative to.
    Point2 center;
    /// Model-view matrix for such vertices; none: the one that is current fits.
    std::optional<std::array<double, 16>> modelView;
    /// What can be seen, with room for the width of lines; all of the plane when unknown.
    Box visible{-HUGE_VAL, -HUGE_VAL, HUGE_VAL, HUGE_VAL};
    /// Part of the plane, relative to the center, in which single precision is good enough.
    Box safe{-HUGE_VAL, -HUGE_VAL, HUGE_VAL, HUGE_VAL};
    /// Map units of a pixel; 0 when unknown.
    Point2 pixel;
};

/// The map's window on the screen in double precision, and the origin near the data that vertices
/// in driver lists are relative to.
class ScreenView {
  public:
    /// glOrtho for the window on the current matrix, relative to the origin. A window without area
    /// is left out. `mayMoveOrigin`: no list stands on the origin, so that it goes to the window's
    /// middle.
    void Ortho(const Point2& lowerLeft, const Point2& upperRight, bool mayMoveOrigin);
    const Point2& Origin() const { return m_origin; }
    /// Reads the current matrices. Where the model-view matrix is the one that Ortho left, the
    /// result is exact at any zoom; where a host put its own there, that one holds.
    ScreenMatrix Current() const;

  private:
    void AddVisible(ScreenMatrix& matrix, const std::array<float, 16>& projection) const;

    Point2 m_origin;
    Point2 m_center;
    double m_width = 0.0, m_height = 0.0; // of the window; 0 before the first
    std::array<float, 16> m_loaded{};     // the model-view matrix behind Ortho
};

} // namespace zv
