#include "tests/edid/TimingRecords.h"
#include "tests/support/DeathTest.h"

#include <climits>
#include <cstdio>
#include <cstring>
#include <limits>
#include <numeric>
#include <type_traits>

namespace {

constexpr int c_nName = 0x5F;
constexpr int c_nNameSize = 13;
constexpr int c_nFirstDetailedTiming = 0x36;
constexpr int c_nRangeDescriptor = 0x6C;
constexpr int c_nChecksum = 0x7F;

/// `ChangeWH(1920, 1080, 60)`.
const QByteArray c_block1080p60 = QByteArray::fromHex("00FFFFFFFFFFFF007BDE000001010101"
                                                      "001B0103810000780AC001AF5030B623"
                                                      "0D505401000001010101010101010101"
                                                      "010101010101293680A070381F403020"
                                                      "350000000000001A000000FF00303030"
                                                      "0A202020202020202020000000FC004C"
                                                      "454420313932305831303830000000FD"
                                                      "0017781E9911000A2020202020200022");

/// The template for 1280x1024, before any timing is stored.
const QByteArray c_template1280x1024 = QByteArray::fromHex("00FFFFFFFFFFFF007BDE000001010101"
                                                           "001B0103810000780AC001AF5030B623"
                                                           "0D505401000001010101010101010101"
                                                           "010101010101642A009851002A403070"
                                                           "130000000000001E000000FF00303030"
                                                           "0A202020202020202020000000FC004C"
                                                           "454420313238305831303234000000FD"
                                                           "0017781E9911000A2020202020200080");

QByteArray NameOf(const CEDIDRaw& edid)
{
    return BlockOf(edid).mid(c_nName, c_nNameSize);
}

QByteArray TimingOf(const CEDIDRaw& edid)
{
    return BlockOf(edid).mid(c_nFirstDetailedTiming, 18);
}

int SumOf(const QByteArray& block)
{
    return std::accumulate(block.begin(), block.end(), 0,
                           [](int nSum, char ch) { return nSum + quint8(ch); }) &
           0xFF;
}

/// The name as the C library formats it, cut to its field and filled up with zeros.
QByteArray FormattedName(int nWidth, int nHeight)
{
    char szText[32] = {};
    std::snprintf(szText, sizeof szText, "LED%5dX%d", nWidth, nHeight);
    return QByteArray(szText).leftJustified(c_nNameSize, '\0', true);
}

} // namespace

class TestEDIDRaw : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ANewObjectIs128Zeros();
    void TheObjectIsItsBlock();
    void ChangeWHGivesTheExactBlock();
    void TheTemplateIsExactAndHasAPlaceholderForItsChecksum();
    void TheTemplateWritesItsZerosToo();
    void ChangeWHStartsFromZero();
    void TheNameIsFormattedAndCut_data();
    void TheNameIsFormattedAndCut();
    void AShorterNameLeavesTheTailOfTheFirst();
    void TheNameNeverReachesTheRangeDescriptor();
    void BothTimingNamesDoTheSameAndLeaveTheRestAlone();
    void StoreFirstDetailTimingPlacesEveryBit_data();
    void StoreFirstDetailTimingPlacesEveryBit();
    void TheSyncFlagIsShiftedIntoTheDescriptor_data();
    void TheSyncFlagIsShiftedIntoTheDescriptor();
    void ThePixelClockIsTruncatedInSteps_data();
    void ThePixelClockIsTruncatedInSteps();
    void TheDetailedTimingIsCalculatedForListedModesToo();
    void CalSumCheckMakesTheSumZero_data();
    void CalSumCheckMakesTheSumZero();
    void EveryStoredTimingLeavesAValidSum();
    void ANullTimingEndsTheProcess();
};

void TestEDIDRaw::ANewObjectIs128Zeros()
{
    QCOMPARE(BlockOf(CEDIDRaw()), QByteArray(128, '\0'));
}

void TestEDIDRaw::TheObjectIsItsBlock()
{
    QCOMPARE(sizeof(CEDIDRaw), std::size_t(128));
    QVERIFY(!std::is_polymorphic_v<CEDIDRaw>);
    QVERIFY(std::is_standard_layout_v<CEDIDRaw>);
    CEDIDRaw edid;
    edid.ChangeWH(1920, 1080, 60.0F);
    QCOMPARE(reinterpret_cast<const unsigned char*>(&edid)[1], static_cast<unsigned char>(0xFF));
}

