#include "simulator/CommonClass/NetworkFacts.h"
#include "tests/simulator/SimulatorTest.h"

#include <QNetworkInterface>
#include <QtEndian>

#include <algorithm>

namespace {

const QByteArray
    c_baHead("Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n");

/// An address as the kernel prints it: the bytes of the address read as a number of this machine.
QByteArray Kernel(const char* szAddress)
{
    const unsigned int nValue = qToBigEndian(*AddressValue(QString::fromLatin1(szAddress)));
    return QByteArray::number(nValue, 16).toUpper().rightJustified(8, '0');
}

QByteArray Route(const char* szDestination, const char* szGateway, const char* szFlags, const char* szMask)
{
    return "eth0\t" + Kernel(szDestination) + '\t' + Kernel(szGateway) + '\t' + szFlags + "\t0\t0\t100\t" +
           Kernel(szMask) + "\t0\t0\t0\n";
}

} // namespace

class TestNetworkFacts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void DefaultGatewaysAreFoundInARoutingTable_data();
    void DefaultGatewaysAreFoundInARoutingTable();
    void TheMachinesOwnAddressesAreFound();
    void AnAddressHasAValueOrNone_data();
    void AnAddressHasAValueOrNone();
};

void TestNetworkFacts::DefaultGatewaysAreFoundInARoutingTable_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QString>("gateways");
    const QByteArray baDefault = Route("0.0.0.0", "192.168.1.254", "0003", "0.0.0.0");
    QTest::newRow("no file") << QByteArray() << QString();
    QTest::newRow("no route") << c_baHead << QString();
    QTest::newRow("a default route") << c_baHead + baDefault << QStringLiteral("192.168.1.254");
    QTest::newRow("the local network")
        << c_baHead + Route("192.168.1.0", "0.0.0.0", "0001", "255.255.255.0") << QString();
    QTest::newRow("a gateway to one network")
        << c_baHead + Route("10.0.0.0", "192.168.1.9", "0003", "255.0.0.0") << QString();
    QTest::newRow("half of the Internet")
        << c_baHead + Route("0.0.0.0", "192.168.1.9", "0003", "128.0.0.0") << QString();
    QTest::newRow("a default route without a gateway")
        << c_baHead + Route("0.0.0.0", "0.0.0.0", "0001", "0.0.0.0") << QString();
    QTest::newRow("two default routes")
        << c_baHead + baDefault + Route("0.0.0.0", "10.9.8.7", "0003", "0.0.0.0")
        << QStringLiteral("192.168.1.254 10.9.8.7");
    QTest::newRow("lines in another form")
        << c_baHead + "eth0\nnonsense line of eight words and one more\n" + baDefault
        << QStringLiteral("192.168.1.254");
}

void TestNetworkFacts::DefaultGatewaysAreFoundInARoutingTable()
{
    QFETCH(QByteArray, table);
    QFETCH(QString, gateways);
    QStringList listFound;
    for (const unsigned int nGateway : DefaultGateways(table))
        listFound.append(AddressText(nGateway));
    QCOMPARE(listFound.join(QLatin1Char(' ')), gateways);
}

void TestNetworkFacts::TheMachinesOwnAddressesAreFound()
{
    const SNetworkFacts facts = MachineNetworkFacts();
    const QList<QHostAddress> listAddresses = QNetworkInterface::allAddresses();
    for (const QHostAddress& address : listAddresses) {
        const unsigned int nAddress = address.toIPv4Address();
        const bool bFound =
            std::any_of(facts.listLocal.cbegin(), facts.listLocal.cend(),
                        [=](const SLocalAddress& local) { return local.nAddress == nAddress; });
        QCOMPARE(bFound, address.protocol() == QAbstractSocket::IPv4Protocol);
    }
}

void TestNetworkFacts::AnAddressHasAValueOrNone_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("good");
    QTest::addColumn<unsigned int>("value");
    const auto Row = [](const char* szName, const char* szText, bool bGood, unsigned int nValue) {
        QTest::newRow(szName) << QString::fromLatin1(szText) << bGood << nValue;
    };
    Row("zeros", "0.0.0.0", true, 0);
    Row("the largest", "255.255.255.255", true, 0xFFFFFFFF);
    Row("the first octet is on top", "1.2.3.4", true, 0x01020304);
    Row("256", "1.2.3.256", false, 0);
    Row("three octets", "1.2.3", false, 0);
    Row("five octets", "1.2.3.4.5", false, 0);
    Row("an empty octet", "1..3.4", false, 0);
    Row("a letter", "1.2.3.a", false, 0);
    Row("a sign", "1.2.3.+4", false, 0);
    Row("a blank", "1.2.3. 4", false, 0);
    Row("nothing", "", false, 0);
}

void TestNetworkFacts::AnAddressHasAValueOrNone()
{
    QFETCH(QString, text);
    QFETCH(bool, good);
    QFETCH(unsigned int, value);
    QCOMPARE(AddressValue(text).has_value(), good);
    QCOMPARE(AddressValue(text).value_or(0), value);
    if (good)
        QCOMPARE(AddressText(value), text);
}

QTEST_GUILESS_MAIN(TestNetworkFacts)
#include "TestNetworkFacts.moc"
