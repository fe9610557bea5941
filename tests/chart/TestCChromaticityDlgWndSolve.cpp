#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/chart/solve/ChartGeometry.h"
#include "oracles/chart/PlainChart.h"
#include "tests/chart/ChartInputs.h"
#include "tests/chart/StandardGroups.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <functional>

/// The chart's public operations that keep groups legal.
class TestCChromaticityDlgWndSolve : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheLastEdgeInListOrderWins();
    void APolygonOfTwoPointsIsNotLeft();
    void ARegionStopsThePointSeenFromTheWhite();
    void ARegionStopsThePointSeenFromItsCentre();
    void ARegionStopsAnyGroupLikeThePlainOne();
    void ARegionLeavesThePointAlone_data();
    void ARegionLeavesThePointAlone();
    void ASolvedVertexIsTheNearestPoint();
    void TheSolvingWithoutLocusLeavesTheNearestPointAlone();
    void NoGroupHasNoPlaceForAWhite();
    void AWhiteBroughtBackIsTheNearestPoint();
    void TheExcursionLeadsAwayFromTheOutsidePoint_data();
    void TheExcursionLeadsAwayFromTheOutsidePoint();
    void AGroupIsMadeLegalInPlace();
    void TheIndexSelectsThePointForTheLocusOnly();
    void NoGroupFaults();
};

namespace {

QList<CPoint> Square(float fFirst, float fLast)
{
    return {{fFirst, fFirst}, {fLast, fFirst}, {fLast, fLast}, {fFirst, fLast}};
}

} // namespace

void TestCChromaticityDlgWndSolve::TheLastEdgeInListOrderWins()
{
    CChromaticityDlgWnd chart(nullptr);
    CPoint ptOut(9.0F, 9.0F);
    // From the right through the whole square: the left edge closes the list.
    QVERIFY(chart.GetCIEIntersection(Square(0.0F, 1.0F), {2.0F, 0.5F}, {-1.0F, 0.5F}, ptOut));
    COMPARE_BITS(ptOut.x, 0.0001F);
    COMPARE_BITS(ptOut.y, 0.5F);
    // And the other way round: it wins again, where it is crossed first.
    QVERIFY(chart.GetCIEIntersection(Square(0.0F, 1.0F), {-1.0F, 0.5F}, {2.0F, 0.5F}, ptOut));
    COMPARE_BITS(ptOut.x, -0.0001F);
}

void TestCChromaticityDlgWndSolve::APolygonOfTwoPointsIsNotLeft()
{
    CChromaticityDlgWnd chart(nullptr);
    CPoint ptOut(9.0F, 8.0F);
    QVERIFY(!chart.GetCIEIntersection(Square(0.0F, 1.0F).mid(0, 2), {0.5F, -1.0F}, {0.5F, 1.0F}, ptOut));
    COMPARE_BITS(ptOut.x, 9.0F);
    COMPARE_BITS(ptOut.y, 8.0F);
}

void TestCChromaticityDlgWndSolve::ARegionStopsThePointSeenFromTheWhite()
{
    CChromaticityDlgWnd chart(nullptr);
    SChromaGroupInfo group = SrgbGroup();
    group.ptWhite = {0.25F, 0.25F};
    group.ptRed = {0.75F, 0.25F};
    chart.AddChromaGroupByIndex(4, group);
    chart.m_nHoverGroup = 4;
    chart.m_nHoverPoint = enRedPoint;
    QList<CPoint> listRegion = Square(0.125F, 0.5F);
    // The point that is passed in plays no part.
    CPoint point(9.0F, 9.0F);
    chart.GetFeasibleRegionNearstPoint(listRegion, point);
    COMPARE_BITS(point.x, 0.5F - 0.0001F);
    COMPARE_BITS(point.y, 0.25F);
}

void TestCChromaticityDlgWndSolve::ARegionStopsThePointSeenFromItsCentre()
{
    CChromaticityDlgWnd chart(nullptr);
    SChromaGroupInfo group = SrgbGroup();
    group.ptWhite = {5.0F, 5.0F};
    group.ptGreen = {0.5F, 2.0F};
    chart.AddChromaGroupByIndex(0, group);
    chart.m_nHoverGroup = 0;
    chart.m_nHoverPoint = enGreenPoint;
    QList<CPoint> listRegion = Square(0.25F, 0.75F);
    CPoint point(9.0F, 9.0F);
    chart.GetFeasibleRegionNearstPoint2(listRegion, point);
    // Straight up from the centre: no step inward on a vertical line.
    COMPARE_BITS(point.x, 0.5F);
    COMPARE_BITS(point.y, 0.75F);
}

