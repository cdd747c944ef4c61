#pragma once

#include "platform/Export.h"
#include "platform/win/ZvRect.h"
#include "platform/zvcom/ZvDispPoint.h"
#include "platform/zvcom/ZvMapBounds.h"

/// Fits a map rectangle into a rectangle of pixels.
class ZVDISP_API CZvDispUtil {
  public:
    virtual ~CZvDispUtil();

    /// Grows the map's box in one direction, centred, to the shape of the view, and gives map units
    /// per pixel. Where the shapes are equal both output points stay as they came. REQUIRES:
    /// neither box is empty.
    static double S_FitMapIntoView(const CRect& view, CZvDispPoint mapLL, CZvDispPoint mapUR,
                                   CZvDispPoint& outLL, CZvDispPoint& outUR);
    /// Upper right corner of a view at a given scale; true. Z and the pen flag of `ur` stay.
    static bool S_FindMapUR(const CRect& view, double unitsPerPixel, const CZvDispPoint& ll,
                            CZvDispPoint& ur);
    /// Map point of a pixel in a view that shows the map's X and Y bounds; pixel y grows downward.
    static CZvDispPoint S_ConvertWindowsPt(CRect view, CZvMapBounds bounds, CZvDispPoint pixel);
};
