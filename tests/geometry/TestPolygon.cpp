#include "SenderModuleDialog/geometry/Polygon.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <cmath>
#include <type_traits>

namespace {

/// Opens the working vector to the tests.
class CPolygonProbe : public CPolygon
{
public:
    using CPolygon::CPolygon;
    using CPolygon::m_vecHullPoints;
};

using Points = QVector<QPointF>;
using Pull = bool (CPolygon::*)(QPointF*) const;

// A host writes `CPolygon polygon = points;`.
static_assert(std::is_convertible_v<Points, CPolygon>);
static_assert(std::is_convertible_v<QPolygonF, CPolygon>);
static_assert(std::is_convertible_v<QRectF, CPolygon>);

// The nudge, and its share on each axis at 45 degrees.
constexpr float c_fNudge = 1e-5F;
const double c_dDiagonalStep = double(c_fNudge / std::sqrt(2.0F));

Points Square()
{
    return {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
}

/// Open to the right: the average of its vertices, (2.25, 1.5), lies in the notch.
Points Bracket()
{
    return {{0, 0}, {4, 0}, {4, 1}, {1, 1}, {1, 2}, {4, 2}, {4, 3}, {0, 3}};
}

/// A dent from below, and no edge that is level or vertical. The average of the vertices is (4, 2).
Points Dart()
{
    return {{0, 0}, {4, 2}, {8, 0}, {4, 6}};
}

} // namespace

Q_DECLARE_METATYPE(CPolygonProbe)
Q_DECLARE_METATYPE(Pull)

class TestPolygon : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void OnlyTheVectorConstructorPreparesForTheScan_data();
    void OnlyTheVectorConstructorPreparesForTheScan();
    void ConvexityComparesWithTheFirstCorner_data();
    void ConvexityComparesWithTheFirstCorner();
    void TheNudgeIsOneStepTowardAPoint_data();
    void TheNudgeIsOneStepTowardAPoint();
    void APointInsideIsLeftAlone_data();
    void APointInsideIsLeftAlone();
    void APointOutsideAConvexPolygonIsPulledIn_data();
    void APointOutsideAConvexPolygonIsPulledIn();
    void APointThatCrossesNoEdgeIsLeftAlone_data();
    void APointThatCrossesNoEdgeIsLeftAlone();
    void APointOutsideAConcavePolygonGoesToTheNearestPlace_data();
    void APointOutsideAConcavePolygonGoesToTheNearestPlace();
    void TheDispatcherChoosesByConvexity();
    void TheHullIsCounterClockwiseFromTheLowestPoint_data();
    void TheHullIsCounterClockwiseFromTheLowestPoint();
    void AHullStaysItsOwnHull();
    void TheScanLeavesTheHullInBothVectors();
    void TheScanAssertsThatItsResultIsConvex();
    void TheScanFaultsOutsideItsContract_data();
    void TheScanFaultsOutsideItsContract();
    void NoPointToPullFaults_data();
    void NoPointToPullFaults();
    void PullingAPointAllocatesNothing();
};

void TestPolygon::OnlyTheVectorConstructorPreparesForTheScan_data()
{
    QTest::addColumn<CPolygonProbe>("polygon");
    QTest::addColumn<Points>("vecBase");
    QTest::addColumn<Points>("vecHull");
    QTest::newRow("empty") << CPolygonProbe() << Points() << Points();
    QTest::newRow("from a polygon") << CPolygonProbe(QPolygonF(Square())) << Square() << Points();
    QTest::newRow("from a vector") << CPolygonProbe(Square()) << Square() << Square();
    QTest::newRow("from a rectangle: closed, as Qt closes it")
        << CPolygonProbe(QRectF(0, 0, 1, 1)) << Points(Square() << QPointF(0, 0)) << Points();
    QTest::newRow("from a count") << CPolygonProbe(3) << Points{{0, 0}, {0, 0}, {0, 0}} << Points();
    QTest::newRow("from a count of 0") << CPolygonProbe(0) << Points() << Points();
    QTest::newRow("from a count below 0") << CPolygonProbe(-1) << Points() << Points();
}

void TestPolygon::OnlyTheVectorConstructorPreparesForTheScan()
{
    QFETCH(CPolygonProbe, polygon);
    QTEST(Points(polygon), "vecBase");
    QTEST(polygon.m_vecHullPoints, "vecHull");
}

