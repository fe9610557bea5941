#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "SenderModuleDialog/colour/ChromaGamutInterpolation.h"
#include "oracles/colour/PlainColorimetry.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <cmath>
#include <limits>
#include <random>

/// The library's conversions and inside test beside the plain procedures, to the last bit.
class TestAgainstPlainColorimetry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryTemperatureGivesTheSamePoint();
    void TemperaturesAgreeNearTheLocus_data();
    void TemperaturesAgreeNearTheLocus();
    void TemperaturesAgreeInTheWholeGate();
    void TemperaturesAgreeOnPlateaus();
    void TemperaturesAgreeAtTheBordersOfTheGate();
    void TemperaturesAgreeAroundEveryRow();
    void SearchAgreesFarAway_data();
    void SearchAgreesFarAway();
    void InsideAgreesInTheDiagram();
    void InsideAgreesAroundTheOutline();

private:
    void Agree(QPointF xy);
    void AgreeInside(QPointF pt);
    double Random(double dLow, double dHigh);

    const std::vector<sCIE1931> m_vecRows = PlainColorimetry::MakeRows();
    CCCT2ColorCoord m_cct;
    CChromaGamutInterpolation m_gamut;
    const QVector<QPointF> m_vecOutline = m_gamut.GetQPointFData();
    std::mt19937_64 m_engine{20240229};
};

namespace {

bool SameRow(const sCIE1931& a, const sCIE1931& b)
{
    return ExactCompare::SameBits(a.fUrd, b.fUrd) && a.nCCT == b.nCCT && ExactCompare::SameBits(a.dX, b.dX) &&
           ExactCompare::SameBits(a.dY, b.dY) && ExactCompare::SameBits(a.dU, b.dU) &&
           ExactCompare::SameBits(a.dV, b.dV);
}

QString Text(QPointF pt)
{
    return QStringLiteral("%1, %2").arg(pt.x(), 0, 'g', 17).arg(pt.y(), 0, 'g', 17);
}

QPointF ToXY(double dU, double dV)
{
    const double dDivisor = 2.0 * dU - 8.0 * dV + 4.0;
    return {3.0 * dU / dDivisor, 2.0 * dV / dDivisor};
}

} // namespace

double TestAgainstPlainColorimetry::Random(double dLow, double dHigh)
{
    return std::uniform_real_distribution<double>(dLow, dHigh)(m_engine);
}

/// Verdict, temperature and the pair of rows that it came from.
void TestAgainstPlainColorimetry::Agree(QPointF xy)
{
    float fExpected = -1.0F;
    sCIE1931 arrExpected[2];
    const bool bExpected =
        PlainColorimetry::PointToTemperature(m_vecRows, xy, &fExpected, false, arrExpected);
    float fCCT = -1.0F;
    const bool bInRange = m_cct.TriangAlgCalcRelativeCCT(xy, &fCCT, false);
    if (bInRange != bExpected || !ExactCompare::SameBits(fCCT, fExpected))
        QFAIL(qPrintable(QStringLiteral("temperature at ") + Text(xy)));
    if (!PlainColorimetry::IsInGate(xy))
        return;
    QPointF uv;
    m_cct.ColorCoordXYtoUV(xy, &uv);
    sCIE1931 arrPair[2];
    m_cct.SearchNearestTwoPoint(uv, arrPair);
    if (!SameRow(arrPair[0], arrExpected[0]) || !SameRow(arrPair[1], arrExpected[1]))
        QFAIL(qPrintable(QStringLiteral("pair of rows at ") + Text(xy)));
}

void TestAgainstPlainColorimetry::AgreeInside(QPointF pt)
{
    if (m_gamut.IsPointInCIEPolygon(pt) != PlainColorimetry::Contains(m_vecOutline, pt))
        QFAIL(qPrintable(QStringLiteral("inside at ") + Text(pt)));
}

