#include "host/TevraData/ConfigData.h"
#include "host/TevraData/RuntimeData.h"
#include "simulator/CommonClass/ProjectFile.h"
#include "tests/simulator/SimulatorTest.h"

#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}

unsigned int Value(const char* szAddress)
{
    return *AddressValue(QString::fromLatin1(szAddress));
}

unsigned int Code(const char* szAddress)
{
    unsigned int nCode = 0;
    GetConfigData()->IsIPHasError(Value(szAddress), &nCode, false);
    return nCode;
}

QStringList StoredList()
{
    QStringList listStored;
    GetConfigData()->GetSpecifiedIPs(listStored);
    return listStored;
}

} // namespace

class TestAddresses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void EachAddressEarnsItsCode_data();
    void EachAddressEarnsItsCode();
    void AGoodAddressClearsTheCode();
    void TheCodeMayBeLeftOut();
    void AnAddressInUseIsRefusedBeforeTheQuestionIsAsked();
    void NetworksOfOneOrTwoAddressesHaveNoEnds_data();
    void NetworksOfOneOrTwoAddressesHaveNoEnds();
    void TheFactsAreAskedForOnRefreshAlone();
    void AnAddedAddressIsInUseAtOnce();
    void AnAddedEntryStandsInAllThreeLists();
    void ReplacingAnEntryTouchesItsListAlone();
    void AnAddressOfTheListBeingSetIsInUse();
    void AReplacedAddressIsFreeAgain();
    void AnIndexOutsideTheListGivesNothingAndChangesNothing();
    void TheListAsNumbersHasTheFirstOctetOnTop();
    void AnEntryWithoutANameIsShownWithOne_data();
    void AnEntryWithoutANameIsShownWithOne();
    void RemovingAnEntryRemovesItFromAllLists();
    void TheListBeingSetIsAppliedOrReverted();
    void SavingTheListSavesNothingElse();
    void SavingTheListOfAnUnsavedProjectWaits();
    void AListThatCannotBeSavedIsReported();
    void HowProcessorsAreAddressedCanBeSet();
};

void TestAddresses::init()
{
    FreshSimulator();
}

void TestAddresses::EachAddressEarnsItsCode_data()
{
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<unsigned int>("expected");
    const auto Row = [](const char* szName, const char* szAddress, unsigned int nExpected) {
        QTest::newRow(szName) << QByteArray(szAddress) << nExpected;
    };
    Row("own address", "192.168.1.17", 0xE0832000);
    Row("own loopback address", "127.0.0.1", 0xE0832000);
    Row("an address of the list", "192.168.1.30", 0xE0832001);
    Row("first octet 0", "0.168.1.30", 0xE0832002);
    Row("0.0.0.0", "0.0.0.0", 0xE0832002);
    Row("default gateway", "192.168.1.254", 0xE0832003);
    Row("broadcast of the network", "192.168.1.255", 0xE0832004);
    Row("broadcast of loopback", "127.255.255.255", 0xE0832004);
    Row("limited broadcast", "255.255.255.255", 0xE0832004);
    Row("the network itself", "192.168.1.0", 0xE0832005);
    Row("the loopback network itself", "127.0.0.0", 0xE0832005);
    Row("first multicast", "224.0.0.0", 0xE0832005);
    Row("last multicast", "239.255.255.255", 0xE0832005);
    Row("first reserved", "240.0.0.0", 0xE0832005);
    Row("last reserved", "255.255.255.254", 0xE0832005);
    Row("last before multicast", "223.255.255.255", 0);
    Row("a neighbour", "192.168.1.18", 0);
    Row("loopback that a proposal counts up from", "127.0.0.2", 0);
    Row("far along loopback", "127.0.1.2", 0);
    Row("255 in a network of others", "192.168.2.255", 0);
    Row("0 in a network of others", "192.168.2.0", 0);
    Row("first octet 1", "1.0.0.1", 0);
}

void TestAddresses::EachAddressEarnsItsCode()
{
    QFETCH(QByteArray, address);
    QFETCH(unsigned int, expected);
    GetConfigData()->AddSpecifiedIP(Text("192.168.1.30"), QString());
    QCOMPARE(GetConfigData()->IsIPHasError(Value(address.constData()), nullptr, false), expected != 0);
    QCOMPARE(Code(address.constData()), expected);
}

