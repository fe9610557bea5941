#include "instruments/colour/Chromaticity.h"
#include "tests/instruments/colour/Generate.h"
#include "tests/instruments/colour/Near.h"

#include <limits>

namespace {

constexpr double c_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double c_dInfinity = std::numeric_limits<double>::infinity();

/// Published coordinates have four decimals.
constexpr double c_dPublished = 5e-5;
constexpr double c_dRounding = 1e-13;

} // namespace

Q_DECLARE_METATYPE(SChromaticity)
Q_DECLARE_METATYPE(enColourFault)

class TestChromaticity : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PublishedUcsCoordinates_data();
    void PublishedUcsCoordinates();
    void ToUcsAndBackIsTheSamePoint();
    void StraightLinesStayStraight();
    void TristimulusAndBackIsTheSamePoint();
    void DistanceIsSymmetric();
    void WhatIsNoChromaticityIsNamed_data();
    void WhatIsNoChromaticityIsNamed();
    void EveryFaultHasAText();
};

void TestChromaticity::PublishedUcsCoordinates_data()
{
    QTest::addColumn<SChromaticity>("xy");
    QTest::addColumn<double>("u");
    QTest::addColumn<double>("v");
    // CIE 15:2018, table T.3: colorimetric data of the illuminants.
    QTest::newRow("illuminant A") << SChromaticity{0.44758, 0.40745} << 0.2560 << 0.5243;
    QTest::newRow("illuminant D65") << SChromaticity{0.31272, 0.32903} << 0.1978 << 0.4683;
    QTest::newRow("illuminant D50") << SChromaticity{0.34567, 0.35851} << 0.2092 << 0.4881;
    QTest::newRow("equal energy") << SChromaticity{1.0 / 3.0, 1.0 / 3.0} << 4.0 / 19.0 << 9.0 / 19.0;
    // ITU-R BT.709 primaries in (u', v').
    QTest::newRow("BT.709 red") << SChromaticity{0.64, 0.33} << 0.4507 << 0.5229;
    QTest::newRow("BT.709 green") << SChromaticity{0.30, 0.60} << 0.1250 << 0.5625;
    QTest::newRow("BT.709 blue") << SChromaticity{0.15, 0.06} << 0.1754 << 0.1579;
}

void TestChromaticity::PublishedUcsCoordinates()
{
    QFETCH(SChromaticity, xy);
    QFETCH(double, u);
    QFETCH(double, v);
    const SUcs uv = Chromaticity::ToUcs(xy);
    COMPARE_NEAR(uv.dU, u, c_dPublished);
    COMPARE_NEAR(uv.dV, v, c_dPublished);
    COMPARE_NEAR(Chromaticity::ToUcs1960(uv).dV, v / 1.5, c_dPublished);
}

void TestChromaticity::ToUcsAndBackIsTheSamePoint()
{
    QVERIFY(PropertyHolds("(x, y) to (u', v') and back", [] {
        const SChromaticity xy = AnyChromaticity();
        const SChromaticity back = Chromaticity::FromUcs(Chromaticity::ToUcs(xy));
        RC_ASSERT(std::abs(back.dX - xy.dX) < c_dRounding);
        RC_ASSERT(std::abs(back.dY - xy.dY) < c_dRounding);
    }));
}

void TestChromaticity::StraightLinesStayStraight()
{
    QVERIFY(PropertyHolds("a point between two lies on the line between their images", [] {
        const SChromaticity a = AnyChromaticity();
        const SChromaticity b = AnyChromaticity();
        const double dPart = AnyPart();
        const SUcs uvA = Chromaticity::ToUcs(a);
        const SUcs uvB = Chromaticity::ToUcs(b);
        const SUcs uv = Chromaticity::ToUcs({a.dX + (b.dX - a.dX) * dPart, a.dY + (b.dY - a.dY) * dPart});
        const double dCross = (uvB.dU - uvA.dU) * (uv.dV - uvA.dV) - (uvB.dV - uvA.dV) * (uv.dU - uvA.dU);
        RC_ASSERT(std::abs(dCross) < c_dRounding);
    }));
}

void TestChromaticity::TristimulusAndBackIsTheSamePoint()
{
    QVERIFY(PropertyHolds("(x, y, Y) to XYZ and back", [] {
        const SChromaticity xy = AnyChromaticity();
        const double dLuminance = AnyBetween(0.01, 10000.0);
        const STristimulus xyz = Chromaticity::ToTristimulus(xy, dLuminance);
        const SChromaticity back = Chromaticity::FromTristimulus(xyz);
        RC_ASSERT(xyz.dY == dLuminance);
        RC_ASSERT(std::abs(back.dX - xy.dX) < c_dRounding);
        RC_ASSERT(std::abs(back.dY - xy.dY) < c_dRounding);
    }));
}

void TestChromaticity::DistanceIsSymmetric()
{
    QVERIFY(PropertyHolds("from a to b is as far as from b to a", [] {
        const SUcs a = Chromaticity::ToUcs(AnyChromaticity());
        const SUcs b = Chromaticity::ToUcs(AnyChromaticity());
        RC_ASSERT(Chromaticity::Distance(a, b) == Chromaticity::Distance(b, a));
        RC_ASSERT(Chromaticity::Distance(a, a) == 0.0);
    }));
}

void TestChromaticity::WhatIsNoChromaticityIsNamed_data()
{
    QTest::addColumn<SChromaticity>("xy");
    QTest::addColumn<enColourFault>("fault");
    QTest::newRow("white") << SChromaticity{0.3127, 0.329} << enColourFault::enNone;
    QTest::newRow("no blue at all") << SChromaticity{0.7, 0.3} << enColourFault::enNone;
    QTest::newRow("a red of rounded decimals") << SChromaticity{0.7081, 0.2920} << enColourFault::enNone;
    QTest::newRow("NaN in x") << SChromaticity{c_dNaN, 0.3} << enColourFault::enNotFinite;
    QTest::newRow("NaN in y") << SChromaticity{0.3, c_dNaN} << enColourFault::enNotFinite;
    QTest::newRow("infinite") << SChromaticity{0.3, c_dInfinity} << enColourFault::enNotFinite;
    QTest::newRow("zero y") << SChromaticity{0.3, 0.0} << enColourFault::enNotChromaticity;
    QTest::newRow("negative x") << SChromaticity{-0.1, 0.3} << enColourFault::enNotChromaticity;
    QTest::newRow("sum above 1") << SChromaticity{0.6, 0.5} << enColourFault::enNotChromaticity;
}

void TestChromaticity::WhatIsNoChromaticityIsNamed()
{
    QFETCH(SChromaticity, xy);
    QFETCH(enColourFault, fault);
    QVERIFY(Chromaticity::Check(xy) == fault);
}

void TestChromaticity::EveryFaultHasAText()
{
    QSet<QByteArray> texts;
    for (int i = 0; i <= int(enColourFault::enNoModules); ++i)
        texts.insert(ColourFaultText(enColourFault(i)));
    QCOMPARE(texts.size(), int(enColourFault::enNoModules) + 1);
    QVERIFY(!texts.contains("unknown fault"));
}

QTEST_APPLESS_MAIN(TestChromaticity)
#include "TestChromaticity.moc"
