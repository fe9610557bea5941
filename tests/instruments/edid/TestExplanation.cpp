#include "instruments/edid/BaseLayout.h"
#include "instruments/edid/ExplanationText.h"
#include "tests/instruments/edid/EdidDecode.h"
#include "tests/instruments/edid/SampleEdid.h"

#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

#include <random>

namespace {

const quint8* BytesOf(const QByteArray& edid)
{
    return reinterpret_cast<const quint8*>(edid.constData());
}

std::vector<Edid::SField> FieldsOf(const QByteArray& edid)
{
    std::vector<Edid::SField> vecFields;
    Edid::Explain(BytesOf(edid), edid.size(), vecFields);
    return vecFields;
}

QString Text(const QByteArray& edid)
{
    return Edid::ExplanationText(edid, {{QStringLiteral("LED"), QStringLiteral("A maker of walls")}});
}

QByteArray WithBytes(QByteArray edid, int nOffset, const QByteArray& bytes)
{
    return edid.replace(nOffset, bytes.size(), bytes);
}

QByteArray WithDescriptor(const char* szHex)
{
    return WithBytes(SampleEdid::Rich(), 0x48, QByteArray::fromHex(szHex));
}

} // namespace

class TestExplanation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryFieldIsTold_data();
    void EveryFieldIsTold();
    void NoByteIsDropped_data();
    void NoByteIsDropped();
    void TheDecoderSaysTheSame_data();
    void TheDecoderSaysTheSame();
    void JsonHoldsEveryField();
    void MakersAreNamedFromAList();
};