void TestAddresses::AGoodAddressClearsTheCode()
{
    unsigned int nCode = 0xE0832001;
    QVERIFY(!GetConfigData()->IsIPHasError(Value("192.168.1.18"), &nCode, false));
    QCOMPARE(nCode, 0U);
}

void TestAddresses::TheCodeMayBeLeftOut()
{
    QVERIFY(GetConfigData()->IsIPHasError(0, nullptr, false));
}

void TestAddresses::AnAddressInUseIsRefusedBeforeTheQuestionIsAsked()
{
    GetConfigData()->AddSpecifiedIP(Text("192.168.1.17"), QString());
    QCOMPARE(Code("192.168.1.17"), 0xE0832001U);
}

void TestAddresses::NetworksOfOneOrTwoAddressesHaveNoEnds_data()
{
    QTest::addColumn<QByteArray>("mask");
    QTest::addColumn<QByteArray>("address");
    QTest::addColumn<unsigned int>("expected");
    QTest::newRow("/30: network") << QByteArray("255.255.255.252") << QByteArray("10.0.0.4") << 0xE0832005U;
    QTest::newRow("/30: broadcast") << QByteArray("255.255.255.252") << QByteArray("10.0.0.7") << 0xE0832004U;
    QTest::newRow("/31: the other end") << QByteArray("255.255.255.254") << QByteArray("10.0.0.4") << 0U;
    QTest::newRow("/31: this end") << QByteArray("255.255.255.254") << QByteArray("10.0.0.5") << 0xE0832000U;
    QTest::newRow("/32: this address")
        << QByteArray("255.255.255.255") << QByteArray("10.0.0.5") << 0xE0832000U;
    QTest::newRow("/32: the next address") << QByteArray("255.255.255.255") << QByteArray("10.0.0.6") << 0U;
}

void TestAddresses::NetworksOfOneOrTwoAddressesHaveNoEnds()
{
    QFETCH(QByteArray, mask);
    QFETCH(QByteArray, address);
    QFETCH(unsigned int, expected);
    CSimulator::Instance().Addresses().SetNetworkFacts([&mask] {
        SNetworkFacts facts;
        facts.listLocal = {{Value("10.0.0.5"), Value(mask.constData()), Value("10.0.0.5")}};
        return facts;
    });
    QCOMPARE(Code(address.constData()), expected);
}

void TestAddresses::TheFactsAreAskedForOnRefreshAlone()
{
    int nAsked = 0;
    CSimulator::Instance().Addresses().SetNetworkFacts([&nAsked] {
        ++nAsked;
        return TestNetwork();
    });
    QCOMPARE(nAsked, 1);
    QCOMPARE(Code("192.168.1.17"), 0xE0832000U);
    QCOMPARE(nAsked, 1);
    GetConfigData()->UpdateErrorIPList();
    QCOMPARE(nAsked, 2);
    CSimulator::Instance().Addresses().SetNetworkFacts(TestNetwork);
}

void TestAddresses::AnAddedAddressIsInUseAtOnce()
{
    QCOMPARE(Code("10.1.2.3"), 0U);
    GetConfigData()->AddSpecifiedIP(Text("10.1.2.3"), Text("left"));
    QCOMPARE(Code("10.1.2.3"), 0xE0832001U);
    QCOMPARE(GetConfigData()->GetSpecifiedIPDWORD(nullptr), 1);
}

void TestAddresses::AnAddedEntryStandsInAllThreeLists()
{
    CConfigData* pConfig = GetConfigData();
    pConfig->AddSpecifiedIP(Text("10.1.2.3"), Text("left"));
    const QString strEntry = Text("10.1.2.3(left)");
    QCOMPARE(StoredList(), QStringList{strEntry});
    QCOMPARE(pConfig->GetSpecifiedIPOriginal(0), strEntry);
    QCOMPARE(pConfig->GetCurSetSpecifiedIPWithIndex(0), strEntry);
}

