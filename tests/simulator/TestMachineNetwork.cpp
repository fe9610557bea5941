#include "host/TevraData/ConfigData.h"
#include "tests/simulator/SimulatorTest.h"
#include "tests/support/NetworkNamespace.h"

#include <cstdio>

/// The rules for addresses in networks that the kernel really has.
class TestMachineNetwork : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheVerdictsFollowTheNetwork_data();
    void TheVerdictsFollowTheNetwork();
    void AnAddressThatComesLaterIsKnownAfterARefresh();
    void WithoutANetworkLoopbackIsLeft();
};

namespace {

unsigned int Code(const char* szAddress)
{
    unsigned int nCode = 0;
    GetConfigData()->IsIPHasError(*AddressValue(QString::fromLatin1(szAddress)), &nCode, false);
    return nCode;
}

/// What a test network is made of.
struct STestNetwork
{
    QList<STestInterface> listInterfaces;
    QStringList listGateways;
};

STestNetwork Office()
{
    return {{{QStringLiteral("lan0"), {QStringLiteral("192.168.7.20/24")}}}, {QStringLiteral("192.168.7.1")}};
}

/// Two interfaces; the broadcast address of one is not that of its mask; the last address has no network.
STestNetwork Stage()
{
    return {{{QStringLiteral("wall0"), {QStringLiteral("10.20.0.5/16 brd 10.20.200.255")}},
             {QStringLiteral("wall1"), {QStringLiteral("172.16.4.9/30"), QStringLiteral("172.30.0.1/32")}}},
            {QStringLiteral("10.20.9.9"), QStringLiteral("172.16.4.10")}};
}

} // namespace

Q_DECLARE_METATYPE(STestNetwork)

void TestMachineNetwork::init()
{
    FreshSimulator().Addresses().SetNetworkFacts(MachineNetworkFacts);
}

void TestMachineNetwork::TheVerdictsFollowTheNetwork_data()
{
    QTest::addColumn<STestNetwork>("wanted");
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<unsigned int>("expected");
    const auto Row = [](const char* szName, const STestNetwork& network, const char* szAddress,
                        unsigned int nExpected) {
        QTest::newRow(szName) << network << QByteArray(szAddress) << nExpected;
    };
    Row("office: own address", Office(), "192.168.7.20", 0xE0832000);
    Row("office: gateway", Office(), "192.168.7.1", 0xE0832003);
    Row("office: broadcast", Office(), "192.168.7.255", 0xE0832004);
    Row("office: network", Office(), "192.168.7.0", 0xE0832005);
    Row("office: a free neighbour", Office(), "192.168.7.21", 0);
    Row("office: nothing of the stage", Office(), "10.20.9.9", 0);
    Row("stage: own address on the first interface", Stage(), "10.20.0.5", 0xE0832000);
    Row("stage: own address on the second interface", Stage(), "172.16.4.9", 0xE0832000);
    Row("stage: own address without a network", Stage(), "172.30.0.1", 0xE0832000);
    Row("stage: first gateway", Stage(), "10.20.9.9", 0xE0832003);
    Row("stage: second gateway", Stage(), "172.16.4.10", 0xE0832003);
    Row("stage: broadcast as the interface states it", Stage(), "10.20.200.255", 0xE0832004);
    Row("stage: broadcast of the mask", Stage(), "10.20.255.255", 0xE0832004);
    Row("stage: broadcast of the small network", Stage(), "172.16.4.11", 0xE0832004);
    Row("stage: the small network itself", Stage(), "172.16.4.8", 0xE0832005);
    Row("stage: 255 inside a /16 is an ordinary host", Stage(), "10.20.7.255", 0);
    Row("stage: the neighbour of an address without a network", Stage(), "172.30.0.2", 0);
    Row("stage: nothing of the office", Stage(), "192.168.7.255", 0);
}

void TestMachineNetwork::TheVerdictsFollowTheNetwork()
{
    QFETCH(STestNetwork, wanted);
    QFETCH(QByteArray, address);
    QFETCH(unsigned int, expected);
    const CNetworkNamespace network(wanted.listInterfaces, wanted.listGateways);
    QVERIFY2(network.IsReady(), qPrintable(network.Problem()));
    GetConfigData()->UpdateErrorIPList();
    QCOMPARE(Code(address.constData()), expected);
}

void TestMachineNetwork::AnAddressThatComesLaterIsKnownAfterARefresh()
{
    const STestNetwork office = Office();
    const CNetworkNamespace network(office.listInterfaces, office.listGateways);
    QVERIFY2(network.IsReady(), qPrintable(network.Problem()));
    GetConfigData()->UpdateErrorIPList();
    QCOMPARE(Code("10.20.0.5"), 0U);
    const STestNetwork stage = Stage();
    const CNetworkNamespace networkNext(stage.listInterfaces, stage.listGateways);
    QVERIFY2(networkNext.IsReady(), qPrintable(networkNext.Problem()));
    QCOMPARE(Code("10.20.0.5"), 0U);
    GetConfigData()->UpdateErrorIPList();
    QCOMPARE(Code("10.20.0.5"), 0xE0832000U);
}

void TestMachineNetwork::WithoutANetworkLoopbackIsLeft()
{
    const CNetworkNamespace network;
    QVERIFY2(network.IsReady(), qPrintable(network.Problem()));
    GetConfigData()->UpdateErrorIPList();
    QCOMPARE(Code("127.0.0.1"), 0xE0832000U);
    QCOMPARE(Code("127.0.0.2"), 0U);
    QCOMPARE(CSimulator::Instance().Addresses().NetworkFacts().listLocal.size(), 1);
    QVERIFY(CSimulator::Instance().Addresses().NetworkFacts().listGateways.isEmpty());
}

int main(int nArguments, char** arrArguments)
{
    const QString strWhyNot = CNetworkNamespace::WhyNot();
    if (!strWhyNot.isEmpty()) {
        std::printf("skipped: no network of the test's own can be made here (%s)\n", qPrintable(strWhyNot));
        return CNetworkNamespace::c_nSkipped;
    }
    QCoreApplication application(nArguments, arrArguments);
    TestMachineNetwork test;
    return QTest::qExec(&test, nArguments, arrArguments);
}

#include "TestMachineNetwork.moc"
