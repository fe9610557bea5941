#include "host/HardwareSupport/AdvancedSoftEdgeLogic.h"
#include "host/HardwareSupport/CaliSoftEdgeLogic.h"
#include "host/HardwareSupport/CanvasLimit.h"
#include "host/HardwareSupport/ColorBrightLogic.h"
#include "host/HardwareSupport/MonitorLogic.h"
#include "host/HardwareSupport/ReceiverLogic.h"
#include "host/HardwareSupport/SenderLogic.h"
#include "host/HardwareSupport/VideoSourceLogic.h"
#include "host/TevraData/ConstantData.h"
#include "host/TevraData/MonitorData.h"
#include "host/TevraData/ProjectData.h"
#include "host/TevraData/RuntimeData.h"
#include "tests/simulator/SimulatorTest.h"

#include <QSignalSpy>

#include <array>

namespace {

QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}

} // namespace

class TestSenderLogic : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void EveryGetterGivesOneObject();
    void ASendersAnswersAreItsCapabilities_data();
    void ASendersAnswersAreItsCapabilities();
    void ASenderThatIsNotThereCanDoNothing();
    void TheFullEdidRecordIsTheCurrentSendersMatter();
    void TheCanvasLimitOverwritesThePresets();
    void TheHardwareKeepsDepthAndRate();
    void AWriteToASenderThatIsNotThereChangesNothing();
    void ASlowSenderTakesItsTimeForWrites();
    void ReadsOfASlowSenderAreNotSlow();
    void ProcessorsAreCountedUnlessACountIsSet();
    void DetectedAddressesHaveTheFirstOctetInTheLowByte();
    void TheTableOfDetectedAddressesIsNeverOverrun();
    void ADemoProjectHasOneSenderOfTheSetType_data();
    void ADemoProjectHasOneSenderOfTheSetType();
    void AnUnknownDemoTypeLeavesTheProject();
};

void TestSenderLogic::init()
{
    FreshSimulator();
}

void TestSenderLogic::EveryGetterGivesOneObject()
{
    const auto Once = [](auto pfnGetter) { return pfnGetter() != nullptr && pfnGetter() == pfnGetter(); };
    QVERIFY(Once(GetHwSenderLogic));
    QVERIFY(Once(GetHwVideoSourceLogic));
    QVERIFY(Once(GetHwReceiverLogic));
    QVERIFY(Once(GetHwMonitorLogic));
    QVERIFY(Once(GetHwColorBrightLogic));
    QVERIFY(Once(GetHwCaliSoftEdgeLogic));
    QVERIFY(Once(GetHwAdvancedSoftEdgeLogic));
    QVERIFY(Once(GetProjectData));
    QVERIFY(Once(GetConstantData));
    QVERIFY(Once(GetRuntimeData));
    QVERIFY(Once(GetMonitorData));
}

void TestSenderLogic::ASendersAnswersAreItsCapabilities_data()
{
    QTest::addColumn<int>("type");
    for (const int nType : CCatalogue::Instance().Types())
        QTest::addRow("sender type %d", nType) << nType;
}

void TestSenderLogic::ASendersAnswersAreItsCapabilities()
{
    QFETCH(int, type);
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(10);
    const int nSender = simulator.Document().AddSender(type);
    const SSenderCapability capability = simulator.Project().FindSender(nSender)->capability;
    CSenderLogic* pLogic = GetHwSenderLogic();
    QCOMPARE(pLogic->GetSenderType(nSender), type);
    QCOMPARE(pLogic->IsVideoProcessor(nSender), capability.bVideoProcessor);
    QCOMPARE(pLogic->IsSupport10Bit(nSender), capability.bSupport10Bit);
    QCOMPARE(pLogic->IsSupport12Bit(nSender), capability.bSupport12Bit);
    QCOMPARE(pLogic->IsSupportCanvasSize(nSender), capability.bCanvasFromHardware);
    QCOMPARE(pLogic->GetHardwareCanvasSize(nSender),
             capability.bCanvasFromHardware ? QSize(1920, 1080) : QSize(0, 0));
}

void TestSenderLogic::ASenderThatIsNotThereCanDoNothing()
{
    CSenderLogic* pLogic = GetHwSenderLogic();
    for (const int nSender : {-1, 0, 5}) {
        QCOMPARE(pLogic->GetSenderType(nSender), 0);
        QVERIFY(!pLogic->IsSupport10Bit(nSender));
        QVERIFY(!pLogic->IsSupportCanvasSize(nSender));
        QCOMPARE(pLogic->GetHardwareCanvasSize(nSender), QSize(0, 0));
    }
}

void TestSenderLogic::TheFullEdidRecordIsTheCurrentSendersMatter()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(16);
    simulator.Document().AddSender(17);
    QVERIFY(!GetHwSenderLogic()->IsExtendedEdidSupported());
    simulator.Document().SetCurrentSender(1);
    QVERIFY(GetHwSenderLogic()->IsExtendedEdidSupported());
}

void TestSenderLogic::TheCanvasLimitOverwritesThePresets()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(17);
    simulator.Document().Change([](SSimulatedProject& project) {
        project.listSenders[0].capability.canvasLimit = {3840, 2000, 999};
    });
    SCanvasLimit limit;
    GetHwSenderLogic()->GetCanvasLimit(0, &limit);
    QCOMPARE(limit.nMaxWidth, 3840);
    QCOMPARE(limit.nMaxHeight, 2000);
    QCOMPARE(limit.nMaxArea, 999);
}

