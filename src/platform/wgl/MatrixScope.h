#pragma once

namespace zv {

/// Pushes the current context's matrix and places what follows at a point, scaled in X and Y; pops
/// the matrix at its end.
class MatrixScope {
  public:
    MatrixScope(double x, double y, double z, double scale);
    ~MatrixScope();
    MatrixScope(const MatrixScope&) = delete;
    MatrixScope& operator=(const MatrixScope&) = delete;
};

} // namespace zv
