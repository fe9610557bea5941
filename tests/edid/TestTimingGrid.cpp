#include "oracles/edid/TimingOracle.h"
#include "tests/edid/TimingRecords.h"

#include <QSize>
#include <QVector>

#include <algorithm>
#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace {

constexpr float c_fInf = std::numeric_limits<float>::infinity();
constexpr float c_fNan = std::numeric_limits<float>::quiet_NaN();

const std::vector<float> c_arrRates = {1.0F,   15.0F,   23.976F, 24.0F,   25.0F,   29.97F, 30.0F,  47.952F,
                                       48.0F,  50.0F,   59.94F,  60.0F,   71.928F, 72.0F,  75.0F,  85.0F,
                                       100.0F, 119.88F, 120.0F,  143.9F,  144.0F,  165.0F, 200.0F, 239.76F,
                                       240.0F, 360.0F,  480.0F,  0.9999F, 1000.0F, 1000.1F};

/// Sizes of ordinary displays, where the aspect ratios meet, and what is right beside them.
std::vector<QSize> DisplaySizes()
{
    const std::vector<QSize> vecListed = {
        {640, 480},   {720, 480},   {720, 576},   {800, 600},   {1024, 768},  {1152, 864},  {1280, 720},
        {1280, 768},  {1280, 800},  {1280, 960},  {1280, 1024}, {1360, 768},  {1366, 768},  {1400, 1050},
        {1440, 900},  {1600, 900},  {1600, 1200}, {1680, 1050}, {1920, 1080}, {1920, 1200}, {2048, 1080},
        {2048, 1152}, {2048, 1536}, {2560, 1080}, {2560, 1440}, {2560, 1600}, {2560, 2048}, {3440, 1440},
        {3840, 1080}, {3840, 2160}, {3840, 2400}, {4096, 2160}, {5120, 2880}, {7680, 4320}, {8192, 4320}};
    std::vector<QSize> vecSizes;
    for (const QSize& size : vecListed)
        for (int nMoreWidth = -8; nMoreWidth <= 8; ++nMoreWidth)
            for (int nMoreHeight = -2; nMoreHeight <= 2; ++nMoreHeight)
                vecSizes.emplace_back(size.width() + nMoreWidth, size.height() + nMoreHeight);
    return vecSizes;
}

/// Sizes over the whole range of the controls, none of them round.
std::vector<QSize> ScatteredSizes()
{
    std::vector<QSize> vecSizes;
    for (int nWidth = 1; nWidth <= 16384; nWidth += 241)
        for (int nHeight = 2; nHeight <= 16384; nHeight += 263)
            vecSizes.emplace_back(nWidth, nHeight);
    return vecSizes;
}

/// Each whole number of cells and what is right above it, for the lowest display and a usual one.
std::vector<QSize> SizesOfEveryCell()
{
    std::vector<QSize> vecSizes;
    for (int nCells = 0; nCells <= 1026; ++nCells)
        for (const int nMore : {1, 8})
            for (const int nHeight : {1, 720})
                vecSizes.emplace_back(8 * nCells + nMore, nHeight);
    return vecSizes;
}

/// Around the largest displays that are calculated the short way.
std::vector<QSize> LargestSizes()
{
    const std::vector<int> vecSides = {1, 2, 3, 8183, 8184, 8185, 8191, 8192, 8193, 8200};
    std::vector<QSize> vecSizes;
    for (const int nWidth : vecSides)
        for (const int nHeight : vecSides)
            vecSizes.emplace_back(nWidth, nHeight);
    return vecSizes;
}

tagSBlankTiming Calculated(const tagSCalTimingIn& in)
{
    tagSBlankTiming timing = {};
    CEDIDRaw().CalculateTiming(in, &timing);
    return timing;
}

/// Every mode of a size at a rate: progressive and interlaced, normal and reduced, with and without margins.
template <class TFunction>
void ForEveryKind(const QSize& size, float fRate, TFunction function)
{
    for (int nKind = 0; nKind < 8; ++nKind)
        function(tagSCalTimingIn{size.width(), size.height(), fRate, nKind & 1, nKind & 2, nKind & 4});
}

