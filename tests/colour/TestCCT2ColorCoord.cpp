#include "SenderModuleDialog/colour/CCT2ColorCoord.h"
#include "tests/support/AllocationCounter.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <QtTest>

#include <cmath>
#include <functional>
#include <limits>

namespace {

constexpr double c_dInf = std::numeric_limits<double>::infinity();
constexpr double c_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr QPointF c_ptUnwritten(-7.0, -8.0);
constexpr float c_fUnwritten = -9.0F;

/// Opens the solved numbers to the tests.
class COpenCCT2ColorCoord : public CCCT2ColorCoord
{
public:
    using CCCT2ColorCoord::m_sColorCoordTables;
    using CCCT2ColorCoord::m_sReserveTables;
    using CCCT2ColorCoord::m_vecCoordAreas;
    using CCCT2ColorCoord::m_vecCrest;
    using CCCT2ColorCoord::m_vecRoots;
    using CCCT2ColorCoord::m_vecSearchArea;
};

struct STemperature
{
    bool bInRange;
    float fCCT;
};

STemperature TemperatureOf(QPointF pt, bool bExact)
{
    STemperature result = {false, c_fUnwritten};
    result.bInRange = CCCT2ColorCoord().TriangAlgCalcRelativeCCT(pt, &result.fCCT, bExact);
    return result;
}

using FuncMisuse = std::function<void(COpenCCT2ColorCoord&)>;

} // namespace

Q_DECLARE_METATYPE(FuncMisuse)

class TestCCT2ColorCoord : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TemperatureGivesTheChromaticity_data();
    void TemperatureGivesTheChromaticity();
    void TemperatureOutsideTheLocusWritesNothing_data();
    void TemperatureOutsideTheLocusWritesNothing();
    void ChromaticityGivesTheTemperature_data();
    void ChromaticityGivesTheTemperature();
    void TheSmallestChromaticityFaultsNothing();
    void ChromaticityOutsideTheGateWritesNothing_data();
    void ChromaticityOutsideTheGateWritesNothing();
    void SolvingEndsInTheKnownNumbers();
    void RootsAtFourThousandAreThree();
    void TableHoldsTheLocus_data();
    void TableHoldsTheLocus();
    void AWrittenTableIsFollowed();
    void AnEndlessOutwardSearchFaults_data();
    void AnEndlessOutwardSearchFaults();
    void SolvingWithoutASearchAreaFaults();
    void AssertionsNameTheirPlace_data();
    void AssertionsNameTheirPlace();
    void MisuseNamesWhatDoesNotHold_data();
    void MisuseNamesWhatDoesNotHold();
    void ConversionsDoNotAllocate();
};

void TestCCT2ColorCoord::TemperatureGivesTheChromaticity_data()
{
    QTest::addColumn<float>("fCCT");
    QTest::addColumn<bool>("bExact");
    QTest::addColumn<QPointF>("expected");
    QTest::newRow("6500 K snaps to D65")
        << 6500.0F << false << QPointF(0.3127000033855438, 0.32899999618530273);
    QTest::newRow("6500 K exact") << 6500.0F << true << QPointF(0.31277889013290405, 0.32918351888656616);
    QTest::newRow("7000 K takes the upper form")
        << 7000.0F << false << QPointF(0.3053569793701172, 0.3216458857059479);
    QTest::newRow("lowest") << 4000.0F << false << QPointF(0.3823436200618744, 0.3837662637233734);
    QTest::newRow("highest") << 25000.0F << false << QPointF(0.24985367059707642, 0.2547994554042816);
}

void TestCCT2ColorCoord::TemperatureGivesTheChromaticity()
{
    QFETCH(float, fCCT);
    QFETCH(bool, bExact);
    QPointF pt = c_ptUnwritten;
    QVERIFY(CCCT2ColorCoord().CCTtoColorCoord(fCCT, &pt, bExact));
    QFETCH(QPointF, expected);
    COMPARE_BITS(pt, expected);
}

void TestCCT2ColorCoord::TemperatureOutsideTheLocusWritesNothing_data()
{
    QTest::addColumn<float>("fCCT");
    QTest::newRow("just below") << 3999.9F;
    QTest::newRow("just above") << 25000.1F;
    QTest::newRow("next float below") << std::nextafter(4000.0F, 0.0F);
    QTest::newRow("next float above") << std::nextafter(25000.0F, 30000.0F);
    QTest::newRow("zero") << 0.0F;
    QTest::newRow("negative") << -6500.0F;
    QTest::newRow("infinite") << std::numeric_limits<float>::infinity();
    QTest::newRow("not a number") << std::numeric_limits<float>::quiet_NaN();
}

