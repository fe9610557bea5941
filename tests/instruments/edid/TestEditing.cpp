#include "instruments/edid/Checksum.h"
#include "instruments/edid/Difference.h"
#include "instruments/edid/Editing.h"
#include "instruments/edid/Rules.h"
#include "tests/instruments/edid/EdidDecode.h"
#include "tests/instruments/edid/SampleEdid.h"

#include <QSet>
#include <QtTest>

#include <random>

namespace {

bool HasRightChecksums(const QByteArray& edid)
{
    return SampleEdid::WithChecksums(edid) == edid;
}

QByteArray Noise(std::mt19937& random, int nBlocks)
{
    QByteArray edid;
    while (edid.size() < nBlocks * 128)
        edid += char(random());
    return edid;
}

/// The bytes that a value may touch, beside the checksum of the base block.
QVector<QPair<int, int>> BytesOf(const QString& strKey)
{
    static const QHash<QString, QVector<QPair<int, int>>> s_mapBytes = {
        {QStringLiteral("maker"), {{0x08, 0x09}}},  {QStringLiteral("product"), {{0x0A, 0x0B}}},
        {QStringLiteral("serial"), {{0x0C, 0x0F}}}, {QStringLiteral("date"), {{0x10, 0x11}}},
        {QStringLiteral("gamma"), {{0x17, 0x17}}},  {QStringLiteral("primaries"), {{0x19, 0x22}}},
        {QStringLiteral("mode"), {{0x36, 0x47}}},   {QStringLiteral("size"), {{0x15, 0x16}, {0x42, 0x44}}},
        {QStringLiteral("name"), {{0x36, 0x7D}}},   {QStringLiteral("serial-text"), {{0x36, 0x7D}}},
        {QStringLiteral("text"), {{0x36, 0x7D}}},   {QStringLiteral("range"), {{0x36, 0x7D}}},
    };
    return s_mapBytes.value(strKey);
}

} // namespace

class TestEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void TheDecoderReadsWhatWasSet_data();
    void TheDecoderReadsWhatWasSet();
    void OnlyWhatWasAskedForChanges_data();
    void OnlyWhatWasAskedForChanges();
    void WhatDoesNotFitIsRefused_data();
    void WhatDoesNotFitIsRefused();
    void AutomaticLimitsContainTheModes();
    void AWrongChecksumStaysUntilItIsFixed();
    void FixMakesEveryChecksumRight();
    void ExtensionsAreDropped();
    void AFullBlockTakesNoFurtherText();
};

void TestEditing::TheDecoderReadsWhatWasSet_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("line");
    const auto Add = [](const char* szKey, const char* szValue, const char* szLine) {
        QTest::addRow("%s=%s", szKey, szValue)
            << QString::fromLatin1(szKey) << QString::fromLatin1(szValue) << QString::fromLatin1(szLine);
    };
    Add("name", "Lobby", "Display Product Name: 'Lobby'");
    Add("name", "thirteen char", "Display Product Name: 'thirteen char'");
    Add("serial-text", "A1", "Display Product Serial Number: 'A1'");
    Add("maker", "XYZ", "Manufacturer: XYZ");
    Add("product", "4660", "Model: 4660");
    Add("product", "0xFFFF", "Model: 65535");
    Add("serial", "4294967295", "Serial Number: 4294967295");
    Add("date", "2026W12", "Made in: week 12 of 2026");
    Add("date", "1990", "Made in: 1990");
    Add("size", "255x1", "Maximum image size: 255 cm x 1 cm");
    Add("gamma", "3.54", "Gamma: 3.54");
    Add("gamma", "1", "Gamma: 1.00");
    Add("primaries", "sRGB", "Red  : 0.6396, 0.3300");
    Add("primaries", "rec2020", "Green: 0.1699, 0.7968");
    Add("primaries", "BT.2020", "Green: 0.1699, 0.7968");
    Add("primaries", "Display P3", "Red  : 0.6796, 0.3203");
    Add("primaries", "0.1,0.2;0.3,0.4;0.5,0.6;0.7,0.999", "White: 0.70");
    Add("mode", "1920x1080@50", "DTD 1:  1920x1080");
    Add("range", "24-300,30-500,2550", "24-300 Hz V, 30-500 kHz H, max dotclock 2550 MHz");
}

