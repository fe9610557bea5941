#include "instruments/edid/CtaLayout.h"
#include "instruments/edid/ExplanationText.h"
#include "tests/instruments/edid/EdidDecode.h"
#include "tests/instruments/edid/ExtensionEdid.h"

#include <QRegularExpression>
#include <QtTest>

#include <random>

namespace {

using ExtensionEdid::Cta;
using ExtensionEdid::Section;
using ExtensionEdid::With;

/// What a regular expression catches in a text, a line for each match, its groups with blanks between them.
QStringList Caught(const QString& strText, const char* szPattern)
{
    QStringList listCaught;
    const QRegularExpression regPattern(QString::fromLatin1(szPattern), QRegularExpression::MultilineOption);
    auto it = regPattern.globalMatch(strText);
    while (it.hasNext())
        listCaught += it.next().capturedTexts().mid(1).join(QLatin1Char(' '));
    return listCaught;
}

/// What both say about the extension.
QString Ours(const QByteArray& edid)
{
    const QString strExplained = Edid::ExplanationText(edid, {});
    return strExplained.mid(strExplained.indexOf(QLatin1String("\n0080 ")));
}

QString Theirs(const QByteArray& edid)
{
    const QString strDecoded = EdidDecode({QStringLiteral("-")}, edid);
    return strDecoded.mid(strDecoded.indexOf(QLatin1String("\nBlock 1, ")));
}

/// Parts of random blocks. A fixed seed gives the same blocks each time.
class CGenerator
{
public:
    int Below(int nEnd) { return int(m_random() % unsigned(nEnd)); }
    char Byte() { return char(m_random()); }

    QByteArray Block(int nTag, const QByteArray& content)
    {
        return QByteArray(1, char(nTag << 5 | content.size())) + content;
    }
    QByteArray Extended(int nTag, const QByteArray& content)
    {
        return Block(Edid::enCtaExtended, QByteArray(1, char(nTag)) + content);
    }

    QByteArray Video()
    {
        QByteArray codes;
        for (int nCount = 1 + Below(20); nCount > 0; --nCount)
            codes += char(Below(4) == 0 ? 193 + Below(27) : 1 + Below(127));
        return Block(Edid::enCtaVideo, codes);
    }
    QByteArray Audio()
    {
        QByteArray formats;
        for (int nCount = 1 + Below(4); nCount > 0; --nCount) {
            const int nFormat = 1 + Below(8);
            formats += char(nFormat << 3 | Below(8));
            formats += char(1 + Below(127));
            formats += nFormat == 1 ? char(1 + Below(7)) : Byte();
        }
        return Block(Edid::enCtaAudio, formats);
    }
    QByteArray Speakers()
    {
        QByteArray bits;
        bits += Byte();
        bits += Byte();
        bits += char(Below(16));
        return Block(Edid::enCtaSpeakers, bits);
    }
    QByteArray Hdmi()
    {
        QByteArray content = QByteArray::fromHex("030C00");
        content += Byte();
        content += Byte();
        content += char(Below(16) << 3);
        content += char(1 + Below(68));
        return Block(Edid::enCtaVendor, content);
    }
    QByteArray Forum()
    {
        QByteArray content = QByteArray::fromHex("D85DC401");
        content += char(69 + Below(52));
        content += QByteArray::fromHex("8000");
        return Block(Edid::enCtaVendor, content);
    }
    QByteArray Colorimetry()
    {
        QByteArray content(1, Byte());
        content += char(Below(2) << 7);
        return Extended(Edid::enCtaColorimetry, content);
    }
    QByteArray HdrStatic()
    {
        QByteArray content(1, char(Below(16)));
        content += '\1';
        for (int i = 0; i < 3; ++i)
            content += char(1 + Below(255));
        return Extended(Edid::enCtaHdrStatic, content);
    }
    QByteArray TypeI()
    {
        QByteArray timing = QByteArray::fromHex("000000 80 0000 0000 0000 0000 0000 0000 0000 0000");
        const auto Put = [&](int nOffset, int nValue) {
            timing[nOffset] = char(nValue);
            timing[nOffset + 1] = char(nValue >> 8);
        };
        const int nHFront = Below(300);
        const int nHSync = Below(300);
        const int nVFront = Below(30);
        const int nVSync = Below(30);
        Put(0, 1000 + Below(60000));
        timing[2] = char(Below(4));
        timing[3] = char(0x80 | Below(9));
        Put(4, 639 + Below(15000));
        Put(6, nHFront + nHSync + 2 + Below(500));
        Put(8, nHFront | Below(2) << 15);
        Put(10, nHSync);
        Put(12, 479 + Below(8000));
        Put(14, nVFront + nVSync + 2 + Below(50));
        Put(16, nVFront | Below(2) << 15);
        Put(18, nVSync);
        return QByteArray::fromHex("030014") + timing;
    }

private:
    std::mt19937 m_random{861};
};

/// A value in both texts.
struct SValue
{
    const char* szOurs;
    const char* szTheirs;
};

void Compare(const QByteArray& edid, const SValue& value)
{
    const QString strOurs = Ours(edid);
    const QString strTheirs = Theirs(edid);
    const QStringList listOurs = Caught(strOurs, value.szOurs);
    QVERIFY2(!listOurs.isEmpty(), qPrintable(strOurs));
    if (listOurs != Caught(strTheirs, value.szTheirs))
        qInfo().noquote() << strOurs << strTheirs;
    QCOMPARE(listOurs, Caught(strTheirs, value.szTheirs));
}

} // namespace