void TestAgainstPlainColorimetry::EveryTemperatureGivesTheSamePoint()
{
    int nDifferent = 0;
    for (float fCCT = 4000.0F; fCCT <= 25000.0F; fCCT = std::nextafter(fCCT, 30000.0F)) {
        QPointF pt;
        QPointF ptExpected;
        m_cct.CCTtoColorCoord(fCCT, &pt, false);
        PlainColorimetry::TemperatureToPoint(fCCT, &ptExpected, false);
        nDifferent += int(pt.x() != ptExpected.x() || pt.y() != ptExpected.y());
    }
    QCOMPARE(nDifferent, 0);
}

void TestAgainstPlainColorimetry::TemperaturesAgreeNearTheLocus_data()
{
    QTest::addColumn<double>("dOffset");
    QTest::addColumn<int>("nPoints");
    QTest::newRow("on it up to rounding") << 1e-7 << 50000;
    QTest::newRow("within a step of the table") << 1e-4 << 100000;
    QTest::newRow("within 0.01") << 0.01 << 250000;
    QTest::newRow("within 0.1") << 0.1 << 50000;
}

void TestAgainstPlainColorimetry::TemperaturesAgreeNearTheLocus()
{
    QFETCH(double, dOffset);
    QFETCH(int, nPoints);
    for (int i = 0; i < nPoints && !QTest::currentTestFailed(); ++i) {
        // Half by kelvin, half by mired, so that both ends of the table get their share.
        const double dCCT = i % 2 == 0 ? Random(4000.0, 25000.0) : 1000000.0 / Random(40.0, 250.0);
        QPointF pt;
        m_cct.CCTtoColorCoord(float(dCCT), &pt, true);
        Agree(pt + QPointF(Random(-dOffset, dOffset), Random(-dOffset, dOffset)));
    }
}

void TestAgainstPlainColorimetry::TemperaturesAgreeInTheWholeGate()
{
    for (int nInGate = 0; nInGate < 350000 && !QTest::currentTestFailed();) {
        const QPointF pt(Random(0.0, 0.62), Random(0.0, 1.0));
        nInGate += int(PlainColorimetry::IsInGate(pt));
        Agree(pt);
    }
}

/// The walk ends where the fall of a row no longer exceeds the rounding of its distance. These points lie so
/// that it does so within some rows of a chosen one, at distances from a step of the table to the far end of
/// the gate.
void TestAgainstPlainColorimetry::TemperaturesAgreeOnPlateaus()
{
    for (int i = 0; i < 150000 && !QTest::currentTestFailed(); ++i) {
        const std::size_t nRow = std::size_t(Random(1.0, 4199.999));
        const sCIE1931& row = m_vecRows[nRow];
        const double dStepU = m_vecRows[nRow + 1].dU - m_vecRows[nRow - 1].dU;
        const double dStepV = m_vecRows[nRow + 1].dV - m_vecRows[nRow - 1].dV;
        const double dStep = std::hypot(dStepU, dStepV);
        const double dAcross = std::exp(Random(std::log(1e-6), std::log(0.5))) * (i % 2 == 0 ? 1.0 : -1.0);
        const double dPlateau = 0x1p-23 * dAcross * dAcross / (0.5 * dStep);
        const double dAlong = dPlateau * Random(0.3, 1.7) + dStep * Random(-3.0, 3.0);
        Agree(ToXY(row.dU + (dAlong * dStepU - dAcross * dStepV) / dStep,
                   row.dV + (dAlong * dStepV + dAcross * dStepU) / dStep));
    }
}

void TestAgainstPlainColorimetry::TemperaturesAgreeAtTheBordersOfTheGate()
{
    const float arrBorders[] = {-5.52452803F, -2.46035194F, -0.25539455F, 1.48337674F};
    for (int i = 0; i < 100000 && !QTest::currentTestFailed(); ++i) {
        const double dN = double(arrBorders[i % 4]);
        const double dY = i % 3 == 0 ? 0.1858 + Random(-1e-6, 1e-6) : Random(-0.01, 1.01);
        double dX = double(arrBorders[i % 4] * 0.1858F + 0.332F) - dN * dY;
        for (int nUlps = int(Random(0.0, 4.0)); nUlps > 0; --nUlps)
            dX = std::nextafter(dX, i % 5 < 2 ? -1.0 : 2.0);
        Agree(QPointF(dX, dY));
    }
}