void TestEditing::TheDecoderReadsWhatWasSet()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, line);
    QByteArray edid = SampleEdid::Rich();
    QCOMPARE(Edid::SetValue(edid, key, value), QString());
    const QString strDecoded = EdidDecode({}, edid);
    QVERIFY2(strDecoded.contains(line), qPrintable(strDecoded));
    QVERIFY(HasRightChecksums(edid));
}

void TestEditing::OnlyWhatWasAskedForChanges_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    const char* const arrValues[][2] = {{"name", "Lobby"},
                                        {"serial-text", "1"},
                                        {"text", "x"},
                                        {"maker", "ABC"},
                                        {"product", "7"},
                                        {"serial", "8"},
                                        {"date", "2000W1"},
                                        {"size", "60x34"},
                                        {"gamma", "2.4"},
                                        {"primaries", "DCIP3"},
                                        {"mode", "800x600@60"},
                                        {"range", "auto"},
                                        {"range", "40-60,30-80,170"}};
    for (const auto& arrValue : arrValues)
        QTest::addRow("%s=%s", arrValue[0], arrValue[1])
            << QString::fromLatin1(arrValue[0]) << QString::fromLatin1(arrValue[1]);
}

void TestEditing::OnlyWhatWasAskedForChanges()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    const auto vecRanges = BytesOf(key);
    std::mt19937 random(99);
    for (int i = 0; i < 2000; ++i) {
        const QByteArray before = i == 0 ? SampleEdid::Rich() : Noise(random, 1 + i % 3);
        QByteArray after = before;
        const QString strError = Edid::SetValue(after, key, value);
        if (!strError.isEmpty())
            QCOMPARE(after, before);
        for (const Edid::SByteDifference& byte : Edid::ByteDifferences(before, after)) {
            const auto IsIn = [&](const QPair<int, int>& range) {
                return byte.nOffset >= range.first && byte.nOffset <= range.second;
            };
            QVERIFY2(byte.nOffset == 0x7F || std::any_of(vecRanges.begin(), vecRanges.end(), IsIn),
                     qPrintable(QString::number(byte.nOffset, 16)));
        }
    }
}

void TestEditing::WhatDoesNotFitIsRefused_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("error");
    const auto Add = [](const char* szKey, const char* szValue, const char* szError) {
        QTest::addRow("%s=%s", szKey, szValue)
            << QString::fromLatin1(szKey) << QString::fromUtf8(szValue) << QString::fromLatin1(szError);
    };
    Add("colour", "red", "unknown field 'colour'; give one of: name, ");
    Add("name", "", "a text has 1 to 13 characters");
    Add("name", "fourteen chars", "a text has 1 to 13 characters, and 'fourteen chars' has 14");
    Add("name", "屏幕", "holds other characters than printable ASCII");
    Add("name", "wall ", "ends in a blank");
    Add("maker", "LE", "give three letters A to Z");
    Add("maker", "L1D", "give three letters A to Z");
    Add("product", "65536", "give a number from 0 to 65535");
    Add("product", "-1", "give a number from 0 to 65535");
    Add("product", "", "give a number from 0 to 65535");
    Add("serial", "4294967296", "give a number from 0 to 4294967295");
    Add("date", "1989", "give a year from 1990 to 2245");
    Add("date", "2246", "give a year from 1990 to 2245");
    Add("date", "2020W54", "with a week from 1 to 53");
    Add("date", "2020W0", "with a week from 1 to 53");
    Add("size", "256x10", "give centimetres from 1x1 to 255x255");
    Add("size", "60", "give centimetres from 1x1 to 255x255");
    Add("size", "60x0", "give centimetres from 1x1 to 255x255");
    Add("size", "60.5x34", "give centimetres from 1x1 to 255x255");
    Add("gamma", "0.99", "give a gamma from 1.00 to 3.54");
    Add("gamma", "3.55", "give a gamma from 1.00 to 3.54");
    Add("gamma", "nan", "give a gamma from 1.00 to 3.54");
    Add("primaries", "0.1,0.2;0.3,0.4;0.5,0.6", "coordinates from 0 to 0.9990");
    Add("primaries", "0.1,0.2;0.3,0.4;0.5,0.6;0.7,1", "coordinates from 0 to 0.9990");
    Add("mode", "4096x2160@60", "of at most 4095x4095 and 655.35 MHz");
    Add("mode", "3840x2160@120", "of at most 4095x4095 and 655.35 MHz");
    Add("mode", "1920x1080", "of at most 4095x4095 and 655.35 MHz");
    Add("mode", "1920x1080@inf", "of at most 4095x4095 and 655.35 MHz");
    Add("range", "60-40,30-80,170", "'auto', or VMIN-VMAX");
    Add("range", "40-60,30-80,175", "a clock from 10 to 2550 MHz in steps of 10");
    Add("range", "40-511,30-80,170", "rates from 1 to 510 Hz");
}

