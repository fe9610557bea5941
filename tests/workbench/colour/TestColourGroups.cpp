#include "SenderModuleDialog/chart/CChromaticityDlgWnd.h"
#include "SenderModuleDialog/colour/ColourStandards.h"
#include "workbench/colour/ColourGroups.h"

#include <QtTest>

#include <cmath>

namespace {

constexpr float c_fTolerance = 1e-6F;

bool IsNear(CPointEx<float> ptFirst, CPointEx<float> ptSecond)
{
    return std::fabs(ptFirst.x - ptSecond.x) < c_fTolerance &&
           std::fabs(ptFirst.y - ptSecond.y) < c_fTolerance;
}

bool HasPointsOf(const SChromaGroupInfo& group, enColorStandard standard)
{
    const SColourStandard& row = c_arrColourStandards[standard];
    return IsNear(group.ptRed, row.ptRed) && IsNear(group.ptGreen, row.ptGreen) &&
           IsNear(group.ptBlue, row.ptBlue) && IsNear(group.ptWhite, row.ptWhite);
}

} // namespace

class TestColourGroups : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryStandardIsRecognisedByTheChart_data();
    void EveryStandardIsRecognisedByTheChart();
    void AModeIsTheSameGamutInOtherPoints();
    void APresetKeepsTheMode();
    void GroupsComeBackInPlace();
    void APaletteColourIsNoChange();
    void AnOwnColourIsAChange();
    void TheCoverageIsAskedOnlyWithBothSpaces();
    void FreeKeysLeaveTheTwoSpacesOut();
    void AChromaticityIsRead_data();
    void AChromaticityIsRead();
};

void TestColourGroups::EveryStandardIsRecognisedByTheChart_data()
{
    QTest::addColumn<int>("nStandard");
    QTest::addColumn<int>("nRecognised");
    for (int i = 0; i < c_nColorStandardCount; ++i)
        QTest::newRow(c_arrColourStandards[i].szName) << i << i;
}

void TestColourGroups::EveryStandardIsRecognisedByTheChart()
{
    QFETCH(int, nStandard);
    QFETCH(int, nRecognised);
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(0, ColourGroups::OfStandard(enColorStandard(nStandard)));
    chart.ShowCIEStandard(0, enColorStandard(nStandard), true);
    chart.CalcCIEStandardValid();
    QCOMPARE(chart.m_nStandard, nRecognised);
}

void TestColourGroups::AModeIsTheSameGamutInOtherPoints()
{
    SChromaGroupInfo group = ColourGroups::OfStandard(enStandardSRGB);
    ColourGroups::SetMode(group, false);
    QVERIFY(!group.bRgbMode);
    QVERIFY(IsNear(group.ptRed, {0.225F, 0.33F}));
    QVERIFY(IsNear(group.ptGreen, {0.395F, 0.195F}));
    QVERIFY(IsNear(group.ptBlue, {0.47F, 0.465F}));
    ColourGroups::SetMode(group, true);
    QVERIFY(HasPointsOf(group, enStandardSRGB));
}

void TestColourGroups::APresetKeepsTheMode()
{
    SChromaGroupInfo group = ColourGroups::OfStandard(enStandardSRGB);
    ColourGroups::SetMode(group, false);
    ColourGroups::SetStandard(group, enStandardDCIP3);
    QVERIFY(!group.bRgbMode);
    QCOMPARE(group.strName, QStringLiteral("DCIP3"));
    ColourGroups::SetMode(group, true);
    QVERIFY(HasPointsOf(group, enStandardDCIP3));
}

void TestColourGroups::GroupsComeBackInPlace()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(0, ColourGroups::OfStandard(enStandardSRGB));
    chart.AddChromaGroupByIndex(1, ColourGroups::OfStandard(enStandardPAL));
    const ColourGroups::Groups groups = ColourGroups::Take(chart);
    SChromaGroupInfo* const pFirst = chart.GetChromaGroupByIndex(0);
    pFirst->ptRed = {0.5F, 0.4F};
    chart.RemoveChromaGroupByIndex(1);
    chart.AddChromaGroupByIndex(7, ColourGroups::OfStandard(enStandardNTSC));
    ColourGroups::Restore(chart, groups);
    QCOMPARE(chart.m_mapGroups.keys(), (QList<int>{0, 1}));
    QCOMPARE(chart.GetChromaGroupByIndex(0), pFirst);
    QVERIFY(ColourGroups::AreSame(ColourGroups::Take(chart), groups));
}

