#include "SenderModuleDialog/chart/solve/ChartHitTest.h"
#include "tests/support/DeathTest.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr int c_nSide = 600;

/// A group with all its points far away, at chromaticities that the mouse does not reach.
SChromaGroupInfo FarGroup()
{
    SChromaGroupInfo group;
    group.ptRed = group.ptGreen = group.ptBlue = group.ptWhite = {5.0F, 5.0F};
    return group;
}

} // namespace

/// The point under a pixel, from plain values.
class TestChartHitTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void NothingIsHitBesideThePoints();
    void ABoxCatchesItsEdges_data();
    void ABoxCatchesItsEdges();
    void TheFirstFixedPointWins();
    void TheLastMovablePointWins();
    void AHiddenGroupIsHit();
    void AHitWhiteIsNotedWhateverWins();
    void ANanPointCatchesNothing();
    void AnEmptyEntryFaults();

private:
    SChartHit Hit(QPoint pos) const
    {
        SChromaGroupInfo first = m_first;
        SChromaGroupInfo second = m_second;
        return HitTestChart({{1, &first}, {2, &second}}, m_mapping, pos);
    }

    const CChartMapping m_mapping = CChartMapping::ForSize(c_nSide, c_nSide);
    const CPointEx<float> m_pt{0.25F, 0.5F};
    const QPoint m_pos = m_mapping.ToPixel(m_pt).toPoint();
    SChromaGroupInfo m_first = FarGroup();
    SChromaGroupInfo m_second = FarGroup();
};

void TestChartHitTest::NothingIsHitBesideThePoints()
{
    m_first = m_second = FarGroup();
    const SChartHit hit = Hit(m_pos);
    QCOMPARE(hit.nGroup, -1);
    QCOMPARE(hit.nPoint, int(enNoPoint));
    QVERIFY(!hit.bWhite);
}

void TestChartHitTest::ABoxCatchesItsEdges_data()
{
    QTest::addColumn<QPoint>("ptAway");
    QTest::addColumn<bool>("bHit");
    // The scale of this chart is 600, so a box reaches 6 pixels from its point.
    QTest::newRow("on the point") << QPoint(0, 0) << true;
    QTest::newRow("left edge") << QPoint(-6, 0) << true;
    QTest::newRow("right edge") << QPoint(6, 0) << true;
    QTest::newRow("upper left corner") << QPoint(-6, -6) << true;
    QTest::newRow("lower right corner") << QPoint(6, 6) << true;
    QTest::newRow("beyond the left edge") << QPoint(-7, 0) << false;
    QTest::newRow("beyond the right edge") << QPoint(7, 0) << false;
    QTest::newRow("above") << QPoint(0, -7) << false;
    QTest::newRow("below") << QPoint(0, 7) << false;
}

void TestChartHitTest::ABoxCatchesItsEdges()
{
    QFETCH(QPoint, ptAway);
    QFETCH(bool, bHit);
    m_first = m_second = FarGroup();
    m_first.ptGreen = m_pt;
    QCOMPARE(m_mapping.Scale(), 600.0F);
    QCOMPARE(Hit(m_pos + ptAway).nPoint, bHit ? int(enGreenPoint) : int(enNoPoint));
}

void TestChartHitTest::TheFirstFixedPointWins()
{
    m_first = m_second = FarGroup();
    m_first.ptBlue = m_second.ptRed = m_pt;
    QCOMPARE(Hit(m_pos).nGroup, 1);
    QCOMPARE(Hit(m_pos).nPoint, int(enBluePoint));
}

void TestChartHitTest::TheLastMovablePointWins()
{
    m_first = m_second = FarGroup();
    m_first.ptBlue = m_second.ptRed = m_second.ptGreen = m_second.ptBlue = m_pt;
    m_first.bMoveBlue = m_second.bMoveRed = m_second.bMoveGreen = true;
    QCOMPARE(Hit(m_pos).nGroup, 2);
    QCOMPARE(Hit(m_pos).nPoint, int(enGreenPoint));
}

void TestChartHitTest::AHiddenGroupIsHit()
{
    m_first = m_second = FarGroup();
    m_second.ptRed = m_pt;
    m_second.bVisible = m_second.bShowRedDot = false;
    QCOMPARE(Hit(m_pos).nGroup, 2);
}

void TestChartHitTest::AHitWhiteIsNotedWhateverWins()
{
    m_first = m_second = FarGroup();
    m_first.ptWhite = m_second.ptRed = m_pt;
    m_second.bMoveRed = true;
    QCOMPARE(Hit(m_pos).nPoint, int(enRedPoint));
    QVERIFY(Hit(m_pos).bWhite);
}

void TestChartHitTest::ANanPointCatchesNothing()
{
    m_first = m_second = FarGroup();
    m_first.ptRed = {std::nanf(""), 0.5F};
    QCOMPARE(Hit(m_pos).nPoint, int(enNoPoint));
}

void TestChartHitTest::AnEmptyEntryFaults()
{
    const SDeath death = RunToDeath([this] { HitTestChart({{1, nullptr}}, m_mapping, m_pos); });
    QVERIFY(death.bAborted);
    QVERIFY(death.strOutput.contains("does not hold"));
}

QTEST_APPLESS_MAIN(TestChartHitTest)
#include "TestChartHitTest.moc"
