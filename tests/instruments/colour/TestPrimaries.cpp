#include "instruments/colour/Primaries.h"
#include "instruments/colour/StandardGamut.h"
#include "tests/instruments/colour/Generate.h"
#include "tests/instruments/colour/Near.h"

#include <lcms2.h>

#include <limits>
#include <memory>

namespace {

constexpr SChromaticity c_d65 = {0.3127, 0.3290};
constexpr double c_dNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double c_dRounding = 1e-11;

/// Little-CMS takes its D50 and its way from and to it in single precision.
constexpr double c_dLittleCms = 2e-7;

SGamut Standard(int nIndex)
{
    return StandardGamut::Primaries(c_arrColourStandards[nIndex]);
}

/// A wall that shows exactly a standard at full drive.
SPrimaries MeasuredDisplay(const SGamut& gamut, SChromaticity white, double dLevel)
{
    const auto luminances = Primaries::LuminancesForWhite(gamut, white, dLevel);
    return {
        {gamut.red, luminances->dRed}, {gamut.green, luminances->dGreen}, {gamut.blue, luminances->dBlue}};
}

double LargestDifference(const CColourMatrix& a, const CColourMatrix& b)
{
    double dLargest = 0.0;
    for (std::size_t nRow = 0; nRow < 3; ++nRow)
        for (std::size_t nColumn = 0; nColumn < 3; ++nColumn)
            dLargest = std::max(dLargest, std::abs(a.At(nRow, nColumn) - b.At(nRow, nColumn)));
    return dLargest;
}

struct SProfileCloser
{
    void operator()(void* pProfile) const { cmsCloseProfile(pProfile); }
};
struct STransformDeleter
{
    void operator()(void* pTransform) const { cmsDeleteTransform(pTransform); }
};

cmsCIExyY ToCms(SChromaticity xy)
{
    return {xy.dX, xy.dY, 1.0};
}

/// XYZ of linear red, green and blue by a Little-CMS profile of the primaries, without adaptation to D50:
/// Little-CMS keeps adapted colorants, so the adaptation is taken back by its own Bradford matrix.
class CCmsDisplay
{
public:
    CCmsDisplay(const SGamut& gamut, SChromaticity white)
    {
        const cmsCIExyY cmsWhite = ToCms(white);
        const cmsCIExyYTRIPLE primaries = {ToCms(gamut.red), ToCms(gamut.green), ToCms(gamut.blue)};
        cmsToneCurve* pLinear = cmsBuildGamma(nullptr, 1.0);
        cmsToneCurve* arrCurves[] = {pLinear, pLinear, pLinear};
        m_profile.reset(cmsCreateRGBProfile(&cmsWhite, &primaries, arrCurves));
        cmsFreeToneCurve(pLinear);
        m_xyz.reset(cmsCreateXYZProfile());
        m_transform.reset(cmsCreateTransform(m_profile.get(), TYPE_RGB_DBL, m_xyz.get(), TYPE_XYZ_DBL,
                                             INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_NOOPTIMIZE));
        cmsxyY2XYZ(&m_white, &cmsWhite);
    }

    Vector3 ToXyz(const Vector3& rgb) const
    {
        cmsCIEXYZ adapted = {};
        cmsDoTransform(m_transform.get(), rgb.data(), &adapted, 1);
        cmsCIEXYZ xyz = {};
        cmsAdaptToIlluminant(&xyz, cmsD50_XYZ(), &m_white, &adapted);
        return {xyz.X, xyz.Y, xyz.Z};
    }

private:
    std::unique_ptr<void, SProfileCloser> m_profile;
    std::unique_ptr<void, SProfileCloser> m_xyz;
    std::unique_ptr<void, STransformDeleter> m_transform;
    cmsCIEXYZ m_white = {};
};

} // namespace

Q_DECLARE_METATYPE(SPrimaries)
Q_DECLARE_METATYPE(enColourFault)

