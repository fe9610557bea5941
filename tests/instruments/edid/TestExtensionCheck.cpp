#include "host/CommonClass/EdidBlockSize.h"
#include "instruments/edid/Rules.h"
#include "tests/instruments/edid/EdidDecode.h"
#include "tests/instruments/edid/ExtensionEdid.h"

#include <QRegularExpression>
#include <QtTest>

namespace {

using ExtensionEdid::Changed;
using ExtensionEdid::Cta;
using ExtensionEdid::Section;
using ExtensionEdid::With;

QByteArray Hex(const char* szHex)
{
    return QByteArray::fromHex(szHex);
}

std::vector<Edid::SFinding> FindingsOf(const QByteArray& edid)
{
    std::vector<Edid::SFinding> vecFindings;
    Edid::Check(reinterpret_cast<const quint8*>(edid.constData()), edid.size(), {2026}, vecFindings);
    return vecFindings;
}

/// The names of the rules that are broken, each once, with the first byte that is to blame.
QStringList ErrorsOf(const QByteArray& edid)
{
    QStringList listErrors;
    for (const Edid::SFinding& finding : FindingsOf(edid))
        if (Edid::RuleOf(finding.rule).severity == Edid::enSeverity::enError)
            listErrors += QStringLiteral("%1 at %2")
                              .arg(QString::fromLatin1(Edid::RuleOf(finding.rule).szName))
                              .arg(finding.nOffset, 0, 16);
    return listErrors;
}

/// What the decoder calls a failure and we do not, with the reason.
constexpr const char* c_arrOnlyTheirs[] = {
    "requires EDID 1.3 instead of 1.4", // HDMI 2.1 takes 1.4 too
    "Missing VCDB",                     // a recommendation for displays that show computers' pictures
    "Set Selectable RGB Quantization",  // the same
    "CTA-861: Native",                  // native resolutions are a matter of taste
};

/// The decoder's failures about extensions, without the lines that say more about one before them.
QStringList DecoderFailures(const QByteArray& edid)
{
    const QString strDecoded = EdidDecode(
        {QStringLiteral("--check"), QStringLiteral("--skip-hex-dump"), QStringLiteral("--skip-sha")}, edid);
    QStringList listFailures;
    const int nBegin = strDecoded.indexOf(QLatin1String("\nFailures:"));
    for (const QString& strLine :
         strDecoded.mid(nBegin < 0 ? strDecoded.size() : nBegin).split(QLatin1Char('\n'))) {
        const bool bOnlyTheirs =
            std::any_of(std::begin(c_arrOnlyTheirs), std::end(c_arrOnlyTheirs),
                        [&](const char* szText) { return strLine.contains(QLatin1String(szText)); });
        if (strLine.startsWith(QLatin1String("  ")) && !strLine.startsWith(QLatin1String("   ")) &&
            !bOnlyTheirs)
            listFailures += strLine;
    }
    return listFailures;
}

// Data blocks of a sound CTA extension. Their first byte is at 0x84.
constexpr char c_szVideo[] = "44 101F0401";
constexpr char c_szAudio[] = "23 097F07";
constexpr char c_szSpeakers[] = "83 010000";
constexpr char c_szCapability[] = "E2 0048";
constexpr char c_szHdmi[] = "67 030C00 1000383C";
constexpr char c_szForum[] = "67 D85DC4 01788003";
constexpr char c_szTiming[] = "023A801871382D40582C450058542100001E";

QByteArray Sound()
{
    return Hex(c_szVideo) + Hex(c_szAudio) + Hex(c_szSpeakers) + Hex(c_szCapability);
}

/// The sound data blocks, and what follows them from 0x94 on.
QByteArray CtaWith(const char* szHex)
{
    return With(Cta({Sound() + Hex(szHex), {}}));
}

// Data blocks of a sound DisplayID section. Their first byte is at 0x85.
constexpr char c_szProduct[] = "00000C 414243 3412 04030201 0C 18 00";
constexpr char c_szParameters[] = "01000C 7017 480D 000F 7008 00 78 4D 77";
constexpr char c_szTypeI[] = "030014 E15A02 84 FF1D 9F00 2F80 1F00 3704 3D00 0200 0400";
constexpr char c_szInterface[] = "0F000A A4120000000000000000";

QByteArray SoundSection()
{
    return Hex(c_szProduct) + Hex(c_szParameters) + Hex(c_szTypeI) + Hex(c_szInterface);
}

/// The sound data blocks, and what follows them from 0xC7 on.
QByteArray SectionWith(const char* szHex)
{
    return With(Section({SoundSection() + Hex(szHex)}));
}

} // namespace

