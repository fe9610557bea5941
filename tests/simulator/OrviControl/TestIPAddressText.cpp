#include "simulator/OrviControl/IPAddressText.h"

#include <QtTest>

class TestIPAddressText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Canonical_data();
    void Canonical();
    void CanGrow_data();
    void CanGrow();
    void Split_data();
    void Split();
    void Parse_data();
    void Parse();
    void EveryAddressSplitsAndJoinsBack();
};

void TestIPAddressText::Canonical_data()
{
    QTest::addColumn<QString>("strDigits");
    QTest::addColumn<bool>("bTaken");
    QTest::addColumn<QString>("strOctet");
    QTest::newRow("empty stays empty") << QString() << true << QString();
    QTest::newRow("zero") << QStringLiteral("0") << true << QStringLiteral("0");
    QTest::newRow("largest") << QStringLiteral("255") << true << QStringLiteral("255");
    QTest::newRow("one above the largest") << QStringLiteral("256") << false << QString();
    QTest::newRow("leading zeros are dropped") << QStringLiteral("007") << true << QStringLiteral("7");
    QTest::newRow("sign") << QStringLiteral("-1") << false << QString();
    QTest::newRow("letter") << QStringLiteral("1a") << false << QString();
    QTest::newRow("beyond int") << QStringLiteral("99999999999") << false << QString();
}

void TestIPAddressText::Canonical()
{
    QFETCH(QString, strDigits);
    QFETCH(bool, bTaken);
    QFETCH(QString, strOctet);
    const auto result = IPAddressText::Canonical(strDigits);
    QCOMPARE(result.has_value(), bTaken);
    if (bTaken)
        QCOMPARE(*result, strOctet);
}

void TestIPAddressText::CanGrow_data()
{
    QTest::addColumn<QString>("strOctet");
    QTest::addColumn<bool>("bExpected");
    QTest::newRow("empty") << QString() << true;
    QTest::newRow("zero takes no second digit") << QStringLiteral("0") << false;
    QTest::newRow("one digit") << QStringLiteral("9") << true;
    QTest::newRow("25 can become 250 to 255") << QStringLiteral("25") << true;
    QTest::newRow("26 cannot grow") << QStringLiteral("26") << false;
    QTest::newRow("three digits") << QStringLiteral("100") << false;
}

void TestIPAddressText::CanGrow()
{
    QFETCH(QString, strOctet);
    QTEST(IPAddressText::CanGrow(strOctet), "bExpected");
}

void TestIPAddressText::Split_data()
{
    QTest::addColumn<QString>("strAddress");
    QTest::addColumn<QString>("strShown");
    const auto Row = [](const char* szName, const char* szAddress, const char* szShown) {
        QTest::newRow(szName) << QString::fromLatin1(szAddress) << QString::fromLatin1(szShown);
    };
    Row("whole address", "192.168.1.10", "192.168.1.10");
    Row("empty", "", "");
    Row("holes stay", "1..3.", "1..3.");
    Row("first octet alone", "10", "10...");
    Row("above 255 becomes 255", "300.1.2.999", "255.1.2.255");
    Row("words are left out", "a.b.c.d", "");
    Row("a fifth octet is dropped", "1.2.3.4.5", "1.2.3.4");
    Row("leading zeros are dropped", "010.001.000.07", "10.1.0.7");
}

void TestIPAddressText::Split()
{
    QFETCH(QString, strAddress);
    QTEST(IPAddressText::Join(IPAddressText::Split(strAddress)), "strShown");
}

void TestIPAddressText::Parse_data()
{
    QTest::addColumn<QString>("strPasted");
    QTest::addColumn<bool>("bTaken");
    QTest::addColumn<QString>("strShown");
    const auto Row = [](const char* szName, const QString& strPasted, bool bTaken, const char* szShown) {
        QTest::newRow(szName) << strPasted << bTaken << QString::fromLatin1(szShown);
    };
    Row("whole address", QStringLiteral("192.168.1.10"), true, "192.168.1.10");
    Row("blanks and line end around it", QStringLiteral("  10.0.0.1\n"), true, "10.0.0.1");
    Row("Chinese full stops", QStringLiteral("10。0。0。1"), true, "10.0.0.1");
    Row("two octets", QStringLiteral("192.168"), true, "192.168..");
    Row("out of range", QStringLiteral("192.168.1.256"), false, "");
    Row("five octets", QStringLiteral("1.2.3.4.5"), false, "");
    Row("a hole", QStringLiteral("1..3.4"), false, "");
    Row("a name", QStringLiteral("localhost"), false, "");
    Row("nothing", QString(), false, "");
}

void TestIPAddressText::Parse()
{
    QFETCH(QString, strPasted);
    QFETCH(bool, bTaken);
    const auto arrOctets = IPAddressText::Parse(strPasted);
    QCOMPARE(arrOctets.has_value(), bTaken);
    if (bTaken)
        QTEST(IPAddressText::Join(*arrOctets), "strShown");
}

void TestIPAddressText::EveryAddressSplitsAndJoinsBack()
{
    for (int i = 0; i <= IPAddressText::c_nMaxOctet; ++i) {
        const QString strAddress =
            QStringLiteral("%1.%2.%3.%4").arg(i).arg(255 - i).arg((i * 7) % 256).arg((i * 31) % 256);
        QCOMPARE(IPAddressText::Join(IPAddressText::Split(strAddress)), strAddress);
        QVERIFY(IPAddressText::Parse(strAddress).has_value());
        QCOMPARE(IPAddressText::Join(*IPAddressText::Parse(strAddress)), strAddress);
    }
}

QTEST_GUILESS_MAIN(TestIPAddressText)
#include "TestIPAddressText.moc"