void TestAddresses::ReplacingAnEntryTouchesItsListAlone()
{
    CConfigData* pConfig = GetConfigData();
    pConfig->AddSpecifiedIP(Text("10.1.2.3"), Text("left"));
    pConfig->SetCurSetSpecifiedIPWithIndex(0, Text("10.1.2.4"), Text("set"));
    pConfig->SetSpecifiedIPWithIndex(0, Text("10.1.2.5"), Text("stored"));
    QCOMPARE(pConfig->GetCurSetSpecifiedIPWithIndex(0), Text("10.1.2.4(set)"));
    QCOMPARE(StoredList(), QStringList{Text("10.1.2.5(stored)")});
    QCOMPARE(pConfig->GetSpecifiedIPOriginal(0), Text("10.1.2.3(left)"));
    QVERIFY(CSimulator::Instance().Document().IsModified());
}

void TestAddresses::AnAddressOfTheListBeingSetIsInUse()
{
    GetConfigData()->AddSpecifiedIP(Text("10.1.2.3"), QString());
    GetConfigData()->SetCurSetSpecifiedIPWithIndex(0, Text("10.1.2.4"), QString());
    QCOMPARE(Code("10.1.2.3"), 0xE0832001U);
    QCOMPARE(Code("10.1.2.4"), 0xE0832001U);
}

void TestAddresses::AReplacedAddressIsFreeAgain()
{
    GetConfigData()->AddSpecifiedIP(Text("10.1.2.3"), QString());
    GetConfigData()->SetSpecifiedIPWithIndex(0, Text("10.1.2.4"), QString());
    CSimulator::Instance().Addresses().RevertCurrentSet();
    QCOMPARE(Code("10.1.2.3"), 0U);
}

void TestAddresses::AnIndexOutsideTheListGivesNothingAndChangesNothing()
{
    CConfigData* pConfig = GetConfigData();
    for (const int nIndex : {-1, 0, 255}) {
        pConfig->SetSpecifiedIPWithIndex(nIndex, Text("10.1.2.4"), QString());
        pConfig->SetCurSetSpecifiedIPWithIndex(nIndex, Text("10.1.2.4"), QString());
        QVERIFY(pConfig->GetSpecifiedIPOriginal(nIndex).isEmpty());
        QVERIFY(pConfig->GetCurSetSpecifiedIPWithIndex(nIndex).isEmpty());
        QVERIFY(pConfig->GetSpecifiedIPWithName(nIndex).isEmpty());
    }
    QVERIFY(!CSimulator::Instance().Document().IsModified());
}

void TestAddresses::TheListAsNumbersHasTheFirstOctetOnTop()
{
    GetConfigData()->AddSpecifiedIP(Text("10.1.2.3"), QString());
    GetConfigData()->AddSpecifiedIP(Text("192.168.0.1"), QString());
    unsigned int arrTable[3] = {};
    QCOMPARE(GetConfigData()->GetSpecifiedIPDWORD(arrTable), 2);
    QCOMPARE(arrTable[0], 0x0A010203U);
    QCOMPARE(arrTable[1], 0xC0A80001U);
    QCOMPARE(arrTable[2], 0U);
}

void TestAddresses::AnEntryWithoutANameIsShownWithOne_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("expected");
    QTest::newRow("no name") << QString() << Text("192.168.1.17(IP17)");
    QTest::newRow("a name") << Text("left") << Text("192.168.1.17(left)");
    QTest::newRow("a name with parentheses") << Text("left (1)") << Text("192.168.1.17(left (1))");
}

void TestAddresses::AnEntryWithoutANameIsShownWithOne()
{
    QFETCH(QString, name);
    QFETCH(QString, expected);
    GetConfigData()->AddSpecifiedIP(Text("192.168.1.17"), name);
    QCOMPARE(GetConfigData()->GetSpecifiedIPWithName(0), expected);
}

void TestAddresses::RemovingAnEntryRemovesItFromAllLists()
{
    GetConfigData()->AddSpecifiedIP(Text("10.0.0.1"), QString());
    GetConfigData()->AddSpecifiedIP(Text("10.0.0.2"), QString());
    CSimulator::Instance().Addresses().Remove({0});
    CSimulator::Instance().Addresses().Remove({7});
    const SAddressLists& lists = CSimulator::Instance().Project().addresses;
    const QStringList listExpected = {Text("10.0.0.2()")};
    QCOMPARE(lists.listStored, listExpected);
    QCOMPARE(lists.listOriginal, listExpected);
    QCOMPARE(lists.listCurSet, listExpected);
}

