#include "tests/edid/TimingRecords.h"
#include "tests/support/DeathTest.h"
#include "tests/support/ExactCompare.h"

#include <climits>
#include <cmath>
#include <limits>

namespace {

constexpr float c_fInf = std::numeric_limits<float>::infinity();
constexpr float c_fNan = std::numeric_limits<float>::quiet_NaN();

} // namespace

class TestVideoTiming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CalCVTtimingGivesTheExactBlanking_data();
    void CalCVTtimingGivesTheExactBlanking();
    void CalculateTimingIsCalCVTtimingWithARecord_data();
    void CalculateTimingIsCalCVTtimingWithARecord();
    void VerticalSyncTellsTheAspectRatio_data();
    void VerticalSyncTellsTheAspectRatio();
    void EveryFieldIsWritten();
    void TheRecordHasItsFieldsInOrder();
    void TimingDataHoldsTheFixedTimings_data();
    void TimingDataHoldsTheFixedTimings();
    void MatchTimingIDFindsTheRow_data();
    void MatchTimingIDFindsTheRow();
    void MatchTimingIDLeavesTheIdAloneWithoutAMatch_data();
    void MatchTimingIDLeavesTheIdAloneWithoutAMatch();
    void BackPorchIsBlankWithoutFrontAndSync_data();
    void BackPorchIsBlankWithoutFrontAndSync();
    void CalculatePixelFreqIsInMegahertz_data();
    void CalculatePixelFreqIsInMegahertz();
    void IsReslutionOkJudgesTheBudget_data();
    void IsReslutionOkJudgesTheBudget();
    void CalReslutionPixelFreqTakesTheRightBlanking_data();
    void CalReslutionPixelFreqTakesTheRightBlanking();
    void ANullResultEndsTheProcess();
};

void TestVideoTiming::CalCVTtimingGivesTheExactBlanking_data()
{
    QTest::addColumn<tagSCalTimingIn>("in");
    QTest::addColumn<tagSBlankTiming>("expected");

    const auto Add = [](const char* szName, tagSCalTimingIn in, tagSBlankTiming expected) {
        QTest::newRow(szName) << in << expected;
    };
    // clang-format off
    Add("1080p60 reduced: the everyday mode", {1920, 1080, 60.0F, 0, 1, 0}, {160, 48, 32, 31, 3, 5, 1});
    Add("1080p60 normal", {1920, 1080, 60.0F, 0, 0, 0}, {656, 128, 200, 40, 3, 5, 2});
    Add("1080p60 normal with margins", {1920, 1080, 60.0F, 0, 0, 1}, {672, 128, 208, 42, 3, 5, 2});
    Add("1080i60: the rate is not doubled", {1920, 1080, 60.0F, 1, 0, 0}, {512, 64, 192, 22, 3, 5, 2});
    Add("5:4 reduced", {1280, 1024, 60.0F, 0, 1, 0}, {160, 48, 32, 30, 3, 7, 1});
    Add("5:4 normal", {1280, 1024, 60.0F, 0, 0, 0}, {432, 80, 136, 39, 3, 7, 2});
    Add("1366 is rounded up, so it is no 16:9", {1366, 768, 60.0F, 0, 1, 0}, {160, 48, 32, 22, 3, 10, 1});
    Add("2160p30 reduced", {3840, 2160, 30.0F, 0, 1, 0}, {160, 48, 32, 31, 3, 5, 1});
    Add("2160p60 normal", {3840, 2160, 60.0F, 0, 0, 0}, {1472, 312, 424, 77, 3, 5, 2});
    Add("rate 0 reduced: the least blanking", {1920, 1080, 0.0F, 0, 1, 0}, {160, 48, 32, 14, 3, 5, 1});
    Add("rate 0 normal: one line of sync and the least duty cycle", {1920, 1080, 0.0F, 0, 0, 0}, {480, 48, 192, 11, 3, 5, 2});
    // clang-format on
}

void TestVideoTiming::CalCVTtimingGivesTheExactBlanking()
{
    QFETCH(tagSCalTimingIn, in);
    QFETCH(tagSBlankTiming, expected);
    tagSBlankTiming actual = {};
    CEDIDRaw().CalCVTtiming(in.nWidth, in.nHeight, in.fRate, in.bInterlaced, in.bReducedBlank, in.bMargins,
                            &actual);
    QCOMPARE(actual, expected);
}

void TestVideoTiming::CalculateTimingIsCalCVTtimingWithARecord_data()
{
    CalCVTtimingGivesTheExactBlanking_data();
}

void TestVideoTiming::CalculateTimingIsCalCVTtimingWithARecord()
{
    QFETCH(tagSCalTimingIn, in);
    QFETCH(tagSBlankTiming, expected);
    tagSBlankTiming actual = {};
    CEDIDRaw().CalculateTiming(in, &actual);
    QCOMPARE(actual, expected);
}