/// Extension blocks with a single thing wrong, beside the verdict of the installed decoder.
class TestExtensionCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void SoundExtensionsHaveNoError_data();
    void SoundExtensionsHaveNoError();
    void AViolationIsTheDecodersFailure_data();
    void AViolationIsTheDecodersFailure();
    void WhatTheDecoderLetsPassIsFound_data();
    void WhatTheDecoderLetsPassIsFound();
};

void TestExtensionCheck::SoundExtensionsHaveNoError_data()
{
    QTest::addColumn<QByteArray>("edid");
    QTest::newRow("CTA") << CtaWith("");
    QTest::newRow("CTA without detailed timings or data blocks") << With(Cta({{}, {}, 3, 0xF0, 0}));
    QTest::newRow("CTA of revision 1") << With(Cta({{}, Hex(c_szTiming), 1, 0}));
    QTest::newRow("HDMI") << CtaWith(QByteArray(QByteArray(c_szHdmi) + c_szForum).constData());
    QTest::newRow("native timings of both blocks") << With(Cta({Sound(), Hex(c_szTiming), 3, 0xF2}));
    QTest::newRow("two CTA extensions") << With(Cta({Sound(), {}}) + Cta({Hex("4102"), {}}));
    QTest::newRow("a display descriptor behind the timings")
        << With(Cta({Sound(), Hex(c_szTiming) + Hex("000000FC004C45442057414C4C0A20202020")}));
    QTest::newRow("DisplayID") << SectionWith("");
    QTest::newRow("a short section") << With(
        Section({SoundSection(), 0x13, 3, 0, int(SoundSection().size())}));
    QTest::newRow("two sections") << With(Section({Hex(c_szProduct) + Hex(c_szParameters), 0x13, 3, 1}) +
                                          Section({Hex(c_szTypeI) + Hex(c_szInterface), 0x13, 0}));
    QTest::newRow("a repeater") << With(Section(
        {Hex(c_szProduct) + Hex("030014 E15A02 84 FF1D 9F00 2F80 1F00 3704 3D00 0200 0400"), 0x13, 5}));
}

void TestExtensionCheck::SoundExtensionsHaveNoError()
{
    QFETCH(QByteArray, edid);
    QCOMPARE(ErrorsOf(edid), QStringList());
    QCOMPARE(DecoderFailures(edid), QStringList());
}

