// What holds for any input, against plain geometry in double or in whole numbers.

#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "SenderModuleDialog/geometry/Polygon.h"
#include "oracles/geometry/PlainGeometry.h"
#include "tests/geometry/Points.h"
#include "tests/support/PropertyTest.h"

#include <QtTest>

namespace {

// The grid that points are drawn from: every product of two differences is exact in double, and in float
// where the grid is the small one.
constexpr int c_nGrid = 1024;
constexpr int c_nSmallGrid = 256;

/// Nearer than this to an edge the tolerances of single precision decide, and the oracle has none. The edge
/// test of the triangles reaches farthest: to the root of half its 2^-23 times the edge's length.
constexpr double c_dClear = 1e-3;

/// The largest relative error of a fan's area in single precision: thin triangles lose half of the digits in
/// Heron's formula.
constexpr double c_dRatioTolerance = 5e-3;

QPointF GridPoint(int nGrid, int nFrom, int nTo)
{
    // The whole range from the first case on: small coordinates make small triangles, which prove nothing.
    const auto generator = rc::gen::resize(rc::kNominalSize, rc::gen::inRange(nFrom, nTo + 1));
    const int nX = *generator;
    const int nY = *generator;
    return {double(nX) / nGrid, double(nY) / nGrid};
}

QPointF UnitPoint(int nGrid)
{
    return GridPoint(nGrid, 0, nGrid);
}

Point Rounded(const QPointF& pt)
{
    return {float(pt.x()), float(pt.y())};
}

PlainGeometry::Polygon UnitPoints(int nGrid, int nCount)
{
    PlainGeometry::Polygon vecPoints;
    while (vecPoints.size() < nCount)
        vecPoints.append(UnitPoint(nGrid));
    return vecPoints;
}

bool HasArea(const PlainGeometry::Polygon& vecPoints)
{
    for (int i = 1; i < vecPoints.size(); ++i) {
        for (int j = i + 1; j < vecPoints.size(); ++j) {
            if (PlainGeometry::Cross(vecPoints[0], vecPoints[i], vecPoints[j]) != 0.0)
                return true;
        }
    }
    return false;
}

PlainGeometry::Polygon Cloud()
{
    const PlainGeometry::Polygon vecPoints = UnitPoints(c_nGrid, *rc::gen::inRange(3, 40));
    RC_PRE(HasArea(vecPoints));
    return vecPoints;
}

/// A counter-clockwise triangle that is not too small to measure.
PlainGeometry::Polygon WideTriangle()
{
    PlainGeometry::Polygon triangle = UnitPoints(c_nGrid, 3);
    if (PlainGeometry::Area(triangle) < 0.0)
        std::swap(triangle[1], triangle[2]);
    RC_PRE(PlainGeometry::Area(triangle) > 0.05);
    return triangle;
}

Triangle AsTriangle(const PlainGeometry::Polygon& polygon)
{
    return {Rounded(polygon[0]), Rounded(polygon[1]), Rounded(polygon[2])};
}

bool IsClear(const PlainGeometry::Polygon& polygon, const PlainGeometry::Polygon& polygonOther)
{
    return std::all_of(polygon.begin(), polygon.end(), [&polygonOther](const QPointF& pt) {
        return PlainGeometry::DistanceToOutline(pt, polygonOther) > c_dClear;
    });
}

int SignOf(double dValue)
{
    return (dValue > 0.0) - (dValue < 0.0);
}

/// Strictly across: each segment's ends lie on different sides of the other's line.
bool IsProperCrossing(const PlainGeometry::Polygon& ends)
{
    using PlainGeometry::Cross;
    return SignOf(Cross(ends[0], ends[1], ends[2])) * SignOf(Cross(ends[0], ends[1], ends[3])) < 0 &&
           SignOf(Cross(ends[2], ends[3], ends[0])) * SignOf(Cross(ends[2], ends[3], ends[1])) < 0;
}

bool IsOnOneLine(const PlainGeometry::Polygon& ends)
{
    using PlainGeometry::Cross;
    return (Cross(ends[0], ends[1], ends[2]) == 0.0 && Cross(ends[0], ends[1], ends[3]) == 0.0) ||
           (Cross(ends[2], ends[3], ends[0]) == 0.0 && Cross(ends[2], ends[3], ends[1]) == 0.0);
}

int CountCrossings(const PlainGeometry::Polygon& polygon, const QPointF& ptFrom, const QPointF& ptTo)
{
    int nCrossings = 0;
    for (int i = 0; i < polygon.size(); ++i)
        nCrossings += IsProperCrossing({ptFrom, ptTo, polygon[i], polygon[(i + 1) % polygon.size()]}) ? 1 : 0;
    return nCrossings;
}

QPointF Average(const PlainGeometry::Polygon& polygon)
{
    QPointF ptSum;
    for (const QPointF& pt : polygon)
        ptSum += pt;
    return ptSum / polygon.size();
}

} // namespace

class TestGeometryProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SegmentsCrossWhereTheyCrossInWholeNumbers();
    void ACrossingLiesOnBothSegments();
    void AFootIsTheNearestPointOfALine();
    void AHullIsConvexAndContainsItsPoints();
    void AHullIsMadeOfItsPoints();
    void APointThatIsPulledCloserIsInsideOrWithinTheNudge();
    void APointIsInATriangleWhereItIsInDouble();
    void AnOverlapHasTheAreaOfAClippedPolygon();
};

void TestGeometryProperties::SegmentsCrossWhereTheyCrossInWholeNumbers()
{
    QVERIFY(
        PropertyHolds("segments that are not on one line cross exactly when each straddles the other", [] {
            const PlainGeometry::Polygon ends = UnitPoints(c_nSmallGrid, 4);
            RC_PRE(!IsOnOneLine(ends));
            RC_ASSERT(CLine::IsCross(Rounded(ends[0]), Rounded(ends[1]), Rounded(ends[2]),
                                     Rounded(ends[3])) == IsProperCrossing(ends));
        }));
}

void TestGeometryProperties::ACrossingLiesOnBothSegments()
{
    QVERIFY(PropertyHolds("the crossing lies on both segments", [] {
        const PlainGeometry::Polygon ends = UnitPoints(c_nSmallGrid, 4);
        RC_PRE(IsProperCrossing(ends));
        // Nearly parallel segments have no well-defined crossing.
        const QPointF ptP = ends[1] - ends[0];
        const QPointF ptQ = ends[3] - ends[2];
        RC_PRE(std::abs(PlainGeometry::Cross(QPointF(), ptP, ptQ)) > 1e-2);
        float fX = 0.0F;
        float fY = 0.0F;
        RC_ASSERT(CLine::GetSegmentCross(Rounded(ends[0]), Rounded(ends[1]), Rounded(ends[2]),
                                         Rounded(ends[3]), fX, fY));
        const QPointF ptCross{double(fX), double(fY)};
        RC_ASSERT(PlainGeometry::DistanceToSegment(ptCross, ends[0], ends[1]) < 1e-4);
        RC_ASSERT(PlainGeometry::DistanceToSegment(ptCross, ends[2], ends[3]) < 1e-4);
    }));
}

void TestGeometryProperties::AFootIsTheNearestPointOfALine()
{
    QVERIFY(PropertyHolds("the foot lies on the line, at the distance of the point", [] {
        const PlainGeometry::Polygon points = UnitPoints(c_nSmallGrid, 3);
        RC_PRE(PlainGeometry::Length(points[1] - points[0]) > 0.1);
        Point ptA = Rounded(points[0]);
        Point ptB = Rounded(points[1]);
        const CLine line(ptA, ptB);
        const Point ptFoot = line.GetFootPoint(Rounded(points[2]));
        RC_ASSERT(line.Distance2(ptFoot) < 1e-5F);
        const double dToFoot = PlainGeometry::Length(points[2] - QPointF{double(ptFoot.x), double(ptFoot.y)});
        RC_ASSERT(std::abs(dToFoot - double(line.Distance2(Rounded(points[2])))) < 1e-5);
    }));
}

