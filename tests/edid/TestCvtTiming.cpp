#include "SenderModuleDialog/edid/CvtTiming.h"
#include "oracles/edid/TimingOracle.h"
#include "tests/edid/TimingInputs.h"
#include "tests/edid/TimingRecords.h"

#include <QVector>

#include <algorithm>
#include <cmath>
#include <random>

using namespace TimingInputs;

namespace {

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
    CvtTiming::Calculate(in, timing);
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

} // namespace

/// The calculated blanking, over a grid of modes beside a second evaluation.
class TestCvtTiming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void VerticalSyncTellsTheAspectRatio_data();
    void VerticalSyncTellsTheAspectRatio();
    void EveryFieldIsWritten();
    void TheBlankingIsThatOfASecondEvaluation_data();
    void TheBlankingIsThatOfASecondEvaluation();
    void TheVerticalSyncIsThatOfThePlainSteps();
    void ReducedBlankingLastsAtLeast460Microseconds();
    void NormalBlankingIsAWholeNumberOfCellPairsWithoutGap();
    void WhatNoFieldHoldsIsHeldToItsRange_data();
    void WhatNoFieldHoldsIsHeldToItsRange();
    void HostileInputGivesARecord();
};

void TestCvtTiming::VerticalSyncTellsTheAspectRatio_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("expected");
    QTest::newRow("4:3") << 1024 << 768 << 4;
    QTest::newRow("16:9") << 1920 << 1080 << 5;
    QTest::newRow("16:10") << 1680 << 1050 << 6;
    QTest::newRow("5:4") << 1280 << 1024 << 7;
    QTest::newRow("15:9") << 1280 << 768 << 7;
    QTest::newRow("any other") << 1000 << 500 << 10;
    QTest::newRow("a width of one pixel less is still rounded up to 4:3") << 1023 << 768 << 4;
    QTest::newRow("a width of one pixel more is another ratio") << 1025 << 768 << 10;
    QTest::newRow("the first candidate wins: 8x6 is 4:3 before 5:4") << 8 << 6 << 4;
}

void TestCvtTiming::VerticalSyncTellsTheAspectRatio()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QTEST(int(Calculated({width, height, 60.0F, 0, 1, 0}).byVSync), "expected");
}

void TestCvtTiming::EveryFieldIsWritten()
{
    for (const int nReduced : {0, 1}) {
        tagSBlankTiming actual = {0xAAAA, 0xAAAA, 0xAAAA, 0xAAAA, 0xAA, 0xAA, 0xAA};
        CvtTiming::Calculate({1920, 1080, 60.0F, 0, nReduced, 0}, actual);
        QCOMPARE(actual, Calculated({1920, 1080, 60.0F, 0, nReduced, 0}));
    }
}

void TestCvtTiming::TheBlankingIsThatOfASecondEvaluation_data()
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

void TestCvtTiming::TheBlankingIsThatOfASecondEvaluation()
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

void TestCvtTiming::TheVerticalSyncIsThatOfThePlainSteps()
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

void TestCvtTiming::ReducedBlankingLastsAtLeast460Microseconds()
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

void TestCvtTiming::NormalBlankingIsAWholeNumberOfCellPairsWithoutGap()
{
    for (const QSize& size : DisplaySizes()) {
        for (const float fRate : c_arrRates) {
            const tagSBlankTiming timing = Calculated({size.width(), size.height(), fRate, 0, 0, 0});
            QCOMPARE(timing.wHBlank % 16, 0);
            QCOMPARE(timing.wHFrontPorch + timing.wHSync + timing.wHBlank / 2, int(timing.wHBlank));
        }
    }
}

void TestCvtTiming::WhatNoFieldHoldsIsHeldToItsRange_data()
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

void TestCvtTiming::WhatNoFieldHoldsIsHeldToItsRange()
{
    QFETCH(tagSCalTimingIn, in);
    QTEST(Calculated(in), "expected");
}

void TestCvtTiming::HostileInputGivesARecord()
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

QTEST_APPLESS_MAIN(TestCvtTiming)
#include "TestCvtTiming.moc"