void TestExplanation::EveryFieldIsTold_data()
{
    QTest::addColumn<QByteArray>("edid");
    QTest::addColumn<QString>("line");
    const auto Add = [](const char* szName, const QByteArray& edid, const char* szLine) {
        QTest::newRow(szName) << edid << QString::fromLatin1(szLine);
    };
    const QByteArray rich = SampleEdid::Rich();
    Add("maker", rich, "0008  30 A4           Maker: LED (A maker of walls)");
    Add("product", rich, "000A  01 12           Product code: 0x1201");
    Add("serial", rich, "000C  78 56 34 12     Serial number: 305419896");
    Add("week", rich, "0010  0C              Week: 12");
    Add("year", rich, "0011  20              Year of manufacture: 2022");
    Add("model year", WithBytes(rich, 0x10, "\xFF\x22"), "0011  22              Model year: 2024");
    Add("digital input", rich, "0014  B5              Bits per primary: 10");
    Add("interface", rich, "0014  B5              Interface: DisplayPort");
    Add("DFP before 1.4", SampleEdid::Built(800, 600, 60.0F),
        "0014  81              DFP 1.x compatible: yes");
    Add("analog levels", WithBytes(rich, 0x14, "\x2F"),
        "0014  2F              Signal levels: 0.714 V, sync -0.286 V");
    Add("analog sync", WithBytes(rich, 0x14, "\x2F"), "0014  2F              Sync on green: yes");
    Add("size", rich, "0015  3C              Width: 60 cm");
    Add("landscape", WithBytes(rich, 0x15, QByteArray("\x4F\x00", 2)),
        "0015  4F              Aspect ratio, landscape: 1.78:1");
    Add("portrait", WithBytes(rich, 0x15, QByteArray("\x00\x4F", 2)),
        "0016  4F              Aspect ratio, portrait: 1.78:1");
    Add("gamma", rich, "0017  78              Gamma: 2.20");
    Add("gamma elsewhere", WithBytes(rich, 0x17, "\xFF"), "0017  FF              Gamma: defined elsewhere");
    Add("encodings", rich, "0018  3A              Colour encodings: RGB 4:4:4, YCbCr 4:4:4, YCbCr 4:2:2");
    Add("red", rich, "0019  C5 AC           Red x: 0.6748");
    Add("coverage", rich, "Covers: sRGB ");
    Add("white", rich, "Temperature of the white: 6465 K");
    Add("established", rich, "0023  A5              720x400 at 70.082 Hz (IBM): yes");
    Add("standard", rich, "0026  D1 C0           Standard timing 1: 1920x1080 at 60 Hz, DMT 0x52");
    Add("unused standard", rich, "0030  01 01           Standard timing 6: unused");
    Add("square before 1.3",
        WithBytes(SampleEdid::Built(8, 8, 60.0F), 0x12,
                  QByteArray("\x01\x02\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x31\x19", 22)),
        "Standard timing 1: 640x640 at 85 Hz, DMT 0x02");
    Add("detailed timing", rich, "0036                Detailed timing 1: 3840x2160 at 59.997 Hz");
    Add("pixel clock", rich, "0036  4D D0           Pixel clock: 533.25 MHz");
    Add("line rate", rich, "Line rate: 133.313 kHz");
    Add("modeline", rich,
        "Modeline \"3840x2160_60.00\" 533.250  3840 3888 3920 4000  2160 2163 2168 2222  +hsync -vsync");
    Add("stereo", WithBytes(rich, 0x47, "\x7B"), "Stereo: side by side");
    Add("interlaced", WithBytes(rich, 0x47, "\x9A"), "Interlaced: yes");
    Add("range", rich, "0062  8C              Highest horizontal rate: 140 kHz");
    Add("name", rich, "Name: LED WALL");
    Add("unprintable name", WithBytes(rich, 0x6F + 2, QByteArray("A\0B", 3)), "Name: A\\x00B WALL");
    Add("extensions", rich, "007E  02            Extension blocks: 2");
    Add("checksum", rich, "Checksum: right");
    Add("a wrong checksum", WithBytes(rich, 0x0A, "\x02"), "Checksum: wrong, should be 0x");
    Add("range offsets", WithDescriptor("000000FD0B 28 3C 1E 8C 3C 01 0A202020202020"),
        "Highest vertical rate: 315 Hz");
    Add("CVT range", WithDescriptor("000000FD00 28 3C 1E 8C 3C 04 11 04 F0 F8 58 F0 3C"),
        "Longest active line: 1920 pixels");
    Add("secondary GTF", WithDescriptor("000000FD00 28 3C 1E 8C 3C 02 00 20 50 5802 80 28"),
        "Secondary curve starts at: 64 kHz");
    Add("white points", WithDescriptor("000000FB00 01 05 50 54 78 00 00000000 0A2020"), "White x: 0.3135");
    Add("more standards", WithDescriptor("000000FA00 D1C0 0101 0101 0101 0101 0101 0A"),
        "Standard timing 2: unused");
    Add("CVT codes", WithDescriptor("000000F800 01 7F1C21 000000 000000 000000"),
        "CVT code 1: 1280x768 at 60 Hz reduced, 60 Hz preferred");
    Add("established III", WithDescriptor("000000F700 0A 80 00 00 00 00 10 000000000000"),
        "1920x1440 at 75 Hz (DMT 0x4a)");
    Add("colour management", WithDescriptor("000000F900 03 6400 C800 0000 0000 0000 0000"), "Red a3: 1.00");
    Add("a maker's descriptor", WithDescriptor("0000000300 000102030405060708090A0B0C"),
        "Bytes: 00 01 02 03 04 05 06 07 08 09 0A 0B 0C");
    Add("CTA revision", rich, "0081  03            Revision: 3");
    Add("a native video code", rich, "VIC 19, 1280x720 at 50 Hz, 16:9, native");
    Add("a large video code", rich, "VIC 97, 3840x2160 at 60 Hz, 16:9");
    Add("audio", rich, "Format: Linear PCM");
    Add("speakers", rich, "Front left and right: yes");
    Add("HDMI", rich, "Organisation: 00-0C-03");
    Add("HDMI clock", rich, "Highest TMDS clock: 300 MHz");
    Add("HDMI codes", rich, "HDMI VIC 1, 3840x2160 at 30 Hz, 16:9");
    Add("HDMI Forum clock", rich, "Highest TMDS character rate: 600 MHz");
    Add("colorimetry", rich, "BT.2020 RGB: yes");
    Add("HDR", rich, "SMPTE ST 2084 (PQ): yes");
    Add("DisplayID", rich, "0101  13            Version: 1");
    Add("type I timing", rich, "Type I timing 1: 7680x1080 at ");
}

void TestExplanation::EveryFieldIsTold()
{
    QFETCH(QByteArray, edid);
    QFETCH(QString, line);
    const QString strText = Text(edid);
    QVERIFY2(strText.contains(line), qPrintable(strText));
}

void TestExplanation::NoByteIsDropped_data()
{
    QTest::addColumn<QByteArray>("edid");
    QTest::newRow("built") << SampleEdid::Built(1920, 1080, 60.0F);
    QTest::newRow("rich") << SampleEdid::Rich();
    QTest::newRow("a block and a half") << SampleEdid::Rich().left(192);
    std::mt19937 random(20260101);
    for (int i = 0; i < 200; ++i) {
        QByteArray noise;
        while (noise.size() < 384)
            noise += char(random());
        noise[128] = i % 2 == 0 ? '\x02' : '\x70';
        QTest::addRow("noise %d", i) << noise;
    }
}