void TestVideoTiming::VerticalSyncTellsTheAspectRatio_data()
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

void TestVideoTiming::VerticalSyncTellsTheAspectRatio()
{
    QFETCH(int, width);
    QFETCH(int, height);
    tagSBlankTiming actual = {};
    CEDIDRaw().CalCVTtiming(width, height, 60.0F, 0, 1, 0, &actual);
    QTEST(int(actual.byVSync), "expected");
}

void TestVideoTiming::EveryFieldIsWritten()
{
    for (const int nReduced : {0, 1}) {
        tagSBlankTiming actual = {0xAAAA, 0xAAAA, 0xAAAA, 0xAAAA, 0xAA, 0xAA, 0xAA};
        CEDIDRaw().CalCVTtiming(1920, 1080, 60.0F, 0, nReduced, 0, &actual);
        tagSBlankTiming other = {};
        CEDIDRaw().CalCVTtiming(1920, 1080, 60.0F, 0, nReduced, 0, &other);
        QCOMPARE(actual, other);
    }
}

void TestVideoTiming::TheRecordHasItsFieldsInOrder()
{
    QCOMPARE(offsetof(tagSBlankTiming, wHBlank), std::size_t(0));
    QCOMPARE(offsetof(tagSBlankTiming, wHFrontPorch), std::size_t(2));
    QCOMPARE(offsetof(tagSBlankTiming, wHSync), std::size_t(4));
    QCOMPARE(offsetof(tagSBlankTiming, wVBlank), std::size_t(6));
    QCOMPARE(offsetof(tagSBlankTiming, byVFrontPorch), std::size_t(8));
    QCOMPARE(offsetof(tagSBlankTiming, byVSync), std::size_t(9));
    QCOMPARE(offsetof(tagSBlankTiming, bySyncFlag), std::size_t(10));
    QCOMPARE(sizeof(timingData), std::size_t(13 * 11 * 2));
}

void TestVideoTiming::TimingDataHoldsTheFixedTimings_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QVector<int>>("expected");
    const QVector<QVector<int>> rows = {
        {800, 256, 40, 128, 0, 600, 28, 1, 4, 0, 3},    {1024, 320, 24, 136, 0, 768, 38, 3, 6, 0, 0},
        {1280, 520, 96, 112, 0, 960, 40, 1, 3, 0, 3},   {1280, 408, 48, 112, 0, 1024, 42, 1, 3, 0, 3},
        {1366, 426, 70, 143, 0, 768, 30, 3, 3, 0, 3},   {1400, 464, 88, 144, 0, 1050, 39, 3, 4, 0, 2},
        {1440, 464, 80, 152, 0, 900, 34, 3, 6, 0, 2},   {1600, 200, 24, 80, 0, 900, 100, 1, 3, 0, 3},
        {1680, 560, 104, 176, 0, 1050, 39, 3, 6, 0, 2}, {1920, 280, 88, 44, 0, 1080, 45, 4, 5, 0, 3},
        {1920, 160, 48, 32, 0, 1200, 35, 3, 6, 0, 1},   {2048, 202, 26, 80, 0, 1152, 48, 1, 3, 0, 3},
        {800, 160, 48, 32, 0, 600, 36, 3, 4, 0, 1},
    };
    for (int nId = 0; nId < rows.size(); ++nId)
        QTest::addRow("row %d, %dx%d", nId, rows[nId][0], rows[nId][5]) << nId << rows[nId];
}

void TestVideoTiming::TimingDataHoldsTheFixedTimings()
{
    QFETCH(int, id);
    const STimingData& row = timingData[id];
    const QVector<int> actual = {row.wWidth,     row.wHBlank,    row.wHFrontPorch, row.wHSync,
                                 row.wReserved1, row.wHeight,    row.wVBlank,      row.wVFrontPorch,
                                 row.wVSync,     row.wReserved2, row.wSyncFlag};
    QTEST(actual, "expected");
}

void TestVideoTiming::MatchTimingIDFindsTheRow_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("rate");
    QTest::addColumn<int>("expected");

    const auto Add = [](int nWidth, int nHeight, int nRate, int nId) {
        QTest::addRow("%dx%d at %d Hz", nWidth, nHeight, nRate) << nWidth << nHeight << nRate << nId;
    };
    Add(800, 600, 60, 0);
    Add(800, 600, 120, 12);
    for (const int nRate : {50, 60}) {
        Add(1024, 768, nRate, 1);
        Add(1280, 960, nRate, 2);
        Add(1280, 1024, nRate, 3);
        Add(1366, 768, nRate, 4);
        Add(1440, 900, nRate, 6);
        Add(1400, 1050, nRate, 5);
        Add(1600, 900, nRate, 7);
        Add(1680, 1050, nRate, 8);
        Add(1920, 1080, nRate, 9);
        Add(1920, 1200, nRate, 10);
        Add(2048, 1152, nRate, 11);
    }
}

