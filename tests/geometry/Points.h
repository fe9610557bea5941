#ifndef TESTS_GEOMETRY_POINTS_H
#define TESTS_GEOMETRY_POINTS_H

#include "host/CommonClass/PointEx.h"

#include <QMetaType>

#include <array>
#include <vector>

/// A point of the chromaticity plane.
using Point = CPointEx<float>;

/// Two segments: from p1 to p2, and from q1 to q2.
struct SSegments
{
    Point ptP1;
    Point ptP2;
    Point ptQ1;
    Point ptQ2;
};

/// A triangle as `CCalcChromaRatio` takes it.
using Triangle = std::vector<Point>;

Q_DECLARE_METATYPE(Point)
Q_DECLARE_METATYPE(SSegments)
Q_DECLARE_METATYPE(Triangle)

#endif // TESTS_GEOMETRY_POINTS_H