void TestExplanation::NoByteIsDropped()
{
    QFETCH(QByteArray, edid);
    QVector<bool> vecTold(edid.size(), false);
    for (const Edid::SField& field : FieldsOf(edid)) {
        QVERIFY(field.nOffset >= 0 && field.nOffset + field.nSize <= edid.size());
        const bool bHolds = field.pType->nSize != 0 || field.pType->kind == Edid::enKind::enBytes;
        for (int i = field.nOffset; bHolds && i < field.nOffset + field.nSize; ++i)
            vecTold[i] = true;
    }
    // The first three bytes of a display descriptor are zero and the fifth is too: that is what makes it one.
    for (int i = 0; i < 4; ++i) {
        const int nDescriptor = Edid::c_nDescriptorOffset + i * Edid::c_nDescriptorSize;
        if (edid.at(nDescriptor) == 0 && edid.at(nDescriptor + 1) == 0)
            for (const int nByte : {0, 1, 2, 4})
                vecTold[nDescriptor + nByte] = true;
    }
    QCOMPARE(vecTold.indexOf(false), -1);
}

void TestExplanation::TheDecoderSaysTheSame_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("pattern");
    const auto Add = [](const char* szLabel, const char* szPattern) {
        QTest::newRow(szLabel) << QString::fromLatin1(szLabel) << QString::fromLatin1(szPattern);
    };
    Add("Product code", "Model: (\\d+)");
    Add("Serial number", "Serial Number: (\\d+)");
    Add("Week", "Made in: week (\\d+)");
    Add("Gamma", "Gamma: ([0-9.]+)");
    Add("Bits per primary", "Bits per primary color channel: (\\d+)");
    Add("Width", "Maximum image size: (\\d+) cm");
    Add("Highest pixel clock", "max dotclock (\\d+) MHz");
    Add("Name", "Display Product Name: '(.*)'");
    Add("Highest TMDS clock", "Maximum TMDS clock: (\\d+) MHz");
    Add("Highest TMDS character rate", "Maximum TMDS Character Rate: (\\d+) MHz");
    Add("Red x", "Red  : ([0-9.]+),");
    Add("White y", "White: [0-9.]+, ([0-9.]+)");
}

void TestExplanation::TheDecoderSaysTheSame()
{
    QFETCH(QString, label);
    QFETCH(QString, pattern);
    const QByteArray edid = SampleEdid::Rich();
    const QString strDecoded = EdidDecode({}, edid);
    const QString strExpected = QRegularExpression(pattern).match(strDecoded).captured(1);
    QVERIFY2(!strExpected.isEmpty(), qPrintable(strDecoded));
    for (const Edid::SField& field : FieldsOf(edid)) {
        if (Edid::LabelText(field) != label)
            continue;
        const QString strOurs = Edid::ValueText(field, BytesOf(edid), {})
                                    .section(QLatin1Char(' '), 0, label == QLatin1String("Name") ? -1 : 0);
        bool bHex = strOurs.startsWith(QLatin1String("0x"));
        QCOMPARE(bHex ? QString::number(strOurs.toInt(nullptr, 16)) : strOurs, strExpected);
        return;
    }
    QFAIL("no such field");
}

void TestExplanation::JsonHoldsEveryField()
{
    const QByteArray edid = SampleEdid::Rich();
    const QJsonArray blocks = Edid::ExplanationJson(edid, {});
    QCOMPARE(blocks.size(), 3);
    int nFields = 0;
    QVector<QJsonArray> vecOpen = {blocks};
    while (!vecOpen.isEmpty()) {
        for (const QJsonValue value : vecOpen.takeLast()) {
            ++nFields;
            if (value.toObject().contains(QStringLiteral("fields")))
                vecOpen.append(value.toObject().value(QStringLiteral("fields")).toArray());
        }
    }
    QCOMPARE(nFields, int(FieldsOf(edid).size()));
}

void TestExplanation::MakersAreNamedFromAList()
{
    const Edid::MakerNames makerNames =
        Edid::ReadMakerNames("# list\nABC\tSome Maker \nLED\tWalls\n\nXY\tshort\n");
    QCOMPARE(makerNames.size(), 2);
    QCOMPARE(makerNames.value(QStringLiteral("ABC")), QStringLiteral("Some Maker"));
    QCOMPARE(Edid::MakerLetters(0x30A4), QStringLiteral("LED"));
    QCOMPARE(Edid::MakerLetters(0x7BDE), QStringLiteral("???"));
}

QTEST_GUILESS_MAIN(TestExplanation)
#include "TestExplanation.moc"
