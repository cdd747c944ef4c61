#pragma once

#include <vector>

#include "platform/Export.h"
#include "platform/zvcom/ZvDispPoint.h"

/// Plane geometry in map units. Angles are degrees, counter-clockwise.
class ZVDISP_API CZvUtilGeo {
  public:
    /// Turns a point about an origin, in place; Z and the pen flag stay. Multiples of 90 degrees
    /// are exact. An angle of 0.0 (or -0.0), of whole turns, or one that is not finite leaves the
    /// point bitwise unchanged.
    static void RotatePoint(CZvDispPoint& point, const CZvDispPoint& origin, double degrees);

    /// Turns every vertex about an origin, in place.
    static void RotatePolyline(std::vector<CZvDispPoint>& vertices, const CZvDispPoint& origin,
                               double degrees);

    /// Centre of a closed outline (last vertex equal to the first): the area centroid; of an
    /// outline without area (none beyond the rounding of its coordinates) the centroid by length,
    /// of one place that place, of no vertices (0, 0, 0). Z is the mean of the vertices' Z without
    /// the closing one.
    static CZvDispPoint S_FindPolylineCenter(const std::vector<CZvDispPoint>& closed);

    /// Bounding box in X and Y of the vertices (Z and pen flag of both points stay); false and both
    /// points untouched when there are none.
    static bool PolyLineGetMinMax(const std::vector<CZvDispPoint>& vertices, CZvDispPoint& min,
                                  CZvDispPoint& max);

    /// Grows the rectangle in place by the fraction of its own width and height, half of it on each
    /// side: 0.1 makes a rectangle 100 wide 110 wide.
    static void AddViewport(CZvDispPoint& lowerLeft, CZvDispPoint& upperRight, double fraction);

    /// True for a clockwise ring (Y upward). `error` becomes 0, 1 when the ring has no area or a
    /// coordinate that is not finite, 2 when it has fewer than three different vertices.
    static bool S_FindDirection(const std::vector<CZvDispPoint>& ring, int* error);

    /// Distance from a to b along X and Y in page inches: map units over the scale on a feet map,
    /// and times 39.36999996 on a metre map. A scale of 0 gives 0.
    static void S_GetOffsetOf2Points(const CZvDispPoint& a, const CZvDispPoint& b, double& dx,
                                     double& dy, int scale, int meters);

    /// Angle of the direction from a to b in [0, 360); 0 when they coincide.
    static double FindAngle(const CZvDispPoint& a, const CZvDispPoint& b);
};