void TestEDIDRaw::ChangeWHGivesTheExactBlock()
{
    CEDIDRaw edid;
    edid.ChangeWH(1920, 1080, 60.0F);
    QCOMPARE(BlockOf(edid).toHex(' '), c_block1080p60.toHex(' '));
}

void TestEDIDRaw::TheTemplateIsExactAndHasAPlaceholderForItsChecksum()
{
    CEDIDRaw edid;
    edid.Init1p3VersionEdidBaseBlock(1280, 1024);
    QCOMPARE(BlockOf(edid).toHex(' '), c_template1280x1024.toHex(' '));
    QVERIFY(SumOf(BlockOf(edid)) != 0);
}

void TestEDIDRaw::TheTemplateWritesItsZerosToo()
{
    CEDIDRaw edid;
    std::memset(static_cast<void*>(&edid), 0xA5, sizeof edid);
    edid.Init1p3VersionEdidBaseBlock(1280, 1024);
    QCOMPARE(BlockOf(edid).toHex(' '), c_template1280x1024.toHex(' '));
}

void TestEDIDRaw::ChangeWHStartsFromZero()
{
    CEDIDRaw edid;
    edid.ChangeWH(1920, 1080, 60.0F);
    edid.ChangeWH(800, 600, 60.0F);
    CEDIDRaw fresh;
    fresh.ChangeWH(800, 600, 60.0F);
    QCOMPARE(BlockOf(edid), BlockOf(fresh));
    QCOMPARE(NameOf(edid), QByteArray("LED  800X600\0", 13));
}

void TestEDIDRaw::TheNameIsFormattedAndCut_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("13 characters fit") << 1920 << 1080 << QByteArray("LED 1920X1080");
    QTest::newRow("12 characters, two blanks, and a zero") << 800 << 600 << QByteArray("LED  800X600\0", 13);
    QTest::newRow("the 14th character does not survive") << 16384 << 10800 << QByteArray("LED16384X1080");
    QTest::newRow("five and four digits fit") << 16384 << 1080 << QByteArray("LED16384X1080");
    QTest::newRow("one digit each") << 1 << 1 << QByteArray("LED    1X1\0\0\0", 13);
    QTest::newRow("zero") << 0 << 0 << QByteArray("LED    0X0\0\0\0", 13);
    QTest::newRow("negative") << -1 << -1 << QByteArray("LED   -1X-1\0\0", 13);
    QTest::newRow("largest") << INT_MAX << INT_MAX << QByteArray("LED2147483647");
    QTest::newRow("lowest") << INT_MIN << INT_MIN << QByteArray("LED-214748364");
}

void TestEDIDRaw::TheNameIsFormattedAndCut()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(QByteArray, expected);
    CEDIDRaw edid;
    edid.ChangeWH(width, height, 60.0F);
    QCOMPARE(NameOf(edid), expected);
    QCOMPARE(NameOf(edid), FormattedName(width, height));
}

void TestEDIDRaw::AShorterNameLeavesTheTailOfTheFirst()
{
    CEDIDRaw edid;
    edid.Init1p3VersionEdidBaseBlock(1920, 1080);
    edid.Init1p3VersionEdidBaseBlock(800, 600);
    QCOMPARE(NameOf(edid), QByteArray("LED  800X6000"));
}

void TestEDIDRaw::TheNameNeverReachesTheRangeDescriptor()
{
    CEDIDRaw edid;
    edid.Init1p3VersionEdidBaseBlock(INT_MIN, INT_MIN);
    QCOMPARE(BlockOf(edid).mid(c_nRangeDescriptor), c_template1280x1024.mid(c_nRangeDescriptor));
}

void TestEDIDRaw::BothTimingNamesDoTheSameAndLeaveTheRestAlone()
{
    CEDIDRaw edidByCvt;
    CEDIDRaw edidCalculated;
    edidByCvt.Init1p3VersionEdidBaseBlock(800, 600);
    edidCalculated.Init1p3VersionEdidBaseBlock(800, 600);
    edidByCvt.CalFirstDetailTimingByCvt(1920, 1080, 60.0F);
    edidCalculated.CalculateFirstDetailTiming(1920, 1080, 60.0F);
    QCOMPARE(BlockOf(edidByCvt), BlockOf(edidCalculated));
    QCOMPARE(TimingOf(edidByCvt), c_block1080p60.mid(c_nFirstDetailedTiming, 18));
    QCOMPARE(NameOf(edidByCvt), QByteArray("LED  800X600\0", 13));
    QCOMPARE(SumOf(BlockOf(edidByCvt)), 0);
}

