#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/CtaLayout.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "instruments/edid/Editing.h"
#include "instruments/edid/ExplanationText.h"
#include "tests/instruments/edid/EdidDecode.h"
#include "tests/instruments/edid/SampleEdid.h"

#include <QtTest>

namespace {

/// A base block with one extension.
QByteArray WithExtension(const QByteArray& extension)
{
    QByteArray edid = SampleEdid::Rich().left(c_nEdidBlockSize);
    edid += extension.leftJustified(c_nEdidBlockSize, '\0');
    Edid::Fix(edid);
    return edid;
}

/// A CTA extension with one extended data block.
QByteArray CtaEdid(int nExtendedTag, const QByteArray& content)
{
    const int nLength = content.size() + 1;
    QByteArray extension("\x02\x03\x00\x00", 4);
    extension[Edid::c_nCtaDetailedOffset] = char(Edid::c_nCtaFirstDataBlock + 1 + nLength);
    extension += char(Edid::enCtaExtended << 5 | nLength);
    extension += char(nExtendedTag);
    return WithExtension(extension + content);
}

/// A DisplayID extension with one data block.
QByteArray DisplayIdEdid(int nTag, const QByteArray& content)
{
    const bool bVersion2 = nTag >= 0x20;
    QByteArray extension("\x70\x13\x00\x03\x00", 5);
    extension[1] = char(bVersion2 ? 0x20 : 0x13);
    extension[2] = char(Edid::c_nDataBlockHeadSize + content.size());
    extension += QByteArray(1, char(nTag)) + '\0' + char(content.size());
    return WithExtension(extension + content);
}

} // namespace

/// Data blocks that few displays have, beside what the computer's decoder reads.
class TestRareBlocks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheDecoderReadsTheSame_data();
    void TheDecoderReadsTheSame();
    void WhatAShortBlockHasNoRoomForIsShownAsBytes_data();
    void WhatAShortBlockHasNoRoomForIsShownAsBytes();
};

void TestRareBlocks::TheDecoderReadsTheSame_data()
{
    QTest::addColumn<QByteArray>("edid");
    QTest::addColumn<QString>("ours");
    QTest::addColumn<QString>("theirs");
    const auto Add = [](const QByteArray& edid, const char* szOurs, const char* szTheirs) {
        QTest::newRow(szOurs) << edid << QString::fromLatin1(szOurs) << QString::fromLatin1(szTheirs);
    };
    const QByteArray audio =
        CtaEdid(Edid::enCtaHdmiAudio, QByteArray::fromHex("06 02 01057F07 0A074400 01020410"));
    Add(audio, "Audio streams at once: 3", "Max Stream Count: 3");
    Add(audio, "Streams that are not mixed: yes", "Supports MS NonMixed");
    Add(audio, "Channels: 6", "Linear PCM, max channels 6");
    Add(audio, "176.4 kHz: yes", "192 176.4 96 88.2 48 44.1 32");
    Add(audio, "20 bit: yes", "Supported sample sizes (bits): 24 20 16");
    Add(audio, "Format: Enhanced AC-3", "Enhanced AC-3 (DD+), max channels 8");
    Add(audio, "Bottom front left and right: yes", "BtFL/BtFR - Bottom Front Left/Right");
    const QByteArray room = CtaEdid(Edid::enCtaRoom, QByteArray::fromHex("E5 050108 1E2819 40C020"));
    Add(room, "Speakers: 6", "Speaker count: 6");
    Add(room, "Top left and right surround: yes", "TpLS/TpRS - Top Left/Right Surround");
    Add(room, "Half width of the room: 30 dm", "Xmax: 30 dm");
    Add(room, "Half height of the room: 25 dm", "Zmax: 25 dm");
    Add(room, "Place of the display, y: -1.000", "DisplayY: -1.000 * Ymax");
    Add(room, "Place of the display, z: 0.500", "DisplayZ: 0.500 * Zmax");
    const QByteArray speakers =
        CtaEdid(Edid::enCtaSpeakerLocation, QByteArray::fromHex("65 02 40C020 21 00 03 14"));
    Add(speakers, "Speaker: front centre", "Speaker: FC - Front Center");
    Add(speakers, "Place, y: -1.000", "Y: -1.000 * Ymax");
    Add(speakers, "Speaker: top back centre", "Speaker: TpBC - Top Back Center");
    Add(speakers, "Channel: 3", "Channel: 3 (not active)");
    const QByteArray dynamic =
        CtaEdid(Edid::enCtaHdrDynamic, QByteArray::fromHex("03 0100 02 05 0200 010707 02 0001"));
    Add(dynamic, "Metadata type: 1", "HDR Dynamic Metadata Type 1");
    Add(dynamic, "Version: 2", "Version: 2");
    Add(dynamic, "Metadata type: 256", "HDR Dynamic Metadata Type 256");
    const QByteArray preference = CtaEdid(Edid::enCtaVideoPreference, QByteArray::fromHex("10 81 91 C1 FE"));
    Add(preference, "Preferred 1: VIC 16, 1920x1080 at 60 Hz, 16:9", "VIC  16:  1920x1080   60.000000 Hz");
    Add(preference, "Preferred 2: detailed timing 1", "DTD   1");
    Add(preference, "Preferred 3: type VII timing 1", "VTDB   1");
    Add(preference, "Preferred 4: VIC 193, 5120x2160", "VIC 193:  5120x2160");
    Add(preference, "Preferred 5: type VIII timing 1", "T8VTDB");
    const QByteArray product =
        DisplayIdEdid(0x00, "ABC" + QByteArray::fromHex("3412 04030201 0C 18 05") + "Lobby");
    Add(product, "Maker: ABC", "PNP ID 'ABC'");
    Add(product, "Product code: 0x1234", "Product Code: 4660");
    Add(product, "Serial number: 16909060", "Serial Number: 16909060");
    Add(product, "Year of manufacture: 2024", "Year of Manufacture: 2024, Week 12");
    Add(product, "Name: Lobby", "Product ID: Lobby");
    Add(DisplayIdEdid(0x20, QByteArray::fromHex("010203 3412 04030201 0C 18 00")), "Organisation: 01-02-03",
        "OUI 01-02-03");
    const QByteArray parameters = DisplayIdEdid(0x01, QByteArray::fromHex("C112 8D0A 000F 7008 81 78 4D 97"));
    Add(parameters, "Image width: 480.1 mm", "480.1 mm x 270.1 mm");
    Add(parameters, "Native height: 2160 lines", "Display native pixel format: 3840x2160");
    Add(parameters, "Audio on the video interface: yes", "Audio support on video interface");
    Add(parameters, "Aspect ratio: 1.77:1", "Aspect ratio: 1.77");
    Add(parameters, "Bits per colour, native: 8", "Dynamic bpc native: 8");
    Add(parameters, "Bits per colour, overall: 10", "Dynamic bpc overall: 10");
    const QByteArray tiles = DisplayIdEdid(0x12, QByteArray::fromHex("C9 131200 7F07 3704 02 0A141E28") +
                                                     "XYZ" + QByteArray::fromHex("4D00 63000000"));
    Add(tiles, "One enclosure: yes", "consists of a single physical display enclosure");
    Add(tiles, "When one tile alone gets a picture: image at the place of its tile",
        "only tile: Image is displayed at the Tile Location");
    Add(tiles, "Tiles in a row: 2", "Num horizontal tiles: 2");
    Add(tiles, "Tiles in a column: 4", "Num vertical tiles: 4");
    Add(tiles, "Place in the row: 1", "Tile location: 1, 2");
    Add(tiles, "Width of a tile: 1920 pixels", "Tile resolution: 1920x1080");
    Add(tiles, "Serial number: 99", "Tiled Display Serial Number: 99");
    const QByteArray timing =
        DisplayIdEdid(0x22, QByteArray::fromHex("134402 84 7F07 1701 5780 2B00 3704 2C00 0380 0400"));
    Add(timing, "Type VII timing 1: 1920x1080 at 60 Hz", "DTD:  1920x1080   60.000000 Hz  16:9");
    Add(timing, "Pixel clock: 148.500 MHz", "148.500000 MHz");
    Add(timing, "148.500  1920 2008 2052 2200  1080 1084 1089 1125  +hsync +vsync",
        "Hfront   88 Hsync  44 Hback  148 Hpol P");
    Add(DisplayIdEdid(0x22, QByteArray::fromHex("FFFFFF 84 7F07 1701 5780 2B00 3704 2C00 0380 0400")),
        "Pixel clock: 16777.216 MHz", "16777.216000 MHz");
    Add(DisplayIdEdid(0x22, QByteArray::fromHex("FFFFFF 84 7F07 1701 5780 2B00 3704 2C00 0380 0400")),
        "Line rate: 7626.007 kHz", "7626.007 kHz");
}

