#include "context/ScreenView.h"

#include <GL/gl.h>

#include <algorithm>

namespace zv {

namespace {

constexpr double kNear = 99999997952.0, kFar = -99999997952.0;
/// Pixels by which a line can reach beyond its vertices.
constexpr double kMargin = 130.0;
/// Widths of the window within which vertices may lie: their error stays below a hundredth pixel.
constexpr double kSafe = 64.0;

using Matrix = std::array<float, 16>;

Matrix ReadMatrix(GLenum which) {
    Matrix matrix;
    glGetFloatv(which, matrix.data());
    return matrix;
}

/// Whether x and y each only stretch and shift.
bool IsUpright(const Matrix& m) {
    return m[1] == 0 && m[4] == 0 && m[3] == 0 && m[7] == 0 && m[11] == 0 && m[15] == 1 &&
           m[8] == 0 && m[9] == 0 && m[0] != 0 && m[5] != 0;
}

/// Range of x that scale * x + shift takes into -1 to 1, with a margin.
std::array<double, 2> VisibleRange(double scale, double shift, double margin) {
    const double a = (-1.0 - shift) / scale, b = (1.0 - shift) / scale;
    return {std::min(a, b) - margin, std::max(a, b) + margin};
}

} // namespace

void ScreenView::Ortho(const Point2& lowerLeft, const Point2& upperRight, bool mayMoveOrigin) {
    const double width = upperRight.x - lowerLeft.x, height = upperRight.y - lowerLeft.y;
    if (width == 0.0 || height == 0.0 || !std::isfinite(width) || !std::isfinite(height)) return;
    m_width = width;
    m_height = height;
    m_center = {lowerLeft.x + width / 2, lowerLeft.y + height / 2};
    if (mayMoveOrigin) m_origin = m_center;
    glOrtho(lowerLeft.x - m_origin.x, upperRight.x - m_origin.x, lowerLeft.y - m_origin.y,
            upperRight.y - m_origin.y, kNear, kFar);
    m_loaded = ReadMatrix(GL_MODELVIEW_MATRIX);
}

ScreenMatrix ScreenView::Current() const {
    ScreenMatrix matrix;
    matrix.center = m_origin;
    if (m_width == 0.0 || ReadMatrix(GL_MODELVIEW_MATRIX) != m_loaded) return matrix;
    matrix.center = m_center;
    matrix.modelView = {2.0 / m_width,
                        0,
                        0,
                        0,
                        0,
                        2.0 / m_height,
                        0,
                        0,
                        0,
                        0,
                        -2.0 / (kFar - kNear),
                        0,
                        0,
                        0,
                        0,
                        1};
    const double reach = kSafe * std::max(std::fabs(m_width), std::fabs(m_height));
    matrix.safe = {-reach, -reach, reach, reach};
    AddVisible(matrix, ReadMatrix(GL_PROJECTION_MATRIX));
    return matrix;
}

void ScreenView::AddVisible(ScreenMatrix& matrix, const Matrix& projection) const {
    if (!IsUpright(projection)) return;
    GLint viewport[4] = {};
    glGetIntegerv(GL_VIEWPORT, viewport);
    matrix.pixel = {std::fabs(m_width) / std::max(viewport[2], 1),
                    std::fabs(m_height) / std::max(viewport[3], 1)};
    const double marginX = 2.0 * kMargin / std::max(viewport[2], 1);
    const double marginY = 2.0 * kMargin / std::max(viewport[3], 1);
    const auto x = VisibleRange(projection[0], projection[12], marginX);
    const auto y = VisibleRange(projection[5], projection[13], marginY);
    matrix.visible = {};
    matrix.visible.Add({m_center.x + x[0] * m_width / 2, m_center.y + y[0] * m_height / 2});
    matrix.visible.Add({m_center.x + x[1] * m_width / 2, m_center.y + y[1] * m_height / 2});
}

} // namespace zv
