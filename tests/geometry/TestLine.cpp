#include "SenderModuleDialog/geometry/Line.h"
#include "tests/geometry/Coefficients.h"
#include "tests/geometry/Points.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <cmath>
#include <limits>

namespace {

constexpr float c_fInfinity = std::numeric_limits<float>::infinity();
constexpr float c_fNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float c_fLargest = 3.4028234663852886e+38F;
constexpr float c_fUntouched = -7.0F;

CLine Through(Point ptFirst, Point ptSecond)
{
    return {ptFirst, ptSecond};
}

/// Some line to be overwritten.
CLine AnyLine()
{
    return Through({0.5F, 0.25F}, {0.75F, 0.125F});
}

bool IsCross(const SSegments& segments)
{
    return CLine::IsCross(segments.ptP1, segments.ptP2, segments.ptQ1, segments.ptQ2);
}

bool GetSegmentCross(const SSegments& segments, float& fX, float& fY)
{
    return CLine::GetSegmentCross(segments.ptP1, segments.ptP2, segments.ptQ1, segments.ptQ2, fX, fY);
}

} // namespace

#define COMPARE_COEFFICIENTS(line, fExpectedA, fExpectedB, fExpectedC) \
    do {                                                               \
        const SCoefficients coefficients = CoefficientsOf(line);       \
        COMPARE_BITS(coefficients.fA, fExpectedA);                     \
        COMPARE_BITS(coefficients.fB, fExpectedB);                     \
        COMPARE_BITS(coefficients.fC, fExpectedC);                     \
    } while (false)

class TestLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheToleranceAndTheSentinelsHaveTheirValues();
    void TheDefaultPointIsTheOrigin();
    void TwoPointsGiveTheCoefficients_data();
    void TwoPointsGiveTheCoefficients();
    void APointAndASlopeGiveTheCoefficients_data();
    void APointAndASlopeGiveTheCoefficients();
    void CreateLineUnderstandsTheVerticalSlope_data();
    void CreateLineUnderstandsTheVerticalSlope();
    void LinesIntersect_data();
    void LinesIntersect();
    void ALineGivesTheOtherCoordinate_data();
    void ALineGivesTheOtherCoordinate();
    void ALineHasASlope_data();
    void ALineHasASlope();
    void TwoPointsHaveASlope_data();
    void TwoPointsHaveASlope();
    void Distance2IsTheDistanceItself_data();
    void Distance2IsTheDistanceItself();
    void OnlyPointsStrictlyOnOneSideAreOnTheSameSide_data();
    void OnlyPointsStrictlyOnOneSideAreOnTheSameSide();
    void ASideIsSummedFromTheConstantTerm();
    void TheFootLiesOnThePerpendicular_data();
    void TheFootLiesOnThePerpendicular();
    void BoundingBoxesMeetInclusively_data();
    void BoundingBoxesMeetInclusively();
    void SegmentsStraddleEachOther_data();
    void SegmentsStraddleEachOther();
    void SegmentsCross_data();
    void SegmentsCross();
    void ACrossingHasAPoint_data();
    void ACrossingHasAPoint();
    void WithoutACrossingNothingIsStored_data();
    void WithoutACrossingNothingIsStored();
    void TheLeastSquaresLineFits_data();
    void TheLeastSquaresLineFits();
    void AFitWithoutAnAnswerIsNotFinite_data();
    void AFitWithoutAnAnswerIsNotFinite();
    void AFitThatRoundsToTheVerticalSlopeIsVertical();
    void NothingIsAllocated();
};

void TestLine::TheToleranceAndTheSentinelsHaveTheirValues()
{
    COMPARE_BITS(c_fGeometryEpsilon, std::ldexp(1.0F, -23));
    COMPARE_BITS(c_fVerticalSlope, std::numeric_limits<float>::max());
    COMPARE_BITS(double(c_fNoIntersection), 6553600000.0);
}

void TestLine::TheDefaultPointIsTheOrigin()
{
    const std::vector<Point> vecGrown(3);
    for (const Point& pt : vecGrown) {
        COMPARE_BITS(pt.x, 0.0F);
        COMPARE_BITS(pt.y, 0.0F);
    }
}

