#include "SenderModuleDialog/geometry/CalcChromaRatio.h"
#include "tests/geometry/Points.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr float c_fUntouched = -7.0F;

/// Opens the outline to the tests.
class CCalcChromaRatioProbe : public CCalcChromaRatio
{
public:
    using CCalcChromaRatio::m_nCrossPointNum;
    using CCalcChromaRatio::m_vecCrossPoint;

    void SetOutline(const std::vector<Point>& vecPoints)
    {
        m_vecCrossPoint = vecPoints;
        m_nCrossPointNum = int(vecPoints.size());
    }

    QStringList Outline() const
    {
        QStringList listOutline;
        for (int i = 0; i < m_nCrossPointNum; ++i) {
            const Point& pt = m_vecCrossPoint[std::size_t(i)];
            listOutline.append(QStringLiteral("%1,%2").arg(double(pt.x)).arg(double(pt.y)));
        }
        return listOutline;
    }
};

QStringList Split(const char* szOutline)
{
    return QString::fromLatin1(szOutline).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

const Triangle c_triangleRight = {{0, 0}, {1, 0}, {0, 1}};
const Triangle c_triangleNtsc = {{0.67F, 0.33F}, {0.21F, 0.71F}, {0.14F, 0.08F}};
const Triangle c_triangleDciP3 = {{0.68F, 0.32F}, {0.265F, 0.69F}, {0.15F, 0.06F}};

} // namespace

class TestCalcChromaRatio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheRatioIsThePartOfTheSecondThatTheFirstCovers_data();
    void TheRatioIsThePartOfTheSecondThatTheFirstCovers();
    void AReferenceWithoutAreaLeavesTheRatioUnwritten_data();
    void AReferenceWithoutAreaLeavesTheRatioUnwritten();
    void TheOutlineIsCollectedInOrder_data();
    void TheOutlineIsCollectedInOrder();
    void TheOutlineIsReservedForTheWorstCase();
    void TheOutlineIsSortedByQuadrants_data();
    void TheOutlineIsSortedByQuadrants();
    void TheAreaIsAFanOfTriangles_data();
    void TheAreaIsAFanOfTriangles();
    void HeronsFormulaGivesTheArea_data();
    void HeronsFormulaGivesTheArea();
    void PointsAreComparedCounterClockwise_data();
    void PointsAreComparedCounterClockwise();
    void DirectionsHaveAQuadrant_data();
    void DirectionsHaveAQuadrant();
    void DistancesAreEuclidean();
    void APointIsInsideATriangle_data();
    void APointIsInsideATriangle();
    void TheWrapOfTheEdgeTestIsThatOfATriangle_data();
    void TheWrapOfTheEdgeTestIsThatOfATriangle();
    void FewerThanThreePointsFault_data();
    void FewerThanThreePointsFault();
    void NoPolygonFaults();
    void TestsOfPointsAllocateNothing();
    void TheVectorFormWorksOnACopy();
};

void TestCalcChromaRatio::TheRatioIsThePartOfTheSecondThatTheFirstCovers_data()
{
    QTest::addColumn<Triangle>("vecA");
    QTest::addColumn<Triangle>("vecB");
    QTest::addColumn<float>("fExpected");
    const Triangle triangleQuarter = {{0.125F, 0.125F}, {0.625F, 0.125F}, {0.125F, 0.625F}};
    QTest::newRow("apart") << c_triangleRight << Triangle{{2, 2}, {3, 2}, {2, 3}} << 0.0F;
    QTest::newRow("a touch at a corner") << c_triangleRight << Triangle{{1, 0}, {2, 0}, {2, 1}} << 0.0F;
    QTest::newRow("a inside b: the ratio of the areas") << triangleQuarter << c_triangleRight << 0.25F;
    QTest::newRow("b inside a: all of it") << c_triangleRight << triangleQuarter << 1.0F;
    QTest::newRow("identical: the fan over repeated points is clipped")
        << c_triangleNtsc << c_triangleNtsc << 1.0F;
    QTest::newRow("identical: the fan starts at another corner than the reference and rounds down")
        << c_triangleDciP3 << c_triangleDciP3 << 0.999999702F;
    QTest::newRow("identical, the other way round")
        << Triangle{c_triangleNtsc[2], c_triangleNtsc[1], c_triangleNtsc[0]} << c_triangleNtsc << 1.0F;
    QTest::newRow("only the first three points count")
        << Triangle{{0.125F, 0.125F}, {0.625F, 0.125F}, {0.125F, 0.625F}, {0.125F, 0.125F}} << c_triangleRight
        << 0.25F;
}