class TestPrimaries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void PublishedMatrices_data();
    void PublishedMatrices();
    void LittleCmsGivesTheSameColours();
    void LuminancesMixToTheWhite();
    void PublishedLuminances();
    void TheGreatestLevelDrivesOneChannelFully();
    void LevelsScaleWithLuminance();
    void TheDriveMatrixOfADisplayToItselfIsOne();
    void DriveValuesShowTheSourcesColours();
    void InsideTheGamutNothingClips();
    void ClippedColoursAreThoseOfAPlainCount();
    void PermutedPrimariesPermuteTheMatrix();
    void WhatIsNoDisplayIsNamed_data();
    void WhatIsNoDisplayIsNamed();
    void AWhiteOutsideIsNamed();
};

void TestPrimaries::PublishedMatrices_data()
{
    QTest::addColumn<int>("standard");
    QTest::addColumn<QVector<double>>("elements");
    // IEC 61966-2-1 (BT.709 primaries, D65), four decimals.
    QTest::newRow("sRGB") << 0 << QVector<double>{0.4124, 0.3576, 0.1805, 0.2126, 0.7152,
                                                  0.0722, 0.0193, 0.1192, 0.9505};
    // ITU-R BT.2020: Y = 0.2627 R + 0.6780 G + 0.0593 B; the other rows by RP 177.
    QTest::newRow("Rec2020") << 6 << QVector<double>{0.6370, 0.1446, 0.1689, 0.2627, 0.6780,
                                                     0.0593, 0.0000, 0.0281, 1.0610};
    // SMPTE RP 431-2 primaries with D65, as SMPTE EG 432-1 derives them.
    QTest::newRow("DCIP3") << 7 << QVector<double>{0.4866, 0.2657, 0.1982, 0.2290, 0.6917,
                                                   0.0793, 0.0000, 0.0451, 1.0439};
}

void TestPrimaries::PublishedMatrices()
{
    QFETCH(int, standard);
    QFETCH(QVector<double>, elements);
    const auto matrix = Primaries::SourceToXyz(Standard(standard), c_d65, 1.0);
    QVERIFY(bool(matrix));
    for (int i = 0; i < 9; ++i)
        COMPARE_NEAR(matrix->At(std::size_t(i / 3), std::size_t(i % 3)), elements[i], 1e-4);
}

void TestPrimaries::LittleCmsGivesTheSameColours()
{
    double dLargest = 0.0;
    QVERIFY(PropertyHolds("XYZ of linear light by a profile of the same primaries", [&dLargest] {
        const SGamut gamut = AnyGamut();
        const CCmsDisplay cms(gamut, c_d65);
        const CColourMatrix matrix = *Primaries::SourceToXyz(gamut, c_d65, 1.0);
        const Vector3 rgb = {AnyPart(), AnyPart(), AnyPart()};
        const Vector3 xyz = matrix * rgb;
        const Vector3 expected = cms.ToXyz(rgb);
        for (std::size_t i = 0; i < 3; ++i) {
            dLargest = std::max(dLargest, std::abs(xyz[i] - expected[i]));
            RC_ASSERT(std::abs(xyz[i] - expected[i]) < c_dLittleCms);
        }
    }));
    qInfo("largest difference from Little-CMS: %.3g", dLargest);
}

void TestPrimaries::LuminancesMixToTheWhite()
{
    QVERIFY(PropertyHolds("the primaries at their luminances add up to the white", [] {
        const SGamut gamut = AnyGamut();
        const double dLevel = AnyBetween(10.0, 5000.0);
        const auto white = Primaries::WhiteOf(MeasuredDisplay(gamut, c_d65, dLevel));
        RC_ASSERT(std::abs(white->xy.dX - c_d65.dX) < c_dRounding);
        RC_ASSERT(std::abs(white->xy.dY - c_d65.dY) < c_dRounding);
        RC_ASSERT(std::abs(white->dLuminance / dLevel - 1.0) < c_dRounding);
    }));
}

