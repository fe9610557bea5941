#include "instruments/colour/SpectralWavelength.h"
#include "tests/instruments/colour/Generate.h"
#include "tests/instruments/colour/Near.h"

#include <limits>

namespace {

constexpr SChromaticity c_d65 = {0.3127, 0.3290};
constexpr double c_dNaN = std::numeric_limits<double>::quiet_NaN();

/// Published wavelengths were found by other interpolations of the locus.
constexpr double c_dPublishedNm = 0.1;
constexpr double c_dPublishedPurity = 1e-3;

/// Purity that the hull costs where it bridges a hollow of the locus, as from 574 to 630 nm.
constexpr double c_dBridge = 1e-3;

constexpr double c_dNone = -1.0;

} // namespace

Q_DECLARE_METATYPE(SChromaticity)
Q_DECLARE_METATYPE(enColourFault)

class TestSpectralWavelength : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PublishedWavelengths_data();
    void PublishedWavelengths();
    void PurpleHasNoDominantWavelength();
    void MixturesWithWhiteKeepTheWavelength();
    void OnTheOutlineThePurityIsOne();
    void ComplementaryIsTheOtherEndOfTheLine();
    void WhatHasNoDirectionIsRefused_data();
    void WhatHasNoDirectionIsRefused();
    void MarksLieOnTheLocus();
    void TheNearestWavelengthOfAMarkIsItsOwn();
};

void TestSpectralWavelength::PublishedWavelengths_data()
{
    QTest::addColumn<SChromaticity>("xy");
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<double>("purity");
    // The dominant wavelengths of the BT.709 primaries against D65 as they are commonly tabulated.
    QTest::newRow("BT.709 red") << SChromaticity{0.64, 0.33} << 611.3 << 0.917;
    QTest::newRow("BT.709 green") << SChromaticity{0.30, 0.60} << 549.1 << 0.734;
    QTest::newRow("BT.709 blue") << SChromaticity{0.15, 0.06} << 464.3 << 0.925;
}

void TestSpectralWavelength::PublishedWavelengths()
{
    QFETCH(SChromaticity, xy);
    QFETCH(double, wavelength);
    QFETCH(double, purity);
    const auto dominant = SpectralWavelength::DominantOf(xy, c_d65);
    QVERIFY(bool(dominant));
    COMPARE_NEAR(dominant->dominant.value_or(c_dNone), wavelength, c_dPublishedNm);
    COMPARE_NEAR(dominant->dPurity, purity, c_dPublishedPurity);
}

void TestSpectralWavelength::PurpleHasNoDominantWavelength()
{
    const auto magenta = SpectralWavelength::DominantOf({0.3209, 0.1542}, c_d65);
    QVERIFY(bool(magenta));
    QVERIFY(!magenta->dominant);
    // The complement of BT.709's magenta is its green: the two mix to D65.
    COMPARE_NEAR(magenta->complementary.value_or(c_dNone), 549.1, 0.5);
    QVERIFY(magenta->dPurity > 0.0 && magenta->dPurity < 1.0);
}

void TestSpectralWavelength::MixturesWithWhiteKeepTheWavelength()
{
    QVERIFY(PropertyHolds("halfway to white is half as pure and of the same wavelength", [] {
        const auto mark = SpectralWavelength::Marks(int(AnyBetween(405.0, 690.0)), 830, 1000).front();
        const double dPart = AnyBetween(0.01, 1.0);
        const SChromaticity xy = {c_d65.dX + (mark.xy.dX - c_d65.dX) * dPart,
                                  c_d65.dY + (mark.xy.dY - c_d65.dY) * dPart};
        const auto dominant = SpectralWavelength::DominantOf(xy, c_d65);
        RC_ASSERT(bool(dominant));
        RC_ASSERT(std::abs(dominant->dPurity - dPart) < c_dBridge);
        RC_PRE(mark.dWavelength > 410.0 && mark.dWavelength < 660.0);
        RC_ASSERT(std::abs(dominant->dominant.value_or(c_dNone) - mark.dWavelength) < 0.05);
    }));
}