void TestCalcChromaRatio::TheRatioIsThePartOfTheSecondThatTheFirstCovers()
{
    QFETCH(Triangle, vecA);
    QFETCH(Triangle, vecB);
    QFETCH(float, fExpected);
    float fRatio = c_fUntouched;
    QVERIFY(CCalcChromaRatio().CalcChromaRatio(vecA, vecB, fRatio));
    COMPARE_BITS(fRatio, fExpected);
}

void TestCalcChromaRatio::AReferenceWithoutAreaLeavesTheRatioUnwritten_data()
{
    QTest::addColumn<Triangle>("vecReference");
    QTest::newRow("all equal") << Triangle{{0.25F, 0.25F}, {0.25F, 0.25F}, {0.25F, 0.25F}};
    QTest::newRow("on one line") << Triangle{{0, 0}, {0.25F, 0.25F}, {0.5F, 0.5F}};
    QTest::newRow("too small") << Triangle{{0, 0}, {0.0004F, 0}, {0, 0.0004F}};
}

void TestCalcChromaRatio::AReferenceWithoutAreaLeavesTheRatioUnwritten()
{
    QFETCH(Triangle, vecReference);
    Triangle vecA = c_triangleRight;
    float fRatio = c_fUntouched;
    CCalcChromaRatio calculator;
    QVERIFY2(calculator.CalcChromaRatio(vecA, vecReference, fRatio), "the failure is hidden");
    COMPARE_BITS(fRatio, c_fUntouched);
    QVERIFY(!calculator.CalcPolygonArea(vecReference, fRatio));
    COMPARE_BITS(fRatio, c_fUntouched);
}

void TestCalcChromaRatio::TheOutlineIsCollectedInOrder_data()
{
    QTest::addColumn<Triangle>("vecA");
    QTest::addColumn<Triangle>("vecB");
    QTest::addColumn<QStringList>("listExpected");
    QTest::newRow("apart") << c_triangleRight << Triangle{{2, 2}, {3, 2}, {2, 3}} << QStringList();
    QTest::newRow("identical: every corner twice, b's first")
        << c_triangleRight << c_triangleRight << Split("0,0 0,0 1,0 1,0 0,1 0,1");
    QTest::newRow("a inside b: the corners of a")
        << Triangle{{0.125F, 0.125F}, {0.25F, 0.125F}, {0.125F, 0.25F}} << c_triangleRight
        << Split("0.125,0.125 0.25,0.125 0.125,0.25");
    QTest::newRow("crossings come first, by a's edges and then by b's")
        << Triangle{{0, 0}, {8, 0}, {4, 8}} << Triangle{{2, -2}, {6, -2}, {4, 4}}
        << Split("5.33333,0 2.66667,0 4,4");
    QTest::newRow("of corners with one number b's comes before a's")
        << Triangle{{0, 0}, {4, 0}, {0, 4}} << Triangle{{1, 1}, {-3, 1}, {1, -3}} << Split("1,0 0,1 1,1 0,0");
    QTest::newRow("a corner on an edge is there once")
        << Triangle{{0, 0}, {4, 0}, {0, 4}} << Triangle{{2, 0}, {3, -2}, {1, -2}} << Split("2,0");
}

