#include "SenderModuleDialog/chart/paint/CctCurve.h"
#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "tests/support/AllocationCounter.h"

#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

constexpr double c_dTolerance = 1e-3; ///< pixels: chromaticities are of single precision

/// The daylight locus (CIE 15), from 4000 K on.
QPointF Daylight(double dTemperature)
{
    const double dMired = 1000.0 / dTemperature;
    const bool bWarm = dTemperature <= 7000.0;
    const double dX = bWarm ? ((-4.6070 * dMired + 2.9678) * dMired + 0.09911) * dMired + 0.244063
                            : ((-2.0064 * dMired + 1.9018) * dMired + 0.24748) * dMired + 0.237040;
    return {dX, (-3.0 * dX + 2.870) * dX - 0.275};
}

double Distance(QPointF ptFirst, QPointF ptSecond)
{
    return std::hypot(ptFirst.x() - ptSecond.x(), ptFirst.y() - ptSecond.y());
}

/// The path's point of a temperature: one every 10 K from 4000 K on.
QPointF PointOf(const CCctCurve& curve, int nTemperature)
{
    return curve.Path().elementAt((nTemperature - 4000) / 10);
}

CCctCurve MappedCurve(const CChartMapping& mapping)
{
    CCctCurve curve{CCCT2ColorCoord()};
    curve.SetMapping(mapping);
    return curve;
}

} // namespace

class TestCctCurve : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void WithoutAMappingThereIsNoPath();
    void ThePathHasAPointEveryTenKelvin();
    void APointIsOnTheDaylightLocus_data();
    void APointIsOnTheDaylightLocus();
    void The6500KPointIsD65();
    void ATickStandsOnItsTemperature_data();
    void ATickStandsOnItsTemperature();
    void ATickSlantsAcrossTheCurve_data();
    void ATickSlantsAcrossTheCurve();
    void AnotherMappingMovesPathAndTicks();
    void TheSameMappingKeepsThePath();
};

void TestCctCurve::WithoutAMappingThereIsNoPath()
{
    const CCctCurve curve{CCCT2ColorCoord()};
    QVERIFY(curve.Path().isEmpty());
}

void TestCctCurve::ThePathHasAPointEveryTenKelvin()
{
    const CCctCurve curve = MappedCurve(CChartMapping::ForSize(420, 360));
    QCOMPARE(curve.Path().elementCount(), 1101);
    QVERIFY(curve.Path().elementAt(0).isMoveTo());
    for (int i = 1; i < curve.Path().elementCount(); ++i)
        QVERIFY2(curve.Path().elementAt(i).isLineTo(), qPrintable(QString::number(i)));
}

void TestCctCurve::APointIsOnTheDaylightLocus_data()
{
    QTest::addColumn<int>("temperature");
    QTest::newRow("the first") << 4000;
    QTest::newRow("the last of the warm formula") << 7000;
    QTest::newRow("the first of the cold formula") << 7010;
    QTest::newRow("the last") << 15000;
}

void TestCctCurve::APointIsOnTheDaylightLocus()
{
    QFETCH(int, temperature);
    const CChartMapping mapping = CChartMapping::ForSize(420, 360);
    const CCctCurve curve = MappedCurve(mapping);
    QVERIFY(Distance(PointOf(curve, temperature), mapping.ToPixel(Daylight(temperature))) < c_dTolerance);
}

void TestCctCurve::The6500KPointIsD65()
{
    const CChartMapping mapping = CChartMapping::ForSize(420, 360);
    const QPointF ptD65 = mapping.ToPixel(QPointF(0.3127, 0.329));
    QVERIFY(Distance(PointOf(MappedCurve(mapping), 6500), ptD65) < c_dTolerance);
}

void TestCctCurve::ATickStandsOnItsTemperature_data()
{
    QTest::addColumn<int>("tick");
    QTest::addColumn<int>("temperature");
    QTest::newRow("4000 K") << 0 << 4000;
    QTest::newRow("6500 K") << 1 << 6500;
    QTest::newRow("12000 K") << 2 << 12000;
}

void TestCctCurve::ATickStandsOnItsTemperature()
{
    QFETCH(int, tick);
    QFETCH(int, temperature);
    const CCctCurve curve = MappedCurve(CChartMapping::ForSize(420, 360));
    const CCctCurve::STick& found = curve.Ticks()[std::size_t(tick)];
    QCOMPARE(found.nTemperature, temperature);
    QCOMPARE(found.ptFoot, PointOf(curve, temperature));
}

void TestCctCurve::ATickSlantsAcrossTheCurve_data()
{
    ATickStandsOnItsTemperature_data();
}

void TestCctCurve::ATickSlantsAcrossTheCurve()
{
    // Five pixels over the root towards smaller y, and over its square towards smaller x.
    QFETCH(int, tick);
    QFETCH(int, temperature);
    const CCctCurve curve = MappedCurve(CChartMapping::ForSize(1000, 1000));
    const CCctCurve::STick& found = curve.Ticks()[std::size_t(tick)];
    const QPointF ptStep = PointOf(curve, temperature + 10) - found.ptFoot;
    const double dRoot = std::hypot(ptStep.x() / ptStep.y(), 1.0);
    const QPointF ptExpected = found.ptFoot - QPointF(5.0 / (dRoot * dRoot), 5.0 / dRoot);
    QVERIFY(Distance(found.ptEnd, ptExpected) < c_dTolerance);
}

void TestCctCurve::AnotherMappingMovesPathAndTicks()
{
    CCctCurve curve = MappedCurve(CChartMapping::ForSize(420, 360));
    const CChartMapping mapping = CChartMapping::ForSize(800, 900);
    curve.SetMapping(mapping);
    const CCctCurve expected = MappedCurve(mapping);
    QCOMPARE(curve.Path(), expected.Path());
    QVERIFY(std::equal(curve.Ticks().cbegin(), curve.Ticks().cend(), expected.Ticks().cbegin(),
                       [](const CCctCurve::STick& first, const CCctCurve::STick& second) {
                           return first.ptFoot == second.ptFoot && first.ptEnd == second.ptEnd;
                       }));
}

void TestCctCurve::TheSameMappingKeepsThePath()
{
    // A path that is built anew allocates its points.
    CCctCurve curve = MappedCurve(CChartMapping::ForSize(420, 360));
    const CAllocationCounter counter;
    curve.SetMapping(CChartMapping::ForSize(420, 360));
    QCOMPARE(counter.Count(), std::size_t(0));
}

QTEST_APPLESS_MAIN(TestCctCurve)
#include "TestCctCurve.moc"