void TestExtensionCheck::AViolationIsTheDecodersFailure_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QByteArray>("edid");
    QTest::addColumn<QString>("failure");
    const auto Add = [](const char* szRule, const QByteArray& edid, const char* szFailure) {
        QTest::addRow("%s: %s", szRule, szFailure)
            << QString::fromLatin1(szRule) << edid << QString::fromLatin1(szFailure);
    };
    const QByteArray clean = CtaWith("");
    Add("cta.revision at 81", With(Cta({{}, Hex(c_szTiming), 0, 0})), "Extension revision 0");
    Add("cta.flags at 103", With(Cta({Sound(), {}}) + Cta({Hex("4102"), {}, 3, 0x70})),
        "Byte 3 must be the same");
    Add("cta.flags_age at 83", With(Cta({{}, Hex(c_szTiming), 1, 0x40})), "Non-zero byte 3");
    Add("cta.native_count at 83", With(Cta({Sound(), {}, 3, 0xF2})), "more Native DTDs (2) than DTDs (1)");
    Add("cta.block at 91", Changed(clean, 0x91, "FF"), "but should be");
    Add("cta.block_short at 94", CtaWith("E105"), "Colorimetry Data Block: Empty Data Block");
    Add("cta.block_short at 94", CtaWith("E20600"), "HDR Static Metadata Data Block: Empty Data Block");
    Add("cta.block_short at 94", CtaWith("E1 0D"), "Preference Data Block: Empty Data Block");
    Add("cta.block_short at 94", CtaWith("E1 12"), "HDMI Audio Data Block: Empty Data Block");
    Add("cta.block_short at 94", CtaWith("E4 13 000000"), "Room Configuration Data Block: Empty Data Block");
    Add("cta.block_short at 94", CtaWith("E2 14 00"), "Speaker Location Data Block: Empty Data Block");
    Add("cta.block_short at 94", CtaWith("E2 20 00"), "InfoFrame Data Block: Empty Data Block");
    Add("cta.block_short at 94", CtaWith("E6 22 2001020304"), "Type VII Video Timing Data Block: Empty");
    Add("cta.block_short at 94", CtaWith("E6 2A 0001020304"), "Type X Video Timing Data Block: Empty");
    Add("cta.block_short at 94", CtaWith("E4 02 000000"),
        "VESA Video Display Device Data Block: Invalid length");
    Add("cta.block_short at 94", CtaWith("A3 000000"), "Transfer Characteristics Data Block: Invalid length");
    Add("cta.block_short at 94", CtaWith("C0"), "Video Format Data Block: Length is 0");
    Add("cta.block_short at 94", CtaWith("62 030C"), "not enough to contain an OUI");
    Add("cta.block_short at 94", CtaWith("E1 01"), "not enough to contain an OUI");
    Add("cta.block_short at 94", CtaWith("E1 11"), "not enough to contain an OUI");
    Add("cta.block_short at 94", CtaWith("E0"), "Extended tag cannot have zero length");
    Add("cta.block_short at 91",
        With(Cta({Hex(c_szVideo) + Hex(c_szAudio) + Hex(c_szSpeakers) + Hex("E100"), {}})),
        "Video Capability Data Block: Empty Data Block");
    Add("cta.block_short at 8d",
        With(Cta({Hex(c_szVideo) + Hex(c_szAudio) + Hex("820100") + Hex(c_szCapability), {}})),
        "Speaker Allocation Data Block: Empty Data Block");
    Add("cta.block_twice at 94", CtaWith(c_szSpeakers), "Only one instance");
    Add("cta.block_twice at 94", CtaWith(c_szCapability), "Only one instance");
    Add("cta.block_twice at 98", CtaWith("E3060D01 E3060D01"), "Only one instance");
    Add("cta.block_twice at 98", CtaWith("E305C000 E305C000"), "Only one instance");
    Add("cta.block_twice at 97", CtaWith("E20D10 E20D1F"), "Only one instance");
    Add("cta.block_twice at 97", CtaWith("E20F01 E20F01"), "Only one instance");
    Add("cta.scan at 93", Changed(clean, 0x93, "44"), "always overscanned, but bit 7");
    Add("cta.scan at 93", With(Cta({Sound(), {}, 3, 0x70})), "always underscanned, but bit 7");
    Add("audio.basic at 84", With(Cta({Hex(c_szAudio) + Hex(c_szCapability), {}, 3, 0xB0})),
        "no Basic Audio support");
    Add("audio.basic at 84", With(Cta({Hex(c_szSpeakers) + Hex(c_szCapability), {}, 3, 0xB0})),
        "no Basic Audio support");
    Add("audio.length at 89",
        With(Cta({Hex(c_szVideo) + Hex("24 097F0707") + Hex(c_szSpeakers) + Hex(c_szCapability), {}})),
        "Broken CTA-861 audio block length 4");
    Add("audio.format at 8a", Changed(clean, 0x8A, "01"), "Audio Format Code 0x00 is reserved");
    Add("audio.reserved at 8b", Changed(clean, 0x8B, "FF"), "Bit F27 must be 0");
    Add("audio.reserved at 8c", Changed(clean, 0x8C, "0F"), "Bits F33-F37 must be 0");
    Add("video.code at 88", Changed(clean, 0x88, "DC"), "Unknown VIC 220");
    Add("video.code at 96", CtaWith("E20EFE"), "Unknown VIC 254");
    Add("video.twice at 88", Changed(clean, 0x88, "10"), "Duplicate VIC 16");
    Add("video.twice at 88", Changed(clean, 0x88, "90"), "Duplicate VIC 16");
    Add("video.twice at 105", With(Cta({Sound(), {}}) + Cta({Hex("4110"), {}})), "Duplicate VIC 16");
    Add("video.twice at 97", CtaWith("E30E6060"), "Duplicate YCbCr 4:2:0 VIC 96");
    Add("video.only_420 at 96", CtaWith("E20E10"), "VIC 16 is also a regular VIC");
    Add("hdmi.clock at 9b", CtaWith("67 030C00 10003845"), "Max TMDS rate is > 340");
    Add("hdmi.forum_clock at a1", CtaWith((QByteArray(c_szHdmi) + "67 D85DC4 01448003").constData()),
        "Max TMDS rate is > 0 and <= 340 or > 600");
    Add("hdmi.forum_clock at a1", CtaWith((QByteArray(c_szHdmi) + "67 D85DC4 01798003").constData()),
        "Max TMDS rate is > 0 and <= 340 or > 600");
    Add("hdmi.forum_place at 94", CtaWith(c_szForum), "did not immediately follow");
    Add("hdmi.forum_place at 94", CtaWith("E5 79 00 00 01 00"), "did not immediately follow");
    Add("cta.padding at 94", Changed(clean, 0xF0, "01"), "padding contains non-zero bytes");
    Add("detailed.clock at 94", With(Cta({Sound(), Hex("0100801871382D40582C450058542100001E")})),
        "Pixelclock < 10 MHz");
    Add("detailed.h_porch at 97", With(Cta({Sound(), Hex("023A801871382D4058FF450058542100001E")})),
        "0 or negative horizontal back porch");
    Add("detailed.size_missing at a0", With(Cta({Sound(), Hex("023A801871382D40582C450000000000001E")})),
        "image size is not set");
    const QByteArray section = SectionWith("");
    Add("displayid.product at 83", With(Section({SoundSection(), 0x13, 0})), "no product type");
    Add("displayid.product at 103",
        With(Section({SoundSection(), 0x13, 3, 1}) + Section({Hex("06010152"), 0x13, 3})),
        "Product Type should be 0");
    Add("displayid.sections at 84", With(Section({SoundSection(), 0x13, 3, 1})),
        "Expected 1 DisplayID Extension Block");
    Add("displayid.missing at 81", With(Section({Hex(c_szParameters) + Hex(c_szTypeI) + Hex(c_szInterface)})),
        "Missing DisplayID Product");
    Add("displayid.missing at 81", With(Section({Hex(c_szProduct) + Hex(c_szTypeI) + Hex(c_szInterface)})),
        "Missing DisplayID Display Parameters");
    Add("displayid.missing at 81", With(Section({Hex(c_szProduct) + Hex(c_szParameters) + Hex(c_szTypeI)})),
        "Missing DisplayID Display Interface");
    Add("displayid.preferred at 81", Changed(section, 0xA9, "04"), "at least one preferred timing");
    Add("displayid.age at c7", SectionWith("7A0000"), "Use of DisplayID v2.0 tag");
    Add("displayid.block_length at c9", SectionWith("090002 0000"),
        "length is different than expected (2 != 15)");
    Add("displayid.block_length at c9", SectionWith("0C0001 00"),
        "length is different than expected (1 != 13)");
    Add("displayid.block_length at c9", SectionWith("0D0001 00"),
        "length is different than expected (1 != 6)");
    Add("displayid.block_length at c9", SectionWith("120001 00"),
        "length is different than expected (1 != 22)");
    Add("displayid.order at 94",
        With(Section({Hex(c_szParameters) + Hex(c_szProduct) + Hex(c_szTypeI) + Hex(c_szInterface)})),
        "is required to be the first");
    Add("displayid.block_twice at c7", SectionWith(c_szParameters), "Duplicate Display Parameters");
    Add("displayid.reserved at a9", Changed(section, 0xA9, "E4"), "Reserved stereo");
    Add("displayid.reserved at a9", Changed(section, 0xA9, "8F"), "Unknown aspect");
    Add("detailed.h_porch at ac", Changed(section, 0xAE, "FF80"), "0 or negative horizontal back porch");
    Add("detailed.v_porch at b4", Changed(section, 0xB6, "FF00"), "0 or negative vertical back porch");
    Add("displayid.block at c7", SectionWith("7F0070"), "exceeds the number of bytes remaining");
    Add("displayid.filler at c7", SectionWith("000000 0001"), "Non-0 filler bytes");
    Add("displayid.padding at c8",
        With(Section({SoundSection() + Hex("0001"), 0x13, 3, 0, int(SoundSection().size())})),
        "padding contains non-zero bytes");
}

