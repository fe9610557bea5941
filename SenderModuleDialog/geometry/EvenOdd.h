#ifndef SENDERMODULEDIALOG_GEOMETRY_EVENODD_H
#define SENDERMODULEDIALOG_GEOMETRY_EVENODD_H

#include "host/CommonClass/PointEx.h"

/// The fewest points that enclose an area.
constexpr int c_nMinPolygonPoints = 3;

/// Whether a ray from a point to the left passes the edge from a to b: the step of every even-odd inside test
/// of the library. An end of the edge at the height of the point counts for the lower edge only.
inline bool IsEdgeLeftOf(CPointEx<float> pt, CPointEx<float> ptA, CPointEx<float> ptB)
{
    const bool bSpansY = (ptA.y < pt.y && pt.y <= ptB.y) || (pt.y <= ptA.y && ptB.y < pt.y);
    if (!bSpansY || !(ptA.x <= pt.x || ptB.x <= pt.x))
        return false;
    return (ptB.x - ptA.x) * ((pt.y - ptA.y) / (ptB.y - ptA.y)) + ptA.x < pt.x;
}

#endif // SENDERMODULEDIALOG_GEOMETRY_EVENODD_H
