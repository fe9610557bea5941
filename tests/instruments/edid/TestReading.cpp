#include "instruments/edid/Checksum.h"
#include "instruments/edid/Reading.h"
#include "instruments/edid/Writing.h"
#include "tests/instruments/edid/SampleEdid.h"

#include <QtTest>

namespace {

QByteArray Xxd(const QByteArray& edid)
{
    QByteArray text;
    for (int nRow = 0; nRow < edid.size(); nRow += 16) {
        text += QByteArray::number(nRow, 16).rightJustified(8, '0') + ":";
        for (int nPair = nRow; nPair < nRow + 16; nPair += 2)
            text += " " + edid.mid(nPair, 2).toHex();
        text += "  ................\n";
    }
    return text;
}

/// As hexdump does, a line that repeats the one before it becomes an asterisk.
QByteArray Hexdump(const QByteArray& edid)
{
    QByteArray text;
    bool bStar = false;
    for (int nRow = 0; nRow < edid.size(); nRow += 16) {
        if (nRow > 0 && edid.mid(nRow, 16) == edid.mid(nRow - 16, 16)) {
            text += bStar ? "" : "*\n";
            bStar = true;
            continue;
        }
        bStar = false;
        const QByteArray hex = edid.mid(nRow, 16).toHex(' ');
        text += QByteArray::number(nRow, 16).rightJustified(8, '0') + "  " + hex.left(23) + "  " +
                hex.mid(24) + "  |.0x.{.:.........|\n";
    }
    return text + QByteArray::number(edid.size(), 16).rightJustified(8, '0') + "\n";
}

QByteArray XrandrEdid(const QByteArray& edid)
{
    QByteArray text = "\tEDID: \n";
    for (int nRow = 0; nRow < edid.size(); nRow += 16)
        text += "\t\t" + edid.mid(nRow, 16).toHex() + "\n";
    return text;
}

QByteArray Xrandr(const QByteArray& first, const QByteArray& second)
{
    return "Screen 0: minimum 320 x 200, current 1920 x 1080, maximum 16384 x 16384\n"
           "HDMI-1 connected primary 1920x1080+0+0 (normal left inverted) 600mm x 340mm\n" +
           XrandrEdid(first) +
           "\tmax bpc: 12 \n\t\trange: (8, 12)\n   1920x1080     60.00*+\nDP-1 disconnected\n" +
           "DP-2 connected 1280x720+0+0\n\tBorder: 0\n" + XrandrEdid(second) + "\tDithering: on\n";
}

QByteArray DecoderText(const QByteArray& edid)
{
    QByteArray text = "edid-decode (hex):\n\n";
    for (int nRow = 0; nRow < edid.size(); nRow += 16)
        text += edid.mid(nRow, 16).toHex(' ') + "\n" + (nRow % 128 == 112 ? "\n" : "");
    return text + "----------------\n\nBlock 0, Base EDID:\n  EDID Structure Version & Revision: 1.3\n";
}

} // namespace

class TestReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EveryDressHoldsTheSameBytes_data();
    void EveryDressHoldsTheSameBytes();
    void XrandrNamesItsDisplays();
    void WrittenFormsAreReadBackBitForBit_data();
    void WrittenFormsAreReadBackBitForBit();
    void OtherJsonOfTheToolIsRead_data();
    void OtherJsonOfTheToolIsRead();
    void WhatCannotBeReadIsToldWithItsPlace_data();
    void WhatCannotBeReadIsToldWithItsPlace();
    void AHugeTextEndsQuickly_data();
    void AHugeTextEndsQuickly();
};