/// The vertical sync by the plain steps in single precision, for any size.
int PlainVSync(int nWidth, int nHeight)
{
    const auto Round8 = [](float fValue) { return std::floor(fValue * 0.125F) * 8.0F; };
    const float fHeight = float(nHeight);
    const float fWidth = Round8(float(nWidth) + 8.0F - 1.0F);
    if (fWidth == Round8(fHeight * 4.0F / 3.0F))
        return 4;
    if (fWidth == Round8(16.0F * fHeight / 9.0F))
        return 5;
    if (fWidth == Round8(16.0F * fHeight / 10.0F))
        return 6;
    if (fWidth == Round8(5.0F * fHeight * 0.25F) || fWidth == Round8(15.0F * fHeight / 9.0F))
        return 7;
    return 10;
}

const std::vector<int> c_arrHostileInts = {0,     -1,    1,        7,       1920,   -1920,
                                           65535, 65536, 16777217, INT_MAX, INT_MIN};
const std::vector<float> c_arrHostileRates = {
    0.0F,   -0.0F,  60.0F,  -60.0F,  FLT_MIN, -FLT_MIN, FLT_MAX, -FLT_MAX, c_fInf,  -c_fInf,
    c_fNan, 1e-45F, 1e-30F, 2173.9F, 2174.0F, 1818.1F,  1818.2F, 2.2e9F,   -2.2e9F, 9223372036854775808.0F};

} // namespace

class TestTimingGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheBlankingIsThatOfASecondEvaluation_data();
    void TheBlankingIsThatOfASecondEvaluation();
    void TheVerticalSyncIsThatOfThePlainSteps();
    void ThePixelFrequencyIsThatOfASecondEvaluation();
    void TheStoredClockIsThatOfASecondEvaluation();
    void ReducedBlankingLastsAtLeast460Microseconds();
    void NormalBlankingIsAWholeNumberOfCellPairsWithoutGap();
    void WhatNoFieldHoldsIsHeldToItsRange_data();
    void WhatNoFieldHoldsIsHeldToItsRange();
    void HostileInputGivesARecord();
    void HostileInputGivesABlock();
    void HostileInputGivesAFrequencyAndAVerdict();
};

void TestTimingGrid::TheBlankingIsThatOfASecondEvaluation_data()
{
    QTest::addColumn<QVector<QSize>>("sizes");
    const auto Add = [](const char* szName, const std::vector<QSize>& vecSizes) {
        QTest::newRow(szName) << QVector<QSize>(vecSizes.begin(), vecSizes.end());
    };
    Add("ordinary displays and their neighbours", DisplaySizes());
    Add("scattered over the whole range", ScatteredSizes());
    Add("every number of cells", SizesOfEveryCell());
    Add("the largest displays and beyond", LargestSizes());
}

void TestTimingGrid::TheBlankingIsThatOfASecondEvaluation()
{
    QFETCH(QVector<QSize>, sizes);
    for (const QSize& size : sizes) {
        for (const float fRate : c_arrRates) {
            ForEveryKind(size, fRate, [](const tagSCalTimingIn& in) {
                const tagSBlankTiming actual = Calculated(in);
                const tagSBlankTiming expected = TimingOracle::Blanking(in);
                if (!(actual == expected))
                    QFAIL(qPrintable(QStringLiteral("%1: actual %2, expected %3")
                                         .arg(Describe(in), Describe(actual), Describe(expected))));
            });
            if (QTest::currentTestFailed())
                return;
        }
    }
}

void TestTimingGrid::TheVerticalSyncIsThatOfThePlainSteps()
{
    // Heights of every magnitude and sign, each with the widths where its ratios begin and end.
    constexpr double c_arrRatios[] = {4.0 / 3.0, 16.0 / 9.0, 16.0 / 10.0, 5.0 / 4.0, 15.0 / 9.0};
    std::mt19937 random(20260);
    for (int nRound = 0; nRound < 40000; ++nRound) {
        const int nHeight = int(random()) >> (nRound % 32);
        for (const double dRatio : c_arrRatios) {
            for (const int nMore : {-16, -9, -8, -7, -1, 0, 1, 7, 8}) {
                const int nWidth =
                    int(std::clamp(nHeight * dRatio + nMore, double(INT_MIN), double(INT_MAX)));
                const int nActual = Calculated({nWidth, nHeight, 60.0F, 0, 1, 0}).byVSync;
                if (nActual != PlainVSync(nWidth, nHeight))
                    QFAIL(qPrintable(QString::asprintf("%d x %d gives %d", nWidth, nHeight, nActual)));
            }
        }
    }
}