void TestCCT2ColorCoord::TemperatureOutsideTheLocusWritesNothing()
{
    QFETCH(float, fCCT);
    QPointF pt = c_ptUnwritten;
    QVERIFY(!CCCT2ColorCoord().CCTtoColorCoord(fCCT, &pt, false));
    COMPARE_BITS(pt, c_ptUnwritten);
}

void TestCCT2ColorCoord::ChromaticityGivesTheTemperature_data()
{
    QTest::addColumn<QPointF>("pt");
    QTest::addColumn<bool>("bExact");
    QTest::addColumn<bool>("bInRange");
    QTest::addColumn<double>("dExpected");
    QTest::addColumn<double>("dWithin");
    const QPointF ptD65(0.3127, 0.329);
    QTest::newRow("D65 snaps to 6500 K") << ptD65 << false << true << 6500.0 << 0.0;
    QTest::newRow("D65 exact") << ptD65 << true << true << 6505.59 << 0.01;
    QTest::newRow("D50") << QPointF(0.3457, 0.3585) << false << true << 5001.0 << 0.5;
    QTest::newRow("forward image of 25000 K")
        << QPointF(0.24985367059707642, 0.2547994554042816) << false << true << 25000.0 << 0.0;
    QTest::newRow("beyond the last row") << QPointF(0.25, 0.25) << false << false << 25002.2 << 0.05;
}

void TestCCT2ColorCoord::ChromaticityGivesTheTemperature()
{
    QFETCH(QPointF, pt);
    QFETCH(bool, bExact);
    const STemperature temperature = TemperatureOf(pt, bExact);
    QTEST(temperature.bInRange, "bInRange");
    QFETCH(double, dExpected);
    QFETCH(double, dWithin);
    QVERIFY2(std::abs(double(temperature.fCCT) - dExpected) <= dWithin,
             qPrintable(QString::number(double(temperature.fCCT), 'g', 12)));
}

/// Its u rounds to 0, which the search alone would fault on.
void TestCCT2ColorCoord::TheSmallestChromaticityFaultsNothing()
{
    const QPointF pt(std::numeric_limits<double>::denorm_min(), 0.95);
    QVERIFY(CCCT2ColorCoord().isCoordInArea(pt));
    const STemperature temperature = TemperatureOf(pt, false);
    QVERIFY(temperature.fCCT != c_fUnwritten);
    QCOMPARE(temperature.bInRange, CCCT2ColorCoord().isCCTInRange(temperature.fCCT));
}

void TestCCT2ColorCoord::ChromaticityOutsideTheGateWritesNothing_data()
{
    QTest::addColumn<QPointF>("pt");
    QTest::newRow("y at the epicentre") << QPointF(0.3, 0.1858000010251999);
    QTest::newRow("x is 0") << QPointF(0.0, 0.33);
    QTest::newRow("x below 0") << QPointF(-0.1, 0.33);
    QTest::newRow("x is 1") << QPointF(1.0, 0.1);
    QTest::newRow("x above 1") << QPointF(1.1, 0.1);
    QTest::newRow("y is 0") << QPointF(0.3127, 0.0);
    QTest::newRow("y is 1") << QPointF(0.3127, 1.0);
    QTest::newRow("x is not a number") << QPointF(c_dNaN, 0.329);
    QTest::newRow("y is not a number") << QPointF(0.3127, c_dNaN);
    QTest::newRow("x is infinite") << QPointF(c_dInf, 0.329);
    QTest::newRow("y is infinite") << QPointF(0.3127, -c_dInf);
    QTest::newRow("between the wedges") << QPointF(0.6, 0.3);
}

void TestCCT2ColorCoord::ChromaticityOutsideTheGateWritesNothing()
{
    QFETCH(QPointF, pt);
    const STemperature temperature = TemperatureOf(pt, false);
    QVERIFY(!temperature.bInRange);
    COMPARE_BITS(temperature.fCCT, c_fUnwritten);
}

void TestCCT2ColorCoord::SolvingEndsInTheKnownNumbers()
{
    const COpenCCT2ColorCoord cct;
    QVERIFY(cct.m_sReserveTables.isEmpty());
    QCOMPARE(cct.m_sColorCoordTables.size(), 4201);
    QCOMPARE(cct.m_vecCrest.size(), 2);
    COMPARE_BITS(cct.m_vecCrest[0], -4.274552345275879F);
    COMPARE_BITS(cct.m_vecCrest[1], -1.2189642190933228F);
    QCOMPARE(cct.m_vecSearchArea.size(), 2);
    COMPARE_BITS(cct.m_vecSearchArea[0], -5.55455208F);
    COMPARE_BITS(cct.m_vecSearchArea[1], 3.90103579F);
    QCOMPARE(cct.m_vecRoots.size(), 1);
    COMPARE_BITS(cct.m_vecRoots[0], 1.48337674F);
    QCOMPARE(cct.m_vecCoordAreas.size(), 2);
    COMPARE_BITS(cct.m_vecCoordAreas[0].fMin, -5.52452803F);
    COMPARE_BITS(cct.m_vecCoordAreas[0].fMax, -2.46035194F);
    COMPARE_BITS(cct.m_vecCoordAreas[1].fMin, -0.25539455F);
    COMPARE_BITS(cct.m_vecCoordAreas[1].fMax, 1.48337674F);
}

