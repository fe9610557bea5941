#ifndef ORACLES_GEOMETRY_PLAINGEOMETRY_H
#define ORACLES_GEOMETRY_PLAINGEOMETRY_H

#include <QPointF>
#include <QVector>

#include <algorithm>
#include <cmath>
#include <limits>

/// Plain geometry in double, the oracle of the property tests.
namespace PlainGeometry {

using Polygon = QVector<QPointF>;

inline double Length(const QPointF& pt)
{
    return std::hypot(pt.x(), pt.y());
}

/// Twice the area of the triangle a, b, c: positive when it runs counter-clockwise.
inline double Cross(const QPointF& ptA, const QPointF& ptB, const QPointF& ptC)
{
    return (ptB.x() - ptA.x()) * (ptC.y() - ptA.y()) - (ptB.y() - ptA.y()) * (ptC.x() - ptA.x());
}

/// Signed area, positive for counter-clockwise.
inline double Area(const Polygon& polygon)
{
    double dTwice = 0.0;
    for (int i = 0; i < polygon.size(); ++i)
        dTwice += Cross(QPointF(), polygon[i], polygon[(i + 1) % polygon.size()]);
    return 0.5 * dTwice;
}

inline double DistanceToSegment(const QPointF& pt, const QPointF& ptA, const QPointF& ptB)
{
    const QPointF ptAlong = ptB - ptA;
    const double dLength2 = QPointF::dotProduct(ptAlong, ptAlong);
    const double dShare = dLength2 == 0.0 ? 0.0 : QPointF::dotProduct(pt - ptA, ptAlong) / dLength2;
    return Length(pt - ptA - ptAlong * std::clamp(dShare, 0.0, 1.0));
}

inline double DistanceToOutline(const QPointF& pt, const Polygon& polygon)
{
    double dNearest = std::numeric_limits<double>::infinity();
    for (int i = 0; i < polygon.size(); ++i)
        dNearest = std::min(dNearest, DistanceToSegment(pt, polygon[i], polygon[(i + 1) % polygon.size()]));
    return dNearest;
}

/// Whether a point is inside or on a convex, counter-clockwise polygon.
inline bool IsInConvex(const QPointF& pt, const Polygon& polygon)
{
    for (int i = 0; i < polygon.size(); ++i) {
        if (Cross(polygon[i], polygon[(i + 1) % polygon.size()], pt) < 0.0)
            return false;
    }
    return true;
}

/// What lies to the left of the line from a to b.
inline Polygon ClipLeft(const Polygon& polygon, const QPointF& ptA, const QPointF& ptB)
{
    Polygon polygonLeft;
    for (int i = 0; i < polygon.size(); ++i) {
        const QPointF& ptFrom = polygon[i];
        const QPointF& ptTo = polygon[(i + 1) % polygon.size()];
        const double dFrom = Cross(ptA, ptB, ptFrom);
        const double dTo = Cross(ptA, ptB, ptTo);
        if (dFrom >= 0.0)
            polygonLeft.append(ptFrom);
        if ((dFrom > 0.0 && dTo < 0.0) || (dFrom < 0.0 && dTo > 0.0))
            polygonLeft.append(ptFrom + (ptTo - ptFrom) * (dFrom / (dFrom - dTo)));
    }
    return polygonLeft;
}

/// The common part of two convex, counter-clockwise polygons.
/// I. E. Sutherland, G. W. Hodgman: Reentrant polygon clipping, 1974.
inline Polygon Overlap(Polygon polygon, const Polygon& polygonClip)
{
    for (int i = 0; i < polygonClip.size(); ++i)
        polygon = ClipLeft(polygon, polygonClip[i], polygonClip[(i + 1) % polygonClip.size()]);
    return polygon;
}

} // namespace PlainGeometry

#endif // ORACLES_GEOMETRY_PLAINGEOMETRY_H
