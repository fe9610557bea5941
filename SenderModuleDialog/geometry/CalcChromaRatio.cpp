#include "SenderModuleDialog/geometry/CalcChromaRatio.h"

#include "SenderModuleDialog/Fault.h"
#include "SenderModuleDialog/geometry/EvenOdd.h"
#include "SenderModuleDialog/geometry/Line.h"

#include <algorithm>
#include <cmath>

// Every product and every sum rounds to float on its own, in the order it is written.

namespace {

constexpr int c_nTriangleCorners = 3;

/// 9 crossings of three edges by three edges, and 6 corners.
constexpr int c_nMaxCrossPoints = 15;

// What passes for a ratio from 0 to 1: a rounding below 0, and the next float above 1.
constexpr float c_fMinRatio = -c_fGeometryEpsilon;
constexpr float c_fMaxRatio = 1.0000001192092896F;

CPointEx<float> Difference(CPointEx<float> ptA, CPointEx<float> ptB)
{
    return {ptA.x - ptB.x, ptA.y - ptB.y};
}

/// Whether a point lies on the segment between two others: the path over it is not longer than the segment.
bool IsOnEdge(CPointEx<float> pt, CPointEx<float> ptA, CPointEx<float> ptB)
{
    const float fToA = CCalcChromaRatio::CalcDistance(pt, ptA);
    const float fToB = CCalcChromaRatio::CalcDistance(pt, ptB);
    const float fEdge = CCalcChromaRatio::CalcDistance(ptA, ptB);
    return std::abs(fToA + fToB - fEdge) < c_fGeometryEpsilon;
}

void RequireTriangle(const std::vector<CPointEx<float>>& vecTriangle,
                     SSourcePlace place = SSourcePlace::Here())
{
    Require(vecTriangle.size() >= std::size_t(c_nTriangleCorners), "vecTriangle.size() >= 3", place);
}

} // namespace

bool CCalcChromaRatio::CalcChromaRatio(std::vector<CPointEx<float>>& vecA, std::vector<CPointEx<float>>& vecB,
                                       float& fRatio)
{
    CalcCrossPoint(vecA, vecB);
    SortPoint();
    CalcPolygonArea(vecB, fRatio);
    return true;
}

bool CCalcChromaRatio::CalcCrossPoint(std::vector<CPointEx<float>>& vecA, std::vector<CPointEx<float>>& vecB)
{
    RequireTriangle(vecA);
    RequireTriangle(vecB);
    m_vecCrossPoint.resize(c_nMaxCrossPoints);
    m_nCrossPointNum = 0;
    for (std::size_t a = 0; a < c_nTriangleCorners; ++a) {
        for (std::size_t b = 0; b < c_nTriangleCorners; ++b) {
            CPointEx<float> ptCross;
            if (CLine::GetSegmentCross(vecA[a], vecA[(a + 1) % c_nTriangleCorners], vecB[b],
                                       vecB[(b + 1) % c_nTriangleCorners], ptCross.x, ptCross.y))
                Append(ptCross);
        }
    }
    for (std::size_t i = 0; i < c_nTriangleCorners; ++i) {
        AppendIfInside(vecB[i], vecA);
        AppendIfInside(vecA[i], vecB);
    }
    return true;
}

bool CCalcChromaRatio::SortPoint()
{
    if (m_nCrossPointNum == 0)
        return true;
    CPointEx<float> ptCentre = Mean();
    for (int nPass = 0; nPass < m_nCrossPointNum - 1; ++nPass) {
        for (std::size_t j = 0; j < std::size_t(m_nCrossPointNum - 1 - nPass); ++j) {
            if (ColckwiseCmp(m_vecCrossPoint[j], m_vecCrossPoint[j + 1], ptCentre))
                std::swap(m_vecCrossPoint[j], m_vecCrossPoint[j + 1]);
        }
    }
    return true;
}