void TestPolygon::ConvexityComparesWithTheFirstCorner_data()
{
    QTest::addColumn<Points>("vecPoints");
    QTest::addColumn<bool>("bExpected");
    QTest::newRow("no vertex") << Points() << true;
    QTest::newRow("one vertex") << Points{{1, 1}} << true;
    QTest::newRow("two vertices: one corner is tested") << Points{{0, 0}, {1, 1}} << true;
    QTest::newRow("a square") << Square() << true;
    QTest::newRow("a square clockwise") << Points{{0, 1}, {1, 1}, {1, 0}, {0, 0}} << true;
    QTest::newRow("a dent at vertex 0 is not tested")
        << Points{{2, 1}, {4, 0}, {4, 4}, {0, 4}, {0, 0}} << true;
    QTest::newRow("a dent at vertex 1 is the reference")
        << Points{{0, 0}, {2, 1}, {4, 0}, {4, 4}, {0, 4}} << false;
    QTest::newRow("a dent at the last vertex") << Points{{4, 0}, {4, 4}, {0, 4}, {0, 0}, {2, 1}} << false;
    QTest::newRow("a reference of 0 accepts everything")
        << Points{{0, 0}, {1, 0}, {2, 0}, {1, 1}, {2, 2}, {0, 2}} << true;
    QTest::newRow("a straight corner later is no dent")
        << Points{{0, 0}, {2, 0}, {2, 1}, {2, 2}, {0, 2}} << true;
    QTest::newRow("a dent that float differences cannot see")
        << Points{{0, 0}, {1, 0}, {1, 1}, {0.5, 0.5 - 1e-9}} << true;
}

void TestPolygon::ConvexityComparesWithTheFirstCorner()
{
    QFETCH(Points, vecPoints);
    QTEST(CPolygon(vecPoints).IsConvex(), "bExpected");
}

void TestPolygon::TheNudgeIsOneStepTowardAPoint_data()
{
    QTest::addColumn<QPointF>("ptFrom");
    QTest::addColumn<QPointF>("ptToward");
    QTest::addColumn<QPointF>("ptExpected");
    const double dNudge = 9.999999747378752e-06;
    QTest::newRow("right") << QPointF(0.25, 0.5) << QPointF(1, 0.5) << QPointF(0.25 + dNudge, 0.5);
    QTest::newRow("left") << QPointF(0.25, 0.5) << QPointF(0, 0.5) << QPointF(0.25 - dNudge, 0.5);
    QTest::newRow("up to the right") << QPointF(0.1, 0.2) << QPointF(0.4, 0.7)
                                     << QPointF(0.100005144957413, 0.2000085749288701);
    QTest::newRow("down to the left")
        << QPointF(0.4, 0.7) << QPointF(0.1, 0.2) << QPointF(0.399994855042587, 0.6999914250711299);
    QTest::newRow("straight up does not move") << QPointF(0.25, 0) << QPointF(0.25, 1) << QPointF(0.25, 0);
    QTest::newRow("x that rounds to one float does not move")
        << QPointF(0.25, 0) << QPointF(0.25 + 1e-10, 1) << QPointF(0.25, 0);
    QTest::newRow("a point toward itself does not move")
        << QPointF(0.25, 0.5) << QPointF(0.25, 0.5) << QPointF(0.25, 0.5);
    QTest::newRow("an overshoot is not held back") << QPointF(0, 0) << QPointF(1e-6, 0) << QPointF(dNudge, 0);
}

void TestPolygon::TheNudgeIsOneStepTowardAPoint()
{
    QFETCH(QPointF, ptFrom);
    QFETCH(QPointF, ptToward);
    QFETCH(QPointF, ptExpected);
    const QPointF ptBefore = ptFrom;
    COMPARE_BITS(CPolygon::MakePointCloser(ptFrom, ptToward), ptExpected);
    COMPARE_BITS(ptFrom, ptBefore);
}

void TestPolygon::APointInsideIsLeftAlone_data()
{
    QTest::addColumn<Pull>("funcPull");
    QTest::addColumn<Points>("vecPoints");
    QTest::newRow("dispatched, convex") << Pull(&CPolygon::GetPointCloser) << Square();
    QTest::newRow("dispatched, concave") << Pull(&CPolygon::GetPointCloser) << Bracket();
    QTest::newRow("convex") << Pull(&CPolygon::GetPointCloser2Convex) << Square();
    QTest::newRow("concave") << Pull(&CPolygon::GetPointCloser2Concave) << Bracket();
}