void TestEDIDRaw::StoreFirstDetailTimingPlacesEveryBit_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<tagSBlankTiming>("timing");
    QTest::addColumn<QByteArray>("expected"); // with a rate of 0, so the clock is 0

    const auto Add = [](const char* szName, int nWidth, int nHeight, tagSBlankTiming timing,
                        const char* szHex) {
        QTest::newRow(szName) << nWidth << nHeight << timing << QByteArray::fromHex(szHex).toHex(' ');
    };
    // clang-format off
    Add("nothing", 0, 0, {}, "0000 00 00 00 00 00 00 00 00 00 00 0000000000 18");
    Add("width", 0xABC, 0, {}, "0000 BC 00 A0 00 00 00 00 00 00 00 0000000000 18");
    Add("width loses its bits above 11", 0x7ABC, 0, {}, "0000 BC 00 A0 00 00 00 00 00 00 00 0000000000 18");
    Add("width 4096 wraps to 0", 4096, 0, {}, "0000 00 00 00 00 00 00 00 00 00 00 0000000000 18");
    Add("height", 0, 0xABC, {}, "0000 00 00 00 BC 00 A0 00 00 00 00 0000000000 18");
    Add("height loses its bits above 11", 0, 0x7ABC, {}, "0000 00 00 00 BC 00 A0 00 00 00 00 0000000000 18");
    Add("H blank", 0, 0, {0xFABC, 0, 0, 0, 0, 0, 0}, "0000 00 BC 0A 00 00 00 00 00 00 00 0000000000 18");
    Add("V blank", 0, 0, {0, 0, 0, 0xFABC, 0, 0, 0}, "0000 00 00 00 00 BC 0A 00 00 00 00 0000000000 18");
    Add("H front porch", 0, 0, {0, 0xFEDC, 0, 0, 0, 0, 0}, "0000 00 00 00 00 00 00 DC 00 00 80 0000000000 18");
    Add("H sync", 0, 0, {0, 0, 0xFEDC, 0, 0, 0, 0}, "0000 00 00 00 00 00 00 00 DC 00 20 0000000000 18");
    Add("V front porch", 0, 0, {0, 0, 0, 0, 0xEB, 0, 0}, "0000 00 00 00 00 00 00 00 00 B0 08 0000000000 18");
    Add("V sync", 0, 0, {0, 0, 0, 0, 0, 0xEB, 0}, "0000 00 00 00 00 00 00 00 00 0B 02 0000000000 18");
    Add("everything", 0xFFFF, 0xFFFF, {0xFFFF, 0xFFFF, 0xFFFF, 0xFFFF, 0xFF, 0xFF, 3},
        "0000 FF FF FF FF FF FF FF FF FF FF 0000000000 1E");
    Add("negative sizes keep their low bits", -1, -2, {}, "0000 FF 00 F0 FE 00 F0 00 00 00 00 0000000000 18");
    // clang-format on
}

void TestEDIDRaw::StoreFirstDetailTimingPlacesEveryBit()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(tagSBlankTiming, timing);
    CEDIDRaw edid;
    edid.StoreFirstDetailTiming(width, height, 0.0F, &timing);
    QTEST(TimingOf(edid).toHex(' '), "expected");
}

void TestEDIDRaw::TheSyncFlagIsShiftedIntoTheDescriptor_data()
{
    QTest::addColumn<int>("flag");
    QTest::addColumn<int>("expected");
    QTest::newRow("neither positive") << 0 << 0x18;
    QTest::newRow("reduced blanking") << 1 << 0x1A;
    QTest::newRow("normal blanking") << 2 << 0x1C;
    QTest::newRow("both positive") << 3 << 0x1E;
    QTest::newRow("every bit: the highest is cut") << 0xFF << 0xFE;
}

void TestEDIDRaw::TheSyncFlagIsShiftedIntoTheDescriptor()
{
    QFETCH(int, flag);
    tagSBlankTiming timing = {};
    timing.bySyncFlag = quint8(flag);
    CEDIDRaw edid;
    edid.StoreFirstDetailTiming(1920, 1080, 60.0F, &timing);
    QTEST(int(quint8(TimingOf(edid)[17])), "expected");
}

