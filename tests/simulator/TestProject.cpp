#include "host/TevraData/ProjectData.h"
#include "tests/simulator/SimulatorTest.h"

#include <QSignalSpy>

class TestProject : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ANewProjectHoldsTheSixDemoSenders();
    void ACatalogueProjectHoldsOneSenderOfEachType();
    void AnUnknownTypeIsNotAdded();
    void SendersGetIdsThatAreNeverUsedAgain();
    void SelectingAnotherSenderIsNoUnsavedChange();
    void WithoutIdsNoSenderIsAdded();
    void SendersAddedTogetherAreAnnouncedOnce();
    void RemovingASenderKeepsTheCurrentOne_data();
    void RemovingASenderKeepsTheCurrentOne();
    void AnIndexWithoutASenderIsNeverCurrent();
    void AChangeIsAnnouncedOnceAndMarksTheProject();
    void AChangeTakenBackLeavesTheProjectUnmodified();
    void AFieldWrittenInPlaceIsNoticed();
    void TheRecordOfAnEmptyProjectStandsForSenderZero();
    void OnlyAWholeBlockEntersTheEdidMemory_data();
    void OnlyAWholeBlockEntersTheEdidMemory();
};

void TestProject::init()
{
    FreshSimulator();
}

void TestProject::ANewProjectHoldsTheSixDemoSenders()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().NewProject();
    QStringList listNames;
    for (const SSimulatedSender& sender : simulator.Project().listSenders)
        listNames.append(sender.strName);
    QCOMPARE(listNames.join(QLatin1Char('|')), QStringLiteral("M6K|R16 PRO|T4|T6|T6 PRO|T8"));
    QVERIFY(!simulator.Document().IsModified());
    QVERIFY(simulator.Document().FilePath().isEmpty());
}

void TestProject::ACatalogueProjectHoldsOneSenderOfEachType()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().NewCatalogueProject();
    QList<int> listTypes;
    for (const SSimulatedSender& sender : simulator.Project().listSenders)
        listTypes.append(sender.capability.nType);
    QCOMPARE(listTypes, CCatalogue::Instance().Types());
}

void TestProject::AnUnknownTypeIsNotAdded()
{
    CSimulator& simulator = CSimulator::Instance();
    QCOMPARE(simulator.Document().AddSender(9999), -1);
    QVERIFY(simulator.Project().listSenders.empty());
    QVERIFY(!simulator.Document().NewDemoProject(0));
}

void TestProject::SendersGetIdsThatAreNeverUsedAgain()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(16);
    simulator.Document().AddSender(17);
    const QString strPicture = simulator.Document().PictureName(1);
    simulator.Document().RemoveSender(0);
    QCOMPARE(simulator.Document().PictureName(0), strPicture);
    simulator.Document().AddSender(16);
    QCOMPARE(simulator.Project().FindSender(1)->nId, 3);
}

void TestProject::SelectingAnotherSenderIsNoUnsavedChange()
{
    CProjectDocument& document = CSimulator::Instance().Document();
    document.NewProject();
    QSignalSpy spyChanged(&document, &CProjectDocument::OnProjectChanged);
    document.SetCurrentSender(2);
    QCOMPARE(spyChanged.count(), 1);
    QVERIFY(!document.IsModified());
}

void TestProject::WithoutIdsNoSenderIsAdded()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().Change([](SSimulatedProject& project) { project.nNextSenderId = c_nLastSenderId; });
    QCOMPARE(simulator.Document().AddSenders(16, 3, 4), 1);
    QCOMPARE(simulator.Document().AddSender(16), -1);
    QCOMPARE(simulator.Project().listSenders.back().nId, c_nLastSenderId);
}

void TestProject::SendersAddedTogetherAreAnnouncedOnce()
{
    CSimulator& simulator = CSimulator::Instance();
    QSignalSpy spyChanged(&simulator.Document(), &CProjectDocument::OnProjectChanged);
    QCOMPARE(simulator.Document().AddSenders(16, 5, 8), 5);
    QCOMPARE(spyChanged.count(), 1);
    QCOMPARE(int(simulator.Project().listSenders.size()), 5);
    QCOMPARE(simulator.Project().listSenders.back().record.nOutputPortCount, 8);
}

