#include "SenderModuleDialog/geometry/Polygon.h"

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/geometry/EvenOdd.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "SenderModuleDialog/geometry/PointPrecision.h"

#include <algorithm>
#include <cmath>

namespace {

/// How far a point is carried across the boundary, chromaticity units.
constexpr float c_fNudge = 9.999999747378752e-06F;

/// The difference is taken in double, the rest in float.
float DistanceOf(const QPointF& ptA, const QPointF& ptB)
{
    const float fDX = float(ptA.x() - ptB.x());
    const float fDY = float(ptA.y() - ptB.y());
    return std::sqrt(fDX * fDX + fDY * fDY);
}

/// How the path from one point over the next to a third turns: positive to the left.
float TurnAt(const QPointF& ptPrev, const QPointF& ptCur, const QPointF& ptNext)
{
    const float fDYOut = float(ptNext.y() - ptCur.y());
    const float fDXIn = float(ptCur.x() - ptPrev.x());
    const float fDYIn = float(ptCur.y() - ptPrev.y());
    const float fDXOut = float(ptNext.x() - ptCur.x());
    return fDYOut * fDXIn - fDYIn * fDXOut;
}

/// Cross product of the ways from an origin to two points, in double: positive when the first lies to
/// the right.
double CrossFrom(const QPointF& ptOrigin, const QPointF& ptFirst, const QPointF& ptSecond)
{
    return (ptFirst.x() - ptOrigin.x()) * (ptSecond.y() - ptOrigin.y()) -
           (ptFirst.y() - ptOrigin.y()) * (ptSecond.x() - ptOrigin.x());
}

/// Whether a point comes before another in the order by angle around the pivot, nearest first within
/// one angle.
bool IsBefore(const QPointF& ptPivot, const QPointF& pt, const QPointF& ptOther)
{
    const double dCross = CrossFrom(ptPivot, pt, ptOther);
    if (dCross == 0.0)
        return DistanceOf(pt, ptPivot) < DistanceOf(ptOther, ptPivot);
    return dCross > 0.0;
}

bool IsLower(const QPointF& pt, const QPointF& ptOther)
{
    return pt.y() < ptOther.y() || (pt.y() == ptOther.y() && pt.x() < ptOther.x());
}

/// Keeps the strict left turns of points that are sorted by angle. The two last points of the stack are never
/// taken away: there is nothing to test them against.
QVector<QPointF> LeftTurns(const QVector<QPointF>& vecSorted)
{
    QVector<QPointF> vecStack = vecSorted.mid(0, c_nMinPolygonPoints);
    for (int i = c_nMinPolygonPoints; i < vecSorted.size(); ++i) {
        const QPointF& pt = vecSorted[i];
        const auto funcIsNoLeftTurn = [&vecStack, &pt] {
            return !(CrossFrom(vecStack[vecStack.size() - 2], pt, vecStack.constLast()) < 0.0);
        };
        while (vecStack.size() > 2 && funcIsNoLeftTurn())
            vecStack.removeLast();
        vecStack.append(pt);
    }
    return vecStack;
}

bool IsBetween(double dValue, double dEnd1, double dEnd2)
{
    return std::min(dEnd1, dEnd2) <= dValue && dValue <= std::max(dEnd1, dEnd2);
}

QPointF FootOn(const QPointF& ptA, const QPointF& ptB, const QPointF& pt)
{
    CPointEx<float> ptRoundedA = Narrowed(ptA);
    CPointEx<float> ptRoundedB = Narrowed(ptB);
    return Widened(CLine(ptRoundedA, ptRoundedB).GetFootPoint(Narrowed(pt)));
}

} // namespace

CPolygon::CPolygon(const QPolygonF& polygon)
    : QPolygonF(polygon)
{}

CPolygon::CPolygon(const QVector<QPointF>& vecPoints)
    : QPolygonF(vecPoints)
    , m_vecHullPoints(vecPoints)
{}

CPolygon::CPolygon(const QRectF& rect)
    : QPolygonF(rect)
{}

CPolygon::CPolygon(int nCount)
    : QPolygonF(std::max(nCount, 0))
{}

bool CPolygon::IsConvex() const
{
    const int nCount = int(size());
    if (nCount < 2)
        return true;
    // Intentional: every corner is compared with the first one and not with its neighbour, and vertex 0 is
    // left out.
    const float fReference = TurnAt(at(0), at(1), at(2 % nCount));
    for (int i = 2; i < nCount; ++i) {
        if (fReference * TurnAt(at(i - 1), at(i), at((i + 1) % nCount)) < 0.0F)
            return false;
    }
    return true;
}