void TestPrimaries::PublishedLuminances()
{
    // ITU-R BT.709: Y = 0.2126 R + 0.7152 G + 0.0722 B.
    const auto luminances = Primaries::LuminancesForWhite(Standard(5), c_d65, 100.0);
    COMPARE_NEAR(luminances->dRed, 21.26, 0.005);
    COMPARE_NEAR(luminances->dGreen, 71.52, 0.005);
    COMPARE_NEAR(luminances->dBlue, 7.22, 0.005);
}

void TestPrimaries::TheGreatestLevelDrivesOneChannelFully()
{
    QVERIFY(PropertyHolds("at the greatest level one drive is 1 and none is more", [] {
        const SPrimaries display = AnyPrimaries();
        const auto greatest = Primaries::GreatestLevel(display, c_d65);
        RC_PRE(bool(greatest));
        const auto drive =
            Primaries::DriveMatrix(Primaries::GamutOf(display), c_d65, greatest->dLevel, display);
        const Vector3 white = *drive * Vector3{1.0, 1.0, 1.0};
        RC_ASSERT(std::abs(white[std::size_t(greatest->limit)] - 1.0) < c_dRounding);
        RC_ASSERT(*std::max_element(white.begin(), white.end()) < 1.0 + c_dRounding);
    }));
}

void TestPrimaries::LevelsScaleWithLuminance()
{
    QVERIFY(PropertyHolds("a display twice as bright reaches twice the level", [] {
        const SPrimaries display = AnyPrimaries();
        SPrimaries brighter = display;
        for (SReading* pReading : {&brighter.red, &brighter.green, &brighter.blue})
            pReading->dLuminance *= 2.0;
        const auto once = Primaries::GreatestLevel(display, c_d65);
        const auto twice = Primaries::GreatestLevel(brighter, c_d65);
        RC_ASSERT(std::abs(twice->dLevel / once->dLevel - 2.0) < c_dRounding);
        RC_ASSERT(twice->limit == once->limit);
    }));
}

void TestPrimaries::TheDriveMatrixOfADisplayToItselfIsOne()
{
    QVERIFY(PropertyHolds("a display that is the standard needs no correction", [] {
        const SGamut gamut = AnyGamut();
        const double dLevel = AnyBetween(10.0, 5000.0);
        const auto drive =
            Primaries::DriveMatrix(gamut, c_d65, dLevel, MeasuredDisplay(gamut, c_d65, dLevel));
        RC_ASSERT(LargestDifference(*drive, CColourMatrix::Identity()) < c_dRounding);
    }));
}

void TestPrimaries::DriveValuesShowTheSourcesColours()
{
    QVERIFY(PropertyHolds("what is driven is the colour that the source meant", [] {
        const SPrimaries display = AnyPrimaries();
        const SGamut source = AnyGamut();
        const double dLevel = AnyBetween(10.0, 500.0);
        const Vector3 rgb = {AnyPart(), AnyPart(), AnyPart()};
        const Vector3 shown = *Primaries::MatrixToXyz(display) *
                              (*Primaries::DriveMatrix(source, c_d65, dLevel, display) * rgb);
        const Vector3 meant = *Primaries::SourceToXyz(source, c_d65, dLevel) * rgb;
        for (std::size_t i = 0; i < 3; ++i)
            RC_ASSERT(std::abs(shown[i] - meant[i]) < 1e-8);
    }));
}

void TestPrimaries::InsideTheGamutNothingClips()
{
    const SPrimaries wide = MeasuredDisplay(Standard(6), c_d65, 1000.0);
    const auto drive = Primaries::DriveMatrix(Standard(0), c_d65, 1000.0, wide);
    QCOMPARE(Primaries::ClipShare(*drive, 17).dClipped, 0.0);
}

