#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "SenderModuleDialog/geometry/Line.h"
#include "SenderModuleDialog/geometry/Polygon.h"
#include "tests/architecture/digest/Digest.h"
#include "tests/geometry/Coefficients.h"

#include <array>

namespace {

/// Rounds of a function, so that the folder comes to some 100,000 results.
constexpr int c_nRounds = 4000;
constexpr int c_nHulls = 400;

template <std::size_t Count>
std::array<CPointEx<float>, Count> Points(CSequence& sequence)
{
    std::array<CPointEx<float>, Count> arrPoints;
    for (CPointEx<float>& pt : arrPoints)
        pt = sequence.Point();
    return arrPoints;
}

void Add(CDigest& digest, const CLine& line)
{
    const SCoefficients coefficients = CoefficientsOf(line);
    digest.Add(coefficients.fA);
    digest.Add(coefficients.fB);
    digest.Add(coefficients.fC);
}

void LineThroughPoints(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nRounds; ++i) {
        auto arr = Points<4>(sequence);
        const CLine line(arr[0], arr[1]);
        const CLine lineOther(arr[2], arr[3]);
        Add(digest, line);
        digest.Add(line & lineOther);
        digest.Add(line.GetSlop());
        digest.Add(CLine::GetSlop(arr[0], arr[1]));
    }
}

void LineThroughPointWithSlope(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nRounds; ++i) {
        CPointEx<float> pt = sequence.Point();
        const float fSlope = sequence.Below(8) == 0 ? c_fVerticalSlope : sequence.Coordinate();
        CLine line(pt, fSlope);
        Add(digest, line);
        line.CreateLine(fSlope, pt);
        Add(digest, line);
    }
}

void PointsAndLine(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nRounds; ++i) {
        auto arr = Points<4>(sequence);
        const CLine line(arr[0], arr[1]);
        digest.Add(line.GetXbyY(arr[2].y));
        digest.Add(line.GetYbyX(arr[2].x));
        digest.Add(line.Distance2(arr[2]));
        digest.Add(line.IsSameSide(arr[2], arr[3]));
        digest.Add(line.GetFootPoint(arr[2]));
    }
}

void Segments(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < 2 * c_nRounds; ++i) {
        const auto arr = Points<4>(sequence);
        float fX = -1.0F;
        float fY = -1.0F;
        digest.Add(CLine::IsRectCross(arr[0], arr[1], arr[2], arr[3]));
        digest.Add(CLine::IsLineSegmentCross(arr[0], arr[1], arr[2], arr[3]));
        digest.Add(CLine::IsCross(arr[0], arr[1], arr[2], arr[3]));
        digest.Add(CLine::GetSegmentCross(arr[0], arr[1], arr[2], arr[3], fX, fY));
        digest.Add(fX);
        digest.Add(fY);
    }
}

void FittedLine(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nRounds; ++i) {
        std::array<float, 16> arrX = {};
        std::array<float, 16> arrY = {};
        const int nCount = sequence.Below(16);
        for (std::size_t j = 0; j < std::size_t(nCount); ++j) {
            arrX[j] = sequence.Coordinate();
            arrY[j] = sequence.Coordinate();
        }
        CPointEx<float> ptAny;
        CLine line(ptAny, 0.0F);
        line.FitLine(arrX.data(), arrY.data(), nCount);
        Add(digest, line);
    }
}

void Nudge(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nRounds; ++i) {
        const auto arr = Points<2>(sequence);
        QPointF ptFrom(double(arr[0].x) / 3.0, double(arr[0].y) / 3.0);
        const QPointF ptToward(double(arr[1].x) / 3.0, double(arr[1].y) / 3.0);
        digest.Add(CPolygon::MakePointCloser(ptFrom, ptToward));
    }
}

/// Multiples of 1/512: every difference and product is exact, so that rounding cannot change the hull.
QVector<QPointF> Cloud(CSequence& sequence)
{
    QVector<QPointF> vecPoints = {{0, 0}, {1, 0}, {0, 1}};
    const int nCount = 3 + sequence.Below(40);
    while (vecPoints.size() < nCount)
        vecPoints.append({sequence.Below(513) / 512.0, sequence.Below(513) / 512.0});
    return vecPoints;
}

void Hulls(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nHulls; ++i) {
        CPolygon polygon(Cloud(sequence));
        digest.Add(polygon.IsConvex());
        polygon.GrahamScan();
        for (const QPointF& pt : polygon)
            digest.Add(pt);
    }
}

void PulledPoints(CSequence& sequence, CDigest& digest)
{
    using Pull = bool (CPolygon::*)(QPointF*) const;
    for (int i = 0; i < c_nHulls; ++i) {
        CPolygon polygon(Cloud(sequence));
        if (i % 2 == 0)
            polygon.GrahamScan();
        for (const Pull funcPull : {&CPolygon::GetPointCloser, &CPolygon::GetPointCloser2Convex,
                                    &CPolygon::GetPointCloser2Concave}) {
            QPointF pt{double(sequence.Unit()) * 3.0 - 1.0, double(sequence.Unit()) * 3.0 - 1.0};
            digest.Add((polygon.*funcPull)(&pt));
            digest.Add(pt);
        }
    }
}

void OverlapRatio(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nRounds; ++i) {
        const auto arr = Points<6>(sequence);
        std::vector<CPointEx<float>> vecA(arr.begin(), arr.begin() + 3);
        std::vector<CPointEx<float>> vecB(arr.begin() + 3, arr.end());
        float fRatio = -1.0F;
        digest.Add(CCalcChromaRatio().CalcChromaRatio(vecA, vecB, fRatio));
        digest.Add(fRatio);
    }
}

void PointInTriangle(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nRounds; ++i) {
        auto arr = Points<4>(sequence);
        std::vector<CPointEx<float>> vecTriangle(arr.begin(), arr.begin() + 3);
        digest.Add(CCalcChromaRatio::G_IsPointInPolygon(&vecTriangle, arr[3]));
        digest.Add(CCalcChromaRatio::G_IsPointInPolygon2(arr[3], arr.data(), sequence.Below(5)));
    }
}

void TriangleParts(CSequence& sequence, CDigest& digest)
{
    for (int i = 0; i < c_nRounds; ++i) {
        auto arr = Points<3>(sequence);
        float fArea = -1.0F;
        digest.Add(CCalcChromaRatio::CalcTriangleArea(arr[0], arr[1], arr[2], fArea));
        digest.Add(fArea);
        digest.Add(CCalcChromaRatio::ColckwiseCmp(arr[0], arr[1], arr[2]));
        digest.Add(CCalcChromaRatio::CalcQuadrant(arr[0].x, arr[0].y));
        digest.Add(CCalcChromaRatio::CalcDistance(arr[0], arr[1]));
    }
}

} // namespace

std::vector<SDigestFunction> GeometryDigests()
{
    return {
        {"CLine-through-points", LineThroughPoints},
        {"CLine-through-a-point-with-a-slope", LineThroughPointWithSlope},
        {"CLine-points-and-line", PointsAndLine},
        {"CLine-segments", Segments},
        {"CLine-FitLine", FittedLine},
        {"CPolygon-MakePointCloser", Nudge},
        {"CPolygon-GrahamScan", Hulls},
        {"CPolygon-GetPointCloser", PulledPoints},
        {"CCalcChromaRatio-CalcChromaRatio", OverlapRatio},
        {"CCalcChromaRatio-G_IsPointInPolygon", PointInTriangle},
        {"CCalcChromaRatio-triangle-parts", TriangleParts},
    };
}