void TestCalcChromaRatio::TheOutlineIsCollectedInOrder()
{
    QFETCH(Triangle, vecA);
    QFETCH(Triangle, vecB);
    CCalcChromaRatioProbe probe;
    QVERIFY(probe.CalcCrossPoint(vecA, vecB));
    QTEST(probe.Outline(), "listExpected");
}

void TestCalcChromaRatio::TheOutlineIsReservedForTheWorstCase()
{
    Triangle vecA = c_triangleRight;
    Triangle vecB = c_triangleRight;
    CCalcChromaRatioProbe probe;
    probe.CalcCrossPoint(vecA, vecB);
    QCOMPARE(probe.m_vecCrossPoint.size(), std::size_t(15));
    Triangle vecApart = {{2, 2}, {3, 2}, {2, 3}};
    probe.CalcCrossPoint(vecA, vecApart);
    QCOMPARE(probe.m_nCrossPointNum, 0);
    QCOMPARE(probe.m_vecCrossPoint.size(), std::size_t(15));
}

void TestCalcChromaRatio::TheOutlineIsSortedByQuadrants_data()
{
    QTest::addColumn<std::vector<Point>>("vecPoints");
    QTest::addColumn<QStringList>("listExpected");
    QTest::newRow("nothing") << std::vector<Point>{} << QStringList();
    QTest::newRow("one point") << std::vector<Point>{{3, 4}} << Split("3,4");
    QTest::newRow("quadrants 1 to 4")
        << std::vector<Point>{{1, -1}, {-1, 1}, {1, 1}, {-1, -1}} << Split("1,1 -1,1 -1,-1 1,-1");
    QTest::newRow("on the axes: +y, -x and -y, +x")
        << std::vector<Point>{{1, 0}, {0, -1}, {-1, 0}, {0, 1}} << Split("0,1 -1,0 0,-1 1,0");
    QTest::newRow("counter-clockwise within a quadrant")
        << std::vector<Point>{{1, 3}, {3, 1}, {2, 2}, {-6, -6}} << Split("3,1 2,2 1,3 -6,-6");
}

void TestCalcChromaRatio::TheOutlineIsSortedByQuadrants()
{
    QFETCH(std::vector<Point>, vecPoints);
    CCalcChromaRatioProbe probe;
    probe.SetOutline(vecPoints);
    QVERIFY(probe.SortPoint());
    QTEST(probe.Outline(), "listExpected");
}

void TestCalcChromaRatio::TheAreaIsAFanOfTriangles_data()
{
    QTest::addColumn<std::vector<Point>>("vecPoints");
    QTest::addColumn<bool>("bResult");
    QTest::addColumn<float>("fRatio");
    QTest::newRow("nothing") << std::vector<Point>{} << true << 0.0F;
    QTest::newRow("two points") << std::vector<Point>{{0, 0}, {1, 0}} << true << 0.0F;
    QTest::newRow("a triangle") << std::vector<Point>{{0, 0}, {4, 0}, {0, 3}} << true << 0.25F;
    QTest::newRow("a rectangle, from its first point")
        << std::vector<Point>{{0, 0}, {4, 0}, {4, 3}, {0, 3}} << true << 0.5F;
    QTest::newRow("more than the reference is clipped")
        << std::vector<Point>{{0, 0}, {8, 0}, {8, 6}, {0, 6}} << true << 1.0F;
    QTest::newRow("NaN is no ratio") << std::vector<Point>{{0, 0}, {4, 0}, {NAN, 3}} << false << NAN;
}

void TestCalcChromaRatio::TheAreaIsAFanOfTriangles()
{
    QFETCH(std::vector<Point>, vecPoints);
    QFETCH(float, fRatio);
    CCalcChromaRatioProbe probe;
    probe.SetOutline(vecPoints);
    // Area 24. All sides here are whole numbers, so that Heron's formula is exact.
    Triangle vecReference = {{0, 0}, {8, 0}, {0, 6}};
    float fActual = c_fUntouched;
    QTEST(probe.CalcPolygonArea(vecReference, fActual), "bResult");
    COMPARE_BITS(fActual, fRatio);
}