/// Generated extension blocks, beside what the installed decoder reads in them.
class TestExtensionValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DataBlocksAreNamed_data();
    void DataBlocksAreNamed();
    void GeneratedValuesAreTheDecoders_data();
    void GeneratedValuesAreTheDecoders();
    void GeneratedRatesAreTheDecoders();
    void GeneratedTimingsAreTheDecoders();
};

void TestExtensionValues::DataBlocksAreNamed_data()
{
    QTest::addColumn<QByteArray>("edid");
    QTest::addColumn<QString>("ours");
    QTest::addColumn<QString>("theirs");
    const auto AddCta = [](const char* szBytes, const char* szOurs, const char* szTheirs) {
        QTest::addRow("CTA %s", szBytes) << With(Cta({QByteArray::fromHex(szBytes), {}}))
                                         << QString::fromLatin1(szOurs) << QString::fromLatin1(szTheirs);
    };
    AddCta("23 097F07", "Audio data block", "Audio Data Block");
    AddCta("41 10", "Video data block", "Video Data Block");
    AddCta("63 010203", "Vendor data block", "Vendor-Specific Data Block");
    AddCta("83 010000", "Speaker allocation data block", "Speaker Allocation Data Block");
    AddCta("A7 00000000000000", "VESA display transfer characteristics data block",
           "VESA Display Transfer Characteristics Data Block");
    AddCta("C2 0001", "Video format data block", "Video Format Data Block");
    AddCta("E2 00 48", "Video capability data block", "Video Capability Data Block");
    AddCta("E4 01 010203", "Vendor video data block", "Vendor-Specific Video Data Block");
    AddCta("E4 02 010203", "VESA display device data block", "VESA Video Display Device Data Block");
    AddCta("E2 04 00", "HDMI video data block", "Reserved for HDMI Video Data Block");
    AddCta("E3 05 C000", "Colorimetry data block", "Colorimetry Data Block");
    AddCta("E3 06 0D01", "HDR static metadata data block", "HDR Static Metadata Data Block");
    AddCta("E4 07 020100", "HDR dynamic metadata data block", "HDR Dynamic Metadata Data Block");
    AddCta("E7 08 7F0738040000", "Native video resolution data block", "Native Video Resolution Data Block");
    AddCta("E2 0D 10", "Video format preference data block", "Video Format Preference Data Block");
    AddCta("E2 0E 60", "YCbCr 4:2:0 video data block", "YCbCr 4:2:0 Video Data Block");
    AddCta("E2 0F 01", "YCbCr 4:2:0 capability map data block", "YCbCr 4:2:0 Capability Map Data Block");
    AddCta("E4 11 010203", "Vendor audio data block", "Vendor-Specific Audio Data Block");
    AddCta("E3 12 0000", "HDMI audio data block", "HDMI Audio Data Block");
    AddCta("E5 13 00010000", "Room configuration data block", "Room Configuration Data Block");
    AddCta("E3 14 2000", "Speaker location data block", "Speaker Location Data Block");
    AddCta("E3 20 0000", "InfoFrame data block", "InfoFrame Data Block");
    AddCta("E3 23 0000", "DisplayID type VIII timing data block",
           "DisplayID Type VIII Video Timing Data Block");
    AddCta("E2 78 01", "HDMI Forum EDID extension override data block",
           "HDMI Forum EDID Extension Override Data Block");
    AddCta("E4 79 000001", "HDMI Forum sink capability data block", "HDMI Forum Sink Capability Data Block");
    const auto AddSection = [](int nVersion, const char* szBytes, const char* szOurs, const char* szTheirs) {
        QTest::addRow("DisplayID %s", szBytes)
            << With(Section({QByteArray::fromHex(szBytes), nVersion})) << QString::fromLatin1(szOurs)
            << QString::fromLatin1(szTheirs);
    };
    AddSection(0x13, "00000C 4142433412040302010C1800", "Product identification",
               "Product Identification Data Block (0x00)");
    AddSection(0x13, "01000C 7017480D000F700800784D77", "Display parameters",
               "Display Parameters Data Block (0x01)");
    AddSection(0x13, "020001 00", "Colour characteristics", "Color Characteristics Data Block");
    AddSection(0x13, "040001 00", "Type II timings, detailed", "Type 2 - Detailed Timings");
    AddSection(0x13, "050001 00", "Type III timings, short", "Type 3 - Short Timings");
    AddSection(0x13, "060101 52", "Type IV timings, DMT numbers", "Type 4 - DMT Timings");
    AddSection(0x13, "070001 00", "VESA timing standard", "VESA DMT Timings");
    AddSection(0x13, "080001 00", "CTA timing standard", "CTA-861 Timings");
    AddSection(0x13, "090001 00", "Video timing range limits", "Video Timing Range Data Block");
    AddSection(0x13, "0A0001 41", "Product serial number", "Product Serial Number Data Block");
    AddSection(0x13, "0B0001 41", "Text", "GP ASCII String Data Block");
    AddSection(0x13, "0C0001 00", "Display device data", "Display Device Data Data Block");
    AddSection(0x13, "0D0001 00", "Interface power sequencing", "Interface Power Sequencing Data Block");
    AddSection(0x13, "0E0001 00", "Transfer characteristics", "Transfer Characteristics Data Block");
    AddSection(0x13, "0F0001 00", "Display interface", "Display Interface Data Block");
    AddSection(0x13, "100001 00", "Stereo display interface", "Stereo Display Interface Data Block");
    AddSection(0x13, "110001 00", "Type V timings, short", "Type 5 - Short Timings");
    AddSection(0x13, "120001 00", "Tiled display topology", "Tiled Display Topology Data Block");
    AddSection(0x13, "130001 00", "Type VI timings, detailed", "Type 6 - Detailed Timings");
    AddSection(0x20, "210001 00", "Display parameters (2.0)", "Display Parameters Data Block (0x21)");
    AddSection(0x20, "230001 00", "Type VIII timings, enumerated", "Type 8 - Enumerated Timing Codes");
    AddSection(0x20, "240001 00", "Type IX timings, formula", "Type 9 - Formula-based Timings");
    AddSection(0x20, "250001 00", "Dynamic video timing range",
               "Dynamic Video Timing Range Limits Data Block");
    AddSection(0x20, "260001 00", "Display interface features", "Display Interface Features Data Block");
    AddSection(0x20, "290001 00", "Container ID", "ContainerID Data Block");
    AddSection(0x20, "2B0001 00", "Adaptive sync", "Adaptive Sync Data Block");
}

