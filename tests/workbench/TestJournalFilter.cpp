#include "simulator/CommonClass/HostJournal.h"
#include "simulator/OrviControl/Theme.h"
#include "tests/support/Contrast.h"
#include "workbench/JournalFilter.h"

#include <QAccessible>
#include <QTableView>
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

QStringList s_listWarnings;

void NoteWarning(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& strText)
{
    s_listWarnings.append(strText);
}

} // namespace

class TestJournalFilter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void CallsThatHoldTheTextArePassed();
    void ReadsCanBeLeftOut();
    void AWriteThatDidNotTakeIsMarked();
    void AFailedRowCanBeReadOnEachRowColour();
    void AssistiveToolsAreToldOfAFailedRow();
    void RepeatedReadsAreOneRowWithACount();
    void AWriteStartsAfresh();
    void EveryReadCanBeShownInItsPlace();
    void ReadsWithAnotherResultAreAnotherRow();
    void AfterTheOldestGoTheRestIsCountedAgain();
    void AClearedJournalStartsAfresh();
    void AJournalWithRepeatedReadsIsTakenWithoutAWarning();
};

void TestJournalFilter::CallsThatHoldTheTextArePassed()
{
    CHostJournal journal;
    Append(journal, enJournalRead, "GetSenderType");
    Append(journal, enJournalWrite, "SetOutput50Hz");
    CJournalFilter filter(journal);
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
    CJournalFilter filter(journal);
    filter.SetReadsShown(false);
    QCOMPARE(filter.rowCount(), 2);
}

void TestJournalFilter::AWriteThatDidNotTakeIsMarked()
{
    CHostJournal journal;
    CJournalFilter filter(journal);
    Append(journal, enJournalWrite, "SetEdidSetting");
    const QModelIndex index = filter.index(0, CHostJournal::enColumnResult);
    QVERIFY(!index.data(Qt::ForegroundRole).isValid());
    QVERIFY(!index.data(Qt::DecorationRole).isValid());
    journal.MarkLastFailed();
    QVERIFY(!index.data(Qt::DecorationRole).value<QIcon>().isNull());
    QCOMPARE(index.data().toString(), QStringLiteral("failed"));
    QVERIFY(index.data(CHostJournal::enRoleLine).toString().endsWith(QStringLiteral("failed")));
}

void TestJournalFilter::AFailedRowCanBeReadOnEachRowColour()
{
    CHostJournal journal;
    const CJournalFilter filter(journal);
    Append(journal, enJournalWrite, "SetEdidSetting");
    journal.MarkLastFailed();
    const QRgb rgbText =
        filter.index(0, CHostJournal::enColumnCall).data(Qt::ForegroundRole).value<QColor>().rgb();
    const QPalette palette = Theme::Palette();
    QVERIFY(Contrast(rgbText, palette.color(QPalette::Base).rgb()) >= c_dTextContrast);
    QVERIFY(Contrast(rgbText, palette.color(QPalette::AlternateBase).rgb()) >= c_dTextContrast);
}

void TestJournalFilter::AssistiveToolsAreToldOfAFailedRow()
{
    CHostJournal journal;
    CJournalFilter filter(journal);
    Append(journal, enJournalWrite, "SetOutput50Hz");
    Append(journal, enJournalWrite, "SetEdidSetting");
    journal.MarkLastFailed();
    QTableView table;
    table.setModel(&filter);
    QAccessibleTableInterface* pTable = QAccessible::queryAccessibleInterface(&table)->tableInterface();
    QCOMPARE(pTable->cellAt(0, CHostJournal::enColumnCall)->text(QAccessible::Description), QString());
    QCOMPARE(pTable->cellAt(1, CHostJournal::enColumnCall)->text(QAccessible::Description),
             QStringLiteral("写入失败"));
}

QStringList Shown(const CJournalFilter& filter)
{
    QStringList listShown;
    for (int i = 0; i < filter.rowCount(); ++i)
        listShown.append(filter.index(i, CHostJournal::enColumnCall).data().toString());
    return listShown;
}

void TestJournalFilter::RepeatedReadsAreOneRowWithACount()
{
    CHostJournal journal;
    CJournalFilter filter(journal);
    const QSignalSpy spy(&filter, &QAbstractItemModel::dataChanged);
    for (int i = 0; i < 3; ++i) {
        Append(journal, enJournalRead, "GetSender");
        Append(journal, enJournalRead, "GetSenderType");
    }
    QCOMPARE(Shown(filter),
             (QStringList{QStringLiteral("GetSender()  ×3"), QStringLiteral("GetSenderType()  ×3")}));
    QCOMPARE(spy.count(), 4);
    QVERIFY(filter.index(0, 0).data(CHostJournal::enRoleLine).toString().endsWith(QStringLiteral("×3")));
}

void TestJournalFilter::AWriteStartsAfresh()
{
    CHostJournal journal;
    const CJournalFilter filter(journal);
    Append(journal, enJournalRead, "GetSender");
    Append(journal, enJournalWrite, "SetOutput50Hz");
    Append(journal, enJournalWrite, "SetOutput50Hz");
    Append(journal, enJournalRead, "GetSender");
    QCOMPARE(filter.rowCount(), 4);
}

void TestJournalFilter::EveryReadCanBeShownInItsPlace()
{
    CHostJournal journal;
    Append(journal, enJournalRead, "GetSender");
    Append(journal, enJournalRead, "GetSender");
    CJournalFilter filter(journal);
    QCOMPARE(filter.rowCount(), 1);
    filter.SetRepeatsFolded(false);
    QCOMPARE(Shown(filter), (QStringList{QStringLiteral("GetSender()"), QStringLiteral("GetSender()")}));
}

void TestJournalFilter::ReadsWithAnotherResultAreAnotherRow()
{
    CHostJournal journal;
    const CJournalFilter filter(journal);
    for (const char* szResult : {"1", "2"}) {
        SJournalEntry entry;
        entry.strOperation = QStringLiteral("GetSender");
        entry.strResult = QString::fromLatin1(szResult);
        journal.Append(entry);
    }
    QCOMPARE(filter.rowCount(), 2);
}

void TestJournalFilter::AfterTheOldestGoTheRestIsCountedAgain()
{
    CHostJournal journal;
    journal.SetCapacity(4);
    const CJournalFilter filter(journal);
    for (int i = 0; i < 5; ++i)
        Append(journal, enJournalRead, "GetSender");
    QTRY_COMPARE(Shown(filter), QStringList{QStringLiteral("GetSender()  ×4")});
}

void TestJournalFilter::AClearedJournalStartsAfresh()
{
    CHostJournal journal;
    const CJournalFilter filter(journal);
    Append(journal, enJournalRead, "GetSender");
    journal.Clear();
    Append(journal, enJournalRead, "GetSender");
    QCOMPARE(Shown(filter), QStringList{QStringLiteral("GetSender()")});
}

void TestJournalFilter::AJournalWithRepeatedReadsIsTakenWithoutAWarning()
{
    CHostJournal journal;
    journal.SetCapacity(3);
    Append(journal, enJournalRead, "GetSender");
    Append(journal, enJournalRead, "GetSender");
    s_listWarnings.clear();
    const QtMessageHandler pBefore = qInstallMessageHandler(NoteWarning);
    const CJournalFilter filter(journal);
    Append(journal, enJournalRead, "GetSender");
    Append(journal, enJournalRead, "GetSender");
    qInstallMessageHandler(pBefore);
    QCOMPARE(s_listWarnings, QStringList());
}

QTEST_MAIN(TestJournalFilter)
#include "TestJournalFilter.moc"
