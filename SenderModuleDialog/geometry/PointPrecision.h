#ifndef SENDERMODULEDIALOG_GEOMETRY_POINTPRECISION_H
#define SENDERMODULEDIALOG_GEOMETRY_POINTPRECISION_H

#include "host/CommonClass/PointEx.h"

#include <QPointF>

#include <cmath>

/// @file
/// Points in single and in double precision, and how close two points count as the same.

/// How close to a vertex of an outline, in x and in y, a point counts as inside; how close two points of the
/// chart count as the same; and how far a solved point is taken off its boundary. Settled for chromaticities
/// near the unit square.
constexpr float c_fVertexReach = 0.0001F;

/// The same coordinates in double precision.
inline QPointF Widened(CPointEx<float> pt)
{
    return {double(pt.x), double(pt.y)};
}

/// The same coordinates rounded to single precision.
inline CPointEx<float> Narrowed(QPointF pt)
{
    return {float(pt.x()), float(pt.y())};
}

/// Whether two points differ by less than the tolerance, in x and in y.
inline bool IsWithin(CPointEx<float> ptFirst, CPointEx<float> ptSecond, float fTolerance)
{
    return std::fabs(ptFirst.x - ptSecond.x) < fTolerance && std::fabs(ptFirst.y - ptSecond.y) < fTolerance;
}

#endif // SENDERMODULEDIALOG_GEOMETRY_POINTPRECISION_H