void TestTimingGrid::ThePixelFrequencyIsThatOfASecondEvaluation()
{
    for (const QSize& size : DisplaySizes()) {
        for (const float fRate : c_arrRates) {
            for (const int nStandard : {0, 1}) {
                int nId = -1;
                CEDIDRaw().MatchTimingID(size.width(), size.height(), int(fRate), &nId);
                const tagSBlankTiming blank = TimingOracle::Blanking(
                    {size.width(), size.height(), fRate, 0, nStandard == 0 ? 1 : 0, 0});
                const int nHBlank = nId < 0 ? blank.wHBlank : timingData[nId].wHBlank;
                const int nVBlank = nId < 0 ? blank.wVBlank : timingData[nId].wVBlank;
                const double dExpected = TimingOracle::PixelFrequency(size.width() + nHBlank,
                                                                      size.height() + nVBlank, double(fRate));
                const float fActual =
                    CEDIDRaw().CalReslutionPixelFreq(size.width(), size.height(), fRate, nStandard);
                if (double(fActual) != dExpected)
                    QFAIL(qPrintable(QString::asprintf("%dx%d at %g Hz: actual %a, expected %a", size.width(),
                                                       size.height(), double(fRate), double(fActual),
                                                       dExpected)));
            }
        }
    }
}

void TestTimingGrid::TheStoredClockIsThatOfASecondEvaluation()
{
    CEDIDRaw edid;
    for (const QSize& size : DisplaySizes()) {
        for (const float fRate : c_arrRates) {
            edid.ChangeWH(size.width(), size.height(), fRate);
            const QByteArray block = BlockOf(edid);
            const tagSBlankTiming blank =
                TimingOracle::Blanking({size.width(), size.height(), fRate, 0, 1, 0});
            const double dHz = TimingOracle::PixelFrequency(size.width() + blank.wHBlank,
                                                            size.height() + blank.wVBlank, double(fRate));
            const int nExpected = int(qint64(dHz) / 10000 % 65536);
            QCOMPARE(quint8(block[0x36]) | quint8(block[0x37]) << 8, nExpected);
        }
    }
}

void TestTimingGrid::ReducedBlankingLastsAtLeast460Microseconds()
{
    for (const QSize& size : DisplaySizes()) {
        for (const float fRate : c_arrRates) {
            const tagSBlankTiming timing = Calculated({size.width(), size.height(), fRate, 0, 1, 0});
            // The line that the frame really has, so the estimate's rounding may take one line's time.
            const double dLine = 1e6 / double(fRate) / (size.height() + timing.wVBlank);
            QVERIFY2((timing.wVBlank + 1) * dLine > 460.0,
                     qPrintable(Describe(tagSCalTimingIn{size.width(), size.height(), fRate, 0, 1, 0})));
            QCOMPARE(int(timing.wHBlank), 160);
        }
    }
}

void TestTimingGrid::NormalBlankingIsAWholeNumberOfCellPairsWithoutGap()
{
    for (const QSize& size : DisplaySizes()) {
        for (const float fRate : c_arrRates) {
            const tagSBlankTiming timing = Calculated({size.width(), size.height(), fRate, 0, 0, 0});
            QCOMPARE(timing.wHBlank % 16, 0);
            QCOMPARE(timing.wHFrontPorch + timing.wHSync + timing.wHBlank / 2, int(timing.wHBlank));
        }
    }
}