void TestExtensionCheck::AViolationIsTheDecodersFailure()
{
    QFETCH(QString, rule);
    QFETCH(QByteArray, edid);
    QFETCH(QString, failure);
    QCOMPARE(ErrorsOf(edid), QStringList(rule));
    const QStringList listFailures = DecoderFailures(edid);
    QVERIFY2(!listFailures.isEmpty(), "the decoder finds nothing");
    for (const QString& strFailure : listFailures)
        QVERIFY2(strFailure.contains(failure), qPrintable(strFailure));
}

void TestExtensionCheck::WhatTheDecoderLetsPassIsFound_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QByteArray>("edid");
    // The decoder takes 0 for a VGA mode and 128 for a native one of it.
    QTest::newRow("the code 0") << QStringLiteral("video.code at 88") << Changed(CtaWith(""), 0x88, "00");
    QTest::newRow("the code 128") << QStringLiteral("video.code at 88") << Changed(CtaWith(""), 0x88, "80");
}

void TestExtensionCheck::WhatTheDecoderLetsPassIsFound()
{
    QFETCH(QString, rule);
    QFETCH(QByteArray, edid);
    QCOMPARE(ErrorsOf(edid), QStringList(rule));
    QCOMPARE(DecoderFailures(edid), QStringList());
}

QTEST_GUILESS_MAIN(TestExtensionCheck)
#include "TestExtensionCheck.moc"
