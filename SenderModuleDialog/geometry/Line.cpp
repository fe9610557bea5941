#include "SenderModuleDialog/geometry/Line.h"

#include "SenderModuleDialog/geometry/PointPrecision.h"

#include <algorithm>
#include <cmath>

// Every product and every sum here rounds to float on its own, in the order it is written: callers, the
// chart's solver among them, depend on the last bit.

namespace {

/// The straddle test compares in double.
constexpr double c_dGeometryEpsilon = double(c_fGeometryEpsilon);

/// The side of q relative to the line through p1 and p2, as a cross product.
float SideOfFirst(CPointEx<float> ptP1, CPointEx<float> ptP2, CPointEx<float> ptQ)
{
    return (ptP2.y - ptP1.y) * ptQ.x + ptP2.x * (ptP1.y - ptQ.y) + ptP1.x * (ptQ.y - ptP2.y);
}

/// The side of p relative to the line through q1 and q2. The terms of q1 and q2 stand the other way round
/// than in SideOfFirst, and so round differently: the two are not one function.
float SideOfSecond(CPointEx<float> ptQ1, CPointEx<float> ptQ2, CPointEx<float> ptP)
{
    return (ptQ2.y - ptQ1.y) * ptP.x + ptQ1.x * (ptP.y - ptQ2.y) + ptQ2.x * (ptQ1.y - ptP.y);
}

/// Whether two side values show that their points are not on different sides of the line. The product is
/// exact in double.
bool IsOneSided(float fSide1, float fSide2)
{
    const double dSide1 = double(fSide1);
    const double dSide2 = double(fSide2);
    const bool bNegative = dSide1 * dSide2 < 0.0;
    return !bNegative && (std::abs(dSide1) > c_dGeometryEpsilon || std::abs(dSide2) > c_dGeometryEpsilon);
}

bool IsSamePoint(CPointEx<float> ptA, CPointEx<float> ptB)
{
    return IsWithin(ptA, ptB, c_fGeometryEpsilon);
}

bool IsSameSegment(CPointEx<float> ptP1, CPointEx<float> ptP2, CPointEx<float> ptQ1, CPointEx<float> ptQ2)
{
    return (IsSamePoint(ptP1, ptQ1) && IsSamePoint(ptP2, ptQ2)) ||
           (IsSamePoint(ptP1, ptQ2) && IsSamePoint(ptP2, ptQ1));
}

bool IsNoDeterminant(float fDeterminant)
{
    return fDeterminant > -c_fGeometryEpsilon && fDeterminant < c_fGeometryEpsilon;
}

} // namespace

CLine::CLine(CPointEx<float>& ptFirst, CPointEx<float>& ptSecond)
{
    Relocate(ptFirst, ptSecond);
}

CLine::CLine(CPointEx<float>& pt, float fSlope)
    : m_fA(-fSlope)
    , m_fB(1.0F)
    , m_fC(-(pt.y - fSlope * pt.x))
{}

void CLine::Relocate(CPointEx<float> ptFirst, CPointEx<float> ptSecond)
{
    m_fA = ptSecond.y - ptFirst.y;
    m_fB = ptFirst.x - ptSecond.x;
    m_fC = ptFirst.y * ptSecond.x - ptFirst.x * ptSecond.y;
}

void CLine::CreateLine(float fSlope, CPointEx<float> pt)
{
    if (fSlope == c_fVerticalSlope) {
        m_fA = 1.0F;
        m_fB = 0.0F;
        m_fC = -pt.x;
        return;
    }
    *this = CLine(pt, fSlope);
}

void CLine::FitLine(float* pX, float* pY, int nCount)
{
    double dSumX = 0.0;
    double dSumY = 0.0;
    double dSumXY = 0.0;
    double dSumXX = 0.0;
    for (int i = 0; i < nCount; ++i) {
        const float fXY = pX[i] * pY[i];
        const float fXX = pX[i] * pX[i];
        dSumX += double(pX[i]);
        dSumY += double(pY[i]);
        dSumXY += double(fXY);
        dSumXX += double(fXX);
    }
    const double dCount = double(nCount);
    const double dMeanX = dSumX / dCount;
    const double dMeanY = dSumY / dCount;
    const double dSlope = (dSumXY - dCount * dMeanX * dMeanY) / (dSumXX - dCount * dMeanX * dMeanX);
    const float fIntercept = float(dMeanY - dMeanX * dSlope);

    CreateLine(float(dSlope), {0.0F, fIntercept});
    // CreateLine would subtract slope * 0, which is not a number for an infinite slope.
    if (m_fB != 0.0F)
        m_fC = -fIntercept;
}

CPointEx<float> CLine::operator&(const CLine& other) const
{
    const float fDeterminant = m_fA * other.m_fB - m_fB * other.m_fA;
    if (std::abs(fDeterminant) < c_fGeometryEpsilon)
        return {c_fNoIntersection, c_fNoIntersection};
    return {(m_fB * other.m_fC - m_fC * other.m_fB) / fDeterminant,
            (other.m_fA * m_fC - m_fA * other.m_fC) / fDeterminant};
}