void TestLine::TwoPointsGiveTheCoefficients_data()
{
    QTest::addColumn<Point>("ptFirst");
    QTest::addColumn<Point>("ptSecond");
    QTest::addColumn<float>("fA");
    QTest::addColumn<float>("fB");
    QTest::addColumn<float>("fC");
    QTest::newRow("the diagonal") << Point(0, 0) << Point(1, 1) << 1.0F << -1.0F << 0.0F;
    QTest::newRow("not normalised") << Point(0, 1) << Point(4, 4) << 3.0F << -4.0F << 4.0F;
    QTest::newRow("vertical: b is 0") << Point(0.5F, 0) << Point(0.5F, 1) << 1.0F << 0.0F << -0.5F;
    QTest::newRow("two equal points: all are 0")
        << Point(0.5F, 0.25F) << Point(0.5F, 0.25F) << 0.0F << 0.0F << 0.0F;
    QTest::newRow("each product rounds on its own")
        << Point(0.23796463F, 0.5442292F) << Point(0.36995515F, 0.60392004F) << 0.059690833F << -0.13199052F
        << 0.057628796F;
}

void TestLine::TwoPointsGiveTheCoefficients()
{
    QFETCH(Point, ptFirst);
    QFETCH(Point, ptSecond);
    QFETCH(float, fA);
    QFETCH(float, fB);
    QFETCH(float, fC);
    COMPARE_COEFFICIENTS(CLine(ptFirst, ptSecond), fA, fB, fC);
    CLine line = AnyLine();
    line.Relocate(ptFirst, ptSecond);
    COMPARE_COEFFICIENTS(line, fA, fB, fC);
}

void TestLine::APointAndASlopeGiveTheCoefficients_data()
{
    QTest::addColumn<Point>("pt");
    QTest::addColumn<float>("fSlope");
    QTest::addColumn<float>("fC");
    QTest::newRow("rising") << Point(1, 3) << 2.0F << -1.0F;
    QTest::newRow("level") << Point(1, 3) << 0.0F << -3.0F;
    QTest::newRow("the product rounds on its own")
        << Point(0.6257203F, 0.06552886F) << 0.039503973F << -0.04081042F;
    QTest::newRow("the vertical slope is not recognised")
        << Point(0.25F, 0.5F) << c_fLargest << 0.25F * c_fLargest;
}

void TestLine::APointAndASlopeGiveTheCoefficients()
{
    QFETCH(Point, pt);
    QFETCH(float, fSlope);
    QFETCH(float, fC);
    COMPARE_COEFFICIENTS(CLine(pt, fSlope), -fSlope, 1.0F, fC);
}

void TestLine::CreateLineUnderstandsTheVerticalSlope_data()
{
    QTest::addColumn<float>("fSlope");
    QTest::addColumn<float>("fA");
    QTest::addColumn<float>("fB");
    QTest::addColumn<float>("fC");
    QTest::newRow("vertical") << c_fLargest << 1.0F << 0.0F << -0.25F;
    QTest::newRow("the same slope downward is an ordinary one")
        << -c_fLargest << c_fLargest << 1.0F << -0.25F * c_fLargest;
    QTest::newRow("the next smaller slope is an ordinary one")
        << std::nextafter(c_fLargest, 0.0F) << -std::nextafter(c_fLargest, 0.0F) << 1.0F
        << 0.25F * std::nextafter(c_fLargest, 0.0F);
    QTest::newRow("ordinary") << 2.0F << -2.0F << 1.0F << 0.0F;
}

void TestLine::CreateLineUnderstandsTheVerticalSlope()
{
    QFETCH(float, fSlope);
    QFETCH(float, fA);
    QFETCH(float, fB);
    QFETCH(float, fC);
    CLine line = AnyLine();
    line.CreateLine(fSlope, {0.25F, 0.5F});
    COMPARE_COEFFICIENTS(line, fA, fB, fC == 0.0F ? -0.0F : fC);
}