void TestRareBlocks::TheDecoderReadsTheSame()
{
    QFETCH(QByteArray, edid);
    QFETCH(QString, ours);
    QFETCH(QString, theirs);
    const QString strOurs = Edid::ExplanationText(edid, {});
    QVERIFY2(strOurs.contains(ours), qPrintable(strOurs));
    const QString strTheirs = EdidDecode({QStringLiteral("-")}, edid);
    QVERIFY2(strTheirs.contains(theirs), qPrintable(strTheirs));
}

void TestRareBlocks::WhatAShortBlockHasNoRoomForIsShownAsBytes_data()
{
    QTest::addColumn<QByteArray>("edid");
    QTest::addColumn<QString>("line");
    QTest::newRow("half a metadata type")
        << CtaEdid(Edid::enCtaHdrDynamic, QByteArray::fromHex("03 01")) << QStringLiteral("Bytes: 03 01");
    QTest::newRow("metadata that is longer than its block")
        << CtaEdid(Edid::enCtaHdrDynamic, QByteArray::fromHex("09 0100 02"))
        << QStringLiteral("Bytes: 09 01 00 02");
    QTest::newRow("a place of the display that is not told")
        << CtaEdid(Edid::enCtaRoom, QByteArray::fromHex("45 050108 1E2819"))
        << QStringLiteral("Bytes: 1E 28 19");
    QTest::newRow("half a speaker") << CtaEdid(Edid::enCtaSpeakerLocation, QByteArray::fromHex("2100 65"))
                                    << QStringLiteral("Bytes: 65");
    QTest::newRow("a product without its serial number")
        << DisplayIdEdid(0x00, "ABC" + QByteArray::fromHex("3412 0403")) << QStringLiteral("Bytes: 04 03");
    QTest::newRow("a name shorter than it says")
        << DisplayIdEdid(0x00, "ABC" + QByteArray::fromHex("3412 04030201 0C 18 09") + "Lob")
        << QStringLiteral("Name: Lob");
}

void TestRareBlocks::WhatAShortBlockHasNoRoomForIsShownAsBytes()
{
    QFETCH(QByteArray, edid);
    QFETCH(QString, line);
    const QString strText = Edid::ExplanationText(edid, {});
    QVERIFY2(strText.contains(line), qPrintable(strText));
}

QTEST_GUILESS_MAIN(TestRareBlocks)
#include "TestRareBlocks.moc"