void TestSenderLogic::TheHardwareKeepsDepthAndRate()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(17);
    QSignalSpy spyChanged(&simulator.Document(), &CProjectDocument::OnProjectChanged);
    GetHwSenderLogic()->SetOutputDepthMode(0, 2, 1);
    GetHwSenderLogic()->SetOutput50Hz(0, true, 0);
    QCOMPARE(GetHwSenderLogic()->GetOutputDepthMode(0), 2);
    QVERIFY(simulator.Project().FindSender(0)->b50Hz);
    QCOMPARE(spyChanged.count(), 2);
}

void TestSenderLogic::AWriteToASenderThatIsNotThereChangesNothing()
{
    GetHwSenderLogic()->SetOutputDepthMode(0, 2, 1);
    GetHwSenderLogic()->SetOutput50Hz(-1, true, 0);
    QVERIFY(!CSimulator::Instance().Document().IsModified());
}

void TestSenderLogic::ASlowSenderTakesItsTimeForWrites()
{
    CSimulator& simulator = CSimulator::Instance();
    QList<int> listSleeps;
    simulator.Hardware().SetSleep([&listSleeps](int nMilliseconds) { listSleeps.append(nMilliseconds); });
    simulator.Document().AddSender(17);
    simulator.Document().Change(
        [](SSimulatedProject& project) { project.listSenders[0].faults.nWriteDelay = 250; });
    GetHwSenderLogic()->SetOutputDepthMode(0, 1, 1);
    GetHwSenderLogic()->SetOutput50Hz(0, true, 0);
    QCOMPARE(listSleeps, QList<int>({250, 250}));
}

void TestSenderLogic::ReadsOfASlowSenderAreNotSlow()
{
    CSimulator& simulator = CSimulator::Instance();
    int nSleeps = 0;
    simulator.Hardware().SetSleep([&nSleeps](int) { ++nSleeps; });
    simulator.Document().AddSender(17);
    simulator.Document().Change(
        [](SSimulatedProject& project) { project.listSenders[0].faults.nWriteDelay = 250; });
    GetHwSenderLogic()->GetOutputDepthMode(0);
    GetHwSenderLogic()->GetHardwareCanvasSize(0);
    QCOMPARE(nSleeps, 0);
}

void TestSenderLogic::ProcessorsAreCountedUnlessACountIsSet()
{
    CSimulator& simulator = CSimulator::Instance();
    QCOMPARE(GetHwSenderLogic()->GetAddedSenderCount(), 0);
    simulator.Document().AddSender(17);
    QCOMPARE(GetHwSenderLogic()->GetAddedSenderCount(), 1);
    simulator.Document().Change([](SSimulatedProject& project) { project.addressing.nAddedSenderCount = 0; });
    QCOMPARE(GetHwSenderLogic()->GetAddedSenderCount(), 0);
    QVERIFY(GetHwSenderLogic()->IsIPAddressMode());
}

void TestSenderLogic::DetectedAddressesHaveTheFirstOctetInTheLowByte()
{
    CSimulator::Instance().Document().Change([](SSimulatedProject& project) {
        project.addressing.listDetected = QStringList{Text("192.168.1.17"), Text("10.0.0.1")};
    });
    std::array<unsigned int, 255> arrTable = {};
    QCOMPARE(GetHwSenderLogic()->GetDetectedIPList(arrTable.data()), 2);
    QCOMPARE(arrTable[0], 0x1101A8C0U);
    QCOMPARE(arrTable[1], 0x0100000AU);
    QCOMPARE(arrTable[2], 0U);
}

void TestSenderLogic::TheTableOfDetectedAddressesIsNeverOverrun()
{
    CSimulator::Instance().Document().Change([](SSimulatedProject& project) {
        for (int nIndex = 0; nIndex < 300; ++nIndex)
            project.addressing.listDetected.append(Text("10.0.0.1"));
    });
    std::array<unsigned int, 256> arrTable = {};
    QCOMPARE(GetHwSenderLogic()->GetDetectedIPList(arrTable.data()), 255);
    QCOMPARE(arrTable[255], 0U);
}

void TestSenderLogic::ADemoProjectHasOneSenderOfTheSetType_data()
{
    QTest::addColumn<int>("type");
    for (const int nType : {21, 46, 16, 17, 35, 131074})
        QTest::addRow("type %d", nType) << nType;
}

void TestSenderLogic::ADemoProjectHasOneSenderOfTheSetType()
{
    QFETCH(int, type);
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(10);
    QSignalSpy spyReplaced(&simulator.Document(), &CProjectDocument::OnProjectReplaced);
    GetProjectData()->SetDemoModeEnable(true);
    GetProjectData()->SetDemoSenderType(type);
    QCOMPARE(GetHwSenderLogic()->ApplyDemoProject(), 0);
    QCOMPARE(int(simulator.Project().listSenders.size()), 1);
    QCOMPARE(GetHwSenderLogic()->GetSenderType(0), type);
    QVERIFY(GetProjectData()->GetDemoModeEnable());
    QCOMPARE(spyReplaced.count(), 1);
    QVERIFY2(simulator.Document().FilePath().isEmpty(),
             "saving the demo must not overwrite the project that was open");
}

void TestSenderLogic::AnUnknownDemoTypeLeavesTheProject()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(10);
    GetProjectData()->SetDemoSenderType(9999);
    QVERIFY(GetHwSenderLogic()->ApplyDemoProject() != 0);
    QCOMPARE(GetHwSenderLogic()->GetSenderType(0), 10);
}

QTEST_GUILESS_MAIN(TestSenderLogic)
#include "TestSenderLogic.moc"