void TestLine::LinesIntersect_data()
{
    QTest::addColumn<SSegments>("lines");
    QTest::addColumn<Point>("ptExpected");
    const Point ptNone(6553600000.0F, 6553600000.0F);
    QTest::newRow("diagonals") << SSegments{{0, 0}, {2, 2}, {0, 2}, {2, 0}} << Point(1, 1);
    QTest::newRow("far beyond the points") << SSegments{{0, 0}, {1, 0}, {4, 1}, {4, 2}} << Point(4, 0);
    QTest::newRow("parallel") << SSegments{{0, 0}, {1, 1}, {0, 1}, {1, 2}} << ptNone;
    QTest::newRow("one and the same") << SSegments{{0, 0}, {1, 1}, {0, 0}, {1, 1}} << ptNone;
    QTest::newRow("a line of two equal points")
        << SSegments{{0.5F, 0.5F}, {0.5F, 0.5F}, {0, 1}, {1, 0}} << ptNone;
    QTest::newRow("a determinant just below 2^-23")
        << SSegments{{0, 0}, {1, 0}, {0, 0}, {0, std::nextafter(std::ldexp(1.0F, -23), 0.0F)}} << ptNone;
    QTest::newRow("a determinant of 2^-23")
        << SSegments{{0, 0}, {1, 0}, {0, 0}, {0, std::ldexp(1.0F, -23)}} << Point(0, 0);
    QTest::newRow("each product rounds on its own") << SSegments{{0.27048752F, 0.09964871F},
                                                                 {0.11268478F, 0.77898306F},
                                                                 {0.7272893F, 0.18484592F},
                                                                 {0.18916953F, 0.41665533F}}
                                                    << Point(0.197704F, 0.41297892F);
}

void TestLine::LinesIntersect()
{
    QFETCH(SSegments, lines);
    QFETCH(Point, ptExpected);
    const Point pt = Through(lines.ptP1, lines.ptP2) & Through(lines.ptQ1, lines.ptQ2);
    // The sign of a zero coordinate depends on the direction of the lines.
    COMPARE_BITS(pt.x + 0.0F, ptExpected.x);
    COMPARE_BITS(pt.y + 0.0F, ptExpected.y);
}

void TestLine::ALineGivesTheOtherCoordinate_data()
{
    QTest::addColumn<SSegments>("line");
    QTest::addColumn<float>("fXAtHalf");
    QTest::addColumn<float>("fYAtHalf");
    QTest::newRow("the diagonal") << SSegments{{0, 0}, {1, 1}, {}, {}} << 0.5F << 0.5F;
    QTest::newRow("steep") << SSegments{{0, 0}, {1, 2}, {}, {}} << 0.25F << 1.0F;
    QTest::newRow("level: no x is finite")
        << SSegments{{0, 0.25F}, {1, 0.25F}, {}, {}} << c_fInfinity << 0.25F;
    QTest::newRow("vertical: no y is finite")
        << SSegments{{0.25F, 0}, {0.25F, 1}, {}, {}} << 0.25F << -c_fInfinity;
    QTest::newRow("two equal points: NaN") << SSegments{{0, 0}, {0, 0}, {}, {}} << c_fNaN << c_fNaN;
}

void TestLine::ALineGivesTheOtherCoordinate()
{
    QFETCH(SSegments, line);
    QFETCH(float, fXAtHalf);
    QFETCH(float, fYAtHalf);
    COMPARE_BITS(Through(line.ptP1, line.ptP2).GetXbyY(0.5F), fXAtHalf);
    COMPARE_BITS(Through(line.ptP1, line.ptP2).GetYbyX(0.5F), fYAtHalf);
}

void TestLine::ALineHasASlope_data()
{
    QTest::addColumn<SSegments>("line");
    QTest::addColumn<float>("fExpected");
    QTest::newRow("rising") << SSegments{{0, 0}, {1, 2}, {}, {}} << 2.0F;
    QTest::newRow("falling") << SSegments{{0, 2}, {1, 0}, {}, {}} << -2.0F;
    QTest::newRow("level") << SSegments{{0, 2}, {1, 2}, {}, {}} << 0.0F;
    QTest::newRow("vertical") << SSegments{{1, 2}, {1, 3}, {}, {}} << c_fLargest;
    QTest::newRow("vertical downward") << SSegments{{1, 3}, {1, 2}, {}, {}} << c_fLargest;
    QTest::newRow("two equal points") << SSegments{{1, 2}, {1, 2}, {}, {}} << c_fLargest;
}