void TestPolygon::APointInsideIsLeftAlone()
{
    QFETCH(Pull, funcPull);
    QFETCH(Points, vecPoints);
    const CPolygon polygon(vecPoints);
    QPointF pt(0.3, 0.6);
    QVERIFY((polygon.*funcPull)(&pt));
    COMPARE_BITS(pt, QPointF(0.3, 0.6));
}

void TestPolygon::APointOutsideAConvexPolygonIsPulledIn_data()
{
    QTest::addColumn<Points>("vecPoints");
    QTest::addColumn<QPointF>("pt");
    QTest::addColumn<QPointF>("ptExpected");
    const double dStep = c_dDiagonalStep;
    // From (0, 0.25) toward (0.5, 0.5) the slope is 1/2.
    const float fDX = c_fNudge / std::sqrt(0.5F * 0.5F + 1.0F);
    QTest::newRow("to its foot, not to where the ray crosses")
        << Square() << QPointF(-1, 0.25) << QPointF(double(fDX), 0.25 + double(0.5F * fDX));
    QTest::newRow("a foot right below the centre does not move")
        << Square() << QPointF(0.5, -1) << QPointF(0.5, 0);
    QTest::newRow("an end that is nearer: the first of the edge")
        << Square() << QPointF(2, -0.875) << QPointF(1 - dStep, 0 + dStep);
    QTest::newRow("an end that is nearer: the second of the edge")
        << Square() << QPointF(2, 1.875) << QPointF(1 - dStep, 1 - dStep);
    QTest::newRow("ends equally far: the second")
        << Square() << QPointF(0.5, 2) << QPointF(0 + dStep, 1 - dStep);
    QTest::newRow("the first crossed edge in vertex order decides, though another is nearer")
        << Bracket() << QPointF(2.25, -1) << QPointF(2.25, 0);
    QTest::newRow("an edge that the foot cannot enter: its nearer end, inside or not")
        << Bracket() << QPointF(2, 4)
        << QPointF(1 + double(c_fNudge / std::sqrt(0.4F * 0.4F + 1.0F)),
                   2 + double(-0.4F * (c_fNudge / std::sqrt(0.4F * 0.4F + 1.0F))));
}

void TestPolygon::APointOutsideAConvexPolygonIsPulledIn()
{
    QFETCH(Points, vecPoints);
    QFETCH(QPointF, pt);
    QFETCH(QPointF, ptExpected);
    QVERIFY(CPolygon(vecPoints).GetPointCloser2Convex(&pt));
    COMPARE_BITS(pt, ptExpected);
}

void TestPolygon::APointThatCrossesNoEdgeIsLeftAlone_data()
{
    QTest::addColumn<Points>("vecPoints");
    QTest::addColumn<QPointF>("pt");
    QTest::newRow("no vertices") << Points() << QPointF(0.5, 0.5);
    QTest::newRow("the ray goes exactly through a vertex") << Square() << QPointF(2, 2);
    // The average of these is (0, 0), vertex 0.
    QTest::newRow("the ray is an edge") << Points{{0, 0}, {0, 2}, {-1, -1}, {1, -1}} << QPointF(0, 2);
    QTest::newRow("the ray is an edge backwards")
        << Points{{0, 2}, {0, 0}, {1, -1}, {-1, -1}} << QPointF(0, 2);
}

void TestPolygon::APointThatCrossesNoEdgeIsLeftAlone()
{
    QFETCH(Points, vecPoints);
    QFETCH(QPointF, pt);
    const QPointF ptBefore = pt;
    QVERIFY(!CPolygon(vecPoints).GetPointCloser2Convex(&pt));
    COMPARE_BITS(pt, ptBefore);
}