void TestEDIDRaw::ThePixelClockIsTruncatedInSteps_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("height");
    QTest::addColumn<float>("rate");
    QTest::addColumn<int>("expected"); // units of 10 kHz, blanking 0

    const float fInf = std::numeric_limits<float>::infinity();
    QTest::newRow("2080 x 1111 at 60 Hz is 138.65 MHz") << 2080 << 1111 << 60.0F << 13865;
    QTest::newRow("rate 0 makes it zero") << 2080 << 1111 << 0.0F << 0;
    QTest::newRow("19999 Hz is one unit") << 19999 << 1 << 1.0F << 1;
    QTest::newRow("9999 Hz is none") << 9999 << 1 << 1.0F << 0;
    QTest::newRow("the fraction of a hertz is cut first") << 9999 << 1 << 1.00005F << 0;
    QTest::newRow("the product is rounded to single precision: 16777217 has no odd neighbour")
        << 16777217 << 1 << 1000.0F << int(16777216000LL / 10000 & 0xFFFF);
    QTest::newRow("the highest that the field holds") << 65535 << 10000 << 1.0F << 65535;
    QTest::newRow("above 655.35 MHz the low 16 bits stay") << 65536 << 10000 << 1.0F << 0;
    QTest::newRow("4112 x 2222 at 120 Hz")
        << 4112 << 2222 << 120.0F << int(4112LL * 2222 * 120 / 10000 & 0xFFFF);
    QTest::newRow("beyond int the product is still whole")
        << 65536 << 65536 << 1.0F << int(4294967296LL / 10000 & 0xFFFF);
    QTest::newRow("negative: divided towards zero") << 2080 << 1111 << -60.0F << (-13865 & 0xFFFF);
    QTest::newRow("no rate at all is zero") << 2080 << 1111 << std::numeric_limits<float>::quiet_NaN() << 0;
    QTest::newRow("infinite: the largest 64-bit value")
        << 2080 << 1111 << fInf << int(INT64_MAX / 10000 & 0xFFFF);
    QTest::newRow("negative infinite") << 2080 << 1111 << -fInf << int(INT64_MIN / 10000 & 0xFFFF);
    QTest::newRow("largest sizes") << INT_MAX << INT_MAX << 1.0F
                                   << int(4611686018427387904LL / 10000 & 0xFFFF);
}

void TestEDIDRaw::ThePixelClockIsTruncatedInSteps()
{
    QFETCH(int, width);
    QFETCH(int, height);
    QFETCH(float, rate);
    tagSBlankTiming timing = {};
    CEDIDRaw edid;
    edid.StoreFirstDetailTiming(width, height, rate, &timing);
    const QByteArray stored = TimingOf(edid);
    QTEST(quint8(stored[0]) | quint8(stored[1]) << 8, "expected");
}

void TestEDIDRaw::TheDetailedTimingIsCalculatedForListedModesToo()
{
    // Row 0 of the fixed timings has a horizontal blank of 256; the block has the reduced 160.
    CEDIDRaw edid;
    edid.ChangeWH(800, 600, 60.0F);
    QCOMPARE(int(quint8(TimingOf(edid)[3])), 160);
}

void TestEDIDRaw::CalSumCheckMakesTheSumZero_data()
{
    QTest::addColumn<int>("fill");
    QTest::addColumn<int>("expected");
    QTest::newRow("zeros") << 0x00 << 0x00;
    QTest::newRow("ones") << 0x01 << 0x81;
    QTest::newRow("all bits") << 0xFF << 0x7F;
    QTest::newRow("two") << 0x02 << 0x02;
}

void TestEDIDRaw::CalSumCheckMakesTheSumZero()
{
    QFETCH(int, fill);
    CEDIDRaw edid;
    std::memset(static_cast<void*>(&edid), fill, sizeof edid);
    edid.CalSumCheck();
    QCOMPARE(SumOf(BlockOf(edid)), 0);
    QTEST(int(quint8(BlockOf(edid)[c_nChecksum])), "expected");
}

void TestEDIDRaw::EveryStoredTimingLeavesAValidSum()
{
    CEDIDRaw edid;
    for (int nWidth = 1; nWidth < 5000; nWidth += 37) {
        edid.ChangeWH(nWidth, nWidth / 2, 59.94F);
        QCOMPARE(SumOf(BlockOf(edid)), 0);
        edid.CalFirstDetailTimingByCvt(nWidth + 1, nWidth, 23.976F);
        QCOMPARE(SumOf(BlockOf(edid)), 0);
    }
}

void TestEDIDRaw::ANullTimingEndsTheProcess()
{
    const SDeath death = RunToDeath([] { CEDIDRaw().StoreFirstDetailTiming(1920, 1080, 60.0F, nullptr); });
    QVERIFY(death.bAborted);
    QVERIFY2(death.strOutput.contains("pTiming != nullptr"), death.strOutput.constData());
}

QTEST_APPLESS_MAIN(TestEDIDRaw)
#include "TestEDIDRaw.moc"