void TestExtensionValues::DataBlocksAreNamed()
{
    QFETCH(QByteArray, edid);
    QFETCH(QString, ours);
    QFETCH(QString, theirs);
    const QString strOurs = Ours(edid);
    QVERIFY2(strOurs.contains(QLatin1Char(' ') + ours + QLatin1Char('\n')), qPrintable(strOurs));
    const QString strTheirs = Theirs(edid);
    QVERIFY2(strTheirs.contains(theirs), qPrintable(strTheirs));
}

void TestExtensionValues::GeneratedValuesAreTheDecoders_data()
{
    QTest::addColumn<QByteArray>("edid");
    CGenerator generator;
    for (int i = 0; i < 150; ++i) {
        const QByteArray blocks = generator.Video() + generator.Audio() + generator.Speakers() +
                                  generator.Hdmi() + generator.Forum() + generator.Colorimetry() +
                                  generator.HdrStatic();
        QTest::addRow("block %d: %s", i, blocks.toHex().constData()) << With(Cta({blocks, {}}));
    }
}

void TestExtensionValues::GeneratedValuesAreTheDecoders()
{
    constexpr SValue c_arrValues[] = {
        {"VIC (\\d+), (\\d+)x(\\d+i?) ", "^    VIC +(\\d+): +(\\d+)x(\\d+i?) "},
        {"Channels: (\\d+)$", "Max channels: (\\d+)$"},
        {"Highest TMDS clock: (\\d+) MHz", "Maximum TMDS clock: (\\d+) MHz"},
        {"Highest TMDS character rate: (\\d+) MHz", "Maximum TMDS Character Rate: (\\d+) MHz"},
        {"Highest luminance code: (\\d+)$", "Desired content max luminance: (\\d+) "},
        {"Highest frame average luminance code: (\\d+)$", "max frame-average luminance: (\\d+) "},
        {"Lowest luminance code: (\\d+)$", "Desired content min luminance: (\\d+) "},
    };
    QFETCH(QByteArray, edid);
    for (const SValue& value : c_arrValues)
        Compare(edid, value);
}