void TestCChromaticityDlgWndSolve::ARegionStopsAnyGroupLikeThePlainOne()
{
    CChromaticityDlgWnd chart(nullptr);
    CPlainChart plain;
    CChartInputs inputs(51, plain.gamut.GetQPointFData());
    chart.AddChromaGroupByIndex(0, SrgbGroup());
    plain.mapGroups.insert(0, chart.GetChromaGroupByIndex(0));
    for (int i = 0; i < 100000; ++i) {
        *chart.GetChromaGroupByIndex(0) = inputs.Group();
        chart.m_nHoverGroup = plain.nHoverGroup = inputs.Whole(-1, 1);
        chart.m_nHoverPoint = plain.nHoverPoint = inputs.Whole(-1, 3);
        QList<CPoint> listRegion;
        for (int nPoint = inputs.Whole(0, 6); nPoint > 0; --nPoint)
            listRegion.append(inputs.Point());
        CPoint ptFast = inputs.Point();
        CPoint ptPlain = ptFast;
        if (inputs.Coin()) {
            chart.GetFeasibleRegionNearstPoint(listRegion, ptFast);
            plain.GetFeasibleRegionNearstPoint(listRegion, ptPlain);
        } else {
            chart.GetFeasibleRegionNearstPoint2(listRegion, ptFast);
            plain.GetFeasibleRegionNearstPoint2(listRegion, ptPlain);
        }
        COMPARE_BITS(ptFast.x, ptPlain.x);
        COMPARE_BITS(ptFast.y, ptPlain.y);
    }
}

void TestCChromaticityDlgWndSolve::ARegionLeavesThePointAlone_data()
{
    QTest::addColumn<int>("nGroup");
    QTest::addColumn<int>("nPoint");
    QTest::addColumn<int>("nRegionPoints");
    QTest::newRow("a region of two points") << 0 << 0 << 2;
    QTest::newRow("an empty region") << 0 << 0 << 0;
    QTest::newRow("no such group") << 1 << 0 << 4;
    QTest::newRow("no group") << -1 << 0 << 4;
    QTest::newRow("the white") << 0 << 3 << 4;
    QTest::newRow("no point") << 0 << -1 << 4;
}

void TestCChromaticityDlgWndSolve::ARegionLeavesThePointAlone()
{
    QFETCH(int, nGroup);
    QFETCH(int, nPoint);
    QFETCH(int, nRegionPoints);
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(0, SrgbGroup());
    chart.m_nHoverGroup = nGroup;
    chart.m_nHoverPoint = nPoint;
    QList<CPoint> listRegion = Square(0.25F, 0.35F).mid(0, nRegionPoints);
    CPoint point(9.0F, 8.0F);
    chart.GetFeasibleRegionNearstPoint(listRegion, point);
    chart.GetFeasibleRegionNearstPoint2(listRegion, point);
    COMPARE_BITS(point.x, 9.0F);
    COMPARE_BITS(point.y, 8.0F);
}

void TestCChromaticityDlgWndSolve::ASolvedVertexIsTheNearestPoint()
{
    CChromaticityDlgWnd chart(nullptr);
    CPlainChart plain;
    const SChromaGroupInfo group = SrgbGroup();
    QVERIFY(chart.GetNearestPoint(group.ptWhite, {0.2F, 0.4F}, group.ptGreen, group.ptBlue));
    QVERIFY(plain.GetNearestPoint(group.ptWhite, {0.2F, 0.4F}, group.ptGreen, group.ptBlue));
    COMPARE_BITS(chart.m_ptNearest, plain.ptNearest);
}

void TestCChromaticityDlgWndSolve::TheSolvingWithoutLocusLeavesTheNearestPointAlone()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetNearstPoint(QPointF(7.0, 8.0));
    const SChromaGroupInfo group = SrgbGroup();
    CPoint ptOut;
    QVERIFY(chart.GetNearestPoint2(group.ptWhite, {0.2F, 0.4F}, group.ptGreen, group.ptBlue, ptOut));
    COMPARE_BITS(chart.m_ptNearest, QPointF(7.0, 8.0));
    QVERIFY(ptOut.x != 0.0F);
}