void TestCalcChromaRatio::HeronsFormulaGivesTheArea_data()
{
    QTest::addColumn<Triangle>("vecTriangle");
    QTest::addColumn<float>("fExpected");
    QTest::newRow("3, 4, 5") << Triangle{{0, 0}, {4, 0}, {0, 3}} << 6.0F;
    QTest::newRow("three equal points") << Triangle{{1, 1}, {1, 1}, {1, 1}} << 0.0F;
    QTest::newRow("thin: the product under the root is negative")
        << Triangle{{0.94653946F, 0.08777947F}, {0.739973F, 0.43768507F}, {0.92285174F, 0.12790443F}} << 0.0F;
    QTest::newRow("the factors round in their order")
        << Triangle{{0.026663184F, 0.96552664F}, {0.21891049F, 0.094270855F}, {0.474586F, 0.16475914F}}
        << 0.118155F;
    QTest::newRow("the factors round in their order, once more")
        << Triangle{{0.6224516F, 0.34635907F}, {0.123945594F, 0.051891215F}, {0.7276763F, 0.27508885F}}
        << 0.033256963F;
}

void TestCalcChromaRatio::HeronsFormulaGivesTheArea()
{
    QFETCH(Triangle, vecTriangle);
    QFETCH(float, fExpected);
    float fArea = c_fUntouched;
    QVERIFY(CCalcChromaRatio::CalcTriangleArea(vecTriangle[0], vecTriangle[1], vecTriangle[2], fArea));
    COMPARE_BITS(fArea, fExpected);
}

void TestCalcChromaRatio::PointsAreComparedCounterClockwise_data()
{
    QTest::addColumn<Point>("ptA");
    QTest::addColumn<Point>("ptB");
    QTest::addColumn<bool>("bExpected");
    QTest::newRow("a in a later quadrant comes after") << Point(2, 0) << Point(2, 2) << true;
    QTest::newRow("a in an earlier quadrant does not") << Point(2, 2) << Point(2, 0) << false;
    QTest::newRow("within a quadrant: a farther round comes after") << Point(2, 3) << Point(3, 2) << true;
    QTest::newRow("within a quadrant: a less far round does not") << Point(3, 2) << Point(2, 3) << false;
    QTest::newRow("one direction: neither") << Point(2, 2) << Point(3, 3) << false;
}

void TestCalcChromaRatio::PointsAreComparedCounterClockwise()
{
    QFETCH(Point, ptA);
    QFETCH(Point, ptB);
    Point ptCentre(1, 1);
    QTEST(CCalcChromaRatio::ColckwiseCmp(ptA, ptB, ptCentre), "bExpected");
}

void TestCalcChromaRatio::DirectionsHaveAQuadrant_data()
{
    QTest::addColumn<Point>("ptDirection");
    QTest::addColumn<int>("nExpected");
    QTest::newRow("right and up") << Point(1, 1) << 1;
    QTest::newRow("left and up") << Point(-1, 1) << 2;
    QTest::newRow("left and down") << Point(-1, -1) << 3;
    QTest::newRow("right and down") << Point(1, -1) << 4;
    QTest::newRow("the origin") << Point(0, 0) << 3;
    QTest::newRow("straight up") << Point(0, 1) << 2;
    QTest::newRow("right") << Point(1, 0) << 4;
    QTest::newRow("left") << Point(-1, 0) << 3;
    QTest::newRow("straight down") << Point(0, -1) << 3;
    QTest::newRow("NaN") << Point(NAN, NAN) << 3;
}

void TestCalcChromaRatio::DirectionsHaveAQuadrant()
{
    QFETCH(Point, ptDirection);
    QTEST(CCalcChromaRatio::CalcQuadrant(ptDirection.x, ptDirection.y), "nExpected");
}