bool CPolygon::GetPointCloser(QPointF* pPoint) const
{
    if (IsConvex())
        return GetPointCloser2Convex(pPoint);
    GetPointCloser2Concave(pPoint);
    return true;
}

bool CPolygon::GetPointCloser2Convex(QPointF* pPoint) const
{
    const QPointF pt = Deref(pPoint, "pPoint != nullptr");
    if (containsPoint(pt, Qt::WindingFill))
        return true;
    if (isEmpty())
        return false;

    const QPointF ptCentre = Centre();
    for (int i = 0; i < size(); ++i) {
        const QPointF& ptA = at(i);
        const QPointF& ptB = at((i + 1) % size());
        if (!CLine::IsCross(Narrowed(ptCentre), Narrowed(pt), Narrowed(ptA), Narrowed(ptB)))
            continue;
        QPointF ptFoot = FootOn(ptA, ptB, pt);
        *pPoint = MakePointCloser(ptFoot, ptCentre);
        if (!containsPoint(*pPoint, Qt::WindingFill)) {
            QPointF ptEnd = DistanceOf(pt, ptB) <= DistanceOf(pt, ptA) ? ptB : ptA;
            *pPoint = MakePointCloser(ptEnd, ptCentre);
        }
        return true;
    }
    return false;
}

bool CPolygon::GetPointCloser2Concave(QPointF* pPoint) const
{
    const QPointF pt = Deref(pPoint, "pPoint != nullptr");
    if (isEmpty() || containsPoint(pt, Qt::WindingFill))
        return true;

    QPointF ptBest = at(0);
    float fBest = DistanceOf(ptBest, pt);
    const auto funcTake = [&ptBest, &fBest, &pt](const QPointF& ptCandidate) {
        const float fDistance = DistanceOf(ptCandidate, pt);
        if (!(fDistance < fBest))
            return;
        ptBest = ptCandidate;
        fBest = fDistance;
    };
    std::for_each(cbegin() + 1, cend(), funcTake);
    for (int i = 0; i < size(); ++i) {
        const QPointF& ptA = at(i);
        const QPointF& ptB = at((i + 1) % size());
        const QPointF ptFoot = FootOn(ptA, ptB, pt);
        // Only x decides whether the foot lies on the edge, on a vertical edge too: regions are cut to
        // this rule.
        if (IsBetween(ptFoot.x(), ptA.x(), ptB.x()))
            funcTake(ptFoot);
    }
    *pPoint = MakePointCloser(ptBest, Centre());
    return true;
}

QPointF CPolygon::MakePointCloser(QPointF& ptFrom, const QPointF& ptToward)
{
    // Intentional: for a vertical pair the square overflows and the steps are 0, so the point stays where
    // it is.
    const float fSlope = CLine::GetSlop(Narrowed(ptFrom), Narrowed(ptToward));
    const float fDX = c_fNudge / std::sqrt(fSlope * fSlope + 1.0F);
    const float fDY = fSlope * fDX;
    const QPointF ptStep = Widened({fDX, fDY});
    return ptToward.x() > ptFrom.x() ? ptFrom + ptStep : ptFrom - ptStep;
}

void CPolygon::GrahamScan()
{
    Require(size() >= c_nMinPolygonPoints, "size() >= c_nMinPolygonPoints");
    Require(m_vecHullPoints.size() == size(), "m_vecHullPoints.size() == size()");

    const auto itPivot = std::min_element(cbegin(), cend(), IsLower);
    m_vecHullPoints.swapItemsAt(0, int(itPivot - cbegin()));
    SortByAngle();
    m_vecHullPoints = LeftTurns(m_vecHullPoints);
    QPolygonF::operator=(QPolygonF(m_vecHullPoints));
    // Callers know this check by the name and the place it has always been reported with.
    Require(IsConvex(), "IsConvex()", {"GrahamScan", "Polygon", 262});
}

QPointF CPolygon::Centre() const
{
    QPointF ptSum;
    for (const QPointF& pt : *this)
        ptSum += pt;
    return ptSum / double(size());
}

/// A selection sort, because the order by angle is no total order: with repeated points, or where a cross
/// product rounds to 0, another sort gives another order.
void CPolygon::SortByAngle()
{
    QPointF* const pPoints = m_vecHullPoints.data();
    const int nCount = int(m_vecHullPoints.size());
    for (int i = 1; i < nCount - 1; ++i) {
        int nSelected = i;
        for (int j = i + 1; j < nCount; ++j) {
            if (IsBefore(pPoints[0], pPoints[j], pPoints[nSelected]))
                nSelected = j;
        }
        std::swap(pPoints[i], pPoints[nSelected]);
    }
}
