#include "simulator/CommonClass/HostJournal.h"
#include "workbench/JournalFilter.h"

#include <QtTest>

namespace {

void Append(CHostJournal& journal, enJournalCategory category, const char* szOperation)
{
    SJournalEntry entry;
    entry.category = category;
    entry.strObject = QStringLiteral("CProjectData");
    entry.strOperation = QString::fromLatin1(szOperation);
    journal.Append(entry);
}

} // namespace

class TestJournalFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CallsThatHoldTheTextArePassed();
    void ReadsCanBeLeftOut();
    void AWriteThatDidNotTakeIsMarked();
};

void TestJournalFilter::CallsThatHoldTheTextArePassed()
{
    CHostJournal journal;
    Append(journal, enJournalRead, "GetSenderType");
    Append(journal, enJournalWrite, "SetOutput50Hz");
    CJournalFilter filter;
    filter.setSourceModel(&journal);
    QCOMPARE(filter.rowCount(), 2);
    filter.SetText(QStringLiteral("output"));
    QCOMPARE(filter.rowCount(), 1);
    filter.SetText(QStringLiteral("nowhere"));
    QCOMPARE(filter.rowCount(), 0);
}

void TestJournalFilter::ReadsCanBeLeftOut()
{
    CHostJournal journal;
    Append(journal, enJournalRead, "GetSenderType");
    Append(journal, enJournalWrite, "SetOutput50Hz");
    Append(journal, enJournalEvent, "PostLabelEvent");
    CJournalFilter filter;
    filter.setSourceModel(&journal);
    filter.SetReadsShown(false);
    QCOMPARE(filter.rowCount(), 2);
}

void TestJournalFilter::AWriteThatDidNotTakeIsMarked()
{
    CHostJournal journal;
    CJournalFilter filter;
    filter.setSourceModel(&journal);
    Append(journal, enJournalWrite, "SetEdidSetting");
    const QModelIndex index = filter.index(0, CHostJournal::enColumnResult);
    QVERIFY(!index.data(Qt::ForegroundRole).isValid());
    journal.MarkLastFailed();
    QVERIFY(index.data(Qt::ForegroundRole).isValid());
    QCOMPARE(index.data().toString(), QStringLiteral("failed"));
    QVERIFY(index.data(CHostJournal::enRoleLine).toString().endsWith(QStringLiteral("failed")));
}

QTEST_MAIN(TestJournalFilter)
#include "TestJournalFilter.moc"
