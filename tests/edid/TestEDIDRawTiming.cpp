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

/// The timing operations as a host calls them.
class TestEDIDRawTiming : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CalCVTtimingGivesTheExactBlanking_data();
    void CalCVTtimingGivesTheExactBlanking();
    void CalculateTimingIsCalCVTtimingWithARecord_data();
    void CalculateTimingIsCalCVTtimingWithARecord();
    void TheRecordHasItsFieldsInOrder();
    void MatchTimingIDFindsTheRow();
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

void TestEDIDRawTiming::CalCVTtimingGivesTheExactBlanking_data()
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

void TestEDIDRawTiming::CalCVTtimingGivesTheExactBlanking()
{
    QFETCH(tagSCalTimingIn, in);
    QFETCH(tagSBlankTiming, expected);
    tagSBlankTiming actual = {};
    CEDIDRaw().CalCVTtiming(in.nWidth, in.nHeight, in.fRate, in.bInterlaced, in.bReducedBlank, in.bMargins,
                            &actual);
    QCOMPARE(actual, expected);
}

void TestEDIDRawTiming::CalculateTimingIsCalCVTtimingWithARecord_data()
{
    CalCVTtimingGivesTheExactBlanking_data();
}

void TestEDIDRawTiming::CalculateTimingIsCalCVTtimingWithARecord()
{
    QFETCH(tagSCalTimingIn, in);
    QFETCH(tagSBlankTiming, expected);
    tagSBlankTiming actual = {};
    CEDIDRaw().CalculateTiming(in, &actual);
    QCOMPARE(actual, expected);
}

void TestEDIDRawTiming::TheRecordHasItsFieldsInOrder()
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

void TestEDIDRawTiming::MatchTimingIDFindsTheRow()
{
    int nId = -1;
    CEDIDRaw().MatchTimingID(800, 600, 120, &nId);
    QCOMPARE(nId, 12);
}

void TestEDIDRawTiming::MatchTimingIDLeavesTheIdAloneWithoutAMatch()
{
    int nId = 4711;
    CEDIDRaw().MatchTimingID(800, 600, 50, &nId);
    QCOMPARE(nId, 4711);
}

void TestEDIDRawTiming::BackPorchIsBlankWithoutFrontAndSync_data()
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

void TestEDIDRawTiming::BackPorchIsBlankWithoutFrontAndSync()
{
    QFETCH(int, blank);
    QFETCH(int, front);
    QFETCH(int, sync);
    QFETCH(int, expected);
    QCOMPARE(CEDIDRaw().CalculateHBackPorch(blank, front, sync), expected);
    QCOMPARE(CEDIDRaw().CalculateVBackPorch(blank, front, sync), expected);
}

void TestEDIDRawTiming::CalculatePixelFreqIsInMegahertz_data()
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

void TestEDIDRawTiming::CalculatePixelFreqIsInMegahertz()
{
    QFETCH(QVector<int>, totals);
    QFETCH(float, rate);
    QFETCH(float, expected);
    COMPARE_BITS(CEDIDRaw().CalculatePixelFreq(totals[0], totals[1], totals[2], totals[3], rate), expected);
}

void TestEDIDRawTiming::IsReslutionOkJudgesTheBudget_data()
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

void TestEDIDRawTiming::IsReslutionOkJudgesTheBudget()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, rate);
    QTEST(CEDIDRaw().IsReslutionOk(width, height, rate), "expected");
}

void TestEDIDRawTiming::CalReslutionPixelFreqTakesTheRightBlanking_data()
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

void TestEDIDRawTiming::CalReslutionPixelFreqTakesTheRightBlanking()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, rate);
    QFETCH(int, standard);
    QFETCH(float, expected);
    COMPARE_BITS(CEDIDRaw().CalReslutionPixelFreq(width, height, rate, standard), expected);
}

void TestEDIDRawTiming::ANullResultEndsTheProcess()
{
    const SDeath death = RunToDeath([] { CEDIDRaw().CalCVTtiming(1920, 1080, 60.0F, 0, 1, 0, nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("pTiming != nullptr"), death.strOutput.constData());
}

QTEST_APPLESS_MAIN(TestEDIDRawTiming)
#include "TestEDIDRawTiming.moc"