void TestLine::ALineHasASlope()
{
    QFETCH(SSegments, line);
    QFETCH(float, fExpected);
    COMPARE_BITS(Through(line.ptP1, line.ptP2).GetSlop() + 0.0F, fExpected);
}

void TestLine::TwoPointsHaveASlope_data()
{
    QTest::addColumn<Point>("ptFirst");
    QTest::addColumn<Point>("ptSecond");
    QTest::addColumn<float>("fExpected");
    QTest::newRow("rising") << Point(0, 0) << Point(1, 2) << 2.0F;
    QTest::newRow("the same backwards") << Point(1, 2) << Point(0, 0) << 2.0F;
    QTest::newRow("vertical") << Point(0.5F, 0) << Point(0.5F, 1) << c_fLargest;
    QTest::newRow("a point and itself") << Point(0.5F, 0.5F) << Point(0.5F, 0.5F) << c_fLargest;
    QTest::newRow("almost vertical is large and finite")
        << Point(1, 0) << Point(1 + std::ldexp(1.0F, -23), 1) << 8388608.0F;
}

void TestLine::TwoPointsHaveASlope()
{
    QFETCH(Point, ptFirst);
    QFETCH(Point, ptSecond);
    QFETCH(float, fExpected);
    COMPARE_BITS(CLine::GetSlop(ptFirst, ptSecond), fExpected);
}

void TestLine::Distance2IsTheDistanceItself_data()
{
    QTest::addColumn<SSegments>("lineAndPoint");
    QTest::addColumn<float>("fExpected");
    QTest::newRow("3, not 9") << SSegments{{0, 0}, {1, 0}, {0.5F, 3}, {}} << 3.0F;
    QTest::newRow("on the other side too") << SSegments{{0, 0}, {1, 0}, {0.5F, -3}, {}} << 3.0F;
    QTest::newRow("on the line") << SSegments{{0, 0}, {1, 1}, {0.5F, 0.5F}, {}} << 0.0F;
    QTest::newRow("not normalised coefficients") << SSegments{{0, 0}, {4, 3}, {4, -3}, {}} << 4.8F;
    QTest::newRow("a line of two equal points: NaN") << SSegments{{1, 1}, {1, 1}, {0, 0}, {}} << c_fNaN;
    QTest::newRow("the product with y comes first")
        << SSegments{{0.3010262F, 0.507243F}, {0.38586625F, 0.35091048F}, {0.5850741F, 0.5842518F}, {}}
        << 0.28638566F;
}

void TestLine::Distance2IsTheDistanceItself()
{
    QFETCH(SSegments, lineAndPoint);
    QFETCH(float, fExpected);
    COMPARE_BITS(Through(lineAndPoint.ptP1, lineAndPoint.ptP2).Distance2(lineAndPoint.ptQ1), fExpected);
}

void TestLine::OnlyPointsStrictlyOnOneSideAreOnTheSameSide_data()
{
    QTest::addColumn<Point>("ptFirst");
    QTest::addColumn<Point>("ptSecond");
    QTest::addColumn<bool>("bExpected");
    QTest::newRow("both above") << Point(0, 1) << Point(5, 6) << true;
    QTest::newRow("both below") << Point(1, 0) << Point(6, 5) << true;
    QTest::newRow("across") << Point(0, 1) << Point(1, 0) << false;
    QTest::newRow("the first on the line") << Point(0.5F, 0.5F) << Point(0, 1) << false;
    QTest::newRow("the second on the line") << Point(0, 1) << Point(0.5F, 0.5F) << false;
    QTest::newRow("both on the line") << Point(0.25F, 0.25F) << Point(0.5F, 0.5F) << false;
    QTest::newRow("so near that the product is 0") << Point(0, 1e-30F) << Point(0, 1e-30F) << false;
}