void TestGeometryProperties::AHullIsConvexAndContainsItsPoints()
{
    QVERIFY(PropertyHolds("every point lies to the left of every edge of the hull, or on it", [] {
        const PlainGeometry::Polygon vecPoints = Cloud();
        CPolygon hull(vecPoints);
        hull.GrahamScan();
        RC_ASSERT(hull.IsConvex());
        RC_ASSERT(PlainGeometry::Area(hull) > 0.0);
        for (const QPointF& pt : vecPoints)
            RC_ASSERT(PlainGeometry::IsInConvex(pt, hull));
    }));
}

void TestGeometryProperties::AHullIsMadeOfItsPoints()
{
    QVERIFY(
        PropertyHolds("a hull starts at the lowest, leftmost point and has no point that was not given", [] {
            const PlainGeometry::Polygon vecPoints = Cloud();
            CPolygon hull(vecPoints);
            hull.GrahamScan();
            for (const QPointF& pt : hull) {
                RC_ASSERT(vecPoints.contains(pt));
                RC_ASSERT(hull[0].y() < pt.y() || (hull[0].y() == pt.y() && hull[0].x() <= pt.x()));
            }
        }));
}

void TestGeometryProperties::APointThatIsPulledCloserIsInsideOrWithinTheNudge()
{
    QVERIFY(
        PropertyHolds("a point whose ray to the centre crosses one edge ends inside or within the nudge", [] {
            CPolygon hull(Cloud());
            hull.GrahamScan();
            const PlainGeometry::Polygon polygon = hull;
            QPointF pt = GridPoint(c_nGrid, -c_nGrid, 2 * c_nGrid);
            RC_PRE(!PlainGeometry::IsInConvex(pt, polygon));
            RC_PRE(PlainGeometry::DistanceToOutline(pt, polygon) > c_dClear);
            const QPointF ptCentre = Average(polygon);
            RC_PRE(CountCrossings(polygon, ptCentre, pt) == 1);
            // Past a vertex the ray is clear as well.
            for (const QPointF& ptVertex : polygon)
                RC_PRE(PlainGeometry::DistanceToSegment(ptVertex, ptCentre, pt) > c_dClear);

            RC_ASSERT(hull.GetPointCloser(&pt));
            constexpr double c_dReach = 1.1e-5;
            RC_ASSERT(PlainGeometry::IsInConvex(pt, polygon) ||
                      PlainGeometry::DistanceToOutline(pt, polygon) < c_dReach);
        }));
}

void TestGeometryProperties::APointIsInATriangleWhereItIsInDouble()
{
    QVERIFY(PropertyHolds("a point clear of the edges is inside exactly when it is in double", [] {
        const PlainGeometry::Polygon triangle = WideTriangle();
        const QPointF pt = UnitPoint(c_nGrid);
        RC_PRE(PlainGeometry::DistanceToOutline(pt, triangle) > c_dClear);
        Triangle vecTriangle = AsTriangle(triangle);
        Point ptRounded = Rounded(pt);
        RC_ASSERT(CCalcChromaRatio::G_IsPointInPolygon(&vecTriangle, ptRounded) ==
                  PlainGeometry::IsInConvex(pt, triangle));
    }));
}

void TestGeometryProperties::AnOverlapHasTheAreaOfAClippedPolygon()
{
    QVERIFY(PropertyHolds("the covered part is that of a polygon clipper", [] {
        const PlainGeometry::Polygon a = WideTriangle();
        const PlainGeometry::Polygon b = WideTriangle();
        RC_PRE(IsClear(a, b) && IsClear(b, a));
        Triangle vecA = AsTriangle(a);
        Triangle vecB = AsTriangle(b);
        float fRatio = -1.0F;
        RC_ASSERT(CCalcChromaRatio().CalcChromaRatio(vecA, vecB, fRatio));
        const double dExpected = PlainGeometry::Area(PlainGeometry::Overlap(a, b)) / PlainGeometry::Area(b);
        RC_ASSERT(std::abs(double(fRatio) - dExpected) < c_dRatioTolerance);
    }));
}

QTEST_APPLESS_MAIN(TestGeometryProperties)
#include "TestGeometryProperties.moc"