void TestCalcChromaRatio::DistancesAreEuclidean()
{
    COMPARE_BITS(CCalcChromaRatio::CalcDistance({1, 1}, {4, 5}), 5.0F);
    COMPARE_BITS(CCalcChromaRatio::CalcDistance({4, 5}, {1, 1}), 5.0F);
    COMPARE_BITS(CCalcChromaRatio::CalcDistance({1, 1}, {1, 1}), 0.0F);
    COMPARE_BITS(CCalcChromaRatio::CalcDistance({0, 0}, {1, 1}), std::sqrt(2.0F));
}

void TestCalcChromaRatio::APointIsInsideATriangle_data()
{
    QTest::addColumn<Triangle>("vecTriangle");
    QTest::addColumn<Point>("pt");
    QTest::addColumn<bool>("bExpected");
    const Triangle triangle = {{0, 0}, {4, 0}, {0, 4}};
    QTest::newRow("inside") << triangle << Point(1, 1) << true;
    QTest::newRow("left of it") << triangle << Point(-1, 1) << false;
    QTest::newRow("right of it") << triangle << Point(4, 1) << false;
    QTest::newRow("above it") << triangle << Point(1, 5) << false;
    QTest::newRow("below it") << triangle << Point(1, -1) << false;
    QTest::newRow("the first corner") << triangle << Point(0, 0) << true;
    QTest::newRow("the second corner") << triangle << Point(4, 0) << true;
    QTest::newRow("the third corner") << triangle << Point(0, 4) << true;
    QTest::newRow("on the first edge") << triangle << Point(1, 0) << true;
    QTest::newRow("on the second edge") << triangle << Point(2, 2) << true;
    QTest::newRow("on the third edge") << triangle << Point(0, 3) << true;
    QTest::newRow("on an edge's line, beyond its end") << triangle << Point(5, 0) << false;
    QTest::newRow("as high as a corner that points right")
        << Triangle{{0, 0}, {4, 2}, {0, 4}} << Point(1, 2) << true;
    QTest::newRow("beyond a corner that points right")
        << Triangle{{0, 0}, {4, 2}, {0, 4}} << Point(5, 2) << false;
    QTest::newRow("as high as a corner that points left")
        << Triangle{{4, 0}, {4, 4}, {0, 2}} << Point(-1, 2) << false;
    QTest::newRow("clockwise corners") << Triangle{{0, 4}, {4, 0}, {0, 0}} << Point(1, 1) << true;
}

void TestCalcChromaRatio::APointIsInsideATriangle()
{
    QFETCH(Triangle, vecTriangle);
    QFETCH(Point, pt);
    QFETCH(bool, bExpected);
    QCOMPARE(CCalcChromaRatio::G_IsPointInPolygon(&vecTriangle, pt), bExpected);
    QCOMPARE(CCalcChromaRatio::G_IsPointInPolygon2(pt, vecTriangle.data(), 3), bExpected);
}

void TestCalcChromaRatio::TheWrapOfTheEdgeTestIsThatOfATriangle_data()
{
    QTest::addColumn<std::vector<Point>>("vecPoints");
    QTest::addColumn<Point>("pt");
    QTest::addColumn<bool>("bExpected");
    const std::vector<Point> vecSquare = {{0, 0}, {4, 0}, {4, 4}, {0, 4}};
    QTest::newRow("no points") << std::vector<Point>{} << Point(0, 0) << false;
    QTest::newRow("one point: no edge") << std::vector<Point>{{1, 1}} << Point(1, 1) << false;
    QTest::newRow("two points: on the edge between them")
        << std::vector<Point>{{0, 0}, {4, 0}} << Point(1, 0) << true;
    QTest::newRow("two points: off it") << std::vector<Point>{{0, 0}, {4, 0}} << Point(1, 1) << false;
    QTest::newRow("two points: the same place twice")
        << std::vector<Point>{{1, 1}, {1, 1}} << Point(1, 1) << true;
    QTest::newRow("a square: inside") << vecSquare << Point(1, 2) << true;
    QTest::newRow("a square: on an edge that is tested") << vecSquare << Point(4, 2) << true;
    QTest::newRow("a square: its last edge is none, so its top is outside by the count")
        << std::vector<Point>{{0, 0}, {0, 4}, {4, 4}, {4, 0}} << Point(3, 0) << false;
    // Vertex 3 is paired with vertex 1, so the line between them counts as an edge: here it runs outside.
    QTest::newRow("an edge that is none")
        << std::vector<Point>{{0, 0}, {4, 0}, {1, 1}, {0, 4}} << Point(2, 2) << true;
}