void TestColourGroups::APaletteColourIsNoChange()
{
    const ColourGroups::Groups first = {{0, ColourGroups::OfStandard(enStandardSRGB)}};
    ColourGroups::Groups second = first;
    second[0].nColorR = 200;
    QVERIFY(ColourGroups::AreSame(first, second));
}

void TestColourGroups::AnOwnColourIsAChange()
{
    const ColourGroups::Groups first = {{enOutputColorSpace, ColourGroups::OutputSpace()}};
    ColourGroups::Groups second = first;
    second[enOutputColorSpace].nColorR = 200;
    QVERIFY(!ColourGroups::AreSame(first, second));
}

void TestColourGroups::TheCoverageIsAskedOnlyWithBothSpaces()
{
    CChromaticityDlgWnd chart(nullptr);
    chart.AddChromaGroupByIndex(enOutputColorSpace, ColourGroups::OutputSpace());
    QVERIFY(!ColourGroups::Coverage(chart));
    QVERIFY(!chart.m_mapGroups.contains(enScreenColorSpace));
    chart.AddChromaGroupByIndex(enScreenColorSpace, ColourGroups::ScreenSpace());
    QCOMPARE(ColourGroups::Coverage(chart).value_or(-1), 72);
    chart.GetChromaGroupByIndex(enScreenColorSpace)->bVisible = false;
    QVERIFY(!ColourGroups::Coverage(chart));
}

void TestColourGroups::FreeKeysLeaveTheTwoSpacesOut()
{
    CChromaticityDlgWnd chart(nullptr);
    for (int nKey = 0; nKey < enOutputColorSpace; ++nKey)
        chart.AddChromaGroupByIndex(nKey, {});
    QCOMPARE(ColourGroups::FreeKey(chart), enOutputColorSpace + 1);
    chart.RemoveChromaGroupByIndex(3);
    QCOMPARE(ColourGroups::FreeKey(chart), 3);
}

void TestColourGroups::AChromaticityIsRead_data()
{
    QTest::addColumn<QString>("strText");
    QTest::addColumn<QString>("strRead");
    QTest::newRow("a comma") << QStringLiteral("0.3127,0.329") << QStringLiteral("0.3127, 0.3290");
    QTest::newRow("spaces") << QStringLiteral("  0.3127  0.329 ") << QStringLiteral("0.3127, 0.3290");
    QTest::newRow("a full-width comma")
        << QString::fromUtf8("0.3127，0.329") << QStringLiteral("0.3127, 0.3290");
    QTest::newRow("both ends") << QStringLiteral("0;1") << QStringLiteral("0.0000, 1.0000");
    QTest::newRow("one number") << QStringLiteral("0.3") << QString();
    QTest::newRow("three numbers") << QStringLiteral("0.3,0.3,0.3") << QString();
    QTest::newRow("below 0") << QStringLiteral("-0.1,0.3") << QString();
    QTest::newRow("above 1") << QStringLiteral("0.3,1.1") << QString();
    QTest::newRow("NaN") << QStringLiteral("nan,0.3") << QString();
    QTest::newRow("infinity") << QStringLiteral("inf,0.3") << QString();
    QTest::newRow("a word") << QStringLiteral("red, green") << QString();
    QTest::newRow("nothing") << QString() << QString();
}

void TestColourGroups::AChromaticityIsRead()
{
    QFETCH(QString, strText);
    QFETCH(QString, strRead);
    const std::optional<CPointEx<float>> point = ColourGroups::ParsePoint(strText);
    QCOMPARE(point ? ColourGroups::PointText(*point) : QString(), strRead);
}

QTEST_MAIN(TestColourGroups)
#include "TestColourGroups.moc"