void TestLine::OnlyPointsStrictlyOnOneSideAreOnTheSameSide()
{
    QFETCH(Point, ptFirst);
    QFETCH(Point, ptSecond);
    QFETCH(bool, bExpected);
    QCOMPARE(Through({0, 0}, {1, 1}).IsSameSide(ptFirst, ptSecond), bExpected);
}

void TestLine::ASideIsSummedFromTheConstantTerm()
{
    // From the constant term on the sum is exactly 0; in another order 3.7e-9 would be left.
    const CLine line = Through({0.03606211F, 0.6135641F}, {0.09482166F, 0.54522085F});
    const Point pt(0.056003533F, 0.5903702F);
    QVERIFY(!line.IsSameSide(pt, pt));
}

void TestLine::TheFootLiesOnThePerpendicular_data()
{
    QTest::addColumn<SSegments>("lineAndPoint");
    QTest::addColumn<Point>("ptExpected");
    QTest::newRow("on a level line") << SSegments{{0, 1}, {1, 1}, {0.25F, 3}, {}} << Point(0.25F, 1);
    QTest::newRow("on a vertical line") << SSegments{{1, 0}, {1, 1}, {3, 0.25F}, {}} << Point(1, 0.25F);
    QTest::newRow("on the diagonal") << SSegments{{0, 0}, {1, 1}, {1, 0}, {}} << Point(0.5F, 0.5F);
    QTest::newRow("of a point on the line")
        << SSegments{{0, 0}, {1, 1}, {0.75F, 0.75F}, {}} << Point(0.75F, 0.75F);
    QTest::newRow("a line of two equal points: NaN")
        << SSegments{{1, 1}, {1, 1}, {0, 0}, {}} << Point(c_fNaN, c_fNaN);
    QTest::newRow("each product rounds in its order")
        << SSegments{{0.7909169F, 0.26217973F}, {0.46414322F, 0.12314605F}, {0.8132217F, 0.6622896F}, {}}
        << Point(0.9539453F, 0.33154404F);
}

void TestLine::TheFootLiesOnThePerpendicular()
{
    QFETCH(SSegments, lineAndPoint);
    QFETCH(Point, ptExpected);
    const Point ptFoot = Through(lineAndPoint.ptP1, lineAndPoint.ptP2).GetFootPoint(lineAndPoint.ptQ1);
    COMPARE_BITS(ptFoot.x, ptExpected.x);
    COMPARE_BITS(ptFoot.y, ptExpected.y);
}

void TestLine::BoundingBoxesMeetInclusively_data()
{
    QTest::addColumn<SSegments>("segments");
    QTest::addColumn<bool>("bExpected");
    const float fBeyond = std::nextafter(1.0F, 2.0F);
    QTest::newRow("overlap without a crossing") << SSegments{{0, 0}, {2, 2}, {1, 0}, {2, 1}} << true;
    QTest::newRow("touch at x") << SSegments{{0, 0}, {1, 1}, {1, 0}, {2, 1}} << true;
    QTest::newRow("apart by the last bit of x") << SSegments{{0, 0}, {1, 1}, {fBeyond, 0}, {2, 1}} << false;
    QTest::newRow("apart on the other side of x") << SSegments{{fBeyond, 0}, {2, 1}, {0, 0}, {1, 1}} << false;
    QTest::newRow("touch at y") << SSegments{{0, 0}, {1, 1}, {0, 1}, {1, 2}} << true;
    QTest::newRow("apart by the last bit of y") << SSegments{{0, 0}, {1, 1}, {0, fBeyond}, {1, 2}} << false;
    QTest::newRow("apart on the other side of y") << SSegments{{0, fBeyond}, {1, 2}, {0, 0}, {1, 1}} << false;
    QTest::newRow("the ends in any order") << SSegments{{1, 0}, {0, 1}, {2, 1}, {1, 0}} << true;
    QTest::newRow("two points that are one") << SSegments{{1, 1}, {1, 1}, {1, 1}, {1, 1}} << true;
}