void TestExtensionValues::GeneratedRatesAreTheDecoders()
{
    CGenerator generator;
    for (int i = 0; i < 100; ++i) {
        const QByteArray edid = With(Cta({generator.Audio() + generator.Hdmi(), {}}));
        const QString strOurs = Ours(edid);
        const QString strTheirs = Theirs(edid);
        // One line a rate here, one line a format there.
        const QString strRates = Caught(strTheirs, "sample rates \\(kHz\\): (.*)$").join(QLatin1Char(' '));
        QCOMPARE(Caught(strOurs, "([0-9.]+) kHz: yes").join(QLatin1Char(' ')), strRates);
        QCOMPARE(Caught(strOurs, "Highest bit rate: (\\d+) "),
                 Caught(strTheirs, "Maximum bit rate: (\\d+) "));
        const QString strAddress = Caught(strOurs, "Physical address: 0x(\\w+)$").join(QString());
        const QString strTheirAddress = Caught(strTheirs, "physical address: (.*)$").join(QString());
        QCOMPARE(strAddress, QString(strTheirAddress).remove(QLatin1Char('.')));
    }
}

void TestExtensionValues::GeneratedTimingsAreTheDecoders()
{
    CGenerator generator;
    for (int i = 0; i < 150; ++i) {
        const QByteArray edid = With(Section({generator.TypeI() + generator.TypeI()}));
        const QString strOurs = Ours(edid);
        const QString strTheirs = Theirs(edid);
        QCOMPARE(Caught(strOurs, "Type I timing \\d: (\\d+)x(\\d+) "),
                 Caught(strTheirs, "DTD: +(\\d+)x(\\d+) "));
        QCOMPARE(Caught(strOurs, "Pixel clock: ([0-9.]+) MHz"),
                 Caught(strTheirs, "kHz +(\\d+\\.\\d\\d)0000 MHz"));
        QCOMPARE(Caught(strOurs, "Horizontal front porch: (\\d+)"), Caught(strTheirs, "Hfront +(\\d+)"));
        QCOMPARE(Caught(strOurs, "Horizontal sync: (\\d+)"), Caught(strTheirs, "Hsync +(\\d+)"));
        QCOMPARE(Caught(strOurs, "Vertical front porch: (\\d+)"), Caught(strTheirs, "Vfront +(\\d+)"));
        QCOMPARE(Caught(strOurs, "Vertical sync: (\\d+)"), Caught(strTheirs, "Vsync +(\\d+)"));
        QCOMPARE(Caught(strOurs, "(\\S)hsync (\\S)vsync").join(QLatin1Char(' ')),
                 Caught(strTheirs, "[HV]pol ([PN])")
                     .join(QLatin1Char(' '))
                     .replace(QLatin1Char('P'), QLatin1Char('+'))
                     .replace(QLatin1Char('N'), QLatin1Char('-')));
    }
}

QTEST_GUILESS_MAIN(TestExtensionValues)
#include "TestExtensionValues.moc"