bool CCalcChromaRatio::CalcPolygonArea(std::vector<CPointEx<float>>& vecReference, float& fRatio) const
{
    RequireTriangle(vecReference);
    float fSum = 0.0F;
    for (std::size_t i = 1; i + 1 < std::size_t(m_nCrossPointNum); ++i) {
        float fArea = 0.0F;
        CalcTriangleArea(m_vecCrossPoint[0], m_vecCrossPoint[i], m_vecCrossPoint[i + 1], fArea);
        fSum += fArea;
    }
    float fReferenceArea = 0.0F;
    CalcTriangleArea(vecReference[0], vecReference[1], vecReference[2], fReferenceArea);
    if (fReferenceArea < c_fGeometryEpsilon)
        return false;
    // Repeated points and roundings may inflate the sum.
    fRatio = std::min(fSum, fReferenceArea) / fReferenceArea;
    return fRatio >= c_fMinRatio && fRatio <= c_fMaxRatio;
}

bool CCalcChromaRatio::G_IsPointInPolygon(std::vector<CPointEx<float>>* pVecPolygon, CPointEx<float>& pt)
{
    std::vector<CPointEx<float>> vecCopy = Deref(pVecPolygon, "pVecPolygon != nullptr");
    return G_IsPointInPolygon2(pt, vecCopy.data(), int(vecCopy.size()));
}

bool CCalcChromaRatio::G_IsPointInPolygon2(CPointEx<float> pt, CPointEx<float>* pPoints, int nCount)
{
    for (int i = 0; i < nCount; ++i) {
        // The wrap is that of a triangle, whatever the count is. Below three points the partner may not
        // be there.
        const int j = (i + 1) % c_nTriangleCorners;
        if (j < nCount && IsOnEdge(pt, pPoints[i], pPoints[j]))
            return true;
    }
    bool bInside = false;
    for (int i = 0, j = nCount - 1; i < nCount; j = i++) {
        if (IsEdgeLeftOf(pt, pPoints[i], pPoints[j]))
            bInside = !bInside;
    }
    return bInside;
}

bool CCalcChromaRatio::CalcTriangleArea(CPointEx<float> ptP, CPointEx<float> ptQ, CPointEx<float> ptR,
                                        float& fArea)
{
    const float fU = CalcDistance(ptP, ptQ);
    const float fV = CalcDistance(ptP, ptR);
    const float fW = CalcDistance(ptQ, ptR);
    const float fS = (fV + fW + fU) * 0.5F;
    const float fSquare = (fS - fV) * (fS - fW) * fS * (fS - fU);
    fArea = fSquare < 0.0F ? 0.0F : std::sqrt(fSquare);
    return true;
}

bool CCalcChromaRatio::ColckwiseCmp(CPointEx<float>& ptA, CPointEx<float>& ptB, CPointEx<float>& ptCentre)
{
    const CPointEx<float> ptDA = Difference(ptA, ptCentre);
    const CPointEx<float> ptDB = Difference(ptB, ptCentre);
    const int nQuadrantA = CalcQuadrant(ptDA.x, ptDA.y);
    const int nQuadrantB = CalcQuadrant(ptDB.x, ptDB.y);
    if (nQuadrantA != nQuadrantB)
        return nQuadrantA > nQuadrantB;
    return ptDA.x * ptDB.y < ptDA.y * ptDB.x;
}

int CCalcChromaRatio::CalcQuadrant(float fX, float fY)
{
    if (fY > 0.0F)
        return fX > 0.0F ? 1 : 2;
    return fX > 0.0F ? 4 : 3;
}

float CCalcChromaRatio::CalcDistance(CPointEx<float> ptP, CPointEx<float> ptQ)
{
    const CPointEx<float> ptD = Difference(ptP, ptQ);
    return std::sqrt(ptD.y * ptD.y + ptD.x * ptD.x);
}

void CCalcChromaRatio::Append(CPointEx<float> pt)
{
    m_vecCrossPoint[std::size_t(m_nCrossPointNum++)] = pt;
}

void CCalcChromaRatio::AppendIfInside(CPointEx<float>& pt, std::vector<CPointEx<float>>& vecTriangle)
{
    if (G_IsPointInPolygon(&vecTriangle, pt))
        Append(pt);
}

CPointEx<float> CCalcChromaRatio::Mean() const
{
    CPointEx<float> ptSum;
    for (int i = 0; i < m_nCrossPointNum; ++i) {
        ptSum.x += m_vecCrossPoint[std::size_t(i)].x;
        ptSum.y += m_vecCrossPoint[std::size_t(i)].y;
    }
    const float fCount = float(m_nCrossPointNum);
    return {ptSum.x / fCount, ptSum.y / fCount};
}
