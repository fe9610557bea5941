#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/addressing/CustomAddProcessorDlg.h"
#include "SenderModuleDialog/addressing/SetIPOfflineDlg.h"
#include "host/OrviControl/CustomIPEdit.h"
#include "simulator/CommonClass/Simulator.h"
#include "tests/support/Controls.h"
#include "tests/support/ModalAnswers.h"
#include "tests/support/NetworkNamespace.h"

#include <QApplication>
#include <QtTest>

#include <cstdio>

namespace {

constexpr int c_nBatch = -1;

/// A network that a computer may stand in.
struct SNetwork
{
    QList<STestInterface> listInterfaces;
    QStringList listGateways;
};

SNetwork Office()
{
    return {{{QStringLiteral("lan0"), {QStringLiteral("192.168.7.20/24")}}}, {QStringLiteral("192.168.7.1")}};
}

SNetwork Stage()
{
    return {{{QStringLiteral("wall0"), {QStringLiteral("10.20.0.5/16")}},
             {QStringLiteral("wall1"), {QStringLiteral("172.16.4.9/30")}}},
            {QStringLiteral("172.16.4.10")}};
}

QString Proposal(const QWidget& dialog)
{
    return Control<CCustomIPEdit>(dialog, "address").text();
}

} // namespace

Q_DECLARE_METATYPE(SNetwork)

/// The address dialogs on the simulated host in networks that the kernel really has.
class TestAddressDialogsInNetworks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void TheDialogsProposeByTheNetwork_data();
    void TheDialogsProposeByTheNetwork();
    void TheDialogsRefuseByTheNetwork_data();
    void TheDialogsRefuseByTheNetwork();
    void ABatchSkipsTheBroadcastAddressOfTheNetwork();
};

void TestAddressDialogsInNetworks::init()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
    CSimulator::Instance().Document().NewProject();
    CSimulator::Instance().Addresses().SetNetworkFacts(MachineNetworkFacts);
}

void TestAddressDialogsInNetworks::TheDialogsProposeByTheNetwork_data()
{
    QTest::addColumn<SNetwork>("wanted");
    QTest::addColumn<QStringList>("detected");
    QTest::addColumn<QString>("batch");
    QTest::addColumn<QString>("byHand");
    QTest::newRow("office: next to the own address") << Office() << QStringList() << "192.168.7.21"
                                                     << "192.168.7.21";
    QTest::newRow("stage: next to the first address") << Stage() << QStringList() << "10.20.0.6"
                                                      << "10.20.0.6";
    QTest::newRow(
        "stage, processors found behind the second interface: behind its gateway and broadcast address")
        << Stage() << QStringList{QStringLiteral("172.16.4.77")} << "172.16.4.12"
        << "10.20.0.6";
    QTest::newRow("stage, processors found in another network: from loopback")
        << Stage() << QStringList{QStringLiteral("10.99.0.1")} << "127.0.0.2"
        << "10.20.0.6";
    QTest::newRow("no network: from loopback") << SNetwork() << QStringList() << "127.0.0.2"
                                               << "127.0.0.2";
}

void TestAddressDialogsInNetworks::TheDialogsProposeByTheNetwork()
{
    QFETCH(SNetwork, wanted);
    QFETCH(QStringList, detected);
    const CNetworkNamespace network(wanted.listInterfaces, wanted.listGateways);
    QVERIFY2(network.IsReady(), qPrintable(network.Problem()));
    CSimulator::Instance().Document().Change(
        [&](SSimulatedProject& project) { project.addressing.listDetected = detected; });
    const CSetIPOfflineDlg dialogBatch(0, c_nBatch, true, false, nullptr);
    QTEST(Proposal(dialogBatch), "batch");
    const CCustomAddProcessorDlg dialogByHand(nullptr);
    QTEST(Proposal(dialogByHand), "byHand");
}

void TestAddressDialogsInNetworks::TheDialogsRefuseByTheNetwork_data()
{
    QTest::addColumn<SNetwork>("wanted");
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("message");
    QTest::newRow("office: gateway") << Office() << "192.168.7.1"
                                     << "IP地址与默认网关相同。";
    QTest::newRow("office: broadcast") << Office() << "192.168.7.255"
                                       << "IP地址是广播地址。";
    QTest::newRow("office: network") << Office() << "192.168.7.0"
                                     << "IP地址不合理。";
    QTest::newRow("office: first octet 0") << Office() << "0.1.2.3"
                                           << "IP地址不能以0开头。";
    QTest::newRow("office: own address")
        << Office() << "192.168.7.20"
        << "输入的IP地址和本机电脑的IP地址相同，会导致网络连接探测失败，是否继续？";
    QTest::newRow("stage: gateway") << Stage() << "172.16.4.10"
                                    << "IP地址与默认网关相同。";
    QTest::newRow("stage: broadcast of the wide network") << Stage() << "10.20.255.255"
                                                          << "IP地址是广播地址。";
    QTest::newRow("stage: broadcast of the small network") << Stage() << "172.16.4.11"
                                                           << "IP地址是广播地址。";
}

void TestAddressDialogsInNetworks::TheDialogsRefuseByTheNetwork()
{
    QFETCH(SNetwork, wanted);
    QFETCH(QString, address);
    QFETCH(QString, message);
    const CNetworkNamespace network(wanted.listInterfaces, wanted.listGateways);
    QVERIFY2(network.IsReady(), qPrintable(network.Problem()));
    CSetIPOfflineDlg dialog(0, c_nBatch, true, false, nullptr);
    Control<CCustomIPEdit>(dialog, "address").setText(address);
    CModalAnswers answers;
    answers.Plan(4);
    QVERIFY(!dialog.DoCustomAdd());
    QCOMPARE(answers.Texts(), QStringList{message});
    QVERIFY(CSimulator::Instance().Project().addresses.listStored.isEmpty());
}

void TestAddressDialogsInNetworks::ABatchSkipsTheBroadcastAddressOfTheNetwork()
{
    const SNetwork office = Office();
    const CNetworkNamespace network(office.listInterfaces, office.listGateways);
    QVERIFY2(network.IsReady(), qPrintable(network.Problem()));
    CSetIPOfflineDlg dialog(0, c_nBatch, true, false, nullptr);
    Control<CCustomIPEdit>(dialog, "address").setText(QStringLiteral("192.168.7.250"));
    QVERIFY(dialog.DoCustomAdd());
    const QStringList listStored = CSimulator::Instance().Project().addresses.listStored;
    QCOMPARE(listStored.size(), 16);
    QVERIFY(listStored.contains(QStringLiteral("192.168.7.254()")));
    QVERIFY(!listStored.contains(QStringLiteral("192.168.7.255()")));
    QVERIFY(listStored.contains(QStringLiteral("192.168.8.1()")));
}

int main(int argc, char* argv[])
{
    const QString strWhyNot = CNetworkNamespace::WhyNot();
    if (!strWhyNot.isEmpty()) {
        std::printf("skipped: no network of the test's own can be made here (%s)\n", qPrintable(strWhyNot));
        return CNetworkNamespace::c_nSkipped;
    }
    const QApplication application(argc, argv);
    TestAddressDialogsInNetworks test;
    return QTest::qExec(&test, argc, argv);
}

#include "TestAddressDialogsInNetworks.moc"
