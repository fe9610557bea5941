#ifndef WORKBENCH_JOURNALFILTER_H
#define WORKBENCH_JOURNALFILTER_H

#include "workbench/RepeatedReads.h"

#include <QSortFilterProxyModel>

class CHostJournal;
struct SJournalEntry;

/// Passes the calls that contain a text, shows repeated reads once with their count, and optionally leaves
/// out all that only read from the host.
class CJournalFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CJournalFilter(CHostJournal& journal, QObject* pParent = nullptr);

    void SetText(const QString& strText);
    void SetReadsShown(bool bShown);
    /// Shows every read in its place, or repeated ones once.
    void SetRepeatsFolded(bool bFolded);

    /// Rows of failed writes have their own colour, sign and accessible description; a row that stands for
    /// several calls says how many.
    QVariant data(const QModelIndex& index, int nRole) const override;

protected:
    bool filterAcceptsRow(int nRow, const QModelIndex& parent) const override;

private:
    /// Counts the next call; the result is the row that stands for it.
    int Count(const SJournalEntry& entry);
    void TakeRows(int nFirst, int nLast);
    void TakeAll();
    int CountAt(const QModelIndex& index) const;

    CHostJournal& m_journal;
    CRepeatedReads m_reads;
    QString m_strText;
    bool m_bReadsShown = true;
    bool m_bRepeatsFolded = true;
};

#endif // WORKBENCH_JOURNALFILTER_H