void TestLine::BoundingBoxesMeetInclusively()
{
    QFETCH(SSegments, segments);
    QFETCH(bool, bExpected);
    QCOMPARE(CLine::IsRectCross(segments.ptP1, segments.ptP2, segments.ptQ1, segments.ptQ2), bExpected);
}

void TestLine::SegmentsStraddleEachOther_data()
{
    QTest::addColumn<SSegments>("segments");
    QTest::addColumn<bool>("bExpected");
    const float fEpsilon = std::ldexp(1.0F, -23);
    QTest::newRow("across") << SSegments{{0, 0}, {2, 2}, {0, 2}, {2, 0}} << true;
    QTest::newRow("q on one side of p") << SSegments{{0, 0}, {1, 0}, {0, 1}, {1, 2}} << false;
    QTest::newRow("p on one side of q") << SSegments{{1, 1}, {1, 2}, {0, 0}, {2, 0}} << false;
    QTest::newRow("a touch is no crossing") << SSegments{{0, 0}, {1, 0}, {0.5F, 0}, {0.5F, 1}} << false;
    QTest::newRow("a common end is no crossing") << SSegments{{0, 0}, {1, 0}, {1, 0}, {1, 1}} << false;
    QTest::newRow("collinear segments pass, apart too") << SSegments{{0, 0}, {1, 1}, {2, 2}, {3, 3}} << true;
    QTest::newRow("side values of 2^-23 are still none")
        << SSegments{{0, 0}, {1, 0}, {0, fEpsilon}, {1, fEpsilon}} << true;
    QTest::newRow("side values above 2^-23 tell a side")
        << SSegments{{0, 0}, {1, 0}, {0, std::nextafter(fEpsilon, 1.0F)}, {1, fEpsilon}} << false;
    QTest::newRow("a side value is an area: a short segment is near everything")
        << SSegments{{0, 0}, {1e-7F, 0}, {0, 0.5F}, {1e-7F, 0.5F}} << true;
    QTest::newRow("the second point's term precedes the first's for p")
        << SSegments{{0.8912001F, 0.9493228F},
                     {0.38314632F, 0.5526064F},
                     {0.39484343F, 0.56174016F},
                     {0.5830567F, 0.6336419F}}
        << true;
    QTest::newRow("the second point's term precedes the first's for p, once more")
        << SSegments{{0.20030276F, 0.16082226F},
                     {0.49714005F, 0.699278F},
                     {0.39302206F, 0.5104105F},
                     {0.5374357F, 0.42211118F}}
        << true;
    QTest::newRow("the first point's term precedes the second's for q")
        << SSegments{{0.16697033F, 0.030639479F},
                     {0.49027514F, 0.059717745F},
                     {0.16827582F, 0.027482638F},
                     {0.11006936F, 0.16823292F}}
        << true;
}

void TestLine::SegmentsStraddleEachOther()
{
    QFETCH(SSegments, segments);
    QFETCH(bool, bExpected);
    QCOMPARE(CLine::IsLineSegmentCross(segments.ptP1, segments.ptP2, segments.ptQ1, segments.ptQ2),
             bExpected);
}