void TestVideoTiming::MatchTimingIDFindsTheRow()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, rate);
    int nId = -1;
    CEDIDRaw().MatchTimingID(width, height, rate, &nId);
    QTEST(nId, "expected");
}

void TestVideoTiming::MatchTimingIDLeavesTheIdAloneWithoutAMatch_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<int>("rate");
    QTest::newRow("59.94 Hz arrives as 59") << 1920 << 1080 << 59;
    QTest::newRow("800x600 has no 50 Hz, unlike the others") << 800 << 600 << 50;
    QTest::newRow("only 800x600 has 120 Hz") << 1024 << 768 << 120;
    QTest::newRow("neighbouring rate") << 1920 << 1080 << 61;
    QTest::newRow("neighbouring width") << 1919 << 1080 << 60;
    QTest::newRow("neighbouring height") << 1920 << 1081 << 60;
    QTest::newRow("sides swapped") << 1080 << 1920 << 60;
    QTest::newRow("all zero") << 0 << 0 << 0;
    QTest::newRow("listed size at rate 0") << 800 << 600 << 0;
    QTest::newRow("listed size at a negative rate") << 1920 << 1080 << -60;
    QTest::newRow("largest") << INT_MAX << INT_MAX << INT_MAX;
    QTest::newRow("lowest") << INT_MIN << INT_MIN << INT_MIN;
    QTest::newRow("a width that is 1920 in 16 bits") << 65536 + 1920 << 1080 << 60;
}

void TestVideoTiming::MatchTimingIDLeavesTheIdAloneWithoutAMatch()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(int, rate);
    int nId = 4711;
    CEDIDRaw().MatchTimingID(width, height, rate, &nId);
    QCOMPARE(nId, 4711);
}

void TestVideoTiming::BackPorchIsBlankWithoutFrontAndSync_data()
{
    QTest::addColumn<int>("blank");
    QTest::addColumn<int>("front");
    QTest::addColumn<int>("sync");
    QTest::addColumn<int>("expected");
    QTest::newRow("1080p60 reduced, horizontal") << 160 << 48 << 32 << 80;
    QTest::newRow("1080p60 reduced, vertical") << 31 << 3 << 5 << 23;
    QTest::newRow("nothing") << 0 << 0 << 0 << 0;
    QTest::newRow("more porch than blank is negative") << 10 << 20 << 30 << -40;
    QTest::newRow("held to the range of int, low") << INT_MIN << 1 << 1 << INT_MIN;
    QTest::newRow("held to the range of int, high") << INT_MAX << -1 << INT_MIN << INT_MAX;
}

void TestVideoTiming::BackPorchIsBlankWithoutFrontAndSync()
{
    QFETCH(int, blank);
    QFETCH(int, front);
    QFETCH(int, sync);
    QFETCH(int, expected);
    QCOMPARE(CEDIDRaw().CalculateHBackPorch(blank, front, sync), expected);
    QCOMPARE(CEDIDRaw().CalculateVBackPorch(blank, front, sync), expected);
}

void TestVideoTiming::CalculatePixelFreqIsInMegahertz_data()
{
    QTest::addColumn<QVector<int>>("totals");
    QTest::addColumn<float>("rate");
    QTest::addColumn<float>("expected");
    QTest::newRow("1080p60 of the table") << QVector<int>{1920, 280, 1080, 45} << 60.0F << 148.5F;
    QTest::newRow("1080p60 reduced") << QVector<int>{1920, 160, 1080, 31} << 60.0F << 138.6528F;
    QTest::newRow("the product is rounded before the division") // 148351648 in single precision
        << QVector<int>{1920, 280, 1080, 45} << 59.94006F << 148351648.0F / 1000000.0F;
    QTest::newRow("rate 0") << QVector<int>{1920, 280, 1080, 45} << 0.0F << 0.0F;
    QTest::newRow("no overflow of int") << QVector<int>{INT_MAX, INT_MAX, 1, 1} << 1.0F << 8589.934592F;
}

void TestVideoTiming::CalculatePixelFreqIsInMegahertz()
{
    QFETCH(QVector<int>, totals);
    QFETCH(float, rate);
    QFETCH(float, expected);
    COMPARE_BITS(CEDIDRaw().CalculatePixelFreq(totals[0], totals[1], totals[2], totals[3], rate), expected);
}

