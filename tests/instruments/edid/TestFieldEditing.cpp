#include "instruments/edid/Checksum.h"
#include "instruments/edid/DisplayIdLayout.h"
#include "instruments/edid/Editing.h"
#include "instruments/edid/FieldEditing.h"
#include "instruments/edid/FieldText.h"
#include "tests/instruments/edid/SampleEdid.h"

#include <QtTest>

#include <algorithm>

using Edid::SField;

namespace {

const quint8* BytesOf(const QByteArray& edid)
{
    return reinterpret_cast<const quint8*>(edid.constData());
}

std::vector<SField> FieldsOf(const QByteArray& edid)
{
    std::vector<SField> vecFields;
    Edid::Explain(BytesOf(edid), edid.size(), vecFields);
    return vecFields;
}

/// The first field with a label; one without a type when there is none.
SField FindField(const QByteArray& edid, const QString& strLabel)
{
    const std::vector<SField> vecFields = FieldsOf(edid);
    const auto HasLabel = [&](const SField& field) { return Edid::LabelText(field) == strLabel; };
    const auto it = std::find_if(vecFields.begin(), vecFields.end(), HasLabel);
    return it == vecFields.end() ? SField{} : *it;
}

QString ValueOf(const QByteArray& edid, const QString& strLabel)
{
    const SField field = FindField(edid, strLabel);
    return field.pType == nullptr ? QStringLiteral("no such field")
                                  : Edid::ValueText(field, BytesOf(edid), {});
}

bool HasRightChecksum(const QByteArray& edid, int nBlock)
{
    return quint8(edid.at(nBlock + Edid::c_nChecksumOffset)) == Edid::Checksum(BytesOf(edid) + nBlock);
}

} // namespace

class TestFieldEditing : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AFieldTakesAValue_data();
    void AFieldTakesAValue();
    void WhatDoesNotFitIsRefused_data();
    void WhatDoesNotFitIsRefused();
    void TheTextOfEveryFieldLeavesItAsItIs();
    void OnlyTheBytesOfTheFieldChange();
    void AChecksumFollowsWhenItWasRight();
    void ASectionsChecksumFollowsToo();
    void CalculatedValuesAndChecksumsAreNotEditable_data();
    void CalculatedValuesAndChecksumsAreNotEditable();
};

void TestFieldEditing::AFieldTakesAValue_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("shown");
    const auto Add = [](const char* szLabel, const char* szValue, const char* szShown) {
        QTest::addRow("%s: %s", szLabel, szValue)
            << QString::fromUtf8(szLabel) << QString::fromUtf8(szValue) << QString::fromUtf8(szShown);
    };
    Add("Maker", "XYZ", "XYZ");
    Add("Product code", "4660", "0x1234");
    Add("Product code", "0xABCD", "0xabcd");
    Add("Serial number", "4294967295", "4294967295");
    Add("Week", "12", "12");
    Add("Week", "0", "not given");
    Add("Year of manufacture", "2026", "2026");
    Add("Gamma", "2.4", "2.40");
    Add("Red x", "0.64", "0.6396");
    Add("Bits per primary", "3", "10");
    Add("Stand-by", "1", "yes");
    Add("1024x768 at 60.004 Hz (DMT 0x10)", "0", "no");
    Add("Standard timing 1", "1280x1024@60", "1280x1024 at 60 Hz, DMT 0x23");
    Add("Standard timing 1", "", "unused");
    Add("Detailed timing 1", "1280x720@60", "1280x720 at 59.998 Hz");
    Add("Pixel clock", "148.5", "148.50 MHz");
    Add("Horizontal active", "4095", "4095 pixels");
    Add("Name", "Lobby", "Lobby");
    Add("Name", "thirteen char", "thirteen char");
    Add("Highest vertical rate", "75", "75 Hz");
    Add("Header", "00ff00ff00ff00ff", "00 FF 00 FF 00 FF 00 FF");
    Add("Video code 1", "97", "VIC 97, 3840x2160 at 60 Hz, 16:9");
    Add("Channels", "8", "8");
    Add("Highest TMDS clock", "340", "340 MHz");
}

void TestFieldEditing::AFieldTakesAValue()
{
    QFETCH(QString, label);
    QFETCH(QString, value);
    QFETCH(QString, shown);
    QByteArray edid = SampleEdid::Rich();
    const SField field = FindField(edid, label);
    QVERIFY(field.pType != nullptr);
    QCOMPARE(Edid::SetField(edid, field, value), QString());
    QCOMPARE(ValueOf(edid, label), shown);
}