void TestAgainstPlainColorimetry::TemperaturesAgreeAroundEveryRow()
{
    for (std::size_t nRow = 0; nRow < m_vecRows.size() && !QTest::currentTestFailed(); ++nRow) {
        const QPointF pt(m_vecRows[nRow].dX, m_vecRows[nRow].dY);
        Agree(pt);
        for (int i = 0; i < 12; ++i)
            Agree(pt + QPointF(Random(-3e-7, 3e-7), Random(-3e-7, 3e-7)));
    }
}

void TestAgainstPlainColorimetry::SearchAgreesFarAway_data()
{
    QTest::addColumn<QPointF>("uv");
    const double dInf = std::numeric_limits<double>::infinity();
    QTest::newRow("at the reach of the skipping") << QPointF(4.0, 4.0);
    QTest::newRow("just beyond it") << QPointF(std::nextafter(4.0, 5.0), 0.3);
    QTest::newRow("the distance begins above 10") << QPointF(10.2, 0.3);
    QTest::newRow("every distance is above 10") << QPointF(50.0, 50.0);
    QTest::newRow("infinite") << QPointF(dInf, 0.3);
    QTest::newRow("smallest") << QPointF(std::numeric_limits<double>::denorm_min(),
                                         std::numeric_limits<double>::denorm_min());
}

void TestAgainstPlainColorimetry::SearchAgreesFarAway()
{
    QFETCH(QPointF, uv);
    sCIE1931 arrExpected[2];
    PlainColorimetry::SearchPair(m_vecRows, uv, arrExpected);
    sCIE1931 arrPair[2];
    arrPair[0].nCCT = arrPair[1].nCCT = 1;
    QVERIFY(m_cct.SearchNearestTwoPoint(uv, arrPair));
    QVERIFY(SameRow(arrPair[0], arrExpected[0]));
    QVERIFY(SameRow(arrPair[1], arrExpected[1]));
}

void TestAgainstPlainColorimetry::InsideAgreesInTheDiagram()
{
    for (int i = 0; i < 300000 && !QTest::currentTestFailed(); ++i)
        AgreeInside(QPointF(Random(-0.05, 0.8), Random(-0.05, 0.9)));
}

/// Points at vertices, at the heights of vertices, on edges, and at the reach of a vertex.
void TestAgainstPlainColorimetry::InsideAgreesAroundTheOutline()
{
    for (int i = 0; i < 300000 && !QTest::currentTestFailed(); ++i) {
        const int nVertex = i % m_vecOutline.size();
        const QPointF ptA = m_vecOutline[nVertex];
        const QPointF ptB = m_vecOutline[(nVertex + 1) % m_vecOutline.size()];
        const double dReach = i % 2 == 0 ? 0.0001 : 1e-7;
        AgreeInside(ptA + QPointF(Random(-1.0, 1.0), Random(-1.0, 1.0)) * 1.2 * dReach);
        AgreeInside(ptA + (ptB - ptA) * Random(0.0, 1.0) +
                    QPointF(Random(-1.0, 1.0), Random(-1.0, 1.0)) * dReach);
        AgreeInside(QPointF(Random(0.0, 0.8), ptA.y()));
        const float fY = std::nextafter(float(ptA.y()), i % 3 == 0 ? 0.0F : 1.0F);
        AgreeInside(QPointF(Random(0.0, 0.8), double(fY)));
    }
}

QTEST_GUILESS_MAIN(TestAgainstPlainColorimetry)
#include "TestAgainstPlainColorimetry.moc"
