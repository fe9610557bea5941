#ifndef SENDERMODULEDIALOG_GEOMETRY_CALCCHROMARATIO_H
#define SENDERMODULEDIALOG_GEOMETRY_CALCCHROMARATIO_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/CommonClass/PointEx.h"

#include <vector>

/// How much of one gamut triangle another covers, on the chromaticity plane and in single precision.
///
/// A calculator for one question: it collects every point of the overlap's outline, sorts the points around
/// their mean, adds up the area and divides by the area of the reference triangle. A triangle is a vector of
/// three points or more, of which the first three count; a shorter one faults.
///
/// Used by one thread at a time.
class SENDERMODULEDIALOG_EXPORT CCalcChromaRatio
{
public:
    /// The part of triangle b that triangle a covers.
    /// @param vecA, vecB the triangles; not changed
    /// @param fRatio 0 to 1. Unchanged when b has no area, which the result does not show: preset it.
    /// @return true
    bool CalcChromaRatio(std::vector<CPointEx<float>>& vecA, std::vector<CPointEx<float>>& vecB,
                         float& fRatio);

    /// Collects the outline of the overlap: the crossings of edges, and each triangle's corners that lie in
    /// the other. A point that is both is held twice.
    /// @return true
    bool CalcCrossPoint(std::vector<CPointEx<float>>& vecA, std::vector<CPointEx<float>>& vecB);

    /// Sorts the outline around its mean by `ColckwiseCmp`.
    /// @return true
    bool SortPoint();

    /// The area of the sorted outline over the area of a triangle, at most 1.
    /// @param vecReference the triangle; not changed
    /// @param fRatio left alone when the triangle's area is below `c_fGeometryEpsilon`
    /// @return whether the ratio was stored and lies from 0 to 1, give or take a rounding
    bool CalcPolygonArea(std::vector<CPointEx<float>>& vecReference, float& fRatio) const;

    /// `G_IsPointInPolygon2` on a copy of a vector's points.
    /// @param pVecPolygon not null; not changed
    /// @param pt not changed
    static bool G_IsPointInPolygon(std::vector<CPointEx<float>>* pVecPolygon, CPointEx<float>& pt);

    /// Whether a point lies in a triangle or on its edge.
    /// @param pPoints the corners
    /// @param nCount how many; it is made for 3. In a longer polygon the edge test pairs every vertex with
    ///        one of the first three, and the test of the inside is right. Nothing beyond the count is read;
    ///        0 or less gives false.
    static bool G_IsPointInPolygon2(CPointEx<float> pt, CPointEx<float>* pPoints, int nCount);

    /// A triangle's area by Heron's formula; 0 where rounding on a thin triangle leaves nothing to take a
    /// root of.
    /// @return true
    static bool CalcTriangleArea(CPointEx<float> ptP, CPointEx<float> ptQ, CPointEx<float> ptR, float& fArea);

    /// Whether a comes after b on the way around a centre: quadrants 1 to 4, counter-clockwise within one.
    /// The order runs against the clock in spite of the name.
    static bool ColckwiseCmp(CPointEx<float>& ptA, CPointEx<float>& ptB, CPointEx<float>& ptCentre);

    /// The quadrant of a direction, 1 to 4. The axes belong to one: +x to 4, +y to 2; the origin, -x and -y
    /// to 3.
    static int CalcQuadrant(float fX, float fY);

    /// The distance of two points.
    static float CalcDistance(CPointEx<float> ptP, CPointEx<float> ptQ);

protected:
    /// The outline: 15 elements once `CalcCrossPoint` has run, the worst case of 9 crossings and 6 corners.
    std::vector<CPointEx<float>> m_vecCrossPoint;
    /// How many leading elements of the outline hold a point.
    int m_nCrossPointNum = 0;

private:
    void Append(CPointEx<float> pt);
    void AppendIfInside(CPointEx<float>& pt, std::vector<CPointEx<float>>& vecTriangle);
    CPointEx<float> Mean() const;
};

#endif // SENDERMODULEDIALOG_GEOMETRY_CALCCHROMARATIO_H