void TestCCT2ColorCoord::RootsAtFourThousandAreThree()
{
    COpenCCT2ColorCoord cct;
    cct.m_vecCrest.clear();
    cct.m_vecSearchArea.clear();
    QVector<float> vecRoots;
    QVERIFY(cct.AreaSolve(4000.0F));
    cct.CalDivArea(vecRoots, 4000.0F);
    QCOMPARE(vecRoots.size(), 3);
    COMPARE_BITS(vecRoots[0], -5.52452803F);
    COMPARE_BITS(vecRoots[1], -2.46035194F);
    COMPARE_BITS(vecRoots[2], -0.25539455F);
}

void TestCCT2ColorCoord::TableHoldsTheLocus_data()
{
    QTest::addColumn<int>("nRow");
    QTest::addColumn<int>("nCCT");
    QTest::addColumn<float>("fUrd");
    QTest::addColumn<QPointF>("xy");
    QTest::newRow("first") << 0 << 4000 << 250.00001525878906F
                           << QPointF(0.3823436200618744, 0.3837662637233734);
    QTest::newRow("last") << 4200 << 25000 << 40.0F << QPointF(0.24985367059707642, 0.2547994554042816);
}

void TestCCT2ColorCoord::TableHoldsTheLocus()
{
    QFETCH(int, nRow);
    const sCIE1931 row = COpenCCT2ColorCoord().m_sColorCoordTables[nRow];
    QTEST(row.nCCT, "nCCT");
    QFETCH(float, fUrd);
    COMPARE_BITS(row.fUrd, fUrd);
    QFETCH(QPointF, xy);
    COMPARE_BITS(QPointF(row.dX, row.dY), xy);
}

/// What is prepared for the usual table must not answer for another one.
void TestCCT2ColorCoord::AWrittenTableIsFollowed()
{
    COpenCCT2ColorCoord cct;
    const QPointF pt(0.3127, 0.329);
    QVector<sCIE1931> vecFirst = cct.m_sColorCoordTables.mid(0, 10);
    cct.m_sColorCoordTables = vecFirst;
    QPointF uv;
    cct.ColorCoordXYtoUV(pt, &uv);
    sCIE1931 arrPair[2];
    QVERIFY(cct.SearchNearestTwoPoint(uv, arrPair));
    QCOMPARE(arrPair[0].nCCT, 4045);
    QCOMPARE(arrPair[1].nCCT, 0);

    cct.ColorCoordTables();
    float fCCT = 0.0F;
    QVERIFY(cct.TriangAlgCalcRelativeCCT(pt, &fCCT, false));
    COMPARE_BITS(fCCT, 6500.0F);
}

void TestCCT2ColorCoord::AnEndlessOutwardSearchFaults_data()
{
    QTest::addColumn<float>("fStep");
    QTest::newRow("no step") << 0.0F;
    QTest::newRow("the cubic keeps its sign on this side") << 0.01F;
    QTest::newRow("infinite step") << std::numeric_limits<float>::infinity();
}

void TestCCT2ColorCoord::AnEndlessOutwardSearchFaults()
{
    QFETCH(float, fStep);
    const SDeath death = RunToDeath([fStep] {
        float fOut = 0.0F;
        CCCT2ColorCoord().SearchNewArea(2.0F, fStep, &fOut, 4000.0F);
    });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("\"SearchNewArea\""), death.strOutput.constData());
}

void TestCCT2ColorCoord::SolvingWithoutASearchAreaFaults()
{
    const SDeath death = RunToDeath([] {
        COpenCCT2ColorCoord cct;
        cct.m_vecSearchArea.clear();
        cct.AreaSolve(25000.0F);
    });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("\"i < m_vecSearchArea.size()\""), death.strOutput.constData());
}

