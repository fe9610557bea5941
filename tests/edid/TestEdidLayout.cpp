#include "SenderModuleDialog/edid/EdidLayout.h"

#include <QtTest>

#include <vector>

using namespace EdidLayout;

Q_DECLARE_METATYPE(EdidLayout::SNumber)

/// The table of the block's fields: every byte once, and numbers that keep to their bits.
class TestEdidLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheRowGroupsFillTheBlock();
    void TheNumbersOfADetailedTimingFillItsBytes();
    void TheChromaticitiesFillTheirGroup();
    void ANumberIsReadAsItWasWritten_data();
    void ANumberIsReadAsItWasWritten();
    void ANumberDropsTheBitsThatItHasNoPlaceFor();
};

namespace {

using Block = std::array<unsigned char, c_nEdidBlockSize>;

/// Every number of the table.
std::vector<SNumber> Numbers()
{
    return {c_firstLetter,   c_secondLetter,  c_thirdLetter,    c_productCode,   c_week,
            c_year,          c_versionNumber, c_revisionNumber, c_input,         c_isDigital,
            c_widthCm,       c_heightCm,      c_gamma,          c_features,      c_prefersFirstTiming,
            c_redX,          c_redY,          c_greenX,         c_greenY,        c_blueX,
            c_blueY,         c_whiteX,        c_whiteY,         c_svga60,        c_pixelClock,
            c_width,         c_hBlank,        c_height,         c_vBlank,        c_hFrontPorch,
            c_hSync,         c_vFrontPorch,   c_vSync,          c_timingFlags,   c_hSyncPositive,
            c_vSyncPositive, c_minVertical,   c_maxVertical,    c_minHorizontal, c_maxHorizontal,
            c_maxClock,      c_timingFormula};
}

/// The block that has all bits of the numbers set, provided that no two of them share a bit.
bool FillOnce(Block& block, const std::vector<SNumber>& vecNumbers)
{
    for (const SNumber& number : vecNumbers) {
        if (Read(block, number) != 0)
            return false;
        Write(block, number, ~0U);
    }
    return true;
}

/// Offsets of the bytes that have all their bits set.
QVector<int> FullBytes(const Block& block)
{
    QVector<int> vecOffsets;
    for (int i = 0; i < c_nEdidBlockSize; ++i) {
        if (block[std::size_t(i)] == 0xFF)
            vecOffsets.append(i);
    }
    return vecOffsets;
}

QVector<int> Offsets(int nFirst, int nEnd)
{
    QVector<int> vecOffsets;
    for (int i = nFirst; i < nEnd; ++i)
        vecOffsets.append(i);
    return vecOffsets;
}

} // namespace

void TestEdidLayout::TheRowGroupsFillTheBlock()
{
    int nEnd = 0;
    for (const SBytes& group : c_arrGroups) {
        QCOMPARE(group.nOffset, nEnd);
        nEnd += group.nLength;
    }
    QCOMPARE(nEnd, c_nEdidBlockSize);
}

void TestEdidLayout::TheNumbersOfADetailedTimingFillItsBytes()
{
    Block block = {};
    QVERIFY(FillOnce(block, {c_pixelClock, c_width, c_hBlank, c_height, c_vBlank, c_hFrontPorch, c_hSync,
                             c_vFrontPorch, c_vSync, c_timingFlags}));
    const int nGap = c_imageSizeAndBorders.nOffset;
    const int nEnd = c_firstDetailedTiming.nOffset + c_firstDetailedTiming.nLength;
    QCOMPARE(FullBytes(block), Offsets(c_firstDetailedTiming.nOffset, nGap) +
                                   Offsets(nGap + c_imageSizeAndBorders.nLength, nEnd));
}

void TestEdidLayout::TheChromaticitiesFillTheirGroup()
{
    Block block = {};
    QVERIFY(FillOnce(block, {c_redX, c_redY, c_greenX, c_greenY, c_blueX, c_blueY, c_whiteX, c_whiteY}));
    QCOMPARE(FullBytes(block),
             Offsets(c_chromaticity.nOffset, c_chromaticity.nOffset + c_chromaticity.nLength));
}

void TestEdidLayout::ANumberIsReadAsItWasWritten_data()
{
    QTest::addColumn<SNumber>("number");
    for (const SNumber& number : Numbers())
        QTest::newRow(number.szName) << number;
}

void TestEdidLayout::ANumberIsReadAsItWasWritten()
{
    QFETCH(SNumber, number);
    const int nMaximum = (1 << (number.low.nCount + number.high.nCount)) - 1;
    for (const quint8 byBefore : {quint8(0x00), quint8(0xFF), quint8(0xA5)}) {
        for (const int nValue : {0, 1, nMaximum / 3, nMaximum}) {
            Block block;
            block.fill(byBefore);
            Write(block, number, unsigned(nValue));
            QCOMPARE(Read(block, number), nValue);
            // The bits beside the number stay.
            Write(block, number, 0);
            Block expected;
            expected.fill(byBefore);
            Write(expected, number, 0);
            QCOMPARE(block, expected);
        }
    }
}

void TestEdidLayout::ANumberDropsTheBitsThatItHasNoPlaceFor()
{
    Block block = {};
    Write(block, c_width, 0x1FFFF);
    QCOMPARE(Read(block, c_width), 0xFFF);
    QCOMPARE(Read(block, c_hBlank), 0);
}

QTEST_APPLESS_MAIN(TestEdidLayout)
#include "TestEdidLayout.moc"