void TestPolygon::APointOutsideAConcavePolygonGoesToTheNearestPlace_data()
{
    QTest::addColumn<Points>("vecPoints");
    QTest::addColumn<QPointF>("pt");
    QTest::addColumn<QPointF>("ptBest");
    QTest::addColumn<QPointF>("ptCentre");
    const QPointF ptCentre(2.25, 1.5);
    QTest::newRow("a vertex") << Dart() << QPointF(-1, -0.5) << QPointF(0, 0) << QPointF(4, 2);
    QTest::newRow("a foot") << Bracket() << QPointF(3, -0.5) << QPointF(3, 0) << ptCentre;
    QTest::newRow("of equal vertices the earliest")
        << Dart() << QPointF(4, -20) << QPointF(0, 0) << QPointF(4, 2);
    QTest::newRow("of equal feet the earliest") << Bracket() << QPointF(2, 1.5) << QPointF(2, 1) << ptCentre;
    QTest::newRow("a foot far beyond a vertical edge counts: only x is tested")
        << Bracket() << QPointF(4.5, 5) << QPointF(4, 5) << ptCentre;
    // The foot's x is the float 0.1, which is a little more than the edge's x.
    const Points vecOffFloat = {{0.1, 0}, {-1, 0}, {-1, 4}, {0.1, 4}};
    QTest::newRow("a foot on a vertical edge whose x is no float does not count")
        << vecOffFloat << QPointF(0.5, 1) << QPointF(0.1, 0) << QPointF((0.1 - 1.0 - 1.0 + 0.1) / 4.0, 2);
}

void TestPolygon::APointOutsideAConcavePolygonGoesToTheNearestPlace()
{
    QFETCH(Points, vecPoints);
    QFETCH(QPointF, pt);
    QFETCH(QPointF, ptBest);
    QFETCH(QPointF, ptCentre);
    QVERIFY(CPolygon(vecPoints).GetPointCloser2Concave(&pt));
    COMPARE_BITS(pt, CPolygon::MakePointCloser(ptBest, ptCentre));
}

void TestPolygon::TheDispatcherChoosesByConvexity()
{
    QPointF ptConvex(2, 2);
    QVERIFY2(!CPolygon(Square()).GetPointCloser(&ptConvex), "the convex treatment can fail");
    QPointF ptConcave(2.25, -1);
    QVERIFY(CPolygon(Bracket()).GetPointCloser(&ptConcave));
    QPointF ptSame(2.25, -1);
    CPolygon(Bracket()).GetPointCloser2Concave(&ptSame);
    COMPARE_BITS(ptConcave, ptSame);
}

void TestPolygon::TheHullIsCounterClockwiseFromTheLowestPoint_data()
{
    QTest::addColumn<Points>("vecPoints");
    QTest::addColumn<Points>("vecHull");
    QTest::newRow("a triangle") << Points{{0, 1}, {1, 0}, {0, 0}} << Points{{0, 0}, {1, 0}, {0, 1}};
    QTest::newRow("points inside go")
        << Points{{0, 1}, {0.5, 0.5}, {1, 1}, {0, 0}, {0.25, 0.5}, {1, 0}} << Square();
    QTest::newRow("points on an edge go")
        << Points{{0, 0}, {1, 0}, {1, 0.5}, {1, 1}, {0.5, 1}, {0, 1}, {0, 0.5}} << Square();
    QTest::newRow("repeated points go")
        << Points{{0, 0}, {1, 0}, {1, 0}, {1, 1}, {1, 1}, {0, 1}, {0, 1}} << Square();
    QTest::newRow("two lowest: the left one is the pivot")
        << Points{{1, 0}, {1, 1}, {0, 1}, {0.25, 0}} << Points{{0.25, 0}, {1, 0}, {1, 1}, {0, 1}};
    QTest::newRow("one angle: nearest first, so the farthest stays")
        << Points{{0, 0}, {4, 0}, {3, 3}, {1, 1}, {2, 2}, {0, 4}} << Points{{0, 0}, {4, 0}, {3, 3}, {0, 4}};
    QTest::newRow("the first two after the pivot are not tested against it: a straight start stays")
        << Points{{0, 0}, {1, 0}, {2, 0}, {2, 2}} << Points{{0, 0}, {1, 0}, {2, 0}, {2, 2}};
    QTest::newRow("of a longer straight start the first stays")
        << Points{{0, 0}, {1, 0}, {2, 0}, {3, 0}, {2, 2}} << Points{{0, 0}, {1, 0}, {3, 0}, {2, 2}};
    QTest::newRow("the pivot repeated stays, as the first after itself")
        << Points{{0, 0}, {1, 1}, {0, 0}, {1, 0}} << Points{{0, 0}, {0, 0}, {1, 0}, {1, 1}};
    QTest::newRow("all on one line: the stack keeps its last two, and the farthest follows")
        << Points{{0, 0}, {3, 3}, {1, 1}, {4, 4}, {2, 2}} << Points{{0, 0}, {1, 1}, {4, 4}};
}

