#include "oracles/edid/TimingOracle.h"
#include "tests/edid/TimingInputs.h"
#include "tests/edid/TimingRecords.h"

using namespace TimingInputs;

/// Frequencies, verdicts and blocks over a grid of modes, beside a second evaluation.
class TestEDIDRawTimingGrid : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void ThePixelFrequencyIsThatOfASecondEvaluation();
    void TheStoredClockIsThatOfASecondEvaluation();
    void HostileInputGivesABlock();
    void HostileInputGivesAFrequencyAndAVerdict();
};

void TestEDIDRawTimingGrid::ThePixelFrequencyIsThatOfASecondEvaluation()
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

void TestEDIDRawTimingGrid::TheStoredClockIsThatOfASecondEvaluation()
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

void TestEDIDRawTimingGrid::HostileInputGivesABlock()
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

void TestEDIDRawTimingGrid::HostileInputGivesAFrequencyAndAVerdict()
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

QTEST_APPLESS_MAIN(TestEDIDRawTimingGrid)
#include "TestEDIDRawTimingGrid.moc"
