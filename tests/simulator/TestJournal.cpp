#include "host/KelvaroLabel.h"
#include "host/TevraData/ConfigData.h"
#include "host/TevraData/ProjectData.h"
#include "host/TevraData/Sender.h"
#include "tests/simulator/SimulatorTest.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

QString Text(const char* szText)
{
    return QString::fromUtf8(szText);
}

SJournalEntry Entry(const char* szOperation)
{
    SJournalEntry entry;
    entry.strOperation = Text(szOperation);
    return entry;
}

} // namespace

class TestJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void EntriesStandInOrderWithRunningNumbers();
    void AClearForgetsEntriesButNotTheNumber();
    void MemoryIsBounded();
    void ASmallerCapacityDropsTheOldest();
    void ItIsAProperTableModel();
    void ColumnsShowTheEntry();
    void CallsCanBeFilteredByKind();
    void TheLatestFailureSinceACallIsFound();
    void ACallIsNotedWithResultAndTime();
    void OutArgumentsShowWhatCameBack();
    void ANullArgumentIsNoted();
};

void TestJournal::EntriesStandInOrderWithRunningNumbers()
{
    CHostJournal journal;
    QSignalSpy spyAppended(&journal, &CHostJournal::OnAppended);
    journal.Append(Entry("First"));
    journal.Append(Entry("Second"));
    QCOMPARE(journal.Calls(), QStringList({Text("First()"), Text("Second()")}));
    QCOMPARE(journal.At(1).nNumber, qint64(2));
    QCOMPARE(spyAppended.count(), 2);
    QCOMPARE(spyAppended.at(1).at(0).toInt(), 1);
}

void TestJournal::AClearForgetsEntriesButNotTheNumber()
{
    CHostJournal journal;
    journal.Append(Entry("First"));
    journal.Clear();
    QCOMPARE(journal.GetCount(), 0);
    journal.Append(Entry("Second"));
    QCOMPARE(journal.At(0).nNumber, qint64(2));
}

void TestJournal::MemoryIsBounded()
{
    CHostJournal journal;
    journal.SetCapacity(160);
    for (int nEntry = 0; nEntry < 1000; ++nEntry) {
        journal.Append(Entry("Call"));
        QVERIFY(journal.GetCount() <= 160);
    }
    // A sixteenth goes at once, so the journal is never nearly empty.
    QVERIFY(journal.GetCount() > 149);
    QCOMPARE(journal.At(journal.GetCount() - 1).nNumber, qint64(1000));
}

void TestJournal::ASmallerCapacityDropsTheOldest()
{
    CHostJournal journal;
    for (int nEntry = 0; nEntry < 10; ++nEntry)
        journal.Append(Entry("Call"));
    journal.SetCapacity(3);
    QVERIFY(journal.GetCount() <= 3);
    QCOMPARE(journal.At(journal.GetCount() - 1).nNumber, qint64(10));
    journal.SetCapacity(0);
    QCOMPARE(journal.GetCapacity(), 1);
    journal.Append(Entry("Call"));
    QCOMPARE(journal.GetCount(), 1);
}

void TestJournal::ItIsAProperTableModel()
{
    CHostJournal journal;
    const QAbstractItemModelTester tester(&journal, QAbstractItemModelTester::FailureReportingMode::QtTest);
    journal.SetCapacity(20);
    for (int nEntry = 0; nEntry < 50; ++nEntry)
        journal.Append(Entry("Call"));
    journal.Clear();
    journal.Append(Entry("Call"));
    QCOMPARE(journal.columnCount(journal.index(0, 0)), 0);
    QCOMPARE(journal.rowCount(journal.index(0, 0)), 0);
    QVERIFY(!journal.data(QModelIndex(), Qt::DisplayRole).isValid());
}

