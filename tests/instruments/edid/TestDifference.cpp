#include "instruments/edid/Difference.h"
#include "instruments/edid/Editing.h"
#include "tests/instruments/edid/SampleEdid.h"

#include <QtTest>

class TestDifference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void AnEdidIsNotDifferentFromItself();
    void AFieldIsToldWithBothValues();
    void ValuesThatReadTheSameAreToldByTheirBytes();
    void BlocksOfOneAloneAreTold();
    void EveryByteIsTold();
};

void TestDifference::AnEdidIsNotDifferentFromItself()
{
    QVERIFY(Edid::FieldDifferences(SampleEdid::Rich(), SampleEdid::Rich()).isEmpty());
    QVERIFY(Edid::ByteDifferences(SampleEdid::Rich(), SampleEdid::Rich()).isEmpty());
}

void TestDifference::AFieldIsToldWithBothValues()
{
    QByteArray other = SampleEdid::Rich();
    QCOMPARE(Edid::SetValue(other, QStringLiteral("maker"), QStringLiteral("ABC")), QString());
    const auto vecFields = Edid::FieldDifferences(SampleEdid::Rich(), other);
    QCOMPARE(vecFields.size(), 2);
    QCOMPARE(vecFields[0].strPath, QStringLiteral("Base block / Vendor and product / Maker"));
    QCOMPARE(vecFields[0].strFirst, QStringLiteral("LED"));
    QCOMPARE(vecFields[0].strSecond, QStringLiteral("ABC"));
    QCOMPARE(vecFields[0].nFirstOffset, 8);
}

void TestDifference::ValuesThatReadTheSameAreToldByTheirBytes()
{
    QByteArray other = SampleEdid::Rich();
    QCOMPARE(Edid::SetValue(other, QStringLiteral("maker"), QStringLiteral("ABC")), QString());
    const auto vecFields = Edid::FieldDifferences(SampleEdid::Rich(), other);
    QVERIFY(vecFields[1].strFirst.startsWith(QLatin1String("right (")));
    QVERIFY(vecFields[1].strFirst != vecFields[1].strSecond);
}

void TestDifference::BlocksOfOneAloneAreTold()
{
    const auto vecFields = Edid::FieldDifferences(SampleEdid::Rich().left(128), SampleEdid::Rich());
    QVERIFY(vecFields.size() > 50);
    QCOMPARE(vecFields.constFirst().nFirstOffset, -1);
    QCOMPARE(vecFields.constFirst().nSecondOffset, 0x80);
}

void TestDifference::EveryByteIsTold()
{
    const auto vecBytes = Edid::ByteDifferences(QByteArray(128, '\0'), QByteArray(256, '\1'));
    QCOMPARE(vecBytes.size(), 256);
    QCOMPARE(vecBytes[0].nFirst, 0);
    QCOMPARE(vecBytes[255].nFirst, -1);
    QCOMPARE(vecBytes[255].nSecond, 1);
}

QTEST_APPLESS_MAIN(TestDifference)
#include "TestDifference.moc"
