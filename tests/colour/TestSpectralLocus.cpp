#include "SenderModuleDialog/colour/SpectralLocus.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <algorithm>
#include <cmath>

namespace {

/// Positive when the path from one point over the next to a third turns left.
double TurnAt(QPointF ptBefore, QPointF pt, QPointF ptNext)
{
    const QPointF ptFirst = pt - ptBefore;
    const QPointF ptSecond = ptNext - pt;
    return ptFirst.x() * ptSecond.y() - ptFirst.y() * ptSecond.x();
}

} // namespace

/// The chromaticities of the monochromatic stimuli, and their hull.
class TestSpectralLocus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachNanometreHasAPoint();
    void APointIsXAndYByTheSumOfTheStimulus();
    void TheOutlineBeginsAt404Nanometres();
    void TheOutlineIsMadeOfPointsOfTheLocus();
    void TheOutlineIsConvexAndCounterClockwise();
};

void TestSpectralLocus::EachNanometreHasAPoint()
{
    QCOMPARE(SpectralLocus::Points().size(), 471);
}

void TestSpectralLocus::APointIsXAndYByTheSumOfTheStimulus()
{
    // 555 nm: 0.5120501, 1, 0.0057499.
    const QPointF pt = SpectralLocus::Points().at(555 - 360);
    QVERIFY(std::abs(pt.x() - 0.5120501 / 1.5178) < 1e-7);
    QVERIFY(std::abs(pt.y() - 1.0 / 1.5178) < 1e-7);
}

void TestSpectralLocus::TheOutlineBeginsAt404Nanometres()
{
    const QVector<QPointF> vecOutline = SpectralLocus::Outline();
    QCOMPARE(vecOutline.size(), 156);
    COMPARE_BITS(float(vecOutline.first().x()), 0.17310095F);
    COMPARE_BITS(float(vecOutline.first().y()), 0.0047738748F);
}

void TestSpectralLocus::TheOutlineIsMadeOfPointsOfTheLocus()
{
    const QVector<QPointF> vecPoints = SpectralLocus::Points();
    for (const QPointF& pt : SpectralLocus::Outline())
        QVERIFY(vecPoints.contains(pt));
}

void TestSpectralLocus::TheOutlineIsConvexAndCounterClockwise()
{
    const QVector<QPointF> vecOutline = SpectralLocus::Outline();
    const int nCount = vecOutline.size();
    for (int i = 0; i < nCount; ++i)
        QVERIFY(TurnAt(vecOutline[i], vecOutline[(i + 1) % nCount], vecOutline[(i + 2) % nCount]) > 0.0);
}

QTEST_APPLESS_MAIN(TestSpectralLocus)
#include "TestSpectralLocus.moc"