void TestLine::SegmentsCross_data()
{
    QTest::addColumn<SSegments>("segments");
    QTest::addColumn<bool>("bExpected");
    const float fBelow = std::nextafter(std::ldexp(1.0F, -23), 0.0F);
    QTest::newRow("across") << SSegments{{0, 0}, {2, 2}, {0, 2}, {2, 0}} << true;
    QTest::newRow("itself") << SSegments{{0, 0}, {2, 2}, {0, 0}, {2, 2}} << false;
    QTest::newRow("its reverse") << SSegments{{0, 0}, {2, 2}, {2, 2}, {0, 0}} << false;
    QTest::newRow("itself within the tolerance")
        << SSegments{{0, 0}, {2, 2}, {fBelow, -fBelow}, {2, 2}} << false;
    QTest::newRow("collinear, shifted by the tolerance")
        << SSegments{{0, 0}, {2, 0}, {std::ldexp(1.0F, -23), 0}, {2, 0}} << true;
    QTest::newRow("collinear, sharing the first ends") << SSegments{{0, 0}, {1, 1}, {0, 0}, {2, 2}} << true;
    QTest::newRow("collinear, sharing the last ends") << SSegments{{0, 0}, {2, 2}, {1, 1}, {2, 2}} << true;
    QTest::newRow("collinear, the second begins where the first ends")
        << SSegments{{0, 0}, {1, 1}, {1, 1}, {2, 2}} << true;
    QTest::newRow("collinear, the first begins where the second ends")
        << SSegments{{1, 1}, {2, 2}, {0, 0}, {1, 1}} << true;
    QTest::newRow("collinear and overlapping") << SSegments{{0, 0}, {2, 2}, {1, 1}, {3, 3}} << true;
    QTest::newRow("collinear and apart: the boxes tell")
        << SSegments{{0, 0}, {1, 1}, {2, 2}, {3, 3}} << false;
    QTest::newRow("one end on the other, the far end off it")
        << SSegments{{0, 0}, {1, 0}, {0.5F, 0}, {0.5F, 1}} << false;
    QTest::newRow("the other way round") << SSegments{{0.5F, 0}, {0.5F, 1}, {0, 0}, {1, 0}} << false;
    QTest::newRow("a NaN is on no side") << SSegments{{0, 0}, {1, c_fNaN}, {0, 1}, {1, 0}} << false;
}

void TestLine::SegmentsCross()
{
    QFETCH(SSegments, segments);
    QFETCH(bool, bExpected);
    QCOMPARE(IsCross(segments), bExpected);
}

void TestLine::ACrossingHasAPoint_data()
{
    QTest::addColumn<SSegments>("segments");
    QTest::addColumn<Point>("ptExpected");
    QTest::newRow("diagonals") << SSegments{{0, 0}, {2, 2}, {0, 2}, {2, 0}} << Point(1, 1);
    QTest::newRow("level and vertical")
        << SSegments{{0, 0.25F}, {1, 0.25F}, {0.75F, 0}, {0.75F, 1}} << Point(0.75F, 0.25F);
    QTest::newRow("x and y each by a formula of its own") << SSegments{{0.27048752F, 0.09964871F},
                                                                       {0.11268478F, 0.77898306F},
                                                                       {0.7272893F, 0.18484592F},
                                                                       {0.18916953F, 0.41665533F}}
                                                          << Point(0.19770397F, 0.41297886F);
}

void TestLine::ACrossingHasAPoint()
{
    QFETCH(SSegments, segments);
    QFETCH(Point, ptExpected);
    float fX = c_fUntouched;
    float fY = c_fUntouched;
    QVERIFY(GetSegmentCross(segments, fX, fY));
    COMPARE_BITS(fX, ptExpected.x);
    COMPARE_BITS(fY, ptExpected.y);
}

void TestLine::WithoutACrossingNothingIsStored_data()
{
    QTest::addColumn<SSegments>("segments");
    QTest::newRow("apart") << SSegments{{0, 0}, {1, 0}, {0, 1}, {1, 1}};
    QTest::newRow("a touch") << SSegments{{0, 0}, {1, 0}, {0.5F, 0}, {0.5F, 1}};
    QTest::newRow("itself") << SSegments{{0, 0}, {1, 0}, {0, 0}, {1, 0}};
    QTest::newRow("collinear: passes IsCross, has no determinant")
        << SSegments{{0, 0}, {2, 2}, {1, 1}, {3, 3}};
    QTest::newRow("across, but too short for a determinant")
        << SSegments{{0, 0}, {1e-4F, 1e-4F}, {0, 1e-4F}, {1e-4F, 0}};
}

void TestLine::WithoutACrossingNothingIsStored()
{
    QFETCH(SSegments, segments);
    float fX = c_fUntouched;
    float fY = c_fUntouched;
    QVERIFY(!GetSegmentCross(segments, fX, fY));
    COMPARE_BITS(fX, c_fUntouched);
    COMPARE_BITS(fY, c_fUntouched);
}

