#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "workbench/colour/ColourGroups.h"
#include "workbench/colour/FeasibleRegion.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr double c_dTolerance = 2e-4; ///< the chart stops a step of 0.0001 inside the border

QPolygonF Square()
{
    return QPolygonF({{0.25, 0.25}, {0.45, 0.25}, {0.45, 0.45}, {0.25, 0.45}});
}

/// A chart whose red was just dragged, asking about it.
struct SAsked
{
    CChromaticityDlgWnd chart{nullptr};
    CFeasibleRegion region;

    explicit SAsked(CPointEx<float> ptRed, int nPoint = enRedPoint)
    {
        chart.SetSize(500, 500);
        SChromaGroupInfo group = ColourGroups::OfStandard(enStandardSRGB);
        group.ptWhite = {0.35F, 0.35F};
        group.ptRed = ptRed;
        chart.AddChromaGroupByIndex(0, group);
        chart.m_nHoverGroup = 0;
        chart.m_nHoverPoint = nPoint;
        region.SetPolygon(Square());
        region.SetOn(true);
    }

    bool Answer(int nPoint = enRedPoint) { return region.Answer(chart, 0, nPoint, {0.4F, 0.35F}); }
};

} // namespace

class TestFeasibleRegion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void APointInsideStays();
    void APointOutsideFallsBackToTheBorder();
    void WithoutABorderOnTheWayThePointStaysWhereItWas();
    void ARegionThatIsOffHoldsNothing();
    void TwoCornersAreNoRegion();
    void TheWhiteIsNeverHeld();
    void AnAbsentGroupIsAllowed();
};

void TestFeasibleRegion::APointInsideStays()
{
    SAsked asked({0.40F, 0.40F});
    asked.chart.SetNearstPoint({0.1, 0.2});
    QVERIFY(asked.Answer());
    QCOMPARE(asked.chart.m_ptNearest, QPointF(0.1, 0.2));
}

void TestFeasibleRegion::APointOutsideFallsBackToTheBorder()
{
    SAsked asked({0.60F, 0.35F});
    QVERIFY(!asked.Answer());
    QVERIFY(std::fabs(asked.chart.m_ptNearest.x() - 0.45) < c_dTolerance);
    QVERIFY(std::fabs(asked.chart.m_ptNearest.y() - 0.35) < c_dTolerance);
    QVERIFY(asked.region.Allows(asked.chart.QPointFToCPointF(asked.chart.m_ptNearest)));
}

void TestFeasibleRegion::WithoutABorderOnTheWayThePointStaysWhereItWas()
{
    SAsked asked({0.60F, 0.35F});
    asked.region.SetPolygon(QPolygonF({{0.1, 0.1}, {0.2, 0.1}, {0.2, 0.2}}));
    QVERIFY(!asked.Answer());
    QCOMPARE(float(asked.chart.m_ptNearest.x()), 0.4F);
    QCOMPARE(float(asked.chart.m_ptNearest.y()), 0.35F);
}

void TestFeasibleRegion::ARegionThatIsOffHoldsNothing()
{
    SAsked asked({0.60F, 0.35F});
    asked.region.SetOn(false);
    QVERIFY(asked.Answer());
}

void TestFeasibleRegion::TwoCornersAreNoRegion()
{
    SAsked asked({0.60F, 0.35F});
    asked.region.SetPolygon(QPolygonF(QVector<QPointF>{{0.1, 0.1}, {0.2, 0.1}}));
    QVERIFY(!asked.region.IsRegion());
    QVERIFY(asked.Answer());
}

void TestFeasibleRegion::TheWhiteIsNeverHeld()
{
    SAsked asked({0.60F, 0.35F}, enWhitePoint);
    asked.region.SetPolygon(QPolygonF({{0.1, 0.1}, {0.2, 0.1}, {0.2, 0.2}}));
    QVERIFY(asked.Answer(enWhitePoint));
}

void TestFeasibleRegion::AnAbsentGroupIsAllowed()
{
    SAsked asked({0.60F, 0.35F});
    QVERIFY(asked.region.Answer(asked.chart, 99, enRedPoint, {}));
}

QTEST_MAIN(TestFeasibleRegion)
#include "TestFeasibleRegion.moc"
