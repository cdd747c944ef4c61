#include "context/CutLine.h"

namespace zv {

namespace {

/// Narrows the range of the segment's parameter to one side: what moves by `run` over the whole
/// segment may move at most `room`.
bool Narrow(double run, double room, double& enter, double& leave) {
    if (run == 0.0) return room >= 0.0;
    const double t = room / run;
    if (run < 0.0)
        enter = std::fmax(enter, t);
    else
        leave = std::fmin(leave, t);
    return enter <= leave;
}

} // namespace

bool CutLine(Point2& from, Point2& to, const Box& box) {
    const Point2 start = from;
    const double dx = to.x - from.x, dy = to.y - from.y;
    double enter = 0.0, leave = 1.0;
    if (!Narrow(-dx, start.x - box.minX, enter, leave) ||
        !Narrow(dx, box.maxX - start.x, enter, leave) ||
        !Narrow(-dy, start.y - box.minY, enter, leave) ||
        !Narrow(dy, box.maxY - start.y, enter, leave))
        return false;
    if (enter > 0.0) from = {start.x + enter * dx, start.y + enter * dy};
    if (leave < 1.0) to = {start.x + leave * dx, start.y + leave * dy};
    return true;
}

} // namespace zv