void TestReading::EveryDressHoldsTheSameBytes_data()
{
    QTest::addColumn<QByteArray>("content");
    const QByteArray edid = SampleEdid::Rich();
    QByteArray lines = edid.toHex(' ');
    QTest::newRow("binary") << edid;
    QTest::newRow("one line of digits") << edid.toHex();
    QTest::newRow("capitals") << edid.toHex().toUpper() + "\n";
    QTest::newRow("blanks") << lines;
    QTest::newRow("commas") << edid.toHex(',');
    QTest::newRow("colons") << edid.toHex(':');
    QTest::newRow("lines that end as on Windows") << lines.replace("00 01", "00\r\n01");
    QTest::newRow("xxd") << Xxd(edid);
    QTest::newRow("hexdump -C") << Hexdump(edid);
    QTest::newRow("a C array") << Edid::CForm(edid, QStringLiteral("a display {0x12}"));
    QTest::newRow("the inside of a C array") << "0x" + edid.toHex(',').replace(",", ", 0x") + ",\n";
    QTest::newRow("C++ comments") << "// 0x99 }\nunsigned char a[] = {0x" +
                                         edid.toHex(',').replace(",", ", // {\n0x") + "};";
    QTest::newRow("edid-decode") << DecoderText(edid);
    QTest::newRow("xrandr") << Xrandr(edid, SampleEdid::Built(1280, 720, 50.0F));
    QTest::newRow("JSON") << Edid::JsonForm(edid);
}

void TestReading::EveryDressHoldsTheSameBytes()
{
    QFETCH(QByteArray, content);
    const Edid::SReading reading = Edid::Read(content);
    QCOMPARE(reading.ErrorText(), QString());
    QCOMPARE(reading.vecEdids.constFirst().bytes.toHex(), SampleEdid::Rich().toHex());
}

void TestReading::XrandrNamesItsDisplays()
{
    const QByteArray second = SampleEdid::Built(1280, 720, 50.0F);
    const Edid::SReading reading = Edid::Read(Xrandr(SampleEdid::Rich(), second));
    QCOMPARE(reading.vecEdids.size(), 2);
    QCOMPARE(reading.vecEdids[0].strName, QStringLiteral("HDMI-1"));
    QCOMPARE(reading.vecEdids[1].strName, QStringLiteral("DP-2"));
    QCOMPARE(reading.vecEdids[1].bytes, second);
}

void TestReading::WrittenFormsAreReadBackBitForBit_data()
{
    QTest::addColumn<QByteArray>("edid");
    QTest::newRow("a good block") << SampleEdid::Built(1920, 1080, 60.0F);
    QTest::newRow("zeros") << QByteArray(128, '\0');
    QTest::newRow("all bits") << QByteArray(256, '\xFF');
    QByteArray noise;
    for (int i = 0; i < 4 * 128; ++i)
        noise += char(i * i * 7 + i / 3);
    QTest::newRow("noise") << noise;
    QTest::newRow("256 blocks") << QByteArray(256 * 128, '\x5A');
}

void TestReading::WrittenFormsAreReadBackBitForBit()
{
    QFETCH(QByteArray, edid);
    for (const QByteArray& form :
         {Edid::HexForm(edid), Edid::CForm(edid, QStringLiteral("noise")), Edid::JsonForm(edid)}) {
        const Edid::SReading reading = Edid::Read(form);
        QCOMPARE(reading.ErrorText(), QString());
        QCOMPARE(reading.vecEdids.constFirst().bytes, edid);
    }
}

void TestReading::OtherJsonOfTheToolIsRead_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");
    QTest::newRow("of a built block") << QByteArray("{\"width\": 1, \"bytes\": [") << QByteArray("]}");
    QTest::newRow("of several") << QByteArray("{\"edids\": [{\"name\": \"A\", \"bytes\": [")
                                << QByteArray("]}]}");
}

void TestReading::OtherJsonOfTheToolIsRead()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const QByteArray edid = SampleEdid::Built(1920, 1080, 60.0F);
    QByteArrayList listNumbers;
    for (const char ch : edid)
        listNumbers += QByteArray::number(quint8(ch));
    const Edid::SReading reading = Edid::Read(before + listNumbers.join(',') + after);
    QCOMPARE(reading.ErrorText(), QString());
    QCOMPARE(reading.vecEdids.constFirst().bytes, edid);
}

