// Hulls of clouds on a grid, where every product is exact: convex, counter-clockwise, made of given points,
// and around all of them.

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/geometry/Polygon.h"
#include "fuzz/FuzzInput.h"

namespace {

/// Twice the area of the triangle a, b, c, in grid units: positive when it runs counter-clockwise.
double Cross(const QPointF& ptA, const QPointF& ptB, const QPointF& ptC)
{
    return (ptB.x() - ptA.x()) * (ptC.y() - ptA.y()) - (ptB.y() - ptA.y()) * (ptC.x() - ptA.x());
}

/// Checking a hull takes edges times points; more points find nothing else.
constexpr int c_nMostPoints = 64;

QVector<QPointF> Cloud(CFuzzInput input)
{
    QVector<QPointF> vecPoints;
    while (input.Left() >= 2 && vecPoints.size() < c_nMostPoints) {
        const double dX = double(input.Take<std::uint8_t>());
        const double dY = double(input.Take<std::uint8_t>());
        vecPoints.append(QPointF(dX, dY));
    }
    return vecPoints;
}

bool HasArea(const QVector<QPointF>& vecPoints)
{
    if (vecPoints.isEmpty())
        return false;
    for (int i = 2; i < vecPoints.size(); ++i) {
        for (int j = 1; j < i; ++j) {
            if (Cross(vecPoints[0], vecPoints[j], vecPoints[i]) != 0.0)
                return true;
        }
    }
    return false;
}

void CheckHull(const CPolygon& hull, const QVector<QPointF>& vecPoints)
{
    Require(hull.size() >= 3 && hull.size() <= vecPoints.size(),
            "a hull has three vertices or more, all given");
    for (int i = 0; i < hull.size(); ++i) {
        const QPointF& ptA = hull[i];
        const QPointF& ptB = hull[(i + 1) % hull.size()];
        Require(vecPoints.contains(ptA), "a vertex of the hull is a given point");
        for (const QPointF& pt : vecPoints)
            Require(Cross(ptA, ptB, pt) >= 0.0, "every point lies to the left of every edge, or on it");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* pData, std::size_t nSize)
{
    const QVector<QPointF> vecPoints = Cloud(CFuzzInput(pData, nSize));
    if (!HasArea(vecPoints))
        return 0;
    CPolygon hull(vecPoints);
    hull.GrahamScan();
    CheckHull(hull, vecPoints);

    const CPolygon hullOnce = hull;
    hull.GrahamScan();
    Require(hull == hullOnce, "the hull of a hull is itself");
    return 0;
}