float CLine::GetXbyY(float fY) const
{
    return -(fY * m_fB + m_fC) / m_fA;
}

float CLine::GetYbyX(float fX) const
{
    return -(fX * m_fA + m_fC) / m_fB;
}

float CLine::GetSlop() const
{
    return m_fB == 0.0F ? c_fVerticalSlope : -m_fA / m_fB;
}

float CLine::GetSlop(const CPointEx<float>& ptFirst, const CPointEx<float>& ptSecond)
{
    if (ptFirst.x == ptSecond.x)
        return c_fVerticalSlope;
    return (ptSecond.y - ptFirst.y) / (ptSecond.x - ptFirst.x);
}

float CLine::Distance2(CPointEx<float> pt) const
{
    return std::abs(m_fB * pt.y + m_fA * pt.x + m_fC) / std::sqrt(m_fB * m_fB + m_fA * m_fA);
}

bool CLine::IsSameSide(CPointEx<float> ptFirst, CPointEx<float> ptSecond) const
{
    const float fSide1 = m_fC + m_fA * ptFirst.x + m_fB * ptFirst.y;
    const float fSide2 = m_fC + m_fA * ptSecond.x + m_fB * ptSecond.y;
    return fSide1 * fSide2 > 0.0F;
}

CPointEx<float> CLine::GetFootPoint(CPointEx<float> pt) const
{
    const float fNorm = m_fB * m_fB + m_fA * m_fA;
    return {(m_fB * m_fB * pt.x - m_fB * m_fA * pt.y - m_fA * m_fC) / fNorm,
            (m_fA * m_fA * pt.y - pt.x * m_fB * m_fA - m_fB * m_fC) / fNorm};
}

bool CLine::IsRectCross(const CPointEx<float>& ptP1, const CPointEx<float>& ptP2, const CPointEx<float>& ptQ1,
                        const CPointEx<float>& ptQ2)
{
    return std::min(ptP1.x, ptP2.x) <= std::max(ptQ1.x, ptQ2.x) &&
           std::min(ptQ1.x, ptQ2.x) <= std::max(ptP1.x, ptP2.x) &&
           std::min(ptP1.y, ptP2.y) <= std::max(ptQ1.y, ptQ2.y) &&
           std::min(ptQ1.y, ptQ2.y) <= std::max(ptP1.y, ptP2.y);
}

bool CLine::IsLineSegmentCross(CPointEx<float> ptP1, CPointEx<float> ptP2, CPointEx<float> ptQ1,
                               CPointEx<float> ptQ2)
{
    if (IsOneSided(SideOfFirst(ptP1, ptP2, ptQ1), SideOfFirst(ptP1, ptP2, ptQ2)))
        return false;
    return !IsOneSided(SideOfSecond(ptQ1, ptQ2, ptP1), SideOfSecond(ptQ1, ptQ2, ptP2));
}

bool CLine::IsCross(CPointEx<float> ptP1, CPointEx<float> ptP2, CPointEx<float> ptQ1, CPointEx<float> ptQ2)
{
    return !IsSameSegment(ptP1, ptP2, ptQ1, ptQ2) && IsRectCross(ptP1, ptP2, ptQ1, ptQ2) &&
           IsLineSegmentCross(ptP1, ptP2, ptQ1, ptQ2);
}

bool CLine::GetSegmentCross(CPointEx<float> ptP1, CPointEx<float> ptP2, CPointEx<float> ptQ1,
                            CPointEx<float> ptQ2, float& fX, float& fY)
{
    if (!IsCross(ptP1, ptP2, ptQ1, ptQ2))
        return false;

    // x and y come from two formulas, each with a determinant of its own: their roundings differ.
    const float fDetX = (ptP1.y - ptP2.y) * (ptQ2.x - ptQ1.x) - (ptQ1.y - ptQ2.y) * (ptP2.x - ptP1.x);
    if (IsNoDeterminant(fDetX))
        return false;
    fX = (ptQ1.x * (ptQ2.y - ptQ1.y) * (ptP2.x - ptP1.x) +
          (ptP1.y - ptQ1.y) * (ptP2.x - ptP1.x) * (ptQ2.x - ptQ1.x) -
          (ptP2.y - ptP1.y) * ptP1.x * (ptQ2.x - ptQ1.x)) /
         fDetX;

    // From here on x stays stored, whatever becomes of y.
    const float fDetY = (ptP1.x - ptP2.x) * (ptQ2.y - ptQ1.y) - (ptP2.y - ptP1.y) * (ptQ1.x - ptQ2.x);
    if (IsNoDeterminant(fDetY))
        return false;
    fY = ((ptP1.y - ptP2.y) * (ptQ2.x - ptP2.x) * (ptQ2.y - ptQ1.y) +
          (ptP1.x - ptP2.x) * ptP2.y * (ptQ2.y - ptQ1.y) - (ptP2.y - ptP1.y) * ptQ2.y * (ptQ1.x - ptQ2.x)) /
         fDetY;
    return true;
}