void TestSpectralWavelength::OnTheOutlineThePurityIsOne()
{
    for (const auto& mark : SpectralWavelength::Marks(460, 620, 20)) {
        const auto dominant = SpectralWavelength::DominantOf(mark.xy, c_d65);
        QVERIFY(bool(dominant));
        COMPARE_NEAR(dominant->dPurity, 1.0, c_dBridge);
    }
}

void TestSpectralWavelength::ComplementaryIsTheOtherEndOfTheLine()
{
    QVERIFY(PropertyHolds("the complementary of the boundary beyond the white is the dominant here", [] {
        const auto mark = SpectralWavelength::Marks(int(AnyBetween(470.0, 490.0)), 830, 1000).front();
        const auto here = SpectralWavelength::DominantOf(mark.xy, c_d65);
        const SChromaticity beyond = {c_d65.dX - 0.1 * (mark.xy.dX - c_d65.dX),
                                      c_d65.dY - 0.1 * (mark.xy.dY - c_d65.dY)};
        const auto there = SpectralWavelength::DominantOf(beyond, c_d65);
        RC_ASSERT(here->complementary.has_value() && there->dominant.has_value());
        RC_ASSERT(std::abs(*here->complementary - *there->dominant) < 1e-6);
        RC_ASSERT(std::abs(*there->complementary - *here->dominant) < 1e-6);
    }));
}

void TestSpectralWavelength::WhatHasNoDirectionIsRefused_data()
{
    QTest::addColumn<SChromaticity>("xy");
    QTest::addColumn<SChromaticity>("white");
    QTest::addColumn<enColourFault>("fault");
    QTest::newRow("the white itself") << c_d65 << c_d65 << enColourFault::enAtWhite;
    QTest::newRow("a white that is no colour")
        << c_d65 << SChromaticity{0.05, 0.05} << enColourFault::enWhiteOutsideGamut;
    QTest::newRow("NaN") << SChromaticity{0.3, c_dNaN} << c_d65 << enColourFault::enNotFinite;
    QTest::newRow("NaN in the white") << c_d65 << SChromaticity{c_dNaN, 0.3} << enColourFault::enNotFinite;
    QTest::newRow("zero") << SChromaticity{0.3, 0.0} << c_d65 << enColourFault::enNotChromaticity;
}

void TestSpectralWavelength::WhatHasNoDirectionIsRefused()
{
    QFETCH(SChromaticity, xy);
    QFETCH(SChromaticity, white);
    QFETCH(enColourFault, fault);
    QCOMPARE(int(SpectralWavelength::DominantOf(xy, white).Fault()), int(fault));
}

void TestSpectralWavelength::MarksLieOnTheLocus()
{
    const auto vecMarks = SpectralWavelength::Marks(300, 900, 10);
    QCOMPARE(int(vecMarks.size()), 48);
    QCOMPARE(vecMarks.front().dWavelength, 360.0);
    QCOMPARE(vecMarks.back().dWavelength, 830.0);
    // CIE 15:2018, table T.4, 520 nm.
    COMPARE_NEAR(vecMarks[16].xy.dX, 0.0743, 5e-5);
    COMPARE_NEAR(vecMarks[16].xy.dY, 0.8338, 5e-5);
}

void TestSpectralWavelength::TheNearestWavelengthOfAMarkIsItsOwn()
{
    for (const auto& mark : SpectralWavelength::Marks(420, 680, 10)) {
        const auto nearest = SpectralWavelength::NearestTo(mark.xy);
        COMPARE_NEAR(nearest.dWavelength, mark.dWavelength, 0.01);
        COMPARE_NEAR(nearest.dDistance, 0.0, 1e-9);
    }
}

QTEST_APPLESS_MAIN(TestSpectralWavelength)
#include "TestSpectralWavelength.moc"
