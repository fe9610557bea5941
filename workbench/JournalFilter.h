#ifndef WORKBENCH_JOURNALFILTER_H
#define WORKBENCH_JOURNALFILTER_H

#include <QSortFilterProxyModel>

/// Passes the calls that contain a text, and optionally leaves out those that only read
/// from the host.
class CJournalFilter : public QSortFilterProxyModel
{
    Q_OBJECT

public:
    explicit CJournalFilter(QObject* pParent = nullptr);

    void SetText(const QString& strText);
    void SetReadsShown(bool bShown);

    /// Rows of failed writes have their own colour.
    QVariant data(const QModelIndex& index, int nRole) const override;

protected:
    bool filterAcceptsRow(int nRow, const QModelIndex& parent) const override;

private:
    QString m_strText;
    bool m_bReadsShown = true;
};

#endif // WORKBENCH_JOURNALFILTER_H
