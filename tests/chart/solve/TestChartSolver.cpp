#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/chart/ChartMapping.h"
#include "SenderModuleDialog/chart/solve/ChartSolver.h"
#include "oracles/chart/PlainChart.h"
#include "tests/chart/ChartInputs.h"
#include "tests/chart/StandardGroups.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

Q_DECLARE_METATYPE(SChromaGroupInfo)

/// The solver against the plain procedure, to the last bit, and what each operation promises.
class TestChartSolver : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void MeetsTheConeLikeThePlainOne();
    void MeetsTheConeWithoutLocusLikeThePlainOne();
    void BringsWhiteBackLikeThePlainOne();
    void MakesRgbGroupsLegalLikeThePlainOne();
    void MakesCmyGroupsLegalLikeThePlainOne();
    void JudgesGroupsLikeThePlainOne();
    void DragsLikeThePlainOne();

    void APointInsideTheConeIsMovedOntoItsEdge();
    void ParallelLinesLeaveTheResultAlone();
    void AFlatTriangleHasNoPlaceForAWhite_data();
    void AFlatTriangleHasNoPlaceForAWhite();
    void AWhiteInsideTheTriangleStays();
    void ANegativeCoordinateOfAnotherVertexIsWrittenBack();
    void AWhiteOutsideTheLocusIsRefused();
    void AnIndexOutsideTheGroupOnlyClamps();
    void ACmyGroupWithAnIllegalWhiteStaysToTheBit();
    void ALegalCmyGroupComesBack();
    void EachWalkOverTheLocusCountsAsAUse();
    void AnOutlineThatWasWrittenToIsWalkedAsItIs();
    void DraggingAllocatesNothing();

private:
    static constexpr int c_nInputs = 100000;
};

namespace {

/// Both charts after the same operation, each with its own group and result channel.
class CSideBySide
{
public:
    explicit CSideBySide(unsigned int nSeed)
        : inputs(nSeed, CChromaGamutInterpolation().GetQPointFData())
    {}

    // The next group, for both.
    void Next()
    {
        // The plain one's list grows with each use; a fresh one keeps this test short.
        plain.gamut = CChromaGamutInterpolation();
        groupFast = inputs.Group();
        groupPlain = groupFast;
        const CPoint pt = inputs.Point();
        ptNearest = QPointF(double(pt.x), double(pt.y));
        plain.ptNearest = ptNearest;
    }

    QString Difference(bool bFast, bool bPlain) const
    {
        QString strDifference = PointDifference(groupFast, groupPlain);
        if (bFast != bPlain)
            strDifference += QStringLiteral("result %1 instead of %2; ").arg(bFast).arg(bPlain);
        if (!ExactCompare::SameBits(ptNearest, plain.ptNearest))
            strDifference +=
                QStringLiteral("nearest: ") + ExactCompare::Difference(ptNearest, plain.ptNearest);
        return strDifference;
    }

    CChartInputs inputs;
    CPlainChart plain;
    CChromaGamutInterpolation gamut;
    CChartSolver solver{gamut};
    SChromaGroupInfo groupFast;
    SChromaGroupInfo groupPlain;
    QPointF ptNearest;
};

} // namespace

void TestChartSolver::MeetsTheConeLikeThePlainOne()
{
    CSideBySide both(14);
    for (int i = 0; i < c_nInputs; ++i) {
        both.Next();
        const SChromaGroupInfo& group = both.groupPlain;
        const bool bPlain =
            both.plain.GetNearestPoint(group.ptWhite, group.ptRed, group.ptGreen, group.ptBlue);
        const bool bFast = both.solver.GetNearestPoint(group.ptWhite, group.ptRed, group.ptGreen,
                                                       group.ptBlue, both.ptNearest);
        const QString strDifference = both.Difference(bFast, bPlain);
        QVERIFY2(strDifference.isEmpty(), qPrintable(strDifference));
    }
}