void TestReading::WhatCannotBeReadIsToldWithItsPlace_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("error");
    const auto Add = [](const char* szName, const QByteArray& content, const char* szError) {
        QTest::newRow(szName) << content << QString::fromLatin1(szError);
    };
    const QByteArray row = "00 FF FF FF FF FF FF 00 00 00 00 00 00 00 00 00\n";
    Add("nothing", "", "line 1, column 1: there are no bytes; give an EDID of at least 128");
    Add("blanks", "  \n\n ", "line 3, column 2: there are no bytes; give an EDID of at least 128");
    Add("a letter", row + row + "00 FG 00", "line 3, column 5: 'G' is no hexadecimal digit");
    Add("words", "hello world", "line 1, column 1: 'h' is no hexadecimal digit");
    Add("half a byte", row + "00 0",
        "line 2, column 4: '0' is no whole number of bytes; write two digits for each");
    Add("bytes beyond ASCII", "00 \xE4", "line 1, column 4: the byte 0xe4 is no hexadecimal digit");
    Add("a short block", row, "line 1, column 48: there are 16 bytes; an EDID has whole blocks of 128");
    Add("short binary", QByteArray(100, '\0'), "there are 100 bytes; an EDID has whole blocks of 128");
    Add("long binary", QByteArray(257 * 128, '\0'),
        "there are more than 256 blocks; an EDID has at most so many");
    Add("long hex", row.repeated(2049),
        "line 2049, column 1: there are more than 256 blocks; an EDID has at most so many");
    Add("a missing line of xxd",
        "00000000: 00ff ffff ffff ff00 0000 0000 0000 0000  ........\n"
        "00000020: 00ff ffff ffff ff00 0000 0000 0000 0000  ........\n",
        "line 2, column 1: the offset is 0x20, but there are 0x10 bytes before it; give every line of the "
        "dump");
    Add("an asterisk first", "00000000  00\n*\n00000080\n",
        "line 3, column 1: '*' has no line before it to repeat");
    Add("a repetition without end",
        "00000000  00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00  |.|\n*\n7fffffffffffffff\n",
        "line 3, column 1: there are more than 256 blocks; an EDID has at most so many");
    Add("broken JSON", "{\n  \"bytes\": [1, 2,\n}", "line 3, column 2: object is missing after a comma");
    Add("JSON of something else", "{\n \"colour\": 3}",
        "line 1, column 1: there is no list \"bytes\"; give the JSON that this program writes");
    Add("JSON with a large number", "{\"a\": 1,\n \"bytes\": [0, 256]}",
        "line 2, column 2: entry 2 of \"bytes\" is no byte; give numbers from 0 to 255, or texts of two "
        "digits for each byte");
    Add("JSON with too little", "{\"bytes\": [0]}",
        "line 1, column 2: there are 1 bytes; an EDID has whole blocks of 128");
    Add("xrandr without any EDID", "HDMI-1 connected 1x1+0+0\n\tBorder: 0\n",
        "line 2, column 1: no output has an EDID; give what 'xrandr --prop' prints");
}

void TestReading::WhatCannotBeReadIsToldWithItsPlace()
{
    QFETCH(QByteArray, content);
    const Edid::SReading reading = Edid::Read(content);
    QVERIFY(!reading.IsRead());
    QVERIFY(reading.vecEdids.isEmpty());
    QTEST(reading.ErrorText(), "error");
}

void TestReading::AHugeTextEndsQuickly_data()
{
    QTest::addColumn<QByteArray>("begin");
    QTest::newRow("digits") << QByteArray("00 ");
    QTest::newRow("blanks") << QByteArray(" ");
    QTest::newRow("line feeds") << QByteArray("\n");
    QTest::newRow("an open array") << QByteArray("[");
    QTest::newRow("outputs") << QByteArray("A connected\n");
    QTest::newRow("comments") << QByteArray("/*0x");
    QTest::newRow("zero bytes") << QByteArray(1, '\0');
}

void TestReading::AHugeTextEndsQuickly()
{
    QFETCH(QByteArray, begin);
    constexpr int c_nHuge = 100 * 1000 * 1000;
    // The test's own limit is the time that a run may take: nothing here may grow with the text.
    QVERIFY(!Edid::Read(begin.repeated(c_nHuge / begin.size())).IsRead());
}

QTEST_APPLESS_MAIN(TestReading)
#include "TestReading.moc"