void TestLine::TheLeastSquaresLineFits_data()
{
    QTest::addColumn<QVector<float>>("vecX");
    QTest::addColumn<QVector<float>>("vecY");
    QTest::addColumn<float>("fA");
    QTest::addColumn<float>("fC");
    QTest::newRow("points on a line") << QVector<float>{0, 1, 2} << QVector<float>{1, 3, 5} << -2.0F << -1.0F;
    QTest::newRow("between points") << QVector<float>{0, 1, 2, 3} << QVector<float>{0, 2, 0, 2} << -0.4F
                                    << -0.4F;
    QTest::newRow("level") << QVector<float>{0, 1, 2} << QVector<float>{3, 3, 3} << -0.0F << -3.0F;
    QTest::newRow("products round to float before they are summed")
        << QVector<float>{0.3898634F, 0.33418202F, 0.68004775F, 0.9285194F}
        << QVector<float>{0.174631F, 0.73979443F, 0.7339511F, 0.8356573F} << -0.6218123F << -0.25839666F;
}

void TestLine::TheLeastSquaresLineFits()
{
    QFETCH(QVector<float>, vecX);
    QFETCH(QVector<float>, vecY);
    QFETCH(float, fA);
    QFETCH(float, fC);
    CLine line = AnyLine();
    line.FitLine(vecX.data(), vecY.data(), int(vecX.size()));
    COMPARE_COEFFICIENTS(line, fA, 1.0F, fC);
}

void TestLine::AFitWithoutAnAnswerIsNotFinite_data()
{
    QTest::addColumn<QVector<float>>("vecX");
    QTest::addColumn<QVector<float>>("vecY");
    QTest::newRow("no samples") << QVector<float>{} << QVector<float>{};
    QTest::newRow("one sample") << QVector<float>{0.5F} << QVector<float>{0.5F};
    QTest::newRow("one x, a rising y") << QVector<float>{0.5F, 0.5F} << QVector<float>{0, 1};
}

void TestLine::AFitWithoutAnAnswerIsNotFinite()
{
    QFETCH(QVector<float>, vecX);
    QFETCH(QVector<float>, vecY);
    CLine line = AnyLine();
    line.FitLine(vecX.data(), vecY.data(), int(vecX.size()));
    QVERIFY(!std::isfinite(CoefficientsOf(line).fA));
    COMPARE_BITS(CoefficientsOf(line).fB, 1.0F);
    QVERIFY(!std::isfinite(CoefficientsOf(line).fC));
}

void TestLine::AFitThatRoundsToTheVerticalSlopeIsVertical()
{
    // The means are 0, and each product is exact: the slope is y/x, the largest float.
    float arrX[] = {std::ldexp(1.0F, -20), -std::ldexp(1.0F, -20)};
    float arrY[] = {std::ldexp(c_fLargest, -20), -std::ldexp(c_fLargest, -20)};
    CLine line = AnyLine();
    line.FitLine(arrX, arrY, 2);
    COMPARE_COEFFICIENTS(line, 1.0F, 0.0F, -0.0F);
}

void TestLine::NothingIsAllocated()
{
    std::array<float, 4> arrX = {0.1F, 0.2F, 0.3F, 0.4F};
    std::array<float, 4> arrY = {0.4F, 0.1F, 0.3F, 0.2F};
    Point ptP1(0, 0);
    Point ptP2(2, 2);
    const Point ptQ1(0, 2);
    const Point ptQ2(2, 0);
    float fX = 0.0F;
    float fY = 0.0F;

    const CAllocationCounter counter;
    CLine line(ptP1, ptP2);
    const Point ptCross = line & CLine(ptP1, 0.5F);
    const bool bCross = CLine::GetSegmentCross(ptP1, ptP2, ptQ1, ptQ2, fX, fY);
    const float fDistance = line.Distance2(line.GetFootPoint(ptQ1));
    line.FitLine(arrX.data(), arrY.data(), 4);
    const std::size_t nAllocations = counter.Count();

    QCOMPARE(nAllocations, std::size_t(0));
    QVERIFY(bCross);
    QVERIFY(std::isfinite(ptCross.x + fDistance));
}

QTEST_APPLESS_MAIN(TestLine)
#include "TestLine.moc"
