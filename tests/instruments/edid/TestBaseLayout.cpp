#include "SenderModuleDialog/edid/EdidLayout.h"
#include "instruments/edid/BaseLayout.h"

#include <QtTest>

#include <array>

Q_DECLARE_METATYPE(EdidLayout::SNumber)
Q_DECLARE_METATYPE(Edid::SFieldType)

/// The library writes a block by its own table, and the instruments read it by theirs, which covers all
/// revisions: both put each number into the same bits.
class TestBaseLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EachNumberHasTheBitsThatTheLibraryWrites_data();
    void EachNumberHasTheBitsThatTheLibraryWrites();
    void TheGroupsStandWhereTheLibraryWritesThem_data();
    void TheGroupsStandWhereTheLibraryWritesThem();
};

void TestBaseLayout::EachNumberHasTheBitsThatTheLibraryWrites_data()
{
    using namespace EdidLayout;
    using Edid::c_layoutBase;
    using Edid::c_layoutDetailed;
    using Edid::c_layoutRange;
    QTest::addColumn<SNumber>("number");
    QTest::addColumn<int>("record"); // where the field's record begins in the block
    QTest::addColumn<Edid::SFieldType>("field");
    const auto Add = [](int nRecord, const SNumber& number, const Edid::SFieldType& field) {
        QTest::newRow(number.szName) << number << nRecord << field;
    };

    Add(0, c_productCode, c_layoutBase[Edid::enProduct]);
    Add(0, c_week, c_layoutBase[Edid::enWeek]);
    Add(0, c_year, c_layoutBase[Edid::enYear]);
    Add(0, c_versionNumber, c_layoutBase[Edid::enVersion]);
    Add(0, c_revisionNumber, c_layoutBase[Edid::enRevision]);
    Add(0, c_isDigital, c_layoutBase[Edid::enDigitalInput]);
    Add(0, c_widthCm, c_layoutBase[Edid::enWidthCm]);
    Add(0, c_heightCm, c_layoutBase[Edid::enHeightCm]);
    Add(0, c_gamma, c_layoutBase[Edid::enGammaRow]);
    Add(0, c_prefersFirstTiming, c_layoutBase[Edid::enPreferredIsFirst]);
    Add(0, c_redX, c_layoutBase[Edid::enRedX]);
    Add(0, c_redY, c_layoutBase[Edid::enRedY]);
    Add(0, c_greenX, c_layoutBase[Edid::enGreenX]);
    Add(0, c_greenY, c_layoutBase[Edid::enGreenY]);
    Add(0, c_blueX, c_layoutBase[Edid::enBlueX]);
    Add(0, c_blueY, c_layoutBase[Edid::enBlueY]);
    Add(0, c_whiteX, c_layoutBase[Edid::enWhiteX]);
    Add(0, c_whiteY, c_layoutBase[Edid::enWhiteY]);

    const int nTiming = c_firstDetailedTiming.nOffset;
    Add(nTiming, c_pixelClock, c_layoutDetailed[Edid::enClock]);
    Add(nTiming, c_width, c_layoutDetailed[Edid::enHActive]);
    Add(nTiming, c_hBlank, c_layoutDetailed[Edid::enHBlank]);
    Add(nTiming, c_height, c_layoutDetailed[Edid::enVActive]);
    Add(nTiming, c_vBlank, c_layoutDetailed[Edid::enVBlank]);
    Add(nTiming, c_hFrontPorch, c_layoutDetailed[Edid::enHFront]);
    Add(nTiming, c_hSync, c_layoutDetailed[Edid::enHSync]);
    Add(nTiming, c_vFrontPorch, c_layoutDetailed[Edid::enVFront]);
    Add(nTiming, c_vSync, c_layoutDetailed[Edid::enVSync]);
    Add(nTiming, c_hSyncPositive, c_layoutDetailed[Edid::enHPolarity]);
    Add(nTiming, c_vSyncPositive, c_layoutDetailed[Edid::enVPolarity]);

    const int nRange = c_rangeDescriptor.nOffset;
    Add(nRange, c_minVertical, c_layoutRange[Edid::enVMin]);
    Add(nRange, c_maxVertical, c_layoutRange[Edid::enVMax]);
    Add(nRange, c_minHorizontal, c_layoutRange[Edid::enHMin]);
    Add(nRange, c_maxHorizontal, c_layoutRange[Edid::enHMax]);
    Add(nRange, c_maxClock, c_layoutRange[Edid::enMaxClock]);
    Add(nRange, c_timingFormula, c_layoutRange[Edid::enFormula]);
}

void TestBaseLayout::EachNumberHasTheBitsThatTheLibraryWrites()
{
    QFETCH(EdidLayout::SNumber, number);
    QFETCH(int, record);
    QFETCH(Edid::SFieldType, field);
    QCOMPARE(field.BitCount(), number.low.nCount + number.high.nCount);
    for (int nBit = 0; nBit < field.BitCount(); ++nBit) {
        std::array<quint8, c_nEdidBlockSize> block = {};
        EdidLayout::Write(block, number, 1U << unsigned(nBit));
        QCOMPARE(Edid::Get(block.data() + record, field), qint64(1) << nBit);
    }
}

void TestBaseLayout::TheGroupsStandWhereTheLibraryWritesThem_data()
{
    QTest::addColumn<int>("offset");
    QTest::addColumn<int>("expected");
    QTest::newRow("input") << Edid::c_nInputOffset << EdidLayout::c_basicParameters.nOffset;
    QTest::newRow("chromaticity") << Edid::c_nChromaticityOffset << EdidLayout::c_chromaticity.nOffset;
    QTest::newRow("established timings")
        << Edid::c_nEstablishedOffset << EdidLayout::c_establishedTimings.nOffset;
    QTest::newRow("standard timings") << Edid::c_nStandardOffset << EdidLayout::c_standardTimings.nOffset;
    QTest::newRow("descriptors") << Edid::c_nDescriptorOffset << EdidLayout::c_firstDetailedTiming.nOffset;
    QTest::newRow("extension count") << Edid::c_nExtensionCountOffset << EdidLayout::c_extensionCount.nOffset;
    QTest::newRow("tag of a descriptor") << Edid::c_nTagOffset << EdidLayout::c_nDescriptorTagPlace;
    QTest::newRow("content of a descriptor") << Edid::c_nContentOffset << EdidLayout::c_nDescriptorHeaderSize;
}

void TestBaseLayout::TheGroupsStandWhereTheLibraryWritesThem()
{
    QFETCH(int, offset);
    QTEST(offset, "expected");
}

QTEST_APPLESS_MAIN(TestBaseLayout)
#include "TestBaseLayout.moc"