void TestChartSolver::MeetsTheConeWithoutLocusLikeThePlainOne()
{
    CChartInputs inputs(15, CChromaGamutInterpolation().GetQPointFData());
    for (int i = 0; i < c_nInputs; ++i) {
        const SChromaGroupInfo group = inputs.Group();
        CPoint ptPlain(5.0F, 5.0F);
        CPoint ptFast = ptPlain;
        const bool bPlain =
            CPlainChart::GetNearestPoint2(group.ptWhite, group.ptRed, group.ptGreen, group.ptBlue, ptPlain);
        QCOMPARE(
            CChartSolver::GetNearestPoint2(group.ptWhite, group.ptRed, group.ptGreen, group.ptBlue, ptFast),
            bPlain);
        QVERIFY(SamePoints(ptFast, ptPlain));
    }
}

void TestChartSolver::BringsWhiteBackLikeThePlainOne()
{
    CSideBySide both(16);
    int nSolved = 0;
    for (int i = 0; i < c_nInputs; ++i) {
        both.Next();
        const CPoint ptWhite = both.inputs.Point();
        const bool bPlain = both.plain.GetWhiteIntersection(&both.groupPlain, ptWhite);
        const bool bFast =
            both.solver.GetWhiteIntersection(TriangleOf(both.groupFast), ptWhite, both.ptNearest);
        const QString strDifference = both.Difference(bFast, bPlain);
        QVERIFY2(strDifference.isEmpty(), qPrintable(strDifference));
        nSolved += bPlain ? 1 : 0;
    }
    QVERIFY(nSolved > c_nInputs / 10);
}

void TestChartSolver::MakesRgbGroupsLegalLikeThePlainOne()
{
    CSideBySide both(17);
    for (int i = 0; i < c_nInputs; ++i) {
        both.Next();
        const int nPoint = i % c_nChromaPointCount;
        const bool bPlain = both.plain.ReCalRGB(&both.groupPlain, nPoint);
        const bool bFast = both.solver.ReCalRGB(both.groupFast, nPoint, both.ptNearest);
        const QString strDifference = both.Difference(bFast, bPlain);
        QVERIFY2(strDifference.isEmpty(), qPrintable(strDifference));
    }
}

void TestChartSolver::MakesCmyGroupsLegalLikeThePlainOne()
{
    CSideBySide both(18);
    for (int i = 0; i < c_nInputs; ++i) {
        both.Next();
        const bool bPlain = both.plain.ReCalCMY(&both.groupPlain);
        const bool bFast = both.solver.ReCalCMY(both.groupFast, both.ptNearest);
        const QString strDifference = both.Difference(bFast, bPlain);
        QVERIFY2(strDifference.isEmpty(), qPrintable(strDifference));
    }
}

void TestChartSolver::JudgesGroupsLikeThePlainOne()
{
    CSideBySide both(19);
    int nLegal = 0;
    for (int i = 0; i < c_nInputs; ++i) {
        both.Next();
        const int nPoint = i % c_nChromaPointCount;
        const bool bLegal = both.solver.IsPointInRegion(both.groupFast, nPoint);
        QCOMPARE(bLegal, both.plain.IsPointInRegion(&both.groupPlain, nPoint));
        nLegal += bLegal ? 1 : 0;
    }
    QVERIFY(nLegal > c_nInputs / 20);
}

void TestChartSolver::DragsLikeThePlainOne()
{
    CSideBySide both(20);
    both.plain.SetSize(1000, 800);
    const CChartMapping mapping = CChartMapping::ForSize(1000, 800);
    const SWhiteSnap snap{both.plain.ptD65, both.plain.cct};
    for (int i = 0; i < c_nInputs; ++i) {
        both.Next();
        both.plain.nHoverPoint = both.inputs.Whole(-1, 4);
        both.plain.bSnapWhite = both.inputs.Coin();
        const QPointF pos(double(both.inputs.Real(-200.0F, 1200.0F)),
                          double(both.inputs.Real(-200.0F, 1000.0F)));
        const QPointF ptTarget = mapping.ToChromaticity(pos);
        both.plain.CalcCurrentPoint(pos, &both.groupPlain);
        both.solver.DragPoint(both.groupFast, both.plain.nHoverPoint,
                              {float(ptTarget.x()), float(ptTarget.y())},
                              both.plain.bSnapWhite ? &snap : nullptr, both.ptNearest);
        const QString strDifference = both.Difference(true, true);
        QVERIFY2(strDifference.isEmpty(), qPrintable(strDifference));
    }
}