void TestCCT2ColorCoord::AssertionsNameTheirPlace_data()
{
    QTest::addColumn<int>("nCase");
    QTest::addColumn<QByteArray>("strPlace");
    QTest::addColumn<QByteArray>("strExpression");
    QTest::newRow("no table") << 0 << QByteArray("\"TriangAlgCalcRelativeCCT\", CCT2ColorCoord, line 61:")
                              << QByteArray("\"!m_sColorCoordTables.isEmpty()\"");
    QTest::newRow("u is not positive")
        << 1 << QByteArray("\"SearchNearestTwoPoint\", CCT2ColorCoord, line 362:")
        << QByteArray("\"uvcolorCoord.x() > 0 && uvcolorCoord .y() > 0\"");
    QTest::newRow("v is not positive")
        << 2 << QByteArray("\"SearchNearestTwoPoint\", CCT2ColorCoord, line 362:")
        << QByteArray("\"uvcolorCoord.x() > 0 && uvcolorCoord .y() > 0\"");
    QTest::newRow("no pair of rows") << 3 << QByteArray("\"TriangCalUrd\", CCT2ColorCoord, line 402:")
                                     << QByteArray("\"NearTwoColorCoord != nullptr\"");
}

void TestCCT2ColorCoord::AssertionsNameTheirPlace()
{
    QFETCH(int, nCase);
    const SDeath death = RunToDeath([nCase] {
        COpenCCT2ColorCoord cct;
        sCIE1931 arrPair[2];
        float fCCT = 0.0F;
        switch (nCase) {
        case 0:
            cct.m_sColorCoordTables.clear();
            cct.TriangAlgCalcRelativeCCT(QPointF(0.3127, 0.329), &fCCT, false);
            break;
        case 1:
            cct.SearchNearestTwoPoint(QPointF(0.0, 0.3), arrPair);
            break;
        case 2:
            cct.SearchNearestTwoPoint(QPointF(0.2, -0.3), arrPair);
            break;
        default:
            cct.TriangCalUrd(QPointF(0.2, 0.3), nullptr);
        }
    });
    QVERIFY(death.bAborted);
    QFETCH(QByteArray, strPlace);
    QVERIFY2(death.strOutput.contains(strPlace), death.strOutput.constData());
    QFETCH(QByteArray, strExpression);
    QVERIFY2(death.strOutput.contains(strExpression), death.strOutput.constData());
}

void TestCCT2ColorCoord::MisuseNamesWhatDoesNotHold_data()
{
    QTest::addColumn<FuncMisuse>("misuse");
    QTest::addColumn<QByteArray>("strExpression");
    const auto AddRow = [](const char* szName, const FuncMisuse& funcMisuse, const char* szExpression) {
        QTest::newRow(szName) << funcMisuse << QByteArray(szExpression);
    };
    const QPointF ptD65(0.3127, 0.329);
    AddRow(
        "to chromaticity", [](auto& cct) { cct.CCTtoColorCoord(6500.0F, nullptr, false); },
        "\"pColorCoord != nullptr\"");
    AddRow(
        "to temperature", [=](auto& cct) { cct.TriangAlgCalcRelativeCCT(ptD65, nullptr, false); },
        "\"pCCT != nullptr\"");
    AddRow(
        "to u and v", [=](auto& cct) { cct.ColorCoordXYtoUV(ptD65, nullptr); },
        "\"pUVColorCoord != nullptr\"");
    AddRow(
        "the pair of rows",
        [](auto& cct) {
            cct.SearchNearestTwoPoint({0.2, 0.3}, nullptr);
        },
        "\"NearTwoColorCoord != nullptr\"");
    AddRow(
        "a bound of the search", [](auto& cct) { cct.SearchNewArea(-4.0F, -0.01F, nullptr, 4000.0F); },
        "\"pOut != nullptr\"");
    AddRow(
        "a turning point that there is not", [](auto& cct) { cct.isSearchNewArea(3, 4000.0F); },
        "\"nWhich == 1 || nWhich == 2\"");
}

void TestCCT2ColorCoord::MisuseNamesWhatDoesNotHold()
{
    QFETCH(FuncMisuse, misuse);
    QFETCH(QByteArray, strExpression);
    const SDeath death = RunToDeath([&misuse] {
        COpenCCT2ColorCoord cct;
        misuse(cct);
    });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains(strExpression), death.strOutput.constData());
}

void TestCCT2ColorCoord::ConversionsDoNotAllocate()
{
    const CCCT2ColorCoord cct;
    QPointF pt;
    float fCCT = 0.0F;
    const CAllocationCounter counter;
    bool bInRange = cct.CCTtoColorCoord(5000.0F, &pt, false);
    bInRange = cct.TriangAlgCalcRelativeCCT(pt, &fCCT, false) && bInRange;
    QCOMPARE(counter.Count(), std::size_t(0));
    QVERIFY(bInRange);
}

QTEST_GUILESS_MAIN(TestCCT2ColorCoord)
#include "TestCCT2ColorCoord.moc"