void TestPrimaries::ClippedColoursAreThoseOfAPlainCount()
{
    const SPrimaries narrow = MeasuredDisplay(Standard(0), c_d65, 1000.0);
    const CColourMatrix drive = *Primaries::DriveMatrix(Standard(6), c_d65, 1100.0, narrow);
    int nBelow = 0;
    int nAbove = 0;
    constexpr int c_nSteps = 9;
    for (int i = 0; i < c_nSteps * c_nSteps * c_nSteps; ++i) {
        const int nRed = i / (c_nSteps * c_nSteps);
        const int nGreen = i / c_nSteps % c_nSteps;
        const int nBlue = i % c_nSteps;
        const Vector3 values = drive * Vector3{nRed / 8.0, nGreen / 8.0, nBlue / 8.0};
        const auto [pLeast, pMost] = std::minmax_element(values.begin(), values.end());
        nBelow += *pLeast < -1e-9;
        nAbove += *pMost > 1.0 + 1e-9;
    }
    const Primaries::SClipShare share = Primaries::ClipShare(drive, c_nSteps);
    QVERIFY(nBelow > 0 && nAbove > 0);
    COMPARE_NEAR(share.dBelow, nBelow / 729.0, c_dRounding);
    COMPARE_NEAR(share.dAbove, nAbove / 729.0, c_dRounding);
    QVERIFY(share.dClipped <= share.dBelow + share.dAbove && share.dClipped >= share.dBelow);
}

void TestPrimaries::PermutedPrimariesPermuteTheMatrix()
{
    QVERIFY(PropertyHolds("primaries in another order give the same columns in that order", [] {
        const SPrimaries display = AnyPrimaries();
        const CColourMatrix matrix = *Primaries::MatrixToXyz(display);
        const CColourMatrix permuted = *Primaries::MatrixToXyz({display.green, display.blue, display.red});
        for (std::size_t i = 0; i < 3; ++i) {
            RC_ASSERT(permuted.At(i, 0) == matrix.At(i, 1));
            RC_ASSERT(permuted.At(i, 2) == matrix.At(i, 0));
        }
    }));
}

void TestPrimaries::WhatIsNoDisplayIsNamed_data()
{
    QTest::addColumn<SPrimaries>("display");
    QTest::addColumn<enColourFault>("fault");
    const SPrimaries good = MeasuredDisplay(Standard(7), c_d65, 1000.0);
    SPrimaries display = good;
    QTest::newRow("good") << display << enColourFault::enNone;
    display.green.dLuminance = 0.0;
    QTest::newRow("zero luminance") << display << enColourFault::enNotPositive;
    display.green.dLuminance = -3.0;
    QTest::newRow("negative luminance") << display << enColourFault::enNotPositive;
    display.green.dLuminance = c_dNaN;
    QTest::newRow("NaN luminance") << display << enColourFault::enNotFinite;
    display = good;
    display.blue.xy.dY = c_dNaN;
    QTest::newRow("NaN chromaticity") << display << enColourFault::enNotFinite;
    display = good;
    display.blue.xy = display.red.xy;
    QTest::newRow("two equal primaries") << display << enColourFault::enDegenerateGamut;
}

void TestPrimaries::WhatIsNoDisplayIsNamed()
{
    QFETCH(SPrimaries, display);
    QFETCH(enColourFault, fault);
    QCOMPARE(int(Primaries::MatrixToXyz(display).Fault()), int(fault));
    QCOMPARE(int(Primaries::WhiteOf(display).Fault()), int(fault));
    QCOMPARE(int(Primaries::GreatestLevel(display, c_d65).Fault()), int(fault));
    QCOMPARE(int(Primaries::DriveMatrix(Standard(0), c_d65, 100.0, display).Fault()), int(fault));
}

void TestPrimaries::AWhiteOutsideIsNamed()
{
    const auto Fault = [](SChromaticity white, double dLevel) {
        return int(Primaries::LuminancesForWhite(Standard(0), white, dLevel).Fault());
    };
    QCOMPARE(Fault({0.7, 0.29}, 1.0), int(enColourFault::enWhiteOutsideGamut));
    QCOMPARE(Fault({c_dNaN, 0.3}, 1.0), int(enColourFault::enNotFinite));
    QCOMPARE(Fault(c_d65, 0.0), int(enColourFault::enNotPositive));
    QCOMPARE(Fault(c_d65, c_dNaN), int(enColourFault::enNotFinite));
}

QTEST_APPLESS_MAIN(TestPrimaries)
#include "TestPrimaries.moc"