void TestEditing::WhatDoesNotFitIsRefused()
{
    QFETCH(QString, key);
    QFETCH(QString, value);
    QFETCH(QString, error);
    QByteArray edid = SampleEdid::Rich();
    const QString strError = Edid::SetValue(edid, key, value);
    QVERIFY2(strError.contains(error), qPrintable(strError));
    QCOMPARE(edid, SampleEdid::Rich());
}

void TestEditing::AutomaticLimitsContainTheModes()
{
    QByteArray edid = SampleEdid::Rich();
    const auto Has = [&] {
        std::vector<Edid::SFinding> vecFindings;
        Edid::Check(reinterpret_cast<const quint8*>(edid.constData()), edid.size(), {}, vecFindings);
        return std::any_of(vecFindings.begin(), vecFindings.end(), [](const Edid::SFinding& finding) {
            return finding.rule == Edid::enRule::enRangeTimings14;
        });
    };
    QVERIFY(Has());
    QCOMPARE(Edid::SetValue(edid, QStringLiteral("range"), QStringLiteral("auto")), QString());
    QVERIFY(!Has());
}

void TestEditing::AWrongChecksumStaysUntilItIsFixed()
{
    QByteArray edid = SampleEdid::Rich();
    edid[127] = char(edid.at(127) + 1);
    const char chBefore = edid.at(127);
    QCOMPARE(Edid::SetValue(edid, QStringLiteral("maker"), QStringLiteral("ABC")), QString());
    QCOMPARE(edid.at(127), chBefore);
    Edid::Fix(edid);
    QVERIFY(HasRightChecksums(edid));
}

void TestEditing::FixMakesEveryChecksumRight()
{
    std::mt19937 random(7);
    for (int i = 0; i < 2000; ++i) {
        QByteArray edid = Noise(random, 1 + i % 4);
        if (edid.size() > 128)
            edid[128] = '\x70';
        Edid::Fix(edid);
        QVERIFY(HasRightChecksums(edid));
        std::vector<Edid::SFinding> vecFindings;
        Edid::Check(reinterpret_cast<const quint8*>(edid.constData()), edid.size(), {}, vecFindings);
        for (const Edid::SFinding& finding : vecFindings)
            QVERIFY(finding.rule != Edid::enRule::enChecksum && finding.rule != Edid::enRule::enHeader &&
                    finding.rule != Edid::enRule::enExtensions &&
                    finding.rule != Edid::enRule::enSectionChecksum);
    }
}

void TestEditing::ExtensionsAreDropped()
{
    QByteArray edid = SampleEdid::Rich();
    Edid::DropExtensions(edid);
    QCOMPARE(edid.size(), 128);
    QCOMPARE(edid.at(0x7E), '\0');
    QVERIFY(HasRightChecksums(edid));
    QCOMPARE(edid.left(0x7E), SampleEdid::Rich().left(0x7E));
}

void TestEditing::AFullBlockTakesNoFurtherText()
{
    QByteArray edid = SampleEdid::Rich();
    QCOMPARE(Edid::SetValue(edid, QStringLiteral("text"), QStringLiteral("more")),
             QStringLiteral("no descriptor is free; the block has room for four"));
    QCOMPARE(edid, SampleEdid::Rich());
}

QTEST_GUILESS_MAIN(TestEditing)
#include "TestEditing.moc"