void TestPolygon::TheHullIsCounterClockwiseFromTheLowestPoint()
{
    QFETCH(Points, vecPoints);
    CPolygon polygon(vecPoints);
    polygon.GrahamScan();
    QTEST(Points(polygon), "vecHull");
}

void TestPolygon::AHullStaysItsOwnHull()
{
    CPolygon polygon(Points{{0, 1}, {0.5, 0.5}, {1, 1}, {0, 0}, {1, 0}});
    polygon.GrahamScan();
    polygon.GrahamScan();
    QCOMPARE(Points(polygon), Square());
}

void TestPolygon::TheScanLeavesTheHullInBothVectors()
{
    CPolygonProbe polygon(Points{{0, 1}, {0.5, 0.5}, {1, 1}, {0, 0}, {1, 0}});
    polygon.GrahamScan();
    QCOMPARE(polygon.m_vecHullPoints, Square());
    QCOMPARE(Points(polygon), Square());
}

void TestPolygon::TheScanAssertsThatItsResultIsConvex()
{
    // A hull in double, whose differences, rounded to float, turn to the right at (0.55, 0.55).
    CPolygon polygon(
        Points{{0, 0}, {1, 0}, {1, 1}, {0.549999993, 0.5500000067}, {0.3699999956, 0.3700000051}});
    const SDeath death = RunToDeath([&polygon] { polygon.GrahamScan(); });
    QVERIFY(death.bAborted);
    const QByteArray strPlace = "\"GrahamScan\", Polygon, line 262: \"IsConvex()\"";
    QVERIFY2(death.strOutput.contains(strPlace), death.strOutput.constData());
}

void TestPolygon::TheScanFaultsOutsideItsContract_data()
{
    QTest::addColumn<CPolygonProbe>("polygon");
    QTest::addColumn<QByteArray>("strExpression");
    QTest::newRow("no points") << CPolygonProbe(Points()) << QByteArray("size() >= c_nMinPolygonPoints");
    QTest::newRow("two points") << CPolygonProbe(Points{{0, 0}, {1, 1}})
                                << QByteArray("size() >= c_nMinPolygonPoints");
    QTest::newRow("not prepared") << CPolygonProbe(QPolygonF(Square()))
                                  << QByteArray("m_vecHullPoints.size() == size()");
}

void TestPolygon::TheScanFaultsOutsideItsContract()
{
    QFETCH(CPolygonProbe, polygon);
    QFETCH(QByteArray, strExpression);
    const SDeath death = RunToDeath([&polygon] { polygon.GrahamScan(); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains(strExpression), death.strOutput.constData());
}

void TestPolygon::NoPointToPullFaults_data()
{
    QTest::addColumn<Pull>("funcPull");
    QTest::addColumn<Points>("vecPoints");
    QTest::newRow("dispatched, convex") << Pull(&CPolygon::GetPointCloser) << Square();
    QTest::newRow("dispatched, concave") << Pull(&CPolygon::GetPointCloser) << Bracket();
    QTest::newRow("convex") << Pull(&CPolygon::GetPointCloser2Convex) << Square();
    QTest::newRow("concave") << Pull(&CPolygon::GetPointCloser2Concave) << Bracket();
}

void TestPolygon::NoPointToPullFaults()
{
    QFETCH(Pull, funcPull);
    QFETCH(Points, vecPoints);
    const CPolygon polygon(vecPoints);
    const SDeath death = RunToDeath([&] { (polygon.*funcPull)(nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("\"pPoint != nullptr\""), death.strOutput.constData());
}

void TestPolygon::PullingAPointAllocatesNothing()
{
    const CPolygon square(Square());
    const CPolygon bracket(Bracket());
    QPointF ptConvex(2, -0.875);
    QPointF ptConcave(3, -0.5);

    const CAllocationCounter counter;
    const bool bConvex = square.GetPointCloser(&ptConvex);
    const bool bConcave = bracket.GetPointCloser(&ptConcave);
    const std::size_t nAllocations = counter.Count();

    QCOMPARE(nAllocations, std::size_t(0));
    QVERIFY(bConvex && bConcave);
}

QTEST_APPLESS_MAIN(TestPolygon)
#include "TestPolygon.moc"