void TestTimingGrid::WhatNoFieldHoldsIsHeldToItsRange_data()
{
    QTest::addColumn<tagSCalTimingIn>("in");
    QTest::addColumn<tagSBlankTiming>("expected");
    const auto Add = [](const char* szName, tagSCalTimingIn in, tagSBlankTiming expected) {
        QTest::newRow(szName) << in << expected;
    };
    // clang-format off
    Add("reduced, line period just above zero", {1920, 1080, 2173.9F, 0, 1, 0}, {160, 48, 32, 65535, 3, 5, 1});
    Add("reduced, line period below zero", {1920, 1080, 3000.0F, 0, 1, 0}, {160, 48, 32, 65535, 3, 5, 1});
    Add("reduced, negative rate", {1920, 1080, -60.0F, 0, 1, 0}, {160, 48, 32, 65535, 3, 5, 1});
    Add("reduced, infinite rate", {1920, 1080, c_fInf, 0, 1, 0}, {160, 48, 32, 65535, 3, 5, 1});
    Add("reduced, no rate at all", {1920, 1080, c_fNan, 0, 1, 0}, {160, 48, 32, 14, 3, 5, 1});
    Add("reduced, no lines: an endless line period", {1920, 0, 60.0F, 0, 1, 0}, {160, 48, 32, 19, 3, 10, 1});
    Add("reduced, negative height", {1920, -1080, 60.0F, 0, 1, 0}, {160, 48, 32, 65535, 3, 10, 1});
    Add("normal, line period below zero", {1920, 1080, 3000.0F, 0, 0, 0}, {816, 192, 216, 65535, 3, 5, 2});
    Add("normal, infinite rate", {1920, 1080, c_fInf, 0, 0, 0}, {816, 192, 216, 65535, 3, 5, 2});
    Add("normal, no rate at all", {1920, 1080, c_fNan, 0, 0, 0}, {480, 48, 192, 11, 3, 5, 2});
    Add("normal, duty cycle beyond a whole line: nothing is left to blank", {1920, 1, -60.0F, 0, 0, 0}, {0, 0, 0, 65535, 3, 10, 2});
    Add("normal, width beyond every field", {INT_MAX, 1080, 60.0F, 0, 0, 0}, {65535, 65535, 65535, 40, 3, 10, 2});
    Add("normal, negative width", {-1920, 1080, 60.0F, 0, 0, 0}, {0, 0, 0, 40, 3, 10, 2});
    Add("normal, no size", {0, 0, 60.0F, 0, 0, 0}, {0, 0, 0, 10, 3, 4, 2});
    // clang-format on
}

void TestTimingGrid::WhatNoFieldHoldsIsHeldToItsRange()
{
    QFETCH(tagSCalTimingIn, in);
    QTEST(Calculated(in), "expected");
}

void TestTimingGrid::HostileInputGivesARecord()
{
    for (const int nWidth : c_arrHostileInts) {
        for (const int nHeight : c_arrHostileInts) {
            for (const float fRate : c_arrHostileRates) {
                ForEveryKind({nWidth, nHeight}, fRate, [](const tagSCalTimingIn& in) {
                    const tagSBlankTiming timing = Calculated(in);
                    QCOMPARE(int(timing.byVFrontPorch), 3);
                    QVERIFY(timing.byVSync >= 4 && timing.byVSync <= 10);
                    QCOMPARE(int(timing.bySyncFlag), in.bReducedBlank != 0 ? 1 : 2);
                    QVERIFY(timing.wVBlank >= 10);
                });
                QVERIFY(!QTest::currentTestFailed());
            }
        }
    }
}

void TestTimingGrid::HostileInputGivesABlock()
{
    CEDIDRaw edid;
    for (const int nWidth : c_arrHostileInts) {
        for (const int nHeight : c_arrHostileInts) {
            for (const float fRate : c_arrHostileRates) {
                edid.ChangeWH(nWidth, nHeight, fRate);
                const QByteArray block = BlockOf(edid);
                unsigned nSum = 0;
                for (const char ch : block)
                    nSum += static_cast<unsigned char>(ch);
                QCOMPARE(nSum % 256, 0U);
                QCOMPARE(block.left(8), QByteArray::fromHex("00FFFFFFFFFFFF00"));
                QCOMPARE(block.mid(0x5F, 3), QByteArray("LED"));
            }
        }
    }
}

void TestTimingGrid::HostileInputGivesAFrequencyAndAVerdict()
{
    const CEDIDRaw edid;
    for (const int nWidth : c_arrHostileInts) {
        for (const int nHeight : c_arrHostileInts) {
            for (const float fRate : c_arrHostileRates) {
                const float fActive = float(qint64(nWidth) * nHeight) * fRate;
                // No listed mode is among these, so the active pixels alone are judged.
                const bool bExpected = fActive >= -2147483648.0F && fActive < 160000001.0F;
                QCOMPARE(edid.IsReslutionOk(nWidth, nHeight, fRate), bExpected);
                edid.CalReslutionPixelFreq(nWidth, nHeight, fRate, nWidth);
            }
        }
    }
}

QTEST_APPLESS_MAIN(TestTimingGrid)
#include "TestTimingGrid.moc"