void TestCChromaticityDlgWndSolve::NoGroupHasNoPlaceForAWhite()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.SetNearstPoint(QPointF(7.0, 8.0));
    QVERIFY(!chart.GetWhiteIntersection(nullptr, {0.5F, 0.5F}));
    COMPARE_BITS(chart.m_ptNearest, QPointF(7.0, 8.0));
}

void TestCChromaticityDlgWndSolve::AWhiteBroughtBackIsTheNearestPoint()
{
    CChromaticityDlgWnd chart(nullptr);
    SChromaGroupInfo group = SrgbGroup();
    QVERIFY(chart.GetWhiteIntersection(&group, {0.5F, 0.5F}));
    const CPoint ptSolved = Narrowed(chart.m_ptNearest);
    QVERIFY(ChartGeometry::IsInTriangle(ptSolved, {group.ptRed, group.ptGreen, group.ptBlue}));
    // The operation only solves.
    QCOMPARE(PointDifference(group, SrgbGroup()), QString());
}

void TestCChromaticityDlgWndSolve::TheExcursionLeadsAwayFromTheOutsidePoint_data()
{
    QTest::addColumn<QPointF>("ptFrom");
    QTest::addColumn<QPointF>("ptExpected");
    const double dStep = double(0.0001F);
    QTest::newRow("from the right") << QPointF(0.75, 0.25) << QPointF(0.5 - dStep, 0.25);
    QTest::newRow("from the left") << QPointF(0.25, 0.25) << QPointF(0.5 + dStep, 0.25);
    QTest::newRow("from above, on a vertical line") << QPointF(0.5, 0.75) << QPointF(0.5, 0.25);
}

void TestCChromaticityDlgWndSolve::TheExcursionLeadsAwayFromTheOutsidePoint()
{
    QFETCH(QPointF, ptFrom);
    CChromaticityDlgWnd chart(nullptr);
    QPointF point(0.5, 0.25);
    chart.AddFloatExcursion(point, ptFrom);
    QFETCH(QPointF, ptExpected);
    COMPARE_BITS(point, ptExpected);
}

void TestCChromaticityDlgWndSolve::AGroupIsMadeLegalInPlace()
{
    CChromaticityDlgWnd chart(nullptr);
    CPlainChart plain;
    SChromaGroupInfo group = SrgbGroup();
    group.ptRed = {0.8F, 0.33F};
    SChromaGroupInfo groupPlain = group;
    QVERIFY(!chart.IsPointInRegion(&group, enRedPoint));
    QVERIFY(chart.ReCalRGB(&group, enRedPoint));
    QVERIFY(plain.ReCalRGB(&groupPlain, enRedPoint));
    QCOMPARE(PointDifference(group, groupPlain), QString());
    QVERIFY(chart.IsPointInRegion(&group, enRedPoint));

    group = SrgbGroup();
    group.ptRed = {0.1F, 0.4F};
    groupPlain = group;
    QCOMPARE(chart.ReCalCMY(&group), plain.ReCalCMY(&groupPlain));
    QCOMPARE(PointDifference(group, groupPlain), QString());
}

void TestCChromaticityDlgWndSolve::TheIndexSelectsThePointForTheLocusOnly()
{
    CChromaticityDlgWnd chart(nullptr);
    SChromaGroupInfo group = SrgbGroup();
    group.ptRed = {0.9F, 0.33F};
    QVERIFY(!chart.IsPointInRegion(&group, enRedPoint));
    QVERIFY(chart.IsPointInRegion(&group, enGreenPoint));
    group.ptWhite = {0.1F, 0.5F};
    QVERIFY(!chart.IsPointInRegion(&group, enGreenPoint));
}

void TestCChromaticityDlgWndSolve::NoGroupFaults()
{
    CChromaticityDlgWnd chart(nullptr);
    const std::function<void()> afuncMisuse[] = {
        [&] { chart.ReCalRGB(nullptr, enRedPoint); },
        [&] { chart.ReCalCMY(nullptr); },
        [&] { chart.IsPointInRegion(nullptr, enRedPoint); },
        [&] { chart.CalcCurrentPoint(QPointF(), nullptr); },
    };
    for (const auto& funcMisuse : afuncMisuse) {
        const SDeath death = RunToDeath(funcMisuse);
        QVERIFY(death.bAborted);
        QVERIFY(death.strOutput.contains("\"pGroup != nullptr\""));
    }
}

QTEST_MAIN(TestCChromaticityDlgWndSolve)
#include "TestCChromaticityDlgWndSolve.moc"
