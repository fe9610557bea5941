#ifndef WORKBENCH_JOURNALFILTER_H
#define WORKBENCH_JOURNALFILTER_H

#include <QSortFilterProxyModel>

/// Passes the calls of the journal that hold a text, and leaves out those that only ask the host when told
/// to.
class CJournalFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CJournalFilter(QObject* pParent = nullptr);

    void SetText(const QString& strText);
    void SetReadsShown(bool bShown);

    /// Rows of writes that did not take have a colour of their own.
    QVariant data(const QModelIndex& index, int nRole) const override;

protected:
    bool filterAcceptsRow(int nRow, const QModelIndex& parent) const override;

private:
    QString m_strText;
    bool m_bReadsShown = true;
};

#endif // WORKBENCH_JOURNALFILTER_H
