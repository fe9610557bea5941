#include "SenderModuleDialog/chart/solve/ChartGeometry.h"
#include "SenderModuleDialog/chart/solve/LocusEdges.h"
#include "oracles/chart/PlainChart.h"
#include "tests/chart/ChartInputs.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

/// The edges of the locus, passed over by their boxes, against the walk over all of them.
class TestLocusEdges : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CrossesLikeTheWholeWalk();
    void CrossesRepeatedOutlinesLikeOne_data();
    void CrossesRepeatedOutlinesLikeOne();
    void CrossesAnyOutlineLikeTheWholeWalk();
    void TakesTheEdgeThatComesLast();
    void HasNoCrossingBelowThreePoints();
    void AllocatesNothing();
};

namespace {

QList<CPoint> Narrowed(const QVector<QPointF>& vecOutline, int nCopies = 1)
{
    QList<CPoint> list;
    for (int i = 0; i < nCopies; ++i) {
        for (const QPointF& pt : vecOutline)
            list.append(CPoint(float(pt.x()), float(pt.y())));
    }
    return list;
}

/// Empty if both cross at the same place or do not cross.
QString Difference(const CLocusEdges& edges, const QList<CPoint>& listPlain, CPoint ptFrom, CPoint ptTo)
{
    CPoint ptPlain(-7.0F, -7.0F);
    const bool bPlain = CPlainChart::GetCIEIntersection(listPlain, ptFrom, ptTo, ptPlain);
    const std::optional<CPoint> ptFast = edges.LastCrossing(ptFrom, ptTo);
    if (bPlain != ptFast.has_value())
        return QStringLiteral("only one of them crosses, from (%1, %2) to (%3, %4)")
            .arg(double(ptFrom.x))
            .arg(double(ptFrom.y))
            .arg(double(ptTo.x))
            .arg(double(ptTo.y));
    if (!bPlain)
        return {};
    const CPoint ptStepped = ChartGeometry::StepInward(*ptFast, ptTo);
    if (ExactCompare::SameBits(ptStepped.x, ptPlain.x) && ExactCompare::SameBits(ptStepped.y, ptPlain.y))
        return {};
    return ExactCompare::Difference(ptStepped.x, ptPlain.x) +
           ExactCompare::Difference(ptStepped.y, ptPlain.y);
}

} // namespace

void TestLocusEdges::CrossesLikeTheWholeWalk()
{
    const QVector<QPointF> vecLocus = CChromaGamutInterpolation().GetQPointFData();
    const CLocusEdges edges(vecLocus);
    const QList<CPoint> listPlain = Narrowed(vecLocus);
    CChartInputs inputs(1, vecLocus);
    int nCrossings = 0;
    for (int i = 0; i < 200000; ++i) {
        const CPoint ptFrom = inputs.Point();
        const CPoint ptTo = inputs.Point();
        const QString strDifference = Difference(edges, listPlain, ptFrom, ptTo);
        QVERIFY2(strDifference.isEmpty(), qPrintable(strDifference));
        nCrossings += edges.LastCrossing(ptFrom, ptTo).has_value() ? 1 : 0;
    }
    QVERIFY(nCrossings > 20000);
}

void TestLocusEdges::CrossesRepeatedOutlinesLikeOne_data()
{
    QTest::addColumn<int>("nCopies");
    for (const int nCopies : {1, 2, 3, 10})
        QTest::addRow("%d copies", nCopies) << nCopies;
}

void TestLocusEdges::CrossesRepeatedOutlinesLikeOne()
{
    QFETCH(int, nCopies);
    const QVector<QPointF> vecLocus = CChromaGamutInterpolation().GetQPointFData();
    const CLocusEdges edges(vecLocus);
    const QList<CPoint> listPlain = Narrowed(vecLocus, nCopies);
    CChartInputs inputs(unsigned(nCopies), vecLocus);
    for (int i = 0; i < 10000; ++i) {
        const QString strDifference = Difference(edges, listPlain, inputs.Point(), inputs.Point());
        QVERIFY2(strDifference.isEmpty(), qPrintable(strDifference));
    }
}

/// Outlines that are neither convex nor ordered: edges cross, repeat and shrink to points.
void TestLocusEdges::CrossesAnyOutlineLikeTheWholeWalk()
{
    CChartInputs inputs(3, CChromaGamutInterpolation().GetQPointFData());
    for (int nOutline = 0; nOutline < 2000; ++nOutline) {
        QVector<QPointF> vecOutline;
        for (int i = inputs.Whole(3, 40); i > 0; --i) {
            const CPoint pt = inputs.OrdinaryPoint();
            vecOutline.append(QPointF(double(pt.x), double(pt.y)));
            if (inputs.Whole(0, 9) == 0)
                vecOutline.append(vecOutline.constLast());
        }
        const CLocusEdges edges(vecOutline);
        const QList<CPoint> listPlain = Narrowed(vecOutline);
        for (int i = 0; i < 50; ++i) {
            const QString strDifference = Difference(edges, listPlain, inputs.Point(), inputs.Point());
            QVERIFY2(strDifference.isEmpty(), qPrintable(strDifference));
        }
    }
}

void TestLocusEdges::TakesTheEdgeThatComesLast()
{
    const QVector<QPointF> vecSquare = {{0.0, 0.0}, {1.0, 0.0}, {1.0, 1.0}, {0.0, 1.0}};
    const auto ptCrossing = CLocusEdges(vecSquare).LastCrossing({2.0F, 0.5F}, {-1.0F, 0.5F});
    QVERIFY(ptCrossing.has_value());
    COMPARE_BITS(ptCrossing->x, 0.0F);
    COMPARE_BITS(ptCrossing->y, 0.5F);
}

void TestLocusEdges::HasNoCrossingBelowThreePoints()
{
    QVERIFY(!CLocusEdges({}).LastCrossing({0.5F, -1.0F}, {0.5F, 1.0F}));
    QVERIFY(!CLocusEdges({{0.0, 0.0}, {1.0, 0.0}}).LastCrossing({0.5F, -1.0F}, {0.5F, 1.0F}));
}

void TestLocusEdges::AllocatesNothing()
{
    const CLocusEdges edges(CChromaGamutInterpolation().GetQPointFData());
    const CAllocationCounter counter;
    for (int i = 0; i < 100; ++i)
        edges.LastCrossing({0.3F, 0.3F}, {float(i) / 100.0F, 0.9F});
    QCOMPARE(counter.Count(), std::size_t(0));
}

QTEST_APPLESS_MAIN(TestLocusEdges)
#include "TestLocusEdges.moc"