void TestProject::RemovingASenderKeepsTheCurrentOne_data()
{
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("removed");
    QTest::addColumn<int>("expected");
    QTest::newRow("one before the current") << 2 << 0 << 1;
    QTest::newRow("one behind the current") << 1 << 2 << 1;
    QTest::newRow("the current one, in the middle: its follower") << 1 << 1 << 1;
    QTest::newRow("the current one, at the end: its predecessor") << 2 << 2 << 1;
    QTest::newRow("no sender at all") << 2 << 7 << 2;
}

void TestProject::RemovingASenderKeepsTheCurrentOne()
{
    QFETCH(int, current);
    QFETCH(int, removed);
    QFETCH(int, expected);
    CSimulator& simulator = CSimulator::Instance();
    for (const int nType : {16, 17, 21})
        simulator.Document().AddSender(nType);
    simulator.Document().SetCurrentSender(current);
    simulator.Document().RemoveSender(removed);
    QCOMPARE(simulator.Project().nCurSender, expected);
}

void TestProject::AnIndexWithoutASenderIsNeverCurrent()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(16);
    simulator.Document().SetCurrentSender(1);
    simulator.Document().SetCurrentSender(-1);
    QCOMPARE(simulator.Project().nCurSender, 0);
}

void TestProject::AChangeIsAnnouncedOnceAndMarksTheProject()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().NewProject();
    QSignalSpy spyChanged(&simulator.Document(), &CProjectDocument::OnProjectChanged);
    QSignalSpy spyModified(&simulator.Document(), &CProjectDocument::OnModifiedChanged);
    simulator.Document().Change([](SSimulatedProject& project) {
        project.listSenders[0].record.nFrameRate = 30;
        project.listSenders[1].nOutputDepthMode = 2;
    });
    simulator.Document().Change([](SSimulatedProject&) {});
    QCOMPARE(spyChanged.count(), 1);
    QCOMPARE(spyModified.count(), 1);
    QVERIFY(simulator.Document().IsModified());
}

void TestProject::AChangeTakenBackLeavesTheProjectUnmodified()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().NewProject();
    simulator.Document().Change([](SSimulatedProject& project) { project.bDemoMode = false; });
    simulator.Document().Change([](SSimulatedProject& project) { project.bDemoMode = true; });
    QVERIFY(!simulator.Document().IsModified());
}

void TestProject::AFieldWrittenInPlaceIsNoticed()
{
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().NewProject();
    QSignalSpy spyChanged(&simulator.Document(), &CProjectDocument::OnProjectChanged);
    GetProjectData()->GetCurrentSender();
    GetProjectData()->GetCurrentSender()->nColorDepth = 12;
    QTRY_COMPARE(spyChanged.count(), 1);
    QVERIFY(simulator.Document().IsModified());
}

void TestProject::TheRecordOfAnEmptyProjectStandsForSenderZero()
{
    QVERIFY(GetProjectData()->GetCurrentSender() != nullptr);
    QCOMPARE(GetProjectData()->GetSender(0)->nOutputPortCount, 4);
    QVERIFY(GetProjectData()->GetSender(1) == nullptr);
}

void TestProject::OnlyAWholeBlockEntersTheEdidMemory_data()
{
    QTest::addColumn<int>("interfaceId");
    QTest::addColumn<int>("length");
    QTest::addColumn<bool>("expected");
    QTest::newRow("128 bytes") << 16 << 128 << true;
    QTest::newRow("nothing empties the memory") << 16 << 0 << true;
    QTest::newRow("127 bytes") << 16 << 127 << false;
    QTest::newRow("256 bytes") << 16 << 256 << false;
    QTest::newRow("an input that is not there") << 99 << 128 << false;
}

void TestProject::OnlyAWholeBlockEntersTheEdidMemory()
{
    QFETCH(int, interfaceId);
    QFETCH(int, length);
    QFETCH(bool, expected);
    CSimulator& simulator = CSimulator::Instance();
    simulator.Document().AddSender(17);
    const QByteArray baBlock(length, '\x5a');
    QCOMPARE(simulator.Hardware().SetEdidMemory(0, interfaceId, baBlock), expected);
    if (expected)
        QCOMPARE(simulator.Project().FindSender(0)->FindInput(interfaceId)->baEdid, baBlock);
}

QTEST_GUILESS_MAIN(TestProject)
#include "TestProject.moc"