void TestVideoTiming::IsReslutionOkJudgesTheBudget_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<float>("rate");
    QTest::addColumn<bool>("expected");
    QTest::newRow("530841600 Hz of active pixels") << 4096 << 2160 << 60.0F << false;
    QTest::newRow("157593600 Hz, without any blanking") << 3840 << 2160 << 19.0F << true;
    QTest::newRow("exactly 160000000 Hz passes") << 16000 << 1000 << 10.0F << true;
    QTest::newRow("the next single-precision value does not") << 10000001 << 16 << 1.0F << false;
    QTest::newRow("a listed mode is judged with its blanking: 156.25 MHz") << 2048 << 1152 << 60.0F << false;
    QTest::newRow("the same size is within it at a rate that no row lists") << 2048 << 1152 << 59.0F << true;
    QTest::newRow("1080p60: 148.5 MHz") << 1920 << 1080 << 60.0F << true;
    QTest::newRow("1920x1200 at 60 Hz: 154.128 MHz") << 1920 << 1200 << 60.0F << true;
    QTest::newRow("the fraction of the rate counts") << 1920 << 1200 << 62.0F << true;
    QTest::newRow("60.9 Hz takes the row of 60 Hz") << 1920 << 1200 << 60.9F << true;
    QTest::newRow("rate 0") << 1920 << 1080 << 0.0F << true;
    QTest::newRow("negative rate") << 1920 << 1080 << -60.0F << true;
    QTest::newRow("beyond int") << 65535 << 65535 << 60.0F << false;
    QTest::newRow("product of the sizes beyond int") << INT_MAX << INT_MAX << 1.0F << false;
    QTest::newRow("beyond int, negative") << 65535 << 65535 << -60.0F << false;
    QTest::newRow("infinite rate") << 1920 << 1080 << c_fInf << false;
    QTest::newRow("negative infinite rate") << 1920 << 1080 << -c_fInf << false;
    QTest::newRow("no rate at all") << 1920 << 1080 << c_fNan << false;
    QTest::newRow("lowest sizes") << INT_MIN << INT_MIN << 1.0F << false;
}

void TestVideoTiming::IsReslutionOkJudgesTheBudget()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, rate);
    QTEST(CEDIDRaw().IsReslutionOk(width, height, rate), "expected");
}

void TestVideoTiming::CalReslutionPixelFreqTakesTheRightBlanking_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<float>("rate");
    QTest::addColumn<int>("standard");
    QTest::addColumn<float>("expected");
    QTest::newRow("listed: the row, reduced") << 1920 << 1080 << 60.0F << 0 << 148500000.0F;
    QTest::newRow("listed: the row, normal too") << 1920 << 1080 << 60.0F << 1 << 148500000.0F;
    QTest::newRow("listed at 50 Hz: the same blanking") << 1920 << 1080 << 50.0F << 0 << 123750000.0F;
    QTest::newRow("59.94 Hz is calculated") << 1920 << 1080 << 59.94F << 0 << 2080.0F * 1111.0F * 59.94F;
    QTest::newRow("60.5 Hz takes the row of 60 Hz")
        << 1920 << 1080 << 60.5F << 0 << 2200.0F * 1125.0F * 60.5F;
    QTest::newRow("not listed, reduced") << 3840 << 2160 << 30.0F << 0 << 4000.0F * 2191.0F * 30.0F;
    QTest::newRow("not listed, normal") << 3840 << 2160 << 60.0F << 1 << 5312.0F * 2237.0F * 60.0F;
    QTest::newRow("any other standard is normal") << 3840 << 2160 << 60.0F << 7 << 5312.0F * 2237.0F * 60.0F;
    QTest::newRow("rate 0 is harmless") << 1920 << 1080 << 0.0F << 0 << 0.0F;
    QTest::newRow("rate 0 is harmless, normal") << 1920 << 1080 << 0.0F << 1 << 0.0F;
    QTest::newRow("infinite rate") << 1920 << 1080 << c_fInf << 0 << c_fInf;
    QTest::newRow("no rate at all") << 1920 << 1080 << c_fNan << 1 << c_fNan;
}

void TestVideoTiming::CalReslutionPixelFreqTakesTheRightBlanking()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, rate);
    QFETCH(int, standard);
    QFETCH(float, expected);
    COMPARE_BITS(CEDIDRaw().CalReslutionPixelFreq(width, height, rate, standard), expected);
}

void TestVideoTiming::ANullResultEndsTheProcess()
{
    const SDeath death = RunToDeath([] { CEDIDRaw().CalCVTtiming(1920, 1080, 60.0F, 0, 1, 0, nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("pTiming != nullptr"), death.strOutput.constData());
}

QTEST_APPLESS_MAIN(TestVideoTiming)
#include "TestVideoTiming.moc"
