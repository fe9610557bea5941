#include "SenderModuleDialog/SenderModuleDialogInit.h"
#include "SenderModuleDialog/addressing/AddressGenerators.h"
#include "simulator/CommonClass/AddressText.h"
#include "simulator/CommonClass/Simulator.h"
#include "workbench/addresses/AddressEditor.h"
#include "workbench/addresses/AddressPage.h"
#include "workbench/addresses/HandAddition.h"

#include <QHostAddress>
#include <QNetworkInterface>
#include <QSignalSpy>
#include <QtTest>

#include <algorithm>

namespace {

/// Addresses that the dialog's search tries until it is back at one that it has tried.
QList<unsigned int> TriedBySearch(unsigned int nBase)
{
    QList<unsigned int> listTried;
    AddressGenerators::FirstFreeAfter(nBase, [&listTried](unsigned int nIP) {
        // Two rounds visit everything; then one is free, so that the search ends.
        listTried.append(nIP);
        return listTried.size() < 600;
    });
    std::sort(listTried.begin(), listTried.end());
    listTried.erase(std::unique(listTried.begin(), listTried.end()), listTried.end());
    return listTried;
}

SNetworkFacts EveryAddressIsAGateway()
{
    SNetworkFacts facts;
    for (const QHostAddress& address : QNetworkInterface::allAddresses())
        facts.listGateways.append(HandAddition::Candidates(address.toIPv4Address()));
    facts.listGateways.append(
        HandAddition::Candidates(QHostAddress(QHostAddress::LocalHost).toIPv4Address()));
    return facts;
}

void FillTheList(int nCount)
{
    CSimulator::Instance().Document().Change([nCount](SSimulatedProject& project) {
        SAddressLists& lists = project.addresses;
        for (int i = 0; i < nCount; ++i)
            lists.listStored.append(QStringLiteral("10.99.%1.%2()").arg(i / 200).arg(i % 200 + 1));
        lists.listOriginal = lists.listCurSet = lists.listStored;
    });
}

} // namespace

class TestHandAddition : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void TheCandidatesAreThoseOfTheDialogsSearch_data();
    void TheCandidatesAreThoseOfTheDialogsSearch();
    void AFullListIsAnObstacle_data();
    void AFullListIsAnObstacle();
    void WithoutAFreeAddressThereIsAnObstacle();
    void WithoutAddressesTheListDoesNotMatter_data();
    void WithoutAddressesTheListDoesNotMatter();
    void ThePageSaysWhyInsteadOfOpeningTheDialog();
};

void TestHandAddition::initTestCase()
{
    SenderModuleDialogInit(CSimulator::Instance().Label());
}

void TestHandAddition::init()
{
    CSimulator::Instance().Document().NewProject();
    CSimulator::Instance().Addresses().SetNetworkFacts([] { return SNetworkFacts(); });
}

void TestHandAddition::TheCandidatesAreThoseOfTheDialogsSearch_data()
{
    QTest::addColumn<QString>("base");
    for (const char* szBase : {"192.168.1.17", "10.0.0.253", "10.0.255.200", "172.16.3.255", "127.0.0.1"})
        QTest::newRow(szBase) << QString::fromLatin1(szBase);
}

void TestHandAddition::TheCandidatesAreThoseOfTheDialogsSearch()
{
    QFETCH(QString, base);
    const unsigned int nBase = *AddressValue(base);
    QList<unsigned int> listCandidates = HandAddition::Candidates(nBase);
    std::sort(listCandidates.begin(), listCandidates.end());
    QCOMPARE(listCandidates, TriedBySearch(nBase));
}

void TestHandAddition::AFullListIsAnObstacle_data()
{
    QTest::addColumn<int>("listed");
    QTest::addColumn<bool>("obstacle");
    QTest::newRow("empty") << 0 << false;
    QTest::newRow("room for one") << 254 << false;
    QTest::newRow("full") << 255 << true;
}

void TestHandAddition::AFullListIsAnObstacle()
{
    QFETCH(int, listed);
    FillTheList(listed);
    QTEST(!HandAddition::Obstacle().isEmpty(), "obstacle");
}

void TestHandAddition::WithoutAFreeAddressThereIsAnObstacle()
{
    CSimulator::Instance().Addresses().SetNetworkFacts(EveryAddressIsAGateway);
    QVERIFY(HandAddition::Obstacle().contains(QStringLiteral("没有空闲的地址")));
}

void TestHandAddition::WithoutAddressesTheListDoesNotMatter_data()
{
    QTest::addColumn<bool>("addressMode");
    QTest::addColumn<int>("strategy");
    QTest::newRow("not addressed by IP") << false << 2;
    QTest::newRow("another way of detecting") << true << 1;
}

void TestHandAddition::WithoutAddressesTheListDoesNotMatter()
{
    QFETCH(bool, addressMode);
    QFETCH(int, strategy);
    FillTheList(255);
    CSimulator::Instance().Document().Change([&](SSimulatedProject& project) {
        project.addressing.bIPAddressMode = addressMode;
        project.addressing.nDetectStrategy = strategy;
    });
    QVERIFY(HandAddition::Obstacle().isEmpty());
}

void TestHandAddition::ThePageSaysWhyInsteadOfOpeningTheDialog()
{
    CSimulator::Instance().Addresses().SetNetworkFacts(EveryAddressIsAGateway);
    CAddressPage page([] { return true; });
    QSignalSpy spyFailed(&page, &CWorkbenchPage::Failed);
    page.Editor().AddByHand();
    QCOMPARE(spyFailed.count(), 1);
    QCOMPARE(spyFailed.first().first().toString(), HandAddition::Obstacle());
}

QTEST_MAIN(TestHandAddition)
#include "TestHandAddition.moc"