void TestChartSolver::APointInsideTheConeIsMovedOntoItsEdge()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    const SChromaGroupInfo& group = SrgbGroup();
    QVERIFY(ChartGeometry::IsInTriangle(group.ptWhite, TriangleOf(group)));
    QPointF ptNearest;
    QVERIFY(solver.GetNearestPoint(group.ptWhite, group.ptRed, group.ptGreen, group.ptBlue, ptNearest));
    const CPoint ptSolved(float(ptNearest.x()), float(ptNearest.y()));
    QVERIFY(!ChartGeometry::IsSamePoint(ptSolved, group.ptRed));
}

void TestChartSolver::ParallelLinesLeaveTheResultAlone()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    QPointF ptNearest(7.0, 8.0);
    CPoint ptOut(7.0F, 8.0F);
    // A and B in one direction from the white: the bisector is the cone's side.
    const CPoint ptWhite(0.25F, 0.25F);
    QVERIFY(!solver.GetNearestPoint(ptWhite, {0.5F, 0.125F}, {0.375F, 0.375F}, {0.5F, 0.5F}, ptNearest));
    QCOMPARE(ptNearest, QPointF(7.0, 8.0));
    QVERIFY(!CChartSolver::GetNearestPoint2(ptWhite, {0.5F, 0.125F}, {0.375F, 0.375F}, {0.5F, 0.5F}, ptOut));
    COMPARE_BITS(ptOut.x, 7.0F);
    COMPARE_BITS(ptOut.y, 8.0F);
}

void TestChartSolver::AFlatTriangleHasNoPlaceForAWhite_data()
{
    QTest::addColumn<SChromaGroupInfo>("group");
    SChromaGroupInfo group = SrgbGroup();
    group.ptRed.x = group.ptGreen.x = group.ptBlue.x = 0.3F;
    QTest::newRow("all x equal") << group;
    group = SrgbGroup();
    group.ptRed.y = group.ptGreen.y = group.ptBlue.y = 0.3F;
    QTest::newRow("all y equal") << group;
    group.ptGreen.y += 0.00005F;
    QTest::newRow("all y equal within the tolerance") << group;
}

void TestChartSolver::AFlatTriangleHasNoPlaceForAWhite()
{
    QFETCH(SChromaGroupInfo, group);
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    QPointF ptNearest(7.0, 8.0);
    QVERIFY(!solver.GetWhiteIntersection(TriangleOf(group), {0.5F, 0.5F}, ptNearest));
    QCOMPARE(ptNearest, QPointF(7.0, 8.0));
}

void TestChartSolver::AWhiteInsideTheTriangleStays()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    QPointF ptNearest;
    QVERIFY(solver.GetWhiteIntersection(TriangleOf(SrgbGroup()), {0.3F, 0.3F}, ptNearest));
    COMPARE_BITS(ptNearest, QPointF(double(0.3F), double(0.3F)));
}

void TestChartSolver::ANegativeCoordinateOfAnotherVertexIsWrittenBack()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    SChromaGroupInfo group = SrgbGroup();
    group.ptBlue.y = -0.01F;
    group.ptWhite.x = -0.5F;
    QPointF ptNearest;
    QVERIFY(solver.ReCalRGB(group, enRedPoint, ptNearest));
    COMPARE_BITS(group.ptBlue.y, 0.0F);
    COMPARE_BITS(group.ptWhite.x, -0.5F);
}