void TestAddresses::TheListBeingSetIsAppliedOrReverted()
{
    CConfigData* pConfig = GetConfigData();
    pConfig->AddSpecifiedIP(Text("10.0.0.1"), QString());
    pConfig->SetCurSetSpecifiedIPWithIndex(0, Text("10.0.0.2"), QString());
    CSimulator::Instance().Addresses().ApplyCurrentSet();
    QCOMPARE(StoredList(), QStringList{Text("10.0.0.2()")});
    pConfig->SetCurSetSpecifiedIPWithIndex(0, Text("10.0.0.3"), QString());
    CSimulator::Instance().Addresses().RevertCurrentSet();
    QCOMPARE(pConfig->GetCurSetSpecifiedIPWithIndex(0), Text("10.0.0.2()"));
}

void TestAddresses::SavingTheListSavesNothingElse()
{
    const QTemporaryDir dir;
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(16);
    SFileProblem problem;
    QVERIFY2(simulator.Document().SaveAs(dir.filePath(Text("a.json")), problem), qPrintable(problem.Text()));
    simulator.Document().Change([](SSimulatedProject& project) { project.bDemoMode = false; });
    GetConfigData()->AddSpecifiedIP(Text("10.0.0.1"), Text("left"));
    GetConfigData()->SpecifiedIPsSave();
    const std::optional<SSimulatedProject> saved = ProjectFile::Read(dir.filePath(Text("a.json")), problem);
    QVERIFY2(saved.has_value(), qPrintable(problem.Text()));
    QCOMPARE(saved->addresses.listStored, QStringList{Text("10.0.0.1(left)")});
    QVERIFY(saved->bDemoMode);
    QVERIFY(simulator.Document().IsModified());
    simulator.Document().Change([](SSimulatedProject& project) { project.bDemoMode = true; });
    QVERIFY(!simulator.Document().IsModified());
}

void TestAddresses::SavingTheListOfAnUnsavedProjectWaits()
{
    CSimulator& simulator = CSimulator::Instance();
    QSignalSpy spyProblem(&simulator.Document(), &CProjectDocument::OnProblem);
    GetConfigData()->AddSpecifiedIP(Text("10.0.0.1"), QString());
    GetConfigData()->SpecifiedIPsSave();
    QCOMPARE(spyProblem.count(), 0);
    QVERIFY(simulator.Document().IsModified());
    QCOMPARE(StoredList().size(), 1);
}

void TestAddresses::AListThatCannotBeSavedIsReported()
{
    CSimulator& simulator = CSimulator::Instance();
    QTemporaryDir dir;
    SFileProblem problem;
    QVERIFY(simulator.Document().SaveAs(dir.filePath(Text("a.json")), problem));
    QVERIFY(dir.remove());
    QSignalSpy spyProblem(&simulator.Document(), &CProjectDocument::OnProblem);
    GetConfigData()->AddSpecifiedIP(Text("10.0.0.1"), QString());
    GetConfigData()->SpecifiedIPsSave();
    QCOMPARE(spyProblem.count(), 1);
    QCOMPARE(spyProblem.at(0).at(0).value<SFileProblem>().strFile, dir.filePath(Text("a.json")));
    QVERIFY(simulator.Document().IsModified());
}

void TestAddresses::HowProcessorsAreAddressedCanBeSet()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().Change([](SSimulatedProject& project) {
        project.addressing.nDetectStrategy = 1;
        project.addressing.nCountLimitByIP = 100;
        project.addressing.nCountLimitOtherwise = 7;
    });
    QCOMPARE(GetConfigData()->GetDetectStrategy(), 1);
    QCOMPARE(GetRuntimeData()->GetSenderCountLimit(true), 100);
    QCOMPARE(GetRuntimeData()->GetSenderCountLimit(false), 7);
}

QTEST_GUILESS_MAIN(TestAddresses)
#include "TestAddresses.moc"