void TestJournal::ColumnsShowTheEntry()
{
    CHostJournal journal;
    SJournalEntry entry = Entry("SetOutput50Hz");
    entry.category = enJournalWrite;
    entry.strObject = Text("CSenderLogic");
    entry.listArguments = QStringList{Text("0"), Text("true"), Text("0")};
    entry.strResult = Text("7");
    entry.dDuration = 1.5;
    journal.Append(entry);
    const auto Shown = [&journal](int nColumn) { return journal.index(0, nColumn).data().toString(); };
    QCOMPARE(Shown(CHostJournal::enColumnNumber), Text("1"));
    QCOMPARE(Shown(CHostJournal::enColumnCategory), Text("write"));
    QCOMPARE(Shown(CHostJournal::enColumnObject), Text("CSenderLogic"));
    QCOMPARE(Shown(CHostJournal::enColumnCall), Text("SetOutput50Hz(0, true, 0)"));
    QCOMPARE(Shown(CHostJournal::enColumnResult), Text("7"));
    QCOMPARE(Shown(CHostJournal::enColumnDuration), Text("1.500"));
    QCOMPARE(journal.index(0, 0).data(CHostJournal::enRoleCategory).toInt(), int(enJournalWrite));
    QVERIFY(journal.index(0, 0)
                .data(CHostJournal::enRoleLine)
                .toString()
                .endsWith(Text("write\tCSenderLogic::SetOutput50Hz(0, true, 0) = 7")));
    QCOMPARE(journal.headerData(CHostJournal::enColumnCall, Qt::Horizontal, Qt::DisplayRole).toString(),
             Text("Call"));
}

void TestJournal::CallsCanBeFilteredByKind()
{
    CSimulator& simulator = FreshSimulator();
    GetProjectData()->GetDemoModeEnable();
    GetProjectData()->SetDemoModeEnable(false);
    simulator.Label()->PostLabelEvent(0xC00, 0, 1, 0);
    QCOMPARE(simulator.Journal().Calls(enJournalRead), QStringList{Text("GetDemoModeEnable()")});
    QCOMPARE(simulator.Journal().Calls(enJournalWrite), QStringList{Text("SetDemoModeEnable(false)")});
    QCOMPARE(simulator.Journal().Calls(enJournalEvent), QStringList{Text("PostLabelEvent(0xc00, 0, 1, 0)")});
}

void TestJournal::TheLatestFailureSinceACallIsFound()
{
    CHostJournal journal;
    journal.Append(Entry("First"));
    journal.MarkLastFailed();
    const qint64 nFirst = journal.LastNumber();
    journal.Append(Entry("Second"));
    QCOMPARE(journal.LastFailed(0)->strOperation, Text("First"));
    QVERIFY(!journal.LastFailed(nFirst));
    journal.MarkLastFailed();
    journal.Append(Entry("Third"));
    QCOMPARE(journal.LastFailed(nFirst)->strOperation, Text("Second"));
}

void TestJournal::ACallIsNotedWithResultAndTime()
{
    CSimulator& simulator = FreshSimulator();
    const qint64 nBefore = QDateTime::currentMSecsSinceEpoch();
    GetProjectData()->GetDemoModeEnable();
    const SJournalEntry entry = simulator.Journal().At(0);
    QCOMPARE(entry.strObject, Text("CProjectData"));
    QCOMPARE(entry.strResult, Text("true"));
    QVERIFY(entry.nTimeStamp >= nBefore);
    QVERIFY(entry.dDuration >= 0);
}

void TestJournal::OutArgumentsShowWhatCameBack()
{
    CSimulator& simulator = FreshSimulator();
    unsigned int nCode = 0;
    GetConfigData()->IsIPHasError(0xC0A80111, &nCode, false);
    QCOMPARE(simulator.Journal().Calls(), QStringList{Text("IsIPHasError(192.168.1.17, 0xe0832000, false)")});
    QCOMPARE(simulator.Journal().At(0).strResult, Text("true"));
}

void TestJournal::ANullArgumentIsNoted()
{
    CSimulator& simulator = FreshSimulator();
    GetConfigData()->IsIPHasError(0x01020304, nullptr, false);
    GetConfigData()->GetSpecifiedIPDWORD(nullptr);
    QCOMPARE(simulator.Journal().Calls(),
             QStringList({Text("IsIPHasError(1.2.3.4, null, false)"), Text("GetSpecifiedIPDWORD(null)")}));
}

QTEST_GUILESS_MAIN(TestJournal)
#include "TestJournal.moc"