void TestChartSolver::AWhiteOutsideTheLocusIsRefused()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    SChromaGroupInfo group = SrgbGroup();
    group.ptWhite = {0.9F, -0.9F};
    QPointF ptNearest;
    QVERIFY(!solver.ReCalRGB(group, enWhitePoint, ptNearest));
    COMPARE_BITS(group.ptWhite.x, 0.9F);
    COMPARE_BITS(group.ptWhite.y, -0.9F);
}

void TestChartSolver::AnIndexOutsideTheGroupOnlyClamps()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    SChromaGroupInfo group = SrgbGroup();
    group.ptGreen.x = -1.0F;
    QPointF ptNearest;
    QVERIFY(!solver.ReCalRGB(group, c_nChromaPointCount, ptNearest));
    SChromaGroupInfo expected = SrgbGroup();
    expected.ptGreen.x = 0.0F;
    QCOMPARE(PointDifference(group, expected), QString());
    QVERIFY(!solver.IsPointInRegion(group, enNoPoint));
}

void TestChartSolver::ACmyGroupWithAnIllegalWhiteStaysToTheBit()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    SChromaGroupInfo group = SrgbGroup();
    group.ptWhite = {0.9F, 0.9F};
    group.ptRed = {-0.5F, -0.25F};
    const SChromaGroupInfo expected = group;
    QPointF ptNearest;
    QVERIFY(!solver.ReCalCMY(group, ptNearest));
    QCOMPARE(PointDifference(group, expected), QString());
}

void TestChartSolver::ALegalCmyGroupComesBack()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    SChromaGroupInfo group = SrgbGroup();
    group.ptRed = {0.225F, 0.33F};
    group.ptGreen = {0.395F, 0.195F};
    group.ptBlue = {0.47F, 0.465F};
    const SChromaGroupInfo before = group;
    QPointF ptNearest;
    QVERIFY(solver.ReCalCMY(group, ptNearest));
    for (int i = enRedPoint; i <= enBluePoint; ++i) {
        QVERIFY(std::abs(GroupPoint(group, i).x - GroupPointOrOrigin(before, i).x) < 1e-6F);
        QVERIFY(std::abs(GroupPoint(group, i).y - GroupPointOrOrigin(before, i).y) < 1e-6F);
    }
}

void TestChartSolver::EachWalkOverTheLocusCountsAsAUse()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    const int nOutline = gamut.GetQPointFData().size();
    SChromaGroupInfo group = SrgbGroup();
    QPointF ptNearest;
    // One use of the drag itself, and none of the solving: the point stays in the locus and the white in
    // the triangle.
    solver.DragPoint(group, enRedPoint, {0.6F, 0.34F}, nullptr, ptNearest);
    // No use: the point is in the locus.
    solver.ReCalRGB(group, enRedPoint, ptNearest);
    QCOMPARE(gamut.GetData().size(), 2 * nOutline);
}

void TestChartSolver::AnOutlineThatWasWrittenToIsWalkedAsItIs()
{
    CChromaGamutInterpolation gamut;
    CChartSolver solver(gamut);
    gamut.GetQPointFData() = {{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}, {0.0, 1.0}};
    const auto ptLeft = solver.LeaveLocus({0.5F, 0.5F}, {0.5F, 2.0F});
    QVERIFY(ptLeft.has_value());
    COMPARE_BITS(ptLeft->y, 1.0F);
    QVERIFY(solver.IsInLocus({0.9F, 0.9F}));
}

void TestChartSolver::DraggingAllocatesNothing()
{
    CSideBySide both(21);
    const SWhiteSnap snap{both.plain.ptD65, both.plain.cct};
    for (int i = 0; i < 1000; ++i) {
        SChromaGroupInfo group = both.inputs.OrdinaryGroup();
        const CPoint ptTarget = both.inputs.OrdinaryPoint();
        const CAllocationCounter counter;
        both.solver.DragPoint(group, i % c_nChromaPointCount, ptTarget, &snap, both.ptNearest);
        QCOMPARE(counter.Count(), std::size_t(0));
    }
}

QTEST_APPLESS_MAIN(TestChartSolver)
#include "TestChartSolver.moc"