void TestCalcChromaRatio::TheWrapOfTheEdgeTestIsThatOfATriangle()
{
    QFETCH(std::vector<Point>, vecPoints);
    QFETCH(Point, pt);
    QFETCH(bool, bExpected);
    // Exactly this many points on the heap, so that a sanitizer sees a read beyond them.
    std::vector<Point> vecExact(vecPoints.begin(), vecPoints.end());
    QCOMPARE(CCalcChromaRatio::G_IsPointInPolygon2(pt, vecExact.data(), int(vecExact.size())), bExpected);
    QCOMPARE(CCalcChromaRatio::G_IsPointInPolygon(&vecExact, pt), bExpected);
    QVERIFY(!CCalcChromaRatio::G_IsPointInPolygon2(pt, vecExact.data(), -1));
}

void TestCalcChromaRatio::FewerThanThreePointsFault_data()
{
    QTest::addColumn<int>("nFirst");
    QTest::addColumn<int>("nSecond");
    QTest::newRow("the first has two") << 2 << 3;
    QTest::newRow("the second has two") << 3 << 2;
    QTest::newRow("both have none") << 0 << 0;
}

void TestCalcChromaRatio::FewerThanThreePointsFault()
{
    QFETCH(int, nFirst);
    QFETCH(int, nSecond);
    const SDeath death = RunToDeath([&] {
        Triangle vecA(c_triangleRight.begin(), c_triangleRight.begin() + nFirst);
        Triangle vecB(c_triangleRight.begin(), c_triangleRight.begin() + nSecond);
        float fRatio = 0.0F;
        CCalcChromaRatio().CalcChromaRatio(vecA, vecB, fRatio);
    });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("vecTriangle.size() >= 3"), death.strOutput.constData());
}

void TestCalcChromaRatio::NoPolygonFaults()
{
    const SDeath death = RunToDeath([] {
        Point pt(0.3F, 0.3F);
        CCalcChromaRatio::G_IsPointInPolygon(nullptr, pt);
    });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("\"pVecPolygon != nullptr\""), death.strOutput.constData());
}

void TestCalcChromaRatio::TestsOfPointsAllocateNothing()
{
    Triangle vecTriangle = c_triangleNtsc;
    float fArea = 0.0F;

    const CAllocationCounter counter;
    const bool bInside = CCalcChromaRatio::G_IsPointInPolygon2({0.3F, 0.3F}, vecTriangle.data(), 3);
    const bool bAfter = CCalcChromaRatio::ColckwiseCmp(vecTriangle[0], vecTriangle[1], vecTriangle[2]);
    CCalcChromaRatio::CalcTriangleArea(vecTriangle[0], vecTriangle[1], vecTriangle[2], fArea);
    const std::size_t nAllocations = counter.Count();

    QCOMPARE(nAllocations, std::size_t(0));
    QVERIFY(bInside);
    QVERIFY(bAfter || fArea > 0.0F);
}

void TestCalcChromaRatio::TheVectorFormWorksOnACopy()
{
    Triangle vecTriangle = c_triangleNtsc;
    Point pt(0.3F, 0.3F);
    const CAllocationCounter counter;
    const bool bInside = CCalcChromaRatio::G_IsPointInPolygon(&vecTriangle, pt);
    const std::size_t nAllocations = counter.Count();
    QVERIFY(bInside);
    QCOMPARE(nAllocations, std::size_t(1));
}

QTEST_APPLESS_MAIN(TestCalcChromaRatio)
#include "TestCalcChromaRatio.moc"
