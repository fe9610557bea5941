#include "SenderModuleDialog/chart/solve/ChartGeometry.h"

#include "SenderModuleDialog/geometry/EvenOdd.h"
#include "SenderModuleDialog/geometry/Line.h"

#include <algorithm>
#include <cmath>

namespace {

bool IsClose(float fFirst, float fSecond)
{
    return std::abs(fFirst - fSecond) < c_fVertexReach;
}

float DistanceOf(CPointEx<float> ptFirst, CPointEx<float> ptSecond)
{
    const float fDX = ptFirst.x - ptSecond.x;
    const float fDY = ptFirst.y - ptSecond.y;
    return std::sqrt(fDX * fDX + fDY * fDY);
}

/// The step off the boundary, away from the outside point.
CPointEx<float> InwardStep(CPointEx<float> pt, CPointEx<float> ptFrom)
{
    const float fSlope = CLine::GetSlop(pt, ptFrom);
    const float fDX = c_fVertexReach / std::sqrt(fSlope * fSlope + 1.0F);
    const float fDY = fSlope * fDX;
    if (pt.x <= ptFrom.x)
        return {-fDX, -fDY};
    return {fDX, fDY};
}

/// A second point on the bisector of the angle A W B: the middle between A and the point on the ray towards B
/// that is as far from W as A.
CPointEx<float> OnBisector(CPointEx<float> ptWhite, CPointEx<float> ptA, CPointEx<float> ptB)
{
    const float fRatio = DistanceOf(ptWhite, ptA) / DistanceOf(ptB, ptWhite);
    const CPointEx<float> ptQ(ptWhite.x + fRatio * (ptB.x - ptWhite.x),
                              ptWhite.y + fRatio * (ptB.y - ptWhite.y));
    return {(ptQ.x + ptA.x) / 2.0F, (ptQ.y + ptA.y) / 2.0F};
}

/// Where two lines meet; nothing only when the ratios of their coefficients are exactly equal. The crossing
/// operator of CLine would refuse lines that are merely nearly parallel.
std::optional<CPointEx<float>> Meet(const CLine& lineE, const CLine& lineN)
{
    if (lineE.A() / lineN.A() == lineE.B() / lineN.B())
        return std::nullopt;
    const float fDeterminant = lineE.A() * lineN.B() - lineN.A() * lineE.B();
    return CPointEx<float>((lineE.B() * lineN.C() - lineN.B() * lineE.C()) / fDeterminant,
                           (lineN.A() * lineE.C() - lineE.A() * lineN.C()) / fDeterminant);
}

} // namespace

namespace ChartGeometry {

bool IsSamePoint(CPointEx<float> ptFirst, CPointEx<float> ptSecond)
{
    return IsWithin(ptFirst, ptSecond, c_fVertexReach);
}

CPointEx<float> WithoutNegatives(CPointEx<float> pt)
{
    return {pt.x < 0.0F ? 0.0F : pt.x, pt.y < 0.0F ? 0.0F : pt.y};
}

CPointEx<float> StepInward(CPointEx<float> pt, CPointEx<float> ptFrom)
{
    const CPointEx<float> ptStep = InwardStep(pt, ptFrom);
    return {pt.x + ptStep.x, pt.y + ptStep.y};
}

QPointF StepInward(QPointF pt, QPointF ptFrom)
{
    const CPointEx<float> ptNarrowed = Narrowed(pt);
    const CPointEx<float> ptStep = InwardStep(ptNarrowed, Narrowed(ptFrom));
    return {double(ptNarrowed.x) + double(ptStep.x), double(ptNarrowed.y) + double(ptStep.y)};
}

bool IsInTriangle(CPointEx<float> pt, const SChromaTriangle& triangle)
{
    const auto& [ptRed, ptGreen, ptBlue] = triangle;
    if (IsSamePoint(pt, ptRed) || IsSamePoint(pt, ptGreen) || IsSamePoint(pt, ptBlue))
        return true;
    const bool bRedBlue = IsEdgeLeftOf(pt, ptRed, ptBlue);
    const bool bGreenRed = IsEdgeLeftOf(pt, ptGreen, ptRed);
    const bool bBlueGreen = IsEdgeLeftOf(pt, ptBlue, ptGreen);
    return bRedBlue != (bGreenRed != bBlueGreen);
}

bool IsInOutline(CPointEx<float> pt, const CPointEx<float>* pOutline, int nCount)
{
    const CPointEx<float>* const pEnd = pOutline + nCount;
    if (std::any_of(pOutline, pEnd, [pt](CPointEx<float> ptVertex) { return IsSamePoint(pt, ptVertex); }))
        return true;
    bool bInside = false;
    for (int i = 0; i < nCount; ++i) {
        if (IsEdgeLeftOf(pt, pOutline[i], pOutline[(i + nCount - 1) % nCount]))
            bInside = !bInside;
    }
    return bInside;
}

bool IsFlat(const SChromaTriangle& triangle)
{
    const auto& [ptRed, ptGreen, ptBlue] = triangle;
    return (IsClose(ptRed.x, ptGreen.x) && IsClose(ptRed.x, ptBlue.x)) ||
           (IsClose(ptRed.y, ptGreen.y) && IsClose(ptRed.y, ptBlue.y));
}

std::optional<CPointEx<float>> LastCrossing(const QList<CPointEx<float>>& listPolygon, CPointEx<float> ptFrom,
                                            CPointEx<float> ptTo)
{
    const int nCount = int(listPolygon.size());
    if (nCount < c_nMinPolygonPoints)
        return std::nullopt;
    // From the closing edge backwards: the first edge found is the last in list order.
    for (int i = nCount; i > 0; --i) {
        CPointEx<float> ptCrossing;
        if (CLine::GetSegmentCross(ptFrom, ptTo, listPolygon[i - 1], listPolygon[i % nCount], ptCrossing.x,
                                   ptCrossing.y))
            return ptCrossing;
    }
    return std::nullopt;
}

std::optional<CPointEx<float>> LeavePolygon(const QList<CPointEx<float>>& listPolygon, CPointEx<float> ptFrom,
                                            CPointEx<float> ptTo)
{
    const std::optional<CPointEx<float>> ptCrossing = LastCrossing(listPolygon, ptFrom, ptTo);
    if (!ptCrossing)
        return std::nullopt;
    return StepInward(*ptCrossing, ptTo);
}

CPointEx<float> MeanPoint(const QList<CPointEx<float>>& listPolygon)
{
    CPointEx<float> ptSum;
    for (const CPointEx<float>& pt : listPolygon) {
        ptSum.x += pt.x;
        ptSum.y += pt.y;
    }
    const float fCount = float(listPolygon.size());
    return {ptSum.x / fCount, ptSum.y / fCount};
}

std::optional<CPointEx<float>> MeetCone(CPointEx<float> ptWhite, CPointEx<float> ptCurrent,
                                        CPointEx<float> ptA, CPointEx<float> ptB)
{
    CPointEx<float> ptMiddle = OnBisector(ptWhite, ptA, ptB);
    const CLine lineBisector(ptWhite, ptMiddle);
    const CLine lineWay(ptCurrent, lineBisector.GetSlop());
    // On A's side of the bisector the cone is bounded by the ray from B through the white.
    const CLine lineSide(lineBisector.IsSameSide(ptCurrent, ptA) ? ptB : ptA, ptWhite);
    return Meet(lineSide, lineWay);
}

} // namespace ChartGeometry
