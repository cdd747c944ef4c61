#pragma once

#include <cmath>
#include <numbers>

namespace zv {

struct Point2 {
    double x = 0.0, y = 0.0;
};

/// A placement in the plane: turn, stretch and shift. Applies to (x, y) as
/// (a x + c y + tx, b x + d y + ty).
struct Affine {
    double a = 1.0, b = 0.0, c = 0.0, d = 1.0, tx = 0.0, ty = 0.0;

    Point2 operator()(double x, double y) const { return {a * x + c * y + tx, b * x + d * y + ty}; }
    /// The placement that applies `inner` first and this one to its result.
    Affine operator*(const Affine& inner) const {
        const Point2 t = (*this)(inner.tx, inner.ty);
        return {a * inner.a + c * inner.b,
                b * inner.a + d * inner.b,
                a * inner.c + c * inner.d,
                b * inner.c + d * inner.d,
                t.x,
                t.y};
    }

    static Affine Shift(double x, double y) { return {1.0, 0.0, 0.0, 1.0, x, y}; }
    static Affine Stretch(double sx, double sy) { return {sx, 0.0, 0.0, sy, 0.0, 0.0}; }
    /// Counter-clockwise.
    static Affine Turn(double degrees) {
        if (degrees == 0.0) return {};
        const double radians = degrees * std::numbers::pi / 180.0;
        const double cosine = std::cos(radians), sine = std::sin(radians);
        return {cosine, sine, -sine, cosine, 0.0, 0.0};
    }
};

/// An upright box; empty as it is made.
struct Box {
    double minX = HUGE_VAL, minY = HUGE_VAL, maxX = -HUGE_VAL, maxY = -HUGE_VAL;

    bool IsEmpty() const { return minX > maxX; }
    void Add(const Point2& p) {
        minX = std::fmin(minX, p.x);
        minY = std::fmin(minY, p.y);
        maxX = std::fmax(maxX, p.x);
        maxY = std::fmax(maxY, p.y);
    }
    /// Adds the box of another box's corners as they are placed.
    void Add(const Box& other, const Affine& place) {
        if (other.IsEmpty()) return;
        Add(place(other.minX, other.minY));
        Add(place(other.maxX, other.minY));
        Add(place(other.minX, other.maxY));
        Add(place(other.maxX, other.maxY));
    }
    Box Shifted(double dx, double dy) const { return {minX + dx, minY + dy, maxX + dx, maxY + dy}; }
    bool Meets(const Box& other) const {
        return minX <= other.maxX && maxX >= other.minX && minY <= other.maxY && maxY >= other.minY;
    }
    bool Holds(const Box& other) const {
        return minX <= other.minX && maxX >= other.maxX && minY <= other.minY && maxY >= other.maxY;
    }
};

} // namespace zv
