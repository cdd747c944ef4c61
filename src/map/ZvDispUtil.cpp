#include "map/ZvDispUtil.h"

CZvDispUtil::~CZvDispUtil() = default;

namespace {

CZvDispPoint Shifted(const CZvDispPoint& point, double dx, double dy) {
    return point + CZvDispPoint(dx, dy);
}

} // namespace

double CZvDispUtil::S_FitMapIntoView(const CRect& view, CZvDispPoint mapLL, CZvDispPoint mapUR,
                                     CZvDispPoint& outLL, CZvDispPoint& outUR) {
    const double mapW = mapUR.GetX() - mapLL.GetX(), mapH = mapUR.GetY() - mapLL.GetY();
    const double viewW = view.Width(), viewH = view.Height();
    const double mapShape = mapH / mapW, viewShape = viewH / viewW;
    if (viewShape > mapShape) {
        const double scale = mapW / viewW, pad = (scale * viewH - mapH) * 0.5;
        outLL = Shifted(mapLL, 0.0, -pad);
        outUR = Shifted(mapUR, 0.0, pad);
        return scale;
    }
    if (viewShape < mapShape) {
        const double scale = mapH / viewH, pad = (viewW * scale - mapW) * 0.5;
        outLL = Shifted(mapLL, -pad, 0.0);
        outUR = Shifted(mapUR, pad, 0.0);
        return scale;
    }
    return mapW / viewW;
}

bool CZvDispUtil::S_FindMapUR(const CRect& view, double unitsPerPixel, const CZvDispPoint& ll,
                              CZvDispPoint& ur) {
    ur.SetY(ll.GetY() + view.Height() * unitsPerPixel);
    ur.SetX(ll.GetX() + view.Width() * unitsPerPixel);
    return true;
}

CZvDispPoint CZvDispUtil::S_ConvertWindowsPt(CRect view, CZvMapBounds bounds, CZvDispPoint pixel) {
    const double width = bounds.GetXMax() - bounds.GetXMin();
    const double height = bounds.GetYMax() - bounds.GetYMin();
    return {bounds.GetXMin() + width * (pixel.GetX() - view.left) / view.Width(),
            bounds.GetYMax() - height * (pixel.GetY() - view.top) / view.Height()};
}