void TestFieldEditing::WhatDoesNotFitIsRefused_data()
{
    QTest::addColumn<QString>("label");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("error");
    const auto Add = [](const char* szLabel, const char* szValue, const char* szError) {
        QTest::addRow("%s: %s", szLabel, szValue)
            << QString::fromUtf8(szLabel) << QString::fromUtf8(szValue) << QString::fromUtf8(szError);
    };
    Add("Maker", "AB", "three letters A to Z");
    Add("Maker", "abc", "three letters A to Z");
    Add("Product code", "65536", "a number from 0 to 65535, or 0xffff");
    Add("Product code", "-1", "a number from 0 to 65535");
    Add("Serial number", "4294967296", "a number from 0 to 4294967295");
    Add("Week", "55", "a week from 1 to 54");
    Add("Year of manufacture", "1989", "a number from 1990 to 2245");
    Add("Gamma", "3.55", "a number from 1.00 to 3.54 in steps of 0.01");
    Add("Gamma", "nan", "a number from 1.00 to 3.54");
    Add("Red x", "1", "a number from 0.0000 to 0.9990");
    Add("Pixel clock", "655.36", "a number from 0.01 to 655.35 in steps of 0.01");
    Add("Pixel clock", "148.505", "in steps of 0.01");
    Add("Pixel clock", "0", "a number from 0.01");
    Add("Horizontal active", "4096", "a number from 0 to 4095");
    Add("Horizontal active", "wide", "'wide' does not fit");
    Add("Standard timing 1", "1281x1024@60", "a width from 256 to 2288 in steps of 8");
    Add("Standard timing 1", "1280x1024@124", "a rate from 60 to 123");
    Add("Detailed timing 1", "4096x2160@60", "at most 4095x4095 and 655.35 MHz");
    Add("Detailed timing 1", "1920", "WIDTHxHEIGHT@RATE");
    Add("Name", "", "a text has 1 to 13 characters");
    Add("Name", "fourteen chars", "and 'fourteen chars' has 14");
    Add("Name", "大厅", "other characters than printable ASCII");
    Add("Header", "00ff", "8 bytes of two hexadecimal digits each");
    Add("Header", "zzffffffffffff00", "8 bytes of two hexadecimal digits each");
    Add("Highest TMDS clock", "341", "a number from 0 to 1275 in steps of 5");
}

void TestFieldEditing::WhatDoesNotFitIsRefused()
{
    QFETCH(QString, label);
    QFETCH(QString, value);
    QFETCH(QString, error);
    const QByteArray before = SampleEdid::Rich();
    QByteArray edid = before;
    const SField field = FindField(edid, label);
    QVERIFY(field.pType != nullptr);
    const QString strError = Edid::SetField(edid, field, value);
    QVERIFY2(strError.contains(error), qPrintable(strError));
    QCOMPARE(edid, before);
}

void TestFieldEditing::TheTextOfEveryFieldLeavesItAsItIs()
{
    const QByteArray before = SampleEdid::Rich();
    for (const SField& field : FieldsOf(before)) {
        if (!Edid::IsEditable(field))
            continue;
        QByteArray edid = before;
        QCOMPARE(Edid::SetField(edid, field, Edid::EditText(field, BytesOf(before))), QString());
        QVERIFY2(edid == before, qPrintable(Edid::LabelText(field)));
    }
}

void TestFieldEditing::OnlyTheBytesOfTheFieldChange()
{
    const QByteArray before = SampleEdid::Rich();
    const int nSectionChecksum = FindField(before, QStringLiteral("Checksum of the section")).nOffset;
    for (const SField& field : FieldsOf(before)) {
        if (!Edid::HasChoices(field))
            continue;
        QByteArray edid = before;
        QCOMPARE(Edid::SetField(edid, field, QString::number(field.nRaw == 0 ? 1 : 0)), QString());
        QVector<int> vecAllowed = Edid::FieldOffsets(field);
        vecAllowed.append(field.nOffset / c_nEdidBlockSize * c_nEdidBlockSize + Edid::c_nChecksumOffset);
        vecAllowed.append(nSectionChecksum);
        for (int i = 0; i < edid.size(); ++i)
            QVERIFY2(edid.at(i) == before.at(i) || vecAllowed.contains(i),
                     qPrintable(Edid::LabelText(field)));
    }
}

void TestFieldEditing::AChecksumFollowsWhenItWasRight()
{
    QByteArray edid = SampleEdid::Rich();
    QCOMPARE(Edid::SetField(edid, FindField(edid, QStringLiteral("Maker")), QStringLiteral("AAA")),
             QString());
    QVERIFY(HasRightChecksum(edid, 0));
    edid[Edid::c_nChecksumOffset] = char(edid[Edid::c_nChecksumOffset] + 1);
    QCOMPARE(Edid::SetField(edid, FindField(edid, QStringLiteral("Maker")), QStringLiteral("BBB")),
             QString());
    QVERIFY(!HasRightChecksum(edid, 0));
}

void TestFieldEditing::ASectionsChecksumFollowsToo()
{
    QByteArray edid = SampleEdid::Rich();
    const QByteArray before = edid;
    const SField field = FindField(edid, QStringLiteral("Type I timing 1"));
    QVERIFY(field.pType != nullptr);
    QCOMPARE(Edid::SetField(edid, field, QStringLiteral("7680x1080@60")), QString());
    QVERIFY(edid != before);
    QByteArray fixed = edid;
    Edid::Fix(fixed);
    QCOMPARE(fixed, edid);
}

void TestFieldEditing::CalculatedValuesAndChecksumsAreNotEditable_data()
{
    QTest::addColumn<QString>("label");
    for (const char* szLabel : {"Base block", "Checksum", "Covers", "Temperature of the white", "Line rate",
                                "Modeline", "Chromaticity"})
        QTest::newRow(szLabel) << QString::fromLatin1(szLabel);
}

void TestFieldEditing::CalculatedValuesAndChecksumsAreNotEditable()
{
    QFETCH(QString, label);
    QByteArray edid = SampleEdid::Rich();
    const SField field = FindField(edid, label);
    QVERIFY(field.pType != nullptr);
    QVERIFY(!Edid::IsEditable(field));
    QVERIFY(!Edid::SetField(edid, field, QStringLiteral("1")).isEmpty());
}

QTEST_GUILESS_MAIN(TestFieldEditing)
#include "TestFieldEditing.moc"
