#ifndef SENDERMODULEDIALOG_GEOMETRY_LINE_H
#define SENDERMODULEDIALOG_GEOMETRY_LINE_H

#include "SenderModuleDialog/SenderModuleDialogGlobal.h"
#include "host/CommonClass/PointEx.h"

/// @file
/// Lines and segments on the chromaticity plane, in single precision. The tolerance is absolute: it was
/// settled for chromaticities, which lie near the unit square.

/// What counts as zero for determinants, side values and coordinate differences: 2^-23, the distance from 1
/// to the next float.
inline constexpr float c_fGeometryEpsilon = 1.1920928955078125e-07F;

/// The slope of a vertical line, where there is no finite answer: the largest finite float.
inline constexpr float c_fVerticalSlope = 3.4028234663852886e+38F;

/// Both coordinates of the crossing of two parallel lines. No chromaticity is anywhere near it.
inline constexpr float c_fNoIntersection = 6553600000.0F;

/// The infinite straight line a*x + b*y + c = 0, and tests of segments.
///
/// The coefficients are not normalised. Nothing rejects a line through two equal points (all coefficients
/// 0) and no division is guarded: a question without an answer gives a named sentinel, false or a
/// non-finite value.
///
/// A value of three floats: copies are independent, and several threads may read one line at once.
class SENDERMODULEDIALOG_EXPORT CLine
{
public:
    /// The line through two points. The points are not changed.
    CLine(CPointEx<float>& ptFirst, CPointEx<float>& ptSecond);

    /// The line through a point with a finite slope. The vertical slope is not recognised here: it gives huge
    /// coefficients; `CreateLine` understands it. The point is not changed.
    CLine(CPointEx<float>& pt, float fSlope);

    /// Makes this the line through two points.
    void Relocate(CPointEx<float> ptFirst, CPointEx<float> ptSecond);

    /// Makes this the line through a point with a slope; `c_fVerticalSlope` gives the vertical line.
    void CreateLine(float fSlope, CPointEx<float> pt);

    /// Makes this the least-squares line of y on x.
    /// @param pX, pY the samples, nCount of each
    /// @param nCount with 0 samples, or samples of one x alone, a and c are not finite and b is 1
    void FitLine(float* pX, float* pY, int nCount);

    /// @name Coefficients of a*x + b*y + c = 0
    /// Not normalised: (a, b) is no unit vector.
    /// @{

    /// The factor of x: 0 for a horizontal line.
    float A() const { return m_fA; }
    /// The factor of y: 0 for a vertical line.
    float B() const { return m_fB; }
    /// The constant term.
    float C() const { return m_fC; }
    /// @}

    /// Where this line crosses another.
    /// @return the crossing; (`c_fNoIntersection`, `c_fNoIntersection`) when the determinant is below
    ///         `c_fGeometryEpsilon` in size
    CPointEx<float> operator&(const CLine& other) const;

    /// The x of the line at a y: not finite on a horizontal line.
    float GetXbyY(float fY) const;

    /// The y of the line at an x: not finite on a vertical line.
    float GetYbyX(float fX) const;

    /// The slope of this line, `c_fVerticalSlope` when b is exactly 0.
    float GetSlop() const;

    /// The slope between two points, `c_fVerticalSlope` when their x are exactly equal. An almost vertical
    /// pair has a large finite slope.
    static float GetSlop(const CPointEx<float>& ptFirst, const CPointEx<float>& ptSecond);

    /// The distance from a point to the line. The 2 in the name means no square: the result is the
    /// distance itself.
    float Distance2(CPointEx<float> pt) const;

    /// Whether two points lie strictly on one side of the line. A point on the line is on no side.
    bool IsSameSide(CPointEx<float> ptFirst, CPointEx<float> ptSecond) const;

    /// The foot of the perpendicular from a point to the line.
    CPointEx<float> GetFootPoint(CPointEx<float> pt) const;

    /// @name Tests of the segment from p1 to p2 against the segment from q1 to q2
    /// None of them looks at a line's coefficients.
    /// @{

    /// Whether the bounding boxes touch or overlap.
    static bool IsRectCross(const CPointEx<float>& ptP1, const CPointEx<float>& ptP2,
                            const CPointEx<float>& ptQ1, const CPointEx<float>& ptQ2);

    /// Whether each segment has its ends on both sides of the other's line. A segment that only touches the
    /// other is not across it. Where both ends are within `c_fGeometryEpsilon` of the other's line (measured
    /// as a cross product, not as a distance), that pair passes: collinear segments do.
    static bool IsLineSegmentCross(CPointEx<float> ptP1, CPointEx<float> ptP2, CPointEx<float> ptQ1,
                                   CPointEx<float> ptQ2);

    /// Whether the segments cross: they are not one and the same in either direction, their bounding boxes
    /// meet, and `IsLineSegmentCross` holds.
    static bool IsCross(CPointEx<float> ptP1, CPointEx<float> ptP2, CPointEx<float> ptQ1,
                        CPointEx<float> ptQ2);

    /// Where the segments cross.
    /// @param fX, fY take the crossing. When the result is false they are left alone, except that x is stored
    ///        before y's own determinant is tested.
    /// @return false when `IsCross` is false or a determinant is below `c_fGeometryEpsilon` in size
    static bool GetSegmentCross(CPointEx<float> ptP1, CPointEx<float> ptP2, CPointEx<float> ptQ1,
                                CPointEx<float> ptQ2, float& fX, float& fY);
    /// @}

private:
    float m_fA;
    float m_fB;
    float m_fC;
};

#endif // SENDERMODULEDIALOG_GEOMETRY_LINE_H
