#include "SenderModuleDialog/edid/EdidBlock.h"
#include "SenderModuleDialog/edid/EdidLayout.h"

#include <QtTest>

#include <algorithm>
#include <limits>
#include <numeric>

using EdidBlock::BlockBytes;
using EdidBlock::SDetailedTiming;

namespace {

constexpr unsigned char c_byOld = 0xA5;

constexpr SDetailedTiming c_timing1080p60 = {13865, 1920, 1080, {160, 48, 32, 31, 3, 5, 1}};

BlockBytes OldBlock()
{
    BlockBytes block;
    block.fill(c_byOld);
    return block;
}

/// How many bytes from the first to before the last still have their old value.
int OldBytes(const BlockBytes& block, int nFirst, int nEnd)
{
    return int(std::count(block.begin() + nFirst, block.begin() + nEnd, c_byOld));
}

unsigned SumOf(const BlockBytes& block)
{
    return std::accumulate(block.begin(), block.end(), 0U) & 0xFFU;
}

} // namespace

/// What is written into a block, and which bytes stay.
class TestEdidBlock : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheTemplateWritesEveryByte();
    void ATemplateWithAShorterNameLeavesTheTailOfTheOld();
    void ADetailedTimingWritesItsDescriptorAlone();
    void ADetailedTimingIsReadByTheLayout();
    void TheChecksumMakesTheSumZero_data();
    void TheChecksumMakesTheSumZero();
    void ThePixelClockIsCutInSteps_data();
    void ThePixelClockIsCutInSteps();
};

void TestEdidBlock::TheTemplateWritesEveryByte()
{
    BlockBytes block = OldBlock();
    EdidBlock::WriteTemplate(block, 16384, 1080);
    QCOMPARE(OldBytes(block, 0, c_nEdidBlockSize), 0);
}

void TestEdidBlock::ATemplateWithAShorterNameLeavesTheTailOfTheOld()
{
    constexpr int c_nName = EdidLayout::c_nameText.nOffset;
    constexpr int c_nNameEnd = c_nName + EdidLayout::c_nameText.nLength;
    BlockBytes block = OldBlock();
    EdidBlock::WriteTemplate(block, 1, 1); // "LED    1X1", 10 of 13 characters
    QCOMPARE(OldBytes(block, c_nName + 10, c_nNameEnd), 3);
    QCOMPARE(OldBytes(block, 0, c_nEdidBlockSize), 3);
}

void TestEdidBlock::ADetailedTimingWritesItsDescriptorAlone()
{
    BlockBytes block = OldBlock();
    EdidBlock::WriteFirstDetailedTiming(block, c_timing1080p60);
    QCOMPARE(OldBytes(block, 0, c_nEdidBlockSize),
             c_nEdidBlockSize - EdidLayout::c_firstDetailedTiming.nLength);
}

void TestEdidBlock::ADetailedTimingIsReadByTheLayout()
{
    BlockBytes block = {};
    EdidBlock::WriteFirstDetailedTiming(block, c_timing1080p60);
    QCOMPARE(int(EdidLayout::Read(block, EdidLayout::c_pixelClock)), 13865);
    QCOMPARE(int(EdidLayout::Read(block, EdidLayout::c_width)), 1920);
    QCOMPARE(int(EdidLayout::Read(block, EdidLayout::c_height)), 1080);
    QCOMPARE(int(EdidLayout::Read(block, EdidLayout::c_hBlank)), 160);
    QCOMPARE(int(EdidLayout::Read(block, EdidLayout::c_hFrontPorch)), 48);
    QCOMPARE(int(EdidLayout::Read(block, EdidLayout::c_hSync)), 32);
    QCOMPARE(int(EdidLayout::Read(block, EdidLayout::c_vBlank)), 31);
    QCOMPARE(int(EdidLayout::Read(block, EdidLayout::c_vFrontPorch)), 3);
    QCOMPARE(int(EdidLayout::Read(block, EdidLayout::c_vSync)), 5);
}

void TestEdidBlock::TheChecksumMakesTheSumZero_data()
{
    QTest::addColumn<int>("fill");
    QTest::newRow("zeros") << 0x00;
    QTest::newRow("ones") << 0x01;
    QTest::newRow("all bits") << 0xFF;
}

void TestEdidBlock::TheChecksumMakesTheSumZero()
{
    QFETCH(int, fill);
    BlockBytes block;
    block.fill(static_cast<unsigned char>(fill));
    EdidBlock::WriteChecksum(block);
    QCOMPARE(SumOf(block), 0U);
}

void TestEdidBlock::ThePixelClockIsCutInSteps_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<float>("rate");
    QTest::addColumn<qint64>("expected");
    const float fInfinity = std::numeric_limits<float>::infinity();
    QTest::newRow("138.65 MHz") << 1920 << 60.0F << qint64(13865);
    QTest::newRow("a clock beyond the descriptor is whole") << 65536 << 200.0F << qint64(1459765);
    QTest::newRow("no rate") << 1920 << 0.0F << qint64(0);
    QTest::newRow("NaN gives 0") << 1920 << std::numeric_limits<float>::quiet_NaN() << qint64(0);
    QTest::newRow("infinity is held to the range") << 1920 << fInfinity << qint64(INT64_MAX / 10000);
}

void TestEdidBlock::ThePixelClockIsCutInSteps()
{
    QFETCH(int, width);
    QFETCH(float, rate);
    QTEST(EdidBlock::PixelClock(width, 1080, rate, c_timing1080p60.blank), "expected");
}

QTEST_APPLESS_MAIN(TestEdidBlock)
#include "TestEdidBlock.moc"
