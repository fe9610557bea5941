#include "SenderModuleDialog/chart/ChartGroupPoints.h"
#include "SenderModuleDialog/chart/solve/ChartGeometry.h"
#include "oracles/chart/PlainChart.h"
#include "tests/chart/ChartInputs.h"
#include "tests/chart/StandardGroups.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <optional>

/// The single steps of the solving against the plain procedure, to the last bit, and their edge cases.
class TestChartGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TriangleTestAgreesWithThePlainOne();
    void StepInwardAgreesWithThePlainOne();
    void LeavePolygonAgreesWithThePlainOne();
    void AnOutlineHoldsWhatIsAtItsVertices_data();
    void AnOutlineHoldsWhatIsAtItsVertices();
    void AWhiteEqualToAVertexIsInTheTriangle();
    void AVerticalStepMovesNothing();
    void AStepIsTakenFromTheNarrowedPoint();

private:
    static constexpr int c_nInputs = 100000;
};

namespace {} // namespace

void TestChartGeometry::TriangleTestAgreesWithThePlainOne()
{
    CChartInputs inputs(11, CChromaGamutInterpolation().GetQPointFData());
    int nInside = 0;
    for (int i = 0; i < c_nInputs; ++i) {
        const SChromaGroupInfo group = inputs.Group();
        const bool bInside = ChartGeometry::IsInTriangle(group.ptWhite, TriangleOf(group));
        QCOMPARE(bInside, CPlainChart::IsInTriangle(group.ptWhite, group.ptRed, group.ptGreen, group.ptBlue));
        nInside += bInside ? 1 : 0;
    }
    QVERIFY(nInside > c_nInputs / 10);
}

void TestChartGeometry::StepInwardAgreesWithThePlainOne()
{
    CChartInputs inputs(12, CChromaGamutInterpolation().GetQPointFData());
    for (int i = 0; i < c_nInputs; ++i) {
        const CPoint pt = inputs.Point();
        const CPoint ptFrom = inputs.Point();
        QVERIFY(SamePoints(ChartGeometry::StepInward(pt, ptFrom), CPlainChart::Inward(pt, ptFrom)));
        // Doubles that are no widened floats.
        const QPointF ptWide(double(pt.x) + 1e-9, double(pt.y) / 3.0);
        const QPointF ptFromWide(double(ptFrom.x) / 3.0, double(ptFrom.y) - 1e-9);
        QPointF ptPlain = ptWide;
        CPlainChart::AddFloatExcursion(ptPlain, ptFromWide);
        COMPARE_BITS(ChartGeometry::StepInward(ptWide, ptFromWide), ptPlain);
    }
}

void TestChartGeometry::LeavePolygonAgreesWithThePlainOne()
{
    CChartInputs inputs(13, CChromaGamutInterpolation().GetQPointFData());
    int nCrossings = 0;
    for (int i = 0; i < c_nInputs; ++i) {
        QList<CPoint> listRegion;
        for (int nPoint = inputs.Whole(0, 7); nPoint > 0; --nPoint)
            listRegion.append(inputs.Point());
        const CPoint ptFrom = inputs.Point();
        const CPoint ptTo = inputs.Point();
        CPoint ptPlain = ptTo;
        const bool bPlain = CPlainChart::GetCIEIntersection(listRegion, ptFrom, ptTo, ptPlain);
        const std::optional<CPoint> ptFast = ChartGeometry::LeavePolygon(listRegion, ptFrom, ptTo);
        QCOMPARE(ptFast.has_value(), bPlain);
        QVERIFY(!bPlain || SamePoints(*ptFast, ptPlain));
        nCrossings += bPlain ? 1 : 0;
    }
    QVERIFY(nCrossings > c_nInputs / 20);
}

void TestChartGeometry::AnOutlineHoldsWhatIsAtItsVertices_data()
{
    QTest::addColumn<float>("fX");
    QTest::addColumn<float>("fY");
    QTest::addColumn<bool>("bInside");
    QTest::newRow("in the middle") << 150.0F << 150.0F << true;
    QTest::newRow("on a vertex that the crossings leave out") << 100.0F << 100.0F << true;
    QTest::newRow("0.00005 off a vertex") << 99.99995F << 99.99995F << true;
    QTest::newRow("0.001 off a vertex") << 99.999F << 99.999F << false;
    QTest::newRow("0.00005 off the middle of an edge") << 99.99995F << 150.0F << false;
    QTest::newRow("outside") << 250.0F << 150.0F << false;
}

void TestChartGeometry::AnOutlineHoldsWhatIsAtItsVertices()
{
    QFETCH(float, fX);
    QFETCH(float, fY);
    const CPoint aptSquare[] = {{100.0F, 100.0F}, {200.0F, 100.0F}, {200.0F, 200.0F}, {100.0F, 200.0F}};
    QTEST(ChartGeometry::IsInOutline({fX, fY}, aptSquare, 4), "bInside");
    QVERIFY(!ChartGeometry::IsInOutline({fX, fY}, aptSquare, 0));
}

void TestChartGeometry::AWhiteEqualToAVertexIsInTheTriangle()
{
    const SChromaTriangle triangle = TriangleOf(SrgbGroup());
    QVERIFY(ChartGeometry::IsInTriangle(triangle.ptRed, triangle));
    QVERIFY(ChartGeometry::IsInTriangle({triangle.ptGreen.x + 0.00009F, triangle.ptGreen.y}, triangle));
    QVERIFY(!ChartGeometry::IsInTriangle({triangle.ptGreen.x, triangle.ptGreen.y + 0.0002F}, triangle));
}

void TestChartGeometry::AVerticalStepMovesNothing()
{
    const CPoint pt = ChartGeometry::StepInward(CPoint(0.3F, 0.4F), {0.3F, 0.9F});
    COMPARE_BITS(pt.x, 0.3F);
    COMPARE_BITS(pt.y, 0.4F);
}

void TestChartGeometry::AStepIsTakenFromTheNarrowedPoint()
{
    const QPointF pt = ChartGeometry::StepInward(QPointF(0.3, 0.4), QPointF(0.3, 0.9));
    COMPARE_BITS(pt.x(), double(0.3F));
    COMPARE_BITS(pt.y(), double(0.4F));
}

QTEST_APPLESS_MAIN(TestChartGeometry)
#include "TestChartGeometry.moc"
